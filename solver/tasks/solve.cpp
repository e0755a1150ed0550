// The way of a solve from the problem to its result.
#include "solver/tasks/solve.hpp"

#include <algorithm>
#include <array>

#include "solver/engines/branch_and_cut.hpp"
#include "solver/engines/cbc_engine.hpp"
#include "solver/engines/clp_engine.hpp"
#include "solver/engines/mip_starts.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"
#include "solver/tasks/check.hpp"
#include "solver/tasks/running.hpp"
#include "solver/tasks/solve_report.hpp"
#include "solver/tasks/validate.hpp"
#include "solver/tasks/watchdog.hpp"

namespace vorqsolver {

std::span<std::unique_ptr<Engine const> const> Engines() {
  static std::array<std::unique_ptr<Engine const>, 3> const engines = {
      std::make_unique<ClpEngine>(), std::make_unique<CbcEngine>(), std::make_unique<BranchAndCutEngine>()};
  return engines;
}

namespace {

VORQ_Prob* ToHandle(Problem& problem) {
  return reinterpret_cast<VORQ_Prob*>(&problem);
}

Engine const& ChooseEngine(ProblemClass const& what) {
  for (auto const& engine : Engines()) {
    if (engine->Supports(what)) return *engine;
  }
  throw Failure(VORQ_INTERNAL, "No engine of this version solves a problem with " + what.Describe());
}

bool Fits(Basis const& basis, ProblemData const& data) {
  if (std::ssize(basis.cols) != data.columns.Count() || std::ssize(basis.rows) != data.rows.Count()) return false;
  int const basic = static_cast<int>(BasisStatus::kBasic);
  return std::ranges::count(basis.cols, basic) + std::ranges::count(basis.rows, basic) == data.rows.Count();
}

// What the solve starts from; taken before the former result goes.
struct Start {
  Basis basis;
  std::vector<double> values;
};

Start TakeStart(Problem& problem) {
  Start start;
  auto const& basis = problem.CurrentBasis();
  if (Fits(basis, problem.data) && problem.data.columns.Count() > 0) {
    start.basis = basis;
  } else if (!problem.startBasis.cols.empty()) {
    problem.log.Line("The start basis does not fit the problem and is ignored");
  }
  if (problem.result.lpIsGiven) start.values = problem.result.lp.values;
  return start;
}

SolveResult PlainlyInfeasible(ProblemClass const& what, std::string const& cause) {
  SolveResult result;
  result.isMip = what.IsDiscrete();
  (result.isMip ? result.mipStatus : result.lpStatus) = SolveStatus::kInfeasible;
  result.message = cause;
  return result;
}

// A solution that the problem does not accept is not reported as an optimal one.
void CheckResult(Problem& problem, bool relaxed) {
  auto& result = problem.result;
  auto& status = result.isMip ? result.mipStatus : result.lpStatus;
  auto const& values = result.isMip ? result.mipValues : result.lp.values;
  if (status != SolveStatus::kOptimal || values.empty()) return;
  if (CheckSolution(problem.data, values, relaxed || !result.isMip).Holds(problem.parameters)) return;
  status = SolveStatus::kImprecise;
  result.message = "The engine's solution violates the problem beyond the tolerances";
}

SolveResult Run(Problem& problem, bool relaxed, Start const& start, Clock::time_point begin) {
  auto const& data = problem.data;
  CheckNoLostColumns(data);
  auto all = Classify(data);
  auto const& [function, mask, user] = problem.callback;
  all.callback = all.IsDiscrete() && function != nullptr && mask != 0;
  auto const what = relaxed ? all.Relaxed() : all;
  auto const& engine = ChooseEngine(what);
  Validate(data);
  LogHeader(problem, relaxed);
  auto const cause = PlainInfeasibility(data, problem.parameters, relaxed);
  if (!cause.empty()) {
    PassOverStarts(problem.starts, problem.log, "no solution exists");
    return PlainlyInfeasible(what, cause);
  }
  if (!what.IsDiscrete()) PassOverStarts(problem.starts, problem.log, "nothing is discrete");
  LogEngine(problem, engine, what);
  StopSignal stop(problem.interrupted, begin, problem.parameters.Dbl(DblParam::kTimeLimit));
  problem.callbackSession.Set(ToHandle(problem), function, mask, user);
  return engine.Solve({data, problem.parameters, start.basis, start.values, problem.starts, stop, problem.log,
                       what.callback ? &problem.callbackSession : nullptr});
}

}  // namespace

void SolveProblem(Problem& problem, bool relaxed) {
  Running const running(problem);
  auto const begin = Clock::now();
  auto const start = TakeStart(problem);
  problem.result = SolveResult();
  Watchdog const watchdog(problem.log);
  problem.result = Run(problem, relaxed, start, begin);
  CheckResult(problem, relaxed);
  problem.result.seconds = std::chrono::duration<double>(Clock::now() - begin).count();
  if (!problem.result.basis.cols.empty()) problem.startBasis = Basis();
  LogSummary(problem);
}

}  // namespace vorqsolver
