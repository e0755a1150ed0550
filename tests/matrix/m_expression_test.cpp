// Linear cells: explicit terms and a lazy product.
#include <cmath>
#include <limits>

#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::Expr;
using Vorq::MExpression;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Var;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class MExpressionTest : public MatrixTest {};

TEST_F(MExpressionTest, ANewCellIsItsConstant) {
  MExpression const cell(2.5);
  EXPECT_EQ(cell.GetConstant(), 2.5);
  EXPECT_EQ(cell.scale, 1.0);
  EXPECT_EQ(cell.LazySize(), 0u);
  EXPECT_EQ(cell.ToString(1000), "2.5");
}

TEST_F(MExpressionTest, ACellFromAnExpressionHoldsItsTerms) {
  MExpression const cell(Expr(MakeVar("x", 0), 3.0));
  EXPECT_EQ(Terms(cell.expr), "0; 3 x");
  EXPECT_EQ(cell.LazySize(), 0u);
}

TEST_F(MExpressionTest, ALazyProductHasNoExplicitTerm) {
  auto const coeffs = Numbers<1>({2}, {3, 4});
  auto const vars = MakeVars<1>({2});
  MExpression const cell(coeffs, vars.Cells());
  EXPECT_EQ(cell.expr.Size(), 0u);
  EXPECT_EQ(cell.LazySize(), 2u);
  EXPECT_EQ(cell.coeffs.Store(), coeffs.Store());
  EXPECT_EQ(cell.vars.Store(), vars.Cells().Store());
}

TEST_F(MExpressionTest, ACopySharesTheVectorsAndOwnsItsTerms) {
  MExpression cell = LazyCell({3, 4});
  MExpression copy = cell;
  copy.AddTerm(MakeVar("y", 9), 1.0);
  copy.Multiply(2.0);
  EXPECT_EQ(copy.coeffs.Store(), cell.coeffs.Store());
  EXPECT_EQ(copy.vars.Store(), cell.vars.Store());
  EXPECT_EQ(cell.expr.Size(), 0u);
  EXPECT_EQ(cell.scale, 1.0);
}

TEST_F(MExpressionTest, ALazyProductSeesItsSource) {
  auto coeffs = Numbers<1>({2}, {3, 4});
  MExpression const cell(coeffs, MakeVars<1>({2}).Cells());
  coeffs.Set(1, 7.0);
  EXPECT_EQ(cell.ToString(1000), "0 + 3 * x0 + 7 * x1");
}

TEST_F(MExpressionTest, AddingACellMakesItsTermsExplicit) {
  MExpression target(1.0);
  MExpression source = LazyCell({3, 4});
  source.AddTerm(MakeVar("y", 9), 5.0);
  source.AddConstant(0.5);
  source.scale = 10.0;
  target.AddMExpression(source, 2.0);
  EXPECT_EQ(Terms(target.expr), "2; 10 y, 60 x0, 80 x1");
  EXPECT_EQ(target.LazySize(), 0u);
}

TEST_F(MExpressionTest, AddingACellLeavesTheTargetsLazyPart) {
  MExpression target = LazyCell({3, 4});
  target.scale = 2.0;
  target.AddMExpression(LazyCell({5}, 7), 1.0);
  EXPECT_EQ(target.LazySize(), 2u);
  EXPECT_EQ(target.scale, 2.0);
  EXPECT_EQ(Terms(target.expr), "0; 5 x7");
}

TEST_F(MExpressionTest, AddingACellZeroTimesListsItsLazyVariablesOnly) {
  MExpression target;
  MExpression source = LazyCell({3, 4});
  source.AddTerm(MakeVar("y", 9), 5.0);
  source.AddConstant(1.0);
  target.AddMExpression(source, 0.0);
  EXPECT_EQ(Terms(target.expr), "0; 0 x0, 0 x1");
}

TEST_F(MExpressionTest, ACellCanBeAddedToItself) {
  MExpression cell = LazyCell({3});
  cell.AddTerm(MakeVar("y", 9), 5.0);
  cell.AddConstant(1.0);
  cell.AddMExpression(cell, 2.0);
  EXPECT_EQ(Terms(cell.expr), "3; 5 y, 10 y, 6 x0");
}

TEST_F(MExpressionTest, ZeroCoefficientsAreAddedAsTerms) {
  MExpression target;
  target.AddMExpression(LazyCell({0, 4, -0.0}), 1.0);
  EXPECT_EQ(Terms(target.expr), "0; 0 x0, 4 x1, 0 x2");
}

TEST_F(MExpressionTest, AZeroCoefficientStaysZeroWithAnInfiniteScale) {
  MExpression cell = LazyCell({0, -0.0, 2});
  cell.scale = kInfinity;
  Expr expr;
  cell.AddTo(expr, 1.0);
  EXPECT_THAT(expr.coeffs, testing::ElementsAre(0.0, 0.0, kInfinity));
}

TEST_F(MExpressionTest, ANaNCoefficientStaysNaNWhateverTheScaleIs) {
  MExpression cell = LazyCell({kNaN});
  for (double const scale : {0.0, 1.0, kInfinity}) {
    cell.scale = scale;
    EXPECT_TRUE(std::isnan(cell.LazyFactor(kNaN))) << scale;
  }
}

