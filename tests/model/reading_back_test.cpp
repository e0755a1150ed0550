// Reading rows back as expressions and builders, single coefficients, the whole matrix, and loading one.
#include "tests/model/model_fixture.hpp"

namespace {

using vorqtest::Own;

class ReadingBackTest : public vorqtest::ModelTest {
 protected:
  ReadingBackTest() : vars_(AddVars(3)), constrs_(AddConstrs(2)) {}

  void AnswerRow() {
    double_.Answer("VORQ_GetRows").Set("rowBeg", {0}).Set("rowCnt", {2}).Set("cols", {2, 0}).Set("coefs", {1.5, 2.0});
  }
  void AnswerBounds(double lower, double upper) {
    double_.Values("VORQ_GetRowInfo", "LB", {lower, lower}).Values("VORQ_GetRowInfo", "UB", {upper, upper});
  }
  // The builder that comes back for a row with these bounds.
  std::unique_ptr<Vorq::IConstrBuilder> BuilderFor(double lower, double upper) {
    AnswerRow();
    AnswerBounds(lower, upper);
    return Own(model_->GetConstrBuilder(constrs_[1].get()));
  }

  std::vector<Var> vars_;
  std::vector<Constr> constrs_;
};

TEST_F(ReadingBackTest, GetRowReadsTwice) {
  AnswerRow();
  Expr const row = Own(model_->GetRow(constrs_[1].get()));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetRows(prob#1, 1, [1], null, null, null, null, 0, out)",
                         "VORQ_GetRows(prob#1, 1, [1], out, out, out, out, 2, null)"});
  ASSERT_EQ(row->GetSize(), 2u);
  EXPECT_EQ(Own(row->GetVar(0))->GetIdx(), 2);
  EXPECT_EQ(row->GetCoeff(0), 1.5);
  EXPECT_EQ(row->GetConstant(), 0.0);
}

