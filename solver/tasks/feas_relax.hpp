// Feasibility relaxation: the least violation, by given penalties, with which the rest of a problem can be satisfied.
#pragma once

#include "solver/problem/problem.hpp"

namespace vorqsolver {

// Solves the relaxation and leaves its point in `problem.result.relaxed`, its status as that of the problem's kind; the
// former results go. Throws Failure where a penalty is negative or no number, and where no engine solves the
// relaxation.
void RelaxFeasibility(Problem& problem, RelaxPenalties penalties);

// The relaxation as a problem of its own: the columns of the problem, then one for each violation, "low_" and "upp_"
// before the name of a row or of the row that stands for a column's bound.
ProblemData RelaxationProblem(ProblemData const& data, RelaxPenalties const& penalties, RelaxMode mode);

}  // namespace vorqsolver
