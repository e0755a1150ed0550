// The handles on items, arrays, expressions and builders, used as a caller uses them: through interfaces and exported
// functions.
#include <memory>

#include "handles/builder_arrays.hpp"
#include "handles/expressions.hpp"
#include "handles/item_arrays.hpp"
#include "tests/items/items_fixture.hpp"
#include "vorqmodel/exports.h"

namespace vorqtest {
namespace {

template <class Interface>
using Owned = std::unique_ptr<Interface>;

template <class Interface>
Owned<Interface> Own(Interface* object) {
  return Owned<Interface>(object);
}

class ScalarHandlesTest : public ItemsTest {
 protected:
  // A handle on an item of the problem.
  template <class Interface>
  Owned<Interface> Handle(std::string name, int idx) {
    return Own(Vorq::Wrap<Interface>(problem_, std::move(name), idx));
  }
  Owned<Vorq::ISymMatrix> Matrix(int idx, int dim) { return Own(Vorq::Wrap<Vorq::ISymMatrix>(problem_, "", idx, dim)); }

  Owned<Vorq::IVar> x_ = Handle<Vorq::IVar>("x", 0);
  Owned<Vorq::IVar> y_ = Handle<Vorq::IVar>("y", 1);
};

TEST_F(ScalarHandlesTest, TwoHandlesOfAnItemShareIt) {
  auto expr = Own(CreateLinExpr(x_.get(), 1.0));
  auto again = Own(expr->GetVar(0));
  EXPECT_NE(again.get(), x_.get());
  again->Remove();
  EXPECT_EQ(x_->GetIdx(), -3);
}

TEST_F(ScalarHandlesTest, AVariableForwardsAllItsOperations) {
  double_.Values("VORQ_GetColBasis", {1});
  double_.Answer("VORQ_GetColType").Set("types", "C");
  EXPECT_STREQ(x_->GetName(), "x");
  x_->SetName("n");
  EXPECT_EQ(x_->GetType(), 'C');
  x_->SetType('I');
  EXPECT_EQ(x_->GetBasis(), 1);
  EXPECT_EQ(x_->GetLowerIIS(), 0);
  EXPECT_EQ(x_->GetUpperIIS(), 0);
  EXPECT_EQ(x_->Get("Value"), 0.0);
  x_->Set("LB", 1.0);
  EXPECT_EQ(x_->GetLastError(), 0);
  EXPECT_EQ(x_->GetErrorMessage(), nullptr);
  EXPECT_EQ(
      double_.CallNames(),
      (std::vector<std::string>{"VORQ_SetColNames", "VORQ_GetColType", "VORQ_SetColType", "VORQ_GetColBasis",
                                "VORQ_GetColLowerIIS", "VORQ_GetColUpperIIS", "VORQ_GetColInfo", "VORQ_SetColLower"}));
  x_->Set("nonsense", 1.0);
  EXPECT_EQ(x_->GetLastError(), 3);
  EXPECT_STREQ(x_->GetErrorMessage(), "(INVALID) Unknown variable information");
}

TEST_F(ScalarHandlesTest, AnItemOutlivesEverythingElseOfItsProblem) {
  problem_ = {};
  y_.reset();
  EXPECT_STREQ(x_->GetName(), "x");
  EXPECT_EQ(double_.LiveProblems(), 1);
  x_.reset();
  EXPECT_EQ(double_.LiveProblems(), 0);
}

TEST_F(ScalarHandlesTest, PsdVariablesTellDimensionAndLength) {
  auto psd = Own(Vorq::Wrap<Vorq::IPsdVar>(problem_, "X", 2, 3));
  EXPECT_EQ(psd->GetDim(), 3);
  EXPECT_EQ(psd->GetLen(), 9);
  EXPECT_EQ(psd->GetSize(), 9);
}

TEST_F(ScalarHandlesTest, LmiConstraintsTakeAMatrix) {
  auto row = Own(Vorq::Wrap<Vorq::ILmiConstraint>(problem_, "L", 1, 3));
  auto matrix = Matrix(4, 3);
  row->SetRhs(matrix.get());
  EXPECT_CALLS(double_, {"VORQ_SetLMIConstrRhs(prob#1, 1, [1], [4])"});
}

TEST_F(ScalarHandlesTest, CopiesOfExpressionsAreIndependent) {
  auto expr = Own(CreateExpr(1.0));
  expr->AddTerm(x_.get(), 2.0);
  auto clone = Own(expr->Clone());
  clone->SetCoeff(0, 9.0);
  clone->AddConstant(1.0);
  EXPECT_EQ(expr->GetCoeff(0), 2.0);
  EXPECT_EQ(expr->GetConstant(), 1.0);
  EXPECT_EQ(clone->GetConstant(), 2.0);
}

TEST_F(ScalarHandlesTest, ExpressionOperationsThroughTheInterface) {
  auto expr = Own(CreateExpr(1.0));
  auto vars = Own(CreateVarArray());
  vars->PushBack(*x_);
  vars->PushBack(*y_);
  double c[] = {2, 3};
  EXPECT_EQ(expr->AddTerms(vars.get(), c, 1), -1);
  EXPECT_EQ(expr->AddTerms(vars.get(), c, 2), 2);
  expr->AddExpr(expr.get(), 2.0);
  EXPECT_EQ(expr->GetSize(), 4u);
  EXPECT_EQ(expr->GetConstant(), 3.0);
  expr->Remove(x_.get());
  EXPECT_EQ(expr->GetSize(), 2u);
  expr->Remove(0);
  expr->Multiply(2.0);
  EXPECT_EQ(expr->GetCoeff(0), 6.0);
  expr->Reserve(10);
  expr->Clear();
  EXPECT_EQ(expr->GetSize(), 0u);
}

TEST_F(ScalarHandlesTest, ColumnOperationsThroughTheInterface) {
  auto row = Handle<Vorq::IConstraint>("r", 0);
  auto column = Own(CreateColumn());
  column->AddTerm(row.get(), 2.0);
  auto rows = Own(CreateConstrArray());
  rows->PushBack(*row);
  double c[] = {5};
  EXPECT_EQ(column->AddTerms(rows.get(), c, 1), 1);
  auto clone = Own(column->Clone());
  column->AddColumn(clone.get(), 0.0);
  EXPECT_EQ(column->GetSize(), 4);
  EXPECT_EQ(column->GetCoeff(1), 5.0);
  EXPECT_EQ(Own(column->GetConstr(3))->GetIdx(), 0);
  EXPECT_EQ(column->Remove(row.get()), 1);
  EXPECT_EQ(column->Remove(row.get()), 0);
}

TEST_F(ScalarHandlesTest, FactoriesOfQuadraticExpressions) {
  auto a = Own(CreateLinExpr(x_.get(), 1.0));
  a->SetConstant(1.0);
  auto b = Own(CreateLinExpr(y_.get(), 1.0));
  b->SetConstant(2.0);
  EXPECT_EQ(Own(CreateQuadExpr1(4.0))->GetConstant(), 4.0);
  EXPECT_EQ(Own(Own(CreateQuadExpr2(x_.get(), 3.0))->GetLinExpr())->GetCoeff(0), 3.0);
  EXPECT_EQ(Own(CreateQuadExpr3(a.get()))->GetConstant(), 1.0);
  EXPECT_EQ(Own(CreateQuadExpr4(a.get(), y_.get()))->GetSize(), 1u);
  auto product = Own(CreateQuadExpr5(a.get(), b.get()));
  EXPECT_EQ(product->GetConstant(), 2.0);
  EXPECT_EQ(Own(product->GetVar1(0))->GetIdx(), 0);
  EXPECT_EQ(Own(product->GetVar2(0))->GetIdx(), 1);
}

TEST_F(ScalarHandlesTest, FactoriesOfPsdExpressions) {
  auto psd = Own(Vorq::Wrap<Vorq::IPsdVar>(problem_, "X", 2, 3));
  auto matrix = Matrix(4, 3);
  auto combination = Own(CreateSymMatExpr2(matrix.get(), 2.0));
  auto linear = Own(CreateLinExpr(x_.get(), 1.0));
  EXPECT_EQ(Own(CreatePsdExpr1(4.0))->GetConstant(), 4.0);
  EXPECT_EQ(Own(Own(CreatePsdExpr2(x_.get(), 3.0))->GetLinExpr())->GetSize(), 1u);
  EXPECT_EQ(Own(Own(CreatePsdExpr3(linear.get()))->GetLinExpr())->GetSize(), 1u);
  EXPECT_EQ(Own(Own(CreatePsdExpr4(psd.get(), matrix.get()))->GetCoeff(0))->GetCoeff(0), 1.0);
  auto expr = Own(CreatePsdExpr5(psd.get(), combination.get()));
  EXPECT_EQ(Own(expr->GetCoeff(0))->GetCoeff(0), 2.0);
  EXPECT_EQ(Own(expr->GetPsdVar(0))->GetIdx(), 2);
  expr->SetCoeff(0, matrix.get());
  EXPECT_EQ(Own(expr->GetCoeff(0))->GetCoeff(0), 1.0);
  expr->Remove(psd.get());
  EXPECT_EQ(expr->GetSize(), 0u);
}

TEST_F(ScalarHandlesTest, FactoriesOfLmiExpressions) {
  auto matrix = Matrix(4, 3);
  auto combination = Own(CreateSymMatExpr2(matrix.get(), 2.0));
  EXPECT_EQ(Own(CreateLmiExpr1())->GetSize(), 0u);
  EXPECT_EQ(Own(Own(CreateLmiExpr2(matrix.get()))->GetConstant())->GetCoeff(0), 1.0);
  EXPECT_EQ(Own(Own(CreateLmiExpr3(combination.get()))->GetConstant())->GetCoeff(0), 2.0);
  EXPECT_EQ(Own(Own(CreateLmiExpr4(x_.get(), matrix.get()))->GetVar(0))->GetIdx(), 0);
  auto expr = Own(CreateLmiExpr5(x_.get(), combination.get()));
  expr->SetConstant(matrix.get());
  expr->AddConstant(combination.get());
  EXPECT_EQ(Own(expr->GetConstant())->GetSize(), 2u);
}

TEST_F(ScalarHandlesTest, SymmetricMatrixExpressionsReportAMismatch) {
  auto three = Matrix(0, 3);
  auto four = Matrix(1, 4);
  EXPECT_EQ(three->GetIdx(), 0);
  EXPECT_EQ(three->GetDim(), 3);
  auto expr = Own(CreateSymMatExpr2(three.get(), 1.0));
  EXPECT_FALSE(expr->AddTerm(four.get(), 1.0));
  EXPECT_EQ(expr->GetSize(), 1u);
  EXPECT_EQ(expr->GetLastError(), 3);
  EXPECT_STREQ(expr->GetErrorMessage(), "(INVALID) Dimension of symmetric matrix mismatch");
  EXPECT_EQ(Own(CreateSymMatExpr1())->GetDim(), 0);
}

TEST_F(ScalarHandlesTest, ArraysKeepRemovedItems) {
  auto vars = Own(CreateVarArray());
  vars->Reserve(5);
  vars->PushBack(*x_);
  x_->Remove();
  EXPECT_EQ(vars->Size(), 1);
  EXPECT_EQ(Own(vars->Get(0))->GetIdx(), -3);
}

TEST_F(ScalarHandlesTest, ToVectorGivesHandlesInOrderAndHeadRoom) {
  auto vars = Own(CreateVarArray());
  EXPECT_TRUE(vars->ToVector().empty());
  vars->PushBack(*y_);
  vars->PushBack(*x_);
  std::vector<Vorq::IVar*> const handles = vars->ToVector();
  EXPECT_GE(handles.capacity(), 102u);
  ASSERT_EQ(handles.size(), 2u);
  EXPECT_EQ(handles[0]->GetIdx(), 1);
  EXPECT_EQ(handles[1]->GetIdx(), 0);
  for (auto* handle : handles) delete handle;
}

TEST_F(ScalarHandlesTest, ArraysOfAllItemKindsTakeTheirElements) {
  auto check = [this](auto array, auto element) {
    array->PushBack(*element);
    EXPECT_EQ(array->Size(), 1);
    EXPECT_EQ(Own(array->Get(0))->GetIdx(), 7);
  };
  check(Own(CreateVarArray()), Handle<Vorq::IVar>("", 7));
  check(Own(CreateConstrArray()), Handle<Vorq::IConstraint>("", 7));
  check(Own(CreateSosArray()), Handle<Vorq::ISos>("", 7));
  check(Own(CreateGenConstrArray()), Handle<Vorq::IGenConstr>("", 7));
  check(Own(CreateConeArray()), Handle<Vorq::ICone>("", 7));
  check(Own(CreateExpConeArray()), Handle<Vorq::IExpCone>("", 7));
  check(Own(CreateAffineConeArray()), Handle<Vorq::IAffineCone>("", 7));
  check(Own(CreateQConstrArray()), Handle<Vorq::IQConstraint>("", 7));
  check(Own(CreatePsdVarArray()), Handle<Vorq::IPsdVar>("", 7));
  check(Own(CreatePsdConstrArray()), Handle<Vorq::IPsdConstraint>("", 7));
  check(Own(CreateLmiConstrArray()), Handle<Vorq::ILmiConstraint>("", 7));
  check(Own(CreateSymMatrixArray()), Handle<Vorq::ISymMatrix>("", 7));
}

TEST_F(ScalarHandlesTest, ArraysOfBuildersTakeCopies) {
  auto builder = Own(CreateConstrBuilder());
  auto expr = Own(CreateLinExpr(x_.get(), 2.0));
  builder->Set(expr.get(), 'L', 3.0);
  auto builders = Own(CreateConstrBuilderArray());
  builders->Reserve(2);
  builders->PushBack(*builder);
  builder->Set(expr.get(), 'G', 4.0);
  auto copy = Own(builders->Get(0));
  EXPECT_EQ(copy->GetSense(), 'L');
  EXPECT_EQ(Own(copy->GetExpr())->GetConstant(), -3.0);
}

TEST_F(ScalarHandlesTest, ArraysOfTheOtherBuildersTakeTheirElements) {
  auto check = [](auto array, auto element) {
    array->PushBack(*element);
    EXPECT_EQ(array->Size(), 1);
    EXPECT_NE(Own(array->Get(0)), nullptr);
  };
  check(Own(CreateColumnArray()), Own(CreateColumn()));
  check(Own(CreateQConstrBuilderArray()), Own(CreateQConstrBuilder()));
  check(Own(CreatePsdConstrBuilderArray()), Own(CreatePsdConstrBuilder()));
  check(Own(CreateSosBuilderArray()), Own(CreateSosBuilder()));
  check(Own(CreateGenConstrBuilderArray()), Own(CreateGenConstrBuilder()));
  check(Own(CreateConeBuilderArray()), Own(CreateConeBuilder()));
  check(Own(CreateExpConeBuilderArray()), Own(CreateExpConeBuilder()));
  check(Own(CreateAffineConeBuilderArray()), Own(CreateAffineConeBuilder()));
}

TEST_F(ScalarHandlesTest, AColumnArrayCanBeCleared) {
  auto columns = Own(CreateColumnArray());
  auto column = Own(CreateColumn());
  columns->PushBack(*column);
  columns->Clear();
  EXPECT_EQ(columns->Size(), 0);
}

TEST_F(ScalarHandlesTest, ABuilderGivesCopiesOfItsExpression) {
  auto builder = Own(CreateConstrBuilder());
  auto expr = Own(CreateLinExpr(x_.get(), 1.0));
  expr->SetConstant(1.0);
  builder->Set(expr.get(), 'L', 3.0);
  auto copy = Own(builder->GetExpr());
  EXPECT_EQ(copy->GetConstant(), -2.0);
  builder->SetRange(expr.get(), 5.0);
  EXPECT_EQ(copy->GetConstant(), -2.0);
  EXPECT_EQ(builder->GetSense(), 'R');
  EXPECT_EQ(builder->GetRange(), 5.0);
}

TEST_F(ScalarHandlesTest, SosBuildersGiveVariablesAndWeights) {
  auto builder = Own(CreateSosBuilder());
  EXPECT_EQ(builder->GetWeights(nullptr), 0);
  auto vars = Own(CreateVarArray());
  vars->PushBack(*x_);
  vars->PushBack(*y_);
  double const weights[] = {3, 4};
  builder->Set(vars.get(), weights, 1);
  builder->Set(vars.get(), weights, 2);
  EXPECT_EQ(builder->GetSize(), 4);
  EXPECT_EQ(builder->GetType(), 2);
  EXPECT_EQ(Own(builder->GetVar(1))->GetIdx(), 1);
  EXPECT_EQ(Own(builder->GetVars())->Size(), 4);
  EXPECT_EQ(builder->GetWeight(1), 4.0);
  double out[4] = {};
  EXPECT_EQ(builder->GetWeights(out), 4);
  EXPECT_THAT(out, testing::ElementsAre(3, 4, 3, 4));
}

TEST_F(ScalarHandlesTest, GeneralBuildersGiveTheirVariable) {
  auto builder = Own(CreateGenConstrBuilder());
  auto expr = Own(CreateLinExpr(x_.get(), 1.0));
  builder->Set(y_.get(), 1, expr.get(), 'L', 4);
  EXPECT_EQ(Own(builder->GetBinVar())->GetIdx(), 1);
  EXPECT_EQ(builder->GetBinVal(), 1);
  EXPECT_EQ(builder->GetSense(), 'L');
  EXPECT_EQ(builder->GetType(), 4);
  EXPECT_EQ(Own(builder->GetExpr())->GetSize(), 1u);
}

}  // namespace
}  // namespace vorqtest
