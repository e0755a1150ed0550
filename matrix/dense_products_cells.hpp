// What a dense product does for one of its cells: the product of a row and a column.
#pragma once

#include "matrix/matrix_operand.hpp"
#include "matrix/operators_cells.hpp"

namespace Vorq {

template <class Cell>
concept Lazy = std::is_same_v<Cell, Var> || std::is_same_v<Cell, MExpression>;

// Whether a cell of the product keeps views of its row and its column.
template <class Left, class Right>
inline constexpr bool kIsLazyProduct = (Lazy<Left> && Lazy<Right>) ||
                                       (std::is_same_v<Left, double> && std::is_same_v<Right, Var>) ||
                                       (std::is_same_v<Left, Var> && std::is_same_v<Right, double>);

inline void EmplaceProduct(SharedArrayBuilder<MExpression>& out, StridedVector<double> row, StridedVector<Var> column) {
  out.Emplace(std::move(row), std::move(column));
}
inline void EmplaceProduct(SharedArrayBuilder<MExpression>& out, StridedVector<Var> row, StridedVector<double> column) {
  out.Emplace(std::move(column), std::move(row));
}
template <Lazy Left, Lazy Right>
void EmplaceProduct(SharedArrayBuilder<MQExpression>& out, StridedVector<Left> row, StridedVector<Right> column) {
  out.Emplace(std::move(row), std::move(column));
}

// The number of terms that c times a cell adds. The explicit ones of an expression are left out for 0.
inline std::size_t AddedTerms(Var const& var, double) {
  var.Prefetch();
  return 1;
}
inline std::size_t AddedTerms(MExpression const& cell, double c) {
  return cell.LazySize() + (c == 0.0 ? 0 : cell.ExplicitSize());
}
inline std::size_t AddedTerms(MQExpression const& cell, double c) {
  return c == 0.0 ? 0 : LinearTermCount(cell);
}
inline std::size_t AddedTerms(PsdExpr const& cell, double c) {
  return c == 0.0 ? 0 : LinearTermCount(cell);
}

// The elements of a row or a column.
template <class Cell>
struct Stepping {
  Cell const* first;
  std::int64_t stride;

  Cell const& operator[](std::int64_t i) const { return first[i * stride]; }
};

// Adds each of `count` cells times its number to a new cell. Terms are counted first, so that each list grows once.
template <class Out, class Cells, class Numbers>
void AddProduct(Out& out, Cells const& cells, Numbers const& numbers, std::int64_t count) {
  std::size_t terms = 0;
  std::size_t products = 0;
  for (std::int64_t i = 0; i < count; ++i) {
    auto const c = static_cast<double>(numbers[i]);
    terms += AddedTerms(cells[i], c);
    if constexpr (std::is_same_v<Out, MQExpression>) products += c == 0.0 ? 0 : ProductCount(cells[i]);
    if constexpr (std::is_same_v<Out, PsdExpr>) products += cells[i].Size();
  }
  Expr& linear = LinearPart(out);
  linear.coeffs.reserve(terms);
  linear.vars.reserve(terms);
  if constexpr (std::is_same_v<Out, MQExpression>) ReserveProducts(out.expr, products);
  if constexpr (std::is_same_v<Out, PsdExpr>) {
    out.coeffs.reserve(products);
    out.vars.reserve(products);
  }
  for (std::int64_t i = 0; i < count; ++i) AddCell(out, cells[i], static_cast<double>(numbers[i]));
}

}  // namespace Vorq
