// The kinds of cells of blocks: what they are called in texts, what they add up to, and how they print.
#pragma once

#include <ostream>
#include <type_traits>

#include "items/constraint.hpp"
#include "items/printing.hpp"
#include "items/psd_items.hpp"
#include "items/q_constraint.hpp"
#include "items/var.hpp"
#include "matrix/m_expression.hpp"
#include "matrix/m_q_expression.hpp"
#include "matrix/psd_cell.hpp"

namespace Vorq {

template <class Cell>
struct CellTraits;
template <>
struct CellTraits<Var> {
  using SumCell = MExpression;
  static constexpr char const* kTextPrefix = "Var(";
};
template <>
struct CellTraits<Constraint> {
  static constexpr char const* kTextPrefix = "Row(";
};
template <>
struct CellTraits<QConstraint> {
  static constexpr char const* kTextPrefix = "QConstraint(";
};
template <>
struct CellTraits<PsdConstraint> {
  static constexpr char const* kTextPrefix = "PsdConstraint(";
};
template <>
struct CellTraits<MExpression> {
  using SumCell = MExpression;
};
template <>
struct CellTraits<MQExpression> {
  using SumCell = MQExpression;
};
template <>
struct CellTraits<PsdExpr> {
  using SumCell = PsdExpr;
};

// Cells that stand for items of a model.
template <class Cell>
inline constexpr bool kIsItem = std::is_base_of_v<Item, Cell>;

// A cell without a value: an item that stands for nothing, or an expression of constant 0.
template <class Cell>
Cell DefaultCell() {
  if constexpr (kIsItem<Cell>) {
    return Cell(SharedPtr<ProbHandle>(), "", kInvalidIndex);
  } else {
    return Cell();
  }
}

// The linear part of an expression cell, with its constant.
inline Expr& LinearPart(MExpression& cell) {
  return cell.expr;
}
inline Expr& LinearPart(MQExpression& cell) {
  return cell.expr.linear;
}
inline Expr& LinearPart(PsdExpr& cell) {
  return cell.linear;
}

// Minus a number, taken in its own type: whole numbers wrap around.
template <class T>
T Negated(T value) {
  if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(0 - static_cast<std::make_unsigned_t<T>>(value));
  } else {
    return 0.0 - value;
  }
}

// Adds c times a cell, a variable or an expression to an expression cell.
inline void AddCell(MExpression& target, Var const& var, double c) {
  target.AddTerm(var, c);
}
inline void AddCell(MQExpression& target, Var const& var, double c) {
  target.AddTerm(var, c);
}
inline void AddCell(PsdExpr& target, Var const& var, double c) {
  target.linear.AddTerm(var, c);
}
inline void AddCell(MExpression& target, Expr const& expr, double c) {
  target.AddExpr(expr, c);
}
inline void AddCell(MQExpression& target, Expr const& expr, double c) {
  target.AddLinExpr(expr, c);
}
inline void AddCell(PsdExpr& target, Expr const& expr, double c) {
  target.linear.AddExpr(expr, c);
}
inline void AddCell(MQExpression& target, QuadExpr const& expr, double c) {
  target.AddQuadExpr(expr, c);
}
inline void AddCell(MExpression& target, MExpression const& cell, double c) {
  target.AddMExpression(cell, c);
}
inline void AddCell(MQExpression& target, MExpression const& cell, double c) {
  target.AddMExpression(cell, c);
}
inline void AddCell(PsdExpr& target, MExpression const& cell, double c) {
  AddMExpression(target, cell, c);
}
inline void AddCell(MQExpression& target, MQExpression const& cell, double c) {
  target.AddMQExpression(cell, c);
}
inline void AddCell(PsdExpr& target, PsdExpr const& cell, double c) {
  target.AddPsdExpr(cell, c);
}

// An element that holds no item prints nothing.
template <class Cell>
void WriteCell(std::ostream& out, Cell const& cell) {
  if constexpr (kIsItem<Cell>) {
    if (!cell.HasRecord() || !cell.Record().prob) return;
    out << CellTraits<Cell>::kTextPrefix << cell.GetName() << (cell.IsLive() ? "" : " Removed") << ')';
  } else if constexpr (std::is_same_v<Cell, PsdExpr>) {
    out << cell;
  } else {
    out << cell.ToString(kPrintLimit);
  }
}

}  // namespace Vorq
