// Templates of Model that add one cone for each row of a block.
#pragma once

#include "matrix/block_rows.hpp"
#include "model/model.hpp"

namespace Vorq {

// A row that fails is the last: the item that stands for nothing ends the array, and the cones before it stay.
template <class Item, class Cell, class Step>
std::vector<Item> Model::AddEachRow(MatrixObject<Cell, 2> const& block, Step addCone) {
  std::vector<Item> cones;
  std::uint64_t const count = block.GetDim(0);
  for (std::uint64_t row = 0; row < count; ++row) {
    MatrixObject<Cell, 1> line = RowOf(block, row);
    cones.push_back(addCone(line, row));
    if (status.Failed()) break;
  }
  return cones;
}

}  // namespace Vorq
