// The way of a subproblem to its result.
#include "solver/tasks/subproblem.hpp"

#include <algorithm>

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

SolveResult SolveWith(Engine const& engine, SolveTask const& task) {
  SolveResult result = engine.Solve(task);
  if (!result.isMip || result.mipStatus != SolveStatus::kInfeasibleOrUnbounded || task.callback != nullptr) {
    return result;
  }
  ProblemData feasibility = task.data;
  feasibility.objective = {};
  std::ranges::fill(feasibility.columns.objective, 0.0);
  Basis const noBasis;
  std::vector<double> const noValues;
  SolveResult const second =
      engine.Solve({feasibility, task.parameters, noBasis, noValues, task.starts, task.stop, task.log, nullptr});
  if (!second.mipValues.empty()) {
    result.mipStatus = SolveStatus::kUnbounded;
  } else if (second.mipStatus != SolveStatus::kOptimal) {
    result.mipStatus = second.mipStatus;
  }
  return result;
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
  result = SolveWith(*engine, {task.data, task.parameters, noBasis, noValues, noStarts, task.stop, task.log});
  auto& status = result.isMip ? result.mipStatus : result.lpStatus;
  auto const& values = ValuesOf(result);
  if (status == SolveStatus::kOptimal && !values.empty() &&
      !CheckSolution(task.data, values, task.relaxed || !result.isMip).Holds(task.parameters)) {
    status = SolveStatus::kImprecise;
  }
  return result;
}

}  // namespace vorqsolver
