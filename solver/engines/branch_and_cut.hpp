// Our own branch and cut over Clp, for searches into which rows come while they run: lazy constraints and user cuts of
// the problem, and whatever a callback adds. Every integer point that it finds is shown to all rows and to the callback
// before it counts, and the relaxation that gave it is solved again with the rows that it violates; so lazy constraints
// hold on continuous columns too.
#pragma once

#include "solver/engines/engine.hpp"

namespace vorqsolver {

class BranchAndCutEngine : public Engine {
 public:
  std::string_view Name() const override { return "Vorq"; }
  std::string Version() const override;
  bool Supports(ProblemClass const& what) const override;
  SolveResult Solve(SolveTask const& task) const override;
};

}  // namespace vorqsolver
