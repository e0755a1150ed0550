// The shape step of the operators.
#include "matrix/broadcast_shapes.hpp"

#include <algorithm>

namespace Vorq {
namespace {

// Calls visit(shape) with the shape under its rank, which is not above kHighest.
template <int kHighest, class Visit>
auto WithRank(ShapeView shape, Visit&& visit) {
  if constexpr (kHighest > 0) {
    if (shape.axes.size() < kHighest) return WithRank<kHighest - 1>(shape, visit);
  }
  typename NDim<kHighest>::Axes axes;
  std::copy_n(shape.axes.begin(), kHighest, axes.begin());
  return visit(NDim<kHighest>::FromAxes(axes, shape.innerOffset));
}

template <int N>
std::string SizesText(ShapeView shape) {
  return WithRank<N>(shape, [](auto const& ranked) { return ranked.ToString(kSizes); });
}

// The size of the axis that is `fromEnd` axes before the last one; axes in front of the first have size 1.
std::uint64_t SizeFromEnd(ShapeView shape, std::size_t fromEnd) {
  return fromEnd < shape.axes.size() ? shape.axes[shape.axes.size() - 1 - fromEnd].size : 1;
}

bool IsEmpty(ShapeView shape) {
  return std::any_of(shape.axes.begin(), shape.axes.end(), [](Axis const& axis) { return axis.size == 0; });
}

}  // namespace

template <int N>
NDim<N> CommonShape(ShapeView left, ShapeView right) {
  typename NDim<N>::Sizes sizes{};
  for (std::size_t fromEnd = 0; fromEnd < N; ++fromEnd) {
    std::uint64_t const p = SizeFromEnd(left, fromEnd);
    std::uint64_t const q = SizeFromEnd(right, fromEnd);
    if (p != q && p != 1 && q != 1) {
      auto failed = NDim<N>::Uniform(1);
      SetStatus(failed.GetStatus(), kInvalid, "Operand 1 of shape %s is not compatible with Operand 2 of shape %s",
                SizesText<N>(left).c_str(), SizesText<N>(right).c_str());
      return failed;
    }
    sizes[N - 1 - fromEnd] = std::max(p, q);
  }
  return NDim<N>(sizes);
}

template <int N>
StretchedShapes<N> StretchShapes(ShapeView left, ShapeView right) {
  StretchedShapes<N> result;
  NDim<N> common = CommonShape<N>(left, right);
  result.status = std::move(common.GetStatus());
  if (result.status.Failed()) return result;
  auto const stretch = [&](ShapeView shape) {
    NDim<N> stretched = WithRank<N>(shape, [&](auto const& ranked) { return ranked.Broadcast(common); });
    // The common shape rules this out.
    if (stretched.Failed()) result.status = std::move(stretched.GetStatus());
    return stretched;
  };
  result.left = stretch(left);
  result.right = stretch(right);
  result.leftIsEmpty = IsEmpty(left);
  result.rightIsEmpty = IsEmpty(right);
  return result;
}

template <int N>
std::array<PairAxis, 3> PairAxes(NDim<N> const& left, NDim<N> const& right) {
  std::array<PairAxis, 3> axes;
  std::size_t place = 3;
  for (std::size_t k = N; k-- > 0;) {
    std::uint64_t const size = left.GetAxes()[k].size;
    if (size == 1) continue;
    PairAxis const axis{size, left.GetAxes()[k].stride, right.GetAxes()[k].stride};
    if (place < 3) {
      PairAxis& inner = axes[place];
      auto const innerSize = static_cast<std::int64_t>(inner.size);
      if (axis.left == MultiplyWrapped(innerSize, inner.left) &&
          axis.right == MultiplyWrapped(innerSize, inner.right)) {
        inner.size *= size;
        continue;
      }
    }
    axes[--place] = axis;
  }
  return axes;
}

#define VORQ_SHAPE_RANK(N)                                            \
  template NDim<N> CommonShape<N>(ShapeView, ShapeView);              \
  template StretchedShapes<N> StretchShapes<N>(ShapeView, ShapeView); \
  template std::array<PairAxis, 3> PairAxes<N>(NDim<N> const&, NDim<N> const&);

VORQ_SHAPE_RANK(0)
VORQ_SHAPE_RANK(1)
VORQ_SHAPE_RANK(2)
VORQ_SHAPE_RANK(3)

#undef VORQ_SHAPE_RANK

}  // namespace Vorq
