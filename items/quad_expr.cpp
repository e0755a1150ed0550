// The operations of quadratic expressions.
#include "items/quad_expr.hpp"

#include <ostream>
#include <sstream>

#include "items/printing.hpp"

namespace Vorq {

void QuadExpr::AddTerm(Var const& var1, Var const& var2, double c) {
  MakeRoomForOne(coeffs);
  MakeRoomForOne(vars1);
  MakeRoomForOne(vars2);
  Var second = var2;
  vars1.push_back(var1);
  vars2.push_back(std::move(second));
  coeffs.push_back(c);
}

// The test of `n` is the reverse of the linear one, which is meant.
int QuadExpr::AddTerms(std::vector<Var> const& variables1, std::vector<Var> const& variables2, double const* c, int n) {
  int const count = static_cast<int>(variables1.size());
  if (c == nullptr || n > count || variables1.size() != variables2.size()) return -1;
  MakeRoomForTerms(variables1.size(), vars1, vars2, coeffs);
  MakeRoomForMore(variables1.size(), vars1, vars2, coeffs);
  for (std::size_t i = 0; i < variables1.size(); ++i) AddTerm(variables1[i], variables2[i], c[i]);
  return count;
}

void QuadExpr::AddQuadExpr(QuadExpr const& other, double mult) {
  linear.AddExpr(other.linear, mult);
  if (mult == 0.0) return;
  // The number of terms is taken first: `other` may be this expression.
  std::size_t const count = other.Size();
  MakeRoomForMore(count, coeffs, vars1, vars2);
  for (std::size_t i = 0; i < count; ++i) {
    AddTerm(other.vars1[i], other.vars2[i], ScaledCoefficient(other.coeffs[i], mult));
  }
}

void QuadExpr::AddProduct(Expr const& a, Expr const& b) {
  linear.AddExpr(b, a.constant);
  linear.AddExpr(a, b.constant);
  // Both steps have added the product of the constants.
  linear.AddConstant(0.0 - b.constant * a.constant);
  MakeRoomForMore(a.Size() * b.Size(), coeffs, vars1, vars2);
  for (std::size_t i = 0; i < a.Size(); ++i) {
    for (std::size_t j = 0; j < b.Size(); ++j) AddTerm(a.vars[i], b.vars[j], b.coeffs[j] * a.coeffs[i]);
  }
}

void QuadExpr::AddProduct(Expr const& expr, Var const& var) {
  linear.AddTerm(var, expr.constant);
  MakeRoomForMore(expr.Size(), coeffs, vars1, vars2);
  for (std::size_t i = 0; i < expr.Size(); ++i) AddTerm(expr.vars[i], var, expr.coeffs[i]);
}

double QuadExpr::Evaluate() {
  double sum = linear.Evaluate();
  for (std::size_t i = 0; i < coeffs.size(); ++i) sum += coeffs[i] * vars1[i].Value() * vars2[i].Value();
  return sum;
}

void QuadExpr::Remove(int i) {
  RemoveTerm(i, vars1, vars2, coeffs);
}
void QuadExpr::Remove(Var const& var) {
  RemoveTermsOf(var, vars1, vars2, coeffs);
}
void QuadExpr::Reserve(int n) {
  ReserveTerms(n, vars1, vars2, coeffs);
}

void QuadExpr::Clear() {
  coeffs.clear();
  vars1.clear();
  vars2.clear();
  linear.Clear();
}

void QuadExpr::Multiply(double c) {
  for (double& coeff : coeffs) coeff *= c;
  linear.Multiply(c);
}

std::string QuadExpr::ToString(int limit) const {
  std::ostringstream out;
  out << linear.ToString(limit / 2);
  std::size_t const shown = ShownTerms(Size(), limit);
  for (std::size_t i = 0; i < shown; ++i) {
    if (!vars1[i].IsLive() || !vars2[i].IsLive() || coeffs[i] == 0.0) continue;
    WriteCoefficient(out, coeffs[i], false);
    out << vars1[i].GetName() << " * " << vars2[i].GetName();
  }
  if (shown < Size()) out << kMoreTerms;
  return out.str();
}

std::ostream& operator<<(std::ostream& out, QuadExpr const& expr) {
  return out << expr.ToString(kPrintLimit);
}

}  // namespace Vorq
