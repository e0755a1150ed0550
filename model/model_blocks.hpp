// Templates of Model that add blocks of items, included by the topics that do.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

#include "matrix/matrix_constr_builder.hpp"
#include "model/block_names.hpp"
#include "model/model.hpp"

namespace Vorq {

// Instantiates an operation for all ranks, as in VORQ_ALL_RANKS(VORQ_INSTANTIATE).
#define VORQ_ALL_RANKS(INSTANTIATE) INSTANTIATE(0) INSTANTIATE(1) INSTANTIATE(2) INSTANTIATE(3)

// Whether an index can count the cells of a block.
template <int N>
bool IsCountable(NDim<N> const& shape) {
  return shape.SizeFits() && shape.GetSize() <= kMaxCount;
}

template <class Item, int N>
MatrixObject<Item, N> Model::AppendBlock(BlockNames const& names, NDim<N> const& shape) {
  std::vector<Item>& items = core_->Table<Item>().items;
  std::size_t const needed = items.size() + names.Pointers().size();
  if (needed > items.capacity()) items.reserve(std::max(needed, 2 * items.capacity()));
  auto cells = NdArray<Item, N>::Fresh(shape);
  Item* cell = cells.Store().Get();
  for (char const* name : names.Pointers()) *cell++ = Append<Item>(name);
  return MatrixObject<Item, N>(std::move(cells));
}

}  // namespace Vorq
