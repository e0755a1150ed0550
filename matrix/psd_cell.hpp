// What a PSD expression takes over from a linear cell. A PSD expression has no lazy part: the terms become explicit.
#pragma once

#include "items/psd_expr.hpp"
#include "matrix/m_expression.hpp"

namespace Vorq {

// Adds `mult` times the value of `cell` to the linear part; nothing at all for mult = 0.
inline void AddMExpression(PsdExpr& target, MExpression const& cell, double mult) {
  if (mult != 0.0) cell.AddTo(target.linear, mult);
}

// The value of `cell` as a PSD expression.
inline PsdExpr PsdExprOf(MExpression const& cell) {
  PsdExpr expr;
  AddMExpression(expr, cell, 1.0);
  return expr;
}

}  // namespace Vorq
