// Bounds that follow from rows.
#include "solver/engines/implied_bounds.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorqsolver {
namespace {

class ImpliedBoundsTest : public testing::Test {
 protected:
  void Row(std::vector<int> const& cols, std::vector<double> const& coefs, double low, double up) {
    rows.matrix.AppendRow(cols, coefs);
    rows.lower.push_back(low);
    rows.upper.push_back(up);
  }

  static auto Near(double value) { return testing::DoubleNear(value, 1e-4); }

  Rows rows;
  std::vector<double> lower = {0.0, 0.0};
  std::vector<double> upper = {kInfinity, kInfinity};

  void SetUp() override { rows.matrix.AppendEmptyCols(2); }
};

TEST_F(ImpliedBoundsTest, UpperSideBoundsNonnegativeColumns) {
  Row({0, 1}, {1.0, 2.0}, -kInfinity, 10.0);
  TightenByRows(rows, lower, upper);
  EXPECT_THAT(upper, testing::ElementsAre(Near(10.0), Near(5.0)));
  EXPECT_THAT(lower, testing::Each(0.0));
}

TEST_F(ImpliedBoundsTest, LowerSideActsThroughNegativeCoefficients) {
  upper[1] = 3.0;
  Row({0, 1}, {-2.0, 1.0}, -4.0, kInfinity);
  TightenByRows(rows, lower, upper);
  EXPECT_THAT(upper, testing::ElementsAre(Near(3.5), 3.0));
}

TEST_F(ImpliedBoundsTest, OneRowPassesItsBoundsToTheNext) {
  Row({0, 1}, {-1.0, 1.0}, 0.0, 0.0);
  Row({0}, {1.0}, -kInfinity, 7.0);
  TightenByRows(rows, lower, upper);
  EXPECT_THAT(upper, testing::Each(Near(7.0)));
}

TEST_F(ImpliedBoundsTest, BoundsAreNeverTooTight) {
  Row({0, 1}, {1.0, 1.0}, -kInfinity, 10.0);
  TightenByRows(rows, lower, upper);
  EXPECT_GE(upper[0], 10.0);
  EXPECT_GE(upper[1], 10.0);
}

TEST_F(ImpliedBoundsTest, TwoFreeColumnsOfARowLearnNothing) {
  lower = {-kInfinity, -kInfinity};
  Row({0, 1}, {1.0, 1.0}, 1.0, 2.0);
  TightenByRows(rows, lower, upper);
  EXPECT_THAT(lower, testing::Each(-kInfinity));
  EXPECT_THAT(upper, testing::Each(kInfinity));
}

TEST_F(ImpliedBoundsTest, OneFreeColumnBesideABoundedOneIsBounded) {
  lower = {-kInfinity, 0.0};
  upper = {kInfinity, 4.0};
  Row({0, 1}, {1.0, 1.0}, 1.0, 2.0);
  TightenByRows(rows, lower, upper);
  EXPECT_THAT(lower, testing::ElementsAre(Near(-3.0), 0.0));
  EXPECT_THAT(upper, testing::ElementsAre(Near(2.0), 4.0));
}

TEST_F(ImpliedBoundsTest, HugeBoundsCountAsNone) {
  upper = {kInfinity, 1e20};
  Row({0, 1}, {1.0, -1.0}, -kInfinity, 0.0);
  TightenByRows(rows, lower, upper);
  EXPECT_EQ(upper[0], kInfinity);
}

}  // namespace
}  // namespace vorqsolver
