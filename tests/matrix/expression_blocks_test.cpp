// Blocks of expressions: copies, sums and operations in place.
#include <limits>

#include "tests/matrix/matrix_fixture.hpp"
#include "tests/ndarray/arrays.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MPsdExpr;
using Vorq::MQExpression;
using Vorq::MQuadExpr;
using Vorq::MVar;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::PsdExpr;

class ExpressionBlocksTest : public MatrixTest {
 protected:
  // Cells of constants 0, 1, 2, ... in flat order.
  template <class Cell, int N>
  static Vorq::MatrixObject<Cell, N> Counting(Sizes<N> const& sizes) {
    return Vorq::MatrixObject<Cell, N>(
        NdArray<Cell, N>::Generated(NDim<N>(sizes), [](std::uint64_t i) { return Cell(static_cast<double>(i)); }));
  }

  template <class Cell, int N>
  static std::vector<double> Constants(Vorq::MatrixObject<Cell, N> const& block) {
    return Elements(block.template Read<double>([](Cell& cell) { return LinearPart(cell).constant; }));
  }
};

TEST_F(ExpressionBlocksTest, AllCellsOfANewBlockSharePrototypesVectors) {
  MLinExpr<2> const block(NDim<2>({2, 2}), LazyCell({3, 4}));
  for (std::uint64_t i = 1; i < 4; ++i) EXPECT_EQ(block.Get(i).vars.Store(), block.Get(0).vars.Store());
  EXPECT_EQ(block.ToString(1000),
            "[[0 + 3 * x0 + 4 * x1, 0 + 3 * x0 + 4 * x1]\n [0 + 3 * x0 + 4 * x1, 0 + 3 * x0 + 4 * x1]\n]\n");
}

TEST_F(ExpressionBlocksTest, ACellThatWasReadIsACopy) {
  auto block = Counting<MExpression, 1>({2});
  MExpression cell = block.Get(1);
  cell.AddConstant(10.0);
  EXPECT_THAT(Constants(block), ElementsAre(0, 1));
  block.Set(1, cell);
  EXPECT_THAT(Constants(block), ElementsAre(0, 11));
}

TEST_F(ExpressionBlocksTest, SettingALazyCellKeepsItsVectors) {
  MQuadExpr<1> block(NDim<1>({2}), MQExpression());
  MQExpression const lazy(MakeVars<1>({2}).Cells(), MakeVars<1>({2}).Cells());
  block.Set(0, lazy);
  EXPECT_EQ(block.Get(0).side1.vars.Store(), lazy.side1.vars.Store());
  EXPECT_EQ(block.ToString(1000), "[0 + x0 * x0 + x1 * x1, 0]\n");
}

