// The operations of linear expressions.
#include "items/expr.hpp"

#include <ostream>
#include <sstream>

#include "items/printing.hpp"

namespace Vorq {

int Expr::AddTerms(std::vector<Var> const& variables, double const* c, int n) {
  return AddLinearTerms(coeffs, vars, variables, c, n);
}

void Expr::AddExpr(Expr const& other, double mult) {
  if (mult == 0.0) return;
  AppendTerms(coeffs, vars, other.coeffs, other.vars, [mult](double c) { return ScaledCoefficient(c, mult); });
  constant = mult * other.constant + constant;
}

double Expr::Evaluate() {
  double sum = constant;
  for (std::size_t i = 0; i < vars.size(); ++i) sum += coeffs[i] * vars[i].Value();
  return sum;
}

void Expr::Remove(int i) {
  RemoveTerm(i, coeffs, vars);
}
void Expr::Remove(Var const& var) {
  RemoveTermsOf(var, vars, coeffs);
}
void Expr::Reserve(int n) {
  ReserveTerms(n, coeffs, vars);
}

void Expr::Clear() {
  coeffs.clear();
  vars.clear();
  constant = 0.0;
}

void Expr::Multiply(double c) {
  for (double& coeff : coeffs) coeff *= c;
  constant *= c;
}

Expr& Expr::operator+=(Expr const& other) {
  AppendTerms(coeffs, vars, other.coeffs, other.vars, [](double c) { return c; });
  constant += other.constant;
  return *this;
}

Expr& Expr::operator-=(Expr const& other) {
  AppendTerms(coeffs, vars, other.coeffs, other.vars, [](double c) { return 0.0 - c; });
  constant -= other.constant;
  return *this;
}

void Expr::Reduce(int size) {
  ReduceTerms(coeffs, vars, size);
}

void Expr::ReduceDense(std::vector<double>& sums, std::vector<unsigned char>& marks) {
  ReduceTermsDense(coeffs, vars, sums.data(), marks.data());
}

std::string Expr::ToString(int limit) const {
  std::ostringstream out;
  bool isFirst = true;
  if (constant != 0.0 || coeffs.empty()) {
    out << constant;
    isFirst = false;
  }
  std::size_t const shown = ShownTerms(Size(), limit);
  for (std::size_t i = 0; i < shown; ++i) {
    if (!vars[i].IsLive() || coeffs[i] == 0.0) continue;
    WriteCoefficient(out, coeffs[i], isFirst);
    out << vars[i].GetName();
    isFirst = false;
  }
  if (shown < Size()) out << kMoreTerms;
  return out.str();
}

std::ostream& operator<<(std::ostream& out, Expr const& expr) {
  return out << expr.ToString(kPrintLimit);
}

}  // namespace Vorq
