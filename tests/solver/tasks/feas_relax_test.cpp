// Feasibility relaxations: what they cost, that the point satisfies the relaxed problem, the file, and bad input.
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/solver/engines/solve_fixture.hpp"
#include "tests/support/instances.hpp"

namespace {

using testing::Contains;
using testing::ElementsAre;

class FeasRelaxTest : public SolveTest {
 protected:
  ~FeasRelaxTest() override { std::filesystem::remove(path_); }

  std::vector<double> Ones(char const* count) const {
    return std::vector<double>(static_cast<std::size_t>(Int(count)), 1.0);
  }

  // All sides of rows, and bounds of columns too.
  int Relax(bool cols, bool rows) {
    auto const ofCols = Ones("Cols");
    auto const ofRows = Ones("Rows");
    return VORQ_FeasRelax(prob, cols ? ofCols.data() : nullptr, cols ? ofCols.data() : nullptr,
                          rows ? ofRows.data() : nullptr, nullptr);
  }

  std::string File() {
    EXPECT_EQ(VORQ_WriteRelax(prob, path_.c_str()), VORQ_OK);
    std::ifstream file(path_);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  // The cost of the violations of the point that the problem shows, each row and bound by itself.
  double CostOfViolations(bool cols, bool rows) const {
    double cost = 0.0;
    auto const add = [&](bool isPriced, double amount) {
      if (amount <= 1e-7) return;
      EXPECT_TRUE(isPriced) << "a side that must hold is violated by " << amount;
      cost += amount;
    };
    for (int row = 0; row < Int("Rows"); ++row) {
      double values[3] = {};
      char const* const names[] = {"LB", "UB", "Slack"};
      for (int k = 0; k < 3; ++k) EXPECT_EQ(VORQ_GetRowInfo(prob, names[k], 1, &row, &values[k]), VORQ_OK);
      bool const hasUpper = values[1] < kInf;
      double const activity = hasUpper ? values[1] - values[2] : values[0] + values[2];
      add(rows, std::max(values[0] - activity, activity - values[1]));
    }
    for (int col = 0; col < Int("Cols"); ++col) {
      double values[3] = {};
      char const* const names[] = {"LB", "UB", "Value"};
      for (int k = 0; k < 3; ++k) EXPECT_EQ(VORQ_GetColInfo(prob, names[k], 1, &col, &values[k]), VORQ_OK);
      add(cols, std::max(values[0] - values[2], values[2] - values[1]));
    }
    return cost;
  }

  void ReadInstance(std::string const& file) {
    auto const folder = InstanceFolder();
    if (folder.empty()) GTEST_SKIP() << kNoInstances;
    std::string const path = folder + "/" + file;
    ASSERT_EQ((file.ends_with(".lp") ? VORQ_ReadLp : VORQ_ReadMps)(prob, path.c_str()), VORQ_OK);
  }

  std::string path_ =
      (std::filesystem::temp_directory_path() / ("vorq_" + std::to_string(::getpid()) + ".relax")).string();
};

// x <= 4 and x >= 10 as rows: 6 between them.
class TwoRows : public FeasRelaxTest {
 protected:
  TwoRows() {
    Col(1.0);
    Row({0}, {1.0}, 'L', 4.0);
    Row({0}, {1.0}, 'G', 10.0);
  }
};

TEST_F(TwoRows, SumOfViolationsIsTheDistance) {
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_EQ(Int("HasFeasRelaxSol"), 1);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 6.0, 1e-9);
  EXPECT_NEAR(CostOfViolations(false, true), 6.0, 1e-6);
  EXPECT_EQ(Int("LpStatus"), kOptimal);
  EXPECT_EQ(Int("HasLpSol"), 0);
  EXPECT_GE(Dbl("FeasRelaxTime"), 0.0);
}

TEST_F(TwoRows, DearSideHolds) {
  double const penalties[] = {1.0, 5.0};
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, penalties, nullptr), VORQ_OK);
  EXPECT_THAT(Values(), AreClose({10.0}));
  EXPECT_THAT(Lp(1), AreClose({-6.0, 0.0}));
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 6.0, 1e-9);
}