TEST_F(MExpressionTest, MultiplyingByZeroEmptiesTheTermsAndKeepsTheVectors) {
  MExpression cell = LazyCell({3, 0, 5});
  cell.AddTerm(MakeVar("y", 9), 5.0);
  cell.AddConstant(1.0);
  cell.Multiply(0.0);
  EXPECT_EQ(cell.expr.Size(), 0u);
  EXPECT_EQ(cell.GetConstant(), 0.0);
  EXPECT_EQ(cell.scale, 0.0);
  EXPECT_EQ(cell.LazySize(), 3u);
  MExpression target;
  target.AddMExpression(cell, 1.0);
  EXPECT_EQ(Terms(target.expr), "0; 0 x0, 0 x1, 0 x2");
  EXPECT_EQ(cell.ToString(1000), "0 + 0 * x0 + 0 * x1 + 0 * x2");
}

TEST_F(MExpressionTest, MultiplyingScalesTermsConstantAndLazyPart) {
  MExpression cell = LazyCell({3});
  cell.AddTerm(MakeVar("y", 9), 5.0);
  cell.AddConstant(1.0);
  cell.Multiply(2.0);
  cell.Multiply(-3.0);
  EXPECT_EQ(Terms(cell.expr), "-6; -30 y");
  EXPECT_EQ(cell.scale, -6.0);
}

TEST_F(MExpressionTest, TheConstantIsThatOfTheTerms) {
  MExpression cell = LazyCell({3});
  cell.SetConstant(4.0);
  cell.AddConstant(0.5);
  EXPECT_EQ(cell.GetConstant(), 4.5);
}

TEST_F(MExpressionTest, AllTermsAreVisitedInTheOrderOfExpansion) {
  MExpression cell = LazyCell({3, 0, 4});
  cell.scale = 2.0;
  cell.AddTerm(MakeVar("y", 9), 5.0);
  Expr visited;
  cell.ForEachTerm([&](Var const& var, double factor) { visited.AddTerm(var, factor); });
  EXPECT_EQ(Terms(visited), "0; 5 y, 6 x0, 0 x1, 8 x2");
}

TEST_F(MExpressionTest, VectorsAreReadByTheirStrides) {
  Vorq::View column;
  column.Full();
  column.Scalar(1);
  auto const matrix = Numbers<2>({3, 2}, {1, 2, 3, 4, 5, 6}).View(column).Flatten();
  Vorq::View reversed;
  reversed.Slice(0, 0, -1, Vorq::Slice::kStartOmitted | Vorq::Slice::kStopOmitted);
  MExpression const cell(matrix, MakeVars<1>({3}).View(reversed).Cells());
  EXPECT_EQ(cell.ToString(1000), "0 + 2 * x2 + 4 * x1 + 6 * x0");
  EXPECT_EQ(ValueOf(cell), 2 * 4 + 4 * 3 + 6 * 2.0);
}

TEST_F(MExpressionTest, ACellWithEmptyVectorsHasNoLazyPart) {
  MExpression const cell(NdArray<double, 1>(), MakeVars<1>({0}).Cells());
  EXPECT_EQ(cell.LazySize(), 0u);
  EXPECT_EQ(cell.ToString(100), "0");
}

TEST_F(MExpressionTest, HalfTheLimitIsForTheTerms) {
  MExpression cell;
  for (int i = 0; i < 5; ++i) cell.AddTerm(MakeVar("y" + std::to_string(i), 10 + i), 2.0);
  EXPECT_EQ(cell.ToString(80), "2 * y0 + 2 * y1 + 2 * y2 + 2 * y3 + 2 * y4");
  EXPECT_EQ(cell.ToString(48), "2 * y0 + 2 * y1 + 2 * y2 ... ");
}

TEST_F(MExpressionTest, OneLazyTermIsWrittenForEachEightCharactersLeft) {
  MExpression const cell = LazyCell({3, 4, 5});
  EXPECT_EQ(cell.ToString(25), "0 + 3 * x0 + 4 * x1 + 5 * x2");
  EXPECT_EQ(cell.ToString(24), "0 + 3 * x0 + 4 * x1 ... ");
  EXPECT_EQ(cell.ToString(9), "0 + 3 * x0 ... ");
  EXPECT_EQ(cell.ToString(8), "0 ... ");
}

TEST_F(MExpressionTest, ATextLongerThanTheLimitLeavesNoRoomForLazyTerms) {
  MExpression cell = LazyCell({3});
  cell.AddConstant(1234.5);
  EXPECT_EQ(cell.ToString(0), "1234.5 ... ");
  EXPECT_EQ(MExpression(1234.5).ToString(0), "1234.5");
}

TEST_F(MExpressionTest, TheLargestLimitShowsAll) {
  EXPECT_EQ(LazyCell({3, 4}).ToString(std::numeric_limits<std::uint64_t>::max()), "0 + 3 * x0 + 4 * x1");
}

TEST_F(MExpressionTest, LazyFactorsPrintWithTheirSign) {
  EXPECT_EQ(LazyCell({-3}).ToString(100), "0 + -3 * x0");
}

}  // namespace
}  // namespace vorqtest
