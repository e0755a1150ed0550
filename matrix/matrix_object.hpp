// MatrixObject<Cell, N>: a block of cells of N axes: the seven kinds of blocks of variables, expressions and
// constraints.
//
// A block is an array of cells, with the same shapes and stores as arrays of numbers: views, transposes and reshaped
// blocks share cells, and a change to a shared cell is seen by all. What the kinds do differently is told by their
// cells (cells.hpp) and by the operations that only some of them have.
//
//     MVar<2> x(NdArray<Var, 2>(NDim<2>({2, 3}), NdaFromArray<Var>(vars).Store()));
//     MVar<2> t = x.Transpose();                                 // the same cells
//     NdArray<double, 2> values = t.Read<double>([](Var& var) { return var.Get("Value"); });
//     MLinExpr<0> sum = Sum(x);
//     sum.ForEach([](MExpression& cell) { cell.Multiply(2.0); });
//
// An operation that fails gives a block of one cell whose status tells why.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "matrix/cells.hpp"
#include "matrix/m_expr_base.hpp"
#include "matrix/paired_cells.hpp"
#include "ndarray/nd_array.hpp"
#include "ndarray/nd_array_numbers.hpp"
#include "ndarray/view.hpp"

namespace Vorq {

template <class CellType, int N>
class MatrixObject final : public MExprBase<N> {
 public:
  using Cell = CellType;
  static constexpr int kRank = N;

  // One default cell for N = 0, no cell otherwise.
  MatrixObject() : MatrixObject(NdArray<Cell, N>()) {}
  explicit MatrixObject(NdArray<Cell, N> cells);
  // Every cell a copy of `prototype`, in a compact store.
  MatrixObject(NDim<N> const& shape, Cell const& prototype)
      : MatrixObject(NdArray<Cell, N>::Filled(shape, prototype)) {}
  // The form of a failed result: every size 1, one default cell, and `text` in the status.
  static MatrixObject Failed(char const* text);
  // A block of these sizes without a store: it reads as default cells, and ignores writes.
  static MatrixObject WithoutCells(NDim<N> const& shape);

  int GetND() const override { return N; }
  std::uint64_t GetDim(int axis) const override { return cells_.GetDim(axis); }
  std::uint64_t GetSize() const override { return cells_.GetSize(); }
  NDim<N> GetShape() const override { return cells_.GetShape(); }
  NdArray<Cell, N> const& Cells() const { return cells_; }

  MatrixObject<Cell, 1> Reshape(NDim<1> const& shape) const;
  MatrixObject<Cell, 2> Reshape(NDim<2> const& shape) const;
  MatrixObject<Cell, 3> Reshape(NDim<3> const& shape) const;
  MatrixObject<Cell, 1> Flatten() const;
  MatrixObject Repeat(std::uint64_t count, int axis) const;
  MatrixObject RepeatBlock(std::uint64_t count, int axis) const;
  MatrixObject Transpose() const;
  MatrixObject View(Vorq::View const& view) const;
  MatrixObject<Cell, 1> Pick(NdArray<int, 1> const& indices) const;
  // Gathers one cell a row of `coords`; negative entries count from the end of their axis.
  MatrixObject<Cell, 1> PickAt(NdArray<int, 2> const& coords) const;

  // A copy of the cell at a flat index; a default cell where the store has none.
  Cell Get(std::uint64_t index) const;
  // Assigns to the cell in the shared store; nothing where the store has none.
  void Set(std::uint64_t index, Cell const& value);

  // A block of items shares its store with the clone; the cells of expressions are copied.
  MatrixObject Clone() const;
  // Copies of the cells in flat order, in a compact store.
  NdArray<Cell, N> CopyCells() const;
  // The text of an array, an item as "Var(name)", an expression with its own text.
  std::string ToString(std::uint64_t limit) const;

