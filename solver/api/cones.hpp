// Cones over columns, checked.
#pragma once

#include <span>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// Columns of one cone are distinct; a quadratic cone has one at least, a rotated cone two.
Cone MakeCone(int type, std::span<int const> cols, int colCount);
ExpCone MakeExpCone(int type, std::span<int const, 3> cols, int colCount);

}  // namespace vorqsolver
