// The operations of linear cells.
#include "matrix/m_expression.hpp"

#include <sstream>

#include "items/printing.hpp"
#include "matrix/lazy_text.hpp"

namespace Vorq {

void MExpression::AddMExpression(MExpression const& other, double c) {
  if (&other == this) Expand();
  if (c == 1.0 && ExplicitSize() == 0) {
    sparse_ = other.sparse_;
    other.AddOwnTo(expr, c);
  } else {
    other.AddTo(expr, c);
  }
}

void MExpression::Multiply(double c) {
  if (c == 0.0) {
    sparse_ = {};
    expr.Clear();
    scale = 0.0;
  } else {
    Expand();
    expr.Multiply(c);
    scale *= c;
  }
}

void MExpression::AddTo(Expr& target, double c) const {
  sparse_.AddTo(target, c);
  AddOwnTo(target, c);
}

// Adds what is not shared with other cells.
void MExpression::AddOwnTo(Expr& target, double c) const {
  target.AddExpr(expr, c);
  MakeRoomForMore(LazySize(), target.coeffs, target.vars);
  ForEachLazyTerm([&](Var const& var, double factor) { target.AddTerm(var, factor * c); });
}

Expr MExpression::ExplicitPart() const {
  Expr part;
  MakeRoomForMore(ExplicitSize(), part.coeffs, part.vars);
  sparse_.AddTo(part, 1.0);
  part.AddExpr(expr, 1.0);
  part.constant = expr.constant;
  return part;
}

// Makes the terms of a sparse product terms of `expr`.
void MExpression::Expand() {
  if (sparse_.IsEmpty()) return;
  expr = ExplicitPart();
  sparse_ = {};
}

std::string MExpression::ToString(std::uint64_t limit) const {
  std::string text = WithExplicitPart([limit](Expr const& part) { return part.ToString(ExplicitLimit(limit)); });
  std::ostringstream lazyText;
  std::uint64_t const shown = ShownLazyTerms(LazySize(), limit, text.size());
  ForSomeLazyTerms(shown,
                   [&](Var const& var, double factor) { lazyText << " + " << factor << " * " << var.GetName(); });
  if (shown < LazySize()) lazyText << kMoreTerms;
  return text + lazyText.str();
}

}  // namespace Vorq
