// The operators: blocks and arrays added, subtracted and multiplied cell by cell.
//
//     MLinExpr<2> sum = Add(x, row);                   // x of shape (2, 3), row of shape (3)
//     NdArray<double, 1> product = Mul(counts, prices);
//
// Shapes are aligned at their last axis, and axes of size 1 are stretched; an operand that is stretched is read through
// a view. The result has a store of its own. For shapes that do not fit it has size 1, and its status tells why; the
// statuses of the operands play no part.
//
// The kernels are instantiated in operators_*.cpp, one for each group and rank of the result.
#pragma once

#include <algorithm>

#include "matrix/broadcast_shapes.hpp"
#include "matrix/operators_kinds.hpp"

namespace Vorq {

// An operand as the kernels take it: its rank is not part of the type.
template <class Cell>
struct Operand {
  template <int N>
  Operand(NdArray<Cell, N> const& cells) : shape(cells.GetShape()), store(cells.Store()) {}

  ShapeView shape;
  SharedPtr<Cell> const& store;
};

// The operator on two operands of which the larger rank is N.
template <Operation kOperation, class Left, class Right, int N>
BlockOf<OperatorResult<kOperation, Left, Right>, N> Operate(Operand<Left> const& left, Operand<Right> const& right);

template <Operation kOperation, class Left, class Right>
requires Operable<kOperation, Left, Right>
auto Operate(Left const& left, Right const& right) {
  return Operate<kOperation, OperandCell<Left>, OperandCell<Right>, std::max(Left::kRank, Right::kRank)>(
      CellsOf(left), CellsOf(right));
}

template <class Left, class Right>
requires Operable<Operation::kAdd, Left, Right>
auto Add(Left const& left, Right const& right) {
  return Operate<Operation::kAdd>(left, right);
}

template <class Left, class Right>
requires Operable<Operation::kSub, Left, Right>
auto Sub(Left const& left, Right const& right) {
  return Operate<Operation::kSub>(left, right);
}

template <class Left, class Right>
requires Operable<Operation::kMul, Left, Right>
auto Mul(Left const& left, Right const& right) {
  return Operate<Operation::kMul>(left, right);
}

// Sub whose result must keep the rank of the left operand: a right operand of a higher rank fails, whatever its sizes.
template <class Left, class Right>
requires Operable<Operation::kSub, Left, Right>
auto SubKeepingRank(Left const& left, Right const& right) {
  if constexpr (Right::kRank > Left::kRank) {
    using Result = MatrixObject<OperatorResult<Operation::kSub, OperandCell<Left>, OperandCell<Right>>, Left::kRank>;
    return Result::Failed(CannotCast<Left::kRank>(Left::kRank, Right::kRank).GetErrorMessage());
  } else {
    return Sub(left, right);
  }
}

}  // namespace Vorq
