// Irreducible infeasible sets: what ComputeIIS finds, and the problem that a set states.
#pragma once

#include "solver/problem/problem.hpp"

namespace vorqsolver {

// Leaves a small infeasible set of bounds and constraints in `problem.result.iis`; other results stay. Proved to be
// irreducible, but where the limits of the problem or an interruption end the proof early. Throws Failure where the
// problem is feasible, where no infeasibility was proved in time, and where no engine solves problems of this kind.
void ComputeIis(Problem& problem);

// The problem that the members of the set state, and nothing else. Types of columns and lazy constraints belong to it.
ProblemData IisProblem(ProblemData const& data, Iis const& iis);

}  // namespace vorqsolver
