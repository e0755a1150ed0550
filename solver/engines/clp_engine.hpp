// The LP engine: Clp's simplex methods, and its barrier on request.
#pragma once

#include "solver/engines/engine.hpp"
#include "solver/engines/linear_model.hpp"

namespace vorqsolver {

class ClpEngine : public Engine {
 public:
  std::string_view Name() const override { return "Clp"; }
  std::string Version() const override;
  bool Supports(ProblemClass const& what) const override;
  SolveResult Solve(SolveTask const& task) const override;
};

// Solves a linear model that stems from the problem of `task`, possibly with more rows, columns or tighter bounds than
// the problem has. The result is about the problem's own rows and columns.
SolveResult SolveLinearModel(LinearModel const& model, SolveTask const& task);

// What is proved of the relaxation of the task's problem, quietly.
SolveStatus ProvedStatus(LinearModel const& relaxation, SolveTask const& task);

// As SolveLinearModel where there is not a single coefficient: each column goes to its best bound.
SolveResult SolveWithoutElements(LinearModel const& model, SolveTask const& task);

}  // namespace vorqsolver
