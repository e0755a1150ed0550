// The quadratic part of the objective: it goes before the linear one, and a failure leaves that one as it was.
#include "model/cell_terms.hpp"
#include "model/model.hpp"
#include "model/quadratic_terms.hpp"

namespace Vorq {
namespace {

constexpr char const* kSetQuadObjFailed = "Fail to set quadratic objective";

}  // namespace

void Model::SetQuadObjective(QuadExpr& expr, int sense) {
  QuadraticTerms const terms(expr);
  int const code = VORQ_SetQuadObj(Prob(), terms.Count(), terms.rows.data(), terms.cols.data(), expr.coeffs.data());
  if (Record(code, kSetQuadObjFailed)) SetObjective(expr.linear, sense);
}

void Model::SetQuadObjective(MQExpression const& cell, int sense) {
  std::vector<int> rows, cols;
  std::vector<double> values;
  std::size_t const count = CollectQuadTerms(cell, rows, cols, values);
  if (count >= kMaxCount) {
    SetStatus(status, kInvalid, "Fail to set objective of quadratic items of size %zu", count);
    return;
  }
  int const code = VORQ_SetQuadObj(Prob(), static_cast<int>(count), rows.data(), cols.data(), values.data());
  if (!Record(code, kSetQuadObjFailed)) return;
  // The cell is only read: its linear part is merged in a copy.
  Expr linear = cell.expr.linear;
  SetObjective(linear, sense);
}

QuadExpr Model::GetQuadObjective() {
  QuadExpr objective;
  int const count = GetIntAttr("QElems");
  if (count > 0) {
    auto const size = static_cast<std::size_t>(count);
    std::vector<int> rows(size), cols(size);
    std::vector<double> coeffs(size);
    if (!Record(VORQ_GetQuadObj(Prob(), nullptr, rows.data(), cols.data(), coeffs.data()),
                "Fail to get quadratic objective")) {
      return objective;
    }
    AddQuadraticTerms(rows, cols, coeffs, objective);
  }
  if (!status.Failed()) objective.linear.AddExpr(GetObjective(), 1.0);
  return objective;
}

void Model::DelQuadObj() {
  Record(VORQ_DelQuadObj(Prob()), "Fail to delete quadratic objective");
}

// Up to an index that this model does not know.
void Model::AddQuadraticTerms(std::span<int const> rows, std::span<int const> cols, std::span<double const> coeffs,
                              QuadExpr& expr) {
  for (std::size_t k = 0; k < rows.size(); ++k) {
    Var const first = Get<Var>(rows[k]);
    if (status.Failed()) return;
    Var const second = Get<Var>(cols[k]);
    if (status.Failed()) return;
    expr.AddTerm(first, second, coeffs[k]);
  }
}

}  // namespace Vorq
