// The exported products with sparse matrices.
#include "matrix/sparse_products.hpp"

#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "vorqmodel/exports.h"

namespace {

using Vorq::SparseMatrix;
using Vorq::SparseOrder;

// Factors are handles on blocks and sparse matrices.
SparseMatrix const& Factor(SparseMatrix const& matrix) {
  return matrix;
}
template <class Interface>
auto const& Factor(Interface* block) {
  return Vorq::Unwrap(block);
}

template <class... Factors>
auto* Multiply(Factors const&... factors) {
  return Vorq::WrapBlock(Vorq::MatMult(Factor(factors)...));
}

}  // namespace

// The arguments that describe a matrix. The counts nIdx and nVal are not needed: the starts tell where it ends.
#define VORQ_SPARSE int dim, int const *beg, int nBeg, int const *idx, int /*nIdx*/, double const *val, int /*nVal*/
#define VORQ_MATRIX(Form)                          \
  SparseMatrix {                                   \
    SparseOrder::k##Form, dim, beg, nBeg, idx, val \
  }

// Both products of a block of one rank with a matrix of one form. The interface of a kind is IKind.
#define VORQ_PRODUCTS(Form, Order, Kind, Result, N)                              \
  Vorq::I##Result<N>* Kind##N##MatMult##Form(Vorq::I##Kind<N>* x, VORQ_SPARSE) { \
    return Multiply(x, VORQ_MATRIX(Order));                                      \
  }                                                                              \
  Vorq::I##Result<N>* Form##MatMult##Kind##N(VORQ_SPARSE, Vorq::I##Kind<N>* x) { \
    return Multiply(VORQ_MATRIX(Order), x);                                      \
  }
#define VORQ_PRODUCTS_OF_KIND(Kind, Result)    \
  VORQ_PRODUCTS(Csc, Columns, Kind, Result, 1) \
  VORQ_PRODUCTS(Csc, Columns, Kind, Result, 2) \
  VORQ_PRODUCTS(Csr, Rows, Kind, Result, 1)    \
  VORQ_PRODUCTS(Csr, Rows, Kind, Result, 2)

extern "C" {

VORQ_PRODUCTS_OF_KIND(MVar, MLinExpr)
VORQ_PRODUCTS_OF_KIND(MLinExpr, MLinExpr)
VORQ_PRODUCTS_OF_KIND(MQuadExpr, MQuadExpr)

Vorq::IMQuadExpr<0>* MVar1MatMultCscMVar1(Vorq::IMVar<1>* x, VORQ_SPARSE, Vorq::IMVar<1>* y) {
  return Multiply(x, VORQ_MATRIX(Columns), y);
}
Vorq::IMQuadExpr<0>* MVar1MatMultCsrMVar1(Vorq::IMVar<1>* x, VORQ_SPARSE, Vorq::IMVar<1>* y) {
  return Multiply(x, VORQ_MATRIX(Rows), y);
}

}  // extern "C"

#undef VORQ_PRODUCTS_OF_KIND
#undef VORQ_PRODUCTS
#undef VORQ_MATRIX
#undef VORQ_SPARSE
