// The rows of a block of two axes, and the cells of a block as a list.
#pragma once

#include <cstdint>
#include <vector>

#include "matrix/matrix_object.hpp"
#include "ndarray/rank_change.hpp"

namespace Vorq {

// Row `row` as a block of one axis over the same store.
template <class Cell>
MatrixObject<Cell, 1> RowOf(MatrixObject<Cell, 2> const& block, std::uint64_t row) {
  Vorq::View view;
  view.Scalar(static_cast<std::int64_t>(row));
  return MatrixObject<Cell, 1>(Squeeze(block.Cells().View(view), 0));
}

// Copies of the cells in flat order.
template <class Cell, int N>
std::vector<Cell> CellList(MatrixObject<Cell, N> const& block) {
  std::vector<Cell> cells;
  cells.reserve(block.GetSize());
  for (std::uint64_t i = 0; i < block.GetSize(); ++i) cells.push_back(block.Get(i));
  return cells;
}

}  // namespace Vorq
