// Sums along one axis of a block, as explicit terms.
//
//     MLinExpr<1> columns = SumAxis(x, 0);        // x of rank 2
//
// The result has cells of its own, each the sum of cells in coordinate order. For an axis that there is not it has one
// cell, and its status tells why.
#pragma once

#include <cstdint>
#include <utility>

#include "matrix/matrix_object.hpp"
#include "matrix/operators_cells.hpp"
#include "matrix/readable_cells.hpp"
#include "ndarray/sum_axis.hpp"

namespace Vorq {

// Adds up `length` cells at equal distances, in room made for all of their terms.
template <class Out, class Cell>
void SumRun(Out& sum, Cell const* first, std::int64_t stride, std::int64_t length) {
  std::size_t linearTerms = 0;
  std::size_t products = 0;
  for (std::int64_t i = 0; i < length; ++i) {
    linearTerms += LinearTermCount(first[i * stride]);
    products += ProductCount(first[i * stride]);
  }
  LinearPart(sum).coeffs.reserve(linearTerms);
  LinearPart(sum).vars.reserve(linearTerms);
  if constexpr (std::is_same_v<Out, MQExpression>) ReserveProducts(sum.expr, products);
  for (std::int64_t i = 0; i < length; ++i) AddCell(sum, first[i * stride], 1.0);
}

template <class Cell, int N>
MatrixObject<typename CellTraits<Cell>::SumCell, N - 1> SumAxis(MatrixObject<Cell, N> const& block, int axis) {
  using SumCell = typename CellTraits<Cell>::SumCell;
  using Sums = NdArray<SumCell, N - 1>;
  NDim<N - 1> shape = block.Cells().GetShape().WithoutAxis(axis);
  if (shape.Failed()) {
    return MatrixObject<SumCell, N - 1>(Sums::Failed(SumCell(), std::move(shape.GetStatus())));
  }
  Sums sums = Sums::Fresh(shape);
  auto const cells = ReadableCells(block);
  auto const length = static_cast<std::int64_t>(cells.GetDim(axis));
  SumCell* sum = sums.Store().Get();
  ForEachRunAlong(cells.GetShape(), axis,
                  [&](Run run) { SumRun(*sum++, cells.Store().Get() + run.start, run.stride, length); });
  return MatrixObject<SumCell, N - 1>(std::move(sums));
}

}  // namespace Vorq
