// Cells as index lists: what is merged, what is passed over, and in which order the entries come.
#include "model/cell_terms.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/matrix/matrix_fixture.hpp"

namespace {

using Vorq::Expr;
using Vorq::MExpression;
using Vorq::MQExpression;
using Vorq::Var;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class CellTermsTest : public vorqtest::MatrixTest {
 protected:
  // The entries of a cell as "2 x0, 1 x1", collected behind `entriesBefore` others.
  std::string Linear(MExpression const& cell, std::size_t entriesBefore = 0) {
    std::vector<int> indices(entriesBefore, 0);
    std::vector<double> coefficients(entriesBefore, 9.0);
    std::size_t const count = Vorq::CollectTerms(cell, marks_, indices, coefficients);
    EXPECT_EQ(indices.size(), entriesBefore + count);
    EXPECT_EQ(coefficients.size(), entriesBefore + count);
    EXPECT_TRUE(std::ranges::all_of(marks_, [](int mark) { return mark == 0; }));
    std::ostringstream out;
    for (std::size_t k = entriesBefore; k < indices.size(); ++k) {
      out << (k == entriesBefore ? "" : ", ") << coefficients[k] << " x" << indices[k];
    }
    return out.str();
  }

  static std::string Quadratic(MQExpression const& cell) {
    std::vector<int> rows, cols;
    std::vector<double> values;
    std::size_t const count = Vorq::CollectQuadTerms(cell, rows, cols, values);
    EXPECT_EQ(rows.size(), count);
    EXPECT_EQ(cols.size(), count);
    EXPECT_EQ(values.size(), count);
    std::ostringstream out;
    for (std::size_t k = 0; k < count; ++k) {
      out << (k == 0 ? "" : ", ") << values[k] << " x" << rows[k] << " x" << cols[k];
    }
    return out.str();
  }

  MExpression Terms(std::vector<std::pair<double, int>> const& terms, double constant = 0.0) const {
    MExpression cell(constant);
    for (auto const& [coefficient, index] : terms) {
      cell.AddTerm(Make<Var>("x" + std::to_string(index), index), coefficient);
    }
    return cell;
  }

  // A vector of the cells.
  static Vorq::NdArray<MExpression, 1> Vector(std::vector<MExpression> const& cells) {
    return Vorq::NdArray<MExpression, 1>::Generated(Vorq::NDim<1>({cells.size()}),
                                                    [&](std::uint64_t i) { return cells[i]; });
  }
  Vorq::NdArray<Var, 1> Variables(std::uint64_t count, int first) const { return MakeVars<1>({count}, first).Cells(); }

  std::vector<int> marks_ = std::vector<int>(10);
};

TEST_F(CellTermsTest, ExplicitTermsComeFirst) {
  MExpression cell = LazyCell({2.0, 3.0}, 4);
  cell.AddTerm(Make<Var>("x7", 7), 1.5);
  cell.AddConstant(8.0);
  EXPECT_EQ(Linear(cell), "1.5 x7, 2 x4, 3 x5");
}

TEST_F(CellTermsTest, EntriesGoBehindThoseThatAreThere) {
  EXPECT_EQ(Linear(LazyCell({2.0, 3.0}), 3), "2 x0, 3 x1");
  EXPECT_EQ(Linear(Terms({{1.0, 0}, {2.0, 0}, {4.0, 1}}), 3), "3 x0, 4 x1");
}

TEST_F(CellTermsTest, RepeatedVariablesKeepTheirFirstPlace) {
  EXPECT_EQ(Linear(Terms({{1.0, 2}, {4.0, 1}, {2.0, 2}, {8.0, 0}})), "3 x2, 4 x1, 8 x0");
}

TEST_F(CellTermsTest, LazyTermsAreAddedToExplicitOnes) {
  MExpression cell = LazyCell({2.0, 3.0}, 4);
  cell.AddTerm(Make<Var>("x5", 5), 1.0);
  EXPECT_EQ(Linear(cell), "4 x5, 2 x4");
}

TEST_F(CellTermsTest, ASumOfZeroStays) {
  EXPECT_EQ(Linear(Terms({{1.0, 0}, {-1.0, 0}})), "0 x0");
}

TEST_F(CellTermsTest, ZeroTermsArePassedOver) {
  MExpression cell = LazyCell({0.0, 3.0, -0.0}, 4);
  cell.AddTerm(Make<Var>("x7", 7), 0.0);
  EXPECT_EQ(Linear(cell), "3 x5");
}

TEST_F(CellTermsTest, NaNStays) {
  EXPECT_EQ(Linear(Terms({{kNaN, 0}})), "nan x0");
  EXPECT_EQ(Linear(LazyCell({kNaN, 1.0})), "nan x0, 1 x1");
}

TEST_F(CellTermsTest, VariablesThatAreNotLiveArePassedOver) {
  EXPECT_EQ(Linear(Terms({{1.0, -5}, {2.0, 1}, {3.0, -2}})), "2 x1");
  EXPECT_EQ(Linear(LazyCell({1.0, 2.0, 3.0}, -2)), "3 x0");
}

TEST_F(CellTermsTest, ScaleIsAppliedToLazyTermsOnly) {
  MExpression cell = LazyCell({2.0, 3.0}, 4);
  cell.AddTerm(Make<Var>("x7", 7), 1.5);
  cell.scale = -2.0;
  EXPECT_EQ(Linear(cell), "1.5 x7, -4 x4, -6 x5");
}

TEST_F(CellTermsTest, AScaleOfZeroLeavesTheLazyPartOut) {
  MExpression cell = LazyCell({2.0, kNaN}, 4);
  cell.scale = 0.0;
  EXPECT_EQ(Linear(cell), "");
  cell.scale = -0.0;
  EXPECT_EQ(Linear(cell), "");
}

TEST_F(CellTermsTest, AScaleOfNaNDoesNot) {
  MExpression cell = LazyCell({2.0, 0.0, 3.0}, 4);
  cell.scale = kNaN;
  EXPECT_EQ(Linear(cell), "nan x4, nan x6");
}

TEST_F(CellTermsTest, AnInfiniteScaleLeavesZeroCoefficientsAlone) {
  MExpression cell = LazyCell({0.0, 3.0}, 4);
  cell.scale = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Linear(cell), "inf x5");
}

