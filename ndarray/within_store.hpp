// Reading arrays whose shape may reach beyond the store: indices of views and flat indices are not checked, so that a
// shape can have positions for which there is no element.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// Whether a shape stays within a store of `count` elements. A count of 0 is foreign memory, whose end is not known.
template <int N>
bool StaysWithin(NDim<N> const& shape, std::size_t count) {
  if (count == 0) return true;
  std::int64_t low = shape.Start();
  std::int64_t high = low;
  for (Axis const& axis : shape.GetAxes()) {
    if (axis.size == 0) return true;
    std::int64_t const reach = MultiplyWrapped(static_cast<std::int64_t>(axis.size - 1), axis.stride);
    (reach < 0 ? low : high) = AddWrapped(reach < 0 ? low : high, reach);
  }
  return low >= 0 && high < static_cast<std::int64_t>(count);
}

// The element at a flat index that may lie outside the shape: it is read by the strides, and null when its position
// lies outside the store. A store of foreign memory has no known end.
template <class T, int N>
T* FindWithinStore(NdArray<T, N> const& array, std::uint64_t index) {
  if (!array.HasElements()) return nullptr;
  std::int64_t const position = array.GetShape().Position(index);
  std::size_t const count = array.Store().Block()->count;
  bool const isInside = position >= 0 && static_cast<std::uint64_t>(position) < count;
  return isInside || count == 0 ? array.Store().Get() + position : nullptr;
}

// The array as it is, or where it has positions without an element, a compact copy in which `standIn` stands for them.
template <class T, int N>
NdArray<T, N> WithinStore(NdArray<T, N> const& array, T const& standIn) {
  if (array.GetSize() == 0) return array;
  if (array.Store() && StaysWithin(array.GetShape(), array.Store().Block()->count)) return array;
  return NdArray<T, N>::Generated(array.GetShape(), [&](std::uint64_t i) {
    T const* element = FindWithinStore(array, i);
    return element == nullptr ? standIn : *element;
  });
}

}  // namespace Vorq
