// The same problem with its columns and rows in another order: a fair second look at an engine's luck.
#pragma once

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// Fit for problems without quadratic and conic parts. Names are left out. The same seed gives the same order.
ProblemData Permuted(ProblemData const& data, unsigned seed);

}  // namespace vorqsolver
