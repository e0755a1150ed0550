// Certificates: rays that prove a linear problem infeasible or show it unbounded, verified before anybody sees them.
#pragma once

#include <span>
#include <vector>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// A Farkas ray y, one value a row: over all columns within their bounds, y'Ax stays below what the row bounds ask for,
// so no point is feasible. y > 0 uses the lower side of a row, y < 0 the upper one. `ray` may have either sign and any
// scale; the result has the greatest entry 1 in magnitude, and is empty where `ray` proves nothing.
std::vector<double> VerifiedFarkasRay(ProblemData const& data, std::span<double const> ray);

// A primal ray d, one value a column: along it all rows and bounds of the relaxation keep holding and the objective
// improves for ever. Scaled likewise; empty where `ray` is none.
std::vector<double> VerifiedPrimalRay(ProblemData const& data, std::span<double const> ray);

}  // namespace vorqsolver
