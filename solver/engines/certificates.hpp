// Certificates: points that show a linear problem feasible, rays that prove it infeasible or show it unbounded,
// verified before anybody relies on them.
#pragma once

#include <span>
#include <vector>

#include "solver/engines/linear_model.hpp"

namespace vorqsolver {

// A Farkas ray y, one value a row: over all columns within their bounds, y'Ax stays below what the row bounds ask for,
// so no point is feasible. y > 0 uses the lower side of a row, y < 0 the upper one. `ray` may have either sign and any
// scale; the result has the greatest entry 1 in magnitude, and is empty where `ray` proves nothing.
std::vector<double> VerifiedFarkasRay(LinearModel const& model, std::span<double const> ray);

// A primal ray d, one value a column: along it all rows and bounds of the model keep holding and the objective improves
// for ever. Scaled likewise; empty where `ray` is none.
std::vector<double> VerifiedPrimalRay(LinearModel const& model, std::span<double const> ray);

// Whether the point, one value a column, keeps all bounds and rows; by how much it may miss a row is measured beside
// the row's greatest term.
bool HoldsIn(LinearModel const& model, std::span<double const> point, double tolerance);

}  // namespace vorqsolver
