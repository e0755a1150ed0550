// The operators on blocks: stretched, failed and empty operands, and the ranks that a builder keeps.
#include "matrix/operators_kernel.hpp"
#include "tests/operators/operand_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::Add;
using Vorq::MExpression;
using Vorq::Mul;
using Vorq::NDim;
using Vorq::Sub;

class Stretching : public OperandTest {
 protected:
  // The terms of all cells, one behind the other.
  template <int N>
  static std::string Cells(Vorq::MLinExpr<N> const& block) {
    std::string text;
    block.Cells().ForEach([&](MExpression const& cell) { text += "[" + Terms(cell.expr) + "]"; });
    return text;
  }
};

TEST_F(Stretching, RowStretchesOverAllRows) {
  auto const row = MakeVars<1>({3});
  auto const block = MakeOperand<MExpression, 2>({2, 3}, 0);
  auto const sum = Add(row, block);
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(2, 3)");
  for (std::uint64_t i = 0; i < 6; ++i) {
    EXPECT_EQ(ValueOf(sum.Get(i)), ValueOf(row.Get(i % 3)) + ValueOf(block.Get(i)));
  }
}

TEST_F(Stretching, RowOfTheWrongLengthFails) {
  auto const sum = Add(MakeVars<1>({3}), MakeOperand<MExpression, 2>({3, 2}, 0));
  EXPECT_EQ(sum.GetLastError(), 3);
  EXPECT_STREQ(sum.GetErrorMessage(),
               "(INVALID) (INVALID) Operand 1 of shape (3) is not compatible with Operand 2 of shape (3, 2)");
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(1, 1)");
  EXPECT_EQ(Cells(sum), "[0;]");
}

TEST_F(Stretching, SizeOneReadsItsCellAgain) {
  EXPECT_EQ(Cells(Add(MakeVars<1>({1}), MakeVars<1>({3}, 5))), "[0; 1 x0, 1 x5][0; 1 x0, 1 x6][0; 1 x0, 1 x7]");
}

TEST_F(Stretching, ColumnAgainstRowGivesABlock) {
  auto const sum = Sub(MakeVars<2>({2, 1}), MakeVars<2>({1, 3}, 5));
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(Cells(sum),
            "[0; 1 x0, -1 x5][0; 1 x0, -1 x6][0; 1 x0, -1 x7][0; 1 x1, -1 x5][0; 1 x1, -1 x6][0; 1 x1, -1 x7]");
}

TEST_F(Stretching, EmptyAgainstThreeFails) {
  EXPECT_STREQ(Add(MakeVars<1>({0}), MakeVars<1>({3})).GetErrorMessage(),
               "(INVALID) (INVALID) Operand 1 of shape (0) is not compatible with Operand 2 of shape (3)");
}

TEST_F(Stretching, EmptyAgainstSizeOneReadsAVariableThatStandsForNothing) {
  auto const sum = Add(MakeVars<1>({0}), MakeVars<1>({1}));
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(1)");
  ASSERT_EQ(sum.Get(0).expr.Size(), 2U);
  EXPECT_EQ(sum.Get(0).expr.vars[0].Idx(), -2);
  EXPECT_EQ(sum.Get(0).expr.vars[1].Idx(), 0);
  EXPECT_EQ(sum.Get(0).ToString(1000), "x0");
}

TEST_F(Stretching, EmptyOperandsGiveAnEmptyBlock) {
  auto const product = Mul(MakeVars<2>({0, 3}), MakeVars<2>({0, 3}));
  EXPECT_EQ(product.GetShape().ToString(Vorq::kSizes), "(0, 3)");
  EXPECT_EQ(product.GetLastError(), 0);
}

TEST_F(Stretching, FailureIsLostInTheNextStep) {
  auto const failed = Add(MakeVars<1>({2}), MakeVars<1>({3}));
  auto const next = Mul(failed, Numbers<0>({}, {2.0}));
  EXPECT_EQ(failed.GetLastError(), 3);
  EXPECT_EQ(next.GetLastError(), 0);
  EXPECT_EQ(next.GetSize(), 1U);
}

TEST_F(Stretching, ResultSharesNoCell) {
  auto const block = MakeOperand<MExpression, 1>({2}, 0);
  auto sum = Add(block, Numbers<0>({}, {0.0}));
  sum.ForEach([](MExpression& cell) { cell.AddConstant(100.0); });
  EXPECT_EQ(ValueOf(sum.Get(1)), ValueOf(block.Get(1)) + 100.0);
}

TEST_F(Stretching, RankAboveThatOfTheLeftOperandFailsWhateverTheSizesAre) {
  auto const left = MakeOperand<MExpression, 1>({3}, 0);
  auto const difference = SubKeepingRank(left, MakeVars<2>({1, 3}));
  static_assert(decltype(difference)::kRank == 1);
  EXPECT_EQ(difference.GetLastError(), 3);
  EXPECT_STREQ(difference.GetErrorMessage(),
               "(INVALID) (INVALID) Cannot cast 1-dimensional shape and 2-dimensional shape to 1-dimension");
  EXPECT_EQ(Cells(difference), "[0;]");
}

TEST_F(Stretching, RankUpToThatOfTheLeftOperandIsStretched) {
  auto const left = MakeOperand<MExpression, 2>({2, 3}, 0);
  auto const right = MakeVars<1>({3});
  auto const difference = SubKeepingRank(left, right);
  ASSERT_EQ(difference.GetSize(), 6U);
  for (std::uint64_t i = 0; i < 6; ++i) {
    EXPECT_EQ(ValueOf(difference.Get(i)), ValueOf(left.Get(i)) - ValueOf(right.Get(i % 3)));
  }
  // The left operand may be the one that is stretched.
  EXPECT_EQ(SubKeepingRank(MakeOperand<MExpression, 1>({1}, 0), right).GetSize(), 3U);
}

TEST_F(Stretching, KernelRefusesViewsOfDifferentSizes) {
  auto const left = MakeVars<2>({2, 3});
  auto const right = MakeVars<2>({3, 2});
  auto const sum = Vorq::OperateViews<Vorq::Operation::kAdd>(left.Cells(), right.Cells());
  EXPECT_EQ(sum.GetLastError(), 3);
  EXPECT_STREQ(sum.GetErrorMessage(), "(INVALID) Operand 1 of (2, 3) is different from Operand 2 of (3, 2)");
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(1, 1)");
}

}  // namespace
}  // namespace vorqtest
