// MatrixOperand: a factor of a product, all of whose cells can be read, as rows and columns over a store: what a kernel
// takes for both ranks, so that it exists once for each kind of cell.
#pragma once

#include <cstdint>
#include <utility>

#include "matrix/strided_vector.hpp"
#include "ndarray/nd_array.hpp"

namespace Vorq {

template <class Cell>
class MatrixOperand {
 public:
  // A vector is a single row on the left of a product, and a single column on the right.
  static MatrixOperand Left(NdArray<Cell, 1> const& cells) { return {cells, kSingle, cells.GetShape().GetAxes()[0]}; }
  static MatrixOperand Right(NdArray<Cell, 1> const& cells) { return {cells, cells.GetShape().GetAxes()[0], kSingle}; }
  static MatrixOperand Left(NdArray<Cell, 2> const& cells) {
    return {cells, cells.GetShape().GetAxes()[0], cells.GetShape().GetAxes()[1]};
  }
  static MatrixOperand Right(NdArray<Cell, 2> const& cells) { return Left(cells); }

  std::uint64_t RowCount() const { return rows_.size; }
  std::uint64_t ColumnCount() const { return columns_.size; }

  // Views, no cell is copied.
  StridedVector<Cell> Row(std::uint64_t i) const { return {store_, Position(i, 0), columns_.stride, columns_.size}; }
  StridedVector<Cell> Column(std::uint64_t j) const { return {store_, Position(0, j), rows_.stride, rows_.size}; }

  // Rows and columns exchanged.
  MatrixOperand Transposed() const {
    MatrixOperand transposed = *this;
    std::swap(transposed.rows_, transposed.columns_);
    return transposed;
  }

  // The cell of a row and a column, null for a matrix without any, and the steps to the next row and to the next
  // column.
  Cell const* Find(std::uint64_t i, std::uint64_t j) const { return store_ ? store_.Get() + Position(i, j) : nullptr; }
  std::int64_t RowStride() const { return rows_.stride; }
  std::int64_t ColumnStride() const { return columns_.stride; }

  // The same matrix over cells of another kind that lie compactly in `store`, row behind row.
  template <class Other>
  MatrixOperand<Other> Over(SharedPtr<Other> store) const {
    return {std::move(store), Axis{rows_.size, static_cast<std::int64_t>(columns_.size), 0}, Axis{columns_.size, 1, 0}};
  }

 private:
  template <class Other>
  friend class MatrixOperand;

  static constexpr Axis kSingle{1, 0, 0};

  template <int N>
  MatrixOperand(NdArray<Cell, N> const& cells, Axis const& rows, Axis const& columns)
      : store_(cells.Store()), start_(cells.GetShape().Start()), rows_(rows), columns_(columns) {}
  MatrixOperand(SharedPtr<Cell> store, Axis const& rows, Axis const& columns)
      : store_(std::move(store)), rows_(rows), columns_(columns) {}

  std::int64_t Position(std::uint64_t i, std::uint64_t j) const {
    return AddWrapped(start_, AddWrapped(MultiplyWrapped(static_cast<std::int64_t>(i), rows_.stride),
                                         MultiplyWrapped(static_cast<std::int64_t>(j), columns_.stride)));
  }

  SharedPtr<Cell> store_;
  std::int64_t start_ = 0;
  Axis rows_;
  Axis columns_;
};

}  // namespace Vorq
