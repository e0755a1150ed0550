// How a relaxation gets into the interface that Clp and Cbc share: silent, stoppable, with its tolerances.
#pragma once

#include <OsiClpSolverInterface.hpp>
#include <span>

#include "solver/engines/clp_control.hpp"
#include "solver/engines/linear_model.hpp"

namespace vorqsolver {

class ParameterSet;

// Of `silent` and `watch` the solver keeps what outlives it only: the handler itself and a copy of the watch.
void Control(OsiClpSolverInterface& solver, SilentHandler& silent, IterationWatch const& watch);

// `isInteger` has one entry for each column of `linear`.
void LoadRelaxation(OsiClpSolverInterface& solver, LinearModel const& linear, std::span<char const> isInteger,
                    ParameterSet const& parameters);

// Whether an optimal point lies where only bounds of Clp's own can have put it: its dual method gives such to free
// columns, and at times calls an unbounded problem optimal there.
bool IsFarAway(ClpSimplex const& simplex);

}  // namespace vorqsolver