TEST_F(TwoRows, PenaltyOfInfBoundMeansThatTheSideHolds) {
  double const penalties[] = {1e30, 1.0};
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, penalties, nullptr), VORQ_OK);
  EXPECT_LE(Values()[0], 4.0 + 1e-6);
  Set("InfBound", 1e20);
  double const smaller[] = {1.0, 1e20};
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, smaller, nullptr), VORQ_OK);
  EXPECT_GE(Values()[0], 10.0 - 1e-6);
}

TEST_F(TwoRows, ObjectiveIsOptimisedAmongTheLeastViolations) {
  Set("FeasRelaxMode", 1);
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_NEAR(Values()[0], 4.0, 1e-4);
  Maximise();
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_NEAR(Values()[0], 10.0, 1e-4);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 6.0, 1e-4);
}

TEST_F(TwoRows, SidesThatNothingPricesLeaveTheProblemInfeasible) {
  ListenToLog();
  ASSERT_EQ(Relax(true, false), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kInfeasible);
  EXPECT_EQ(Int("HasFeasRelaxSol"), 0);
  EXPECT_THAT(lines, Contains("  What may not be violated is infeasible by itself"));
  double value = 0.0;
  EXPECT_EQ(VORQ_GetSolution(prob, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetDblAttr(prob, "FeasRelaxObj", &value), VORQ_INVALID);
}

TEST_F(TwoRows, FileIsTheRelaxedProblem) {
  EXPECT_EQ(VORQ_WriteRelax(prob, path_.c_str()), VORQ_INVALID);
  char const* const names[] = {"most", "least"};
  ASSERT_EQ(VORQ_SetRowNames(prob, 2, nullptr, names), VORQ_OK);
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_EQ(File(), R"(Minimize
 obj: + 0 C1 + 1 upp_most + 1 low_least
Subject To
 most: + 1 C1 - 1 upp_most <= 4
 least: + 1 C1 + 1 low_least >= 10
End
)");
}

TEST_F(TwoRows, FileIsBinaryOnRequest) {
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  Set("RelaxFileType", 1);
  ASSERT_EQ(VORQ_WriteRelax(prob, path_.c_str()), VORQ_OK);
  ASSERT_EQ(VORQ_ReadBin(prob, path_.c_str()), VORQ_OK);
  EXPECT_EQ(Int("Cols"), 3);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 6.0, 1e-9);
}

TEST_F(TwoRows, NegativePenaltiesAreRefusedAndNothingChanges) {
  EXPECT_EQ(Solve(), kInfeasible);
  ListenToLog();
  double const penalties[] = {1.0, -2.0};
  EXPECT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, penalties, nullptr), VORQ_INVALID);
  EXPECT_EQ(lines.back(), "Error: The penalty -2 of entry 1 of 'rowBnd' is negative");
  double const none[] = {std::nan("")};
  EXPECT_EQ(VORQ_FeasRelax(prob, none, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_FeasRelax(nullptr, nullptr, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(Int("LpStatus"), kInfeasible);
}

TEST_F(TwoRows, ProblemItselfStaysAsItWas) {
  ASSERT_EQ(Relax(true, true), VORQ_OK);
  EXPECT_EQ(Int("Cols"), 1);
  EXPECT_EQ(Int("Rows"), 2);
  EXPECT_EQ(Solve(), kInfeasible);
  EXPECT_EQ(Int("HasFeasRelaxSol"), 0);
}

TEST_F(TwoRows, PointCanBeWrittenAsASolution) {
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_EQ(VORQ_WriteSol(prob, path_.c_str()), VORQ_OK);
}

TEST_F(TwoRows, LogNamesWhatIsViolated) {
  double const penalties[] = {1.0, 5.0};
  ListenToLog();
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, penalties, nullptr), VORQ_OK);
  EXPECT_THAT(lines, Contains("  row 0 <= 4 is violated by 6"));
}

