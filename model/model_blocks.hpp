// Templates of Model that add blocks of items, included by the topics that do.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "frame/growth.hpp"
#include "frame/shared_ptr.hpp"
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

// The same number for all cells of a block.
inline std::vector<double> Repeated(double value, std::size_t count) {
  std::vector<double> values;
  ReserveMore(values, count);
  values.assign(count, value);
  return values;
}

template <class Item, int N>
MatrixObject<Item, N> Model::AppendBlock(BlockNames const& names, NDim<N> const& shape) {
  core_->Table<Item>().items.reserve_more(names.Pointers().size());
  SharedArrayBuilder<Item> cells(names.Pointers().size());
  for (char const* name : names.Pointers()) cells.Emplace(Append<Item>(name));
  return MatrixObject<Item, N>(NdArray<Item, N>(shape.Clone(), cells.Finish()));
}

}  // namespace Vorq
