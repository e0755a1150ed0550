// LmiExpr: the left side of a linear matrix inequality, a constant matrix expression and terms variable times matrix
// expression.
#pragma once

#include <iosfwd>
#include <vector>

#include "items/sym_mat_expr.hpp"
#include "items/var.hpp"

namespace Vorq {

class LmiExpr {
 public:
  LmiExpr() = default;
  explicit LmiExpr(SymMatrix const& mat) : constant(mat) {}
  explicit LmiExpr(SymMatExpr const& expr) : constant(expr) {}
  LmiExpr(Var const& var, SymMatrix const& mat) { AddTerm(var, mat); }
  LmiExpr(Var const& var, SymMatExpr const& expr) { AddTerm(var, expr); }

  std::size_t Size() const { return coeffs.size(); }

  void AddConstant(SymMatExpr const& expr) { constant.AddSymMatExpr(expr, 1.0); }
  void AddTerm(Var const& var, SymMatrix const& mat) { AddTerm(var, SymMatExpr(mat)); }
  void AddTerm(Var const& var, SymMatExpr expr);
  // -1 if the lists differ in length; otherwise their length.
  int AddTerms(std::vector<Var> const& variables, std::vector<SymMatrix> const& matrices);
  // Adds `mult` times `other`, also for mult = 0.
  void AddLmiExpr(LmiExpr const& other, double mult);
  void Remove(int i);
  void Remove(Var const& var);
  void Reserve(int n);
  void Multiply(double c);

  // Merges the terms: one for each live variable stays.
  void MergeTerms();

  SymMatExpr constant;
  std::vector<SymMatExpr> coeffs;
  std::vector<Var> vars;
};

std::ostream& operator<<(std::ostream& out, LmiExpr const& expr);

}  // namespace Vorq
