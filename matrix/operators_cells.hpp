// What the operators do with one pair of cells: OperateCells<Operation>(out, left, right) on a new result cell `out`.
//
// Terms go straight into `out`, in room made for all of them; no expression is built in between.
#pragma once

#include <type_traits>

#include "matrix/cells.hpp"
#include "matrix/operators_kinds.hpp"

namespace Vorq {

template <class T>
concept Number = std::is_arithmetic_v<T>;

// The number of explicit and lazy terms that a cell adds to a linear part.
inline std::size_t LinearTermCount(Number auto) {
  return 0;
}
inline std::size_t LinearTermCount(Var const&) {
  return 1;
}
inline std::size_t LinearTermCount(MExpression const& cell) {
  return cell.ExplicitSize() + cell.LazySize();
}
inline std::size_t LinearTermCount(MQExpression const& cell) {
  return cell.expr.linear.Size();
}
inline std::size_t LinearTermCount(PsdExpr const& cell) {
  return cell.linear.Size();
}

// The number of products that a cell adds; what a lazy product of linear cells adds is not counted beforehand.
template <class Cell>
std::size_t ProductCount(Cell const&) {
  return 0;
}
inline std::size_t ProductCount(MQExpression const& cell) {
  return cell.expr.Size() + cell.LazySize();
}

inline void ReserveProducts(QuadExpr& expr, std::size_t count) {
  expr.coeffs.reserve(count);
  expr.vars1.reserve(count);
  expr.vars2.reserve(count);
}

// What the first cell that is added to a new one appends: a linear cell shares the terms of a sparse product.
template <class Out, class Cell>
std::size_t FirstTermCount(Cell const& cell) {
  if constexpr (std::is_same_v<Out, MExpression> && std::is_same_v<Cell, MExpression>) {
    return cell.expr.Size() + cell.LazySize();
  } else {
    return LinearTermCount(cell);
  }
}

template <class Out>
void MakeRoom(Out& out, std::size_t linearTerms, std::size_t products) {
  Expr& linear = LinearPart(out);
  linear.coeffs.reserve(linearTerms);
  linear.vars.reserve(linearTerms);
  if constexpr (std::is_same_v<Out, MQExpression>) ReserveProducts(out.expr, products);
}

template <class Out, class Cell>
void Plus(Out& out, Cell const& cell) {
  if constexpr (Number<Cell>) {
    LinearPart(out).AddConstant(static_cast<double>(cell));
  } else {
    AddCell(out, cell, 1.0);
  }
}

template <class Out, class Cell>
void Minus(Out& out, Cell const& cell) {
  if constexpr (Number<Cell>) {
    LinearPart(out).AddConstant(0.0 - static_cast<double>(cell));
  } else if constexpr (std::is_same_v<Out, PsdExpr> && std::is_same_v<Cell, MExpression>) {
    // The cell's explicit form is what is subtracted: a lazy factor of 0 stays without a sign.
    cell.Sparse().AddTo(out.linear, -1.0);
    out.linear.AddExpr(cell.expr, -1.0);
    cell.ForEachLazyTerm([&](Var const& var, double factor) { out.linear.AddTerm(var, 0.0 - factor); });
  } else {
    AddCell(out, cell, -1.0);
  }
}

// Appends c times `from`.
inline void AppendScaled(Expr& to, Expr const& from, double c) {
  AppendTerms(to.coeffs, to.vars, from.coeffs, from.vars, [c](double coeff) { return coeff * c; });
  to.AddConstant(from.constant * c);
}

// A cell times a number. A factor of zero drops the explicit part, and what is lazy gets factors of 0.
inline void Scale(MExpression& out, MExpression const& cell, double c) {
  if (c != 0.0) {
    cell.Sparse().ForEach([&](Var const& var, double coeff) { out.AddTerm(var, coeff * c); });
    AppendScaled(out.expr, cell.expr, c);
  }
  if (cell.LazySize() == 0) return;
  MExpression lazy(cell.coeffs, cell.vars);
  lazy.scale = c == 0.0 ? 0.0 : cell.scale * c;
  out.AddMExpression(lazy, 1.0);
}

inline void Scale(MQExpression& out, MQExpression const& cell, double c) {
  if (c == 0.0) return;
  QuadExpr const& from = cell.expr;
  AppendScaled(out.expr.linear, from.linear, c);
  for (std::size_t i = 0; i < from.Size(); ++i) out.AddTerm(from.vars1[i], from.vars2[i], from.coeffs[i] * c);
  if (cell.LazySize() == 0) return;
  MQExpression lazy;
  lazy.side1 = cell.side1;
  lazy.side2 = cell.side2;
  lazy.scale = cell.scale * c;
  out.AddMQExpression(lazy, 1.0);
}

inline void Scale(PsdExpr& out, PsdExpr const& cell, double c) {
  out = cell;
  out.Multiply(c);
}

// A term of coefficient 0 is a term.
inline void Scale(MExpression& out, Var const& var, double c) {
  out.AddTerm(var, c);
}

inline void MultiplyCells(MQExpression& out, Var const& left, Var const& right) {
  ReserveProducts(out.expr, 1);
  out.AddTerm(left, right, 1.0);
}
inline void MultiplyCells(MQExpression& out, MExpression const& cell, Var const& var) {
  ReserveProducts(out.expr, LinearTermCount(cell));
  out.AddProduct(cell, var);
}
// The cell comes first, on whichever side it stands.
inline void MultiplyCells(MQExpression& out, Var const& var, MExpression const& cell) {
  MultiplyCells(out, cell, var);
}
inline void MultiplyCells(MQExpression& out, MExpression const& left, MExpression const& right) {
  ReserveProducts(out.expr, LinearTermCount(left) * LinearTermCount(right));
  out.AddProduct(left, right, 1.0);
}

template <Operation kOperation, class Out, class Left, class Right>
void OperateCells(Out& out, Left const& left, Right const& right) {
  if constexpr (kOperation != Operation::kMul) {
    MakeRoom(out, FirstTermCount<Out>(left) + LinearTermCount(right), ProductCount(left) + ProductCount(right));
    Plus(out, left);
    if constexpr (kOperation == Operation::kAdd) {
      Plus(out, right);
    } else {
      Minus(out, right);
    }
  } else if constexpr (Number<Left>) {
    MakeRoom(out, LinearTermCount(right), ProductCount(right));
    Scale(out, right, static_cast<double>(left));
  } else if constexpr (Number<Right>) {
    MakeRoom(out, LinearTermCount(left), ProductCount(left));
    Scale(out, left, static_cast<double>(right));
  } else {
    MultiplyCells(out, left, right);
  }
}

// The same for two numbers, in the type of the result. Whole numbers wrap around.
template <Operation kOperation, Number Out, Number Left, Number Right>
Out OperateNumbers(Left left, Right right) {
  using Arithmetic =
      typename std::conditional_t<std::is_integral_v<Out>, std::make_unsigned<Out>, std::type_identity<Out>>::type;
  auto const a = static_cast<Arithmetic>(static_cast<Out>(left));
  auto const b = static_cast<Arithmetic>(static_cast<Out>(right));
  if constexpr (kOperation == Operation::kAdd) return static_cast<Out>(a + b);
  if constexpr (kOperation == Operation::kSub) return static_cast<Out>(a - b);
  if constexpr (kOperation == Operation::kMul) return static_cast<Out>(a * b);
}

}  // namespace Vorq
