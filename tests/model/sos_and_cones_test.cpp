// Special ordered sets, cones and exponential cones: adding, and reading them back as builders.
#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class SosTest : public vorqtest::SpecialConstraintsTest {};
class ConeTest : public vorqtest::SpecialConstraintsTest {};
class ExpConeTest : public vorqtest::SpecialConstraintsTest {};

double const kWeights[] = {2.5, 1.5, 0.5};

TEST_F(SosTest, IsHandedOverAsABatchOfOne) {
  auto const sos = Own(model_->AddSos(ArrayOf({z_.get(), x_.get()}).get(), kWeights, 2));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(sos->GetIdx(), 0);
  EXPECT_CALLS(double_, {"VORQ_AddSOSs(prob#1, 1, [2], [0], [2], [2,0], [2.5,1.5])"});
}

TEST_F(SosTest, WeightsMayBeMissing) {
  Own(model_->AddSos(ArrayOf({x_.get(), y_.get()}).get(), nullptr, 1));
  EXPECT_CALLS(double_, {"VORQ_AddSOSs(prob#1, 1, [1], [0], [2], [0,1], null)"});
}

TEST_F(SosTest, BuilderGoesTheSameWay) {
  auto const builder = Own(CreateSosBuilder());
  builder->Set(ArrayOf({x_.get(), y_.get()}).get(), kWeights, 1);
  builder->Set(ArrayOf({z_.get()}).get(), kWeights, 2);
  Own(model_->AddSos(builder.get()));
  EXPECT_CALLS(double_, {"VORQ_AddSOSs(prob#1, 1, [2], [0], [3], [0,1,2], [2.5,1.5,2.5])"});
}

TEST_F(SosTest, BuilderWithoutWeightsNumbersItsVariables) {
  auto const builder = Own(CreateSosBuilder());
  builder->Set(ArrayOf({x_.get(), y_.get()}).get(), nullptr, 1);
  Own(model_->AddSos(builder.get()));
  EXPECT_CALLS(double_, {"VORQ_AddSOSs(prob#1, 1, [1], [0], [2], [0,1], [1,2])"});
}

