// The operations of linear cells.
#include "matrix/m_expression.hpp"

#include <sstream>

#include "items/printing.hpp"
#include "matrix/lazy_text.hpp"

namespace Vorq {

void MExpression::Multiply(double c) {
  if (c == 0.0) {
    expr.Clear();
    scale = 0.0;
  } else {
    expr.Multiply(c);
    scale *= c;
  }
}

void MExpression::AddTo(Expr& target, double c) const {
  target.AddExpr(expr, c);
  MakeRoomForMore(LazySize(), target.coeffs, target.vars);
  ForEachLazyTerm([&](Var const& var, double factor) { target.AddTerm(var, factor * c); });
}

std::string MExpression::ToString(std::uint64_t limit) const {
  std::string text = expr.ToString(ExplicitLimit(limit));
  std::ostringstream lazyText;
  std::uint64_t const shown = ShownLazyTerms(LazySize(), limit, text.size());
  ForSomeLazyTerms(shown,
                   [&](Var const& var, double factor) { lazyText << " + " << factor << " * " << var.GetName(); });
  if (shown < LazySize()) lazyText << kMoreTerms;
  return text + lazyText.str();
}

}  // namespace Vorq
