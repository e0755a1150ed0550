// Models that settle what the outcome of an LP solve leaves open. Each is feasible and bounded as it stands, so that an
// engine has nothing to be wrong about.
#pragma once

#include "solver/engines/linear_model.hpp"

namespace vorqsolver {

// Does a point exist? The least sum of what the rows are missed by: columns for that stand behind those of the model,
// and the basis to start from is feasible. Where the sum is 0, the point answers; elsewhere the duals are a Farkas ray.
void LoadElastic(LinearModel const& model, ClpSimplex& simplex);

// Does the objective improve for ever? The best direction of steps at most 1 along which rows and bounds keep holding.
void LoadDirections(LinearModel const& model, ClpSimplex& simplex);

}  // namespace vorqsolver
