// Two arrays put one behind the other along an axis, their elements converted to those of the result.
//
//     Concat<double>(a, b, -1, [](auto element) { return static_cast<double>(element); });
//
// A failed result holds one default element.
#pragma once

#include <cstdint>
#include <utility>

#include "ndarray/elementwise.hpp"
#include "ndarray/nd_array.hpp"
#include "ndarray/runs.hpp"

namespace Vorq {

// Writes convert(element) for all elements of `source` to the part of `target` that begins at `start` along an axis.
// The last axis of `target` is compact, and the part has the sizes of the source.
template <class Out, class In, int N, class Convert>
void ConvertInto(NdArray<In, N> const& source, NdArray<Out, N> const& target, std::size_t place, std::uint64_t start,
                 Convert const& convert) {
  auto axes = target.GetShape().GetAxes();
  for (std::size_t k = 0; k < N; ++k) axes[k].size = source.GetShape().GetAxes()[k].size;
  axes[place].offset = static_cast<std::int64_t>(start) * axes[place].stride;
  ForEachRun(
      [&](std::uint64_t count, Run from, Run to) {
        MapRun(static_cast<std::int64_t>(count), source.Store().Get() + from.start, from.stride,
               target.Store().Get() + to.start, convert);
      },
      source.GetShape(), NDim<N>::FromAxes(axes));
}

// A negative axis counts from the end. The result has a store of its own.
template <class Out, class Left, class Right, int N, class Convert>
NdArray<Out, N> Concat(NdArray<Left, N> const& left, NdArray<Right, N> const& right, int axis, Convert const& convert) {
  NDim<N> shape = left.GetShape().Concat(right.GetShape(), axis);
  if (shape.Failed()) return NdArray<Out, N>::Failed(Out(), std::move(shape.GetStatus()));
  auto const place = static_cast<std::size_t>(axis < 0 ? axis + N : axis);
  auto result = NdArray<Out, N>::Fresh(shape);
  ConvertInto(left, result, place, 0, convert);
  ConvertInto(right, result, place, left.GetShape().GetAxes()[place].size, convert);
  return result;
}

}  // namespace Vorq
