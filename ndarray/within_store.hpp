// Reading arrays whose shape may reach beyond the store: indices of views and flat indices are not checked, so that a
// shape can have positions for which there is no element.
#pragma once

#include <cstdint>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// The array as it is, or where it has positions without an element, a compact copy in which `standIn` stands for them.
template <class T, int N>
NdArray<T, N> WithinStore(NdArray<T, N> const& array, T const& standIn) {
  if (array.StaysWithinStore()) return array;
  return NdArray<T, N>::Generated(array.GetShape(), [&](std::uint64_t i) {
    T const* element = array.Find(i);
    return element == nullptr ? standIn : *element;
  });
}

}  // namespace Vorq
