// Blocks seen with another rank: a new shape over the same cells, see ndarray/rank_change.hpp.
#pragma once

#include <cstdint>

#include "matrix/matrix_object.hpp"
#include "matrix/operators_kinds.hpp"
#include "ndarray/rank_change.hpp"

namespace Vorq {

template <class Cell, int N>
MatrixObject<Cell, N + 1> ExpandDims(MatrixObject<Cell, N> const& block, int axis) {
  return MatrixObject<Cell, N + 1>(ExpandDims(block.Cells(), axis));
}

template <class Cell, int N>
MatrixObject<Cell, N - 1> Squeeze(MatrixObject<Cell, N> const& block, int axis) {
  return MatrixObject<Cell, N - 1>(Squeeze(block.Cells(), axis));
}

template <class Cell, int N>
MatrixObject<Cell, N - 1> Diagonal(MatrixObject<Cell, N> const& block, int offset, int axis1, int axis2) {
  return MatrixObject<Cell, N - 1>(Diagonal(block.Cells(), offset, axis1, axis2));
}

// n positions that all read one new number or cell, a copy of `value`.
template <class Cell>
BlockOf<Cell, 1> Repeat1d(Cell const& value, std::uint64_t n) {
  return BlockOf<Cell, 1>(RepeatElement(value, n));
}

}  // namespace Vorq
