// The dense products: what their cells hold, their failures, empty operands, and arrays of variables.
#include "matrix/dense_products.hpp"

#include <cstring>
#include <limits>
#include <numeric>

#include "tests/operators/operand_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::MatMult;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MQExpression;
using Vorq::MQuadExpr;
using Vorq::MVar;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::PsdExpr;
using Vorq::SideKind;
using Vorq::Var;
using Vorq::VarArray;

class DenseProducts : public OperandTest {
 protected:
  // The explicit terms of all cells.
  template <int N>
  static std::string Cells(MLinExpr<N> const& block) {
    std::string text;
    block.Cells().ForEach([&](MExpression const& cell) { text += "[" + Terms(cell.expr) + "]"; });
    return text;
  }
  // The same with the lazy part expanded.
  static std::string Expanded(MExpression const& cell) {
    MExpression sum;
    sum.AddMExpression(cell, 1.0);
    return Terms(sum.expr);
  }
  static std::string Expanded(MQExpression const& cell) {
    MQExpression sum;
    sum.AddMQExpression(cell, 1.0);
    return Terms(sum.expr);
  }

  template <class T, int N>
  static NdArray<T, N> Whole(Sizes<N> const& sizes, std::vector<T> const& values) {
    return NdArray<T, N>::Generated(NDim<N>(sizes), [&](std::uint64_t i) { return values[i]; });
  }

  template <class Block>
  static std::string ShapeOf(Block const& block) {
    return block.GetShape().ToString(Vorq::kSizes);
  }
};

// ---- Lazy cells

TEST_F(DenseProducts, DoublesTimesVariablesKeepViewsOfRowAndVector) {
  auto const a = Numbers<2>({2, 3}, {1, 2, 3, 4, 5, 6});
  auto const x = MakeVars<1>({3});
  MLinExpr<1> const product = MatMult(a, x);
  EXPECT_EQ(ShapeOf(product), "(2)");
  for (std::uint64_t i = 0; i < 2; ++i) {
    MExpression const cell = product.Get(i);
    EXPECT_EQ(Terms(cell.expr), "0;");
    EXPECT_EQ(cell.scale, 1.0);
    EXPECT_EQ(cell.coeffs.Size(), 3U);
    EXPECT_EQ(cell.coeffs.Store(), a.Store());
    EXPECT_EQ(cell.vars.Size(), 3U);
    EXPECT_EQ(cell.vars.Store(), x.Cells().Store());
  }
  EXPECT_EQ(Expanded(product.Get(0)), "0; 1 x0, 2 x1, 3 x2");
  EXPECT_EQ(Expanded(product.Get(1)), "0; 4 x0, 5 x1, 6 x2");
}

TEST_F(DenseProducts, SumExpandsLazyCells) {
  auto const product = MatMult(Numbers<2>({2, 2}, {1, 2, 3, 4}), MakeVars<1>({2}));
  EXPECT_EQ(Terms(Vorq::Sum(product).Get(0).expr), "0; 1 x0, 2 x1, 3 x0, 4 x1");
}

TEST_F(DenseProducts, VariablesTimesDoublesTakeTheSwappedViews) {
  auto const a = Numbers<2>({2, 3}, {1, 2, 3, 4, 5, 6});
  auto const x = MakeVars<1>({2});
  MLinExpr<1> const product = MatMult(x, a);
  EXPECT_EQ(ShapeOf(product), "(3)");
  EXPECT_EQ(product.Get(1).coeffs.Store(), a.Store());
  EXPECT_EQ(product.Get(1).vars.Store(), x.Cells().Store());
  EXPECT_EQ(Expanded(product.Get(1)), "0; 2 x0, 5 x1");
}

TEST_F(DenseProducts, MatricesTakeRowsAndColumns) {
  auto const a = Numbers<2>({2, 3}, {1, 2, 3, 4, 5, 6});
  MLinExpr<2> const product = MatMult(a, MakeVars<2>({3, 2}));
  EXPECT_EQ(ShapeOf(product), "(2, 2)");
  EXPECT_EQ(Expanded(product.Get(0)), "0; 1 x0, 2 x2, 3 x4");
  EXPECT_EQ(Expanded(product.Get(1)), "0; 1 x1, 2 x3, 3 x5");
  EXPECT_EQ(Expanded(product.Get(2)), "0; 4 x0, 5 x2, 6 x4");
  EXPECT_EQ(Expanded(product.Get(3)), "0; 4 x1, 5 x3, 6 x5");
}

