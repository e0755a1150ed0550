// Mixed-integer problems whose relaxation has no end: what is discrete or rows that come may bound them, whatever the
// size of the numbers.
#include <cmath>

#include "tests/solver/tasks/callback_fixture.hpp"

namespace {

class UnboundedMipsTest : public CallbackTest {
 protected:
  UnboundedMipsTest() { Set("RelGap", 0.0); }
};

// An indicator whose row has no finite counterpart, so that the relaxation lets it go.
TEST_F(UnboundedMipsTest, IndicatorBoundsTheProblemBesideAGreatColumn) {
  Maximise();
  int const y = Col(1.0);
  int const b = Col(0.0, 1.0, 1.0, 'B');
  int const z = Col(0.0, 6e6, 6e6);
  Indicator(b, 1, {y}, {1.0}, 'L', 3.0);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 3.0, 1e-9);
  EXPECT_EQ(Values()[z], 6e6);
}

TEST_F(UnboundedMipsTest, SetBoundsTheProblem) {
  Maximise();
  int const x = Col(0.0, 6e6, 7e6);
  int const y = Col(1.0);
  Sos(1, {x, y});
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_EQ(Dbl("BestObj"), 0.0);
}

TEST_F(UnboundedMipsTest, RowsLeaveTheEndlessSideOfASetEmpty) {
  Maximise();
  int const x = Col(1.0);
  int const y = Col(-1.0);
  Sos(1, {x, y});
  Row({y}, {2.0}, 'G', 3.0);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), -1.5, 1e-9);
}

TEST_F(UnboundedMipsTest, OneEndlessSideOfASetIsEnough) {
  Maximise();
  int const x = Col(1.0);
  int const y = Col(1.0, 0.0, 5.0);
  int const z = Col(1.0, 0.0, 5.0);
  Sos(2, {x, y, z});
  Row({x, z}, {1.0, -1.0}, 'L', 1.0);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 10.0, 1e-9);
  Sos(1, {x, y});
  int const w = Col(1.0);
  Sos(1, {w, z});
  EXPECT_EQ(Solve(), kUnbounded);
  EXPECT_EQ(Int("HasMipSol"), 0);
}

TEST_F(UnboundedMipsTest, WithoutCostsAnySolutionWillDo) {
  for (bool const hasCallback : {false, true}) {
    SCOPED_TRACE(hasCallback);
    int const x = Col(0.0, -kInf, kInf, 'I');
    int const y = Col(0.0, -kInf, kInf, 'I');
    int const z = Col(0.0, -kInf, kInf);
    Row({x, y, z}, {3.0, 5.0, 1.0}, 'E', 1.0);
    Row({z}, {1.0}, 'E', 0.0);
    if (hasCallback) OnCall(kAll, [](Call const&) {});
    EXPECT_EQ(Run(), kOptimal);
    EXPECT_EQ(Dbl("BestObj"), 0.0);
  }
}

// The integer columns alone decide.
TEST_F(UnboundedMipsTest, NoSolutionMeansInfeasible) {
  Maximise();
  Col(1.0);
  int const k = Col(0.0, 0.0, 10.0, 'I');
  Row({k}, {2.0}, 'E', 3.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(UnboundedMipsTest, AnySolutionMeansUnbounded) {
  Maximise();
  int const y = Col(1.0);
  int const k = Col(1.0, 0.0, 10.0, 'I');
  int const far = Col(0.0, -kInf, kInf, 'I');
  Row({k}, {2.0}, 'E', 4.0);
  Row({far, y}, {3.0, -1.0}, 'E', 1.5);
  EXPECT_EQ(Solve(), kUnbounded);
  EXPECT_EQ(Int("HasMipSol"), 0);
}

TEST_F(UnboundedMipsTest, GreatFixedColumnsAreNoEvidence) {
  Maximise();
  int const y = Col(1.0, 0.0, kInf, 'I');
  Col(1.0, 3e7, 3e7);
  int const k = Col(0.0, 0.0, 1.0, 'B');
  Indicator(k, 0, {y}, {2.0}, 'L', 9.0);
  Indicator(k, 1, {y}, {2.0}, 'L', 5.0);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 4.0 + 3e7, 1e-6);
}

// A lower bound on a free column that comes row by row, as in a decomposition.
TEST_F(UnboundedMipsTest, CallbackBoundsTheProblemFarFromZero) {
  for (double const bound : {-3e6, 8e6, 2.5e8}) {
    SCOPED_TRACE(bound);
    int const theta = Col(1.0, -kInf, kInf);
    int const k = Col(0.0, 0.0, 3.0, 'I');
    OnCall(kRelaxation | kCandidate, [&](Call const& call) {
      // theta >= bound + (k - 1)^2, by its tangents
      auto const point = call.Point();
      double const at = point[k];
      double const least = bound + (at - 1.0) * (at - 1.0);
      if (point[theta] < least - 1e-6) call.Lazy({theta, k}, {1.0, -2.0 * (at - 1.0)}, 'G', bound + 1.0 - at * at);
    });
    EXPECT_EQ(Run(), kOptimal);
    EXPECT_NEAR(Dbl("BestObj"), bound, 1e-6 * std::abs(bound));
    int const cols[] = {theta, k};
    EXPECT_EQ(VORQ_DelCols(prob, 2, cols), VORQ_OK);
  }
}

TEST_F(UnboundedMipsTest, CallbackThatBoundsNothingLeavesTheProblemUnbounded) {
  Maximise();
  Col(1.0);
  int const k = Col(0.0, 0.0, 10.0, 'I');
  Row({k}, {2.0}, 'E', 4.0);
  OnCall(kAll, [](Call const&) {});
  EXPECT_EQ(Run(), kUnbounded);
  EXPECT_EQ(Int("HasMipSol"), 0);
}

TEST_F(UnboundedMipsTest, CallbackThatAcceptsNothingLeavesTheProblemInfeasible) {
  Maximise();
  Col(1.0);
  int const b = Col(0.0, 0.0, 1.0, 'B');
  OnCall(kCandidate, [&](Call const& call) {
    bool const isOne = call.Point()[b] > 0.5;
    call.Lazy({b}, {1.0}, isOne ? 'L' : 'G', isOne ? 0.0 : 1.0);
  });
  EXPECT_EQ(Run(), kInfeasible);
}

}  // namespace
