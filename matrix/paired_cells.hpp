// Walking through the cells of a block together with the elements of other arrays at the same flat index.
#pragma once

#include <cstdint>

#include "ndarray/nd_array.hpp"
#include "ndarray/runs.hpp"

namespace Vorq {

template <class T>
struct SteppingPointer {
  T* element;
  std::int64_t stride;
};

template <class Visit, class... Pointers>
void WalkRuns(std::uint64_t count, Visit& visit, Pointers... pointers) {
  for (; count > 0; --count) {
    visit(*pointers.element...);
    ((pointers.element += pointers.stride), ...);
  }
}

// Calls visit(cell, elements...) for each cell in flat order. Sizes are not compared: the cells are counted, and the
// elements are read by the strides of their arrays. A cell for which an array has no element is left out.
template <class Visit, class Cell, int N, class... Elements>
void ForEachPair(Visit&& visit, NdArray<Cell, N> const& cells, NdArray<Elements, N> const&... arrays) {
  if (!cells.HasElements()) return;
  bool const isAligned = ((arrays.HasElements() && arrays.GetShape().GetDims() == cells.GetShape().GetDims()) && ...);
  if (!isAligned) {
    std::uint64_t const size = cells.GetSize();
    for (std::uint64_t i = 0; i < size; ++i) {
      auto const visitFound = [&](auto*... elements) {
        if (((elements != nullptr) && ...)) visit(*cells.Find(i), *elements...);
      };
      visitFound(arrays.Find(i)...);
    }
    return;
  }
  ForEachRun(
      [&](std::uint64_t count, Run run, auto... runs) {
        WalkRuns(count, visit, SteppingPointer<Cell>{cells.Store().Get() + run.start, run.stride},
                 SteppingPointer<Elements>{arrays.Store().Get() + runs.start, runs.stride}...);
      },
      cells.GetShape(), arrays.GetShape()...);
}

}  // namespace Vorq