TEST_F(TwoRows, LoggingOffIsSilent) {
  ListenToLog();
  Set("Logging", 0);
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_THAT(lines, testing::IsEmpty());
}

TEST_F(FeasRelaxTest, SecondStepOverFreeColumnsKeepsTheStatusOfTheFirst) {
  Col(1.0, -kInf, kInf);
  Col(0.0, -kInf, kInf);
  Row({0, 1}, {-3.0, -4.0}, 'L', -4.0);
  Row({0, 1}, {3.0, 2.0}, 'L', -2.0);
  Set("FeasRelaxMode", 1);
  ASSERT_EQ(Relax(true, true), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kOptimal);
  EXPECT_EQ(Dbl("FeasRelaxObj"), 0.0);
}

TEST_F(FeasRelaxTest, PenaltyTooGreatToCalculateWithIsRefused) {
  Col(1.0, 0.0, 1.0);
  Row({0}, {1.0}, 'G', 2.0);
  double const penalty = 1e26;
  std::string log;
  auto const keep = [](char const* line, void* user) { *static_cast<std::string*>(user) += line; };
  ASSERT_EQ(VORQ_SetLogCallback(prob, keep, &log), VORQ_OK);
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, &penalty, nullptr), VORQ_INVALID);
  EXPECT_EQ(
      log,
      "Error: The penalty 1e+26 of entry 0 of 'rowBnd' is too great to calculate with, and below 1e+30, from which "
      "on a side holds");
}

TEST_F(FeasRelaxTest, NumberOfViolationsMayBeLessThanTheirSumTells) {
  // One row against three: the sum prefers none, the number prefers to break the one.
  Col(0.0, -10.0, 10.0);
  Row({0}, {1.0}, 'G', 6.0);
  Row({0}, {1.0}, 'L', 1.0);
  Row({0}, {1.0}, 'L', 1.5);
  Row({0}, {1.0}, 'L', 2.0);
  Set("FeasRelaxMode", 2);
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 1.0, 1e-9);
  EXPECT_LE(Values()[0], 1.0 + 1e-6);
  EXPECT_EQ(Int("LpStatus"), kOptimal);
  SetUpper(0, kInf);
  Set("FeasRelaxMode", 3);
  ASSERT_EQ(Relax(true, true), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 1.0, 1e-6);
}

TEST_F(FeasRelaxTest, CrossedBoundsMeetSomewhere) {
  Col(0.0, 5.0, 3.0);
  Row({0}, {1.0}, 0, 9.0, 8.0);
  ASSERT_EQ(Relax(true, true), VORQ_OK);
  // Between 5 and 8 each unit nearer to the one is a unit farther from the other.
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 6.0, 1e-6);
}

TEST_F(FeasRelaxTest, SidesOfARangeHavePenaltiesOfTheirOwn) {
  Col(0.0, 20.0, 20.0);
  Row({0}, {1.0}, 'R', 1.0, 2.0);
  double const low[] = {1.0};
  double const upp[] = {3.0};
  double const dear[] = {1e30};
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, low, upp), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 54.0, 1e-6);
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, low, dear), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kInfeasible);
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, low, nullptr), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 18.0, 1e-6);
}

TEST_F(FeasRelaxTest, PenaltyOfABoundedRowServesItsOneSide) {
  Col(0.0, 5.0, 5.0);
  Row({0}, {1.0}, 'L', 1.0);
  double const one[] = {1.0};
  double const dear[] = {1e30};
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, one, dear), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 4.0, 1e-6);
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, dear, one), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 4.0, 1e-6);
}

TEST_F(FeasRelaxTest, IntegersStayIntegersAndBinariesWithinTheirValues) {
  Col(0.0, 0.0, 0.0, 'B');
  Col(0.0, 0.0, 1.0, 'I');
  Row({0, 1}, {1.0, 1.0}, 'G', 3.5);
  ASSERT_EQ(Relax(true, false), VORQ_OK);
  EXPECT_THAT(Values(), testing::AnyOf(AreClose({1.0, 3.0}), AreClose({0.0, 4.0})));
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 3.0, 1e-6);
  EXPECT_EQ(Int("MipStatus"), kOptimal);
  EXPECT_EQ(Int("HasMipSol"), 0);
}

