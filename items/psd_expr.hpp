// PsdExpr: a linear expression and a list of inner products of a symmetric matrix expression with a PSD variable.
#pragma once

#include <iosfwd>
#include <vector>

#include "items/expr.hpp"
#include "items/psd_items.hpp"
#include "items/sym_mat_expr.hpp"

namespace Vorq {

class PsdExpr {
 public:
  PsdExpr() = default;
  explicit PsdExpr(double constant) : linear(constant) {}
  PsdExpr(Var const& var, double c) : linear(var, c) {}
  explicit PsdExpr(Expr const& expr) : linear(expr) {}
  PsdExpr(PsdVar const& var, SymMatrix const& mat) { AddTerm(var, mat); }
  PsdExpr(PsdVar const& var, SymMatExpr const& expr) { AddTerm(var, expr); }

  std::size_t Size() const { return coeffs.size(); }

  void AddTerm(PsdVar const& var, SymMatrix const& mat) { AddTerm(var, SymMatExpr(mat)); }
  void AddTerm(PsdVar const& var, SymMatExpr expr);
  // -1 if the lists differ in length; otherwise their length.
  int AddTerms(std::vector<PsdVar> const& variables, std::vector<SymMatrix> const& matrices);
  // Adds `mult` times `other`. For mult = 0 the PSD terms are added with coefficients 0, which is meant.
  void AddPsdExpr(PsdExpr const& other, double mult);
  // The value at the solution; NaN where a value or a matrix cannot be fetched.
  double Evaluate();
  void Remove(int i);
  void Remove(PsdVar const& var);
  void Reserve(int n);
  void Multiply(double c);

  // Merges duplicates of the linear part only.
  void Reduce(int size) { linear.Reduce(size); }
  // Merges the PSD terms: one for each live variable stays.
  void MergeTerms();

  Expr linear;
  std::vector<SymMatExpr> coeffs;
  std::vector<PsdVar> vars;
};

std::ostream& operator<<(std::ostream& out, PsdExpr const& expr);

}  // namespace Vorq
