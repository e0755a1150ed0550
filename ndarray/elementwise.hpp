// Functions applied to whole arrays, element by element.
//
//     NdArray<double, 2> doubled = Map<double>(a, [](double x) { return 2 * x; });
//     NdArray<double, 2> sum = Combine<double>(a, b, std::plus());       // a and b have the same sizes
#pragma once

#include <cstdint>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// target[i] = function(a) for each element of a run.
template <class R, class T, class Function>
void MapRun(std::int64_t count, T const* a, std::int64_t stride, R* target, Function& function) {
  if (stride == 1) {
    for (std::int64_t i = 0; i < count; ++i) target[i] = function(a[i]);
  } else {
    for (std::int64_t i = 0; i < count; ++i) target[i] = function(a[i * stride]);
  }
}

// The results of function(element), in a compact array.
template <class R, class T, int N, class Function>
NdArray<R, N> Map(NdArray<T, N> const& array, Function&& function) {
  if (!array.HasElements()) return NdArray<R, N>::Filled(array.GetShape(), function(T()));
  auto result = NdArray<R, N>::Fresh(array.GetShape());
  R* target = result.Store().Get();
  T const* const store = array.Store().Get();
  ForEachRun(
      [&](std::uint64_t count, Run run) {
        MapRun(static_cast<std::int64_t>(count), store + run.start, run.stride, target, function);
        target += count;
      },
      array.GetShape());
  return result;
}

// target[i] = function(a, b) for each pair of the two runs.
template <class R, class A, class B, class Function>
void CombineRun(std::int64_t count, A const* a, std::int64_t aStride, B const* b, std::int64_t bStride, R* target,
                Function& function) {
  if (aStride == 1 && bStride == 1) {
    for (std::int64_t i = 0; i < count; ++i) target[i] = function(a[i], b[i]);
  } else if (aStride == 1 && bStride == 0) {
    for (std::int64_t i = 0; i < count; ++i) target[i] = function(a[i], *b);
  } else if (aStride == 0 && bStride == 1) {
    for (std::int64_t i = 0; i < count; ++i) target[i] = function(*a, b[i]);
  } else {
    for (std::int64_t i = 0; i < count; ++i) target[i] = function(a[i * aStride], b[i * bStride]);
  }
}

// The results of function(a, b) for the elements at the same place of two arrays of the same sizes, in a compact array.
template <class R, class A, class B, int N, class Function>
NdArray<R, N> Combine(NdArray<A, N> const& a, NdArray<B, N> const& b, Function&& function) {
  if (!a.HasElements() || !b.HasElements()) {
    return NdArray<R, N>::Generated(a.GetShape(), [&](std::uint64_t i) { return function(a.Get(i), b.Get(i)); });
  }
  auto result = NdArray<R, N>::Fresh(a.GetShape());
  R* target = result.Store().Get();
  A const* const aStore = a.Store().Get();
  B const* const bStore = b.Store().Get();
  ForEachRun(
      [&](std::uint64_t count, Run aRun, Run bRun) {
        CombineRun(static_cast<std::int64_t>(count), aStore + aRun.start, aRun.stride, bStore + bRun.start, bRun.stride,
                   target, function);
        target += count;
      },
      a.GetShape(), b.GetShape());
  return result;
}

}  // namespace Vorq
