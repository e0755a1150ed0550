// Small arrays for the tests, and what they hold.
#pragma once

#include <vector>

#include "ndarray/nd_array_numbers.hpp"

namespace arrays {

// 0, 1, 2, ... in flat order.
template <class T, int N>
Vorq::NdArray<T, N> Counting(typename Vorq::NDim<N>::Sizes const& sizes) {
  return Vorq::NdArray<T, N>::Generated(Vorq::NDim<N>(sizes), [](std::uint64_t i) { return static_cast<T>(i); });
}

template <int N>
Vorq::NdArray<int, N> OfInts(typename Vorq::NDim<N>::Sizes const& sizes, std::vector<int> const& values) {
  return Vorq::NdArray<int, N>::Generated(Vorq::NDim<N>(sizes), [&](std::uint64_t i) { return values[i]; });
}

// The array stretched against the shape, over the same store.
template <int M, class T, int N>
Vorq::NdArray<T, M> Stretched(Vorq::NdArray<T, N> const& array, Vorq::NDim<M> const& shape) {
  return Vorq::NdArray<T, M>(array.GetShape().Broadcast(shape), array.Store());
}

// The elements in flat order, each read by its flat index.
template <class T, int N>
std::vector<T> Elements(Vorq::NdArray<T, N> const& array) {
  std::vector<T> elements;
  for (std::uint64_t i = 0; i < array.GetSize(); ++i) elements.push_back(array.Get(i));
  return elements;
}

}  // namespace arrays
