// Blocks and arrays of numbers put one behind the other along an axis.
//
//     MVar<2> both = Concat(x, y, 0);                        // the rows of x, then those of y
//     MLinExpr<1> padded = Concat(x, zeros, -1);             // variables, then constants
//
// The result is of the wider kind of the two and has cells of its own. For sizes that do not fit it has one cell, and
// its status tells why; the statuses of the operands play no part.
#pragma once

#include <type_traits>

#include "matrix/cells.hpp"
#include "matrix/readable_cells.hpp"
#include "ndarray/concat.hpp"

namespace Vorq {

template <class Left, class Right>
constexpr auto WiderCellType() {
  if constexpr (std::is_same_v<Left, Right>) {
    return std::type_identity<Left>();
  } else if constexpr (std::is_arithmetic_v<Left> && std::is_arithmetic_v<Right>) {
    return std::type_identity<std::common_type_t<Left, Right>>();
  } else if constexpr (std::is_same_v<Left, MQExpression> || std::is_same_v<Right, MQExpression>) {
    return std::type_identity<MQExpression>();
  } else if constexpr (std::is_same_v<Left, PsdExpr> || std::is_same_v<Right, PsdExpr>) {
    return std::type_identity<PsdExpr>();
  } else {
    return std::type_identity<MExpression>();
  }
}

// The narrowest kind of cell to which both can be converted.
template <class Left, class Right>
using WiderCell = typename decltype(WiderCellType<Left, Right>())::type;

// A number as a constant, a variable as a term of coefficient 1, a linear cell as explicit terms.
template <class Out, class In>
Out ConvertCell(In const& cell) {
  if constexpr (std::is_same_v<Out, In>) {
    return cell;
  } else if constexpr (std::is_arithmetic_v<Out>) {
    return static_cast<Out>(cell);
  } else if constexpr (std::is_arithmetic_v<In>) {
    return Out(static_cast<double>(cell));
  } else {
    Out converted;
    AddCell(converted, cell, 1.0);
    return converted;
  }
}

template <class Left, class Right>
requires(Left::kRank == Right::kRank) auto Concat(Left const& left, Right const& right, int axis) {
  using Cell = WiderCell<OperandCell<Left>, OperandCell<Right>>;
  return BlockOf<Cell, Left::kRank>(Concat<Cell>(ReadableCells(left), ReadableCells(right), axis,
                                                 [](auto const& cell) { return ConvertCell<Cell>(cell); }));
}

}  // namespace Vorq
