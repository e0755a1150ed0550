// Small mixed-integer problems with known answers.
#include "tests/solver/engines/solve_fixture.hpp"

#include <cmath>

namespace {

class MipTest : public SolveTest {
 protected:
  // max 10a + 13b + 7c + 8d under 5a + 6b + 4c + 4d <= 13.
  void AddKnapsack() {
    Maximise();
    for (double const obj : {10.0, 13.0, 7.0, 8.0}) Col(obj, 0.0, 1.0, 'B');
    Row({0, 1, 2, 3}, {5.0, 6.0, 4.0, 4.0}, 'L', 13.0);
  }
};

// The best by hand: {a, b} 23 (11), {a, c, d} 25 (13), {b, d} 21, {b, c} 20; so 25.
TEST_F(MipTest, KnapsackIsSolved) {
  AddKnapsack();
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({1.0, 0.0, 1.0, 1.0}));
  EXPECT_NEAR(Dbl("BestObj"), 25.0, 1e-9);
  EXPECT_NEAR(Dbl("BestBnd"), 25.0, 1e-6);
  EXPECT_NEAR(Dbl("BestGap"), 0.0, 1e-6);
  EXPECT_EQ(Int("HasMipSol"), 1);
  EXPECT_GE(Int("PoolSols"), 1);
}

TEST_F(MipTest, MinimumMirrorsMaximum) {
  for (double const obj : {-10.0, -13.0, -7.0, -8.0}) Col(obj, 0.0, 1.0, 'B');
  Row({0, 1, 2, 3}, {5.0, 6.0, 4.0, 4.0}, 'L', 13.0);
  ASSERT_EQ(VORQ_SetObjConst(prob, 1.0), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), -24.0, 1e-9);
  EXPECT_NEAR(Dbl("BestBnd"), -24.0, 1e-6);
}

TEST_F(MipTest, SolveLpDropsIntegrality) {
  AddKnapsack();
  ASSERT_EQ(VORQ_SolveLp(prob), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kOptimal);
  EXPECT_EQ(Int("MipStatus"), 0);
  // By worth a unit: b, then a or d at 2: b and 7 units at 2 each.
  EXPECT_NEAR(Dbl("LpObjval"), 13.0 + 14.0, 1e-9);
}

TEST_F(MipTest, GeneralIntegersAndContinuousColumns) {
  Maximise();
  Col(5.0, 0.0, kInf, 'I');
  Col(4.0);
  Row({0, 1}, {6.0, 4.0}, 'L', 24.0);
  Row({0, 1}, {1.0, 2.0}, 'L', 6.0);
  ASSERT_EQ(Solve(), kOptimal);
  // x = 3: y = 1.5, 21 (the relaxation's optimum); integral in x already.
  EXPECT_THAT(Values(), AreClose({3.0, 1.5}));
  EXPECT_NEAR(Dbl("BestObj"), 21.0, 1e-9);
  EXPECT_THAT(Lp(1), AreClose({0.0, 0.0}));
}

TEST_F(MipTest, IntegerInfeasible) {
  Col(1.0, 0.0, 10.0, 'I');
  Col(1.0, 0.0, 10.0, 'I');
  Row({0, 1}, {2.0, 2.0}, 'E', 7.0);
  EXPECT_EQ(Solve(), kInfeasible);
  EXPECT_EQ(Int("HasMipSol"), 0);
  EXPECT_EQ(VORQ_GetSolution(prob, std::vector<double>(2).data()), VORQ_INVALID);
}

