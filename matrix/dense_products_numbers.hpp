// Products of matrices of numbers.
//
// Each element is the sum of its products from 0 in ascending order, in the type of the result, so that the result does
// not depend on how the work is cut: a tile of the right matrix is packed, and all rows of the left one pass over it.
#pragma once

#include <algorithm>
#include <type_traits>
#include <vector>

#include "matrix/matrix_operand.hpp"

namespace Vorq {

// Whole numbers wrap around.
template <class T>
using Wrapping = typename std::conditional_t<std::is_integral_v<T>, std::make_unsigned<T>, std::type_identity<T>>::type;

// Rows and columns of a tile: it stays in the cache while the rows of the left matrix pass.
inline constexpr std::uint64_t kTileRows = 64;
inline constexpr std::uint64_t kTileColumns = 256;

template <class Out, class T>
Wrapping<Out> ToWrapping(T number) {
  return static_cast<Wrapping<Out>>(static_cast<Out>(number));
}

// A tile, row behind row.
template <class Out, class Right>
void PackTile(MatrixOperand<Right> const& right, std::uint64_t row, std::uint64_t rows, std::uint64_t column,
              std::uint64_t columns, Wrapping<Out>* packed) {
  for (std::uint64_t i = row; i < row + rows; ++i) {
    Right const* number = right.Find(i, column);
    for (std::uint64_t j = 0; j < columns; ++j, number += right.ColumnStride()) *packed++ = ToWrapping<Out>(*number);
  }
}

// Adds the product of a row of the left matrix and a tile to a part of a row of the result.
template <class Out>
void AddRow(Out* out, std::uint64_t columns, Wrapping<Out> factor, Wrapping<Out> const* tileRow) {
  for (std::uint64_t j = 0; j < columns; ++j) out[j] = static_cast<Out>(ToWrapping<Out>(out[j]) + factor * tileRow[j]);
}

template <class Out, class Left, class Right>
SharedPtr<Out> MultiplyNumbers(MatrixOperand<Left> const& left, MatrixOperand<Right> const& right) {
  // A single column is a single row of the transposed product, whose elements are the same.
  if (right.ColumnCount() == 1 && left.RowCount() > 1) {
    return MultiplyNumbers<Out>(right.Transposed(), left.Transposed());
  }
  std::uint64_t const rows = left.RowCount();
  std::uint64_t const columns = right.ColumnCount();
  std::uint64_t const size = NDim<2>({rows, columns}).StoreSize();
  SharedPtr<Out> result = MakeSharedArray<Out>(size);
  std::fill_n(result.Get(), size, Out());
  std::vector<Wrapping<Out>> tile(std::min(right.RowCount(), kTileRows) * std::min(columns, kTileColumns));
  for (std::uint64_t column = 0; column < columns; column += kTileColumns) {
    std::uint64_t const tileColumns = std::min(columns - column, kTileColumns);
    for (std::uint64_t row = 0; row < right.RowCount(); row += kTileRows) {
      std::uint64_t const tileRows = std::min(right.RowCount() - row, kTileRows);
      PackTile<Out>(right, row, tileRows, column, tileColumns, tile.data());
      for (std::uint64_t i = 0; i < rows; ++i) {
        Left const* factor = left.Find(i, row);
        Out* const out = result.Get() + i * columns + column;
        for (std::uint64_t k = 0; k < tileRows; ++k, factor += left.ColumnStride()) {
          AddRow(out, tileColumns, ToWrapping<Out>(*factor), tile.data() + k * tileColumns);
        }
      }
    }
  }
  return result;
}

}  // namespace Vorq