TEST_F(DenseProducts, LazyCellsSeeLaterChangesOfDoubles) {
  auto a = Numbers<1>({2}, {1, 2});
  MLinExpr<0> const product = MatMult(a, MakeVars<1>({2}));
  a.Set(1, 7.0);
  EXPECT_EQ(Expanded(product.Get(0)), "0; 1 x0, 7 x1");
}

TEST_F(DenseProducts, WholeNumbersAreConvertedOnce) {
  auto a = Whole<long long, 2>({2, 2}, {1, 2, 3, 4});
  auto const x = MakeVars<2>({2, 2});
  MLinExpr<2> const product = MatMult(a, x);
  a.Set(0, 9);
  EXPECT_EQ(Expanded(product.Get(1)), "0; 1 x1, 2 x3");
  EXPECT_EQ(product.Get(0).vars.Store(), x.Cells().Store());
  EXPECT_EQ(product.Get(0).coeffs.Store(), product.Get(3).coeffs.Store());
}

TEST_F(DenseProducts, IntsOnTheRightAreConvertedToo) {
  MLinExpr<1> const product = MatMult(MakeVars<1>({2}), Whole<int, 2>({2, 2}, {1, -2, 3, 4}).Transpose());
  EXPECT_EQ(Terms(product.Get(0).expr), "0;");
  EXPECT_EQ(Expanded(product.Get(0)), "0; 1 x0, -2 x1");
  EXPECT_EQ(Expanded(product.Get(1)), "0; 3 x0, 4 x1");
}

TEST_F(DenseProducts, VariablesTimesVariablesKeepBothSides) {
  auto const x = MakeVars<1>({3});
  auto const y = MakeVars<1>({3}, 10);
  MQuadExpr<0> const product = MatMult(x, y);
  MQExpression const cell = product.Get(0);
  EXPECT_EQ(cell.side1.kind, SideKind::kVars);
  EXPECT_EQ(cell.side2.kind, SideKind::kVars);
  EXPECT_EQ(cell.side1.vars.Store(), x.Cells().Store());
  EXPECT_EQ(cell.side2.vars.Store(), y.Cells().Store());
  EXPECT_EQ(cell.side1.lins.Size() + cell.side2.lins.Size(), 0U);
  EXPECT_EQ(Terms(cell.expr), "0; |");
  EXPECT_EQ(cell.GetConstant(), 0.0);
  EXPECT_EQ(Expanded(cell), "0; | 1 x0 x10, 1 x1 x11, 1 x2 x12");
}

TEST_F(DenseProducts, VariablesTimesCellsKeepBothSides) {
  auto const x = MakeVars<1>({2});
  auto const cells = MakeOperand<MExpression, 2>({2, 3}, 1);
  MQExpression const cell = MatMult(x, cells).Get(1);
  EXPECT_EQ(cell.side1.kind, SideKind::kVars);
  EXPECT_EQ(cell.side2.kind, SideKind::kLins);
  EXPECT_EQ(cell.side1.vars.Store(), x.Cells().Store());
  EXPECT_EQ(cell.side2.lins.Store(), cells.Cells().Store());
  EXPECT_EQ(cell.side2.lins.Size(), 2U);
  EXPECT_EQ(cell.side2.vars.Size(), 0U);
}

TEST_F(DenseProducts, CellsTimesVariablesKeepBothSides) {
  auto const x = MakeVars<1>({3});
  auto const cells = MakeOperand<MExpression, 2>({2, 3}, 1);
  MQExpression const cell = MatMult(cells, x).Get(1);
  EXPECT_EQ(cell.side1.kind, SideKind::kLins);
  EXPECT_EQ(cell.side2.kind, SideKind::kVars);
  EXPECT_EQ(cell.side1.lins.Store(), cells.Cells().Store());
  EXPECT_EQ(cell.side1.lins.Size(), 3U);
  EXPECT_EQ(cell.side2.vars.Store(), x.Cells().Store());
}

TEST_F(DenseProducts, CellsTimesCellsKeepBothSides) {
  MLinExpr<1> left(NDim<1>({2}), MExpression(3.0));
  MLinExpr<1> right(NDim<1>({2}), MExpression(5.0));
  MQExpression const cell = MatMult(left, right).Get(0);
  EXPECT_EQ(cell.side1.kind, SideKind::kLins);
  EXPECT_EQ(cell.side2.kind, SideKind::kLins);
  EXPECT_EQ(cell.side1.lins.Store(), left.Cells().Store());
  EXPECT_EQ(cell.side2.lins.Store(), right.Cells().Store());
  EXPECT_EQ(cell.GetConstant(), 30.0);
}

