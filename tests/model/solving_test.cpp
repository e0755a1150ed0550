// Running the solver and reading what it found; IIS, relaxation, tuning, MIP starts, log, interruption.
#include <cstdio>
#include <functional>
#include <thread>

#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class SolvingTest : public vorqtest::ModelTest {
 protected:
  SolvingTest() : vars_(AddVars(3)), constrs_(AddConstrs(2)) {}

  std::vector<Var> vars_;
  std::vector<Constr> constrs_;
  double numbers_[8] = {};
  int ints_[8] = {};
};

// An operation, the call that it makes, and the text of its failure.
struct Operation {
  char const* function;
  char const* call;
  char const* text;
  bool flushes;
  std::function<void(Vorq::IModel&)> run;
};

std::vector<Operation> Operations(double* numbers, int* ints) {
  using Model = Vorq::IModel;
  return {
      {"VORQ_Solve", "VORQ_Solve(prob#1)", "Fail to solve problem", true, [](Model& m) { m.Solve(); }},
      {"VORQ_SolveLp", "VORQ_SolveLp(prob#1)", "Fail to solve problem as LP", true, [](Model& m) { m.SolveLp(); }},
      {"VORQ_ComputeIIS", "VORQ_ComputeIIS(prob#1)", "Fail to compute IIS", true, [](Model& m) { m.ComputeIIS(); }},
      {"VORQ_Tune", "VORQ_Tune(prob#1)", "Fail to tune model", true, [](Model& m) { m.Tune(); }},
      {"VORQ_LoadTuneParam", "VORQ_LoadTuneParam(prob#1, 3)", "Fail to load tuned parameters to model", true,
       [](Model& m) { m.LoadTuneParam(3); }},
      {"VORQ_Interrupt", "VORQ_Interrupt(prob#1)", "Fail to call interrupt", false, [](Model& m) { m.Interrupt(); }},
      {"VORQ_GetSolution", "VORQ_GetSolution(prob#1, out)", "Failed to get MIP solution", true,
       [=](Model& m) { m.GetSolution(numbers); }},
      {"VORQ_GetLpSolution", "VORQ_GetLpSolution(prob#1, null, out, null, null)", "Fail to get LP solution", true,
       [=](Model& m) { m.GetLpSolution(nullptr, numbers, nullptr, nullptr); }},
      {"VORQ_GetPSDSolution", "VORQ_GetPSDSolution(prob#1, null, null, null, out)", "Fail to get PSD solution", true,
       [=](Model& m) { m.GetPsdSolution(nullptr, nullptr, nullptr, numbers); }},
      {"VORQ_GetLMISolution", "VORQ_GetLMISolution(prob#1, null, out)", "Fail to get LMI solution", true,
       [=](Model& m) { m.GetLmiSolution(nullptr, numbers); }},
      {"VORQ_SetSlackBasis", "VORQ_SetSlackBasis(prob#1)", "Fail to set slack basis", true,
       [](Model& m) { m.SetSlackBasis(); }},
      {"VORQ_SetBasis", "VORQ_SetBasis(prob#1, null, null)", "Fail to set basis", true,
       [](Model& m) { m.SetBasis(nullptr, nullptr); }},
      {"VORQ_GetBasis", "VORQ_GetBasis(prob#1, out, null)", "Fail to get col basis", true,
       [=](Model& m) { m.GetColBasis(ints); }},
      {"VORQ_GetBasis", "VORQ_GetBasis(prob#1, null, out)", "Fail to get row basis", true,
       [=](Model& m) { m.GetRowBasis(ints); }},
      {"VORQ_GetPoolObjVal", "VORQ_GetPoolObjVal(prob#1, 2, out)", "Fail to get objective value from solution pool",
       true, [](Model& m) { m.GetPoolObjVal(2); }},
  };
}

TEST_F(SolvingTest, EachOperationIsOneCallAndClearsAFailure) {
  for (Operation const& operation : Operations(numbers_, ints_)) {
    Fail();
    double_.ClearLog();
    operation.run(*model_);
    EXPECT_SUCCESS(model_);
    EXPECT_CALLS(double_, {operation.call});
  }
}

TEST_F(SolvingTest, EachOperationHasItsFailureText) {
  for (Operation const& operation : Operations(numbers_, ints_)) {
    double_.FailNext(operation.function, VORQ_NONCONVEX);
    operation.run(*model_);
    std::string const text = std::string("(NONCONVEX) ") + operation.text;
    EXPECT_FAILURE(model_, 8, text.c_str());
  }
}

