// What the operators accept and what they give: the table of groups as a trait of cells.
//
//     OperatorResult<Operation::kMul, Var, MExpression>        // MQExpression
//     OperatorResult<Operation::kMul, MQExpression, Var>       // does not exist
#pragma once

#include <type_traits>
#include <utility>

#include "matrix/matrix_object.hpp"
#include "ndarray/nd_array.hpp"

namespace Vorq {

enum class Operation { kAdd, kSub, kMul };

// The cells behind the kinds of the table.
struct OperandCells {
  using Var = Vorq::Var;
  using Lin = MExpression;
  using Quad = MQExpression;
  using Psd = PsdExpr;
  using Dbl = double;
  using Lng = long long;
  using Int = int;
};

template <Operation kOperation, class Left, class Right>
struct OperatorGroup;

#define VORQ_GROUP(operation, LeftKind, RightKind, ResultKind)                                     \
  template <>                                                                                      \
  struct OperatorGroup<Operation::k##operation, OperandCells::LeftKind, OperandCells::RightKind> { \
    using Result = OperandCells::ResultKind;                                                       \
  };
#include "vorqmodel/broadcast_groups.inc"

// The cell of the result; there is none for cells that no group combines.
template <Operation kOperation, class Left, class Right>
using OperatorResult = typename OperatorGroup<kOperation, Left, Right>::Result;

// Operands: arrays of numbers, and blocks.
template <class T, int N>
NdArray<T, N> const& CellsOf(NdArray<T, N> const& array) {
  return array;
}
template <class Cell, int N>
NdArray<Cell, N> const& CellsOf(MatrixObject<Cell, N> const& block) {
  return block.Cells();
}
template <class T>
using OperandCell = typename std::remove_cvref_t<decltype(CellsOf(std::declval<T const&>()))>::Element;

// Results: arrays of numbers, and blocks of all other cells.
template <class Cell, int N>
using BlockOf = std::conditional_t<std::is_arithmetic_v<Cell>, NdArray<Cell, N>, MatrixObject<Cell, N>>;

template <Operation kOperation, class Left, class Right>
concept Operable = requires {
  typename OperatorResult<kOperation, OperandCell<Left>, OperandCell<Right>>;
};

}  // namespace Vorq
