// Reading arrays that may have sizes but no store.
#pragma once

#include "ndarray/nd_array.hpp"

namespace Vorq {

// The array as it is, or where it has no store, a compact one of its sizes in which `standIn` stands for each element.
template <class T, int N>
NdArray<T, N> WithElements(NdArray<T, N> const& array, T const& standIn) {
  return array.HasElements() ? array : NdArray<T, N>::Filled(array.GetShape(), standIn);
}

}  // namespace Vorq
