// Blocks of variables: one call for a block, names by index, and what a failure leaves.
#include "tests/model/blocks_fixture.hpp"

namespace {

using vorqtest::Own;

class BlockVariablesTest : public vorqtest::ModelTest {
 protected:
  template <int N>
  static std::unique_ptr<Vorq::INDim<N>> Shape(typename Vorq::NDim<N>::Sizes const& sizes) {
    return Own(Vorq::Wrap<Vorq::INDim<N>>(sizes));
  }
  template <int N>
  static std::string Text(Vorq::INdArray<int, N>* numbers) {
    return Own(numbers)->ToString(1000);
  }
  // The call that adds a block of columns without any attribute.
  static std::string PlainCall(std::string const& count, std::string const& names) {
    return "VORQ_AddCols(prob#1, " + count + ", null, null, null, null, null, null, null, null, " + names + ")";
  }
};

TEST_F(BlockVariablesTest, NamesCountInEachAxis) {
  auto const x = Own(model_->AddMVar(Shape<2>({2, 2}).get(), 'C', "x"));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {PlainCall("4", R"_(["x(0,0)","x(0,1)","x(1,0)","x(1,1)"])_")});
  EXPECT_EQ(Text(x->GetIdx()), "[[0, 1]\n [2, 3]\n]\n");
  EXPECT_STREQ(Own(x->Get(2))->GetName(), "x(1,0)");
  EXPECT_EQ(x->GetLastError(), 0);
}

TEST_F(BlockVariablesTest, RankZeroHasOneVariable) {
  auto const x = Own(model_->AddMVar(Shape<0>({}).get(), 'C', "x"));
  EXPECT_CALLS(double_, {PlainCall("1", R"_(["x()"])_")});
  EXPECT_EQ(x->GetSize(), 1u);
  EXPECT_EQ(Own(x->Get(std::uint64_t{0}))->GetIdx(), 0);
}

TEST_F(BlockVariablesTest, RankOneAndThree) {
  Own(model_->AddMVar(Shape<1>({3}).get(), 'C', "x"));
  auto const y = Own(model_->AddMVar(Shape<3>({2, 1, 3}).get(), 'C', "y"));
  EXPECT_CALLS(double_, {PlainCall("3", R"_(["x(0)","x(1)","x(2)"])_"),
                         PlainCall("6", R"_(["y(0,0,0)","y(0,0,1)","y(0,0,2)","y(1,0,0)","y(1,0,1)","y(1,0,2)"])_")});
  // Indices go on from the columns that were there.
  EXPECT_EQ(Own(y->Get(std::uint64_t{5}))->GetIdx(), 8);
}

TEST_F(BlockVariablesTest, IndicesOfSeveralDigits) {
  Own(model_->AddMVar(Shape<2>({1, 12}).get(), 'C', ""));
  EXPECT_CALLS(double_,
               {PlainCall("12", R"_(["(0,0)","(0,1)","(0,2)","(0,3)","(0,4)","(0,5)","(0,6)","(0,7)","(0,8)","(0,9)",)_"
                                R"_("(0,10)","(0,11)"])_")});
}

TEST_F(BlockVariablesTest, LongPrefixStillLeavesRoomForTheIndex) {
  Own(model_->AddMVar(Shape<1>({2}).get(), 'C', "abcdefghijklmnopqrstuvwxyzabcd"));
  EXPECT_CALLS(double_,
               {PlainCall("2", R"_(["abcdefghijklmnopqrstuvwxyzabcd(0)","abcdefghijklmnopqrstuvwxyzabcd(1)"])_")});
}

TEST_F(BlockVariablesTest, PrefixIsNormalised) {
  Own(model_->AddMVar(Shape<1>({1}).get(), 'C', "  my x\t"));
  Own(model_->AddMVar(Shape<1>({1}).get(), 'C', nullptr));
  EXPECT_CALLS(double_, {PlainCall("1", R"_(["my_x(0)"])_"), PlainCall("1", R"_(["(0)"])_")});
}

TEST_F(BlockVariablesTest, OneTypeForAll) {
  Own(model_->AddMVar(Shape<1>({2}).get(), 'B', "x"));
  EXPECT_CALLS(double_, {"VORQ_AddCols(prob#1, 2, null, null, null, null, null, ['B','B'], null, null, "
                         R"_(["x(0)","x(1)"]))_"});
}

TEST_F(BlockVariablesTest, ScalarsAreRepeated) {
  Own(model_->AddMVar(Shape<1>({2}).get(), -1.0, 4.5, 2.0, 'I', "x"));
  Own(model_->AddMVar(Shape<0>({}).get(), 0.0, 1.0, 3.0, 'C', "y"));
  EXPECT_CALLS(double_, {"VORQ_AddCols(prob#1, 2, [2,2], null, null, null, null, ['I','I'], [-1,-1], [4.5,4.5], "
                         R"_(["x(0)","x(1)"]))_",
                         "VORQ_AddCols(prob#1, 1, [3], null, null, null, null, null, [0], [1], "
                         R"_(["y()"]))_"});
}

