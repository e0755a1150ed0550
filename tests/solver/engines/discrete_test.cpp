// SOS, indicators, semicontinuous and semi-integer columns.
#include "tests/solver/engines/solve_fixture.hpp"

#include <cmath>

namespace {

class DiscreteTest : public SolveTest {};

TEST_F(DiscreteTest, Sos1LeavesOneColumn) {
  Maximise();
  for (double const obj : {1.0, 2.0, 3.0}) Col(obj, 0.0, obj == 3.0 ? 1.0 : 2.0);
  Row({0, 1, 2}, {1.0, 1.0, 1.0}, 'L', 10.0);
  Sos(1, {0, 1, 2});
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({0.0, 2.0, 0.0}));
  EXPECT_EQ(Int("IsMIP"), 1);
}

TEST_F(DiscreteTest, Sos2LeavesTwoNeighboursByWeight) {
  Maximise();
  for (double const obj : {3.0, 1.0, 3.0}) Col(obj, 0.0, 1.0);
  Row({0, 1, 2}, {1.0, 1.0, 1.0}, 'L', 10.0);
  // By weight the order is 0, 2, 1.
  Sos(2, {0, 1, 2}, {1.0, 3.0, 2.0});
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({1.0, 0.0, 1.0}));
}

TEST_F(DiscreteTest, Sos2WithoutWeightsTakesTheGivenOrder) {
  Maximise();
  for (double const obj : {3.0, 1.0, 3.0}) Col(obj, 0.0, 1.0);
  Row({0, 1, 2}, {1.0, 1.0, 1.0}, 'L', 10.0);
  Sos(2, {0, 1, 2});
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 4.0, 1e-9);
}

TEST_F(DiscreteTest, SosOfColumnsOfEitherSign) {
  Col(1.0, -3.0, 5.0);
  Col(1.0, -2.0, 5.0);
  Sos(1, {0, 1});
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({-3.0, 0.0}));
}

TEST_F(DiscreteTest, SosWhoseMembersCannotBeZeroIsInfeasible) {
  Col(1.0, 1.0, 5.0);
  Col(1.0, 2.0, 5.0);
  Sos(1, {0, 1});
  EXPECT_EQ(Solve(), kInfeasible);
}

// Without the set the relaxation is unbounded.
TEST_F(DiscreteTest, SosMayBoundWhatTheRelaxationDoesNot) {
  Maximise();
  Col(1.0);
  Col(1.0);
  Row({0, 1}, {1.0, -1.0}, 'L', 4.0);
  Row({0, 1}, {-1.0, 1.0}, 'L', 6.0);
  Sos(1, {0, 1});
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({0.0, 6.0}));
}

class IndicatorTest : public SolveTest, public testing::WithParamInterface<double> {};

// The upper bound decides between a switched row and a set: both must be right.
TEST_P(IndicatorTest, RowHoldsWhereTheBinaryHasTheValue) {
  for (int const value : {0, 1}) {
    ASSERT_EQ(VORQ_ClearProb(prob), VORQ_OK);
    Maximise();
    int const x = Col(1.0, 0.0, GetParam());
    int const b = Col(value == 1 ? 0.5 : -0.5, 0.0, 1.0, 'B');
    Row({x}, {1.0}, 'L', 8.0);
    Indicator(b, value, {x}, {1.0}, 'L', 3.0);
    ASSERT_EQ(Solve(), kOptimal);
    // Leaving the row off costs half and gains five.
    EXPECT_THAT(Values(), AreClose({8.0, 1.0 - value})) << value;
    double const fixed = value;
    ASSERT_EQ(VORQ_SetColLower(prob, 1, &b, &fixed), VORQ_OK);
    SetUpper(b, fixed);
    ASSERT_EQ(Solve(), kOptimal);
    EXPECT_THAT(Values(), AreClose({3.0, fixed})) << value;
  }
}

TEST_P(IndicatorTest, GreaterAndEqual) {
  int const x = Col(1.0, 0.0, GetParam());
  int const y = Col(1.0, 0.0, GetParam());
  int const b = Col(-100.0, 0.0, 1.0, 'B');
  Indicator(b, 1, {x}, {1.0}, 'G', 2.0);
  Indicator(b, 1, {x, y}, {1.0, -1.0}, 'E', -1.0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({2.0, 3.0, 1.0}));
}

