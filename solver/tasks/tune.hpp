// Tuning: tries sets of parameters on a problem and keeps those that serve it better than the ones it has.
#pragma once

#include "solver/problem/problem.hpp"

namespace vorqsolver {

// Leaves the better sets in `problem.tuning`. Everything else of the problem, parameters and results included, stays.
void Tune(Problem& problem);

}  // namespace vorqsolver
