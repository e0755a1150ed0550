// Small linear problems with known answers, in both directions of the objective.
#include "tests/solver/engines/solve_fixture.hpp"

namespace {

class LpTest : public SolveTest {};

// max 3x + 5y, x <= 4, 2y <= 12, 3x + 2y <= 18: 36 at (2, 6), duals 0, 1.5, 1. As a minimum all signs turn.
class FurnitureTest : public SolveTest, public testing::WithParamInterface<double> {
 protected:
  FurnitureTest() {
    if (sign() > 0.0) Maximise();
    Col(3.0 * sign());
    Col(5.0 * sign());
    Row({0}, {1.0}, 'L', 4.0);
    Row({1}, {2.0}, 'L', 12.0);
    Row({0, 1}, {3.0, 2.0}, 'L', 18.0);
  }
  static double sign() { return GetParam(); }

  double ObjectiveWith(int row, double upper) {
    EXPECT_EQ(VORQ_SetRowUpper(prob, 1, &row, &upper), VORQ_OK);
    EXPECT_EQ(Solve(), kOptimal);
    return Dbl("LpObjval");
  }
};

TEST_P(FurnitureTest, IsSolved) {
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 36.0 * sign(), 1e-9);
  EXPECT_THAT(Lp(0), AreClose({2.0, 6.0}));
  EXPECT_THAT(Values(), AreClose({2.0, 6.0}));
  EXPECT_THAT(Lp(1), AreClose({2.0, 0.0, 0.0}));
  EXPECT_THAT(Lp(2), AreClose({0.0, 1.5 * sign(), 1.0 * sign()}));
  EXPECT_THAT(Lp(3), AreClose({0.0, 0.0}));
  EXPECT_EQ(Int("HasLpSol"), 1);
  EXPECT_EQ(Int("HasBasis"), 1);
  EXPECT_EQ(Int("IsMIP"), 0);
}

TEST_P(FurnitureTest, DualsAreChangesOfTheObjectiveByTheRightSide) {
  ASSERT_EQ(Solve(), kOptimal);
  auto const duals = Lp(2);
  double const rhs[] = {4.0, 12.0, 18.0};
  double const step = 1e-3;
  for (int row = 0; row < 3; ++row) {
    double const up = ObjectiveWith(row, rhs[row] + step);
    double const down = ObjectiveWith(row, rhs[row] - step);
    ObjectiveWith(row, rhs[row]);
    EXPECT_NEAR(duals[row], (up - down) / (2.0 * step), 1e-6) << "row " << row;
  }
}

TEST_P(FurnitureTest, ReducedCostIsTheChangeOfTheObjectiveByTheBound) {
  SetUpper(1, 5.0);
  ASSERT_EQ(Solve(), kOptimal);
  double const reduced = Lp(3)[1];
  double const before = Dbl("LpObjval");
  SetUpper(1, 5.001);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(reduced, (Dbl("LpObjval") - before) / 0.001, 1e-6);
  EXPECT_GT(reduced * sign(), 0.1);
}

TEST_P(FurnitureTest, IsSolvedByEachMethod) {
  for (int const method : {-1, 0, 1, 2}) {
    for (int const presolve : {-1, 0}) {
      ASSERT_EQ(VORQ_Reset(prob, 1), VORQ_OK);
      Set("LpMethod", method);
      Set("Presolve", presolve);
      ASSERT_EQ(Solve(), kOptimal) << method;
      EXPECT_NEAR(Dbl("LpObjval"), 36.0 * sign(), 1e-6) << method;
      EXPECT_THAT(Lp(2), AreClose({0.0, 1.5 * sign(), 1.0 * sign()})) << method;
    }
  }
}

TEST_P(FurnitureTest, ObjectiveIncludesTheConstant) {
  ASSERT_EQ(VORQ_SetObjConst(prob, 100.0), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 36.0 * sign() + 100.0, 1e-9);
}

TEST_P(FurnitureTest, StartsFromItsOwnBasisWithoutIterations) {
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_EQ(Int("SimplexIter"), 0);
}

TEST_P(FurnitureTest, TakesABasisBack) {
  ASSERT_EQ(Solve(), kOptimal);
  std::vector<int> cols(2, -1);
  std::vector<int> rows(3, -1);
  ASSERT_EQ(VORQ_GetBasis(prob, cols.data(), rows.data()), VORQ_OK);
  EXPECT_EQ(cols, (std::vector{1, 1}));
  EXPECT_EQ(rows, (std::vector{1, 2, 2}));
  ASSERT_EQ(VORQ_Reset(prob, 1), VORQ_OK);
  EXPECT_EQ(VORQ_GetBasis(prob, cols.data(), nullptr), VORQ_INVALID);
  ASSERT_EQ(VORQ_SetBasis(prob, cols.data(), rows.data()), VORQ_OK);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_EQ(Int("SimplexIter"), 0);
}

