// Products of columns, checked.
#pragma once

#include <span>
#include <vector>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// Each term is its value times the column `row` times the column `col`, as stated.
std::vector<QuadTerm> QuadTerms(std::span<int const> rows, std::span<int const> cols, std::span<double const> values,
                                int colCount);

}  // namespace vorqsolver
