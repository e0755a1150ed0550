// The products with a sparse matrix that is given in compressed columns or rows.
//
//     SparseMatrix a{SparseOrder::kColumns, rows, beg, columns + 1, idx, val};
//     MLinExpr<1> activities = MatMult(a, x);          // x of shape (columns)
//     MLinExpr<1> reducedCosts = MatMult(y, a);        // y of shape (rows)
//     MQuadExpr<0> form = MatMult(y, a, x);
//
// A left vector is a row, a right vector a column. All cells of the result are explicit: one term or cell of the
// operand for each entry, in the order of the entries; also where the entry is 0. Duplicates stay. The terms of a
// product with variables stand together once, and its cells share them (sparse_terms.hpp).
//
// Sizes that do not match give a result whose sizes are all 1, of one default cell, whose status tells why. So does an
// entry whose index lies outside the matrix, and an array that is missing.
#pragma once

#include "matrix/dense_products_kinds.hpp"

namespace Vorq {

enum class SparseOrder { kColumns, kRows };

// Entry k of major vector j, a column or a row, has its place idx[k] and its value val[k], for k from beg[j] up to
// beg[j + 1]. The arrays are the caller's. There is no major vector for nBeg = 0 or 1, and arrays that nothing is read
// from may be null.
struct SparseMatrix {
  SparseOrder order;
  int dim;  // the length of the major vectors
  int const* beg;
  int nBeg;
  int const* idx;
  double const* val;

  // One less than the starts; the least number wraps nowhere.
  int MajorCount() const { return static_cast<int>(std::int64_t{nBeg} - 1); }
  // The size of a side as failures tell it.
  int RowCount() const { return order == SparseOrder::kColumns ? dim : MajorCount(); }
  int ColumnCount() const { return order == SparseOrder::kColumns ? MajorCount() : dim; }
};

// For blocks of variables, linear and quadratic expressions of rank 1 and 2.
template <class Cell, int N>
MatrixObject<ProductResult<double, Cell>, N> MatMult(MatrixObject<Cell, N> const& x, SparseMatrix const& a);
template <class Cell, int N>
MatrixObject<ProductResult<double, Cell>, N> MatMult(SparseMatrix const& a, MatrixObject<Cell, N> const& x);

// x times `a` times y: a product of two variables for each entry.
MQuadExpr<0> MatMult(MVar<1> const& x, SparseMatrix const& a, MVar<1> const& y);

}  // namespace Vorq
