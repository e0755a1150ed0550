// Arrays seen with another rank: a new shape over the same store, no element copied.
// Failed results hold the source's first element.
#pragma once

#include <cstdint>
#include <utility>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// `shape` over the store of `source`. A failed shape gives a failed array.
template <int M, class T, int N>
NdArray<T, M> UnderShape(NdArray<T, N> const& source, NDim<M> shape) {
  if (!shape.Failed()) return NdArray<T, M>(std::move(shape), source.Store());
  auto result = NdArray<T, M>::OneElement(source.Get(0));
  SetStatus(result.GetStatus(), kInvalid, "%s", shape.GetErrorMessage());
  return result;
}

template <int N>
NDim<N + 1> ExpandDims(NDim<N> const& shape, int axis) {
  return shape.ExpandDims(axis);
}
template <class T, int N>
NdArray<T, N + 1> ExpandDims(NdArray<T, N> const& array, int axis) {
  return UnderShape(array, array.GetShape().ExpandDims(axis));
}

template <int N>
NDim<N - 1> Squeeze(NDim<N> const& shape, int axis) {
  return shape.Squeeze(axis);
}
template <class T, int N>
NdArray<T, N - 1> Squeeze(NdArray<T, N> const& array, int axis) {
  return UnderShape(array, array.GetShape().Squeeze(axis));
}

template <class T, int N>
NdArray<T, N - 1> Diagonal(NdArray<T, N> const& array, int offset, int axis1, int axis2) {
  NDim<N - 1> shape = array.GetShape().Diagonal(offset, axis1, axis2);
  // Its text has the prefix once, unlike that of the other operations here.
  if (shape.Failed()) return NdArray<T, N - 1>::Failed(array.Get(0), std::move(shape.GetStatus()));
  return NdArray<T, N - 1>(std::move(shape), array.Store());
}

// n positions that all read one new element, a copy of `value`.
template <class T>
NdArray<T, 1> RepeatElement(T const& value, std::uint64_t n) {
  return NdArray<T, 1>(NDim<1>::FromAxes({Axis{n, 0, 0}}), NdArray<T, 1>::OneElement(value).Store());
}

}  // namespace Vorq
