// The kernels of the dense products, for the files that instantiate them.
#pragma once

#include "matrix/dense_products.hpp"
#include "matrix/dense_products_cells.hpp"
#include "matrix/dense_products_numbers.hpp"

namespace Vorq {

// The numbers as double, compact.
template <Number T>
MatrixOperand<double> Converted(MatrixOperand<T> const& numbers) {
  std::uint64_t const columns = numbers.ColumnCount();
  SharedPtr<double> store = MakeSharedArray<double>(NDim<2>({numbers.RowCount(), columns}).StoreSize());
  double* converted = store.Get();
  for (std::uint64_t i = 0; i < numbers.RowCount() && columns > 0; ++i) {
    T const* number = numbers.Find(i, 0);
    for (std::uint64_t j = 0; j < columns; ++j, number += numbers.ColumnStride()) {
      *converted++ = static_cast<double>(*number);
    }
  }
  return numbers.Over(std::move(store));
}

// Cells that keep views, or that take the terms of a row and a column.
template <class Left, class Right>
SharedPtr<ProductResult<Left, Right>> MultiplyCells(MatrixOperand<Left> const& left,
                                                    MatrixOperand<Right> const& right) {
  std::uint64_t const rows = left.RowCount();
  std::uint64_t const columns = right.ColumnCount();
  auto const inner = static_cast<std::int64_t>(right.RowCount());
  SharedArrayBuilder<ProductResult<Left, Right>> cells(NDim<2>({rows, columns}).StoreSize());
  for (std::uint64_t i = 0; i < rows; ++i) {
    for (std::uint64_t j = 0; j < columns; ++j) {
      if constexpr (kIsLazyProduct<Left, Right>) {
        EmplaceProduct(cells, left.Row(i), right.Column(j));
      } else {
        Stepping<Left> const row{left.Find(i, 0), left.ColumnStride()};
        Stepping<Right> const column{right.Find(0, j), right.RowStride()};
        if constexpr (Number<Left>) {
          AddProduct(cells.Emplace(), column, row, inner);
        } else {
          AddProduct(cells.Emplace(), row, column, inner);
        }
      }
    }
  }
  return cells.Finish();
}

template <class Left, class Right>
SharedPtr<ProductResult<Left, Right>> MultiplyMatrices(MatrixOperand<Left> const& left,
                                                       MatrixOperand<Right> const& right) {
  if constexpr (Number<Left> && Number<Right>) {
    return MultiplyNumbers<ProductResult<Left, Right>>(left, right);
  } else if constexpr (Number<Left> && !std::is_same_v<Left, double> && std::is_same_v<Right, Var>) {
    return MultiplyCells(Converted(left), right);
  } else if constexpr (std::is_same_v<Left, Var> && Number<Right> && !std::is_same_v<Right, double>) {
    return MultiplyCells(left, Converted(right));
  } else {
    return MultiplyCells(left, right);
  }
}

}  // namespace Vorq