// ---- Explicit cells

TEST_F(DenseProducts, NumbersTimesCellsAddCellsInOrder) {
  MExpression first(4.0);
  first.AddTerm(MakeVar("a", 0), 2.0);
  MExpression const second = LazyCell({5.0, 6.0}, 1);
  auto const cells = MLinExpr<1>(
      NdArray<MExpression, 1>::Generated(NDim<1>({2}), [&](std::uint64_t i) { return i == 0 ? first : second; }));
  auto const a = Whole<int, 2>({2, 2}, {10, 1, 0, -1});
  EXPECT_EQ(Cells(MatMult(a, cells)), "[40; 20 a, 5 x1, 6 x2][0; -5 x1, -6 x2]");
  EXPECT_EQ(Cells(MatMult(cells, a)), "[40; 20 a, 0 x1, 0 x2][4; 2 a, -5 x1, -6 x2]");
}

TEST_F(DenseProducts, NumbersTimesQuadraticCellsAddCellsInOrder) {
  MQExpression first(1.0);
  first.AddTerm(MakeVar("a", 0), MakeVar("b", 1), 2.0);
  first.AddTerm(MakeVar("c", 2), 3.0);
  MQExpression const second(MakeVars<1>({2}).Cells(), MakeVars<1>({2}, 5).Cells());
  auto const cells = MQuadExpr<1>(
      NdArray<MQExpression, 1>::Generated(NDim<1>({2}), [&](std::uint64_t i) { return i == 0 ? first : second; }));
  MQuadExpr<0> const product = MatMult(cells, Whole<long long, 1>({2}, {2, 3}));
  EXPECT_EQ(Terms(product.Get(0).expr), "2; 6 c | 4 a b, 3 x0 x5, 3 x1 x6");
  // A factor of 0 drops all of a cell.
  EXPECT_EQ(Terms(MatMult(Numbers<1>({2}, {1, 0}), cells).Get(0).expr), "1; 3 c | 2 a b");
}

TEST_F(DenseProducts, NumbersTimesPsdCellsAddCellsInOrder) {
  auto const cells = MakeOperand<PsdExpr, 1>({2}, 0);
  PsdExpr const cell = MatMult(Numbers<1>({2}, {2.0, 0.0}), cells).Get(0);
  EXPECT_EQ(Terms(cell.linear), "2; 4 x0");
  // A factor of 0 keeps the PSD terms, with coefficients 0.
  ASSERT_EQ(cell.Size(), 3U);
  EXPECT_STREQ(cell.vars[0].GetName(), "X0");
  EXPECT_EQ(cell.coeffs[0].coeffs[0], 2.0);
  EXPECT_STREQ(cell.vars[2].GetName(), "X1");
  EXPECT_EQ(cell.coeffs[2].coeffs[0], 0.0);
}

TEST_F(DenseProducts, ExplicitResultSharesNoCell) {
  auto const cells = MakeOperand<MExpression, 1>({1}, 0);
  double const before = ValueOf(cells.Get(0));
  auto product = MatMult(cells, Numbers<1>({1}, {1.0}));
  product.ForEach([](MExpression& cell) { cell.AddConstant(100.0); });
  EXPECT_EQ(ValueOf(cells.Get(0)), before);
}

// ---- Numbers

TEST_F(DenseProducts, NumbersAreSummedInAscendingOrder) {
  auto const left = Numbers<1>({3}, {1e16, 1.0, -1e16});
  auto const ones = Numbers<1>({3}, {1.0, 1.0, 1.0});
  EXPECT_EQ(MatMult(left, ones).Get(0), 0.0);
  EXPECT_EQ(MatMult(Numbers<1>({3}, {1e16, -1e16, 1.0}), ones).Get(0), 1.0);
}

TEST_F(DenseProducts, WholeNumbersWrapAround) {
  auto const most = Whole<int, 1>({2}, {std::numeric_limits<int>::max(), 1});
  EXPECT_EQ(MatMult(most, Whole<int, 1>({2}, {1, 1})).Get(0), std::numeric_limits<int>::min());
}