TEST_F(CellTermsTest, AProductThatVanishesStays) {
  MExpression cell = LazyCell({1e-200, 1.0}, 4);
  cell.scale = 1e-200;
  EXPECT_EQ(Linear(cell), "0 x4, 1e-200 x5");
}

TEST_F(CellTermsTest, StridesAreFollowed) {
  auto const matrix = Numbers<2>({2, 3}, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0}).Transpose();
  // The second row of the transposed matrix: 2 and 5.
  Vorq::StridedVector<double> const row(matrix.Store(), 1, 3, 2);
  Vorq::StridedVector<Var> const backwards(MakeVars<1>({4}).Cells().Store(), 3, -2, 2);
  EXPECT_EQ(Linear(MExpression(row, backwards)), "2 x3, 5 x1");
  // One variable for all coefficients.
  Vorq::StridedVector<Var> const repeated(MakeVars<1>({4}).Cells().Store(), 2, 0, 2);
  EXPECT_EQ(Linear(MExpression(row, repeated)), "7 x2");
}

TEST_F(CellTermsTest, AVariableBeyondTheMarksMakesThemLonger) {
  EXPECT_EQ(Linear(Terms({{1.0, 25}, {2.0, 25}})), "3 x25");
  EXPECT_EQ(marks_.size(), 26u);
}

TEST_F(CellTermsTest, AnEmptyCellHasNoEntries) {
  EXPECT_EQ(Linear(MExpression(4.0)), "");
  EXPECT_EQ(Quadratic(MQExpression(4.0)), "");
}

TEST_F(CellTermsTest, QuadraticTermsAreNotMerged) {
  MQExpression cell;
  Var const x = Make<Var>("x0", 0);
  Var const y = Make<Var>("x1", 1);
  cell.AddTerm(x, y, 2.0);
  cell.AddTerm(y, x, 0.0);
  cell.AddTerm(x, y, kNaN);
  cell.AddTerm(x, 4.0);
  EXPECT_EQ(Quadratic(cell), "2 x0 x1, nan x0 x1");
}

