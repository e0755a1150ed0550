// Numbers at the limits of what the engines calculate with: refused with the culprit's name, or solved.
#include <string>
#include <tuple>

#include "tests/solver/tasks/callback_fixture.hpp"

namespace {

class LimitsTest : public CallbackTest {
 protected:
  // Two integer and two continuous columns between 0 and 9, two rows.
  LimitsTest() {
    for (int col = 0; col < 4; ++col) Col(col - 2.5, 0.0, 9.0, col < 2 ? 'I' : 'C');
    Row({0, 1, 2, 3}, {2.0, 3.0, -1.0, 4.0}, 'L', 17.5);
    Row({0, 1, 2, 3}, {5.0, -2.0, 3.0, 1.0}, 'L', 11.3);
  }

  void ListenToLog() {
    auto const keep = [](char const* line, void* user) {
      static_cast<std::vector<std::string>*>(user)->emplace_back(line);
    };
    ASSERT_EQ(VORQ_SetLogCallback(prob, keep, &lines_), VORQ_OK);
  }

  void ExpectRefused(std::string const& message) {
    ListenToLog();
    EXPECT_EQ(VORQ_Solve(prob), VORQ_INVALID);
    ExpectError(message);
  }

  void ExpectError(std::string const& message) const { EXPECT_THAT(lines_, testing::Contains("Error: " + message)); }

  std::vector<std::string> lines_;
};

TEST_F(LimitsTest, ObjectiveCoefficientTooGreatIsRefused) {
  Col(1e26);
  ExpectRefused("Column 4: its objective coefficient is 1e+26, too great to calculate with");
}

TEST_F(LimitsTest, RowCoefficientTooGreatIsRefused) {
  Row({0, 2}, {1.0, 1e29}, 'L', 1e29);
  ExpectRefused("Row 2: a coefficient is 1e+29, too great to calculate with");
}

TEST_F(LimitsTest, UserCutWithAnImpossibleInfiniteSideIsAPlainCause) {
  int const cols[] = {0, 2};
  double const ones[] = {1.0, 1.0};
  ASSERT_EQ(VORQ_AddUserCut(prob, 2, cols, ones, 'L', -kInf, 0.0, nullptr), VORQ_OK);
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(LimitsTest, CallbackRowWithAnImpossibleInfiniteSideIsRefused) {
  int refused = 0;
  ListenToLog();
  OnCall(kRelaxation | kCandidate, [&](Call const& call) {
    int const cols[] = {0, 2};
    double const ones[] = {1.0, 1.0};
    std::string const side = "No point keeps its side ";
    for (auto const& [sense, rhs, text] :
         {std::tuple('L', -kInf, side + "-1e+30 of sense 'L'"), std::tuple('G', kInf, side + "1e+30 of sense 'G'"),
          std::tuple('E', kInf, side + "1e+30 of sense 'E'")}) {
      EXPECT_EQ(VORQ_AddCallbackLazyConstr(call.data, 2, cols, ones, sense, rhs), VORQ_INVALID);
      ExpectError("Lazy constraint 0 of the callback: " + text);
      ++refused;
    }
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_GT(refused, 0);
}

TEST_F(LimitsTest, CallbackRowWithACoefficientTooGreatIsRefused) {
  int refused = 0;
  ListenToLog();
  OnCall(kCandidate, [&](Call const& call) {
    int const cols[] = {0, 2};
    double const great[] = {1.0, 1e29};
    EXPECT_EQ(VORQ_AddCallbackLazyConstr(call.data, 2, cols, great, 'L', 1e29), VORQ_INVALID);
    ExpectError("Lazy constraint 0 of the callback: Its coefficient 1e+29 of column 2 is too great to calculate with");
    ++refused;
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_GT(refused, 0);
}

TEST_F(LimitsTest, RowsWithAVanishingElementAreSolvedWithoutIt) {
  Row({0, 2}, {1e-19, 1.0}, 'L', 2.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_LE(Values()[2], 2.0 + 1e-6);
}

TEST_F(LimitsTest, BarrierLeavesNumbersOfVeryDifferentSizesToTheSimplexMethod) {
  Row({2, 3}, {1e-12, 1e12}, 'L', 1e12);
  Set("LpMethod", 2);
  ListenToLog();
  ASSERT_EQ(VORQ_SolveLp(prob), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kOptimal);
  EXPECT_THAT(lines_,
              testing::Contains("The barrier method is not used: the sizes of the numbers differ too much for it"));
}

class VanishingBoundTest : public SolveTest {};

TEST_F(VanishingBoundTest, SemiIntegerColumnIsSolved) {
  Col(1.0, -9.0, 5.0);
  Col(-7.0, -10.0, -4.5, 'I');
  Col(0.0, 1e-19, 4.0, 'N');
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 26.0, 1e-6);
}

class SummaryTest : public LimitsTest {};

TEST_F(SummaryTest, UnboundedMipHasNoBoundInTheLog) {
  for (int col = 0; col < 3; ++col) Col(-1.0, 0.0, kInf, 'I');
  ListenToLog();
  ASSERT_EQ(Solve(), kUnbounded);
  EXPECT_THAT(lines_, testing::Contains("Status: unbounded"));
  EXPECT_THAT(lines_, testing::Each(testing::Not(testing::StartsWith("  Bound "))));
}

}  // namespace