TEST_F(ExpressionBlocksTest, CloneOfATransposedBlockIsCompactAndIndependent) {
  auto block = Counting<MExpression, 2>({2, 3});
  auto clone = block.Transpose().Clone();
  EXPECT_EQ(clone.GetShape().ToString(0), "(3, 2)");
  EXPECT_EQ(clone.GetShape().ToString(1), "(2, 1)");
  EXPECT_THAT(Constants(clone), ElementsAre(0, 3, 1, 4, 2, 5));
  clone.ForEach([](MExpression& cell) { cell.AddConstant(10.0); });
  EXPECT_THAT(Constants(block), ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(ExpressionBlocksTest, ClonedCellsShareTheirVectors) {
  MLinExpr<1> const block(NDim<1>({1}), LazyCell({3, 4}));
  EXPECT_EQ(block.Clone().Get(0).coeffs.Store(), block.Get(0).coeffs.Store());
}

TEST_F(ExpressionBlocksTest, AChangeInPlaceIsSeenThroughAllViews) {
  auto block = Counting<MExpression, 2>({2, 2});
  Vorq::View column;
  column.Full();
  column.Scalar(1);
  block.Transpose().View(column).ForEach([](MExpression& cell) { cell.Multiply(10.0); });
  EXPECT_THAT(Constants(block), ElementsAre(0, 1, 20, 30));
}

TEST_F(ExpressionBlocksTest, ARepeatedCellIsChangedAsOftenAsTheShapeRepeatsIt) {
  auto const block = Counting<MExpression, 1>({1});
  MLinExpr<1> stretched(arrays::Stretched(block.Cells(), NDim<1>({3})));
  stretched.ForEach([](MExpression& cell) { cell.AddConstant(1.0); });
  EXPECT_THAT(Constants(block), ElementsAre(3));
  stretched.AddConstants(Numbers<1>({3}, {10, 20, 30}));
  EXPECT_THAT(Constants(block), ElementsAre(63));
}

TEST_F(ExpressionBlocksTest, SumMakesAllTermsExplicit) {
  MLinExpr<1> block(NDim<1>({2}), LazyCell({3, 4}));
  block.ForEach([](MExpression& cell) { cell.AddConstant(0.5); });
  MExpression const sum = Sum(block).Get(0);
  EXPECT_EQ(Terms(sum.expr), "1; 3 x0, 4 x1, 3 x0, 4 x1");
  EXPECT_EQ(sum.LazySize(), 0u);
}

TEST_F(ExpressionBlocksTest, SumOfQuadraticCellsMakesProductsExplicit) {
  MQExpression cell(MakeVars<1>({2}, 0).Cells(), MakeVars<1>({2}, 2).Cells());
  cell.AddConstant(0.5);
  MQExpression const sum = Sum(MQuadExpr<1>(NDim<1>({2}), cell)).Get(0);
  EXPECT_EQ(Terms(sum.expr), "1; | 1 x0 x2, 1 x1 x3, 1 x0 x2, 1 x1 x3");
  EXPECT_EQ(sum.side1.kind, Vorq::SideKind::kNone);
}

TEST_F(ExpressionBlocksTest, SumOfPsdCellsListsAllTerms) {
  PsdExpr cell(MakePsdVar("X", 0, 2), MakeMatrix(0, 2));
  cell.linear.AddTerm(MakeVar("x", 0), 3.0);
  PsdExpr const sum = Sum(MPsdExpr<1>(NDim<1>({2}), cell)).Get(0);
  EXPECT_EQ(Terms(sum.linear), "0; 3 x, 3 x");
  EXPECT_EQ(sum.Size(), 2u);
}

TEST_F(ExpressionBlocksTest, SumOfAnEmptyBlockIsZero) {
  EXPECT_EQ(Sum(MLinExpr<1>()).Get(0).ToString(10), "0");
  EXPECT_EQ(Sum(MQuadExpr<2>()).Get(0).ToString(10), "0");
  EXPECT_EQ(Sum(MPsdExpr<3>()).ToString(10), "0");
}

TEST_F(ExpressionBlocksTest, ConstantsOfEachNumberTypeAreAddedByFlatIndex) {
  auto block = Counting<MQExpression, 2>({2, 2});
  block.AddConstants(Numbers<2>({2, 2}, {0.5, 1.5, 2.5, 3.5}).Transpose());
  EXPECT_THAT(Constants(block), ElementsAre(0.5, 3.5, 3.5, 6.5));
  block.AddConstants(NdArray<int, 2>::Filled(NDim<2>({2, 2}), -3));
  block.AddConstants(NdArray<long long, 2>::Filled(NDim<2>({2, 2}), 4LL));
  EXPECT_THAT(Constants(block), ElementsAre(1.5, 4.5, 4.5, 7.5));
}

TEST_F(ExpressionBlocksTest, ConstantsAreSubtractedByFlatIndex) {
  auto block = Counting<PsdExpr, 1>({2});
  block.SubConstants(Numbers<1>({2}, {0.5, -0.5}));
  block.SubConstants(NdArray<int, 1>::Filled(NDim<1>({2}), 2));
  EXPECT_THAT(Constants(block), ElementsAre(-2.5, -0.5));
}

TEST_F(ExpressionBlocksTest, SubtractingZeroLeavesNoNegativeZero) {
  auto block = Counting<MExpression, 1>({1});
  block.SubConstants(Numbers<1>({1}, {0.0}));
  EXPECT_FALSE(std::signbit(block.Get(0).GetConstant()));
}

TEST_F(ExpressionBlocksTest, TheMostNegativeWholeNumbersStayAsTheyAre) {
  auto block = Counting<MExpression, 1>({1});
  block.SubConstants(NdArray<int, 1>::Filled(NDim<1>({1}), std::numeric_limits<int>::min()));
  EXPECT_EQ(block.Get(0).GetConstant(), -2147483648.0);
  block.SubConstants(NdArray<long long, 1>::Filled(NDim<1>({1}), std::numeric_limits<long long>::min()));
  EXPECT_EQ(block.Get(0).GetConstant(), -2147483648.0 - 9223372036854775808.0);
}

TEST_F(ExpressionBlocksTest, SizesAreNotComparedInPlace) {
  auto block = Counting<MExpression, 1>({3});
  block.AddConstants(Numbers<1>({2}, {10, 20}));
  EXPECT_THAT(Constants(block), ElementsAre(10, 21, 2));
}

TEST_F(ExpressionBlocksTest, BlocksAreAddedCellByCell) {
  MLinExpr<2> block(NDim<2>({2, 2}), MExpression(1.0));
  block.AddBlock(MakeVars<2>({2, 2}).Transpose(), 2.0);
  block.AddBlock(MLinExpr<2>(NDim<2>({2, 2}), LazyCell({5}, 9)), 3.0);
  EXPECT_EQ(Terms(block.Get(1).expr), "1; 2 x2, 15 x9");
}

TEST_F(ExpressionBlocksTest, ABlockCanBeAddedToItself) {
  auto block = Counting<MExpression, 1>({3});
  block.AddBlock(block, 1.0);
  EXPECT_THAT(Constants(block), ElementsAre(0, 2, 4));
}

TEST_F(ExpressionBlocksTest, PsdCellsTakeOverLinearCellsExplicitly) {
  MPsdExpr<1> block(NDim<1>({1}), PsdExpr(1.0));
  block.AddBlock(MLinExpr<1>(NDim<1>({1}), LazyCell({3, 0})), 2.0);
  EXPECT_EQ(Terms(block.Get(0).linear), "1; 6 x0, 0 x1");
}

TEST_F(ExpressionBlocksTest, TextsAreThoseOfTheCells) {
  EXPECT_EQ((Counting<MExpression, 0>({}).ToString(0)), "0");
  EXPECT_EQ((Counting<MExpression, 1>({3}).ToString(1000)), "[0, 1, 2]\n");
  EXPECT_EQ((Counting<MQExpression, 2>({1, 2}).ToString(1000)), "[[0, 1]\n]\n");
  EXPECT_EQ((Counting<PsdExpr, 1>({2}).ToString(4)), "[0, ...");
  PsdExpr cell(MakePsdVar("X", 0, 2), MakeMatrix(0, 2));
  EXPECT_EQ(MPsdExpr<0>(NDim<0>(), cell).ToString(0), Print(cell));
}

TEST_F(ExpressionBlocksTest, CopiesOfPsdCellsAreIndependent) {
  MPsdExpr<1> const block(NDim<1>({1}), PsdExpr(MakePsdVar("X", 0, 2), MakeMatrix(0, 2)));
  auto repeated = block.Repeat(2, 0);
  repeated.ForEach([](PsdExpr& cell) { cell.Multiply(3.0); });
  EXPECT_EQ(block.Get(0).coeffs[0].coeffs[0], 1.0);
  EXPECT_EQ(repeated.Get(1).coeffs[0].coeffs[0], 3.0);
}

}  // namespace
}  // namespace vorqtest
