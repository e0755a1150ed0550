// The linear objective: it is handed over in pieces, and a failure leaves the earlier ones in the solver library.
#include "model/model_terms.hpp"

namespace Vorq {
namespace {

constexpr char const* kObjSenseFailed = "Fail to set obj sense";
constexpr char const* kObjConstFailed = "Fail to set obj const";

}  // namespace

void Model::SetObjSense(int sense) {
  Record(VORQ_SetObjSense(Prob(), sense), kObjSenseFailed);
}

void Model::SetObjConst(double constant) {
  Record(VORQ_SetObjConst(Prob(), constant), kObjConstFailed);
}

// The terms stand in `indices_`.
void Model::ReplaceObjective(double const* coeffs, double constant, int sense) {
  int const code = VORQ_ReplaceColObj(Prob(), static_cast<int>(indices_.size()), indices_.data(), coeffs);
  if (!Record(code, "Fail to set objective coefficients")) return;
  if (!Record(VORQ_SetObjConst(Prob(), constant), kObjConstFailed)) return;
  if (sense != 0) SetObjSense(sense);
}

void Model::SetObjective(Expr& expr, int sense) {
  Compact(expr, Count<Var>());
  ReplaceObjective(expr.coeffs.data(), expr.constant, sense);
}

void Model::SetObjective(MExpression const& cell, int sense) {
  Collect(cell);
  ReplaceObjective(coeffs_.data(), cell.GetConstant(), sense);
}

void Model::SetObjective(Var const& var, int sense) {
  Expr expr(var, 1.0);
  SetObjective(expr, sense);
}

Expr Model::GetObjective() {
  Expr objective(GetDblAttr("ObjConst"));
  for (int i = 0; i < Count<Var>() && !status.Failed(); ++i) {
    Var var = Get<Var>(i);
    if (status.Failed() || !var.IsLive()) continue;
    double const coefficient = var.Get("Obj");
    if (var.status.Failed()) {
      HandOn(var.status);
    } else if (coefficient != 0.0) {
      objective.AddTerm(var, coefficient);
    }
  }
  return objective;
}

}  // namespace Vorq