TEST_F(DenseProducts, NumbersAreConvertedBeforeTheyAreMultiplied) {
  auto const wide = Whole<long long, 1>({1}, {3'000'000'000});
  EXPECT_EQ(MatMult(wide, Whole<int, 1>({1}, {3})).Get(0), 9'000'000'000);
  EXPECT_EQ(MatMult(Whole<int, 1>({1}, {2'000'000'000}), Numbers<1>({1}, {2.5})).Get(0), 5e9);
}

TEST_F(DenseProducts, LargeMatricesAreMultipliedLikeSmallOnes) {
  constexpr std::uint64_t kRows = 5, kInner = 150, kColumns = 300;
  auto const left = NdArray<double, 2>::Generated(NDim<2>({kRows, kInner}),
                                                  [](std::uint64_t i) { return static_cast<double>(i % 7); });
  auto const right = NdArray<int, 2>::Generated(NDim<2>({kColumns, kInner}), [](std::uint64_t i) {
                       return static_cast<int>(i % 11) - 5;
                     }).Transpose();
  std::vector<double> expected;
  for (std::uint64_t i = 0; i < kRows; ++i) {
    for (std::uint64_t j = 0; j < kColumns; ++j) {
      double sum = 0.0;
      for (std::uint64_t k = 0; k < kInner; ++k) sum += left.Get(i * kInner + k) * right.Get(k * kColumns + j);
      expected.push_back(sum);
    }
  }
  EXPECT_EQ(Elements(MatMult(left, right)), expected);
}

TEST_F(DenseProducts, ColumnIsMultipliedLikeAMatrixOfOneColumn) {
  auto const a = Numbers<2>({3, 2}, {1, 2, 3, 4, 5, 6});
  EXPECT_EQ(Elements(MatMult(a, Numbers<1>({2}, {10, 1}))), (std::vector<double>{12, 34, 56}));
  auto const product = MatMult(a, Numbers<2>({2, 1}, {10, 1}));
  EXPECT_EQ(ShapeOf(product), "(3, 1)");
  EXPECT_EQ(Elements(product), (std::vector<double>{12, 34, 56}));
}

TEST_F(DenseProducts, NumbersWithoutAStoreReadAsZero) {
  NdArray<double, 2> const nothing(NDim<2>({2, 2}), {});
  EXPECT_EQ(Expanded(MatMult(nothing, MakeVars<1>({2})).Get(1)), "0; 0 x0, 0 x1");
  EXPECT_EQ(Elements(MatMult(nothing, Numbers<1>({2}, {1, 1}))), (std::vector<double>{0, 0}));
  EXPECT_EQ(Expanded(MatMult(MakeVars<1>({2}), NdArray<long long, 2>(NDim<2>({2, 2}), {})).Get(0)), "0; 0 x0, 0 x1");
}

// ---- Sizes

TEST_F(DenseProducts, MismatchTellsTheAxisOfTheLeftOperand) {
  auto const x = MakeVars<1>({2});
  auto const block = MakeVars<2>({2, 3});
  auto const vector = Numbers<1>({3}, {1, 1, 1});
  auto const matrix = Numbers<2>({2, 3}, {1, 1, 1, 1, 1, 1});
  EXPECT_STREQ(MatMult(vector, x).GetErrorMessage(), "(INVALID) Operand 1 has a mismatch at axis 0, size 3 != 2");
  EXPECT_STREQ(MatMult(vector, block).GetErrorMessage(), "(INVALID) Operand 1 has a mismatch at axis 0, size 3 != 2");
  EXPECT_STREQ(MatMult(matrix, x).GetErrorMessage(), "(INVALID) Operand 1 has a mismatch at axis 1, size 3 != 2");
  EXPECT_STREQ(MatMult(matrix, block).GetErrorMessage(), "(INVALID) Operand 1 has a mismatch at axis 1, size 3 != 2");
}

TEST_F(DenseProducts, FailedProductHasOneDefaultCell) {
  auto const product = MatMult(Numbers<2>({2, 3}, {1, 1, 1, 1, 1, 1}), MakeVars<2>({2, 2}));
  EXPECT_EQ(product.GetLastError(), 3);
  EXPECT_EQ(ShapeOf(product), "(1, 1)");
  EXPECT_EQ(Terms(product.Get(0).expr), "0;");
  EXPECT_EQ(product.Get(0).LazySize(), 0U);
}

TEST_F(DenseProducts, FailedOperandIsMultipliedAsItIs) {
  auto const failed = MatMult(Numbers<1>({3}, {1, 1, 1}), MakeVars<2>({2, 2}));
  ASSERT_EQ(failed.GetLastError(), 3);
  auto const product = MatMult(failed, Numbers<1>({1}, {2.0}));
  EXPECT_EQ(product.GetLastError(), 0);
  EXPECT_EQ(product.GetErrorMessage(), nullptr);
}

TEST_F(DenseProducts, EmptyInnerSizeGivesCellsWithoutTerms) {
  auto const product = MatMult(Numbers<2>({2, 0}, {}), MakeVars<2>({0, 3}));
  EXPECT_EQ(product.GetLastError(), 0);
  EXPECT_EQ(ShapeOf(product), "(2, 3)");
  EXPECT_EQ(Expanded(product.Get(5)), "0;");
  EXPECT_EQ(Expanded(MatMult(MakeVars<1>({0}), MakeVars<1>({0})).Get(0)), "0; |");
  EXPECT_EQ(MatMult(Numbers<1>({0}, {}), Numbers<1>({0}, {})).Get(0), 0.0);
  EXPECT_EQ(Elements(MatMult(Numbers<2>({2, 0}, {}), Whole<int, 1>({0}, {}))), (std::vector<double>{0, 0}));
  EXPECT_EQ(Expanded(MatMult(Whole<int, 2>({2, 0}, {}), MakeVars<1>({0})).Get(1)), "0;");
}

TEST_F(DenseProducts, EmptyOuterSizeGivesAnEmptyResult) {
  auto const product = MatMult(Numbers<2>({0, 3}, {}), MakeVars<2>({3, 2}));
  EXPECT_EQ(product.GetLastError(), 0);
  EXPECT_EQ(ShapeOf(product), "(0, 2)");
  EXPECT_EQ(ShapeOf(MatMult(MakeVars<2>({2, 3}), Numbers<2>({3, 0}, {}))), "(2, 0)");
  EXPECT_EQ(ShapeOf(MatMult(Numbers<2>({0, 3}, {}), Whole<int, 1>({3}, {1, 1, 1}))), "(0)");
  EXPECT_EQ(ShapeOf(MatMult(Whole<int, 2>({0, 3}, {}), MakeVars<1>({3}))), "(0)");
}

// ---- Arrays of variables

TEST_F(DenseProducts, NumbersTimesArrayOfVariables) {
  VarArray const vars = MakeItems<Var>(2);
  EXPECT_EQ(Expanded(MatMult(Numbers<1>({2}, {1, 2}), vars).Get(0)), "0; 1 x0, 2 x1");
  EXPECT_EQ(Expanded(MatMult(Numbers<2>({2, 2}, {1, 2, 3, 4}), vars).Get(1)), "0; 3 x0, 4 x1");
  EXPECT_EQ(Expanded(MatMult(Whole<long long, 1>({2}, {1, 2}), vars).Get(0)), "0; 1 x0, 2 x1");
  EXPECT_EQ(Expanded(MatMult(Whole<long long, 2>({1, 2}, {1, 2}), vars).Get(0)), "0; 1 x0, 2 x1");
  EXPECT_EQ(Expanded(MatMult(Whole<int, 1>({2}, {1, 2}), vars).Get(0)), "0; 1 x0, 2 x1");
  EXPECT_EQ(Expanded(MatMult(Whole<int, 2>({1, 2}, {1, 2}), vars).Get(0)), "0; 1 x0, 2 x1");
}

TEST_F(DenseProducts, ArrayOfVariablesTimesNumbers) {
  VarArray const vars = MakeItems<Var>(2);
  EXPECT_EQ(Expanded(MatMult(vars, Numbers<1>({2}, {1, 2})).Get(0)), "0; 1 x0, 2 x1");
  EXPECT_EQ(Expanded(MatMult(vars, Numbers<2>({2, 2}, {1, 2, 3, 4})).Get(1)), "0; 2 x0, 4 x1");
  EXPECT_EQ(Expanded(MatMult(vars, Whole<long long, 1>({2}, {1, 2})).Get(0)), "0; 1 x0, 2 x1");
  EXPECT_EQ(Expanded(MatMult(vars, Whole<long long, 2>({2, 2}, {1, 2, 3, 4})).Get(1)), "0; 2 x0, 4 x1");
}

TEST_F(DenseProducts, ArrayOfVariablesMustHaveTheSizeOfTheNumbers) {
  VarArray const vars = MakeItems<Var>(2);
  EXPECT_STREQ(MatMult(Numbers<2>({1, 3}, {1, 2, 3}), vars).GetErrorMessage(),
               "(INVALID) Operand 1 has a mismatch at axis 1, size 3 != 2");
  EXPECT_STREQ(MatMult(vars, Numbers<1>({3}, {1, 2, 3})).GetErrorMessage(),
               "(INVALID) Operand 1 has a mismatch at axis 0, size 2 != 3");
  EXPECT_STREQ(MatMult(vars, Whole<int, 1>({3}, {1, 2, 3})).GetErrorMessage(),
               "(INVALID) Operand 1 has a mismatch at axis 0, size 2 != 3");
  EXPECT_STREQ(MatMult(vars, Whole<int, 2>({3, 1}, {1, 2, 3})).GetErrorMessage(),
               "(INVALID) Operand 1 has a mismatch at axis 0, size 2 != 3");
}

TEST_F(DenseProducts, ArrayOfVariablesIsCopied) {
  VarArray vars = MakeItems<Var>(1);
  auto const product = MatMult(Numbers<1>({1}, {3.0}), vars);
  vars[0] = MakeVar("other", 7);
  EXPECT_EQ(Expanded(product.Get(0)), "0; 3 x0");
}

// The factors of the lazy terms of a cell.
std::vector<double> Factors(MExpression const& cell) {
  std::vector<double> factors;
  cell.ForEachLazyTerm([&](Var const&, double factor) { factors.push_back(factor); });
  return factors;
}

TEST_F(DenseProducts, ArrayOfVariablesReadsAVectorOfIntsAsLongLong) {
  std::vector<int> const ints = {1, 2, 3, 4};
  long long pairs[2];
  std::memcpy(pairs, ints.data(), sizeof pairs);
  // The second half lies beyond the memory.
  EXPECT_EQ(Factors(MatMult(MakeItems<Var>(4), Whole<int, 1>({4}, ints)).Get(0)),
            (std::vector<double>{static_cast<double>(pairs[0]), static_cast<double>(pairs[1]), 0.0, 0.0}));
}

TEST_F(DenseProducts, ArrayOfVariablesReadsAMatrixOfIntsAsDouble) {
  std::vector<double> const doubles = {2.5, -7.0, 11.25};
  std::vector<int> ints(6);
  std::memcpy(ints.data(), doubles.data(), 6 * sizeof(int));
  MLinExpr<1> const product = MatMult(MakeItems<Var>(3), Whole<int, 2>({3, 2}, ints));
  // Elements 0 to 2 of six in row-major order, then nothing.
  EXPECT_EQ(Factors(product.Get(0)), (std::vector<double>{2.5, 11.25, 0.0}));
  EXPECT_EQ(Factors(product.Get(1)), (std::vector<double>{-7.0, 0.0, 0.0}));
}

TEST_F(DenseProducts, ArrayOfVariablesReadsAViewOfIntsByItsStrides) {
  std::vector<double> const doubles = {1.5, 2.5, 3.5, 4.5};
  std::vector<int> ints(8);
  std::memcpy(ints.data(), doubles.data(), 8 * sizeof(int));
  auto const whole = Whole<int, 2>({2, 4}, ints);
  Vorq::View view;
  view.Full();
  view.Slice(1, 3, 2, 0);
  // Positions 1 and 5 of the ints are positions 1 and 5 of the doubles, of which there are four.
  EXPECT_EQ(Factors(MatMult(MakeItems<Var>(2), whole.View(view)).Get(0)), (std::vector<double>{2.5, 0.0}));
}

TEST_F(DenseProducts, ArrayOfVariablesReadsForeignIntsUpToTheirLastOne) {
  int ints[5] = {1, 0, 2, 0, 3};
  NdArray<int, 1> const borrowed(NDim<1>({5}), Vorq::SharedPtr<int>(ints, 0));
  // The last int is half an element.
  EXPECT_EQ(Factors(MatMult(MakeItems<Var>(5), borrowed).Get(0)), (std::vector<double>{1.0, 2.0, 0.0, 0.0, 0.0}));
}

TEST_F(DenseProducts, ArrayOfVariablesReadsIntsWithoutAStoreAsZero) {
  EXPECT_EQ(Factors(MatMult(MakeItems<Var>(2), NdArray<int, 1>(NDim<1>({2}), {})).Get(0)),
            (std::vector<double>{0.0, 0.0}));
}

}  // namespace
}  // namespace vorqtest
