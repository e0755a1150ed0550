// The larger operations of blocks, for the files that instantiate them.
#pragma once

#include "matrix/matrix_object.hpp"
#include "ndarray/nd_array_operations.hpp"
#include "ndarray/printer.hpp"

namespace Vorq {

// Puts a default item into each cell that holds none.
template <class Cell, int M>
void GiveItems(NdArray<Cell, M>& cells) {
  cells.ForEach([](Cell& cell) {
    if (!cell.HasRecord()) cell = DefaultCell<Cell>();
  });
}

// What an operation made of cells of `source`: where that is an array of its own, some of its cells may stand for none
// of the source, and hold no item.
template <class Cell, int M>
NdArray<Cell, M> WithItems(NdArray<Cell, M> cells, SharedPtr<Cell> const& source) {
  if constexpr (kIsItem<Cell>) {
    if (cells.Store() != source) GiveItems(cells);
  }
  return cells;
}

// The array's own default elements hold no item; those of a block can be used like any others.
template <class Cell, int N>
MatrixObject<Cell, N>::MatrixObject(NdArray<Cell, N> cells) : cells_(std::move(cells)) {
  if (cells_.GetSize() == 0) return;
  if (!cells_.HasElements()) {
    auto filled = NdArray<Cell, N>::Filled(cells_.GetShape(), DefaultCell<Cell>());
    filled.GetStatus() = std::move(cells_.GetStatus());
    cells_ = std::move(filled);
  } else if constexpr (kIsItem<Cell>) {
    if (cells_.Find(0)->HasRecord()) return;
    GiveItems(cells_);
  }
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::Failed(char const* text) {
  MatrixObject result(NdArray<Cell, N>::OneElement(DefaultCell<Cell>()));
  SetStatus(result.GetStatus(), kInvalid, "%s", text);
  return result;
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::WithoutCells(NDim<N> const& shape) {
  MatrixObject result;
  result.cells_ = NdArray<Cell, N>(shape.Clone(), {});
  return result;
}

template <class Cell, int N>
MatrixObject<Cell, 1> MatrixObject<Cell, N>::Reshape(NDim<1> const& shape) const {
  return MatrixObject<Cell, 1>(WithItems(cells_.Reshape(shape), cells_.Store()));
}

template <class Cell, int N>
MatrixObject<Cell, 2> MatrixObject<Cell, N>::Reshape(NDim<2> const& shape) const {
  return MatrixObject<Cell, 2>(WithItems(cells_.Reshape(shape), cells_.Store()));
}

template <class Cell, int N>
MatrixObject<Cell, 3> MatrixObject<Cell, N>::Reshape(NDim<3> const& shape) const {
  return MatrixObject<Cell, 3>(WithItems(cells_.Reshape(shape), cells_.Store()));
}

template <class Cell, int N>
MatrixObject<Cell, 1> MatrixObject<Cell, N>::Flatten() const {
  return MatrixObject<Cell, 1>(cells_.Flatten());
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::Repeat(std::uint64_t count, int axis) const {
  return MatrixObject(cells_.Repeat(count, axis));
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::RepeatBlock(std::uint64_t count, int axis) const {
  return MatrixObject(cells_.RepeatBlock(count, axis));
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::Transpose() const {
  return MatrixObject(cells_.Transpose());
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::View(Vorq::View const& view) const {
  return MatrixObject(WithItems(cells_.View(view), cells_.Store()));
}

template <class Cell, int N>
MatrixObject<Cell, 1> MatrixObject<Cell, N>::Pick(NdArray<int, 1> const& indices) const {
  return MatrixObject<Cell, 1>(WithItems(cells_.Pick(indices), cells_.Store()));
}

template <class Cell, int N>
MatrixObject<Cell, 1> MatrixObject<Cell, N>::PickAt(NdArray<int, 2> const& coords) const {
  return MatrixObject<Cell, 1>(WithItems(cells_.PickAtScalars(coords), cells_.Store()));
}

template <class Cell, int N>
Cell MatrixObject<Cell, N>::Get(std::uint64_t index) const {
  Cell const* cell = cells_.Find(index);
  return cell == nullptr ? DefaultCell<Cell>() : *cell;
}

template <class Cell, int N>
void MatrixObject<Cell, N>::Set(std::uint64_t index, Cell const& value) {
  Cell* cell = cells_.Find(index);
  if (cell != nullptr && cell != &value) *cell = value;
}

template <class Cell, int N>
MatrixObject<Cell, N> MatrixObject<Cell, N>::Clone() const {
  if constexpr (kIsItem<Cell>) {
    return *this;
  } else {
    MatrixObject clone(CopyCells());
    clone.GetStatus() = GetStatus();
    return clone;
  }
}

template <class Cell, int N>
NdArray<Cell, N> MatrixObject<Cell, N>::CopyCells() const {
  SharedArrayBuilder<Cell> copies(cells_.GetShape().StoreSize());
  cells_.ForEach([&copies](Cell const& cell) { copies.Emplace(cell); });
  return NdArray<Cell, N>(cells_.GetShape().Clone(), copies.Finish());
}

template <class Cell, int N>
std::string MatrixObject<Cell, N>::ToString(std::uint64_t limit) const {
  return PrintArray(cells_, limit, [](std::ostream& out, Cell const& cell) { WriteCell(out, cell); });
}

// Instantiates the arrays and the blocks of a cell.
#define VORQ_INSTANTIATE_BLOCKS(Cell)   \
  template class NdArray<Cell, 0>;      \
  template class NdArray<Cell, 1>;      \
  template class NdArray<Cell, 2>;      \
  template class NdArray<Cell, 3>;      \
  template class MatrixObject<Cell, 0>; \
  template class MatrixObject<Cell, 1>; \
  template class MatrixObject<Cell, 2>; \
  template class MatrixObject<Cell, 3>;

}  // namespace Vorq
