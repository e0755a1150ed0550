// Solving a problem: check of the data, choice of the engine, the solve, check of the solution, log.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "solver/engines/engine.hpp"
#include "solver/problem/problem.hpp"

namespace vorqsolver {

// All engines, in the order in which they are asked.
std::span<std::unique_ptr<Engine const> const> Engines();

// Solves the problem, or with `relaxed` its LP relaxation, and leaves the outcome in `problem.result`. Throws Failure
// where the data is unfit or no engine solves problems of this kind, and CallbackException with what the caller's
// callback threw; the former result is gone then too.
void SolveProblem(Problem& problem, bool relaxed);

}  // namespace vorqsolver
