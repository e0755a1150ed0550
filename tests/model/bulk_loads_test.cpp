// Loading pieces of a problem, and a whole one with cones, from arrays.
#include "tests/model/cone_problem_arrays.hpp"
#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class BulkLoadsTest : public vorqtest::SpecialConstraintsTest {
 protected:
  int const ints_[6] = {1, 2, 3, 0, 1, 2};
  double const numbers_[2] = {1.5, 2.5};
};

TEST_F(BulkLoadsTest, QuadraticObjectiveFlushesFirst) {
  x_->Remove();
  model_->LoadQ(2, ints_, ints_ + 1, numbers_);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_SetQuadObj(prob#1, 2, [1,2], [2,3], [1.5,2.5])"});
}

TEST_F(BulkLoadsTest, ConesStartWhereTheLastOneEnds) {
  x_->Remove();
  model_->LoadCone(3, ints_, ints_, ints_);
  model_->LoadCone(1, nullptr, ints_ + 1, ints_);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_,
               {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_AddCones(prob#1, 3, [1,2,3], [0,1,3], [1,2,3], [1,2,3,0,1,2])",
                "VORQ_AddCones(prob#1, 1, null, [0], [2], [1,2])"});
}

TEST_F(BulkLoadsTest, ConesMakeNoItems) {
  model_->LoadCone(1, ints_, ints_ + 1, ints_);
  model_->LoadExpCone(1, nullptr, ints_);
  EXPECT_EQ(Own(model_->GetCones())->Size(), 0);
  EXPECT_EQ(Own(model_->GetExpCones())->Size(), 0);
}

TEST_F(BulkLoadsTest, ExponentialConesFlushFirst) {
  x_->Remove();
  model_->LoadExpCone(2, ints_, ints_);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_AddExpCones(prob#1, 2, [1,2], [1,2,3,0,1,2])"});
}

TEST_F(BulkLoadsTest, MissingArraysDoNothing) {
  Fail();
  x_->Remove();
  model_->LoadQ(0, ints_, ints_, numbers_);
  model_->LoadQ(1, nullptr, ints_, numbers_);
  model_->LoadQ(1, ints_, nullptr, numbers_);
  model_->LoadQ(1, ints_, ints_, nullptr);
  model_->LoadCone(0, ints_, ints_, ints_);
  model_->LoadCone(1, ints_, nullptr, ints_);
  model_->LoadCone(1, ints_, ints_, nullptr);
  model_->LoadExpCone(0, ints_, ints_);
  model_->LoadExpCone(1, ints_, nullptr);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(BulkLoadsTest, RefusedPiecesHaveTheirTexts) {
  double_.FailNext("VORQ_SetQuadObj", VORQ_MEMORY);
  model_->LoadQ(1, ints_, ints_, numbers_);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to load Q objective");
  double_.FailNext("VORQ_AddCones", VORQ_MEMORY);
  model_->LoadCone(1, ints_, ints_, ints_);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to load cone data");
  double_.FailNext("VORQ_AddExpCones", VORQ_MEMORY);
  model_->LoadExpCone(1, ints_, ints_);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to load exponential cone data");
}

TEST_F(BulkLoadsTest, ConeProblemReplacesTheProblem) {
  double_.Answer("VORQ_GetPSDCols").Set("dims", {2});
  vorqtest::LoadConeProblem(*model_, {5, 6, 7});
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(double_.Calls()[0],
            "VORQ_LoadConeProb(prob#1, 3, 1, 1, 1, 1, 1, 1, 1, [2], [0,1], [1], [0], [0.5], 1, 0, [1,2,3], [0,1,1], "
            "[1,0,0], [0], [4], ['C','I','C'], [5,6,7], [8,9,10], [11], [12], [0], [1], [13], [1], [2], [0,1], [3], "
            "[2,1,0], [2], null, null, null, [0])");
  EXPECT_EQ(Own(model_->GetVars())->Size(), 3);
  EXPECT_EQ(Own(model_->GetCones())->Size(), 1);
  EXPECT_EQ(Own(model_->GetExpCones())->Size(), 1);
  EXPECT_EQ(Own(model_->GetPsdVar(0))->GetDim(), 2);
}

TEST_F(BulkLoadsTest, RefusedConeProblemLeavesTheTables) {
  double_.FailNext("VORQ_LoadConeProb", VORQ_INVALID);
  model_->LoadConeMatrix(0, 0, 0, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                         nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                         nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to load cone problem by matrix");
  EXPECT_EQ(Own(model_->GetVar(2))->GetIdx(), 2);
}

}  // namespace
