// Bounds of columns that follow from the linear rows: where a column has none of its own, an implied one still tells
// how far a row can be from holding.
#pragma once

#include <vector>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// Tightens `lower` and `upper`, one entry for each column, by what the rows allow, in a few rounds over all rows. Every
// point within the given bounds that satisfies the rows lies within the tightened ones.
void TightenByRows(Rows const& rows, std::vector<double>& lower, std::vector<double>& upper);

}  // namespace vorqsolver
