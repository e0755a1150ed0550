// Whether the data of a problem are what the C functions could have made.
#pragma once

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// Throws Failure(VORQ_INVALID) that names the first item with an index out of range, a list of the wrong length, an
// unknown type or sense, or a number that cannot stand there.
void CheckConsistent(ProblemData const& data);

}  // namespace vorqsolver
