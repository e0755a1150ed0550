// Quadratic constraints and the quadratic objective: adding, and reading them back.
#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class QuadraticTest : public vorqtest::SpecialConstraintsTest {
 protected:
  using QuadExpr = std::unique_ptr<Vorq::IQuadExpr>;

  // 2 x y + 3 y x + z + z + 1
  QuadExpr Example() {
    QuadExpr expr = Own(CreateQuadExpr1(1.0));
    expr->AddTerm(x_.get(), y_.get(), 2.0);
    expr->AddTerm(y_.get(), x_.get(), 3.0);
    expr->AddTerm(z_.get(), 1.0);
    expr->AddTerm(z_.get(), 1.0);
    return expr;
  }
};

TEST_F(QuadraticTest, LinearTermsAreMergedAndQuadraticOnesKept) {
  QuadExpr const expr = Example();
  auto const constr = Own(model_->AddQConstr(expr.get(), 'L', 5.0, " q 1 "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_STREQ(constr->GetName(), "q_1");
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 1, [2], [2], 2, [0,1], [1,0], [2,3], 'L', 4, "q_1"))"});
  EXPECT_EQ(Own(expr->GetLinExpr())->GetSize(), 1u);
}

TEST_F(QuadraticTest, TermsOfRemovedVariablesAreLeftToTheSolverLibrary) {
  QuadExpr const expr = Example();
  y_->Remove();
  Own(model_->AddQConstr(expr.get(), 'L', 5.0, "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 1, [2], [2], 2, [0,-4], [-4,0], [2,3], 'L', 4, "q"))"});
}

