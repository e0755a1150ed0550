// Parameters and attributes by name, and information of many items at once.
#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

constexpr int kNoInt = -2147483647 - 1;
constexpr double kNoDouble = -2147483648.0;

class ParametersTest : public vorqtest::ModelTest {};

TEST_F(ParametersTest, NamesOfAnyCaseReachTheSolverLibraryInTheirSpelling) {
  double_.IntParam("Threads", 4).DblParam("TimeLimit", 1.5);
  EXPECT_EQ(model_->GetIntParam("THREADS"), 4);
  EXPECT_EQ(model_->GetDblParam("timelimit"), 1.5);
  model_->SetIntParam("threads", 2);
  model_->SetDblParam("TIMELIMIT", 2.5);
  EXPECT_CALLS(double_, {R"(VORQ_GetIntParam(prob#1, "Threads", out))", R"(VORQ_GetDblParam(prob#1, "TimeLimit", out))",
                         R"(VORQ_SetIntParam(prob#1, "Threads", 2))", R"(VORQ_SetDblParam(prob#1, "TimeLimit", 2.5))"});
}

TEST_F(ParametersTest, ParametersOfAnotherKindAreRefused) {
  int i = 0;
  double d = 0.0;
  EXPECT_EQ(model_->GetIntParam("tImELimit"), kNoInt);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ int parameter");
  EXPECT_EQ(model_->GetDblParam("Threads"), kNoDouble);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ double parameter");
  model_->SetIntParam("Cols", 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ int parameter");
  model_->SetDblParam("Threads", 1.0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ double parameter");
  model_->GetParamInfo("TimeLimit", &i, &i, &i, &i);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ int parameter");
  model_->GetParamInfo("Threads", &d, &d, &d, &d);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ double parameter");
  EXPECT_CALLS(double_, {});
}

TEST_F(ParametersTest, AttributesOfAnotherKindAreRefused) {
  EXPECT_EQ(model_->GetIntAttr("ObjConst"), kNoInt);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ int attribute");
  EXPECT_EQ(model_->GetDblAttr("Cols"), kNoDouble);
  EXPECT_FAILURE(model_, 3, "(INVALID) Not VORQ double attribute");
}

TEST_F(ParametersTest, UnknownNamesAreSearchedByTheSolverLibraryAndRefused) {
  EXPECT_EQ(model_->GetIntParam("NoSuchName"), kNoInt);
  EXPECT_FAILURE(model_, 3, "(INVALID) Unknown VORQ parameter");
  EXPECT_EQ(model_->GetDblAttr("NoSuchName"), kNoDouble);
  EXPECT_FAILURE(model_, 3, "(INVALID) Unknown VORQ attribute");
  EXPECT_CALLS(double_, {R"(VORQ_SearchParamAttr(null, "NoSuchName", out))",
                         R"(VORQ_SearchParamAttr(null, "NoSuchName", out))"});
}

TEST_F(ParametersTest, MissingNamesAreUnknownWithoutASearch) {
  for (char const* name : {static_cast<char const*>(nullptr), ""}) {
    EXPECT_EQ(model_->GetIntAttr(name), kNoInt);
    EXPECT_FAILURE(model_, 3, "(INVALID) Unknown VORQ attribute");
    model_->SetDblParam(name, 1.0);
    EXPECT_FAILURE(model_, 3, "(INVALID) Unknown VORQ parameter");
    EXPECT_EQ(model_->SearchParamAttr(name), -1);
  }
  EXPECT_CALLS(double_, {});
}

TEST_F(ParametersTest, HiddenNamesGoThroughTheSolverLibrarysSearch) {
  double_.DblParam("InfBound", 1e20);
  EXPECT_EQ(model_->GetDblParam("InfBound"), 1e20);
  EXPECT_CALLS(double_,
               {R"(VORQ_SearchParamAttr(null, "InfBound", out))", R"(VORQ_GetDblParam(prob#1, "InfBound", out))"});
}

TEST_F(ParametersTest, FailedSearchThrowsAndLeavesTheStatus) {
  double_.FailNext("VORQ_SearchParamAttr", VORQ_SERVER);
  try {
    model_->GetIntAttr("NoSuchName");
    FAIL() << "nothing was thrown";
  } catch (Vorq::Exception const& exception) {
    EXPECT_EQ(exception.code, 7);
  }
  EXPECT_SUCCESS(model_);
}

TEST_F(ParametersTest, SearchTellsTheKind) {
  EXPECT_EQ(model_->SearchParamAttr("timelimit"), 0);
  EXPECT_EQ(model_->SearchParamAttr("threads"), 1);
  EXPECT_EQ(model_->SearchParamAttr("objconst"), 2);
  EXPECT_EQ(model_->SearchParamAttr("cols"), 3);
  EXPECT_EQ(model_->SearchParamAttr("NoSuchName"), -1);
}

TEST_F(ParametersTest, ReadsClearAnEarlierFailure) {
  Fail();
  model_->GetIntParam("Threads");
  EXPECT_SUCCESS(model_);
}

TEST_F(ParametersTest, RefusedAccessHasItsText) {
  double_.FailNext("VORQ_GetIntParam", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetIntParam("Threads"), kNoInt);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to get int param value");
  double_.FailNext("VORQ_GetDblParam", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetDblParam("TimeLimit"), kNoDouble);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to get double param value");
  double_.FailNext("VORQ_SetIntParam", VORQ_INTERNAL);
  model_->SetIntParam("Threads", 1);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to set int param");
  double_.FailNext("VORQ_SetDblParam", VORQ_INTERNAL);
  model_->SetDblParam("TimeLimit", 1.0);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to set double param");
  double_.FailNext("VORQ_GetIntAttr", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetIntAttr("Cols"), kNoInt);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to get int attribute");
  double_.FailNext("VORQ_GetDblAttr", VORQ_INTERNAL);
  EXPECT_EQ(model_->GetDblAttr("ObjConst"), kNoDouble);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get double attribute");
}

TEST_F(ParametersTest, AttributesFlushAndParametersDoNot) {
  auto const vars = AddVars(2);
  vars[0]->Remove();
  model_->GetIntParam("Threads");
  EXPECT_EQ(double_.CountCalls("VORQ_DelCols"), 0u);
  EXPECT_EQ(model_->GetIntAttr("NoSuchName"), kNoInt);
  EXPECT_EQ(double_.CountCalls("VORQ_DelCols"), 0u);
  EXPECT_EQ(model_->GetIntAttr("Cols"), 1);
  EXPECT_EQ(double_.CountCalls("VORQ_DelCols"), 1u);
}

TEST_F(ParametersTest, FailedFlushStopsAnAttribute) {
  auto const vars = AddVars(2);
  vars[0]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  EXPECT_EQ(model_->GetIntAttr("Cols"), kNoInt);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
  EXPECT_EQ(double_.CountCalls("VORQ_GetIntAttr"), 0u);
}

TEST_F(ParametersTest, ParamInfoIsFourCallsInOrder) {
  int i[4] = {};
  double d[4] = {};
  double_.IntParam("Threads", 4).Values("VORQ_GetIntParamMax", "Threads", {8});
  model_->GetParamInfo("threads", &i[0], &i[1], &i[2], &i[3]);
  EXPECT_EQ(i[0], 4);
  EXPECT_EQ(i[3], 8);
  model_->GetParamInfo("timelimit", &d[0], &d[1], &d[2], &d[3]);
  EXPECT_CALLS(
      double_,
      {R"(VORQ_GetIntParam(prob#1, "Threads", out))", R"(VORQ_GetIntParamDef(prob#1, "Threads", out))",
       R"(VORQ_GetIntParamMin(prob#1, "Threads", out))", R"(VORQ_GetIntParamMax(prob#1, "Threads", out))",
       R"(VORQ_GetDblParam(prob#1, "TimeLimit", out))", R"(VORQ_GetDblParamDef(prob#1, "TimeLimit", out))",
       R"(VORQ_GetDblParamMin(prob#1, "TimeLimit", out))", R"(VORQ_GetDblParamMax(prob#1, "TimeLimit", out))"});
}

TEST_F(ParametersTest, ParamInfoStopsAtAFailure) {
  int current = 0, def = 0, min = 0, max = 77;
  double_.FailNext("VORQ_GetIntParamMin", VORQ_INTERNAL);
  model_->GetParamInfo("Threads", &current, &def, &min, &max);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to get int param info");
  EXPECT_EQ(max, 77);
  double d = 0.0;
  double_.FailNext("VORQ_GetDblParamDef", VORQ_INTERNAL);
  model_->GetParamInfo("TimeLimit", &d, &d, &d, &d);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Failed to get double param info");
}

// ---- Information of items

class InformationTest : public vorqtest::ModelTest {
 protected:
  InformationTest() : vars_(AddVars(3)), constrs_(AddConstrs(2)) {}

  std::vector<Var> vars_;
  std::vector<Constr> constrs_;
};

TEST_F(InformationTest, ReadingPacksLiveItems) {
  double out[3] = {};
  vars_[1]->Remove();
  double_.Values("VORQ_GetColInfo", "Value", {1.0, 2.0, 3.0}).Values("VORQ_GetRowInfo", "Dual", {4.0, 5.0});
  auto const vars = ArrayOf({vars_[2].get(), vars_[1].get(), vars_[0].get()});
  EXPECT_EQ(model_->GetColInfo("Value", vars.get(), out), 2);
  EXPECT_EQ(out[0], 3.0);
  EXPECT_EQ(out[1], 1.0);
  EXPECT_EQ(model_->GetRowInfo("Dual", ArrayOf({constrs_[1].get()}).get(), out), 1);
  EXPECT_EQ(model_->GetQConstrInfo("Slack", Own(CreateQConstrArray()).get(), out), 0);
  EXPECT_EQ(model_->GetPsdConstrInfo("Slack", Own(CreatePsdConstrArray()).get(), out), 0);
  EXPECT_CALLS(
      double_,
      {R"(VORQ_GetColInfo(prob#1, "Value", 2, [2,0], out))", R"(VORQ_GetRowInfo(prob#1, "Dual", 1, [1], out))",
       R"(VORQ_GetQConstrInfo(prob#1, "Slack", 0, [], out))", R"(VORQ_GetPSDConstrInfo(prob#1, "Slack", 0, [], out))"});
}

TEST_F(InformationTest, FailedReadingGivesMinusOne) {
  double out[3] = {};
  double_.FailNext("VORQ_GetColInfo", VORQ_INVALID);
  EXPECT_EQ(model_->GetColInfo("x", ArrayOf({vars_[0].get()}).get(), out), -1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get col info");
  double_.FailNext("VORQ_GetRowInfo", VORQ_INVALID);
  EXPECT_EQ(model_->GetRowInfo("x", ArrayOf({constrs_[0].get()}).get(), out), -1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get row info");
  double_.FailNext("VORQ_GetQConstrInfo", VORQ_INVALID);
  EXPECT_EQ(model_->GetQConstrInfo("x", Own(CreateQConstrArray()).get(), out), -1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get quadratic constraint info");
  double_.FailNext("VORQ_GetPSDConstrInfo", VORQ_INVALID);
  EXPECT_EQ(model_->GetPsdConstrInfo("x", Own(CreatePsdConstrArray()).get(), out), -1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get info of PSD constraints");
}

TEST_F(InformationTest, WritingGoesByTheNameInAnyCase) {
  double const values[] = {1.0, 2.0, 3.0, 4.0};
  vars_[1]->Remove();
  auto const vars = ArrayOf({vars_[2].get(), vars_[1].get(), vars_[0].get()});
  auto const constrs = ArrayOf({constrs_[1].get(), constrs_[0].get()});
  model_->SetColInfo("lb", vars.get(), values, 4);
  model_->SetColInfo("UB", vars.get(), values, 3);
  model_->SetColInfo("OBJ", vars.get(), values, 3);
  model_->SetRowInfo("Lb", constrs.get(), values, 2);
  model_->SetRowInfo("uB", constrs.get(), values, 2);
  EXPECT_CALLS(double_, {"VORQ_SetColLower(prob#1, 2, [2,0], [1,3])", "VORQ_SetColUpper(prob#1, 2, [2,0], [1,3])",
                         "VORQ_SetColObj(prob#1, 2, [2,0], [1,3])", "VORQ_SetRowLower(prob#1, 2, [1,0], [1,2])",
                         "VORQ_SetRowUpper(prob#1, 2, [1,0], [1,2])"});
}

TEST_F(InformationTest, RefusedWritingHasItsText) {
  double const values[] = {1.0};
  auto const vars = ArrayOf({vars_[0].get()});
  auto const constrs = ArrayOf({constrs_[0].get()});
  struct Case {
    char const* function;
    char const* name;
    char const* text;
  };
  for (Case const& entry : {Case{"VORQ_SetColLower", "LB", "(INVALID) Fail to set col LB"},
                            Case{"VORQ_SetColUpper", "UB", "(INVALID) Fail to set col UB"},
                            Case{"VORQ_SetColObj", "Obj", "(INVALID) Fail to set col obj"}}) {
    double_.FailNext(entry.function, VORQ_INVALID);
    model_->SetColInfo(entry.name, vars.get(), values, 1);
    EXPECT_FAILURE(model_, 3, entry.text);
  }
  for (Case const& entry : {Case{"VORQ_SetRowLower", "LB", "(INVALID) Fail to set row LB"},
                            Case{"VORQ_SetRowUpper", "UB", "(INVALID) Fail to set row UB"}}) {
    double_.FailNext(entry.function, VORQ_INVALID);
    model_->SetRowInfo(entry.name, constrs.get(), values, 1);
    EXPECT_FAILURE(model_, 3, entry.text);
  }
}

TEST_F(InformationTest, BadArgumentsOfWritingAreToldApart) {
  double const values[] = {1.0};
  auto const vars = ArrayOf({vars_[0].get(), vars_[1].get()});
  auto const constrs = ArrayOf({constrs_[0].get()});
  auto const psdConstrs = Own(CreatePsdConstrArray());
  model_->SetColInfo(nullptr, vars.get(), nullptr, 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Empty information name of variables");
  model_->SetColInfo("LB", vars.get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid input values for variables");
  model_->SetColInfo("xx", ArrayOf({vars_[0].get()}).get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Unknown double information of variable");
  model_->SetRowInfo("", constrs.get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Empty information name of constraints");
  model_->SetRowInfo("LB", constrs.get(), nullptr, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid input values for constraints");
  model_->SetRowInfo("Obj", constrs.get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Unknown double information of constraint");
  model_->SetPsdConstrInfo("", psdConstrs.get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Empty information name of PSD constraints");
  model_->SetPsdConstrInfo("LB", psdConstrs.get(), nullptr, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid input values for PSD constraints");
  EXPECT_CALLS(double_, {});
}

TEST_F(InformationTest, WritingForRemovedItemsOnlyIsSilent) {
  double const values[] = {1.0};
  Fail();
  vars_[0]->Remove();
  model_->SetColInfo("no such name", ArrayOf({vars_[0].get()}).get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

}  // namespace
