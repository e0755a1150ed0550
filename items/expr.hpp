// Expr: a linear expression, a constant and an unsorted list of terms. Duplicates stay until Reduce.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "items/term_list.hpp"
#include "items/var.hpp"

namespace Vorq {

class Expr {
 public:
  Expr() = default;
  explicit Expr(double value) : constant(value) {}
  Expr(Var const& var, double c) { AddTerm(var, c); }
  Expr(Expr const&) = default;
  Expr(Expr&&) noexcept = default;
  Expr& operator=(Expr const&) = default;
  Expr& operator=(Expr&&) noexcept = default;
  ~Expr() { ReleaseItems(vars); }

  std::size_t Size() const { return coeffs.size(); }

  void AddConstant(double c) { constant += c; }
  // `var` must not be an element of this expression's own list.
  void AddTerm(Var const& var, double c) { AppendTerm(coeffs, vars, c, var); }
  // -1 if `c` is null or `n` is below the number of variables; otherwise that number.
  int AddTerms(std::vector<Var> const& variables, double const* c, int n);
  // Adds `mult` times `other`; nothing at all for mult = 0.
  void AddExpr(Expr const& other, double mult);
  // The value at the solution; NaN where a value cannot be fetched.
  double Evaluate();
  void Remove(int i);
  void Remove(Var const& var);
  void Reserve(int n);
  void Clear();
  void Multiply(double c);

  Expr& operator+=(Expr const& other);
  Expr& operator-=(Expr const& other);

  // Merges duplicates. `size` is above all indices.
  void Reduce(int size);
  // The same on the dense path, with the caller's scratch arrays: one entry for each index, all marks zero before and
  // after.
  void ReduceDense(std::vector<double>& sums, std::vector<unsigned char>& marks);

  // At most limit / 8 terms are looked at.
  std::string ToString(int limit) const;

  std::vector<double> coeffs;
  std::vector<Var> vars;
  double constant = 0.0;
};

std::ostream& operator<<(std::ostream& out, Expr const& expr);

}  // namespace Vorq
