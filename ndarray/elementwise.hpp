// Functions applied element by element to runs of arrays, as ForEachRun finds them.
#pragma once

#include <cstdint>

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

}  // namespace Vorq
