// The life of a model and its items: removal through the interfaces, resetting, clearing, copying.
#include <functional>

#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class CoreTest : public vorqtest::ModelTest {};

TEST_F(CoreTest, NewModelHasNoFailure) {
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(model_->GetErrorMessage(), nullptr);
}

TEST_F(CoreTest, SuccessKeepsTheTextOfAnEarlierFailure) {
  Fail();
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  AddVar("x");
  EXPECT_FAILURE(model_, 0, "(INVALID) Invalid col index");
}

TEST_F(CoreTest, RemovedColumnsGoWithTheNextAttribute) {
  auto const vars = AddVars(3);
  model_->Remove(ArrayOf({vars[0].get(), vars[1].get()}).get());
  EXPECT_CALLS(double_, {});
  EXPECT_EQ(model_->GetIntAttr("Cols"), 1);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 2, [0,1])", R"(VORQ_GetIntAttr(prob#1, "Cols", out))"});
  EXPECT_EQ(vars[0]->GetIdx(), -3);
  EXPECT_EQ(vars[1]->GetIdx(), -4);
  EXPECT_EQ(vars[2]->GetIdx(), 0);
}

TEST_F(CoreTest, ItemsAddedBeforeTheFlushAreRenumberedWithTheOthers) {
  auto const vars = AddVars(2);
  vars[0]->Remove();
  Var const added = AddVar("late");
  EXPECT_EQ(added->GetIdx(), 2);
  model_->Solve();
  EXPECT_EQ(vars[1]->GetIdx(), 0);
  EXPECT_EQ(added->GetIdx(), 1);
}

TEST_F(CoreTest, KindsAreDeletedInOrder) {
  auto const vars = AddVars(1);
  auto const constrs = AddConstrs(1);
  constrs[0]->Remove();
  vars[0]->Remove();
  model_->Solve();
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_DelRows(prob#1, 1, [0])", "VORQ_Solve(prob#1)"});
}

TEST_F(CoreTest, FailureOfALaterKindIsTriedAgainForThatKindOnly) {
  auto const vars = AddVars(1);
  auto const constrs = AddConstrs(1);
  constrs[0]->Remove();
  vars[0]->Remove();
  double_.FailNext("VORQ_DelRows", VORQ_INTERNAL);
  model_->Solve();
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to del rows");
  double_.ClearLog();
  model_->Solve();
  EXPECT_CALLS(double_, {"VORQ_DelRows(prob#1, 1, [0])", "VORQ_Solve(prob#1)"});
  EXPECT_SUCCESS(model_);
}

TEST_F(CoreTest, InvalidItemHasNoNameAndAClearStatus) {
  Var const var = Own(model_->GetVar(7));
  EXPECT_EQ(var->GetIdx(), -2);
  EXPECT_STREQ(var->GetName(), "");
  EXPECT_SUCCESS(var);
}

TEST_F(CoreTest, HandlesOfOneItemShareItsIdentity) {
  auto const vars = AddVars(1);
  Var const again = Own(model_->GetVar(0));
  again->Remove();
  EXPECT_EQ(vars[0]->GetIdx(), -3);
}

// ---- Clear

TEST_F(CoreTest, ClearTakesFourSteps) {
  auto const vars = AddVars(2);
  model_->Clear();
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_Reset(prob#1, 1)", "VORQ_ResetParam(prob#1)", "VORQ_SetCallback(prob#1, null, 0, null)",
                         "VORQ_ClearProb(prob#1)"});
  EXPECT_EQ(vars[1]->GetIdx(), 1);
  EXPECT_EQ(Own(model_->GetVars())->Size(), 0);
  EXPECT_EQ(AddVar("new")->GetIdx(), 0);
}

TEST_F(CoreTest, ClearStopsAtTheStepThatFails) {
  struct Step {
    char const* function;
    char const* text;
    std::size_t calls;
  };
  auto const vars = AddVars(1);
  for (Step const& step : {Step{"VORQ_Reset", "(MEMORY) Fail to reset solution and additional information", 1},
                           Step{"VORQ_ResetParam", "(MEMORY) Fail to reset parameter settings", 2},
                           Step{"VORQ_SetCallback", "(MEMORY) Fail to clean user callback", 3},
                           Step{"VORQ_ClearProb", "(MEMORY) Fail to clear problem", 4}}) {
    double_.ClearLog();
    double_.FailNext(step.function, VORQ_MEMORY);
    model_->Clear();
    EXPECT_FAILURE(model_, 1, step.text);
    EXPECT_EQ(double_.Calls().size(), step.calls);
    EXPECT_EQ(Own(model_->GetVar(0))->GetIdx(), 0);
  }
}

TEST_F(CoreTest, ClearAlsoForgetsTheMipStart) {
  auto const vars = AddVars(1);
  model_->SetMipStart(vars[0].get(), 1.0);
  model_->Clear();
  double_.ClearLog();
  model_->LoadMipStart();
  EXPECT_CALLS(double_, {});
}

TEST_F(CoreTest, FlushAfterClearFindsNothing) {
  auto const vars = AddVars(1);
  vars[0]->Remove();
  model_->Clear();
  double_.ClearLog();
  model_->Solve();
  EXPECT_CALLS(double_, {"VORQ_Solve(prob#1)"});
}

// ---- Reset

TEST_F(CoreTest, ResetsAreOneCallEach) {
  model_->Reset();
  model_->ResetAll();
  model_->ResetParam();
  EXPECT_CALLS(double_, {"VORQ_Reset(prob#1, 0)", "VORQ_Reset(prob#1, 1)", "VORQ_ResetParam(prob#1)"});
}

TEST_F(CoreTest, FailedResetsHaveTheirTexts) {
  double_.FailNext("VORQ_Reset", VORQ_INTERNAL);
  model_->Reset();
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to reset solution");
  double_.FailNext("VORQ_Reset", VORQ_INTERNAL);
  model_->ResetAll();
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to reset solution and additional information");
  double_.FailNext("VORQ_ResetParam", VORQ_INTERNAL);
  model_->ResetParam();
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to reset parameter settings");
}

// ---- Clone

TEST_F(CoreTest, CloneCopiesTheProblemAfterAFlush) {
  auto const vars = AddVars(2);
  vars[0]->Remove();
  auto const copy = Own(model_->Clone());
  EXPECT_SUCCESS(copy);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_CreateCopy(prob#1, out)"});
  EXPECT_EQ(Own(copy->GetVars())->Size(), 1);
  copy->Solve();
  EXPECT_CALLS_OF(double_, "VORQ_Solve", {"VORQ_Solve(prob#2)"});
}

TEST_F(CoreTest, CloneOutlivesItsSource) {
  auto const copy = Own(model_->Clone());
  model_.reset();
  copy->Solve();
  EXPECT_SUCCESS(copy);
}

TEST_F(CoreTest, CloneThatCannotBeMadeIsReportedOnTheSource) {
  AddVars(2);
  double_.FailNext("VORQ_CreateCopy", VORQ_MEMORY);
  auto const copy = Own(model_->Clone());
  EXPECT_FAILURE(model_, 1, "(MEMORY) Critical: fail to clone problem");
  EXPECT_SUCCESS(copy);
  EXPECT_EQ(Own(copy->GetVars())->Size(), 0);
}

TEST_F(CoreTest, CloneAfterAFailedFlushHasEmptyTables) {
  auto const vars = AddVars(2);
  vars[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  auto const copy = Own(model_->Clone());
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
  EXPECT_EQ(double_.CountCalls("VORQ_CreateCopy"), 1u);
  EXPECT_EQ(Own(copy->GetVars())->Size(), 0);
}

TEST_F(CoreTest, CloneLeavesTheMipStartBehind) {
  auto const vars = AddVars(1);
  model_->SetMipStart(vars[0].get(), 1.0);
  auto const copy = Own(model_->Clone());
  copy->LoadMipStart();
  EXPECT_EQ(double_.CountCalls("VORQ_AddMipStart"), 0u);
}

}  // namespace