TEST_F(QuadraticTest, LinearExpressionIsRefused) {
  QuadExpr const expr = Own(CreateQuadExpr2(x_.get(), 1.0));
  EXPECT_EQ(Own(model_->AddQConstr(expr.get(), 'x', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid quadratic expression object");
  EXPECT_CALLS(double_, {});
}

TEST_F(QuadraticTest, OtherSensesAreRefused) {
  EXPECT_EQ(Own(model_->AddQConstr(Example().get(), 'R', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid quadratic constraint sense");
  EXPECT_CALLS(double_, {});
}

TEST_F(QuadraticTest, AnEarlierFailureStopsIt) {
  Fail();
  EXPECT_EQ(Own(model_->AddQConstr(Example().get(), 'L', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
  EXPECT_CALLS(double_, {});
}

TEST_F(QuadraticTest, RefusedConstraintIsInvalid) {
  double_.FailNext("VORQ_AddQConstr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddQConstr(Example().get(), 'L', 0.0, "q"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add a quadratic constraint");
}

TEST_F(QuadraticTest, TwoExpressionsMakeTheirDifference) {
  QuadExpr const rhs = Own(CreateQuadExpr1(4.0));
  rhs->AddTerm(z_.get(), z_.get(), 7.0);
  Own(model_->AddQConstr(Example().get(), 'G', rhs.get(), "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 1, [2], [2], 3, [0,1,2], [1,0,2], [2,3,-7], 'G', 3, "q"))"});
}

TEST_F(QuadraticTest, BuilderHasItsRightSideInTheConstant) {
  auto const builder = Own(CreateQConstrBuilder());
  builder->Set(Example().get(), 'E', 10.0);
  Own(model_->AddQConstr(builder.get(), "q"));
  EXPECT_CALLS(double_, {R"(VORQ_AddQConstr(prob#1, 1, [2], [2], 2, [0,1], [1,0], [2,3], 'E', 9, "q"))"});
}

// A constraint of which the model knows, and what the solver library says of it.
class QuadraticReadingTest : public QuadraticTest {
 protected:
  QuadraticReadingTest() {
    constr_ = Own(model_->AddQConstr(Example().get(), 'L', 0.0, "q"));
    double_.Answer("VORQ_GetQConstr")
        .Set("linIdx", {2})
        .Set("linCoef", {1.5})
        .Set("qRow", {0, 1})
        .Set("qCol", {1, 1})
        .Set("qCoef", {2.5, 3.5})
        .Set("sense", 'G')
        .Set("bound", 4.0);
    double_.ClearLog();
  }

  std::unique_ptr<Vorq::IQConstraint> constr_;
};

TEST_F(QuadraticReadingTest, RowHasNoConstant) {
  auto const row = Own(model_->GetQuadRow(constr_.get()));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetQConstr(prob#1, 0, null, null, null, null, null, null, null, null, null, 0, out)",
                         "VORQ_GetQConstr(prob#1, 0, out, out, out, out, out, out, out, out, out, 2, null)"});
  EXPECT_EQ(row->GetConstant(), 0.0);
  Expr const linear = Own(row->GetLinExpr());
  ASSERT_EQ(linear->GetSize(), 1u);
  EXPECT_EQ(linear->GetCoeff(0), 1.5);
  ASSERT_EQ(row->GetSize(), 2u);
  EXPECT_EQ(Own(row->GetVar1(0))->GetIdx(), 0);
  EXPECT_EQ(Own(row->GetVar2(0))->GetIdx(), 1);
  EXPECT_EQ(row->GetCoeff(1), 3.5);
}

TEST_F(QuadraticReadingTest, BuilderTakesSenseAndRightSide) {
  auto const builder = Own(model_->GetQConstrBuilder(constr_.get()));
  EXPECT_EQ(builder->GetSense(), 'G');
  EXPECT_EQ(Own(builder->GetQuadExpr())->GetConstant(), -4.0);
  EXPECT_EQ(Own(builder->GetQuadExpr())->GetSize(), 2u);
}

TEST_F(QuadraticReadingTest, AllBuildersPassOverMarkedConstraints) {
  Own(model_->AddQConstr(Example().get(), 'L', 0.0, "other"));
  constr_->Remove();
  double_.ClearLog();
  EXPECT_EQ(Own(model_->GetQConstrBuilders())->Size(), 1);
  EXPECT_EQ(double_.CountCalls("VORQ_GetQConstr"), 2u);
  EXPECT_EQ(double_.CountCalls("VORQ_DelQConstrs"), 0u);
}

TEST_F(QuadraticReadingTest, RemovedConstraintIsRefused) {
  constr_->Remove();
  EXPECT_EQ(Own(model_->GetQuadRow(constr_.get()))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid quadratic constraint");
  EXPECT_EQ(Own(model_->GetQConstrBuilder(constr_.get()))->GetSense(), '\0');
  EXPECT_CALLS(double_, {});
}

TEST_F(QuadraticReadingTest, FailuresTellWhichReadFailed) {
  double_.FailNth("VORQ_GetQConstr", 1, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetQuadRow(constr_.get()))->GetSize(), 0u);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required quad row buffer size");
  double_.FailNth("VORQ_GetQConstr", 2, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetQConstrBuilders())->Size(), 0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get quad row data");
}

TEST_F(QuadraticReadingTest, UnknownColumnEndsTheRow) {
  double_.Answer("VORQ_GetQConstr").Set("qRow", {0, 1}).Set("qCol", {1, 9}).Set("qCoef", {1.0, 1.0});
  EXPECT_EQ(Own(model_->GetQuadRow(constr_.get()))->GetSize(), 1u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

TEST_F(QuadraticReadingTest, InfoIsReadForManyAtOnce) {
  double_.Values("VORQ_GetQConstrInfo", "Slack", {0.5});
  auto const list = Own(CreateQConstrArray());
  list->PushBack(*constr_);
  list->PushBack(*Own(model_->GetQConstr(-1)));
  double out[2] = {0.0, -1.0};
  EXPECT_EQ(model_->GetQConstrInfo("Slack", list.get(), out), 1);
  EXPECT_EQ(out[0], 0.5);
  EXPECT_EQ(out[1], -1.0);
  EXPECT_CALLS(double_, {R"(VORQ_GetQConstrInfo(prob#1, "Slack", 1, [0], out))"});
}

// ---- Objective

TEST_F(QuadraticTest, ObjectiveHasItsQuadraticPartFirst) {
  model_->SetQuadObjective(Example().get(), -1);
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_SetQuadObj(prob#1, 2, [0,1], [1,0], [2,3])", "VORQ_ReplaceColObj(prob#1, 1, [2], [2])",
                         "VORQ_SetObjConst(prob#1, 1)", "VORQ_SetObjSense(prob#1, -1)"});
}

TEST_F(QuadraticTest, ObjectiveSenseOfZeroIsLeftAlone) {
  model_->SetQuadObjective(Example().get(), 0);
  EXPECT_EQ(double_.CountCalls("VORQ_SetObjSense"), 0u);
}

TEST_F(QuadraticTest, RefusedQuadraticPartLeavesTheLinearObjective) {
  double_.FailNext("VORQ_SetQuadObj", VORQ_MEMORY);
  model_->SetQuadObjective(Example().get(), 1);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to set quadratic objective");
  EXPECT_EQ(double_.Calls().size(), 1u);
}

TEST_F(QuadraticTest, ObjectiveIsReadInOneCall) {
  double_.IntAttr("QElems", 2).DblAttr("ObjConst", 2.5).Values("VORQ_GetColInfo", "Obj", {1.0, 0.0, 0.0});
  double_.Answer("VORQ_GetQuadObj").Set("rows", {0, 1}).Set("cols", {1, 2}).Set("values", {3.0, 4.0});
  QuadExpr const objective = Own(model_->GetQuadObjective());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS_OF(double_, "VORQ_GetQuadObj", {"VORQ_GetQuadObj(prob#1, null, out, out, out)"});
  ASSERT_EQ(objective->GetSize(), 2u);
  EXPECT_EQ(Own(objective->GetVar2(1))->GetIdx(), 2);
  EXPECT_EQ(objective->GetCoeff(1), 4.0);
  EXPECT_EQ(objective->GetConstant(), 2.5);
  EXPECT_EQ(Own(objective->GetLinExpr())->GetSize(), 1u);
}

TEST_F(QuadraticTest, ObjectiveWithoutQuadraticTermsIsTheLinearOne) {
  double_.DblAttr("ObjConst", 2.5);
  QuadExpr const objective = Own(model_->GetQuadObjective());
  EXPECT_EQ(double_.CountCalls("VORQ_GetQuadObj"), 0u);
  EXPECT_EQ(objective->GetSize(), 0u);
  EXPECT_EQ(objective->GetConstant(), 2.5);
}

TEST_F(QuadraticTest, ObjectiveThatCannotBeReadIsEmpty) {
  double_.IntAttr("QElems", 1).DblAttr("ObjConst", 2.5);
  double_.FailNext("VORQ_GetQuadObj", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->GetQuadObjective())->GetConstant(), 0.0);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get quadratic objective");
  double_.Answer("VORQ_GetQuadObj").Set("rows", {9}).Set("cols", {1}).Set("values", {3.0});
  EXPECT_EQ(Own(model_->GetQuadObjective())->GetConstant(), 0.0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid col index");
}

TEST_F(QuadraticTest, ObjectiveIsDeletedWithoutAFlush) {
  x_->Remove();
  model_->DelQuadObj();
  EXPECT_CALLS(double_, {"VORQ_DelQuadObj(prob#1)"});
  double_.FailNext("VORQ_DelQuadObj", VORQ_MEMORY);
  model_->DelQuadObj();
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to delete quadratic objective");
}

}  // namespace