TEST_P(FurnitureTest, StartsFromTheSlackBasis) {
  ASSERT_EQ(VORQ_SetSlackBasis(prob), VORQ_OK);
  std::vector<int> cols(2, -1);
  std::vector<int> rows(3, -1);
  ASSERT_EQ(VORQ_GetBasis(prob, cols.data(), rows.data()), VORQ_OK);
  EXPECT_EQ(cols, (std::vector{0, 0}));
  EXPECT_EQ(rows, (std::vector{1, 1, 1}));
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 36.0 * sign(), 1e-9);
}

TEST_P(FurnitureTest, StartsFromValues) {
  double const values[] = {2.0, 6.0};
  double const rows[] = {0.0, 0.0, 0.0};
  ASSERT_EQ(VORQ_SetLpSolution(prob, values, rows, rows, values), VORQ_OK);
  EXPECT_THAT(Lp(0), AreClose({2.0, 6.0}));
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 36.0 * sign(), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(BothDirections, FurnitureTest, testing::Values(1.0, -1.0));

// The engine's dual method ends at bounds of its own.
TEST_F(LpTest, UnboundedBesideFreeColumns) {
  Col(4.0, 0.0, 1.0);
  Col(0.0, -10.0, -6.0);
  Col(-8.0, 0.0, 1.0);
  Col(-8.0, 1.0, 17.0);
  Col(-10.0, -1.0, 19.0);
  Col(-4.0, -kInf, kInf);
  Col(7.0, -kInf, kInf);
  Col(2.0, -2.0, -2.0);
  Row({1, 3, 4, 7}, {5.0, -7.0, 9.0, -4.0}, 'L', -27.0);
  Row({2, 3, 4, 5, 7}, {0.5, 9.0, -6.0, -2.0, 2.0}, 'L', 6.0);
  Row({0, 1, 2, 3, 4, 5}, {-3.0, 3.0, 1.0, -3.0, -3.0, 8.0}, 'G', -10.0);
  Row({0, 1, 2, 3, 4, 5, 6, 7}, {-1.0, -3.0, -8.0, -4.0, -9.0, 9.0, 9.0, -5.0}, 'G', 30.0);
  EXPECT_EQ(Solve(), kUnbounded);
}

TEST_F(LpTest, SlacksOfLowerSidedAndRangedAndFreeRows) {
  Col(1.0, 3.0, 3.0);
  Row({0}, {1.0}, 'G', 1.0);
  Row({0}, {1.0}, 'R', 1.0, 10.0);
  Row({0}, {1.0}, 'N', 0.0);
  Row({0}, {1.0}, 'E', 3.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Lp(1), AreClose({2.0, 7.0, kInf, 0.0}));
}

TEST_F(LpTest, RowAtItsLowerSideIsAtLowerInTheBasis) {
  Col(1.0, -kInf);
  Row({0}, {1.0}, 'R', 2.0, 5.0);
  ASSERT_EQ(Solve(), kOptimal);
  int row = -1;
  int col = -1;
  ASSERT_EQ(VORQ_GetBasis(prob, &col, &row), VORQ_OK);
  EXPECT_EQ(row, 0);
  EXPECT_EQ(col, 1);
  EXPECT_THAT(Lp(2), AreClose({1.0}));
}

TEST_F(LpTest, FreeColumnsTakeNegativeValues) {
  Col(1.0, -kInf);
  Row({0}, {1.0}, 'G', -5.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({-5.0}));
}

TEST_F(LpTest, FixedColumnsStay) {
  Col(1.0, 2.0, 2.0);
  Col(1.0);
  Row({0, 1}, {1.0, 1.0}, 'E', 5.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({2.0, 3.0}));
}

TEST_F(LpTest, DegenerateVertexIsSolved) {
  Maximise();
  for (double const obj : {10.0, -57.0, -9.0, -24.0}) Col(obj);
  Row({0, 1, 2, 3}, {0.5, -5.5, -2.5, 9.0}, 'L', 0.0);
  Row({0, 1, 2, 3}, {0.5, -1.5, -0.5, 1.0}, 'L', 0.0);
  Row({0}, {1.0}, 'L', 1.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 1.0, 1e-9);
}

TEST_F(LpTest, EmptyProblemIsOptimalAtItsConstant) {
  ASSERT_EQ(VORQ_SetObjConst(prob, 7.0), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_EQ(Dbl("LpObjval"), 7.0);
}

TEST_F(LpTest, WithoutRowsEachColumnGoesToItsBestBound) {
  Col(1.0, -2.0, 5.0);
  Col(-1.0, -2.0, 5.0);
  Col(0.0, 1.0, 5.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({-2.0, 5.0, 1.0}));
  EXPECT_THAT(Lp(3), AreClose({1.0, -1.0, 0.0}));
}

TEST_F(LpTest, WithoutRowsAnOpenColumnIsUnbounded) {
  Set("ReqFarkasRay", 1);
  Col(-1.0);
  EXPECT_EQ(Solve(), kUnbounded);
  EXPECT_EQ(Int("HasPrimalRay"), 1);
  EXPECT_EQ(Int("HasLpSol"), 0);
  EXPECT_EQ(VORQ_GetSolution(prob, std::vector<double>(1).data()), VORQ_INVALID);
}

TEST_F(LpTest, EmptyRowThatAsksForMoreIsInfeasible) {
  Col(1.0);
  Row({}, {}, 'G', 1.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(LpTest, CrossedBoundsAreInfeasible) {
  Col(1.0, 2.0, 1.0);
  Row({0}, {1.0}, 'L', 10.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(LpTest, CrossedSidesOfARowAreInfeasible) {
  Col(1.0);
  Row({0}, {1.0}, 'R', 2.0, 1.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

TEST_F(LpTest, NoRaysUnlessAskedFor) {
  Col(-1.0);
  Row({0}, {1.0}, 'G', 1.0);
  ASSERT_EQ(Solve(), kUnbounded);
  EXPECT_EQ(Int("HasPrimalRay"), 0);
}

TEST_F(LpTest, BasisGrowsWithTheProblem) {
  Col(-1.0, 0.0, 4.0);
  Row({0}, {2.0}, 'L', 6.0);
  ASSERT_EQ(Solve(), kOptimal);
  Col(-1.0, 0.0, 1.0);
  Row({0, 1}, {1.0, 1.0}, 'L', 3.5);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), -3.5, 1e-9);
  EXPECT_LE(Int("SimplexIter"), 3);
}

TEST_F(LpTest, BasisThatDoesNotFitIsIgnored) {
  Col(-1.0, 0.0, 4.0);
  Row({0}, {2.0}, 'L', 6.0);
  int const nonbasic = 0;
  ASSERT_EQ(VORQ_SetBasis(prob, &nonbasic, &nonbasic), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), -3.0, 1e-9);
}

TEST_F(LpTest, BasisCodesAreChecked) {
  Col(-1.0);
  int const wrong = 5;
  EXPECT_EQ(VORQ_SetBasis(prob, &wrong, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetBasis(prob, nullptr, nullptr), VORQ_INVALID);
}

TEST_F(LpTest, LazyConstraintsHoldInAnLp) {
  Col(-1.0, 0.0, 4.0);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 1, &col, &one, 'L', 2.5, 0.0, nullptr), VORQ_OK);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({2.5}));
}

TEST_F(LpTest, ZeroTimeLimitStops) {
  Set("TimeLimit", 0.0);
  Set("Presolve", 0);
  Maximise();
  Col(1.0);
  Col(1.0);
  Row({0, 1}, {1.0, 2.0}, 'L', 4.0);
  Row({0, 1}, {2.0, 1.0}, 'L', 4.0);
  EXPECT_EQ(Solve(), kTimeLimit);
}

TEST_F(LpTest, EveryReadOfTheBasisGivesTheOneSetLast) {
  Col(1.0, 0.0, 4.0);
  Row({0}, {1.0}, 'G', 2.0);
  EXPECT_EQ(Int("HasBasis"), 0);
  int col = -1;
  int row = -1;
  EXPECT_EQ(VORQ_GetBasis(prob, &col, &row), VORQ_INVALID);
  ASSERT_EQ(Solve(), kOptimal);
  int const atUpper = 2;
  int const basic = 1;
  ASSERT_EQ(VORQ_SetBasis(prob, &atUpper, &basic), VORQ_OK);
  EXPECT_EQ(Int("HasBasis"), 1);
  ASSERT_EQ(VORQ_GetBasis(prob, &col, &row), VORQ_OK);
  EXPECT_EQ(col, atUpper);
  EXPECT_EQ(row, basic);
  ASSERT_EQ(VORQ_GetColBasis(prob, 1, nullptr, &col), VORQ_OK);
  ASSERT_EQ(VORQ_GetRowBasis(prob, 1, nullptr, &row), VORQ_OK);
  EXPECT_EQ(col, atUpper);
  EXPECT_EQ(row, basic);
}

}  // namespace
