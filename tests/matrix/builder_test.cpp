// Builders of blocks of constraints.
#include "matrix/matrix_constr_builder.hpp"

#include <limits>

#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::MConstrBuilder;
using Vorq::MExpression;
using Vorq::MLinExpr;
using Vorq::MPsdConstrBuilder;
using Vorq::MPsdExpr;
using Vorq::MQConstrBuilder;
using Vorq::MQExpression;
using Vorq::MQuadExpr;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::PsdExpr;

class MatrixBuilderTest : public MatrixTest {
 protected:
  template <int N>
  static MLinExpr<N> Constant(Sizes<N> const& sizes, double constant) {
    return MLinExpr<N>(NDim<N>(sizes), MExpression(constant));
  }
  template <class Cell, int N>
  static std::vector<double> Constants(Vorq::MatrixObject<Cell, N> const& block) {
    return Elements(block.template Read<double>([](Cell& cell) { return LinearPart(cell).constant; }));
  }
};

TEST_F(MatrixBuilderTest, ANewBuilderHasZeroCellsAndNoSense) {
  MConstrBuilder<2> const builder(NDim<2>({2, 3}));
  EXPECT_EQ(builder.expr.GetShape().ToString(0), "(2, 3)");
  EXPECT_THAT(Constants(builder.expr), ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_EQ(std::string("EGLNR").find(builder.sense), std::string::npos);
  EXPECT_FALSE(builder.isRange);
  EXPECT_EQ(builder.status.Code(), 0);
}

TEST_F(MatrixBuilderTest, TheRightSideIsFoldedIntoCopiesOfTheCells) {
  auto const lhs = Constant<1>({2}, 1.0);
  MConstrBuilder<1> builder(NDim<1>({2}));
  builder.Set(lhs, 'L', 3.0);
  EXPECT_THAT(Constants(builder.expr), ElementsAre(-2, -2));
  EXPECT_THAT(Constants(lhs), ElementsAre(1, 1));
  EXPECT_EQ(builder.sense, 'L');
}

TEST_F(MatrixBuilderTest, TheExpressionIsCompactInTheOrderOfTheLeftSide) {
  MLinExpr<2> const lhs(NdArray<MExpression, 2>::Generated(
      NDim<2>({2, 2}), [](std::uint64_t i) { return MExpression(static_cast<double>(i)); }));
  MConstrBuilder<2> builder;
  builder.Set(lhs.Transpose(), 'E', 0.0);
  EXPECT_EQ(builder.expr.GetShape().ToString(1), "(2, 1)");
  EXPECT_THAT(Constants(builder.expr), ElementsAre(0, 2, 1, 3));
}

TEST_F(MatrixBuilderTest, LazyPartsStayLazyAndShared) {
  MLinExpr<1> const lhs(NDim<1>({1}), LazyCell({3, 4}));
  MConstrBuilder<1> builder;
  builder.Set(lhs, 'G', 1.0);
  EXPECT_EQ(builder.expr.Get(0).vars.Store(), lhs.Get(0).vars.Store());
}

TEST_F(MatrixBuilderTest, ArraysOfEachNumberTypeAreFoldedByFlatIndex) {
  auto const lhs = Constant<2>({2, 2}, 1.0);
  MConstrBuilder<2> builder;
  builder.Set(lhs, 'L', Numbers<2>({2, 2}, {1, 2, 3, 4}).Transpose());
  EXPECT_THAT(Constants(builder.expr), ElementsAre(0, -2, -1, -3));
  builder.Set(lhs, 'L', NdArray<int, 2>::Filled(NDim<2>({2, 2}), 5));
  EXPECT_THAT(Constants(builder.expr), ElementsAre(-4, -4, -4, -4));
  builder.Set(lhs, 'L', NdArray<long long, 2>::Filled(NDim<2>({2, 2}), std::numeric_limits<long long>::min()));
  EXPECT_EQ(builder.expr.Get(0).GetConstant(), 1.0 - 9223372036854775808.0);
}

TEST_F(MatrixBuilderTest, AnArrayOfAnotherSizeIsNotRefused) {
  MConstrBuilder<1> builder;
  builder.Set(Constant<1>({3}, 0.0), 'L', Numbers<1>({2}, {1, 2}));
  EXPECT_THAT(Constants(builder.expr), ElementsAre(-1, -2, 0));
  EXPECT_EQ(builder.expr.GetLastError(), 0);
}

TEST_F(MatrixBuilderTest, ABlockOnTheRightIsStretchedAndSubtracted) {
  MConstrBuilder<2> builder;
  builder.Set(Constant<2>({2, 3}, 4.0), 'E', MakeVars<1>({3}));
  EXPECT_EQ(builder.expr.GetShape().ToString(0), "(2, 3)");
  EXPECT_EQ(Terms(builder.expr.Get(4).expr), "4; -1 x1");
  EXPECT_EQ(builder.sense, 'E');
  builder.Set(Constant<2>({2, 3}, 4.0), 'G', Constant<0>({}, 1.0));
  EXPECT_THAT(Constants(builder.expr), ElementsAre(3, 3, 3, 3, 3, 3));
}

TEST_F(MatrixBuilderTest, ALeftSideIsStretchedWithinItsRank) {
  MConstrBuilder<2> builder;
  builder.Set(Constant<2>({1, 3}, 4.0), 'E', MakeVars<2>({2, 1}));
  EXPECT_EQ(builder.expr.GetShape().ToString(0), "(2, 3)");
}

TEST_F(MatrixBuilderTest, ABlockThatDoesNotFitFailsInTheExpression) {
  MConstrBuilder<2> builder;
  builder.Set(Constant<2>({2, 3}, 4.0), 'E', MakeVars<1>({2}));
  EXPECT_EQ(builder.expr.GetSize(), 1u);
  EXPECT_EQ(Report(builder.expr.GetStatus()),
            "3 (INVALID) (INVALID) Operand 1 of shape (2, 3) is not compatible with Operand 2 of shape (2)");
  EXPECT_EQ(builder.status.Code(), 0);
  EXPECT_EQ(builder.sense, 'E');
}

TEST_F(MatrixBuilderTest, ABlockOfAHigherRankAlwaysFails) {
  MConstrBuilder<1> builder;
  builder.Set(Constant<1>({3}, 4.0), 'E', MakeVars<2>({1, 3}));
  EXPECT_EQ(builder.expr.GetShape().ToString(0), "(1)");
  EXPECT_EQ(Report(builder.expr.GetStatus()),
            "3 (INVALID) (INVALID) Cannot cast 1-dimensional shape and 2-dimensional shape to 1-dimension");
}

TEST_F(MatrixBuilderTest, AQuadraticBuilderSubtractsBlocksOfEachKind) {
  MQuadExpr<1> const lhs(NDim<1>({2}), MQExpression(4.0));
  MQConstrBuilder<1> builder;
  builder.Set(lhs, 'L', 1.0);
  EXPECT_THAT(Constants(builder.expr), ElementsAre(3, 3));
  builder.Set(lhs, 'L', MakeVars<1>({2}));
  EXPECT_EQ(Terms(builder.expr.Get(1).expr), "4; -1 x1 |");
  builder.Set(lhs, 'L', MLinExpr<0>(NDim<0>(), LazyCell({5})));
  EXPECT_EQ(Terms(builder.expr.Get(1).expr), "4; -5 x0 |");
  builder.Set(lhs, 'L', MQuadExpr<0>(NDim<0>(), MQExpression(MakeVars<1>({1}).Cells(), MakeVars<1>({1}, 7).Cells())));
  EXPECT_EQ(Terms(builder.expr.Get(1).expr), "4; | -1 x0 x7");
}

TEST_F(MatrixBuilderTest, APsdBuilderSubtractsBlocksOfEachKind) {
  MPsdExpr<1> const lhs(NDim<1>({2}), PsdExpr(4.0));
  MPsdConstrBuilder<1> builder;
  builder.Set(lhs, 'L', NdArray<int, 1>::Filled(NDim<1>({2}), 1));
  EXPECT_THAT(Constants(builder.expr), ElementsAre(3, 3));
  builder.Set(lhs, 'L', MakeVars<1>({2}));
  EXPECT_EQ(Terms(builder.expr.Get(1).linear), "4; -1 x1");
  builder.Set(lhs, 'L', MLinExpr<0>(NDim<0>(), LazyCell({5})));
  EXPECT_EQ(Terms(builder.expr.Get(1).linear), "4; -5 x0");
  builder.Set(lhs, 'L', MPsdExpr<1>(NDim<1>({2}), PsdExpr(MakePsdVar("X", 0, 2), MakeMatrix(0, 2))));
  EXPECT_EQ(builder.expr.Get(0).coeffs[0].coeffs[0], -1.0);
}

TEST_F(MatrixBuilderTest, ARangeKeepsTheConstants) {
  MConstrBuilder<1> builder;
  builder.SetRange(Constant<1>({2}, 1.5), 7.0);
  EXPECT_THAT(Constants(builder.expr), ElementsAre(1.5, 1.5));
  EXPECT_EQ(builder.sense, 'R');
  EXPECT_EQ(builder.range, 7.0);
  EXPECT_TRUE(builder.isRange);
}

TEST_F(MatrixBuilderTest, EachSetReplacesARange) {
  auto const lhs = Constant<1>({2}, 1.5);
  MConstrBuilder<1> builder;
  builder.SetRange(lhs, 7.0);
  builder.Set(lhs, 'R', 1.0);  // a letter is stored as it is
  EXPECT_EQ(builder.sense, 'R');
  EXPECT_EQ(builder.range, 0.0);
  EXPECT_FALSE(builder.isRange);
  builder.SetRange(lhs, 7.0);
  builder.Set(lhs, 'E', MakeVars<1>({2}));
  EXPECT_FALSE(builder.isRange);
  EXPECT_EQ(builder.range, 0.0);
}

TEST_F(MatrixBuilderTest, ABuilderCanBeSetFromItsOwnExpression) {
  MConstrBuilder<1> builder;
  builder.Set(Constant<1>({2}, 1.0), 'L', 3.0);
  MLinExpr<1> const shared = builder.expr;
  builder.Set(shared, 'G', 1.0);
  EXPECT_THAT(Constants(builder.expr), ElementsAre(-3, -3));
  builder.Set(builder.expr, 'G', 1.0);
  EXPECT_THAT(Constants(builder.expr), ElementsAre(-4, -4));
}

TEST_F(MatrixBuilderTest, FlattenCopiesCellsSenseAndRange) {
  MConstrBuilder<2> builder;
  builder.Set(Constant<2>({2, 2}, 1.0), 'G', 3.0);
  auto flat = builder.Flatten();
  EXPECT_EQ(flat.expr.GetShape().ToString(0), "(4)");
  EXPECT_EQ(flat.sense, 'G');
  EXPECT_FALSE(flat.isRange);
  flat.expr.ForEach([](MExpression& cell) { cell.AddConstant(10.0); });
  EXPECT_THAT(Constants(builder.expr), ElementsAre(-2, -2, -2, -2));
  builder.SetRange(Constant<2>({1, 2}, 1.0), 5.0);
  EXPECT_EQ(builder.Flatten().range, 5.0);
  EXPECT_TRUE(builder.Flatten().isRange);
}

TEST_F(MatrixBuilderTest, FlattenOfRankZeroHasOneCell) {
  MConstrBuilder<0> builder;
  builder.Set(Constant<0>({}, 1.0), 'E', 0.0);
  EXPECT_EQ(builder.Flatten().expr.GetShape().ToString(0), "(1)");
  EXPECT_THAT(Constants(builder.Flatten().expr), ElementsAre(1));
}

TEST_F(MatrixBuilderTest, ScalarBuildersHoldAllTermsExplicitly) {
  MExpression cell = LazyCell({3, 0});
  cell.AddConstant(1.0);
  MConstrBuilder<2> builder;
  builder.Set(MLinExpr<2>(NDim<2>({1, 2}), cell), 'G', 5.0);
  auto const builders = Vorq::ToConstrBuilderArray(builder);
  ASSERT_EQ(builders.size(), 2u);
  EXPECT_EQ(Terms(builders[1].expr), "-4; 3 x0, 0 x1");
  EXPECT_EQ(builders[1].sense, 'G');
}

TEST_F(MatrixBuilderTest, ScalarBuildersAllHaveTheRange) {
  MConstrBuilder<1> builder;
  builder.SetRange(Constant<1>({2}, 1.5), 7.0);
  for (Vorq::ConstrBuilder const& single : Vorq::ToConstrBuilderArray(builder)) {
    EXPECT_EQ(single.sense, 'R');
    EXPECT_EQ(single.range, 7.0);
    EXPECT_EQ(single.expr.constant, 1.5);
  }
}

}  // namespace
}  // namespace vorqtest