TEST_F(MipTest, NoIntegerBetweenTheBounds) {
  Col(1.0, 0.4, 0.6, 'I');
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(MipTest, RelaxationInfeasible) {
  Col(1.0, 0.0, 1.0, 'B');
  Row({0}, {1.0}, 'G', 2.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(MipTest, UnboundedWhereAnIntegerPointExists) {
  Col(-1.0, 0.0, kInf, 'I');
  Col(0.0);
  Row({0, 1}, {1.0, -1.0}, 'L', 0.0);
  EXPECT_EQ(Solve(), kUnbounded);
}

TEST_F(MipTest, InfeasibleWhereTheRelaxationIsUnbounded) {
  Col(-1.0);
  Col(0.0, 0.0, 1.0, 'B');
  Row({1}, {2.0}, 'E', 1.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

// A search within 1e7 around 0 finds nothing here.
TEST_F(MipTest, UnboundedFarFromZero) {
  Col(-1.0, 0.0, kInf, 'I');
  Col(0.0, 0.0, kInf, 'I');
  Row({0, 1}, {1.0, 1.0}, 'G', 6e7);
  Row({0, 1}, {1.0, -1.0}, 'R', -5.0, 5.0);
  EXPECT_EQ(Solve(), kUnbounded);
}

// Presolve leaves no column.
TEST_F(MipTest, FeasibilityAloneMayBeSettledByPresolve) {
  Col(0.0, -kInf, 0.0, 'I');
  Col(0.0, -4.0, kInf, 'I');
  Col(0.0, -kInf, kInf, 'I');
  Col(0.0, -5.0, kInf, 'I');
  Row({0, 1, 2, 3}, {-3.0, 3.0, 3.0, 4.0}, 'G', -5.0);
  Row({0, 3}, {-1.0, 1.0}, 'E', 1.0);
  ASSERT_EQ(Solve(), kOptimal);
  auto const values = Values();
  EXPECT_NEAR(values[3] - values[0], 1.0, 1e-6);
  EXPECT_GE(-3.0 * values[0] + 3.0 * values[1] + 3.0 * values[2] + 4.0 * values[3], -5.0 - 1e-6);
}

TEST_F(MipTest, WithoutRows) {
  Col(-1.0, 0.0, 2.5, 'I');
  Col(1.0, -1.5, 2.5, 'I');
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({2.0, -1.0}));
}

TEST_F(MipTest, BinariesKeepToZeroAndOneWhateverTheirBounds) {
  Col(-1.0, -5.0, 5.0, 'B');
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({1.0}));
}

TEST_F(MipTest, PoolIsSortedWithoutDuplicatesAndFeasible) {
  Set("HeurLevel", 0);
  double const best[] = {0.0, 1.0, 0.0, 1.0};
  AddKnapsack();
  int const cols[] = {0, 1, 2, 3};
  ASSERT_EQ(VORQ_AddMipStart(prob, 4, cols, best), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  int const count = Int("PoolSols");
  ASSERT_GE(count, 2);
  double former = kInf;
  for (int k = 0; k < count; ++k) {
    double objective = 0.0;
    ASSERT_EQ(VORQ_GetPoolObjVal(prob, k, &objective), VORQ_OK);
    EXPECT_LE(objective, former);
    former = objective;
    std::vector<double> x(4);
    ASSERT_EQ(VORQ_GetPoolSolution(prob, k, 4, nullptr, x.data()), VORQ_OK);
    EXPECT_NEAR(10.0 * x[0] + 13.0 * x[1] + 7.0 * x[2] + 8.0 * x[3], objective, 1e-9);
    EXPECT_LE(5.0 * x[0] + 6.0 * x[1] + 4.0 * x[2] + 4.0 * x[3], 13.0 + 1e-9);
  }
  double value = 0.0;
  EXPECT_EQ(VORQ_GetPoolObjVal(prob, count, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetPoolObjVal(prob, -1, &value), VORQ_INVALID);
  int const third = 2;
  ASSERT_EQ(VORQ_GetPoolSolution(prob, 0, 1, &third, &value), VORQ_OK);
  EXPECT_EQ(value, 1.0);
}

TEST_F(MipTest, CompleteStartIsAccepted) {
  AddKnapsack();
  ListenToLog();
  double const values[] = {1.0, 1.0, 0.0, 0.0};
  ASSERT_EQ(VORQ_AddMipStart(prob, 4, nullptr, values), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(lines, testing::Contains(testing::StartsWith("MIP start 1: accepted")));
  EXPECT_NEAR(Dbl("BestObj"), 25.0, 1e-9);
}

TEST_F(MipTest, PartialStartIsCompleted) {
  AddKnapsack();
  ListenToLog();
  int const col = 1;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddMipStart(prob, 1, &col, &one), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(lines, testing::Contains(testing::StartsWith("MIP start 1: completed")));
  EXPECT_NEAR(Dbl("BestObj"), 25.0, 1e-9);
}

TEST_F(MipTest, InfeasibleStartIsRejectedAndDoesNoHarm) {
  AddKnapsack();
  ListenToLog();
  double const values[] = {1.0, 1.0, 1.0, 1.0};
  ASSERT_EQ(VORQ_AddMipStart(prob, 4, nullptr, values), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(lines, testing::Contains(testing::StartsWith("MIP start 1: rejected")));
  EXPECT_NEAR(Dbl("BestObj"), 25.0, 1e-9);
}

TEST_F(MipTest, OptimalStartIsTheAnswer) {
  AddKnapsack();
  double const values[] = {1.0, 0.0, 1.0, 1.0};
  ASSERT_EQ(VORQ_AddMipStart(prob, 4, nullptr, values), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({1.0, 0.0, 1.0, 1.0}));
}

TEST_F(MipTest, StartsMayBeRejectedByParameter) {
  AddKnapsack();
  ListenToLog();
  Set("MipStartMode", 0);
  double const values[] = {1.0, 1.0, 0.0, 0.0};
  ASSERT_EQ(VORQ_AddMipStart(prob, 4, nullptr, values), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(lines, testing::Contains(testing::StartsWith("MIP start 1: rejected")));
}

TEST_F(MipTest, StartWithBadDataIsRefused) {
  AddKnapsack();
  int const col = 4;
  double const value = 1.0;
  double const none = std::nan("");
  EXPECT_EQ(VORQ_AddMipStart(prob, 1, &col, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddMipStart(prob, 1, nullptr, &none), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddMipStart(prob, 1, nullptr, nullptr), VORQ_INVALID);
}

TEST_F(MipTest, NodeLimitStops) {
  AddMarketSplit(4, 30);
  Set("NodeLimit", 10);
  Set("TimeLimit", 30.0);
  EXPECT_EQ(Solve(), kNodeLimit);
  EXPECT_GE(Dbl("BestBnd"), 0.0);
  EXPECT_LE(Int("NodeCnt"), 100);
}

TEST_F(MipTest, TimeLimitStopsAndKeepsTheBestSolution) {
  AddMarketSplit(4, 30);
  Set("TimeLimit", 1.0);
  EXPECT_EQ(Solve(), kTimeLimit);
  EXPECT_LT(Dbl("SolvingTime"), 3.0);
  ASSERT_EQ(Int("HasMipSol"), 1);
  auto const values = Values();
  for (int col = 0; col < 30; ++col) EXPECT_NEAR(values[col], std::round(values[col]), 1e-6);
  EXPECT_LE(Dbl("BestBnd"), Dbl("BestObj"));
  EXPECT_GT(Dbl("BestGap"), 0.0);
}

TEST_F(MipTest, LazyConstraintsAndUserCutsHold) {
  AddKnapsack();
  int const cols[] = {0, 2};
  double const ones[] = {1.0, 1.0};
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 2, cols, ones, 'L', 1.0, 0.0, nullptr), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 23.0, 1e-9);
}

// Random knapsacks with two rows against enumeration.
TEST_F(MipTest, AgreesWithEnumeration) {
  unsigned state = 7;
  auto const random = [&state] {
    state = state * 1664525u + 1013904223u;
    return static_cast<double>((state >> 16) % 50 + 1);
  };
  constexpr int kCols = 10;
  for (int round = 0; round < 20; ++round) {
    ASSERT_EQ(VORQ_ClearProb(prob), VORQ_OK);
    if (round % 2 == 0) Maximise();
    double const sign = round % 2 == 0 ? 1.0 : -1.0;
    std::vector<double> worth(kCols);
    std::vector<double> weight[2];
    std::vector<int> cols;
    for (int j = 0; j < kCols; ++j) {
      worth[j] = random();
      cols.push_back(Col(sign * worth[j], 0.0, 1.0, 'B'));
      for (auto& row : weight) row.push_back(random());
    }
    for (auto const& row : weight) Row(cols, row, 'L', 100.0);
    double best = 0.0;
    for (int set = 0; set < 1 << kCols; ++set) {
      double sums[3] = {};
      for (int j = 0; j < kCols; ++j) {
        if ((set >> j & 1) == 0) continue;
        sums[0] += worth[j];
        sums[1] += weight[0][j];
        sums[2] += weight[1][j];
      }
      if (sums[1] <= 100.0 && sums[2] <= 100.0) best = std::max(best, sums[0]);
    }
    Set("RelGap", 0.0);
    ASSERT_EQ(Solve(), kOptimal);
    EXPECT_NEAR(Dbl("BestObj"), sign * best, 1e-6) << "round " << round;
  }
}

}  // namespace
