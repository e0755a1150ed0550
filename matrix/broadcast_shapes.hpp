// The shape step of the operators: two shapes stretched to their common shape.
//
//     NDim<1> row({3}), column({2});
//     StretchShapes<2>(row, NDim<2>({2, 3}));           // both (2, 3), the left one with strides (0, 1)
//     CommonShape<1>(row, column).GetErrorMessage();
//     // "(INVALID) Operand 1 of shape (3) is not compatible with Operand 2 of shape (2)"
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "ndarray/shape.hpp"

namespace Vorq {

// A shape whose rank is not part of its type.
struct ShapeView {
  template <int N>
  ShapeView(NDim<N> const& shape) : axes(shape.GetAxes()), innerOffset(shape.GetOffset(N)) {}

  std::span<Axis const> axes;
  std::int64_t innerOffset;
};

// The common shape of two shapes of which the larger rank is N. They are aligned at the last axis; sizes must be equal
// or one of them 1. The larger size wins, so that 0 and 1 meet as 1.
template <int N>
NDim<N> CommonShape(ShapeView left, ShapeView right);

// Two shapes that see their operands at the sizes of the common shape, or the failure.
template <int N>
struct StretchedShapes {
  NDim<N> left;
  NDim<N> right;
  // An operand without elements, which stretching against size 1 makes no more.
  bool leftIsEmpty = false;
  bool rightIsEmpty = false;
  Status status;
};

template <int N>
StretchedShapes<N> StretchShapes(ShapeView left, ShapeView right);

// One loop over the elements of two stretched shapes.
struct PairAxis {
  std::uint64_t size = 1;
  std::int64_t left = 0;
  std::int64_t right = 0;
};

// Up to three nested loops, the innermost one last. Axes that both shapes step through as if they were one are one.
template <int N>
std::array<PairAxis, 3> PairAxes(NDim<N> const& left, NDim<N> const& right);

// Calls visit(count, left position, right position) for each run along the innermost loop; the strides of a run are
// those of `axes`.back(). No size may be 0.
template <class Visit>
void ForEachPairRun(std::array<PairAxis, 3> const& axes, std::int64_t left, std::int64_t right, Visit&& visit) {
  for (std::uint64_t i = 0; i < axes[0].size; ++i) {
    std::int64_t innerLeft = left;
    std::int64_t innerRight = right;
    for (std::uint64_t j = 0; j < axes[1].size; ++j) {
      visit(axes[2].size, innerLeft, innerRight);
      innerLeft += axes[1].left;
      innerRight += axes[1].right;
    }
    left += axes[0].left;
    right += axes[0].right;
  }
}

}  // namespace Vorq