TEST_F(ReadingBackTest, GetRowOfARemovedConstraintFails) {
  constrs_[0]->Remove();
  EXPECT_EQ(Own(model_->GetRow(constrs_[0].get()))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint");
  EXPECT_CALLS(double_, {});
}

TEST_F(ReadingBackTest, GetRowTellsWhichReadFailed) {
  double_.FailNth("VORQ_GetRows", 1, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetRow(constrs_[0].get()))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required row buffer size");
  double_.FailNth("VORQ_GetRows", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetRow(constrs_[0].get()))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get row data");
}

TEST_F(ReadingBackTest, ColumnThatTheModelDoesNotKnowEndsTheRow) {
  double_.Answer("VORQ_GetRows").Set("rowBeg", {0}).Set("rowCnt", {2}).Set("cols", {0, 9}).Set("coefs", {1.0, 2.0});
  EXPECT_EQ(Own(model_->GetRow(constrs_[0].get()))->GetSize(), 1u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

TEST_F(ReadingBackTest, BoundsChooseTheSense) {
  struct Case {
    double lower, upper;
    char sense;
    double constant, range;
  };
  for (Case const& bounds :
       {Case{2.0, 1e30, 'G', -2.0, 0.0}, Case{-1e30, 1e30, 'N', 0.0, 0.0}, Case{-1e31, 1e31, 'N', 0.0, 0.0},
        Case{-1e30, 3.0, 'L', -3.0, 0.0}, Case{2.0, 2.0, 'E', -2.0, 0.0}, Case{1.0, 3.0, 'R', -3.0, 2.0}}) {
    auto const builder = BuilderFor(bounds.lower, bounds.upper);
    EXPECT_SUCCESS(model_);
    EXPECT_EQ(builder->GetSense(), bounds.sense);
    EXPECT_EQ(builder->GetRange(), bounds.range);
    EXPECT_EQ(Own(builder->GetExpr())->GetConstant(), bounds.constant);
    EXPECT_EQ(Own(builder->GetExpr())->GetSize(), 2u);
  }
}

TEST_F(ReadingBackTest, BoundsOfABuilderAreReadThroughTheItem) {
  BuilderFor(0.0, 1.0);
  EXPECT_CALLS_OF(double_, "VORQ_GetRowInfo",
                  {R"(VORQ_GetRowInfo(prob#1, "LB", 1, [1], out))", R"(VORQ_GetRowInfo(prob#1, "UB", 1, [1], out))"});
}

TEST_F(ReadingBackTest, BuilderOfARemovedConstraintIsEmpty) {
  constrs_[1]->Remove();
  auto const builder = Own(model_->GetConstrBuilder(constrs_[1].get()));
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid constraint");
  EXPECT_EQ(Own(builder->GetExpr())->GetSize(), 0u);
  EXPECT_CALLS(double_, {});
}

TEST_F(ReadingBackTest, FailureOfTheBoundsIsHandedOn) {
  AnswerRow();
  double_.FailNext("VORQ_GetRowInfo", VORQ_MEMORY);
  Own(model_->GetConstrBuilder(constrs_[1].get()));
  EXPECT_FAILURE(model_, 3, "(INVALID) (MEMORY) Fail to get a constraint information");
}

TEST_F(ReadingBackTest, AllBuildersComeFromOnePairOfCalls) {
  double_.Answer("VORQ_GetRows")
      .Set("rowBeg", {0, 2})
      .Set("rowCnt", {2, 1})
      .Set("cols", {0, 1, 2})
      .Set("coefs", {1.0, 2.0, 3.0});
  double_.Values("VORQ_GetRowInfo", "LB", {1.0, -1e30}).Values("VORQ_GetRowInfo", "UB", {1.0, 5.0});
  auto const builders = Own(model_->GetConstrBuilders());
  EXPECT_CALLS_OF(double_, "VORQ_GetRows",
                  {"VORQ_GetRows(prob#1, 2, null, null, null, null, null, 0, out)",
                   "VORQ_GetRows(prob#1, 2, null, out, out, out, out, 3, null)"});
  ASSERT_EQ(builders->Size(), 2);
  EXPECT_EQ(Own(builders->Get(0))->GetSense(), 'E');
  EXPECT_EQ(Own(builders->Get(1))->GetSense(), 'L');
  EXPECT_EQ(Own(Own(builders->Get(1))->GetExpr())->GetCoeff(0), 3.0);
}

TEST_F(ReadingBackTest, AllBuildersPassOverMarkedRows) {
  double_.Answer("VORQ_GetRows")
      .Set("rowBeg", {0, 1})
      .Set("rowCnt", {1, 1})
      .Set("cols", {0, 1})
      .Set("coefs", {4.0, 5.0});
  AnswerBounds(0.0, 0.0);
  constrs_[0]->Remove();
  auto const builders = Own(model_->GetConstrBuilders());
  ASSERT_EQ(builders->Size(), 1);
  EXPECT_EQ(Own(Own(builders->Get(0))->GetExpr())->GetCoeff(0), 5.0);
  EXPECT_EQ(double_.CountCalls("VORQ_DelRows"), 0u);
}

// ---- Coefficients

TEST_F(ReadingBackTest, GetCoeffTakesColumnAndRow) {
  double_.Answer("VORQ_GetElem").Set("value", 2.5);
  EXPECT_EQ(model_->GetCoeff(constrs_[1].get(), vars_[2].get()), 2.5);
  EXPECT_CALLS(double_, {"VORQ_GetElem(prob#1, 2, 1, out)"});
}

TEST_F(ReadingBackTest, SetCoeffTakesColumnAndRow) {
  model_->SetCoeff(constrs_[1].get(), vars_[2].get(), 4.5);
  EXPECT_CALLS(double_, {"VORQ_SetElem(prob#1, 2, 1, 4.5)"});
}

TEST_F(ReadingBackTest, CoefficientsFlushFirst) {
  vars_[0]->Remove();
  model_->SetCoeff(constrs_[1].get(), vars_[2].get(), 4.5);
  EXPECT_CALLS(double_, {"VORQ_DelCols(prob#1, 1, [0])", "VORQ_SetElem(prob#1, 1, 1, 4.5)"});
  vars_[1]->Remove();
  double_.FailNext("VORQ_DelCols", VORQ_MEMORY);
  double_.ClearLog();
  EXPECT_EQ(model_->GetCoeff(constrs_[1].get(), vars_[2].get()), 0.0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to del cols");
  EXPECT_EQ(double_.Calls().size(), 1u);
}

TEST_F(ReadingBackTest, RefusedCoefficientsHaveTheirTexts) {
  double const values[] = {1.0};
  double_.FailNext("VORQ_GetElem", VORQ_INVALID);
  model_->GetCoeff(constrs_[0].get(), vars_[0].get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get coefficient");
  double_.FailNext("VORQ_SetElem", VORQ_INVALID);
  model_->SetCoeff(constrs_[0].get(), vars_[0].get(), 1.0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to change coefficient");
  double_.FailNext("VORQ_SetElems", VORQ_INVALID);
  model_->SetCoeffs(ArrayOf({constrs_[0].get()}).get(), ArrayOf({vars_[0].get()}).get(), values, 1);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to change coefficients");
}

TEST_F(ReadingBackTest, SetCoeffsIsOneCall) {
  double const values[] = {1.5, 2.5, 9.0};
  model_->SetCoeffs(ArrayOf({constrs_[1].get(), constrs_[0].get()}).get(),
                    ArrayOf({vars_[2].get(), vars_[0].get()}).get(), values, 3);
  EXPECT_CALLS(double_, {"VORQ_SetElems(prob#1, 2, [2,0], [1,0], [1.5,2.5])"});
}

TEST_F(ReadingBackTest, SetCoeffsWithoutValuesDoesNothing) {
  Fail();
  double const values[] = {1.0};
  vars_[0]->Remove();
  auto const constrs = ArrayOf({constrs_[0].get()});
  auto const vars = ArrayOf({vars_[0].get()});
  model_->SetCoeffs(constrs.get(), vars.get(), nullptr, 1);
  model_->SetCoeffs(constrs.get(), vars.get(), values, 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(ReadingBackTest, SetCoeffsChecksTheSizes) {
  double const values[] = {1.0};
  char const* const text = "(INVALID) Dimensions mismatch among constraints, variables and values";
  model_->SetCoeffs(ArrayOf({constrs_[0].get()}).get(), ArrayOf({vars_[0].get(), vars_[1].get()}).get(), values, 2);
  EXPECT_FAILURE(model_, 3, text);
  model_->SetObjSense(1);
  model_->SetCoeffs(ArrayOf({constrs_[0].get(), constrs_[1].get()}).get(),
                    ArrayOf({vars_[0].get(), vars_[1].get()}).get(), values, 1);
  EXPECT_FAILURE(model_, 3, text);
}

TEST_F(ReadingBackTest, SetCoeffsTellsTheOldPositionOfARemovedItem) {
  double const values[] = {1.0, 1.0};
  auto const vars = AddVars(3);
  vars[2]->Remove();
  model_->SetCoeffs(ArrayOf({constrs_[0].get(), constrs_[1].get()}).get(),
                    ArrayOf({vars[0].get(), vars[2].get()}).get(), values, 2);
  EXPECT_FAILURE(model_, 3, "(INVALID) The 5-th variable has been removed");
  constrs_[1]->Remove();
  model_->SetCoeffs(ArrayOf({constrs_[0].get(), constrs_[1].get()}).get(),
                    ArrayOf({vars[0].get(), vars[2].get()}).get(), values, 2);
  EXPECT_FAILURE(model_, 3, "(INVALID) The 1-th constraint has been removed");
  EXPECT_EQ(double_.CountCalls("VORQ_SetElems"), 0u);
}

TEST_F(ReadingBackTest, GetColsFillsTheCallersBuffers) {
  double_.IntAttr("Elems", 4);
  int begin[3], count[3], index[4];
  double value[4];
  model_->GetCols(begin, count, index, value);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS_OF(double_, "VORQ_GetCols", {"VORQ_GetCols(prob#1, 3, null, out, out, out, out, 4, null)"});
}

TEST_F(ReadingBackTest, RefusedMatrixHasItsText) {
  double_.FailNext("VORQ_GetCols", VORQ_INTERNAL);
  int numbers[3];
  double value[1];
  model_->GetCols(numbers, numbers, numbers, value);
  EXPECT_FAILURE(model_, 5, "(INTERNAL) Fail to get coefficient matrix");
}

// ---- Loading

TEST_F(ReadingBackTest, LoadMatrixReplacesTheProblem) {
  double const objs[] = {1.0};
  int const colBeg[] = {0};
  int const colCnt[] = {1};
  int const rows[] = {0};
  double const coefs[] = {2.0};
  double const lowers[] = {3.0};
  double const uppers[] = {4.0};
  double const lbs[] = {5.0};
  double const ubs[] = {6.0};
  model_->LoadMatrix(1, 1, objs, colBeg, colCnt, rows, coefs, lowers, uppers, lbs, ubs, "I");
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(double_.Calls()[0],
            "VORQ_LoadProb(prob#1, 1, 1, 1, 0, [1], [0], [1], [0], [2], ['I'], [5], [6], null, "
            "[3], [4], null, null)");
  EXPECT_EQ(Own(model_->GetVars())->Size(), 1);
  EXPECT_EQ(vars_[2]->GetIdx(), 2);
  Var const fresh = Own(model_->GetVar(0));
  fresh->Remove();
  EXPECT_EQ(vars_[0]->GetIdx(), 0);
}

TEST_F(ReadingBackTest, RefusedLoadLeavesTheTables) {
  double_.FailNext("VORQ_LoadProb", VORQ_INVALID);
  model_->LoadMatrix(0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to load matrix");
  EXPECT_EQ(Own(model_->GetVar(2))->GetIdx(), 2);
}

// ---- Objective

TEST_F(ReadingBackTest, ObjectiveIsHandedOverInPieces) {
  Expr const expr = Sum({{vars_[2], 1.0}, {vars_[0], 0.0}, {vars_[2], 1.0}}, 7.0);
  model_->SetObjective(expr.get(), -1);
  EXPECT_CALLS(double_, {"VORQ_ReplaceColObj(prob#1, 1, [2], [2])", "VORQ_SetObjConst(prob#1, 7)",
                         "VORQ_SetObjSense(prob#1, -1)"});
  EXPECT_EQ(expr->GetSize(), 1u);
  EXPECT_EQ(expr->GetCoeff(0), 2.0);
}

TEST_F(ReadingBackTest, ObjectiveSenseOfZeroIsLeftAlone) {
  model_->SetObjective(Sum({}).get(), 0);
  EXPECT_CALLS(double_, {"VORQ_ReplaceColObj(prob#1, 0, null, null)", "VORQ_SetObjConst(prob#1, 0)"});
  double_.ClearLog();
  model_->SetObjSense(0);
  EXPECT_CALLS(double_, {"VORQ_SetObjSense(prob#1, 0)"});
}

TEST_F(ReadingBackTest, ObjectiveDoesNotFlush) {
  vars_[0]->Remove();
  model_->SetObjective(Sum({{vars_[0], 1.0}, {vars_[1], 2.0}}).get(), 1);
  model_->SetObjConst(1.0);
  EXPECT_EQ(double_.Calls()[0], "VORQ_ReplaceColObj(prob#1, 1, [1], [2])");
  EXPECT_EQ(double_.CountCalls("VORQ_DelCols"), 0u);
}

TEST_F(ReadingBackTest, ObjectiveStopsAtThePieceThatFails) {
  Expr const expr = Sum({{vars_[0], 1.0}});
  double_.FailNext("VORQ_ReplaceColObj", VORQ_MEMORY);
  model_->SetObjective(expr.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set objective coefficients");
  EXPECT_EQ(double_.Calls().size(), 1u);
  double_.FailNext("VORQ_SetObjConst", VORQ_MEMORY);
  model_->SetObjective(expr.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set obj const");
  EXPECT_EQ(double_.Calls().size(), 3u);
  double_.FailNext("VORQ_SetObjSense", VORQ_MEMORY);
  model_->SetObjective(expr.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set obj sense");
}

TEST_F(ReadingBackTest, SenseAndConstantHaveTheirTexts) {
  double_.FailNext("VORQ_SetObjSense", VORQ_INVALID);
  model_->SetObjSense(7);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to set obj sense");
  double_.FailNext("VORQ_SetObjConst", VORQ_INVALID);
  model_->SetObjConst(7.0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to set obj const");
}

TEST_F(ReadingBackTest, GetObjectiveListsTheVariablesThatTakePart) {
  double_.DblAttr("ObjConst", 2.5).Values("VORQ_GetColInfo", "Obj", {1.0, 0.0, -3.0});
  Expr const objective = Own(model_->GetObjective());
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(objective->GetConstant(), 2.5);
  ASSERT_EQ(objective->GetSize(), 2u);
  EXPECT_EQ(Own(objective->GetVar(1))->GetIdx(), 2);
  EXPECT_EQ(objective->GetCoeff(1), -3.0);
}

TEST_F(ReadingBackTest, GetObjectiveOfZerosHasNoTerms) {
  double_.DblAttr("ObjConst", 2.5);
  Expr const objective = Own(model_->GetObjective());
  EXPECT_EQ(objective->GetSize(), 0u);
  EXPECT_EQ(objective->GetConstant(), 2.5);
}

TEST_F(ReadingBackTest, GetObjectiveReturnsWhatItHasAtAFailure) {
  double_.Values("VORQ_GetColInfo", "Obj", {1.0, 1.0, 1.0});
  double_.FailNth("VORQ_GetColInfo", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetObjective())->GetSize(), 1u);
  EXPECT_FAILURE(model_, 3, "(INVALID) (MEMORY) Fail to get variable information");
  double_.FailNext("VORQ_GetDblAttr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetObjective())->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get double attribute");
}

}  // namespace