INSTANTIATE_TEST_SUITE_P(Bounds, IndicatorTest, testing::Values(10.0, 1e6, kInf));

// Both types state the implication.
TEST_F(DiscreteTest, IndicatorsOfTypeOneAreImplicationsToo) {
  Maximise();
  int const b = Col(5.0, 0.0, 1.0, 'B');
  int const x = Col(1.0, 0.0, 10.0);
  Indicator(b, 1, {x}, {1.0}, 'L', 7.0, 1);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 12.0, 1e-6);
}

class SemicontinuousTest : public SolveTest, public testing::WithParamInterface<double> {};

TEST_P(SemicontinuousTest, ValueIsZeroOrWithinTheBounds) {
  // The price makes the column large enough or none at all.
  for (double const demand : {1.0, 3.0}) {
    ASSERT_EQ(VORQ_ClearProb(prob), VORQ_OK);
    int const x = Col(1.0, 2.0, GetParam(), 'S');
    int const y = Col(1.5);
    Row({x, y}, {1.0, 1.0}, 'G', demand);
    ASSERT_EQ(Solve(), kOptimal);
    if (demand == 1.0) {
      EXPECT_THAT(Values(), AreClose({0.0, 1.0}));
    } else {
      EXPECT_THAT(Values(), AreClose({3.0, 0.0}));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Bounds, SemicontinuousTest, testing::Values(5.0, 1e6, kInf));

TEST_F(DiscreteTest, SemiIntegerColumns) {
  int const x = Col(1.0, 2.0, 5.0, 'N');
  int const y = Col(10.0);
  Row({x, y}, {1.0, 1.0}, 'G', 2.5);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({3.0, 0.0}));
}

TEST_F(DiscreteTest, RelaxationDropsAllThatIsDiscrete) {
  int const x = Col(1.0, 2.0, 5.0, 'S');
  int const y = Col(1.0, 0.0, 5.0);
  Row({x, y}, {1.0, 1.0}, 'E', 1.0);
  Row({x}, {1.0}, 'G', 0.5);
  EXPECT_EQ(Solve(), kInfeasible);
  ASSERT_EQ(VORQ_SolveLp(prob), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kOptimal);
  EXPECT_NEAR(Dbl("LpObjval"), 1.0, 1e-9);
}

// Sets over random columns, against all choices of one member.
TEST_F(DiscreteTest, Sos1AgreesWithEnumeration) {
  unsigned state = 99;
  auto const random = [&state] {
    state = state * 1664525u + 1013904223u;
    return static_cast<double>((state >> 16) % 20 + 1);
  };
  for (int round = 0; round < 10; ++round) {
    ASSERT_EQ(VORQ_ClearProb(prob), VORQ_OK);
    Maximise();
    double worth[6] = {};
    double upper[6] = {};
    double weight[6] = {};
    for (int j = 0; j < 6; ++j) {
      worth[j] = random();
      upper[j] = random();
      weight[j] = random();
      Col(worth[j], 0.0, upper[j]);
    }
    Row({0, 1, 2, 3, 4, 5}, {weight, weight + 6}, 'L', 60.0);
    Sos(1, {0, 1, 2});
    Sos(1, {3, 4, 5});
    double best = 0.0;
    for (int a = 0; a < 3; ++a) {
      for (int b = 3; b < 6; ++b) {
        // Two columns under one row: the better one for its weight first.
        int const first = worth[a] * weight[b] >= worth[b] * weight[a] ? a : b;
        int const second = first == a ? b : a;
        double const x = std::min(upper[first], 60.0 / weight[first]);
        double const y = std::min(upper[second], (60.0 - x * weight[first]) / weight[second]);
        best = std::max(best, worth[first] * x + worth[second] * y);
      }
    }
    ASSERT_EQ(Solve(), kOptimal);
    EXPECT_NEAR(Dbl("BestObj"), best, 1e-6) << "round " << round;
  }
}

}  // namespace
