// MExpression: the cell of a block of linear expressions: explicit terms, and a product of two vectors that is kept as
// it is. Its value is
//
//     explicit part + scale * (sum of coeffs[i] * vars[i])
//
// The vectors share the stores of the arrays that they came from, so that a row of a matrix times a vector of variables
// costs no term, and copying a cell copies no vector.
//
// The explicit part begins with the terms of a sparse product, which stand with the product until something is done to
// them that the other cells must not see. Nothing but memory and time tells them from those of `expr`, which come
// behind them.
//
//     MExpression cell(row, x);                                            // both of rank 1
//     cell.ForEachTerm([](Var const& var, double factor) { ... });         // without expanding anything
//     MExpression sum;
//     sum.AddMExpression(cell, 1.0);                                       // now the terms are explicit
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "items/expr.hpp"
#include "matrix/sparse_terms.hpp"
#include "matrix/strided_vector.hpp"

namespace Vorq {

class MExpression {
 public:
  MExpression() = default;
  explicit MExpression(double constant) : expr(constant) {}
  explicit MExpression(Expr expression) : expr(std::move(expression)) {}
  // The lazy product. The sum runs over the length of `vars`; `coeffs` must not be shorter.
  MExpression(StridedVector<double> coefficients, StridedVector<Var> variables)
      : coeffs(std::move(coefficients)), vars(std::move(variables)) {}
  MExpression(NdArray<double, 1> const& coefficients, NdArray<Var, 1> const& variables)
      : coeffs(coefficients), vars(variables) {}
  explicit MExpression(SparseTerms terms) : sparse_(std::move(terms)) {}

  // The lazy part is never asked for a constant.
  double GetConstant() const { return expr.constant; }
  void AddConstant(double c) { expr.AddConstant(c); }
  void SetConstant(double c) { expr.constant = c; }
  void AddTerm(Var const& var, double c) { expr.AddTerm(var, c); }
  void AddExpr(Expr const& other, double c) { expr.AddExpr(other, c); }
  // Adds c times the value of `other` as explicit terms. The lazy part of this cell stays lazy. A cell without explicit
  // terms shares those of a sparse product.
  void AddMExpression(MExpression const& other, double c);
  void Multiply(double c);

  // Adds c times the value of this cell to `target`. Lazy terms are added whatever their factor is, also 0.
  void AddTo(Expr& target, double c) const;

  // The first explicit terms, those of a sparse product. `expr` holds the others.
  SparseTerms const& Sparse() const { return sparse_; }
  // The number of explicit terms.
  std::size_t ExplicitSize() const { return sparse_.Size() + expr.Size(); }
  // All explicit terms and the constant.
  Expr ExplicitPart() const;
  // Calls use(expression) with the explicit part, which is copied only where it does not stand in `expr`.
  template <class Use>
  decltype(auto) WithExplicitPart(Use&& use) const {
    return sparse_.IsEmpty() ? use(expr) : use(ExplicitPart());
  }

  // The factor of a lazy term. A coefficient of zero stays zero whatever `scale` is, also an infinite one; a NaN stays.
  double LazyFactor(double coefficient) const { return coefficient == 0.0 ? 0.0 : coefficient * scale; }

  // The number of lazy terms.
  std::uint64_t LazySize() const { return vars.Size(); }

  // Calls visit(variable, factor) for each lazy term, straight from the two vectors.
  template <class Visit>
  void ForEachLazyTerm(Visit&& visit) const {
    ForSomeLazyTerms(LazySize(), visit);
  }

  // Calls visit(variable, factor) for each term, the explicit ones first, in the order in which AddTo adds them.
  template <class Visit>
  void ForEachTerm(Visit&& visit) const {
    ForEachExplicitTerm(visit);
    ForEachLazyTerm(visit);
  }
  template <class Visit>
  void ForEachExplicitTerm(Visit&& visit) const {
    sparse_.ForEach(visit);
    for (std::size_t i = 0; i < expr.coeffs.size(); ++i) visit(expr.vars[i], expr.coeffs[i]);
  }

  // The explicit part with half the limit, then lazy terms, one for each 8 characters that are left.
  std::string ToString(std::uint64_t limit) const;

  StridedVector<double> coeffs;
  StridedVector<Var> vars;
  double scale = 1.0;
  Expr expr;

 private:
  template <class Visit>
  void ForSomeLazyTerms(std::uint64_t count, Visit&& visit) const {
    double const* coefficient = coeffs.First();
    Var const* variable = vars.First();
    for (; count > 0; --count, coefficient += coeffs.Stride(), variable += vars.Stride()) {
      visit(*variable, LazyFactor(*coefficient));
    }
  }
  void AddOwnTo(Expr& target, double c) const;
  void Expand();

  SparseTerms sparse_;
};

}  // namespace Vorq