TEST_F(SosTest, RemovedVariableIsRefused) {
  y_->Remove();
  EXPECT_EQ(Own(model_->AddSos(ArrayOf({x_.get(), y_.get()}).get(), kWeights, 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid variable");
  EXPECT_CALLS(double_, {});
}

TEST_F(SosTest, RefusedSetIsInvalidAndTakesNoIndex) {
  double_.FailNext("VORQ_AddSOSs", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddSos(ArrayOf({x_.get()}).get(), kWeights, 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add sos constraint");
  EXPECT_EQ(Own(model_->AddSos(ArrayOf({x_.get()}).get(), kWeights, 1))->GetIdx(), 0);
}

// Two sets, of which the model knows.
class SosReadingTest : public SosTest {
 protected:
  SosReadingTest() {
    for (auto& sos : soss_) sos = Own(model_->AddSos(ArrayOf({x_.get(), y_.get()}).get(), kWeights, 1));
    double_.Answer("VORQ_GetSOSs")
        .Set("types", {1, 2})
        .Set("begins", {0, 1})
        .Set("counts", {1, 2})
        .Set("cols", {2, 0, 1})
        .Set("weights", {0.5, 1.5, 2.5});
    double_.ClearLog();
  }

  std::unique_ptr<Vorq::ISos> soss_[2];
};

TEST_F(SosReadingTest, AllComeFromOnePairOfCalls) {
  auto const builders = Own(model_->GetSosBuilders());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetSOSs(prob#1, 2, null, null, null, null, null, null, 0, out)",
                         "VORQ_GetSOSs(prob#1, 2, null, out, out, out, out, out, 3, null)"});
  ASSERT_EQ(builders->Size(), 2);
  auto const second = Own(builders->Get(1));
  EXPECT_EQ(second->GetType(), 2);
  ASSERT_EQ(second->GetSize(), 2);
  EXPECT_EQ(Own(second->GetVar(0))->GetIdx(), 0);
  EXPECT_EQ(second->GetWeight(1), 2.5);
}

TEST_F(SosReadingTest, AnArrayChooses) {
  auto const chosen = Own(CreateSosArray());
  chosen->PushBack(*soss_[1]);
  chosen->PushBack(*soss_[0]);
  auto const builders = Own(model_->GetSosBuilders(chosen.get()));
  EXPECT_EQ(builders->Size(), 2);
  EXPECT_CALLS(double_, {"VORQ_GetSOSs(prob#1, 2, [1,0], null, null, null, null, null, 0, out)",
                         "VORQ_GetSOSs(prob#1, 2, [1,0], out, out, out, out, out, 3, null)"});
}

TEST_F(SosReadingTest, AnEmptyArrayStandsForAll) {
  EXPECT_EQ(Own(model_->GetSosBuilders(Own(CreateSosArray()).get()))->Size(), 2);
}

TEST_F(SosReadingTest, MarkedSetsAreLeftOut) {
  soss_[0]->Remove();
  auto const builders = Own(model_->GetSosBuilders());
  ASSERT_EQ(builders->Size(), 1);
  EXPECT_EQ(Own(builders->Get(0))->GetType(), 2);
  EXPECT_EQ(double_.CountCalls("VORQ_DelSOSs"), 0u);
}

TEST_F(SosReadingTest, FailuresTellWhichReadFailed) {
  double_.FailNth("VORQ_GetSOSs", 1, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetSosBuilders())->Size(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required SOS size");
  double_.FailNth("VORQ_GetSOSs", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetSosBuilders())->Size(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get row data");
}

TEST_F(SosReadingTest, UnknownColumnEndsTheList) {
  double_.Answer("VORQ_GetSOSs")
      .Set("types", {1, 2})
      .Set("begins", {0, 1})
      .Set("counts", {1, 1})
      .Set("cols", {2, 9})
      .Set("weights", {0.5, 1.5});
  EXPECT_EQ(Own(model_->GetSosBuilders())->Size(), 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

// ---- Cones

TEST_F(ConeTest, IsHandedOverAsABatchOfOne) {
  auto const cone = Own(model_->AddCone(ArrayOf({z_.get(), x_.get()}).get(), 1));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(cone->GetIdx(), 0);
  EXPECT_CALLS(double_, {"VORQ_AddCones(prob#1, 1, [1], [0], [2], [2,0])"});
}

TEST_F(ConeTest, BuilderGoesTheSameWay) {
  auto const builder = Own(CreateConeBuilder());
  builder->Set(ArrayOf({x_.get(), y_.get(), z_.get()}).get(), 2);
  Own(model_->AddCone(builder.get()));
  EXPECT_CALLS(double_, {"VORQ_AddCones(prob#1, 1, [2], [0], [3], [0,1,2])"});
}

TEST_F(ConeTest, RemovedVariableIsRefused) {
  y_->Remove();
  EXPECT_EQ(Own(model_->AddCone(ArrayOf({x_.get(), y_.get()}).get(), 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid variable");
  EXPECT_CALLS(double_, {});
}

TEST_F(ConeTest, RefusedConeIsInvalid) {
  double_.FailNext("VORQ_AddCones", VORQ_INVALID);
  EXPECT_EQ(Own(model_->AddCone(ArrayOf({x_.get()}).get(), 1))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add a cone");
}

TEST_F(ConeTest, TooSmallDimensionsAreRefused) {
  EXPECT_EQ(Own(model_->AddCone(1, 1, nullptr, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid dimension for cone");
  EXPECT_EQ(Own(model_->AddCone(2, 2, nullptr, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid dimension for rotated cone");
  EXPECT_CALLS(double_, {});
}

TEST_F(ConeTest, MakesItsVariables) {
  auto const cone = Own(model_->AddCone(3, 1, "BCC", "c"));
  EXPECT_EQ(cone->GetIdx(), 0);
  // The lower bound of a binary head is set twice, which does no harm.
  EXPECT_CALLS(double_, {"VORQ_AddCols(prob#1, 3, null, null, null, null, null, ['B','C','C'], [-1e+30,-1e+30,-1e+30], "
                         R"(null, ["c_3","c_4","c_5"]))",
                         "VORQ_SetColLower(prob#1, 1, [3], [0])", "VORQ_SetColLower(prob#1, 1, [3], [0])",
                         "VORQ_AddCones(prob#1, 1, [1], [0], [3], [3,4,5])"});
}

TEST_F(ConeTest, RotatedConeBoundsItsBinariesOnly) {
  Own(model_->AddCone(3, 2, "CBC", "c"));
  EXPECT_CALLS_OF(double_, "VORQ_SetColLower", {"VORQ_SetColLower(prob#1, 1, [4], [0])"});
}

TEST_F(ConeTest, OtherTypesAreNotChecked) {
  Own(model_->AddCone(1, 7, nullptr, "c"));
  EXPECT_CALLS(double_, {"VORQ_AddCols(prob#1, 1, null, null, null, null, null, null, [-1e+30], null, [\"c_3\"])",
                         "VORQ_AddCones(prob#1, 1, [7], [0], [1], [3])"});
}

TEST_F(ConeTest, VariablesThatCannotBeMadeEndTheOperation) {
  double_.FailNext("VORQ_AddCols", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddCone(3, 1, nullptr, "c"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add vars");
  EXPECT_EQ(double_.CountCalls("VORQ_AddCones"), 0u);
}

TEST_F(ConeTest, BuildersComeFromOnePairOfCalls) {
  Own(model_->AddCone(ArrayOf({x_.get(), y_.get()}).get(), 1));
  double_.Answer("VORQ_GetCones").Set("types", {1}).Set("begins", {0}).Set("counts", {2}).Set("cols", {1, 0});
  double_.ClearLog();
  auto const builders = Own(model_->GetConeBuilders());
  EXPECT_CALLS(double_, {"VORQ_GetCones(prob#1, 1, null, null, null, null, null, 0, out)",
                         "VORQ_GetCones(prob#1, 1, null, out, out, out, out, 2, null)"});
  ASSERT_EQ(builders->Size(), 1);
  auto const builder = Own(builders->Get(0));
  EXPECT_EQ(builder->GetType(), 1);
  ASSERT_EQ(builder->GetSize(), 2);
  EXPECT_EQ(Own(builder->GetVar(0))->GetIdx(), 1);
}

TEST_F(ConeTest, BuildersOfChosenCones) {
  auto const chosen = Own(CreateConeArray());
  for (int i = 0; i < 2; ++i) chosen->PushBack(*Own(model_->AddCone(ArrayOf({x_.get(), y_.get()}).get(), 1)));
  double_.Answer("VORQ_GetCones").Set("types", {1, 1}).Set("begins", {0, 1}).Set("counts", {1, 1}).Set("cols", {0, 1});
  double_.ClearLog();
  EXPECT_EQ(Own(model_->GetConeBuilders(chosen.get()))->Size(), 2);
  EXPECT_EQ(double_.Calls()[0], "VORQ_GetCones(prob#1, 2, [0,1], null, null, null, null, 0, out)");
}

TEST_F(ConeTest, ReadsThatFailHaveTheirTexts) {
  double_.FailNth("VORQ_GetCones", 1, VORQ_INTERNAL);
  Own(model_->GetConeBuilders());
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get required cone size");
  double_.FailNth("VORQ_GetCones", 2, VORQ_INTERNAL);
  Own(model_->GetConeBuilders());
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get cones");
}

// ---- Exponential cones

TEST_F(ExpConeTest, NeedsThreeVariables) {
  Var const w = AddVar("w");
  double_.ClearLog();
  EXPECT_EQ(Own(model_->AddExpCone(ArrayOf({x_.get(), y_.get(), z_.get(), w.get()}).get(), 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid dimension of variable array for exponential cone");
  EXPECT_CALLS(double_, {});
}

TEST_F(ExpConeTest, IsHandedOverAsABatchOfOne) {
  auto const vars = ArrayOf({x_.get(), z_.get(), y_.get()});
  EXPECT_EQ(Own(model_->AddExpCone(vars.get(), 4))->GetIdx(), 0);
  auto const builder = Own(CreateExpConeBuilder());
  builder->Set(vars.get(), 3);
  EXPECT_EQ(Own(model_->AddExpCone(builder.get()))->GetIdx(), 1);
  EXPECT_CALLS(double_, {"VORQ_AddExpCones(prob#1, 1, [4], [0,2,1])", "VORQ_AddExpCones(prob#1, 1, [3], [0,2,1])"});
}

TEST_F(ExpConeTest, RemovedVariableIsRefused) {
  z_->Remove();
  EXPECT_EQ(Own(model_->AddExpCone(ArrayOf({x_.get(), y_.get(), z_.get()}).get(), 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid variable");
}

TEST_F(ExpConeTest, RefusedConeIsInvalid) {
  double_.FailNext("VORQ_AddExpCones", VORQ_INVALID);
  EXPECT_EQ(Own(model_->AddExpCone(ArrayOf({x_.get(), y_.get(), z_.get()}).get(), 3))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add an exponential cone");
}

TEST_F(ExpConeTest, MakesVariablesOfTheTwoTypesOnly) {
  for (int type : {2, 5}) {
    EXPECT_EQ(Own(model_->AddExpCone(type, nullptr, "e"))->GetIdx(), -2);
    EXPECT_FAILURE(model_, 3, "(INVALID) Invalid type for exponential cone");
  }
  EXPECT_CALLS(double_, {});
}

TEST_F(ExpConeTest, PrimalConeBoundsItsFirstVariableBelow) {
  Own(model_->AddExpCone(3, "CCB", "e"));
  EXPECT_CALLS(double_, {"VORQ_AddCols(prob#1, 3, null, null, null, null, null, ['C','C','B'], [-1e+30,-1e+30,-1e+30], "
                         R"(null, ["e_3","e_4","e_5"]))",
                         "VORQ_SetColLower(prob#1, 1, [3], [0])", "VORQ_SetColLower(prob#1, 1, [5], [0])",
                         "VORQ_AddExpCones(prob#1, 1, [3], [3,4,5])"});
}

TEST_F(ExpConeTest, DualConeBoundsItsThirdVariableAbove) {
  Own(model_->AddExpCone(4, nullptr, "e"));
  EXPECT_CALLS_OF(double_, "VORQ_SetColUpper", {"VORQ_SetColUpper(prob#1, 1, [5], [0])"});
  EXPECT_EQ(double_.CountCalls("VORQ_SetColLower"), 0u);
}

TEST_F(ExpConeTest, VariablesThatCannotBeMadeEndTheOperation) {
  double_.FailNext("VORQ_AddCols", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddExpCone(3, nullptr, "e"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add vars");
}

TEST_F(ExpConeTest, BuildersComeFromOnePairOfCalls) {
  auto const chosen = Own(CreateExpConeArray());
  auto const vars = ArrayOf({x_.get(), y_.get(), z_.get()});
  for (int i = 0; i < 2; ++i) chosen->PushBack(*Own(model_->AddExpCone(vars.get(), 3)));
  double_.Answer("VORQ_GetExpCones").Set("types", {3, 4}).Set("cols", {0, 1, 2, 2, 1, 0});
  double_.ClearLog();
  auto const builders = Own(model_->GetExpConeBuilders());
  ASSERT_EQ(builders->Size(), 2);
  auto const second = Own(builders->Get(1));
  EXPECT_EQ(second->GetType(), 4);
  ASSERT_EQ(second->GetSize(), 3);
  EXPECT_EQ(Own(second->GetVar(0))->GetIdx(), 2);
  EXPECT_EQ(Own(model_->GetExpConeBuilders(chosen.get()))->Size(), 2);
  EXPECT_CALLS(double_, {"VORQ_GetExpCones(prob#1, 2, null, null, null, 0, out)",
                         "VORQ_GetExpCones(prob#1, 2, null, out, out, 6, null)",
                         "VORQ_GetExpCones(prob#1, 2, [0,1], null, null, 0, out)",
                         "VORQ_GetExpCones(prob#1, 2, [0,1], out, out, 6, null)"});
}

TEST_F(ExpConeTest, ReadsThatFailHaveTheirTexts) {
  double_.FailNth("VORQ_GetExpCones", 1, VORQ_INTERNAL);
  Own(model_->GetExpConeBuilders());
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get required exponential cone size");
  double_.FailNth("VORQ_GetExpCones", 2, VORQ_INTERNAL);
  Own(model_->GetExpConeBuilders());
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get exponential cones");
}

}  // namespace
