// Quadratic cells: explicit terms and a lazy product of two vectors.
#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::Expr;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MQExpression;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::QuadExpr;
using Vorq::SideKind;
using Vorq::Var;

class MQExpressionTest : public MatrixTest {
 protected:
  // Cells with a constant, an explicit and two lazy terms each, of different variables.
  NdArray<MExpression, 1> Cells(std::uint64_t count, int first) const {
    return NdArray<MExpression, 1>::Generated(NDim<1>({count}), [&](std::uint64_t i) {
      int const position = first + 10 * static_cast<int>(i);
      MExpression cell = LazyCell({2.0, 3.0}, position);
      cell.AddTerm(MakeVar("x" + std::to_string(position + 5), position + 5), 4.0);
      cell.AddConstant(static_cast<double>(i) + 1.0);
      cell.scale = 0.5;
      return cell;
    });
  }
  // A cell of the two kinds over vectors of two elements.
  MQExpression Product(SideKind kind1, SideKind kind2) const {
    NdArray<Var, 1> const vars1 = MakeVars<1>({2}, 0).Cells();
    NdArray<Var, 1> const vars2 = MakeVars<1>({2}, 2).Cells();
    NdArray<MExpression, 1> const lins1 = Cells(2, 100);
    NdArray<MExpression, 1> const lins2 = Cells(2, 200);
    if (kind1 == SideKind::kVars)
      return kind2 == SideKind::kVars ? MQExpression(vars1, vars2) : MQExpression(vars1, lins2);
    return kind2 == SideKind::kVars ? MQExpression(lins1, vars2) : MQExpression(lins1, lins2);
  }

  static constexpr SideKind kKinds[] = {SideKind::kVars, SideKind::kLins};
};

TEST_F(MQExpressionTest, ANewCellHasNoLazyProduct) {
  MQExpression const cell(2.5);
  EXPECT_EQ(static_cast<std::uint32_t>(cell.side1.kind), 0xFFFFFFFFu);
  EXPECT_EQ(static_cast<std::uint32_t>(cell.side2.kind), 0xFFFFFFFFu);
  EXPECT_EQ(cell.scale, 1.0);
  EXPECT_EQ(cell.GetConstant(), 2.5);
  EXPECT_EQ(cell.ToString(1000), "2.5");
}

TEST_F(MQExpressionTest, ALazyProductSharesItsVectors) {
  auto const vars = MakeVars<1>({3});
  auto const lins = Cells(3, 100);
  MQExpression const cell(vars.Cells(), lins);
  MQExpression const copy = cell;
  EXPECT_EQ(copy.side1.kind, SideKind::kVars);
  EXPECT_EQ(copy.side2.kind, SideKind::kLins);
  EXPECT_EQ(copy.side1.vars.Store(), vars.Cells().Store());
  EXPECT_EQ(copy.side2.lins.Store(), lins.Store());
  EXPECT_EQ(copy.LazySize(), 3u);
  EXPECT_TRUE(copy.side1.lins.IsEmpty());
  EXPECT_TRUE(copy.side2.vars.IsEmpty());
}

TEST_F(MQExpressionTest, TheConstantCountsProductsOfTwoLinearSidesOnly) {
  for (SideKind const kind1 : kKinds) {
    for (SideKind const kind2 : kKinds) {
      MQExpression cell = Product(kind1, kind2);
      cell.AddConstant(7.0);
      cell.scale = 3.0;
      bool const bothLinear = kind1 == SideKind::kLins && kind2 == SideKind::kLins;
      EXPECT_EQ(cell.GetConstant(), bothLinear ? 7.0 + 3.0 * (1 * 1 + 2 * 2) : 7.0);
    }
  }
}

TEST_F(MQExpressionTest, TermsGoToTheExplicitPart) {
  Var const x = MakeVar("x", 0);
  Var const y = MakeVar("y", 1);
  MQExpression cell(1.0);
  cell.AddTerm(x, 2.0);
  cell.AddTerm(x, y, 3.0);
  cell.AddLinExpr(Expr(y, 4.0), 0.5);
  cell.AddQuadExpr(QuadExpr(Expr(x, 5.0), Expr(x, 1.0)), 2.0);
  cell.AddMExpression(LazyCell({6.0}, 7), 2.0);
  EXPECT_EQ(Terms(cell.expr), "1; 2 x, 2 y, 12 x7 | 3 x y, 10 x x");
}

