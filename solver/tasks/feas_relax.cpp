// The two steps of a feasibility relaxation: the least violation, and the objective among these.
#include "solver/tasks/feas_relax.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/engines/linear_model.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"
#include "solver/tasks/relaxation.hpp"
#include "solver/tasks/running.hpp"
#include "solver/tasks/solve_report.hpp"
#include "solver/tasks/subproblem.hpp"
#include "solver/tasks/validate.hpp"
#include "solver/tasks/watchdog.hpp"

namespace vorqsolver {

namespace {

constexpr std::size_t kMostLines = 40;  // of violations in the log

RelaxMode ModeOf(ParameterSet const& parameters) {
  return static_cast<RelaxMode>(parameters.Int(IntParam::kFeasRelaxMode));
}

char const* TextOf(RelaxMode mode) {
  static constexpr char const* kTexts[] = {"sum of violations", "number of violations", "sum of squared violations"};
  return kTexts[static_cast<int>(mode) / 2];
}

bool HasSecondStep(RelaxMode mode) {
  return static_cast<int>(mode) % 2 == 1;
}

// Penalties that are not below InfBound stand for what must hold.
void Normalise(std::vector<double>& penalties, char const* what, double infinity) {
  for (std::size_t k = 0; k < penalties.size(); ++k) {
    if (!(penalties[k] >= 0.0)) Refuse("The penalty ", penalties[k], " of entry ", k, " of '", what, "' is negative");
    if (penalties[k] >= infinity) {
      penalties[k] = kInfinity;
    } else if (penalties[k] >= kTooGreat) {
      Refuse("The penalty ", penalties[k], " of entry ", k, " of '", what,
             "' is too great to calculate with, and below ", infinity, ", from which on a side holds");
    }
  }
}

Engine const& RequireEngine(Relaxation const& relaxation, RelaxMode mode) {
  auto const what = Classify(relaxation.Data());
  auto const* engine = FindEngine(what);
  if (engine == nullptr) {
    throw Failure(VORQ_INTERNAL, Text("FeasRelaxMode ", static_cast<int>(mode), ", the ", TextOf(mode),
                                      ": no engine of this version solves a problem with ", what.Describe()));
  }
  return *engine;
}

// Takes over what a step found; false where it ended without a solution. What a former step found stays then, its
// status included.
bool Take(Problem& problem, Relaxation const& relaxation, SolveResult const& step) {
  auto& result = problem.result;
  result.isMip = Classify(problem.data).IsDiscrete();
  result.engine = step.engine;
  result.simplexIterations += step.simplexIterations;
  result.barrierIterations += step.barrierIterations;
  result.nodes += step.nodes;
  auto const& values = ValuesOf(step);
  auto& relaxed = result.relaxed;
  if (values.empty() && relaxed.available) return false;
  (result.isMip ? result.mipStatus : result.lpStatus) = StatusOf(step);
  if (values.empty()) return false;
  relaxed.available = true;
  relaxed.values.assign(values.begin(), values.begin() + problem.data.columns.Count());
  relaxed.slacks = Slacks(problem.data, relaxed.values);
  relaxed.penalty = relaxation.PenaltyAt(values);
  return true;
}

// Each side that the point violates, by more than the tolerance.
void LogViolations(Problem& problem, Relaxation const& relaxation, std::vector<double> const& values) {
  double const tolerance = problem.parameters.Dbl(DblParam::kFeasTol);
  auto const& data = problem.data;
  std::size_t count = 0;
  for (auto const& side : relaxation.Sides()) {
    double const amount = values[static_cast<std::size_t>(side.slack)];
    if (amount <= tolerance || ++count > kMostLines) continue;
    auto const& names = side.isRow ? data.rows.names : data.columns.names;
    auto const& bounds = side.isRow ? (side.isLower ? data.rows.lower : data.rows.upper)
                                    : (side.isLower ? data.columns.lower : data.columns.upper);
    problem.log.Line(Text("  ", Called(side.isRow ? "row" : "column", names, side.index),
                          side.isLower ? " >= " : " <= ", bounds[static_cast<std::size_t>(side.index)],
                          " is violated by ", amount));
  }
  if (count > kMostLines) problem.log.Line(Text("  and ", count - kMostLines, " more"));
}

void LogEnd(Problem& problem, RelaxMode mode) {
  auto const& relaxed = problem.result.relaxed;
  problem.log.Print("Status: %s", StatusText(StatusOf(problem.result)));
  if (relaxed.available) {
    problem.log.Print("  Least %s, with penalties: %.10e", TextOf(mode), relaxed.penalty);
    problem.log.Print("  Objective    %.10e", ObjectiveOf(problem.data, relaxed.values));
  } else if (StatusOf(problem.result) == SolveStatus::kInfeasible) {
    problem.log.Line("  What may not be violated is infeasible by itself");
  }
  problem.log.Print("  Time         %.2fs", relaxed.seconds);
}

// The second step; what it does not better stays as it is.
void OptimiseWithin(Problem& problem, Relaxation& relaxation, RelaxMode mode, StopSignal& stop,
                    std::vector<double>& values) {
  relaxation.OptimiseWithin(problem.data, problem.result.relaxed.penalty);
  RequireEngine(relaxation, mode);
  problem.log.Print("Objective among the least violations, %s",
                    relaxation.Data().objective.sense < 0 ? "greatest" : "least");
  auto const step = SolveSubproblem({relaxation.Data(), problem.parameters, stop, problem.log, false});
  if (StatusOf(step) == SolveStatus::kUnbounded) {
    problem.log.Line("The objective is unbounded among the least violations: one of them is kept");
    return;
  }
  if (Take(problem, relaxation, step)) {
    values = ValuesOf(step);
  } else {
    problem.log.Line(Text("The objective was not optimised (", StatusText(StatusOf(step)), "): the first step stays"));
  }
}

}  // namespace

void RelaxFeasibility(Problem& problem, RelaxPenalties penalties) {
  Running const running(problem);
  auto const begin = Clock::now();
  auto const& parameters = problem.parameters;
  double const infinity = parameters.Dbl(DblParam::kInfBound);
  Normalise(penalties.colLower, "colLow", infinity);
  Normalise(penalties.colUpper, "colUpp", infinity);
  Normalise(penalties.rowLower, "rowBnd", infinity);
  Normalise(penalties.rowUpper, "rowUpp", infinity);
  CheckNoLostColumns(problem.data);
  Validate(problem.data);
  auto const mode = ModeOf(parameters);
  Relaxation relaxation(problem.data, penalties, mode);
  auto const& engine = RequireEngine(relaxation, mode);

  problem.result = SolveResult();
  auto& relaxed = problem.result.relaxed;
  relaxed.attempted = true;
  relaxed.penalties = std::move(penalties);
  relaxed.mode = mode;
  LogTitle(problem, "Feasibility relaxation of");
  problem.log.Print("Least %s over %zu sides; engine %s %s", TextOf(mode), relaxation.Sides().size(),
                    std::string(engine.Name()).c_str(), engine.Version().c_str());
  Watchdog const watchdog(problem.log);
  StopSignal stop(problem.interrupted, begin, parameters.Dbl(DblParam::kTimeLimit));
  auto const first = SolveSubproblem({relaxation.Data(), parameters, stop, problem.log, false});
  std::vector<double> values = ValuesOf(first);
  if (Take(problem, relaxation, first) && HasSecondStep(mode) && StatusOf(first) == SolveStatus::kOptimal) {
    OptimiseWithin(problem, relaxation, mode, stop, values);
  }
  relaxed.seconds = problem.result.seconds = stop.Elapsed();
  LogEnd(problem, mode);
  if (relaxed.available) LogViolations(problem, relaxation, values);
}

ProblemData RelaxationProblem(ProblemData const& data, RelaxPenalties const& penalties, RelaxMode mode) {
  return Relaxation(data, penalties, mode).Data();
}

}  // namespace vorqsolver
