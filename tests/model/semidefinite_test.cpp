// PSD variables, PSD constraints and the PSD objective: adding, reading back, coefficients.
#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class SemidefiniteTest : public vorqtest::SpecialConstraintsTest {
 protected:
  using PsdExpr = std::unique_ptr<Vorq::IPsdExpr>;

  // X with a matrix, Y with a matrix, X with another one, and x + x + 1.
  PsdExpr Example() {
    PsdExpr expr = Own(CreatePsdExpr1(1.0));
    expr->AddTerm(big_.get(), mat_.get());
    expr->AddTerm(other_.get(), mat_.get());
    expr->AddTerm(big_.get(), mat_.get());
    expr->AddTerm(x_.get(), 1.0);
    expr->AddTerm(x_.get(), 1.0);
    return expr;
  }

  std::unique_ptr<Vorq::IPsdVar> big_ = AddPsdVar(2);
  std::unique_ptr<Vorq::IPsdVar> other_ = AddPsdVar(2);
  std::unique_ptr<Vorq::ISymMatrix> mat_ = AddMatrix(2);
};

TEST_F(SemidefiniteTest, VariableHasDimensionAndLength) {
  auto const var = Own(model_->AddPsdVar(3, " Z 1 "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(var->GetIdx(), 2);
  EXPECT_EQ(var->GetDim(), 3);
  EXPECT_EQ(var->GetLen(), 9);
  EXPECT_EQ(var->GetSize(), 9);
  EXPECT_STREQ(var->GetName(), "Z_1");
  EXPECT_CALLS(double_, {R"(VORQ_AddPSDCol(prob#1, 3, "Z_1"))"});
}

TEST_F(SemidefiniteTest, RefusedVariableHasNoDimension) {
  double_.FailNext("VORQ_AddPSDCol", VORQ_INVALID);
  auto const var = Own(model_->AddPsdVar(3, "Z"));
  EXPECT_EQ(var->GetIdx(), -2);
  EXPECT_EQ(var->GetDim(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to add a PSD variable");
}

TEST_F(SemidefiniteTest, NumberedNamesGoOnFromTheColumns) {
  int const dims[] = {2, 4};
  auto const vars = Own(model_->AddPsdVars(2, dims, " P"));
  ASSERT_EQ(vars->Size(), 2);
  EXPECT_EQ(Own(vars->Get(1))->GetIdx(), 3);
  EXPECT_EQ(Own(vars->Get(1))->GetDim(), 4);
  EXPECT_EQ(Own(vars->Get(1))->GetLen(), 16);
  EXPECT_CALLS(double_, {R"(VORQ_AddPSDCols(prob#1, 2, [2,4], ["P_3","P_4"]))"});
}

TEST_F(SemidefiniteTest, NamesOfABuffer) {
  int const dims[] = {2, 4};
  EXPECT_EQ(Own(model_->AddPsdVars(2, dims, "a\0b", 4))->Size(), 2);
  EXPECT_CALLS(double_, {R"(VORQ_AddPSDCols(prob#1, 2, [2,4], ["a","b"]))"});
  EXPECT_EQ(Own(model_->AddPsdVars(2, dims, "a\0b", 3))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid size of input names");
}

TEST_F(SemidefiniteTest, MissingArraysGiveAnEmptyArray) {
  Fail();
  int const dims[] = {2};
  EXPECT_EQ(Own(model_->AddPsdVars(0, dims, "P"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddPsdVars(-5, dims, "P"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddPsdVars(1, nullptr, "P"))->Size(), 0);
  EXPECT_EQ(Own(model_->AddPsdVars(1, dims, nullptr, 2))->Size(), 0);
  EXPECT_EQ(Own(model_->AddPsdVars(1, dims, "P", 0))->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(SemidefiniteTest, RefusedBatchAddsNothing) {
  int const dims[] = {2};
  double_.FailNext("VORQ_AddPSDCols", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddPsdVars(1, dims, "P"))->Size(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add PSD variables");
  EXPECT_EQ(Own(model_->GetPsdVar(2))->GetIdx(), -2);
}

TEST_F(SemidefiniteTest, ValueIsASquareArray) {
  double_.Answer("VORQ_GetPSDColInfo").Set("values", {1, 2, 3, 4});
  auto const value = Own(big_->Get("Value"));
  EXPECT_SUCCESS(big_);
  EXPECT_EQ(value->GetDim(0), 2u);
  EXPECT_EQ(value->GetDim(1), 2u);
  EXPECT_EQ(value->Get(2), 3.0);
  EXPECT_CALLS(double_, {R"(VORQ_GetPSDColInfo(prob#1, "Value", 1, [0], out))"});
}

TEST_F(SemidefiniteTest, ValueThatCannotBeReadHasItsShape) {
  double_.FailNext("VORQ_GetPSDColInfo", VORQ_INVALID);
  auto const value = Own(big_->Get("Value"));
  EXPECT_FAILURE(big_, 3, "(INVALID) Fail to get informations of PSD variables");
  EXPECT_EQ(value->GetSize(), 4u);
  auto const invalid = Own(model_->GetPsdVar(-1));
  EXPECT_EQ(Own(invalid->Get("Value"))->GetSize(), 0u);
  EXPECT_FAILURE(invalid, 3, "(INVALID) Invalid PSD variable");
}

// ---- Constraints

TEST_F(SemidefiniteTest, ConstraintMakesAMatrixForEachVariable) {
  auto const constr = Own(model_->AddPsdConstr(Example().get(), 'G', 5.0, " p 1 "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_STREQ(constr->GetName(), "p_1");
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"(VORQ_AddPSDConstr(prob#1, 1, [0], [2], 2, [0,1], [1,2], 'G', 4, 1e+30, "p_1"))"});
  EXPECT_EQ(double_.CountCalls("VORQ_AddSymMat"), 2u);
}

TEST_F(SemidefiniteTest, EqualMatricesAreNotShared) {
  PsdExpr const expr = Own(CreatePsdExpr4(big_.get(), mat_.get()));
  Own(model_->AddPsdConstr(expr.get(), 'E', 1.0, "a"));
  Own(model_->AddPsdConstr(expr.get(), 'E', 1.0, "b"));
  EXPECT_EQ(Own(model_->GetSymMat(2))->GetIdx(), 2);
  EXPECT_EQ(model_->GetIntAttr("SymMats"), 3);
}

TEST_F(SemidefiniteTest, ExpressionWithoutPsdTermsIsRefused) {
  PsdExpr const linear = Own(CreatePsdExpr2(x_.get(), 1.0));
  EXPECT_EQ(Own(model_->AddPsdConstr(linear.get(), 'x', 1.0, "p"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid PSD expression object");
  EXPECT_EQ(Own(model_->AddPsdConstr(linear.get(), 0.0, 1.0, "p"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid PSD expression object");
  EXPECT_CALLS(double_, {});
}

TEST_F(SemidefiniteTest, OtherSensesAreRefused) {
  EXPECT_EQ(Own(model_->AddPsdConstr(Example().get(), 'N', 1.0, "p"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid sense of PSD constraint");
  EXPECT_CALLS(double_, {});
}

TEST_F(SemidefiniteTest, AnEarlierFailureStopsTheFormsWithASense) {
  Fail();
  EXPECT_EQ(Own(model_->AddPsdConstr(Example().get(), 'E', 1.0, "p"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
  EXPECT_EQ(Own(model_->AddPsdConstr(Example().get(), 0.0, 1.0, "p"))->GetIdx(), 0);
  EXPECT_SUCCESS(model_);
}

TEST_F(SemidefiniteTest, BoundsAreShiftedByTheConstant) {
  Own(model_->AddPsdConstr(Example().get(), 0.0, 10.0, "p"));
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"(VORQ_AddPSDConstr(prob#1, 1, [0], [2], 2, [0,1], [1,2], 0, -1, 9, "p"))"});
}

TEST_F(SemidefiniteTest, TwoExpressionsMakeTheirDifference) {
  PsdExpr const rhs = Own(CreatePsdExpr4(other_.get(), mat_.get()));
  rhs->AddConstant(4.0);
  Own(model_->AddPsdConstr(Own(CreatePsdExpr4(big_.get(), mat_.get())).get(), 'L', rhs.get(), "p"));
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"(VORQ_AddPSDConstr(prob#1, 0, null, null, 2, [0,1], [1,2], 'L', 4, 1e+30, "p"))"});
}

TEST_F(SemidefiniteTest, BuildersWithASenseAndWithARange) {
  auto const builder = Own(CreatePsdConstrBuilder());
  PsdExpr const expr = Own(CreatePsdExpr4(big_.get(), mat_.get()));
  expr->AddConstant(-1.0);
  builder->Set(expr.get(), 'L', 3.0);
  Own(model_->AddPsdConstr(builder.get(), "a"));
  builder->SetRange(expr.get(), 4.0);
  Own(model_->AddPsdConstr(builder.get(), "b"));
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"(VORQ_AddPSDConstr(prob#1, 0, null, null, 1, [0], [1], 'L', 4, 1e+30, "a"))",
                   R"(VORQ_AddPSDConstr(prob#1, 0, null, null, 1, [0], [2], 0, -3, 1, "b"))"});
}

TEST_F(SemidefiniteTest, TermsOfRemovedVariablesAreDropped) {
  PsdExpr const expr = Example();
  other_->Remove();
  x_->Remove();
  Own(model_->AddPsdConstr(expr.get(), 'E', 0.0, "p"));
  EXPECT_CALLS_OF(double_, "VORQ_AddPSDConstr",
                  {R"(VORQ_AddPSDConstr(prob#1, 0, [], [], 1, [0], [1], 'E', -1, 1e+30, "p"))"});
  EXPECT_EQ(expr->GetSize(), 1u);
}

TEST_F(SemidefiniteTest, AMatrixThatFailsLeavesThoseBeforeIt) {
  PsdExpr const expr = Own(CreatePsdExpr4(big_.get(), mat_.get()));
  expr->AddTerm(other_.get(), Own(CreateSymMatExpr1()).get());
  EXPECT_EQ(Own(model_->AddPsdConstr(expr.get(), 'E', 0.0, "p"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Empty symmetric matrix expression object");
  EXPECT_EQ(double_.CountCalls("VORQ_AddPSDConstr"), 0u);
  EXPECT_EQ(Own(model_->GetSymMat(1))->GetIdx(), 1);
}

TEST_F(SemidefiniteTest, RefusedConstraintIsInvalid) {
  double_.FailNext("VORQ_AddPSDConstr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddPsdConstr(Example().get(), 'E', 0.0, "p"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a PSD constraint");
}

// A constraint of which the model knows, and what the solver library says of it.
class SemidefiniteReadingTest : public SemidefiniteTest {
 protected:
  SemidefiniteReadingTest() {
    constr_ = Own(model_->AddPsdConstr(Example().get(), 'L', 0.0, "p"));
    double_.Answer("VORQ_GetPSDConstr")
        .Set("linIdx", {2})
        .Set("linCoef", {1.5})
        .Set("psdCols", {1, 0})
        .Set("symMats", {0, 2});
    double_.ClearLog();
  }

  std::unique_ptr<Vorq::IPsdConstraint> constr_;
};

TEST_F(SemidefiniteReadingTest, RowHasBothParts) {
  PsdExpr const row = Own(model_->GetPsdRow(constr_.get()));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetPSDConstr(prob#1, 0, null, null, null, null, null, null, null, null, 0, out)",
                         "VORQ_GetPSDConstr(prob#1, 0, out, out, out, out, out, out, null, null, 2, null)"});
  EXPECT_EQ(row->GetConstant(), 0.0);
  Expr const linear = Own(row->GetLinExpr());
  ASSERT_EQ(linear->GetSize(), 1u);
  EXPECT_EQ(linear->GetCoeff(0), 1.5);
  ASSERT_EQ(row->GetSize(), 2u);
  EXPECT_EQ(Own(row->GetPsdVar(0))->GetIdx(), 1);
  EXPECT_EQ(Own(Own(row->GetCoeff(1))->GetSymMat(0))->GetIdx(), 2);
}

TEST_F(SemidefiniteReadingTest, BoundsChooseTheSense) {
  struct Case {
    double lower, upper;
    char sense;
    double constant, range;
  };
  for (Case const& bounds :
       {Case{2.0, 1e30, 'G', -2.0, 0.0}, Case{-1e30, 1e30, 'N', 0.0, 0.0}, Case{-1e30, 3.0, 'L', -3.0, 0.0},
        Case{2.0, 2.0, 'E', -2.0, 0.0}, Case{1.0, 3.0, 'R', -3.0, 2.0}}) {
    double_.Values("VORQ_GetPSDConstrInfo", "LB", {bounds.lower}).Values("VORQ_GetPSDConstrInfo", "UB", {bounds.upper});
    auto const builder = Own(model_->GetPsdConstrBuilder(constr_.get()));
    EXPECT_EQ(builder->GetSense(), bounds.sense);
    EXPECT_EQ(builder->GetRange(), bounds.range);
    EXPECT_EQ(Own(builder->GetPsdExpr())->GetConstant(), bounds.constant);
    EXPECT_EQ(Own(builder->GetPsdExpr())->GetSize(), 2u);
  }
}

TEST_F(SemidefiniteReadingTest, AllBuildersPassOverMarkedConstraints) {
  Own(model_->AddPsdConstr(Example().get(), 'L', 0.0, "other"));
  double_.Values("VORQ_GetPSDConstrInfo", "LB", {0.0, 7.0}).Values("VORQ_GetPSDConstrInfo", "UB", {1.0, 7.0});
  constr_->Remove();
  auto const builders = Own(model_->GetPsdConstrBuilders());
  ASSERT_EQ(builders->Size(), 1);
  EXPECT_EQ(Own(builders->Get(0))->GetSense(), 'E');
}

TEST_F(SemidefiniteReadingTest, RemovedConstraintIsRefused) {
  constr_->Remove();
  EXPECT_EQ(Own(model_->GetPsdRow(constr_.get()))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid PSD constraint");
  EXPECT_EQ(Own(model_->GetPsdConstrBuilder(constr_.get()))->GetSense(), '\0');
  EXPECT_CALLS(double_, {});
}

TEST_F(SemidefiniteReadingTest, FailuresTellWhichReadFailed) {
  double_.FailNth("VORQ_GetPSDConstr", 1, VORQ_MEMORY);
  Own(model_->GetPsdRow(constr_.get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required row buffer size of PSD constraint");
  double_.FailNth("VORQ_GetPSDConstr", 2, VORQ_MEMORY);
  Own(model_->GetPsdRow(constr_.get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get row data of PSD constraint");
  double_.FailNext("VORQ_GetPSDConstrInfo", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetPsdConstrBuilders())->Size(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) (MEMORY) Fail to get a PSD constraint information");
}

TEST_F(SemidefiniteReadingTest, UnknownMatrixEndsTheRow) {
  double_.Answer("VORQ_GetPSDConstr").Set("psdCols", {0, 1}).Set("symMats", {0, 9});
  EXPECT_EQ(Own(model_->GetPsdRow(constr_.get()))->GetSize(), 1u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid index of symmetric matrix");
}

TEST_F(SemidefiniteReadingTest, InfoIsReadAndSetForManyAtOnce) {
  double_.Values("VORQ_GetPSDConstrInfo", "UB", {2.5});
  auto const list = Own(CreatePsdConstrArray());
  list->PushBack(*constr_);
  list->PushBack(*Own(model_->GetPsdConstr(-1)));
  double out[2] = {};
  double const values[] = {3.5, 4.5};
  EXPECT_EQ(model_->GetPsdConstrInfo("UB", list.get(), out), 1);
  EXPECT_EQ(out[0], 2.5);
  model_->SetPsdConstrInfo("lb", list.get(), values, 2);
  model_->SetPsdConstrInfo("UB", list.get(), values, 2);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_,
               {R"(VORQ_GetPSDConstrInfo(prob#1, "UB", 1, [0], out))", "VORQ_SetPSDConstrLower(prob#1, 1, [0], [3.5])",
                "VORQ_SetPSDConstrUpper(prob#1, 1, [0], [3.5])"});
}

TEST_F(SemidefiniteReadingTest, CoefficientIsAMatrixOfTheModel) {
  double_.Answer("VORQ_GetPSDElem").Set("symMat", 2);
  EXPECT_EQ(Own(model_->GetPsdCoeff(constr_.get(), other_.get()))->GetIdx(), 2);
  model_->SetPsdCoeff(constr_.get(), other_.get(), mat_.get());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetPSDElem(prob#1, 1, 0, out)", "VORQ_SetPSDElem(prob#1, 1, 0, 0)"});
}

TEST_F(SemidefiniteReadingTest, MissingCoefficientIsAnInvalidMatrix) {
  EXPECT_EQ(Own(model_->GetPsdCoeff(constr_.get(), other_.get()))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid index of symmetric matrix");
}

TEST_F(SemidefiniteReadingTest, CoefficientsThatDoNotFitAreRefused) {
  auto const wide = AddMatrix(3);
  auto const invalid = Own(model_->GetSymMat(-1));
  model_->SetPsdCoeff(constr_.get(), big_.get(), wide.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Dimension mismatch between PSD variable and symmetric matrix");
  model_->SetPsdCoeff(constr_.get(), big_.get(), invalid.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Dimension mismatch between PSD variable and symmetric matrix");
  model_->SetPsdCoeff(constr_.get(), Own(model_->GetPsdVar(-1)).get(), invalid.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid SymMatrix with index -2");
  EXPECT_CALLS(double_, {});
}

TEST_F(SemidefiniteReadingTest, ItemsOfACoefficientAreLeftToTheSolverLibrary) {
  constr_->Remove();
  model_->SetPsdCoeff(constr_.get(), big_.get(), mat_.get());
  EXPECT_CALLS(double_, {"VORQ_SetPSDElem(prob#1, 0, -3, 0)"});
}

TEST_F(SemidefiniteReadingTest, RefusedCoefficientsHaveTheirTexts) {
  double_.FailNext("VORQ_GetPSDElem", VORQ_INVALID);
  Own(model_->GetPsdCoeff(constr_.get(), big_.get()));
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get coefficient matrix of PSD constraint");
  double_.FailNext("VORQ_SetPSDElem", VORQ_INVALID);
  model_->SetPsdCoeff(constr_.get(), big_.get(), mat_.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to change coefficient of PSD variable");
}

// ---- Objective

TEST_F(SemidefiniteTest, ObjectiveHasItsPsdPartFirst) {
  model_->SetPsdObjective(Example().get(), -1);
  EXPECT_SUCCESS(model_);
  auto const calls = double_.Calls();
  ASSERT_GE(calls.size(), 4u);
  std::vector<std::string> const last(calls.end() - 4, calls.end());
  EXPECT_EQ(last, (std::vector<std::string>{"VORQ_ReplacePSDObj(prob#1, 2, [0,1], [1,2])",
                                            "VORQ_ReplaceColObj(prob#1, 1, [0], [2])", "VORQ_SetObjConst(prob#1, 1)",
                                            "VORQ_SetObjSense(prob#1, -1)"}));
}

TEST_F(SemidefiniteTest, ObjectiveMakesItsMatricesEachTime) {
  PsdExpr const expr = Own(CreatePsdExpr4(big_.get(), mat_.get()));
  model_->SetPsdObjective(expr.get(), 0);
  model_->SetPsdObjective(expr.get(), 0);
  EXPECT_CALLS_OF(double_, "VORQ_ReplacePSDObj",
                  {"VORQ_ReplacePSDObj(prob#1, 1, [0], [1])", "VORQ_ReplacePSDObj(prob#1, 1, [0], [2])"});
  EXPECT_EQ(double_.CountCalls("VORQ_SetObjSense"), 0u);
}

TEST_F(SemidefiniteTest, ObjectiveStopsAtAFailure) {
  PsdExpr const expr = Own(CreatePsdExpr4(big_.get(), mat_.get()));
  double_.FailNext("VORQ_ReplacePSDObj", VORQ_MEMORY);
  model_->SetPsdObjective(expr.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set PSD objective");
  EXPECT_EQ(double_.CountCalls("VORQ_ReplaceColObj"), 0u);
  double_.ClearLog();
  // The failure that stands stops the next one.
  model_->SetPsdObjective(expr.get(), 1);
  EXPECT_CALLS(double_, {});
  Own(model_->GetVar(0));
  double_.FailNext("VORQ_AddSymMat", VORQ_MEMORY);
  model_->SetPsdObjective(expr.get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Failed to add a symmetric matrix to model");
  EXPECT_EQ(double_.CountCalls("VORQ_ReplacePSDObj"), 0u);
}

TEST_F(SemidefiniteTest, ObjectiveIsReadVariableByVariable) {
  double_.IntAttr("HasPSDObj", 1).DblAttr("ObjConst", 2.5).Values("VORQ_GetColInfo", "Obj", {1.0, 0.0, 0.0});
  double_.AnswerNext("VORQ_GetPSDObj").Set("symMat", -1);
  double_.AnswerNext("VORQ_GetPSDObj").Set("symMat", 0);
  PsdExpr const objective = Own(model_->GetPsdObjective());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS_OF(double_, "VORQ_GetPSDObj", {"VORQ_GetPSDObj(prob#1, 0, out)", "VORQ_GetPSDObj(prob#1, 1, out)"});
  ASSERT_EQ(objective->GetSize(), 1u);
  EXPECT_EQ(Own(objective->GetPsdVar(0))->GetIdx(), 1);
  EXPECT_EQ(objective->GetConstant(), 2.5);
  EXPECT_EQ(Own(objective->GetLinExpr())->GetSize(), 1u);
}

TEST_F(SemidefiniteTest, ObjectiveWithoutPsdPartIsTheLinearOne) {
  double_.DblAttr("ObjConst", 2.5);
  EXPECT_EQ(Own(model_->GetPsdObjective())->GetConstant(), 2.5);
  EXPECT_EQ(double_.CountCalls("VORQ_GetPSDObj"), 0u);
}

TEST_F(SemidefiniteTest, ObjectiveThatCannotBeReadIsEmpty) {
  double_.IntAttr("HasPSDObj", 1).DblAttr("ObjConst", 2.5);
  double_.FailNext("VORQ_GetPSDObj", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetPsdObjective())->GetConstant(), 0.0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get PSD objective");
  double_.FailNext("VORQ_GetIntAttr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetPsdObjective())->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Failed to get int attribute");
}

TEST_F(SemidefiniteTest, ObjectiveIsDeletedWithoutAFlush) {
  big_->Remove();
  model_->DelPsdObj();
  EXPECT_CALLS(double_, {"VORQ_DelPSDObj(prob#1)"});
  double_.FailNext("VORQ_DelPSDObj", VORQ_MEMORY);
  model_->DelPsdObj();
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to delete PSD objective");
}

}  // namespace
