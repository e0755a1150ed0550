// Our own branch and cut over Clp, for searches into which rows come while they run: lazy constraints and user cuts of
// the problem, and whatever a callback adds. Every integer point that it finds is shown to all rows and to the callback
// before it counts, and the relaxation that gave it is solved again with the rows that it violates; so lazy constraints
// hold on continuous columns too. It also serves problems with SOS, which Cbc's choice of branches cannot be trusted
// with beside integer columns, and those with integer columns that have no bounds, on which Cbc and Cgl go wrong.
#pragma once

#include <optional>
#include <vector>

#include "solver/engines/engine.hpp"
#include "solver/engines/mip_model.hpp"

namespace vorqsolver {

class BranchAndCutEngine : public Engine {
 public:
  std::string_view Name() const override { return "Vorq"; }
  std::string Version() const override;
  bool Supports(ProblemClass const& what) const override;
  SolveResult Solve(SolveTask const& task) const override;
};

// A limited search of a model that has the columns and sets of `mip`. The values of the problem's columns; none if
// nothing was found.
std::optional<std::vector<double>> SearchWithSets(LinearModel const& linear, MipModel const& mip, SolveTask const& task,
                                                  int nodeLimit);

}  // namespace vorqsolver
