// The handles on blocks of variables and constraints: what all blocks have, and the readers of each kind.
#include "tests/matrix/handle_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::Constraint;
using Vorq::IConstraint;
using Vorq::IMVar;
using Vorq::INdArray;
using Vorq::IVar;
using Vorq::IView;
using Vorq::PsdConstraint;
using Vorq::QConstraint;
using Vorq::Var;

class BlockHandleTest : public MatrixHandleTest {};

TEST_F(BlockHandleTest, ShapeOfEachRank) {
  auto const scalar = Block(MakeVars<0>({}));
  EXPECT_EQ(scalar->GetND(), 0);
  EXPECT_EQ(scalar->GetSize(), 1u);
  EXPECT_EQ(Own(scalar->GetShape())->ToString(0), "()");
  auto const block = Block(MakeVars<3>({2, 3, 4}));
  EXPECT_EQ(block->GetND(), 3);
  EXPECT_EQ(block->GetSize(), 24u);
  EXPECT_EQ(block->GetDim(1), 3u);
  EXPECT_EQ(block->GetDim(3), 0u);
  EXPECT_EQ(block->GetDim(-1), 0u);
}

TEST_F(BlockHandleTest, TheShapeIsACopyWithStridesAndOffsets) {
  auto const block = Block(MakeVars<2>({2, 3}));
  auto const transposed = Own(block->Transpose());
  auto const shape = Own(transposed->GetShape());
  EXPECT_EQ(shape->ToString(0), "(3, 2)");
  EXPECT_EQ(shape->ToString(1), "(1, 3)");
}

TEST_F(BlockHandleTest, ReshapeToEachRank) {
  auto const block = Block(MakeVars<2>({2, 2}));
  EXPECT_EQ(Text(block->Reshape(Shape<1>({4}).get())), "[Var(x0), Var(x1), Var(x2), Var(x3)]\n");
  EXPECT_EQ(Text(block->Reshape(Shape<2>({1, 4}).get())), "[[Var(x0), Var(x1), Var(x2), Var(x3)]\n]\n");
  EXPECT_EQ(Text(block->Reshape(Shape<3>({1, 4, 1}).get())),
            "[[[Var(x0)]\n  [Var(x1)]\n  [Var(x2)]\n  [Var(x3)]\n ]\n]\n");
  EXPECT_EQ(Text(Own(block->Transpose())->Flatten()), "[Var(x0), Var(x2), Var(x1), Var(x3)]\n");
}

TEST_F(BlockHandleTest, AFailureIsReadFromTheResult) {
  auto const block = Block(MakeVars<2>({2, 3}));
  auto const reshaped = Own(block->Reshape(Shape<1>({4}).get()));
  EXPECT_EQ(reshaped->GetSize(), 1u);
  EXPECT_EQ(reshaped->GetLastError(), 3);
  EXPECT_STREQ(reshaped->GetErrorMessage(), "(INVALID) Cannot reshape NdArray of size 6 to new shape (4)");
  EXPECT_EQ(block->GetLastError(), 0);
  EXPECT_EQ(block->GetErrorMessage(), nullptr);
}

TEST_F(BlockHandleTest, RepeatRepeatBlockAndSum) {
  auto const block = Block(MakeVars<1>({2}));
  EXPECT_EQ(Text(block->Repeat(2, 0)), "[Var(x0), Var(x0), Var(x1), Var(x1)]\n");
  EXPECT_EQ(Text(block->RepeatBlock(2, -1)), "[Var(x0), Var(x1), Var(x0), Var(x1)]\n");
  EXPECT_EQ(Text(block->Sum()), "x0 + x1");
}

TEST_F(BlockHandleTest, ViewPickAndPickAt) {
  auto const block = Block(MakeVars<2>({2, 3}));
  auto const view = Make<IView>();
  Own(view->Scalar(1));
  EXPECT_EQ(Text(block->View(view.get())), "[[Var(x3), Var(x4), Var(x5)]\n]\n");
  EXPECT_EQ(Text(block->Pick(Array<int, 1>({2}, {4, 0}).get())), "[Var(x4), Var(x0)]\n");
  EXPECT_EQ(Text(block->PickAt(Array<int, 2>({2, 2}, {1, 0, -1, -1}).get())), "[Var(x3), Var(x5)]\n");
}

