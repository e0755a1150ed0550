// The kernel of the operators, for the files that instantiate it.
#pragma once

#include "matrix/operators.hpp"
#include "matrix/operators_cells.hpp"
#include "ndarray/elementwise.hpp"

namespace Vorq {

// A failed result: every size 1, one default cell.
template <class Cell, int N>
BlockOf<Cell, N> FailedOperation(char const* text) {
  auto cells = NdArray<Cell, N>::OneElement(Cell());
  SetStatus(cells.GetStatus(), kInvalid, "%s", text);
  return BlockOf<Cell, N>(std::move(cells));
}

// Numbers go to `out` and move it on.
template <Operation kOperation, class Left, class Right, Number Out>
void OperateOnRun(std::uint64_t count, Left const* left, std::int64_t leftStride, Right const* right,
                  std::int64_t rightStride, Out*& out) {
  auto operate = [](Left a, Right b) { return OperateNumbers<kOperation, Out>(a, b); };
  CombineRun(static_cast<std::int64_t>(count), left, leftStride, right, rightStride, out, operate);
  out += count;
}

template <Operation kOperation, class Left, class Right, class Out>
void OperateOnRun(std::uint64_t count, Left const* left, std::int64_t leftStride, Right const* right,
                  std::int64_t rightStride, SharedArrayBuilder<Out>& out) {
  for (; count > 0; --count, left += leftStride, right += rightStride) {
    OperateCells<kOperation>(out.Emplace(), *left, *right);
  }
}

// The kernel: two views of the same sizes.
template <Operation kOperation, class Left, class Right, int N>
BlockOf<OperatorResult<kOperation, Left, Right>, N> OperateViews(NdArray<Left, N> const& left,
                                                                 NdArray<Right, N> const& right) {
  using Cell = OperatorResult<kOperation, Left, Right>;
  NDim<N> const& leftShape = left.GetShape();
  NDim<N> const& rightShape = right.GetShape();
  if (leftShape.GetDims() != rightShape.GetDims()) {
    return FailedOperation<Cell, N>(("Operand 1 of " + leftShape.ToString(kSizes) + " is different from Operand 2 of " +
                                     rightShape.ToString(kSizes))
                                        .c_str());
  }
  auto const operateOnAll = [&](auto& out) {
    if (leftShape.GetSize() == 0) return;
    auto const axes = PairAxes(leftShape, rightShape);
    ForEachPairRun(axes, leftShape.Start(), rightShape.Start(),
                   [&](std::uint64_t count, std::int64_t leftStart, std::int64_t rightStart) {
                     OperateOnRun<kOperation>(count, left.Store().Get() + leftStart, axes.back().left,
                                              right.Store().Get() + rightStart, axes.back().right, out);
                   });
  };
  if constexpr (Number<Cell>) {
    auto result = NdArray<Cell, N>::Fresh(leftShape);
    Cell* out = result.Store().Get();
    operateOnAll(out);
    return result;
  } else {
    SharedArrayBuilder<Cell> cells(leftShape.StoreSize());
    operateOnAll(cells);
    return BlockOf<Cell, N>(NdArray<Cell, N>(leftShape.Clone(), cells.Finish()));
  }
}

// `store` seen through `shape`. Where there is nothing to see each position reads a default element.
template <class Cell, int N>
NdArray<Cell, N> StretchedView(NDim<N> const& shape, SharedPtr<Cell> const& store, bool isEmpty) {
  if (store && !isEmpty) return NdArray<Cell, N>(shape, store);
  auto axes = shape.GetAxes();
  for (Axis& axis : axes) axis = {axis.size, 0, 0};
  return NdArray<Cell, N>(NDim<N>::FromAxes(axes), NdArray<Cell, 1>::OneElement(DefaultCell<Cell>()).Store());
}

template <Operation kOperation, class Left, class Right, int N>
BlockOf<OperatorResult<kOperation, Left, Right>, N> Operate(Operand<Left> const& left, Operand<Right> const& right) {
  StretchedShapes<N> const shapes = StretchShapes<N>(left.shape, right.shape);
  if (shapes.status.Failed()) {
    return FailedOperation<OperatorResult<kOperation, Left, Right>, N>(shapes.status.Text());
  }
  return OperateViews<kOperation>(StretchedView(shapes.left, left.store, shapes.leftIsEmpty),
                                  StretchedView(shapes.right, right.store, shapes.rightIsEmpty));
}

}  // namespace Vorq
