// The dense products: a vector or a matrix times another, by the usual rule of inner sizes.
//
//     NdArray<double, 2> a;  MVar<1> x;               // of shapes (m, n) and (n)
//     MLinExpr<1> rows = MatMult(a, x);               // m cells, each with views of a row of `a` and of `x`
//
// What callers can build on: MatMult(left, right) exists for each group of product_groups.inc and its four pairs of
// ranks, and for arrays of variables with numbers of rank 1 and 2. Operands are the implementation objects, taken by
// reference and left as they are: NdArray<T, R>, MVar<R>, MLinExpr<R>, MQuadExpr<R>, MPsdExpr<R>, VarArray. The result
// comes by value, to be moved on: an NdArray of numbers or a block. A left vector is a row, a right vector a column,
// and the vector's axis is dropped, so that the rank of the result is that of the left plus that of the right less 2.
//
// Sizes that do not match give a result whose sizes are all 1, of one default cell, whose status tells why; the
// statuses of the operands play no part. (Moving keeps the text of a status as it is, copying does not.)
//
// Products of variables and of linear cells stay lazy: a cell holds views of a row and a column, and sees later changes
// of their elements. Numbers that are not double are converted first, once for the whole product.
#pragma once

#include <utility>

#include "items/item_arrays.hpp"
#include "matrix/dense_products_kinds.hpp"
#include "matrix/matrix_operand.hpp"
#include "matrix/nda_from_array.hpp"
#include "matrix/readable_cells.hpp"

namespace Vorq {

// The kernel: the cells of the product of two matrices whose inner sizes match, row behind row; no store for none.
// Instantiated in dense_products_*.cpp, once for each group.
template <class Left, class Right>
SharedPtr<ProductResult<Left, Right>> MultiplyMatrices(MatrixOperand<Left> const& left,
                                                       MatrixOperand<Right> const& right);

// The form of a product that failed. `axis` is that of the left operand.
template <class Cell, int N>
BlockOf<Cell, N> FailedProduct(int axis, std::uint64_t leftSize, std::uint64_t rightSize) {
  auto cells = NdArray<Cell, N>::OneElement(DefaultCell<Cell>());
  SetStatus(cells.GetStatus(), kInvalid, "Operand 1 has a mismatch at axis %d, size %zu != %zu", axis,
            static_cast<std::size_t>(leftSize), static_cast<std::size_t>(rightSize));
  return BlockOf<Cell, N>(std::move(cells));
}

template <class Left, class Right>
requires Multipliable<Left, Right>
auto MatMult(Left const& left, Right const& right) {
  constexpr int kRank = Left::kRank + Right::kRank - 2;
  constexpr int kInnerAxis = Left::kRank - 1;
  using Cell = ProductResult<OperandCell<Left>, OperandCell<Right>>;
  auto const leftCells = ReadableCells(left);
  auto const rightCells = ReadableCells(right);
  std::uint64_t const leftSize = leftCells.GetDim(kInnerAxis);
  std::uint64_t const rightSize = rightCells.GetDim(0);
  if (leftSize != rightSize) return FailedProduct<Cell, kRank>(kInnerAxis, leftSize, rightSize);
  typename NDim<kRank>::Sizes sizes{};
  if constexpr (Left::kRank == 2) sizes.front() = leftCells.GetDim(0);
  if constexpr (Right::kRank == 2) sizes.back() = rightCells.GetDim(1);
  return BlockOf<Cell, kRank>(
      NdArray<Cell, kRank>(NDim<kRank>(sizes), MultiplyMatrices(MatrixOperand<OperandCell<Left>>::Left(leftCells),
                                                                MatrixOperand<OperandCell<Right>>::Right(rightCells))));
}

// Numbers times an array of variables, and the other way round: the array is taken as a block.
template <class T, int N>
requires Multipliable<NdArray<T, N>, MVar<1>> MLinExpr<N - 1> MatMult(NdArray<T, N> const& left,
                                                                      VarArray const& right) {
  return MatMult(left, MVar<1>(NdaFromArray<Var>(right)));
}
template <class T, int N>
requires Multipliable<MVar<1>, NdArray<T, N>> MLinExpr<N - 1> MatMult(VarArray const& left,
                                                                      NdArray<T, N> const& right) {
  return MatMult(MVar<1>(NdaFromArray<Var>(left)), right);
}

// An array of variables times int numbers is not what it says, which is meant: the memory of the ints is read as the
// elements of the product with long long numbers for rank 1, and of that with double numbers for rank 2. Sizes and
// strides stay, counted in the wider elements, so that element i takes up ints 2 i and 2 i + 1. An element that does
// not lie wholly within the store is 0: with a compact array, those of the second half.
MLinExpr<0> MatMult(VarArray const& left, NdArray<int, 1> const& right);
MLinExpr<1> MatMult(VarArray const& left, NdArray<int, 2> const& right);

}  // namespace Vorq