TEST_F(BlockHandleTest, SetIsSeenThroughAClone) {
  auto const block = Block(MakeVars<1>({2}));
  auto const clone = Own(block->Clone());
  block->Set(1, VarHandle("new", 9).get());
  EXPECT_EQ(clone->ToString(1000), "[Var(x0), Var(new)]\n");
  EXPECT_EQ(Own(clone->Get(1))->GetIdx(), 9);
}

TEST_F(BlockHandleTest, RemovingAnItemIsSeenInItsBlock) {
  auto const block = Block(MakeVars<1>({2}));
  Own(block->Get(0))->Remove();
  EXPECT_EQ(block->ToString(1000), "[Var(x0 Removed), Var(x1)]\n");
  EXPECT_EQ(Text(block->GetIdx()), "[-3, 1]\n");
}

TEST_F(BlockHandleTest, AHandleOnACellWithoutAnItemIsInvalid) {
  auto const failed = Own(Block(MakeVars<1>({2}))->Repeat(2, 1));
  auto const var = Own(failed->Get(0));
  EXPECT_EQ(var->GetIdx(), Vorq::kInvalidIndex);
  EXPECT_STREQ(var->GetName(), "");
  var->Set("LB", 1.0);
  EXPECT_STREQ(var->GetErrorMessage(), "(INVALID) Invalid variable");
  var->Remove();
  EXPECT_EQ(var->GetIdx(), Vorq::kInvalidIndex);
  EXPECT_EQ(Text(failed->Sum()), "");
}

TEST_F(BlockHandleTest, ReadersOfVariables) {
  double_.Values("VORQ_GetColBasis", {1, 2}).Values("VORQ_GetColLowerIIS", {0, 1});
  double_.Values("VORQ_GetColUpperIIS", {1, 0}).Values("VORQ_GetColType", {'C', 'B'});
  double_.Values("VORQ_GetColInfo", "Value", {1.5, 2.5});
  auto const block = Block(MakeVars<1>({2}));
  EXPECT_EQ(Text(block->GetBasis()), "[1, 2]\n");
  EXPECT_EQ(Text(block->GetIdx()), "[0, 1]\n");
  EXPECT_EQ(Text(block->GetLowerIIS()), "[0, 1]\n");
  EXPECT_EQ(Text(block->GetUpperIIS()), "[1, 0]\n");
  EXPECT_EQ(Text(block->GetType()), "[C, B]\n");
  EXPECT_EQ(Text(block->Get("Value")), "[1.5, 2.5]\n");
}

TEST_F(BlockHandleTest, ReadersOfConstraints) {
  double_.Values("VORQ_GetRowBasis", {1, 2}).Values("VORQ_GetRowLowerIIS", {0, 1});
  double_.Values("VORQ_GetRowUpperIIS", {1, 0}).Values("VORQ_GetRowInfo", "Dual", {1.5, 2.5});
  auto const block = Block(MakeBlock<Constraint, 1>({2}));
  EXPECT_EQ(Text(block->GetBasis()), "[1, 2]\n");
  EXPECT_EQ(Text(block->GetIdx()), "[0, 1]\n");
  EXPECT_EQ(Text(block->GetLowerIIS()), "[0, 1]\n");
  EXPECT_EQ(Text(block->GetUpperIIS()), "[1, 0]\n");
  EXPECT_EQ(Text(block->Get("Dual")), "[1.5, 2.5]\n");
}

TEST_F(BlockHandleTest, ReadersOfQuadraticConstraints) {
  double_.Values("VORQ_GetQConstrRhs", {0.5, 1.5, 2.5, 3.5}).Values("VORQ_GetQConstrSense", {'L', 'G', 'E', 'L'});
  double_.Values("VORQ_GetQConstrInfo", "Slack", {1, 2, 3, 4});
  auto const block = Block(MakeBlock<QConstraint, 2>({2, 2}));
  auto const transposed = Own(block->Transpose());
  EXPECT_EQ(Text(transposed->GetIdx()), "[[0, 2]\n [1, 3]\n]\n");
  EXPECT_EQ(Text(transposed->GetRhs()), "[[0.5, 2.5]\n [1.5, 3.5]\n]\n");
  EXPECT_EQ(Text(transposed->Get("Slack")), "[[1, 3]\n [2, 4]\n]\n");
  auto const senses = Own(transposed->GetSense());
  EXPECT_EQ(senses->ToString(1000), "[[L, E]\n [G, L]\n]\n");
  EXPECT_EQ(Own(senses->GetShape())->ToString(1), "(2, 1)");
}

