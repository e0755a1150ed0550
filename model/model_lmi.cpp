// LMI constraints: adding, reading them back as expressions, and their coefficients.
#include "items/normalize_name.hpp"
#include "model/matrix_coefficients.hpp"

namespace Vorq {
namespace {

// Stands for a constant of zero.
constexpr int kNoMatrix = -1;

}  // namespace

LmiConstraint Model::AddLmiConstr(LmiExpr& expr, char const* name) {
  if (expr.Size() == 0) {
    Refuse("Invalid LMI expression object");
    return Invalid<LmiConstraint>();
  }
  std::string const normalized = NormalizeName(name);
  expr.MergeTerms();
  std::vector<int> vars, matrices;
  for (Var const& var : expr.vars) vars.push_back(var.Idx());
  int dim = 0;
  if (!AddMatrices(expr.coeffs, matrices, &dim)) return Invalid<LmiConstraint>();
  int constant = kNoMatrix;
  if (expr.constant.Size() > 0) {
    constant = AddSymMat(expr.constant).Idx();
    if (status.Failed()) return Invalid<LmiConstraint>();
  }
  int const code = VORQ_AddLMIConstr(Prob(), dim, static_cast<int>(vars.size()), vars.data(), matrices.data(), constant,
                                     normalized.c_str());
  return Added<LmiConstraint>(code, "Fail to add an LMI constraint", normalized, dim);
}

LmiExpr Model::GetLmiRow(LmiConstraint const& constr) {
  LmiExpr row;
  int const index = constr.Idx();
  if (!CheckLmiConstraint(constr)) return row;
  int count = 0;
  int constant = kNoMatrix;
  std::vector<int> vars, matrices;
  bool const hasRead = ReadTwice(
      [&](int* required) {
        return VORQ_GetLMIConstr(Prob(), index, nullptr, nullptr, nullptr, nullptr, nullptr, 0, required);
      },
      "Fail to get required row buffer size of LMI constraint",
      [&](int capacity) {
        vars.resize(static_cast<std::size_t>(capacity));
        matrices.resize(static_cast<std::size_t>(capacity));
        return VORQ_GetLMIConstr(Prob(), index, nullptr, &count, vars.data(), matrices.data(), &constant, capacity,
                                 nullptr);
      },
      "Fail to get row data of LMI constraint");
  if (!hasRead) return row;
  for (std::size_t k = 0; k < static_cast<std::size_t>(count) && !status.Failed(); ++k) {
    AddMatrixTerm<Var>(vars[k], matrices[k], row);
  }
  if (constant < 0 || status.Failed()) return row;
  SymMatrix const matrix = Get<SymMatrix>(constant);
  if (!status.Failed()) row.constant = SymMatExpr(matrix);
  return row;
}

SymMatrix Model::GetLmiCoeff(LmiConstraint const& constr, Var const& var) {
  if (!CheckLmiConstraint(constr)) return Invalid<SymMatrix>();
  return GetMatrix([&](int* matrix) { return VORQ_GetLMIElem(Prob(), var.Idx(), constr.Idx(), matrix); },
                   "Fail to get coefficient matrix of LMI constraint");
}

void Model::SetLmiCoeff(LmiConstraint const& constr, Var const& var, SymMatrix const& mat) {
  if (!CheckLmiMatrix(constr, mat)) return;
  Record(VORQ_SetLMIElem(Prob(), var.Idx(), constr.Idx(), mat.Idx()), "Fail to change coefficient of LMI constraint");
}

SymMatrix Model::GetLmiRhs(LmiConstraint const& constr) {
  if (!CheckLmiConstraint(constr)) return Invalid<SymMatrix>();
  int const index = constr.Idx();
  return GetMatrix([&](int* matrix) { return VORQ_GetLMIConstrRhs(Prob(), 1, &index, matrix); },
                   "Fail to get constant term of LMI constraint");
}

void Model::SetLmiRhs(LmiConstraint const& constr, SymMatrix const& mat) {
  if (!CheckLmiMatrix(constr, mat)) return;
  int const index = constr.Idx();
  int const matrix = mat.Idx();
  Record(VORQ_SetLMIConstrRhs(Prob(), 1, &index, &matrix), "Fail to set constant term of LMI constraint");
}

bool Model::CheckLmiConstraint(LmiConstraint const& constr) {
  return constr.IsLive() || Refuse("Invalid LMI constraint");
}

bool Model::CheckLmiMatrix(LmiConstraint const& constr, SymMatrix const& mat) {
  if (!CheckLmiConstraint(constr)) return false;
  if (mat.dim != constr.dim) return Refuse("Input matrix has wrong dimension");
  return CheckMatrix(mat);
}

}  // namespace Vorq