TEST_F(BlockVariablesTest, ArraysArePassedAsTheyAre) {
  double const lbs[] = {0.0, 1.0};
  double const ubs[] = {5.0, 6.0};
  double const objs[] = {7.0, 8.0};
  Own(model_->AddMVar(Shape<2>({1, 2}).get(), lbs, ubs, objs, "CI", "x"));
  Own(model_->AddMVar(Shape<2>({2, 1}).get(), nullptr, ubs, nullptr, nullptr, "y"));
  EXPECT_CALLS(double_, {"VORQ_AddCols(prob#1, 2, [7,8], null, null, null, null, ['C','I'], [0,1], [5,6], "
                         R"_(["x(0,0)","x(0,1)"]))_",
                         "VORQ_AddCols(prob#1, 2, null, null, null, null, null, null, null, [5,6], "
                         R"_(["y(0,0)","y(1,0)"]))_"});
}

TEST_F(BlockVariablesTest, OfAViewOnlyTheSizesCount) {
  // Sizes (3, 2), and strides (1, 3).
  auto const transposed = Own(Vorq::Wrap<Vorq::INDim<2>>(Vorq::NDim<2>({2, 3}).Transpose()));
  auto const x = Own(model_->AddMVar(transposed.get(), 'C', "x"));
  EXPECT_EQ(Text(x->GetIdx()), "[[0, 1]\n [2, 3]\n [4, 5]\n]\n");
  EXPECT_EQ(Own(x->GetShape())->ToString(1), "(2, 1)");
}

TEST_F(BlockVariablesTest, NoCellsMakeNoCall) {
  Fail();
  auto const x = Own(model_->AddMVar(Shape<2>({0, 3}).get(), 'C', "x"));
  Own(model_->AddMVar(Shape<1>({0}).get(), 0.0, 1.0, 1.0, 'C', "x"));
  Own(model_->AddMVar(Shape<3>({2, 0, 2}).get(), nullptr, nullptr, nullptr, nullptr, "x"));
  EXPECT_CALLS(double_, {});
  EXPECT_EQ(Own(x->GetShape())->ToString(0), "(0, 3)");
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

TEST_F(BlockVariablesTest, AFailureIsClearedByASuccess) {
  Fail();
  Own(model_->AddMVar(Shape<1>({1}).get(), 'C', "x"));
  EXPECT_SUCCESS(model_);
}

TEST_F(BlockVariablesTest, RefusedBlockHasTheShapeAndNoVariables) {
  double_.FailNext("VORQ_AddCols", VORQ_MEMORY);
  auto const x = Own(model_->AddMVar(Shape<2>({2, 2}).get(), 'C', "x"));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add vars");
  EXPECT_EQ(Own(x->GetShape())->ToString(0), "(2, 2)");
  EXPECT_EQ(x->GetSize(), 4u);
  EXPECT_EQ(model_->GetIntAttr("Cols"), 0);
  EXPECT_EQ(Own(model_->GetVars())->Size(), 0);
}

TEST_F(BlockVariablesTest, RefusedBlockCanBeUsed) {
  double_.FailNext("VORQ_AddCols", VORQ_MEMORY);
  auto const x = Own(model_->AddMVar(Shape<1>({2}).get(), 'C', "x"));
  double_.ClearLog();
  EXPECT_EQ(Text(x->GetIdx()), "[-2, -2]\n");
  EXPECT_EQ(Text(x->GetBasis()), "[-2147483648, -2147483648]\n");
  EXPECT_EQ(Own(x->GetType())->Get(1), 0);
  x->Set("LB", 1.0);
  EXPECT_EQ(Own(x->Get(std::uint64_t{1}))->GetIdx(), -2);
  x->Set(std::uint64_t{1}, Own(x->Get(std::uint64_t{0})).get());
  EXPECT_EQ(x->ToString(100), "[, ]\n");
  EXPECT_EQ(Text(Own(x->Flatten())->GetIdx()), "[-2, -2]\n");
  EXPECT_EQ(Text(Own(x->Transpose())->GetIdx()), "[-2, -2]\n");
  EXPECT_EQ(Text(Own(x->Repeat(2, 0))->GetIdx()), "[-2, -2, -2, -2]\n");
  EXPECT_EQ(Own(Own(x->Sum())->Get(std::uint64_t{0}))->GetConstant(), 0.0);
  EXPECT_EQ(Own(x->Clone())->GetSize(), 2u);
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockVariablesTest, RefusedBlockOfRankZeroCanBeUsed) {
  double_.FailNext("VORQ_AddCols", VORQ_MEMORY);
  auto const x = Own(model_->AddMVar(Shape<0>({}).get(), 'C', "x"));
  EXPECT_EQ(Own(x->GetIdx())->Get(0), -2);
  EXPECT_EQ(Own(x->Get(std::uint64_t{0}))->GetIdx(), -2);
}

TEST_F(BlockVariablesTest, MoreCellsThanTheSolverLibraryCountsAreRefused) {
  auto const x = Own(model_->AddMVar(Shape<2>({65536, 65536}).get(), 0.0, 1.0, 1.0, 'B', "x"));
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
  EXPECT_EQ(x->GetSize(), std::uint64_t{65536} * 65536);
  std::uint64_t const half = std::uint64_t{1} << 32;
  Own(model_->AddMVar(Shape<2>({half, half}).get(), 'C', "x"));
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
  EXPECT_CALLS(double_, {});
}

TEST_F(BlockVariablesTest, VariablesAreThoseOfTheModel) {
  auto const x = Own(model_->AddMVar(Shape<1>({3}).get(), 'C', "x"));
  Own(model_->GetVar(1))->Remove();
  EXPECT_EQ(Text(x->GetIdx()), "[0, -4, 2]\n");
  EXPECT_EQ(x->ToString(100), "[Var(x(0)), Var(x(1) Removed), Var(x(2))]\n");
}

}  // namespace