TEST_F(MQExpressionTest, AProductOfACellAndAVariable) {
  MExpression cell = LazyCell({2.0, 0.0});
  cell.AddTerm(MakeVar("a", 5), 3.0);
  cell.scale = 10.0;
  MQExpression target;
  target.AddProduct(cell, MakeVar("y", 9));
  EXPECT_EQ(Terms(target.expr), "0; 0 y | 3 a y, 20 x0 y, 0 x1 y");
}

TEST_F(MQExpressionTest, AProductOfACellAndAnExpression) {
  MExpression cell = LazyCell({2.0});
  cell.AddTerm(MakeVar("a", 5), 3.0);
  Expr other(MakeVar("y", 9), 4.0);
  other.AddTerm(MakeVar("z", 10), 5.0);
  MQExpression target;
  target.AddProduct(cell, other);
  EXPECT_EQ(Terms(target.expr), "0; | 12 a y, 15 a z, 8 x0 y, 10 x0 z");
}

TEST_F(MQExpressionTest, AProductCountsTheConstantsOfBothFactors) {
  MExpression cell = LazyCell({2.0});
  cell.AddConstant(3.0);
  Expr other(MakeVar("y", 9), 4.0);
  other.AddConstant(5.0);
  MQExpression target;
  target.AddProduct(cell, other);
  EXPECT_EQ(Terms(target.expr), "15; 12 y, 10 x0 | 8 x0 y");
}

TEST_F(MQExpressionTest, AScaledProductOfTwoCellsHasTheirValue) {
  auto const a = Cells(1, 100).Get(0);
  auto const b = Cells(2, 200).Get(1);
  for (double const c : {1.0, -2.5, 0.0}) {
    MQExpression target(1.0);
    target.AddProduct(a, b, c);
    EXPECT_DOUBLE_EQ(ValueOf(target), 1.0 + c * ValueOf(a) * ValueOf(b)) << c;
    EXPECT_EQ(target.expr.Size(), 9u) << c;
    EXPECT_EQ(target.LazySize(), 0u);
  }
}

TEST_F(MQExpressionTest, AddingALazyProductOfVariablesAddsOneTermAPosition) {
  MQExpression const source(MakeVars<1>({2}, 0).Cells(), MakeVars<1>({2}, 2).Cells());
  MQExpression target;
  target.AddMQExpression(source, 2.0);
  EXPECT_EQ(Terms(target.expr), "0; | 2 x0 x2, 2 x1 x3");
}

TEST_F(MQExpressionTest, AddingAMixedProductAddsTheTermsOfItsCells) {
  auto const vars = MakeVars<1>({2}, 0).Cells();
  auto const lins = Cells(2, 100);
  MQExpression first(vars, lins);
  MQExpression second(lins, vars);
  first.scale = second.scale = 2.0;
  char const* const terms = "0; 2 x0, 4 x1 | 8 x105 x0, 2 x100 x0, 3 x101 x0, 8 x115 x1, 2 x110 x1, 3 x111 x1";
  for (MQExpression const& source : {first, second}) {
    MQExpression target;
    target.AddMQExpression(source, 1.0);
    EXPECT_EQ(Terms(target.expr), terms);
  }
}

TEST_F(MQExpressionTest, AddingAProductAddsItsValue) {
  for (SideKind const kind1 : kKinds) {
    for (SideKind const kind2 : kKinds) {
      MQExpression source = Product(kind1, kind2);
      source.AddTerm(MakeVar("y", 9), 3.0);
      source.AddConstant(0.25);
      source.scale = -1.5;
      MQExpression target(1.0);
      target.AddMQExpression(source, 2.0);
      EXPECT_DOUBLE_EQ(ValueOf(target), 1.0 + 2.0 * ValueOf(source));
      EXPECT_EQ(target.LazySize(), 0u);
    }
  }
}

TEST_F(MQExpressionTest, AddingACellZeroTimesLeavesItsLazyPartOut) {
  MQExpression source = Product(SideKind::kVars, SideKind::kVars);
  source.AddTerm(MakeVar("y", 9), MakeVar("y", 9), 3.0);
  MQExpression target(1.0);
  target.AddMQExpression(source, 0.0);
  EXPECT_EQ(Terms(target.expr), "1; |");
}

