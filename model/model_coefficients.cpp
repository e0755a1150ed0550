// Single coefficients of linear constraints, and the whole matrix.
#include "model/model.hpp"

namespace Vorq {

double Model::GetCoeff(Constraint const& constr, Var const& var) {
  double value = 0.0;
  if (ApplyRemovals()) Record(VORQ_GetElem(Prob(), var.Idx(), constr.Idx(), &value), "Fail to get coefficient");
  return value;
}

void Model::SetCoeff(Constraint const& constr, Var const& var, double value) {
  if (ApplyRemovals()) Record(VORQ_SetElem(Prob(), var.Idx(), constr.Idx(), value), "Fail to change coefficient");
}

void Model::SetCoeffs(ConstrArray const& constrs, VarArray const& vars, double const* values, int len) {
  if (values == nullptr || len < 1 || !ApplyRemovals()) return;
  if (constrs.size() != vars.size() || static_cast<std::size_t>(len) < vars.size()) {
    Refuse("Dimensions mismatch among constraints, variables and values");
    return;
  }
  std::vector<int> rows, cols;
  rows.reserve(vars.size());
  cols.reserve(vars.size());
  for (std::size_t i = 0; i < vars.size(); ++i) {
    if (!CheckLive(constrs[i]) || !CheckLive(vars[i])) return;
    rows.push_back(constrs[i].Idx());
    cols.push_back(vars[i].Idx());
  }
  Record(VORQ_SetElems(Prob(), static_cast<int>(vars.size()), cols.data(), rows.data(), values),
         "Fail to change coefficients");
}

void Model::GetCols(int* begin, int* count, int* index, double* value) {
  if (!ApplyRemovals()) return;
  int const cols = GetIntAttr("Cols");
  if (status.Failed()) return;
  int const elements = GetIntAttr("Elems");
  if (status.Failed()) return;
  Record(VORQ_GetCols(Prob(), cols, nullptr, begin, count, index, value, elements, nullptr),
         "Fail to get coefficient matrix");
}

}  // namespace Vorq
