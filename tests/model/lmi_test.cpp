// LMI constraints: adding, reading them back as expressions, coefficients and constants.
#include <functional>

#include "tests/model/special_fixture.hpp"

namespace {

using vorqtest::Own;

class LmiTest : public vorqtest::SpecialConstraintsTest {
 protected:
  using LmiExpr = std::unique_ptr<Vorq::ILmiExpr>;

  // mat + x mat + y mat + x mat
  LmiExpr Example() {
    LmiExpr expr = Own(CreateLmiExpr2(mat_.get()));
    for (Var const* var : {&x_, &y_, &x_}) expr->AddTerm(var->get(), mat_.get());
    return expr;
  }

  std::unique_ptr<Vorq::ISymMatrix> mat_ = AddMatrix(2);
};

TEST_F(LmiTest, MakesAMatrixForEachVariableAndTheConstant) {
  auto const constr = Own(model_->AddLmiConstr(Example().get(), " l 1 "));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(constr->GetIdx(), 0);
  EXPECT_EQ(constr->GetDim(), 2);
  EXPECT_EQ(constr->GetLen(), 4);
  EXPECT_STREQ(constr->GetName(), "l_1");
  EXPECT_CALLS_OF(double_, "VORQ_AddLMIConstr", {R"(VORQ_AddLMIConstr(prob#1, 2, 2, [0,1], [1,2], 3, "l_1"))"});
}

TEST_F(LmiTest, NoConstantIsMinusOne) {
  Own(model_->AddLmiConstr(Own(CreateLmiExpr4(z_.get(), mat_.get())).get(), nullptr));
  EXPECT_CALLS_OF(double_, "VORQ_AddLMIConstr", {R"(VORQ_AddLMIConstr(prob#1, 2, 1, [2], [1], -1, ""))"});
}

TEST_F(LmiTest, ExpressionWithoutTermsIsRefused) {
  EXPECT_EQ(Own(model_->AddLmiConstr(Own(CreateLmiExpr1()).get(), "l"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid LMI expression object");
  EXPECT_EQ(Own(model_->AddLmiConstr(Own(CreateLmiExpr2(mat_.get())).get(), "l"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid LMI expression object");
  EXPECT_CALLS(double_, {});
}

TEST_F(LmiTest, TermsOfRemovedVariablesAreDropped) {
  LmiExpr const expr = Example();
  x_->Remove();
  Own(model_->AddLmiConstr(expr.get(), "l"));
  EXPECT_CALLS_OF(double_, "VORQ_AddLMIConstr", {R"(VORQ_AddLMIConstr(prob#1, 2, 1, [1], [1], 2, "l"))"});
}

TEST_F(LmiTest, AnEarlierFailureDoesNotStopIt) {
  Fail();
  EXPECT_EQ(Own(model_->AddLmiConstr(Example().get(), "l"))->GetIdx(), 0);
  EXPECT_SUCCESS(model_);
}

TEST_F(LmiTest, AMatrixThatFailsEndsTheOperation) {
  LmiExpr const expr = Own(CreateLmiExpr5(x_.get(), Own(CreateSymMatExpr1()).get()));
  auto const constr = Own(model_->AddLmiConstr(expr.get(), "l"));
  EXPECT_EQ(constr->GetIdx(), -2);
  EXPECT_EQ(constr->GetDim(), 0);
  EXPECT_FAILURE(model_, 3, "(INVALID) Empty symmetric matrix expression object");
  double_.FailNth("VORQ_AddSymMat", 3, VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddLmiConstr(Example().get(), "l"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Failed to add a symmetric matrix to model");
  EXPECT_EQ(double_.CountCalls("VORQ_AddLMIConstr"), 0u);
}

TEST_F(LmiTest, RefusedConstraintIsInvalid) {
  double_.FailNext("VORQ_AddLMIConstr", VORQ_MEMORY);
  EXPECT_EQ(Own(model_->AddLmiConstr(Example().get(), "l"))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to add an LMI constraint");
}

// A constraint of which the model knows, and what the solver library says of it.
class LmiReadingTest : public LmiTest {
 protected:
  LmiReadingTest() {
    constr_ = Own(model_->AddLmiConstr(Example().get(), "l"));
    double_.Answer("VORQ_GetLMIConstr").Set("cols", {2, 0}).Set("symMats", {1, 2}).Set("constant", 3);
    double_.ClearLog();
  }

  std::unique_ptr<Vorq::ILmiConstraint> constr_;
};

TEST_F(LmiReadingTest, RowHasTermsAndConstant) {
  LmiExpr const row = Own(model_->GetLmiRow(constr_.get()));
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetLMIConstr(prob#1, 0, null, null, null, null, null, 0, out)",
                         "VORQ_GetLMIConstr(prob#1, 0, null, out, out, out, out, 2, null)"});
  ASSERT_EQ(row->GetSize(), 2u);
  EXPECT_EQ(Own(row->GetVar(0))->GetIdx(), 2);
  EXPECT_EQ(Own(Own(row->GetCoeff(1))->GetSymMat(0))->GetIdx(), 2);
  EXPECT_EQ(Own(Own(row->GetConstant())->GetSymMat(0))->GetIdx(), 3);
}

TEST_F(LmiReadingTest, RowWithoutConstant) {
  double_.Answer("VORQ_GetLMIConstr").Set("cols", {2}).Set("symMats", {1}).Set("constant", -1);
  LmiExpr const row = Own(model_->GetLmiRow(constr_.get()));
  EXPECT_SUCCESS(model_);
  EXPECT_EQ(Own(row->GetConstant())->GetSize(), 0u);
}

TEST_F(LmiReadingTest, UnknownMatrixEndsTheRow) {
  double_.Answer("VORQ_GetLMIConstr").Set("cols", {2, 0}).Set("symMats", {1, 9}).Set("constant", 3);
  LmiExpr const row = Own(model_->GetLmiRow(constr_.get()));
  EXPECT_EQ(row->GetSize(), 1u);
  EXPECT_EQ(Own(row->GetConstant())->GetSize(), 0u);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid index of symmetric matrix");
}

TEST_F(LmiReadingTest, FailuresTellWhichReadFailed) {
  double_.FailNth("VORQ_GetLMIConstr", 1, VORQ_MEMORY);
  Own(model_->GetLmiRow(constr_.get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get required row buffer size of LMI constraint");
  double_.FailNth("VORQ_GetLMIConstr", 2, VORQ_MEMORY);
  Own(model_->GetLmiRow(constr_.get()));
  EXPECT_FAILURE(model_, 1, "(MEMORY) Fail to get row data of LMI constraint");
}

TEST_F(LmiReadingTest, CoefficientAndConstantAreMatricesOfTheModel) {
  double_.Answer("VORQ_GetLMIElem").Set("symMat", 2);
  double_.Answer("VORQ_GetLMIConstrRhs").Set("symMats", 3);
  EXPECT_EQ(Own(model_->GetLmiCoeff(constr_.get(), y_.get()))->GetIdx(), 2);
  model_->SetLmiCoeff(constr_.get(), y_.get(), mat_.get());
  EXPECT_EQ(Own(model_->GetLmiRhs(constr_.get()))->GetIdx(), 3);
  model_->SetLmiRhs(constr_.get(), mat_.get());
  EXPECT_SUCCESS(model_);
  EXPECT_CALLS(double_, {"VORQ_GetLMIElem(prob#1, 1, 0, out)", "VORQ_SetLMIElem(prob#1, 1, 0, 0)",
                         "VORQ_GetLMIConstrRhs(prob#1, 1, [0], out)", "VORQ_SetLMIConstrRhs(prob#1, 1, [0], [0])"});
}

TEST_F(LmiReadingTest, MissingMatricesAreInvalid) {
  double_.Answer("VORQ_GetLMIElem").Set("symMat", -1);
  double_.Answer("VORQ_GetLMIConstrRhs").Set("symMats", -1);
  EXPECT_EQ(Own(model_->GetLmiCoeff(constr_.get(), z_.get()))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid index of symmetric matrix");
  EXPECT_EQ(Own(model_->GetLmiRhs(constr_.get()))->GetIdx(), -2);
  EXPECT_FAILURE(model_, 3, "(INVALID) Invalid index of symmetric matrix");
}

TEST_F(LmiReadingTest, RemovedConstraintIsRefusedEverywhere) {
  auto const wide = AddMatrix(3);
  constr_->Remove();
  for (auto const& operation : std::vector<std::function<void()>>{
           [&] { Own(model_->GetLmiRow(constr_.get())); }, [&] { Own(model_->GetLmiCoeff(constr_.get(), x_.get())); },
           [&] { model_->SetLmiCoeff(constr_.get(), x_.get(), wide.get()); },
           [&] { Own(model_->GetLmiRhs(constr_.get())); }, [&] { model_->SetLmiRhs(constr_.get(), wide.get()); }}) {
    Own(model_->GetVar(0));
    operation();
    EXPECT_FAILURE(model_, 3, "(INVALID) Invalid LMI constraint");
  }
  EXPECT_CALLS(double_, {});
}

TEST_F(LmiReadingTest, MatricesThatDoNotFitAreRefused) {
  auto const wide = AddMatrix(3);
  auto const invalid = Own(model_->GetSymMat(-1));
  model_->SetLmiCoeff(constr_.get(), x_.get(), wide.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Input matrix has wrong dimension");
  model_->SetLmiRhs(constr_.get(), invalid.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Input matrix has wrong dimension");
  EXPECT_CALLS(double_, {});
}

TEST_F(LmiReadingTest, RefusedMatricesHaveTheirTexts) {
  double_.FailNext("VORQ_GetLMIElem", VORQ_INVALID);
  Own(model_->GetLmiCoeff(constr_.get(), x_.get()));
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get coefficient matrix of LMI constraint");
  double_.FailNext("VORQ_SetLMIElem", VORQ_INVALID);
  model_->SetLmiCoeff(constr_.get(), x_.get(), mat_.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to change coefficient of LMI constraint");
  double_.FailNext("VORQ_GetLMIConstrRhs", VORQ_INVALID);
  Own(model_->GetLmiRhs(constr_.get()));
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to get constant term of LMI constraint");
  double_.FailNext("VORQ_SetLMIConstrRhs", VORQ_INVALID);
  model_->SetLmiRhs(constr_.get(), mat_.get());
  EXPECT_FAILURE(model_, 3, "(INVALID) Fail to set constant term of LMI constraint");
}

}  // namespace