TEST_F(FeasRelaxTest, LazyConstraintsHold) {
  Col(0.0);
  Row({0}, {1.0}, 'G', 5.0);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 1, &col, &one, 'L', 3.0, 0.0, nullptr), VORQ_OK);
  ASSERT_EQ(Relax(true, true), VORQ_OK);
  EXPECT_NEAR(Values()[0], 3.0, 1e-6);
}

TEST_F(FeasRelaxTest, FeasibleProblemCostsNothing) {
  Col(1.0, 0.0, 4.0);
  Row({0}, {1.0}, 'G', 1.0);
  Set("FeasRelaxMode", 1);
  ASSERT_EQ(Relax(true, true), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 0.0, 1e-5);
  EXPECT_NEAR(Values()[0], 1.0, 1e-4);
}

TEST_F(FeasRelaxTest, UnboundedObjectiveKeepsTheFirstPoint) {
  Col(-1.0);
  Col(0.0);
  Row({1}, {1.0}, 'L', -2.0);
  Set("FeasRelaxMode", 1);
  ListenToLog();
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  EXPECT_NEAR(Dbl("FeasRelaxObj"), 2.0, 1e-6);
  EXPECT_THAT(lines, Contains("The objective is unbounded among the least violations: one of them is kept"));
}

// Squares need an engine for them; without one the failure says so.
TEST_F(FeasRelaxTest, SquaresNeedAnEngine) {
  Col(0.0, 0.0, 1.0);
  Row({0}, {1.0}, 'G', 3.0);
  Row({0}, {1.0}, 'L', -1.0);
  Set("FeasRelaxMode", 4);
  ListenToLog();
  int const code = Relax(true, true);
  if (code == VORQ_OK) {
    EXPECT_NEAR(Dbl("FeasRelaxObj"), 8.0, 1e-3);
    return;
  }
  EXPECT_EQ(code, VORQ_INTERNAL);
  EXPECT_EQ(lines.back(),
            "Error: FeasRelaxMode 4, the sum of squared violations: no engine of this version solves a problem with a "
            "quadratic objective");
}

TEST_F(FeasRelaxTest, EmptyProblemIsNoTrouble) {
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, nullptr, nullptr), VORQ_OK);
}

class RelaxedInstance : public FeasRelaxTest, public testing::WithParamInterface<char const*> {};

std::string NameOf(testing::TestParamInfo<char const*> const& instance) {
  return instance.param;
}

TEST_P(RelaxedInstance, PointSatisfiesTheRelaxationAndItsFileAgrees) {
  bool const isMip = GetParam() == std::string("stein27_inf");
  ReadInstance(isMip ? "mip/stein27_inf.lp" : std::string("lp_infeasible/") + GetParam() + ".mps.gz");
  if (IsSkipped() || HasFatalFailure()) return;
  Set("TimeLimit", 30.0);
  ASSERT_EQ(Relax(false, true), VORQ_OK);
  if (Int("HasFeasRelaxSol") == 0) {
    // Rows alone do not help where the bounds contradict each other.
    EXPECT_EQ(Int("LpStatus"), kInfeasible);
    return;
  }
  double const penalty = Dbl("FeasRelaxObj");
  EXPECT_GT(penalty, 1e-6);
  EXPECT_NEAR(CostOfViolations(false, true), penalty, 1e-6 * std::max(1.0, penalty));
  File();
  ASSERT_EQ(VORQ_ReadLp(prob, path_.c_str()), VORQ_OK);
  if (isMip) return;
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), penalty, 1e-6 * std::max(1.0, penalty));
}

INSTANTIATE_TEST_SUITE_P(All, RelaxedInstance,
                         testing::Values("itest2", "galenet", "bgprtr", "woodinfe", "klein1", "stein27_inf"), NameOf);

}  // namespace
