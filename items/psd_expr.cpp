// The operations of PSD expressions.
#include "items/psd_expr.hpp"

#include <limits>
#include <ostream>

#include "items/matrix_terms.hpp"

namespace Vorq {
namespace {

// The inner product of a matrix expression with the value of a PSD variable; NaN where one of them cannot be read.
double EvaluateTerm(SymMatExpr const& coeff, PsdVar& var) {
  constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
  std::vector<double> matrix(static_cast<std::size_t>(var.len));
  var.GetInfo("Value", matrix.data(), var.len);
  if (var.status.Failed()) return kNothing;

  std::vector<int> rows;
  std::vector<int> cols;
  std::vector<double> values;
  int const count = coeff.GetElements(&rows, &cols, &values);
  if (count < 0) return kNothing;
  double sum = 0.0;
  for (std::size_t k = 0; k < static_cast<std::size_t>(count); ++k) {
    if (cols[k] < 0 || rows[k] >= var.dim) return kNothing;
    std::size_t const position =
        static_cast<std::size_t>(rows[k]) * static_cast<std::size_t>(var.dim) + static_cast<std::size_t>(cols[k]);
    // The elements are the lower triangle, and the inner product counts both halves.
    double const product = values[k] * matrix[position];
    sum += rows[k] == cols[k] ? product : 2.0 * product;
  }
  return sum;
}

}  // namespace

void PsdExpr::AddTerm(PsdVar const& var, SymMatExpr expr) {
  AppendMatrixTerm(coeffs, vars, std::move(expr), var);
}

int PsdExpr::AddTerms(std::vector<PsdVar> const& variables, std::vector<SymMatrix> const& matrices) {
  return AddMatrixTerms(coeffs, vars, variables, matrices);
}

void PsdExpr::AddPsdExpr(PsdExpr const& other, double mult) {
  linear.AddExpr(other.linear, mult);
  AppendMatrixTerms(coeffs, vars, other.coeffs, other.vars, mult);
}

double PsdExpr::Evaluate() {
  double sum = linear.Evaluate();
  for (std::size_t i = 0; i < vars.size(); ++i) sum += EvaluateTerm(coeffs[i], vars[i]);
  return sum;
}

void PsdExpr::Remove(int i) {
  RemoveTerm(i, coeffs, vars);
}
void PsdExpr::Remove(PsdVar const& var) {
  RemoveTermsOf(var, vars, coeffs);
}
void PsdExpr::Reserve(int n) {
  ReserveTerms(n, coeffs, vars);
}

void PsdExpr::Multiply(double c) {
  for (SymMatExpr& coeff : coeffs) coeff.Multiply(c);
  linear.Multiply(c);
}

void PsdExpr::MergeTerms() {
  MergeMatrixTerms(coeffs, vars);
}

std::ostream& operator<<(std::ostream& out, PsdExpr const& expr) {
  out << expr.linear;
  WriteMatrixTerms(out, expr.coeffs, expr.vars);
  return out;
}

}  // namespace Vorq