TEST_F(BlockHandleTest, ReadersOfPsdConstraints) {
  double_.Values("VORQ_GetPSDConstrInfo", "Dual", {1.5, 2.5});
  auto const block = Block(MakeBlock<PsdConstraint, 1>({2}));
  EXPECT_EQ(Text(block->GetIdx()), "[0, 1]\n");
  EXPECT_EQ(Text(block->Get("Dual")), "[1.5, 2.5]\n");
}

TEST_F(BlockHandleTest, ReadersOfRemovedConstraintsGiveTheDefaultsOfItems) {
  auto const block = Block(MakeBlock<QConstraint, 1>({1}));
  Own(block->Get(0))->Remove();
  EXPECT_EQ(Text(block->GetRhs()), "[0]\n");
  EXPECT_EQ(Own(block->GetSense())->Get(0), 0);
  EXPECT_EQ(Own(block->Get("Slack"))->Get(0), Vorq::kNoDouble);
  EXPECT_CALLS(double_, {});
  EXPECT_STREQ(Own(block->Get(0))->GetErrorMessage(), "(INVALID) (INVALID) Invalid quadratic constraint");
  EXPECT_EQ(block->GetLastError(), 0);
}

TEST_F(BlockHandleTest, OneValueIsSetItemByItem) {
  auto const block = Block(MakeVars<1>({2}));
  block->Set("UB", 7.0);
  EXPECT_CALLS(double_, {"VORQ_SetColUpper(prob#1, 1, [0], [7])", "VORQ_SetColUpper(prob#1, 1, [1], [7])"});
}

TEST_F(BlockHandleTest, ValuesAreSetByFlatIndex) {
  auto const block = Block(MakeVars<2>({2, 2}));
  auto const values = Array<double, 2>({2, 2}, {1, 2, 3, 4});
  Own(block->Transpose())->Set("Obj", values.get());
  EXPECT_CALLS(double_, {"VORQ_SetColObj(prob#1, 1, [0], [1])", "VORQ_SetColObj(prob#1, 1, [2], [2])",
                         "VORQ_SetColObj(prob#1, 1, [1], [3])", "VORQ_SetColObj(prob#1, 1, [3], [4])"});
}

TEST_F(BlockHandleTest, TheCellsAreCountedWhenValuesAreSet) {
  auto const block = Block(MakeBlock<Constraint, 1>({2}));
  block->Set("LB", Array<double, 1>({3}, {1, 2, 3}).get());
  EXPECT_CALLS(double_, {"VORQ_SetRowLower(prob#1, 1, [0], [1])", "VORQ_SetRowLower(prob#1, 1, [1], [2])"});
}

TEST_F(BlockHandleTest, AnUnknownAttributeIsRecordedInTheItems) {
  auto const block = Block(MakeBlock<PsdConstraint, 1>({1}));
  block->Set("Obj", 7.0);
  EXPECT_STREQ(Own(block->Get(0))->GetErrorMessage(), "(INVALID) (INVALID) Unknown PSD constraint information");
  EXPECT_EQ(block->GetLastError(), 0);
}

TEST_F(BlockHandleTest, ShapesOfConstraints) {
  auto const block = Block(MakeBlock<Constraint, 2>({2, 2}));
  EXPECT_EQ(Text(Own(block->Transpose())->GetIdx()), "[[0, 2]\n [1, 3]\n]\n");
  EXPECT_EQ(Text(block->Flatten()), "[Row(x0), Row(x1), Row(x2), Row(x3)]\n");
  EXPECT_EQ(Text(block->Reshape(Shape<1>({4}).get())), "[Row(x0), Row(x1), Row(x2), Row(x3)]\n");
  EXPECT_EQ(Text(block->Pick(Array<int, 1>({1}, {2}).get())), "[Row(x2)]\n");
  auto const clone = Own(block->Clone());
  block->Set(0, Make<IConstraint>(ItemsTest::Make<Constraint>("new", 9)).get());
  EXPECT_EQ(Own(clone->Get(0))->GetIdx(), 9);
}

TEST_F(BlockHandleTest, HandlesAreTwoWordsAndOutliveEachOther) {
  static_assert(sizeof(VorqMVar<3>) == Vorq::kHandleSize);
  auto block = Block(MakeVars<1>({2}));
  auto const flat = Own(block->Flatten());
  block.reset();
  EXPECT_EQ(flat->ToString(1000), "[Var(x0), Var(x1)]\n");
}

}  // namespace
}  // namespace vorqtest
