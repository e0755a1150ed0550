// Walking through shapes without index arithmetic for each element.
//
// A shape is a sequence of runs along its last axis, and one single run when it is contiguous. Loops over a run are
// plain loops over memory, which the compiler can vectorise.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "ndarray/shape.hpp"

namespace Vorq {

// Elements of a store from position `start`, each `stride` behind the one before.
struct Run {
  std::int64_t start;
  std::int64_t stride;
};

// Calls visit(count, runs...), one run a shape, for shapes of the same sizes; in flat order, never with a count of 0.
template <int N, class Visit, class... Shapes>
void ForEachRun(Visit&& visit, NDim<N> const& first, Shapes const&... others) {
  std::uint64_t const size = first.GetSize();
  if (size == 0) return;
  if (N == 0 || (first.IsContiguous() && (others.IsContiguous() && ...))) {
    visit(size, Run{first.Start(), 1}, Run{others.Start(), 1}...);
    return;
  }
  if constexpr (N > 0) {
    auto const& axes = first.GetAxes();
    // The axes in front of the last one, as two loops of which some are passed once.
    std::uint64_t const outer = N == 3 ? axes[0].size : 1;
    std::uint64_t const inner = N == 1 ? 1 : axes[N == 1 ? 0 : N - 2].size;
    for (std::uint64_t i = 0; i < outer; ++i) {
      for (std::uint64_t j = 0; j < inner; ++j) {
        auto const run = [&](auto const& shape) {
          std::int64_t start = shape.Start();
          if constexpr (N == 3)
            start = AddWrapped(start, MultiplyWrapped(static_cast<std::int64_t>(i), shape.GetStride(0)));
          if constexpr (N >= 2)
            start = AddWrapped(start, MultiplyWrapped(static_cast<std::int64_t>(j), shape.GetStride(N - 2)));
          return Run{start, shape.GetStride(N - 1)};
        };
        visit(axes[N - 1].size, run(first), run(others)...);
      }
    }
  }
}

// Copies the elements that `axes` reach from `source`, in flat order, to `target`; returns the end of what was written.
// A stride of 0 repeats elements.
template <class T>
T* CopyAxes(T const* source, std::span<Axis const> axes, T* target) {
  if (axes.empty()) {
    *target = *source;
    return target + 1;
  }
  Axis const& axis = axes.front();
  auto const count = static_cast<std::int64_t>(axis.size);
  if (axes.size() > 1) {
    for (std::int64_t i = 0; i < count; ++i) target = CopyAxes(source + i * axis.stride, axes.subspan(1), target);
    return target;
  }
  if (axis.stride == 1) return std::copy_n(source, count, target);
  for (std::int64_t i = 0; i < count; ++i) *target++ = source[i * axis.stride];
  return target;
}

}  // namespace Vorq