TEST_F(MQExpressionTest, AddingACellOfScaleZeroAddsItsTermsOnly) {
  MQExpression source = Product(SideKind::kLins, SideKind::kLins);
  source.AddTerm(MakeVar("y", 9), MakeVar("y", 9), 3.0);
  source.scale = 0.0;
  MQExpression target(1.0);
  target.AddMQExpression(source, 2.0);
  EXPECT_EQ(Terms(target.expr), "1; | 6 y y");
}

TEST_F(MQExpressionTest, ACellCanBeAddedToItself) {
  MQExpression cell = Product(SideKind::kVars, SideKind::kVars);
  cell.AddTerm(MakeVar("y", 9), MakeVar("y", 9), 3.0);
  cell.AddMQExpression(cell, 1.0);
  EXPECT_EQ(Terms(cell.expr), "0; | 3 y y, 3 y y, 1 x0 x2, 1 x1 x3");
  EXPECT_EQ(cell.LazySize(), 2u);
}

TEST_F(MQExpressionTest, MultiplyingByZeroKeepsTheKinds) {
  MQExpression cell = Product(SideKind::kVars, SideKind::kLins);
  cell.AddTerm(MakeVar("y", 9), 3.0);
  cell.AddConstant(1.0);
  cell.Multiply(0.0);
  EXPECT_EQ(Terms(cell.expr), "0; |");
  EXPECT_EQ(cell.scale, 0.0);
  EXPECT_EQ(cell.side1.kind, SideKind::kVars);
  EXPECT_EQ(cell.side2.kind, SideKind::kLins);
  MQExpression target;
  target.AddMQExpression(cell, 1.0);
  EXPECT_EQ(Terms(target.expr), "0; |");
}

TEST_F(MQExpressionTest, MultiplyingMultipliesTheValue) {
  MQExpression cell = Product(SideKind::kLins, SideKind::kVars);
  cell.AddTerm(MakeVar("y", 9), 3.0);
  cell.AddConstant(1.0);
  double const before = ValueOf(cell);
  cell.Multiply(-2.0);
  EXPECT_DOUBLE_EQ(ValueOf(cell), -2.0 * before);
  EXPECT_EQ(cell.scale, -2.0);
}

TEST_F(MQExpressionTest, TextsOfTheKinds) {
  auto const vars1 = MakeVars<1>({2}, 0).Cells();
  auto const vars2 = MakeVars<1>({2}, 2).Cells();
  auto const lins = NdArray<MExpression, 1>::Generated(NDim<1>({2}), [&](std::uint64_t i) {
    MExpression cell = LazyCell({2.0}, 4 + static_cast<int>(i));
    cell.AddConstant(1.0);
    return cell;
  });
  EXPECT_EQ(MQExpression(vars1, vars2).ToString(1000), "0 + x0 * x2 + x1 * x3");
  EXPECT_EQ(MQExpression(lins, vars2).ToString(1000), "0 + (1 + 2 * x4) * x2 + (1 + 2 * x5) * x3");
  EXPECT_EQ(MQExpression(vars1, lins).ToString(1000), "0 + x0 * (1 + 2 * x4) + x1 * (1 + 2 * x5)");
  EXPECT_EQ(MQExpression(lins, lins).ToString(1000), "0 + (1 + 2 * x4) * (1 + 2 * x4) + (1 + 2 * x5) * (1 + 2 * x5)");
}

TEST_F(MQExpressionTest, TheTextIsCutByTheLimit) {
  MQExpression cell = Product(SideKind::kVars, SideKind::kVars);
  cell.AddTerm(MakeVar("y", 9), MakeVar("z", 10), 3.0);
  EXPECT_EQ(cell.ToString(100), "0 + 3 * y * z + x0 * x2 + x1 * x3");
  EXPECT_EQ(cell.ToString(28), "0 + 3 * y * z + x0 * x2 ... ");
  EXPECT_EQ(cell.ToString(20), "0 + 3 * y * z ... ");
  EXPECT_EQ(cell.ToString(0), "0 ...  ... ");
}

}  // namespace
}  // namespace vorqtest
