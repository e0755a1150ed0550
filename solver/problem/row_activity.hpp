// What a point makes of the linear rows.
#pragma once

#include <span>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

double RowActivity(Rows const& rows, int row, std::span<double const> values);

// The distance of the activity to the upper side of the row, or to the lower one where that is the only side; infinite
// for a free row.
double RowSlack(Rows const& rows, int row, std::span<double const> values);

}  // namespace vorqsolver
