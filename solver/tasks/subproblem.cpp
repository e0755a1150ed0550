// The way of a subproblem to its result.
#include "solver/tasks/subproblem.hpp"

#include "solver/problem/failure.hpp"
#include "solver/tasks/check.hpp"
#include "solver/tasks/solve.hpp"
#include "solver/tasks/validate.hpp"

namespace vorqsolver {

Engine const* FindEngine(ProblemClass const& what) {
  for (auto const& engine : Engines()) {
    if (engine->Supports(what)) return engine.get();
  }
  return nullptr;
}

SolveResult SolveSubproblem(SubproblemTask const& task) {
  auto const all = Classify(task.data);
  auto const what = task.relaxed ? all.Relaxed() : all;
  auto const* engine = FindEngine(what);
  if (engine == nullptr) {
    throw Failure(VORQ_INTERNAL, "No engine of this version solves a problem with " + what.Describe());
  }
  Validate(task.data);
  SolveResult result;
  result.message = PlainInfeasibility(task.data, task.parameters, task.relaxed);
  if (!result.message.empty()) {
    result.isMip = what.IsDiscrete();
    (result.isMip ? result.mipStatus : result.lpStatus) = SolveStatus::kInfeasible;
    return result;
  }
  Basis const noBasis;
  std::vector<double> const noValues;
  std::vector<MipStart> const noStarts;
  result = engine->Solve({task.data, task.parameters, noBasis, noValues, noStarts, task.stop, task.log});
  auto& status = result.isMip ? result.mipStatus : result.lpStatus;
  auto const& values = ValuesOf(result);
  if (status == SolveStatus::kOptimal && !values.empty() &&
      !CheckSolution(task.data, values, task.relaxed || !result.isMip).Holds(task.parameters)) {
    status = SolveStatus::kImprecise;
  }
  return result;
}

}  // namespace vorqsolver
