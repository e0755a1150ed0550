// The log of a solve: what is said ahead of it and after it.
#pragma once

#include "solver/engines/engine.hpp"
#include "solver/problem/problem.hpp"

namespace vorqsolver {

// The words for a status, such as "optimal".
char const* StatusText(SolveStatus status);

// The version, what is done to the problem, such as "Computing an IIS of", and its size.
void LogTitle(Problem& problem, char const* what);

void LogHeader(Problem& problem, bool relaxed);
void LogEngine(Problem& problem, Engine const& engine, ProblemClass const& what);

// Status, objective, bound, gap, violations, nodes, time.
void LogSummary(Problem& problem);

}  // namespace vorqsolver
