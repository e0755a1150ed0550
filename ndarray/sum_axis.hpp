// Sums along one axis of an array of numbers, each in coordinate order from 0 and in the type of the elements.
//
//     NdArray<double, 1> rowSums = SumAxis(a, 1);        // a of rank 2
//
// A failed result holds a 0.
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "ndarray/nd_array.hpp"
#include "ndarray/runs.hpp"
#include "ndarray/with_elements.hpp"

namespace Vorq {

// Calls visit(run) with the elements along an axis for each place on the other axes, in flat order of these.
template <int N, class Visit>
void ForEachRunAlong(NDim<N> const& shape, int axis, Visit&& visit) {
  auto axes = shape.GetAxes();
  std::rotate(axes.begin() + axis, axes.begin() + axis + 1, axes.end());
  std::uint64_t const length = shape.GetDim(axis);
  ForEachRun(
      [&](std::uint64_t count, Run run) {
        for (std::uint64_t i = 0; i < count; i += length) {
          visit(Run{run.start + static_cast<std::int64_t>(i) * run.stride, run.stride});
        }
      },
      NDim<N>::FromAxes(axes, shape.GetOffset(N)));
}

// Whether elements along that axis lie at least as close to each other as those along any other axis.
template <int N>
bool IsInnermost(NDim<N> const& shape, int axis) {
  auto const distance = [](std::int64_t stride) {
    auto const steps = static_cast<std::uint64_t>(stride);
    return stride < 0 ? 0 - steps : steps;
  };
  return std::all_of(shape.GetAxes().begin(), shape.GetAxes().end(), [&](Axis const& other) {
    return other.size <= 1 || distance(shape.GetStride(axis)) <= distance(other.stride);
  });
}

// Whole numbers wrap around.
template <class T>
T AddNumbers(T a, T b) {
  if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(static_cast<std::make_unsigned_t<T>>(a) + static_cast<std::make_unsigned_t<T>>(b));
  } else {
    return a + b;
  }
}

// One sum behind the other.
template <class T, int N>
void SumRuns(T const* source, NDim<N> const& shape, int axis, T* sums) {
  auto const length = static_cast<std::int64_t>(shape.GetDim(axis));
  ForEachRunAlong(shape, axis, [&](Run run) {
    T sum = T();
    for (std::int64_t i = 0; i < length; ++i) sum = AddNumbers(sum, source[run.start + i * run.stride]);
    *sums++ = sum;
  });
}

// All sums at once, one coordinate on the axis behind the other: elements are read in the order in which they lie.
template <class T, int N>
void SumSlices(T const* source, NDim<N> const& shape, int axis, NDim<N - 1> const& resultShape, T* sums) {
  typename NDim<N - 1>::Axes axes;
  for (int k = 0, place = 0; k < N; ++k) {
    if (k != axis) axes[static_cast<std::size_t>(place++)] = shape.GetAxes()[static_cast<std::size_t>(k)];
  }
  NDim<N - 1> const slice = NDim<N - 1>::FromAxes(axes, AddWrapped(shape.GetOffset(N), shape.GetOffset(axis)));
  auto const length = static_cast<std::int64_t>(shape.GetDim(axis));
  for (std::int64_t i = 0; i < length; ++i, source += shape.GetStride(axis)) {
    ForEachRun(
        [&](std::uint64_t count, Run from, Run to) {
          T* const target = sums + to.start;
          for (std::int64_t j = 0; j < static_cast<std::int64_t>(count); ++j) {
            target[j] = AddNumbers(target[j], source[from.start + j * from.stride]);
          }
        },
        slice, resultShape);
  }
}

template <class T, int N>
NdArray<T, N - 1> SumAxis(NdArray<T, N> const& array, int axis) {
  NDim<N - 1> resultShape = array.GetShape().WithoutAxis(axis);
  if (resultShape.Failed()) return NdArray<T, N - 1>::Failed(T(), std::move(resultShape.GetStatus()));
  auto result = NdArray<T, N - 1>::Filled(resultShape, T());
  if (array.GetSize() == 0) return result;
  NdArray<T, N> const readable = WithElements(array, T());
  NDim<N> const& shape = readable.GetShape();
  if (IsInnermost(shape, axis)) {
    SumRuns(readable.Store().Get(), shape, axis, result.Store().Get());
  } else {
    SumSlices(readable.Store().Get(), shape, axis, resultShape, result.Store().Get());
  }
  return result;
}

}  // namespace Vorq
