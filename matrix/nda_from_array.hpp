// An array of items as the store of a block.
#pragma once

#include <cstdint>
#include <vector>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// Copies of the items, in a compact store.
template <class Item, class Array = std::vector<Item>>
NdArray<Item, 1> NdaFromArray(Array const& array) {
  return NdArray<Item, 1>::Generated(NDim<1>({array.size()}), [&array](std::uint64_t i) { return array[i]; });
}

}  // namespace Vorq
