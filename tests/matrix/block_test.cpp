// Shapes and stores of blocks: which operations share cells and which copy them, and how they fail.
#include "matrix/matrix_object_operations.hpp"
#include "ndarray/rank_change.hpp"
#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::Axis;
using Vorq::Constraint;
using Vorq::MatrixObject;
using Vorq::MLinExpr;
using Vorq::MVar;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Var;
using Vorq::View;

class BlockTest : public MatrixTest {
 protected:
  static NdArray<int, 1> Ints(std::vector<int> const& values) {
    return NdArray<int, 1>::Generated(NDim<1>({values.size()}), [&](std::uint64_t i) { return values[i]; });
  }
  static NdArray<int, 2> Rows(std::uint64_t columns, std::vector<int> const& values) {
    return NdArray<int, 2>::Generated(NDim<2>({values.size() / columns, columns}),
                                      [&](std::uint64_t i) { return values[i]; });
  }

  // A failed result: one cell, and the text.
  template <class Block>
  static void ExpectFailed(Block const& block, char const* text) {
    EXPECT_EQ(block.GetSize(), 1u);
    EXPECT_EQ(Report(block.GetStatus()), std::string("3 ") + text);
  }
};

TEST_F(BlockTest, SizesOfEachRank) {
  EXPECT_EQ(MakeVars<0>({}).GetSize(), 1u);
  EXPECT_EQ(MakeVars<1>({4}).GetDim(0), 4u);
  MVar<3> const block = MakeVars<3>({2, 3, 4});
  Vorq::MExprBase<3> const& base = block;
  EXPECT_EQ(base.GetND(), 3);
  EXPECT_EQ(base.GetSize(), 24u);
  EXPECT_EQ(base.GetDim(2), 4u);
  EXPECT_EQ(base.GetDim(3), 0u);
  EXPECT_EQ(base.GetDim(-1), 0u);
  EXPECT_EQ(base.GetShape().ToString(0), "(2, 3, 4)");
}

TEST_F(BlockTest, ADefaultBlockHasOneCellInRankZeroOnly) {
  EXPECT_EQ(MLinExpr<0>().GetSize(), 1u);
  EXPECT_EQ(MLinExpr<0>().Get(0).ToString(10), "0");
  EXPECT_EQ(MLinExpr<2>().GetSize(), 0u);
}

TEST_F(BlockTest, ABlockOfOneCellLivesInAStoreOfOneObject) {
  EXPECT_EQ(MLinExpr<0>(NDim<0>(), Vorq::MExpression(1.0)).Cells().Store().Block()->count, 1u);
  EXPECT_EQ(MLinExpr<2>(NDim<2>({1, 1}), Vorq::MExpression(1.0)).Cells().Store().Block()->count, 1u);
}

TEST_F(BlockTest, ReshapingAContiguousBlockSharesTheStore) {
  MVar<2> const block = MakeVars<2>({2, 3});
  MVar<2> const reshaped = block.Reshape(NDim<2>({3, 2}));
  EXPECT_TRUE(ShareStore(block, reshaped));
  EXPECT_EQ(reshaped.GetShape().ToString(0), "(3, 2)");
  EXPECT_EQ(Names(reshaped), "x0 x1 x2 x3 x4 x5");
  EXPECT_TRUE(ShareStore(block, block.Reshape(NDim<3>({1, 6, 1}))));
}

TEST_F(BlockTest, ReshapingATransposedBlockCopiesTheCells) {
  MVar<2> const block = MakeVars<2>({2, 3});
  MVar<1> const reshaped = block.Transpose().Reshape(NDim<1>({6}));
  EXPECT_FALSE(ShareStore(block, reshaped));
  EXPECT_EQ(Names(reshaped), "x0 x3 x1 x4 x2 x5");
}

TEST_F(BlockTest, ReshapingToAnotherSizeFails) {
  MVar<1> const reshaped = MakeVars<2>({2, 3}, 7).Reshape(NDim<1>({4}));
  ExpectFailed(reshaped, "(INVALID) Cannot reshape NdArray of size 6 to new shape (4)");
  EXPECT_EQ(Names(reshaped), "x7");
  ExpectFailed(MakeVars<0>({}).Reshape(NDim<3>({1, 2, 1})),
               "(INVALID) Cannot reshape NdArray of size 1 to new shape (1, 2, 1)");
}

TEST_F(BlockTest, ReshapingARowStartsAtTheFirstCellOfTheStore) {
  View row;
  row.Scalar(1);
  MVar<1> const reshaped = MakeVars<2>({2, 3}).View(row).Reshape(NDim<1>({3}));
  EXPECT_EQ(Names(reshaped), "x0 x1 x2");
}

