// Blocks and arrays made from a shape and what fills them.
//
//     MakeBlock<MExpression>(NDim<2>({2, 2}), 1.5);         // four cells of constant 1.5
//     MakeBlock<Var>(NDim<1>({3}), vars);                   // one cell an element
//     MakeArray(NDim<1>({3}), data, 2);                     // data[0], data[1], 0
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

#include "matrix/matrix_object.hpp"
#include "matrix/nda_from_array.hpp"
#include "ndarray/nd_array_numbers.hpp"

namespace Vorq {

// Every cell a copy of one made from `source`: an item, a cell, an expression or a constant.
template <class Cell, class Source, int N>
MatrixObject<Cell, N> MakeBlock(NDim<N> const& shape, Source const& source) {
  if constexpr (std::is_same_v<Source, Cell>) {
    return MatrixObject<Cell, N>(shape, source);
  } else if constexpr (std::is_same_v<Cell, PsdExpr> && std::is_same_v<Source, MExpression>) {
    return MatrixObject<Cell, N>(shape, PsdExprOf(source));
  } else {
    return MatrixObject<Cell, N>(shape, Cell(source));
  }
}

// Cell i is a copy of item i. Items that `shape` has and the array has not stand for nothing.
template <class Cell, int N>
MatrixObject<Cell, N> MakeBlock(NDim<N> const& shape, std::vector<Cell> const& items) {
  if (items.size() == shape.GetSize()) {
    return MatrixObject<Cell, N>(NdArray<Cell, N>(shape.Clone(), NdaFromArray<Cell>(items).Store()));
  }
  return MatrixObject<Cell, N>(NdArray<Cell, N>::Generated(
      shape, [&items](std::uint64_t i) { return i < items.size() ? items[i] : DefaultCell<Cell>(); }));
}

// The first `size` elements of `data`, then 0. Rank 0 takes one element, whatever `size` is.
template <class T, int N>
NdArray<T, N> MakeArray(NDim<N> const& shape, T const* data, std::uint64_t size) {
  auto array = NdArray<T, N>::Fresh(shape);
  std::uint64_t const given = data == nullptr ? 0 : N == 0 ? 1 : std::min(size, array.GetSize());
  T* const end = std::copy_n(data, given, array.Store().Get());
  std::fill_n(end, array.GetSize() - given, T());
  return array;
}

template <class T, int N>
NdArray<T, N> MakeArray(NDim<N> const& shape, T value) {
  return NdArray<T, N>::Filled(shape, value);
}

// fill(i) for each flat index; zeros where there is no function.
template <class T, int N>
NdArray<T, N> MakeArray(NDim<N> const& shape, T (*fill)(std::uint64_t)) {
  if (fill == nullptr) return NdArray<T, N>::Filled(shape, T());
  return NdArray<T, N>::Generated(shape, fill);
}

}  // namespace Vorq
