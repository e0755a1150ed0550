// ModelTest: the base of tests that use a model through the interfaces, over the recording double.
#pragma once

#include <vorq>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/double/solver_double.hpp"
#include "tests/support/objects.hpp"

namespace vorqtest {

class ModelTest : public SolverDoubleTest {
 protected:
  using Var = std::unique_ptr<Vorq::IVar>;
  using Constr = std::unique_ptr<Vorq::IConstraint>;
  using Expr = std::unique_ptr<Vorq::IExpr>;

  // A term of an expression.
  struct Term {
    Var const& var;
    double coefficient;
  };

  ModelTest() { double_.ClearLog(); }

  Var AddVar(char const* name) { return Own(model_->AddVar(0.0, 1.0, 0.0, 'C', name)); }

  // Adds variables, and forgets the calls.
  std::vector<Var> AddVars(int count) {
    auto const array = Own(model_->AddVars(count, 'C', "x"));
    std::vector<Var> vars;
    for (int i = 0; i < count; ++i) vars.push_back(Own(array->Get(i)));
    double_.ClearLog();
    return vars;
  }

  std::vector<Constr> AddConstrs(int count) {
    std::vector<double> const bounds(static_cast<std::size_t>(count), 0.0);
    auto const array = Own(model_->AddConstrs(count, bounds.data(), bounds.data(), "c"));
    std::vector<Constr> constrs;
    for (int i = 0; i < count; ++i) constrs.push_back(Own(array->Get(i)));
    double_.ClearLog();
    return constrs;
  }

  static std::unique_ptr<Vorq::IVarArray> ArrayOf(std::initializer_list<Vorq::IVar*> vars) {
    auto array = Own(CreateVarArray());
    for (Vorq::IVar* var : vars) array->PushBack(*var);
    return array;
  }
  static std::unique_ptr<Vorq::IConstrArray> ArrayOf(std::initializer_list<Vorq::IConstraint*> constrs) {
    auto array = Own(CreateConstrArray());
    for (Vorq::IConstraint* constr : constrs) array->PushBack(*constr);
    return array;
  }

  static Expr Sum(std::initializer_list<Term> terms, double constant = 0.0) {
    Expr expr = Own(CreateExpr(constant));
    for (Term const& term : terms) expr->AddTerm(term.var.get(), term.coefficient);
    return expr;
  }

  static std::unique_ptr<Vorq::IConstrBuilder> Builder(Expr const& expr, char sense, double rhs) {
    auto builder = Own(CreateConstrBuilder());
    builder->Set(expr.get(), sense, rhs);
    return builder;
  }
  static std::unique_ptr<Vorq::IConstrBuilder> RangeBuilder(Expr const& expr, double range) {
    auto builder = Own(CreateConstrBuilder());
    builder->SetRange(expr.get(), range);
    return builder;
  }

  static std::unique_ptr<Vorq::IConstrBuilderArray> ArrayOf(std::initializer_list<Vorq::IConstrBuilder*> builders) {
    auto array = Own(CreateConstrBuilderArray());
    for (Vorq::IConstrBuilder* builder : builders) array->PushBack(*builder);
    return array;
  }

  // Leaves a failure in the model's status: "(INVALID) Invalid col index".
  void Fail() { Own(model_->GetVar(-1)); }

  SilentSink sink_;
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("m")};
};

}  // namespace vorqtest