TEST_F(BlockTest, FlatteningSharesContiguousCellsOnly) {
  MVar<2> const block = MakeVars<2>({2, 2});
  View row;
  row.Scalar(1);
  EXPECT_TRUE(ShareStore(block, block.View(row).Flatten()));
  EXPECT_EQ(Names(block.View(row).Flatten()), "x2 x3");
  EXPECT_FALSE(ShareStore(block, block.Transpose().Flatten()));
  EXPECT_EQ(Names(block.Transpose().Flatten()), "x0 x2 x1 x3");
  MVar<0> const scalar = MakeVars<0>({});
  EXPECT_TRUE(ShareStore(scalar, scalar.Flatten()));
}

TEST_F(BlockTest, RepeatRepeatsCellsAndRepeatBlockRuns) {
  MVar<1> const block = MakeVars<1>({2});
  EXPECT_EQ(Names(block.Repeat(2, 0)), "x0 x0 x1 x1");
  EXPECT_EQ(Names(block.RepeatBlock(2, 0)), "x0 x1 x0 x1");
  EXPECT_EQ(Names(block.Repeat(2, -1)), "x0 x0 x1 x1");
  EXPECT_FALSE(ShareStore(block, block.Repeat(1, 0)));
  EXPECT_EQ(block.Repeat(0, 0).GetSize(), 0u);
}

TEST_F(BlockTest, RepeatRefusesAnAxisOutOfBounds) {
  ExpectFailed(MakeVars<1>({2}).Repeat(2, 1), "(INVALID) Axis 1 is out of bounds for array of dimensions 1");
  ExpectFailed(MakeVars<2>({2, 2}).RepeatBlock(2, -3), "(INVALID) Axis -3 is out of bounds for array of dimensions 2");
}

TEST_F(BlockTest, RankZeroCannotRepeatAndKeepsItsCell) {
  MVar<0> const block = MakeVars<0>({}, 4);
  for (MVar<0> const& repeated : {block.Repeat(3, 0), block.RepeatBlock(0, 9)}) {
    ExpectFailed(repeated, "(INVALID) Cannot repeat for NdArray of shape ()");
    EXPECT_EQ(Names(repeated), "x4");
    EXPECT_FALSE(ShareStore(block, repeated));
  }
}

TEST_F(BlockTest, TransposingReversesTheAxesOverTheSameStore) {
  MVar<3> const block = MakeVars<3>({2, 3, 4});
  MVar<3> const transposed = block.Transpose();
  EXPECT_TRUE(ShareStore(block, transposed));
  EXPECT_EQ(transposed.GetShape().ToString(0), "(4, 3, 2)");
  EXPECT_EQ(transposed.GetShape().ToString(1), "(1, 4, 12)");
  EXPECT_EQ(Names(MakeVars<1>({2}).Transpose()), "x0 x1");
  EXPECT_EQ(Names(MakeVars<0>({}).Transpose()), "x0");
}

TEST_F(BlockTest, AViewSharesCells) {
  MVar<2> const block = MakeVars<2>({3, 3});
  View view;
  view.Slice(0, 0, -2, Vorq::Slice::kStartOmitted | Vorq::Slice::kStopOmitted);
  view.Scalar(-1);
  MVar<2> seen = block.View(view);
  EXPECT_EQ(seen.GetShape().ToString(0), "(2, 1)");
  EXPECT_EQ(Names(seen), "x8 x2");
  seen.Set(0, MakeVar("new", 99));
  EXPECT_STREQ(block.Get(8).GetName(), "new");
}

TEST_F(BlockTest, AViewWithTooManyOperationsFails) {
  View view;
  view.Full();
  view.Full();
  MVar<1> const seen = MakeVars<1>({3}, 5).View(view);
  ExpectFailed(seen, "(INVALID) View has more operations than #ND (1)");
  EXPECT_EQ(Names(seen), "x5");
}

TEST_F(BlockTest, RankZeroIgnoresAView) {
  MVar<0> const block = MakeVars<0>({});
  View view;
  view.Full();
  MVar<0> const seen = block.View(view);
  EXPECT_TRUE(ShareStore(block, seen));
  EXPECT_EQ(seen.GetLastError(), 0);
}

TEST_F(BlockTest, PickSplitsFlatIndicesRowMajor) {
  MVar<2> const block = MakeVars<2>({2, 3});
  EXPECT_EQ(Names(block.Pick(Ints({4}))), "x4");
  MVar<1> const picked = block.Transpose().Pick(Ints({1, 0, 5, 1}));
  EXPECT_EQ(Names(picked), "x3 x0 x5 x3");
  EXPECT_FALSE(ShareStore(block, picked));
}

TEST_F(BlockTest, PickAtTakesRowsAsScalarIndices) {
  MVar<2> const block = MakeVars<2>({2, 3});
  EXPECT_EQ(Names(block.PickAt(Rows(2, {1, 2, 0, -1, -2, 0}))), "x5 x2 x0");
}

TEST_F(BlockTest, PickAtWithRowsOfAnotherLengthPicksAFirstCellAndDoesNotFail) {
  MVar<2> const block = MakeVars<2>({2, 3});
  MVar<1> const tooLong = block.PickAt(Rows(3, {1, 2, 0}));
  EXPECT_EQ(Names(tooLong), "x0");
  EXPECT_EQ(tooLong.GetLastError(), 0);
  MVar<1> const tooShort = block.PickAt(Rows(1, {1, 0}));
  EXPECT_EQ(Names(tooShort), "x3 x0");
  EXPECT_EQ(tooShort.GetLastError(), 0);
}