  // The results of read(cell) in flat order, in a compact array.
  template <class R, class Reader>
  NdArray<R, N> Read(Reader&& read) const {
    auto result = NdArray<R, N>::Fresh(cells_.GetShape());
    if (result.GetSize() == 0) return result;
    R* target = result.Store().Get();
    if (cells_.HasElements()) {
      cells_.ForEach([&](Cell& cell) { *target++ = read(cell); });
    } else {
      Cell cell = DefaultCell<Cell>();
      std::fill_n(target, result.GetSize(), read(cell));
    }
    return result;
  }

  // Calls change(cell) for each cell in flat order. A cell that the shape repeats is changed as often.
  template <class Change>
  void ForEach(Change&& change) {
    cells_.ForEach(change);
  }

  // Calls change(cell, elements...) with the elements at the same flat index. Sizes are not compared, see ForEachPair.
  template <class Change, class... Elements>
  void ForEachWith(Change&& change, NdArray<Elements, N> const&... arrays) {
    ForEachPair(change, cells_, arrays...);
  }

  // Operations in place on expressions: cell i takes what stands at flat index i of the other.
  template <class T>
  void AddConstants(NdArray<T, N> const& values) {
    ForEachWith([](Cell& cell, T value) { LinearPart(cell).AddConstant(static_cast<double>(value)); }, values);
  }
  template <class T>
  void SubConstants(NdArray<T, N> const& values) {
    ForEachWith([](Cell& cell, T value) { LinearPart(cell).AddConstant(static_cast<double>(Negated(value))); }, values);
  }
  template <class Other>
  void AddBlock(MatrixObject<Other, N> const& block, double c) {
    ForEachWith([c](Cell& cell, Other const& other) { AddCell(cell, other, c); }, block.Cells());
  }

  Status& GetStatus() { return cells_.GetStatus(); }
  Status const& GetStatus() const { return cells_.GetStatus(); }
  int GetLastError() const { return cells_.GetLastError(); }
  char const* GetErrorMessage() const { return cells_.GetErrorMessage(); }

 private:
  NdArray<Cell, N> cells_;
};

template <int N>
using MVar = MatrixObject<Var, N>;
template <int N>
using MConstr = MatrixObject<Constraint, N>;
template <int N>
using MQConstr = MatrixObject<QConstraint, N>;
template <int N>
using MPsdConstr = MatrixObject<PsdConstraint, N>;
template <int N>
using MLinExpr = MatrixObject<MExpression, N>;
template <int N>
using MQuadExpr = MatrixObject<MQExpression, N>;
template <int N>
using MPsdExpr = MatrixObject<PsdExpr, N>;

// The sum of all cells, as explicit terms.
template <class Cell, int N>
MatrixObject<typename CellTraits<Cell>::SumCell, 0> Sum(MatrixObject<Cell, N> const& block) {
  using SumCell = typename CellTraits<Cell>::SumCell;
  SumCell sum;
  if constexpr (kIsItem<Cell>) MakeRoomForMore(block.GetSize(), sum.expr.coeffs, sum.expr.vars);
  block.Cells().ForEach([&sum](Cell const& cell) { AddCell(sum, cell, 1.0); });
  return MatrixObject<SumCell, 0>(NdArray<SumCell, 0>(NDim<0>(), MakeShared<SumCell>(std::move(sum))));
}

#define VORQ_BLOCKS(Cell)                      \
  extern template class NdArray<Cell, 0>;      \
  extern template class NdArray<Cell, 1>;      \
  extern template class NdArray<Cell, 2>;      \
  extern template class NdArray<Cell, 3>;      \
  extern template class MatrixObject<Cell, 0>; \
  extern template class MatrixObject<Cell, 1>; \
  extern template class MatrixObject<Cell, 2>; \
  extern template class MatrixObject<Cell, 3>;

VORQ_BLOCKS(Var)
VORQ_BLOCKS(Constraint)
VORQ_BLOCKS(QConstraint)
VORQ_BLOCKS(PsdConstraint)
VORQ_BLOCKS(MExpression)
VORQ_BLOCKS(MQExpression)
VORQ_BLOCKS(PsdExpr)

#undef VORQ_BLOCKS

}  // namespace Vorq