TEST_F(SolvingTest, OperationsFlushAndStopAtAFailedFlush) {
  for (Operation const& operation : Operations(numbers_, ints_)) {
    Var const doomed = AddVar("doomed");
    doomed->Remove();
    double_.ClearLog();
    if (operation.flushes) {
      double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
      operation.run(*model_);
      EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
      EXPECT_EQ(double_.Calls().size(), 1u) << operation.function;
    } else {
      operation.run(*model_);
      EXPECT_CALLS(double_, {operation.call});
    }
    model_->Solve();
  }
}

// ---- Solutions

TEST_F(SolvingTest, MissingBuffersAreSilent) {
  Fail();
  vars_[0]->Remove();
  double_.ClearLog();
  model_->GetSolution(nullptr);
  model_->GetLpSolution(nullptr, nullptr, nullptr, nullptr);
  model_->GetPsdSolution(nullptr, nullptr, nullptr, nullptr);
  model_->GetLmiSolution(nullptr, nullptr);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(SolvingTest, SetLpSolutionWantsAllFour) {
  model_->SetLpSolution(numbers_, numbers_, nullptr, numbers_);
  EXPECT_CALLS(double_, {});
  model_->SetLpSolution(numbers_, numbers_, numbers_, numbers_);
  EXPECT_CALLS(double_, {"VORQ_SetLpSolution(prob#1, [0,0,0], [0,0], [0,0], [0,0,0])"});
  double_.FailNext("VORQ_SetLpSolution", VORQ_INVALID);
  model_->SetLpSolution(numbers_, numbers_, numbers_, numbers_);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to set LP solution");
}

TEST_F(SolvingTest, BasisGettersReturnTheCount) {
  EXPECT_EQ(model_->GetColBasis(ints_), 3);
  EXPECT_EQ(model_->GetRowBasis(ints_), 2);
}

TEST_F(SolvingTest, BasisGettersWithoutABufferOnlyCount) {
  EXPECT_EQ(model_->GetColBasis(nullptr), 3);
  EXPECT_EQ(model_->GetRowBasis(nullptr), 2);
  EXPECT_CALLS(double_, {});
  Fail();
  EXPECT_EQ(model_->GetColBasis(nullptr), -1);
  EXPECT_EQ(model_->GetRowBasis(nullptr), -1);
}

TEST_F(SolvingTest, BasisGettersReturnMinusOneOnFailure) {
  double_.FailNext("VORQ_GetBasis", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetColBasis(ints_), -1);
  vars_[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetRowBasis(ints_), -1);
}

TEST_F(SolvingTest, PoolObjectiveIsInfiniteWhenTheFlushFails) {
  double_.Answer("VORQ_GetPoolObjVal").Set("value", 4.5);
  EXPECT_EQ(model_->GetPoolObjVal(0), 4.5);
  vars_[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetPoolObjVal(0), 1e30);
}

TEST_F(SolvingTest, PoolSolutionIsReadForLiveVariables) {
  vars_[1]->Remove();
  auto const vars = ArrayOf({vars_[2].get(), vars_[1].get(), vars_[0].get()});
  double_.Values("VORQ_GetPoolSolution", {10.0, 11.0, 12.0});
  EXPECT_EQ(model_->GetPoolSolution(4, vars.get(), numbers_), 2);
  EXPECT_CALLS(double_, {"VORQ_GetPoolSolution(prob#1, 4, 2, [2,0], out)"});
}

TEST_F(SolvingTest, CountsAreReturnedAlsoWhenTheCallFailed) {
  auto const vars = ArrayOf({vars_[2].get()});
  double_.FailNext("VORQ_GetPoolSolution", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetPoolSolution(4, vars.get(), numbers_), 1);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get solution values from solution pool");
  double_.FailNext("VORQ_GetColLowerIIS", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetColLowerIIS(vars.get(), ints_), 1);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get IIS status of variables");
}

TEST_F(SolvingTest, IISGettersPassOverRemovedItems) {
  vars_[0]->Remove();
  constrs_[0]->Remove();
  auto const vars = ArrayOf({vars_[0].get(), vars_[2].get(), vars_[1].get()});
  auto const constrs = ArrayOf({constrs_[0].get(), constrs_[1].get()});
  EXPECT_EQ(model_->GetColLowerIIS(vars.get(), ints_), 2);
  EXPECT_EQ(model_->GetColUpperIIS(vars.get(), ints_), 2);
  EXPECT_EQ(model_->GetRowLowerIIS(constrs.get(), ints_), 1);
  EXPECT_EQ(model_->GetRowUpperIIS(constrs.get(), ints_), 1);
  EXPECT_EQ(model_->GetSOSIIS(Own(CreateSosArray()).get(), ints_), 0);
  EXPECT_EQ(model_->GetIndicatorIIS(Own(CreateGenConstrArray()).get(), ints_), 0);
  EXPECT_CALLS(double_, {"VORQ_GetColLowerIIS(prob#1, 2, [2,1], out)", "VORQ_GetColUpperIIS(prob#1, 2, [2,1], out)",
                         "VORQ_GetRowLowerIIS(prob#1, 1, [1], out)", "VORQ_GetRowUpperIIS(prob#1, 1, [1], out)",
                         "VORQ_GetSOSIIS(prob#1, 0, [], out)", "VORQ_GetIndicatorIIS(prob#1, 0, [], out)"});
}

TEST_F(SolvingTest, IISGettersHaveTheirTexts) {
  auto const constrs = Own(CreateConstrArray());
  for (char const* function : {"VORQ_GetRowLowerIIS", "VORQ_GetRowUpperIIS", "VORQ_GetColUpperIIS", "VORQ_GetSOSIIS",
                               "VORQ_GetIndicatorIIS"}) {
    double_.FailNext(function, VORQ_INTERNAL);
  }
  model_->GetRowLowerIIS(constrs.get(), ints_);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get IIS status of constraints");
  model_->GetRowUpperIIS(constrs.get(), ints_);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get IIS status of constraints");
  model_->GetColUpperIIS(Own(CreateVarArray()).get(), ints_);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get IIS status of variables");
  model_->GetSOSIIS(Own(CreateSosArray()).get(), ints_);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get IIS status of SOS constraints");
  model_->GetIndicatorIIS(Own(CreateGenConstrArray()).get(), ints_);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get IIS status of indicator constraints");
}

// ---- Relaxation

TEST_F(SolvingTest, PenaltiesAreScatteredByIndex) {
  double_.DblParam("InfBound", 1e20);
  double const low[] = {1.5, 2.5};
  double const upp[] = {3.5, 4.5};
  double const row[] = {5.5};
  model_->FeasRelax(ArrayOf({vars_[2].get(), vars_[0].get()}).get(), low, upp, ArrayOf({constrs_[1].get()}).get(), row,
                    nullptr);
  EXPECT_CALLS(double_, {R"(VORQ_GetDblParam(prob#1, "InfBound", out))",
                         "VORQ_FeasRelax(prob#1, [2.5,1e+20,1.5], [4.5,1e+20,3.5], [1e+20,5.5], null)"});
}

TEST_F(SolvingTest, PenaltiesOfRemovedItemsAreDropped) {
  double_.DblParam("InfBound", 1e20);
  double const low[] = {1.5, 2.5};
  vars_[0]->Remove();
  model_->FeasRelax(ArrayOf({vars_[0].get(), vars_[1].get()}).get(), low, nullptr, Own(CreateConstrArray()).get(), low,
                    low);
  EXPECT_EQ(double_.Calls().back(), "VORQ_FeasRelax(prob#1, [2.5,1e+20], null, null, null)");
}

TEST_F(SolvingTest, RelaxationOfNothingMakesNoCall) {
  Fail();
  model_->FeasRelax(Own(CreateVarArray()).get(), numbers_, numbers_, Own(CreateConstrArray()).get(), numbers_,
                    numbers_);
  model_->FeasRelax(0, 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(SolvingTest, RelaxationByFlags) {
  model_->FeasRelax(1, 0);
  model_->FeasRelax(0, -1);
  model_->FeasRelax(1, 1);
  EXPECT_CALLS(double_, {"VORQ_FeasRelax(prob#1, [1,1,1], [1,1,1], null, null)",
                         "VORQ_FeasRelax(prob#1, null, null, [1,1], null)",
                         "VORQ_FeasRelax(prob#1, [1,1,1], [1,1,1], [1,1], null)"});
}

TEST_F(SolvingTest, RefusedRelaxationHasItsText) {
  double_.FailNext("VORQ_FeasRelax", VORQ_INVALID);
  model_->FeasRelax(1, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to call FeasRelax");
}

// ---- MIP starts

TEST_F(SolvingTest, StartValuesFillLiveVariablesInOrder) {
  vars_[0]->Remove();
  Var const more = AddVar("more");
  double_.ClearLog();
  double const values[] = {1.0, 2.0, 3.0, 4.0};
  model_->SetMipStart(3, values);
  EXPECT_CALLS(double_, {});
  double_.On("VORQ_AddMipStart", [](vorqtest::DoubleCall& call) {
    // The order of the pairs is free; after the flush, column i takes value i + 1.
    int index[3] = {-1, -1, -1}, value[3] = {};
    std::sscanf(call.text.c_str(), "VORQ_AddMipStart(prob#1, 3, [%d,%d,%d], [%d,%d,%d])", &index[0], &index[1],
                &index[2], &value[0], &value[1], &value[2]);
    for (int k = 0; k < 3; ++k) EXPECT_EQ(value[k], index[k] + 1) << call.text;
    return 0;
  });
  model_->LoadMipStart();
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(double_.CountCalls("VORQ_AddMipStart"), 1u);
}

TEST_F(SolvingTest, LaterStartValueReplacesTheFormer) {
  Var const again = Own(model_->GetVar(1));
  model_->SetMipStart(vars_[1].get(), 1.0);
  model_->SetMipStart(again.get(), 2.0);
  model_->LoadMipStart();
  EXPECT_CALLS(double_, {"VORQ_AddMipStart(prob#1, 1, [1], [2])"});
}

TEST_F(SolvingTest, StartValuesOfRemovedVariablesAreFiltered) {
  double const values[] = {1.0, 2.0};
  vars_[0]->Remove();
  model_->SetMipStart(vars_[0].get(), 1.0);
  model_->SetMipStart(ArrayOf({vars_[0].get(), vars_[1].get()}).get(), values);
  model_->LoadMipStart();
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_AddMipStart(prob#1, 1, [0], [2])"});
}

TEST_F(SolvingTest, EmptyStartMakesNoCall) {
  model_->SetMipStart(vars_[1].get(), 1.0);
  model_->LoadMipStart();
  double_.ClearLog();
  model_->LoadMipStart();
  EXPECT_CALLS(double_, {});
}

TEST_F(SolvingTest, SurplusStartValuesAreIgnored) {
  double const values[] = {1.0, 2.0, 3.0, 4.0, 5.0};
  model_->SetMipStart(5, values);
  model_->SetMipStart(0, values);
  model_->SetMipStart(-1, nullptr);
  model_->LoadMipStart();
  EXPECT_EQ(double_.Calls().back().substr(0, 27), "VORQ_AddMipStart(prob#1, 3,");
}

TEST_F(SolvingTest, RefusedStartIsLost) {
  model_->SetMipStart(vars_[1].get(), 1.0);
  double_.FailNext("VORQ_AddMipStart", VORQ_INVALID);
  model_->LoadMipStart();
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add MIP start information");
  double_.ClearLog();
  model_->LoadMipStart();
  EXPECT_CALLS(double_, {});
}

TEST_F(SolvingTest, StartSurvivesAFailedFlush) {
  model_->SetMipStart(vars_[1].get(), 1.0);
  vars_[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  model_->LoadMipStart();
  double_.ClearLog();
  model_->LoadMipStart();
  EXPECT_EQ(double_.CountCalls("VORQ_AddMipStart"), 1u);
}

// ---- Log and interruption

TEST_F(SolvingTest, LogFileReturnsTheCodeAndLeavesTheStatus) {
  EXPECT_EQ(model_->SetLogFile("run.log"), 0);
  double_.FailNext("VORQ_SetLogFile", VORQ_FILE);
  EXPECT_EQ(model_->SetLogFile(nullptr), 2);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {R"(VORQ_SetLogFile(prob#1, "run.log"))", "VORQ_SetLogFile(prob#1, null)"});
}

TEST_F(SolvingTest, LogLinesGoToTheSink) {
  struct Sink : Vorq::ILogSink {
    void Log(char const* text) override { lines.emplace_back(text); }
    std::vector<std::string> lines;
  } sink;
  EXPECT_EQ(model_->SetLogCallback(&sink), 0);
  double_.SendLogLine("first");
  double_.SendLogLine("second");
  EXPECT_EQ(sink.lines, (std::vector<std::string>{"first", "second"}));
  EXPECT_EQ(model_->SetLogCallback(nullptr), 0);
  double_.SendLogLine("third");
  EXPECT_EQ(sink.lines.size(), 2u);
  double_.FailNext("VORQ_SetLogCallback", VORQ_INTERNAL);
  EXPECT_EQ(model_->SetLogCallback(&sink), 5);
  EXPECT_SUCCESS(model_);
}

TEST_F(SolvingTest, InterruptDuringASolveLeavesTheStatusToTheSolve) {
  double_.On("VORQ_Solve", [this](vorqtest::DoubleCall&) {
    std::thread([this] { model_->Interrupt(); }).join();
    return VORQ_INTERNAL;
  });
  double_.FailNext("VORQ_Interrupt", VORQ_THREAD);
  model_->Solve();
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to solve problem");
  EXPECT_EQ(double_.CountCalls("VORQ_Interrupt"), 1u);
}

}  // namespace