TEST_F(BlockTest, RankZeroPicksItsCellForAllIndices) {
  MVar<0> const block = MakeVars<0>({}, 3);
  MVar<1> const picked = block.Pick(Ints({7, -9, 0}));
  EXPECT_EQ(Names(picked), "x3 x3 x3");
  EXPECT_EQ(picked.GetShape().ToString(1), "(0)");
  EXPECT_EQ(Names(block.PickAt(Rows(2, {1, 2, 3, 4}))), "x3 x3");
  EXPECT_FALSE(ShareStore(block, picked));
}

TEST_F(BlockTest, SetIsSeenByAllThatShareTheStore) {
  MVar<2> block = MakeVars<2>({2, 3});
  MVar<2> const transposed = block.Transpose();
  block.Set(1, MakeVar("new", 99));
  EXPECT_STREQ(transposed.Get(2).GetName(), "new");
}

TEST_F(BlockTest, SettingACellToItselfKeepsIt) {
  MVar<1> block = MakeVars<1>({2});
  block.Set(1, *block.Cells().Find(1));
  EXPECT_EQ(Names(block), "x0 x1");
}

TEST_F(BlockTest, AnIndexBehindTheStoreReadsADefaultCellAndWritesNothing) {
  MVar<1> block = MakeVars<1>({2});
  EXPECT_EQ(block.Get(2).Idx(), Vorq::kInvalidIndex);
  block.Set(2, MakeVar("new", 99));
  EXPECT_EQ(Names(block), "x0 x1");
  EXPECT_EQ(MLinExpr<2>().Get(0).ToString(10), "0");
}

TEST_F(BlockTest, CloneOfItemsSharesTheStore) {
  MVar<2> const block = MakeVars<2>({2, 3}).Transpose();
  MVar<2> const clone = block.Clone();
  EXPECT_TRUE(ShareStore(block, clone));
  EXPECT_EQ(clone.GetShape().ToString(1), "(1, 3)");
}

TEST_F(BlockTest, AStatusGainsAPrefixWithEachCopy) {
  MVar<1> const failed = MakeVars<1>({2}).Repeat(2, 1);
  MVar<1> const clone = failed.Clone();
  EXPECT_STREQ(clone.GetErrorMessage(), "(INVALID) (INVALID) Axis 1 is out of bounds for array of dimensions 1");
  EXPECT_EQ(clone.GetLastError(), 3);
  MLinExpr<1> const expressions = MLinExpr<1>(NDim<1>({2}), Vorq::MExpression()).Repeat(2, 1).Clone();
  EXPECT_STREQ(expressions.GetErrorMessage(), "(INVALID) (INVALID) Axis 1 is out of bounds for array of dimensions 1");
}

TEST_F(BlockTest, OperationsOnAFailedBlockGoOnWithOneCell) {
  MVar<1> const failed = MakeVars<1>({2}).Repeat(2, 1);
  EXPECT_EQ(failed.Flatten().GetLastError(), 0);
  EXPECT_EQ(failed.Repeat(2, 0).GetSize(), 2u);
}

TEST_F(BlockTest, NoBlockHoldsAnItemWithoutARecord) {
  std::vector<MVar<1>> const blocks = {
      MakeVars<1>({2}).Repeat(2, 1),              // a default cell
      MakeVars<1>({0}).Reshape(NDim<1>({3})),     // the first cell of none
      MakeVars<1>({0}).Pick(Ints({0, 1})),        //
      MVar<1>(NdArray<Var, 1>(NDim<1>({2}), {}))  // no store
  };
  for (MVar<1> const& block : blocks) {
    ASSERT_GT(block.GetSize(), 0u);
    for (std::uint64_t i = 0; i < block.GetSize(); ++i) {
      EXPECT_EQ(block.Get(i).Idx(), Vorq::kInvalidIndex);
      EXPECT_STREQ(block.Get(i).GetName(), "");
    }
  }
  EXPECT_EQ(MVar<0>().Get(0).Idx(), Vorq::kInvalidIndex);
}

TEST_F(BlockTest, FailedGivesOneDefaultCellOfTheRank) {
  auto const failed = MLinExpr<3>::Failed("100% wrong");
  EXPECT_EQ(failed.GetShape().ToString(0), "(1, 1, 1)");
  EXPECT_EQ(failed.Get(0).ToString(10), "0");
  EXPECT_EQ(Report(failed.GetStatus()), "3 (INVALID) 100% wrong");
}

TEST_F(BlockTest, TheStoreOutlivesTheBlockThatMadeIt) {
  MVar<2> seen;
  {
    MVar<2> const block = MakeVars<2>({2, 2});
    seen = block.Transpose();
  }
  EXPECT_EQ(Names(seen), "x0 x2 x1 x3");
}

}  // namespace
}  // namespace vorqtest
