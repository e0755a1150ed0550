// CheckSolution on points that hold and points that do not.
#include "solver/tasks/check.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {
namespace {

class CheckTest : public testing::Test {
 protected:
  CheckTest() {
    data.columns.lower = {0.0, 1.0, 0.0};
    data.columns.upper = {1.0, 5.0, kInfinity};
    data.columns.objective = {0.0, 0.0, 0.0};
    data.columns.type = {'B', 'S', 'C'};
    data.rows.matrix.AppendEmptyCols(3);
    std::vector<int> const cols = {1, 2};
    std::vector<double> const values = {1.0, 2.0};
    data.rows.matrix.AppendRow(cols, values);
    data.rows.lower = {-kInfinity};
    data.rows.upper = {10.0};
  }

  Violations Check(std::vector<double> const& values, bool relaxed = false) const {
    return CheckSolution(data, values, relaxed);
  }

  ProblemData data;
  ParameterSet parameters;
};

TEST_F(CheckTest, FeasiblePointHolds) {
  auto const found = Check({1.0, 0.0, 5.0});
  EXPECT_TRUE(found.Holds(parameters));
  EXPECT_EQ(found.rows, 0.0);
}

TEST_F(CheckTest, RowViolationIsMeasured) {
  auto const found = Check({1.0, 2.0, 5.0});
  EXPECT_DOUBLE_EQ(found.rows, 2.0);
  EXPECT_FALSE(found.Holds(parameters));
}

TEST_F(CheckTest, IntegralityIsMeasuredAndMayBeRelaxed) {
  EXPECT_DOUBLE_EQ(Check({0.25, 0.0, 0.0}).integrality, 0.25);
  EXPECT_TRUE(Check({0.25, 0.5, 0.0}, true).Holds(parameters));
}

TEST_F(CheckTest, SemicontinuityIsMeasured) {
  EXPECT_DOUBLE_EQ(Check({0.0, 0.75, 0.0}).discrete, 0.25);
}

TEST_F(CheckTest, BoundsAreMeasured) {
  EXPECT_DOUBLE_EQ(Check({0.0, 0.0, -3.0}).bounds, 3.0);
}

TEST_F(CheckTest, SosIsMeasured) {
  data.soss.push_back({1, {0, 2}, {}});
  EXPECT_DOUBLE_EQ(Check({1.0, 0.0, 0.5}).discrete, 0.5);
  EXPECT_TRUE(Check({1.0, 0.0, 0.0}).Holds(parameters));
}

TEST_F(CheckTest, IndicatorIsMeasured) {
  Indicator indicator;
  indicator.terms = {{2, 1.0}};
  indicator.rhs = 4.0;
  data.indicators.push_back(indicator);
  EXPECT_DOUBLE_EQ(Check({1.0, 0.0, 5.0}).discrete, 1.0);
  EXPECT_TRUE(Check({0.0, 0.0, 5.0}).Holds(parameters));
}

TEST_F(CheckTest, ValueThatIsNoNumberNeverHolds) {
  EXPECT_FALSE(Check({0.0, 0.0, std::nan("")}).Holds(parameters));
}

}  // namespace
}  // namespace vorqsolver
