// A limited search by Cbc for a good solution of a linear model with integer columns and sets: to complete a partial
// solution, or as a heuristic.
#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "solver/engines/engine.hpp"
#include "solver/engines/mip_model.hpp"

namespace vorqsolver {

struct SubSearchLimits {
  int nodes = 0;                                            // negative for no limit
  double cutoff = std::numeric_limits<double>::infinity();  // only what is below it is of use
  double seconds = std::numeric_limits<double>::infinity();
};

// `linear` has the columns of `mip`, whose integer columns and sets hold. The values of the problem's columns and maybe
// more; none if nothing was found.
std::optional<std::vector<double>> SearchModel(LinearModel const& linear, MipModel const& mip, SolveTask const& task,
                                               SubSearchLimits const& limits);

}  // namespace vorqsolver
