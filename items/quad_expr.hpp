// QuadExpr: a linear expression and an unsorted list of products of two variables. x * y and y * x are two terms.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "items/expr.hpp"

namespace Vorq {

class QuadExpr {
 public:
  QuadExpr() = default;
  explicit QuadExpr(double constant) : linear(constant) {}
  QuadExpr(Var const& var, double c) : linear(var, c) {}
  explicit QuadExpr(Expr const& expr) : linear(expr) {}
  QuadExpr(Expr const& expr, Var const& var) { AddProduct(expr, var); }
  QuadExpr(Expr const& a, Expr const& b) { AddProduct(a, b); }

  std::size_t Size() const { return coeffs.size(); }

  void AddTerm(Var const& var, double c) { linear.AddTerm(var, c); }
  // The variables must not be elements of this expression's own lists.
  void AddTerm(Var const& var1, Var const& var2, double c);
  int AddTerms(std::vector<Var> const& variables, double const* c, int n) { return linear.AddTerms(variables, c, n); }
  // -1 if `c` is null, `n` is above the number of pairs, or the lists differ in length; otherwise that number.
  int AddTerms(std::vector<Var> const& variables1, std::vector<Var> const& variables2, double const* c, int n);
  void AddQuadExpr(QuadExpr const& other, double mult);
  void AddProduct(Expr const& a, Expr const& b);
  void AddProduct(Expr const& expr, Var const& var);
  // The value at the solution; NaN where a value cannot be fetched.
  double Evaluate();
  void Remove(int i);
  // Removes the terms that have the variable in first place; those with it in second place stay, which is meant.
  void Remove(Var const& var);
  void Reserve(int n);
  void Clear();
  void Multiply(double c);

  // Merges duplicates of the linear part only.
  void Reduce(int size) { linear.Reduce(size); }

  std::string ToString(int limit) const;

  Expr linear;
  std::vector<double> coeffs;
  std::vector<Var> vars1;
  std::vector<Var> vars2;
};

std::ostream& operator<<(std::ostream& out, QuadExpr const& expr);

}  // namespace Vorq
