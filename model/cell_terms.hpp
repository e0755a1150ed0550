// Cells of blocks as index lists: the terms of a linear or quadratic cell, its lazy products included, written straight
// to the ends of lists as the solver library takes them. Nothing is expanded, and the cell is only read.
//
//     EnsureDense(Count<Var>());
//     std::size_t const count = CollectTerms(cell, denseIdx_, indices, coefficients);
#pragma once

#include <cstddef>
#include <vector>

#include "matrix/m_expression.hpp"
#include "matrix/m_q_expression.hpp"

namespace Vorq {

// Appends the terms of a cell, the explicit ones first, and returns the number of entries that it appended.
//
// Terms of coefficient zero and of variables that are not live are passed over. A variable that comes again is added to
// its entry, which keeps its place; a sum of zero stays an entry. Constants are not looked at.
//
// `marks` has one entry for each column, all of them zero before and after, also when memory runs out in between. It is
// made longer for a variable beyond its end, which belongs to another model: the solver library judges such an index.
//
// `sparseColumns` are the columns of the vector of variables that the cell's sparse terms refer to, where they are
// known already.
std::size_t CollectTerms(MExpression const& cell, std::vector<int>& marks, std::vector<int>& indices,
                         std::vector<double>& coefficients, int const* sparseColumns = nullptr);

// The same with an expression's terms alone.
std::size_t CollectTerms(Expr const& expr, std::vector<int>& marks, std::vector<int>& indices,
                         std::vector<double>& coefficients);

// Appends the quadratic terms of a cell, the explicit ones first, and returns the number of entries. Nothing is merged,
// and indices are taken as they stand: the solver library judges those of variables that are not live. The linear and
// the constant part, also those that a lazy product has, are not looked at.
std::size_t CollectQuadTerms(MQExpression const& cell, std::vector<int>& rows, std::vector<int>& cols,
                             std::vector<double>& values);

}  // namespace Vorq
