// A PSD variable as a matrix of expressions: entry (i, j) is the expression whose value is that entry. Only the entries
// that are asked for are made.
//
//     MPsdExpr<2> entries = ToMPsdExpr(X);
//     MPsdExpr<1> above = Diagonal(X, 1);            // (0, 1), (1, 2), ...
//     PsdExpr total = Sum(X);
//
// A failure is recorded in the status of the variable and in that of the result, which is then of one cell.
#pragma once

#include "items/psd_expr.hpp"
#include "matrix/matrix_object.hpp"
#include "ndarray/view.hpp"

namespace Vorq {

MPsdExpr<2> ToMPsdExpr(PsdVar const& var);

// One term for each entry of the upper triangle: the terms off the diagonal count for both halves.
PsdExpr Sum(PsdVar const& var);

MPsdExpr<1> Diagonal(PsdVar& var, int offset);

MPsdExpr<2> Pick(PsdVar& var, View const& view);
// Positions in row-major order.
MPsdExpr<1> Pick(PsdVar& var, NdArray<int, 1> const& positions);
// One entry a row of `coords`; negative coordinates count from the end. Rows of more than two coordinates stand for the
// first entry, and a row of one for the first of its row.
MPsdExpr<1> PickAt(PsdVar& var, NdArray<int, 2> const& coords);

}  // namespace Vorq
