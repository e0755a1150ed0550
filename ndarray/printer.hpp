// The text of an array: nested brackets, one row a line.
//
//     [[1, 2]
//      [3, 4]
//     ]
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <span>
#include <string>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// The text of elements at the positions that `axes` reach from `start`, each written by `writeElement`. Before each
// element the length so far is held against `limit`, and at the limit the text ends in "...", without closing brackets.
std::string PrintAxes(std::span<Axis const> axes, std::int64_t start, std::uint64_t limit,
                      std::function<void(std::ostream&, std::int64_t position)> const& writeElement);

// The text of an array whose elements write(stream, element) writes. Rank 0 is the element alone, whatever `limit` is.
template <class T, int N, class Write>
std::string PrintArray(NdArray<T, N> const& array, std::uint64_t limit, Write&& write) {
  NDim<N> const& shape = array.GetShape();
  if (array.HasElements()) {
    T const* const store = array.Store().Get();
    return PrintAxes(shape.GetAxes(), shape.Start(), limit,
                     [&](std::ostream& stream, std::int64_t position) { write(stream, store[position]); });
  }
  return PrintAxes(shape.GetAxes(), 0, limit, [&](std::ostream& stream, std::int64_t) { write(stream, T()); });
}

}  // namespace Vorq
