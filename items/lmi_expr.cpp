// The operations of LMI expressions.
#include "items/lmi_expr.hpp"

#include <ostream>

#include "items/matrix_terms.hpp"

namespace Vorq {

void LmiExpr::AddTerm(Var const& var, SymMatExpr expr) {
  AppendMatrixTerm(coeffs, vars, std::move(expr), var);
}

int LmiExpr::AddTerms(std::vector<Var> const& variables, std::vector<SymMatrix> const& matrices) {
  return AddMatrixTerms(coeffs, vars, variables, matrices);
}

void LmiExpr::AddLmiExpr(LmiExpr const& other, double mult) {
  constant.AddSymMatExpr(other.constant, mult);
  AppendMatrixTerms(coeffs, vars, other.coeffs, other.vars, mult);
}

void LmiExpr::Remove(int i) {
  RemoveTerm(i, coeffs, vars);
}
void LmiExpr::Remove(Var const& var) {
  RemoveTermsOf(var, vars, coeffs);
}
void LmiExpr::Reserve(int n) {
  ReserveTerms(n, coeffs, vars);
}

void LmiExpr::Multiply(double c) {
  constant.Multiply(c);
  for (SymMatExpr& coeff : coeffs) coeff.Multiply(c);
}

void LmiExpr::MergeTerms() {
  MergeMatrixTerms(coeffs, vars);
}

std::ostream& operator<<(std::ostream& out, LmiExpr const& expr) {
  out << expr.constant;
  WriteMatrixTerms(out, expr.coeffs, expr.vars);
  return out;
}

}  // namespace Vorq
