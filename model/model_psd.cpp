// PSD variables, PSD constraints and the PSD part of the objective.
#include "items/normalize_name.hpp"
#include "model/builder_bounds.hpp"
#include "model/matrix_coefficients.hpp"
#include "model/model_live_items.hpp"
#include "model/model_terms.hpp"
#include "model/names.hpp"

namespace Vorq {
namespace {

// The sense that says: the pair of bounds counts.
constexpr int kBoundsSense = 0;

std::vector<int> IndicesOf(std::vector<PsdVar> const& vars) {
  std::vector<int> indices;
  indices.reserve(vars.size());
  for (PsdVar const& var : vars) indices.push_back(var.Idx());
  return indices;
}

}  // namespace

PsdVar Model::AddPsdVar(int dim, char const* name) {
  std::string const normalized = NormalizeName(name);
  int const code = VORQ_AddPSDCol(Prob(), dim, normalized.c_str());
  return Added<PsdVar>(code, "Fail to add a PSD variable", normalized, dim);
}

PsdVarArray Model::AddPsdVars(int count, int const* dims, char const* prefix) {
  if (count < 1) return {};
  // The numbers go on from the number of ordinary variables, which is meant.
  std::string const names = NumberedNames(prefix, Count<Var>(), count);
  return AddPsdVars(count, dims, names.data(), names.size());
}

PsdVarArray Model::AddPsdVars(int count, int const* dims, char const* names, std::size_t length) {
  std::vector<char const*> split;
  if (count < 1 || dims == nullptr || names == nullptr || length == 0) return {};
  if (!TakeNames(names, length, count, split)) return {};
  return AddedAll<PsdVar>(VORQ_AddPSDCols(Prob(), count, dims, split.data()), "Fail to add PSD variables", split, dims);
}

PsdConstraint Model::AddPsdRow(PsdExpr& expr, int sense, double bound, double upper, std::string const& name) {
  Expr& linear = expr.linear;
  int const count = Compact(linear, Count<Var>());
  expr.MergeTerms();
  std::vector<int> const vars = IndicesOf(expr.vars);
  std::vector<int> matrices;
  if (!AddMatrices(expr.coeffs, matrices)) return Invalid<PsdConstraint>();
  int const code =
      VORQ_AddPSDConstr(Prob(), count, indices_.data(), linear.coeffs.data(), static_cast<int>(vars.size()),
                        vars.data(), matrices.data(), sense, bound, upper, name.c_str());
  return Added<PsdConstraint>(code, "Fail to add a PSD constraint", name);
}

bool Model::CheckPsdTerms(PsdExpr const& expr) {
  return expr.Size() > 0 || Refuse("Invalid PSD expression object");
}

PsdConstraint Model::AddPsdConstr(PsdExpr& expr, char sense, double rhs, char const* name) {
  if (!CheckPsdTerms(expr)) return Invalid<PsdConstraint>();
  if (sense != 'E' && sense != 'G' && sense != 'L') Refuse("Invalid sense of PSD constraint");
  // A failure that an earlier operation left stops this one too, which is meant.
  if (status.Failed()) return Invalid<PsdConstraint>();
  return AddPsdRow(expr, sense, rhs - expr.linear.constant, kInfinity, NormalizeName(name));
}

PsdConstraint Model::AddPsdConstr(PsdExpr const& lhs, char sense, PsdExpr const& rhs, char const* name) {
  PsdExpr difference(lhs);
  difference.AddPsdExpr(rhs, -1.0);
  return AddPsdConstr(difference, sense, 0.0, name);
}

PsdConstraint Model::AddPsdConstr(PsdExpr& expr, double lower, double upper, char const* name) {
  if (!CheckPsdTerms(expr)) return Invalid<PsdConstraint>();
  double const constant = expr.linear.constant;
  return AddPsdRow(expr, kBoundsSense, lower - constant, upper - constant, NormalizeName(name));
}

PsdConstraint Model::AddPsdConstr(PsdConstrBuilder& builder, char const* name) {
  if (builder.sense == 'R') return AddPsdConstr(builder.expr, -builder.range, 0.0, name);
  return AddPsdConstr(builder.expr, builder.sense, 0.0, name);
}

PsdExpr Model::GetPsdRow(PsdConstraint const& constr) {
  PsdExpr row;
  int const index = constr.Idx();
  if (index < 0) {
    Refuse("Invalid PSD constraint");
    return row;
  }
  int linearCount = 0;
  int psdCount = 0;
  std::vector<int> linear, vars, matrices;
  std::vector<double> coeffs;
  bool const hasRead = ReadTwice(
      [&](int* required) {
        return VORQ_GetPSDConstr(Prob(), index, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                 0, required);
      },
      "Fail to get required row buffer size of PSD constraint",
      [&](int capacity) {
        auto const size = static_cast<std::size_t>(capacity);
        for (auto* list : {&linear, &vars, &matrices}) list->resize(size);
        coeffs.resize(size);
        return VORQ_GetPSDConstr(Prob(), index, &linearCount, linear.data(), coeffs.data(), &psdCount, vars.data(),
                                 matrices.data(), nullptr, nullptr, capacity, nullptr);
      },
      "Fail to get row data of PSD constraint");
  if (!hasRead) return row;
  auto const linearSize = static_cast<std::size_t>(linearCount);
  AddTerms<Var>(std::span(linear).first(linearSize), std::span(coeffs).first(linearSize), row.linear);
  for (std::size_t k = 0; k < static_cast<std::size_t>(psdCount) && !status.Failed(); ++k) {
    AddMatrixTerm<PsdVar>(vars[k], matrices[k], row);
  }
  return row;
}

PsdConstrBuilder Model::GetPsdConstrBuilder(PsdConstraint& constr) {
  PsdConstrBuilder builder;
  builder.expr = GetPsdRow(constr);
  if (!status.Failed()) AddBounds(builder, builder.expr.linear, constr);
  return builder;
}

PsdConstrBuilderArray Model::GetPsdConstrBuilders() {
  return BuildersOfLive<PsdConstraint, PsdConstrBuilder>([&](PsdConstraint& constr, PsdConstrBuilder& builder) {
    builder = GetPsdConstrBuilder(constr);
    return !status.Failed();
  });
}

SymMatrix Model::GetPsdCoeff(PsdConstraint const& constr, PsdVar const& var) {
  return GetMatrix([&](int* matrix) { return VORQ_GetPSDElem(Prob(), var.Idx(), constr.Idx(), matrix); },
                   "Fail to get coefficient matrix of PSD constraint");
}

void Model::SetPsdCoeff(PsdConstraint const& constr, PsdVar const& var, SymMatrix const& mat) {
  if (mat.dim != var.dim) {
    Refuse("Dimension mismatch between PSD variable and symmetric matrix");
  } else if (CheckMatrix(mat)) {
    Record(VORQ_SetPSDElem(Prob(), var.Idx(), constr.Idx(), mat.Idx()), "Fail to change coefficient of PSD variable");
  }
}

// A failure that stands stops the operation before its first step, which is meant.
void Model::SetPsdObjective(PsdExpr& expr, int sense) {
  expr.MergeTerms();
  std::vector<int> const vars = IndicesOf(expr.vars);
  std::vector<int> matrices;
  if (status.Failed() || !AddMatrices(expr.coeffs, matrices)) return;
  int const code = VORQ_ReplacePSDObj(Prob(), static_cast<int>(vars.size()), vars.data(), matrices.data());
  if (Record(code, "Fail to set PSD objective")) SetObjective(expr.linear, sense);
}

PsdExpr Model::GetPsdObjective() {
  PsdExpr objective;
  int const count = GetIntAttr("PSDCols");
  if (status.Failed()) return objective;
  bool const hasPsdPart = GetIntAttr("HasPSDObj") != 0 && !status.Failed();
  for (int i = 0; i < count && hasPsdPart && !status.Failed(); ++i) {
    int matrix = -1;
    if (!Record(VORQ_GetPSDObj(Prob(), i, &matrix), "Fail to get PSD objective")) break;
    // A variable without a matrix takes no part.
    if (matrix != -1) AddMatrixTerm<PsdVar>(i, matrix, objective);
  }
  if (!status.Failed()) objective.linear.AddExpr(GetObjective(), 1.0);
  return objective;
}

void Model::DelPsdObj() {
  Record(VORQ_DelPSDObj(Prob()), "Fail to delete PSD objective");
}

}  // namespace Vorq
