// Blocks of variables and constraints: reading and writing item by item, and their texts.
#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::Constraint;
using Vorq::MConstr;
using Vorq::MPsdConstr;
using Vorq::MQConstr;
using Vorq::MVar;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::PsdConstraint;
using Vorq::QConstraint;
using Vorq::Var;

class ItemBlocksTest : public MatrixTest {
 protected:
  template <int N>
  static NdArray<int, N> Indices(MVar<N> const& block) {
    return block.template Read<int>([](Var const& var) { return var.Idx(); });
  }
};

TEST_F(ItemBlocksTest, AReaderGivesACompactArrayInFlatOrder) {
  MVar<2> const transposed = MakeVars<2>({2, 3}).Transpose();
  NdArray<int, 2> const indices = Indices(transposed);
  EXPECT_THAT(Elements(indices), ElementsAre(0, 3, 1, 4, 2, 5));
  EXPECT_EQ(indices.GetShape().ToString(0), "(3, 2)");
  EXPECT_EQ(indices.GetShape().ToString(1), "(2, 1)");
}

TEST_F(ItemBlocksTest, AReaderOfRankZeroGivesOneElement) {
  EXPECT_THAT(Elements(Indices(MakeVars<0>({}, 4))), ElementsAre(4));
}

TEST_F(ItemBlocksTest, AReaderOfNoItemsGivesNoElement) {
  EXPECT_EQ(Indices(MakeVars<1>({0})).GetSize(), 0u);
}

TEST_F(ItemBlocksTest, EachReadIsOneCallInAscendingOrder) {
  double_.Values("VORQ_GetColInfo", "Value", {1.5, 2.5, 3.5});
  auto const values = MakeVars<1>({3}).Read<double>([](Var& var) { return var.Get("Value"); });
  EXPECT_THAT(Elements(values), ElementsAre(1.5, 2.5, 3.5));
  EXPECT_CALLS(double_,
               {R"(VORQ_GetColInfo(prob#1, "Value", 1, [0], out))", R"(VORQ_GetColInfo(prob#1, "Value", 1, [1], out))",
                R"(VORQ_GetColInfo(prob#1, "Value", 1, [2], out))"});
}

TEST_F(ItemBlocksTest, AFailedReadIsRecordedInItsCell) {
  double_.FailNth("VORQ_GetColInfo", 2, 5);
  MVar<1> const block = MakeVars<1>({2});
  auto const values = block.Read<double>([](Var& var) { return var.Get("Value"); });
  EXPECT_EQ(values.Get(1), Vorq::kNoDouble);
  EXPECT_EQ(block.Cells().Find(0)->status.Code(), 0);
  EXPECT_EQ(Report(block.Cells().Find(1)->status), "5 (INTERNAL) Fail to get variable information");
  EXPECT_EQ(block.GetLastError(), 0);
}

TEST_F(ItemBlocksTest, CellsWithoutAnItemReadAsInvalidOnes) {
  MVar<1> const block = MakeVars<1>({2}).Repeat(2, 1);
  EXPECT_EQ(block.Read<int>([](Var& var) { return var.GetBasis(); }).Get(0), Vorq::kNoInt);
  EXPECT_EQ(block.Read<char>([](Var& var) { return var.GetType(); }).Get(0), 0);
  EXPECT_EQ(Report(block.Cells().Find(0)->status), "3 (INVALID) Invalid variable");
  EXPECT_CALLS(double_, {});
}

TEST_F(ItemBlocksTest, TextsOfTheKinds) {
  EXPECT_EQ((MakeBlock<Var, 1>({2}).ToString(1000)), "[Var(x0), Var(x1)]\n");
  EXPECT_EQ((MakeBlock<Constraint, 1>({2}).ToString(1000)), "[Row(x0), Row(x1)]\n");
  EXPECT_EQ((MakeBlock<QConstraint, 1>({2}).ToString(1000)), "[QConstraint(x0), QConstraint(x1)]\n");
  EXPECT_EQ((MakeBlock<PsdConstraint, 1>({2}).ToString(1000)), "[PsdConstraint(x0), PsdConstraint(x1)]\n");
}

TEST_F(ItemBlocksTest, TextsOfTheRanks) {
  EXPECT_EQ(MakeVars<0>({}).ToString(0), "Var(x0)");
  EXPECT_EQ(MakeVars<2>({2, 2}).ToString(1000), "[[Var(x0), Var(x1)]\n [Var(x2), Var(x3)]\n]\n");
  EXPECT_EQ(MakeVars<3>({1, 1, 2}).ToString(1000), "[[[Var(x0), Var(x1)]\n ]\n]\n");
  EXPECT_EQ(MakeVars<1>({0}).ToString(1000), "[]\n");
}

TEST_F(ItemBlocksTest, TheTextIsCutAtTheLimit) {
  EXPECT_EQ(MakeVars<1>({3}).ToString(11), "[Var(x0), Var(x1), ...");
  EXPECT_EQ(MakeVars<1>({3}).ToString(0), "[...");
}

TEST_F(ItemBlocksTest, ARemovedItemSaysSoInItsElementOnly) {
  MConstr<1> const block = MakeBlock<Constraint, 1>({3});
  block.Get(1).MarkRemoved();
  EXPECT_EQ(block.ToString(1000), "[Row(x0), Row(x1 Removed), Row(x2)]\n");
}

TEST_F(ItemBlocksTest, AnInvalidItemOfAModelPrintsAsRemoved) {
  MVar<1> block = MakeVars<1>({1});
  block.Set(0, MakeVar("", Vorq::kInvalidIndex));
  EXPECT_EQ(block.ToString(1000), "[Var( Removed)]\n");
}

TEST_F(ItemBlocksTest, ACellWithoutAnItemPrintsNothing) {
  EXPECT_EQ(MakeVars<1>({0}).Reshape(NDim<2>({1, 2})).ToString(1000), "[[]\n]\n");
  EXPECT_EQ(MVar<1>(NdArray<Var, 1>(NDim<1>({2}), {})).ToString(1000), "[, ]\n");
  EXPECT_EQ(MVar<0>().ToString(1000), "");
}

TEST_F(ItemBlocksTest, SumListsEachVariableOnceACell) {
  MVar<1> const block = MakeVars<1>({2}).Repeat(2, 0);
  EXPECT_EQ(Terms(Sum(block).Get(0).expr), "0; 1 x0, 1 x0, 1 x1, 1 x1");
  EXPECT_EQ(Terms(Sum(MakeVars<2>({2, 2}).Transpose()).Get(0).expr), "0; 1 x0, 1 x2, 1 x1, 1 x3");
}

TEST_F(ItemBlocksTest, SumOfNoVariablesIsAnEmptyCell) {
  auto const sum = Sum(MakeVars<1>({0}));
  EXPECT_EQ(Terms(sum.Get(0).expr), "0;");
  EXPECT_EQ(sum.Get(0).LazySize(), 0u);
}

TEST_F(ItemBlocksTest, ItemsOutliveTheirModel) {
  MVar<1> const block = MakeVars<1>({2});
  problem_ = {};
  EXPECT_EQ(Names(block), "x0 x1");
}

TEST_F(ItemBlocksTest, ArraysOfItemsBecomeCompactStores) {
  auto const array = Vorq::NdaFromArray<QConstraint>(MakeItems<QConstraint>(3));
  EXPECT_EQ(array.GetShape().ToString(0), "(3)");
  EXPECT_EQ(array.Get(2).Idx(), 2);
  EXPECT_EQ(Vorq::NdaFromArray<Var>(std::vector<Var>()).GetSize(), 0u);
}

}  // namespace
}  // namespace vorqtest