TEST_F(CellTermsTest, IndicesOfQuadraticTermsAreTakenAsTheyStand) {
  MQExpression cell;
  cell.AddTerm(Make<Var>("gone", -5), Make<Var>("x1", 1), 2.0);
  EXPECT_EQ(Quadratic(cell), "2 x-5 x1");
}

TEST_F(CellTermsTest, ScaleIsNotAppliedToProductsOfVariables) {
  MQExpression cell(Variables(2, 0), Variables(2, 4));
  cell.AddTerm(Make<Var>("x7", 7), Make<Var>("x8", 8), 3.0);
  cell.scale = -2.5;
  EXPECT_EQ(Quadratic(cell), "3 x7 x8, 1 x0 x4, 1 x1 x5");
  cell.scale = 0.0;
  EXPECT_EQ(Quadratic(cell), "3 x7 x8, 1 x0 x4, 1 x1 x5");
}

TEST_F(CellTermsTest, VariablesTimesCellsBeginWithTheLazyTerms) {
  MExpression lazy = LazyCell({2.0, 0.0, 3.0}, 4);
  lazy.AddTerm(Make<Var>("x7", 7), 5.0);
  lazy.AddTerm(Make<Var>("x8", 8), 0.0);
  lazy.AddConstant(11.0);
  lazy.scale = -1.0;
  MQExpression cell(Variables(2, 0), Vector({lazy, Terms({{6.0, 9}})}));
  cell.scale = 10.0;
  EXPECT_EQ(Quadratic(cell), "-20 x4 x0, -30 x6 x0, 50 x7 x0, 60 x9 x1");
}

TEST_F(CellTermsTest, CellsTimesVariablesGiveTheSamePairs) {
  MQExpression cell(Vector({LazyCell({2.0}, 4), Terms({{6.0, 9}}, 3.0)}), Variables(2, 0));
  EXPECT_EQ(Quadratic(cell), "2 x4 x0, 6 x9 x1");
}

TEST_F(CellTermsTest, ScaleOfZeroKeepsProductsWithCells) {
  MQExpression cell(Variables(1, 0), Vector({Terms({{6.0, 9}})}));
  cell.scale = 0.0;
  EXPECT_EQ(Quadratic(cell), "0 x9 x0");
}

TEST_F(CellTermsTest, AFactorThatVanishesIsPassedOver) {
  MExpression lazy = LazyCell({1e-200, 1.0}, 4);
  lazy.scale = 1e-200;
  EXPECT_EQ(Quadratic(MQExpression(Variables(1, 0), Vector({lazy}))), "1e-200 x5 x0");
}

TEST_F(CellTermsTest, CellsTimesCellsGiveAllPairs) {
  MExpression first = LazyCell({2.0}, 0);
  first.AddTerm(Make<Var>("x1", 1), 3.0);
  MExpression second = LazyCell({5.0}, 4);
  second.AddTerm(Make<Var>("x5", 5), 7.0);
  second.AddConstant(100.0);
  MQExpression cell(Vector({first}), Vector({second}));
  cell.scale = 2.0;
  EXPECT_EQ(Quadratic(cell), "20 x0 x4, 28 x0 x5, 30 x1 x4, 42 x1 x5");
}

TEST_F(CellTermsTest, CellsTimesCellsKeepFactorsOfZero) {
  MExpression first = LazyCell({0.0}, 0);
  first.AddTerm(Make<Var>("x1", 1), 3.0);
  MExpression const second = LazyCell({5.0}, 4);
  EXPECT_EQ(Quadratic(MQExpression(Vector({first}), Vector({second}))), "0 x0 x4, 15 x1 x4");
}

TEST_F(CellTermsTest, ASideWithoutAStoreGivesNoProducts) {
  MQExpression const cell(Variables(2, 0), Vorq::NdArray<Var, 1>(Vorq::NDim<1>({2}), {}));
  EXPECT_EQ(Quadratic(cell), "");
}

}  // namespace
