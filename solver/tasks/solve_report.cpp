// Header and summary of a solve in the log.
#include "solver/tasks/solve_report.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <string>

#include "solver/tasks/check.hpp"

namespace vorqsolver {

namespace {

struct Range {
  double least = std::numeric_limits<double>::infinity();
  double greatest = 0.0;

  void Add(double value) {
    double const size = std::abs(value);
    if (size == 0.0 || size >= kInfinity) return;
    least = std::min(least, size);
    greatest = std::max(greatest, size);
  }
  void Add(std::span<double const> values) {
    for (double const value : values) Add(value);
  }
};

void LogRange(Log& log, char const* what, Range const& range) {
  if (range.greatest > 0.0) log.Print("  %-12s [%.0e, %.0e]", what, range.least, range.greatest);
}

bool HasIntegrality(char type) {
  return type == 'B' || type == 'I' || type == 'N';
}

void LogCounts(Problem& problem) {
  auto const& data = problem.data;
  auto const& types = data.columns.type;
  auto const binaries = std::ranges::count(types, 'B');
  auto const integers = std::ranges::count_if(types, HasIntegrality) - binaries;
  auto const semi = std::ranges::count_if(types, [](char type) { return type == 'S' || type == 'N'; });
  std::string text = "  " + std::to_string(data.rows.Count()) + " rows, " + std::to_string(data.columns.Count()) +
                     " columns, " + std::to_string(data.rows.matrix.ElementCount()) + " elements";
  auto const add = [&](std::size_t count, char const* what) {
    if (count > 0) text += ", " + std::to_string(count) + what;
  };
  add(static_cast<std::size_t>(binaries), " binary");
  add(static_cast<std::size_t>(integers), " integer");
  add(static_cast<std::size_t>(semi), " semicontinuous");
  add(data.soss.size(), " SOS");
  add(data.indicators.size(), " indicators");
  add(static_cast<std::size_t>(data.lazyConstraints.Count()), " lazy constraints");
  add(static_cast<std::size_t>(data.userCuts.Count()), " user cuts");
  problem.log.Line(text);
}

}  // namespace

char const* StatusText(SolveStatus status) {
  static constexpr char const* kTexts[] = {"unstarted",
                                           "optimal",
                                           "infeasible",
                                           "unbounded",
                                           "infeasible or unbounded",
                                           "numerical difficulties",
                                           "node limit",
                                           "imprecise",
                                           "time limit",
                                           "unfinished",
                                           "interrupted"};
  return kTexts[static_cast<int>(status)];
}

void LogTitle(Problem& problem, char const* what) {
  if (!problem.log.Enabled()) return;
  auto const& name = problem.data.name;
  char banner[256] = {};
  VORQ_GetBanner(banner, sizeof banner);
  problem.log.Line(banner);
  problem.log.Line(std::string(what) + " " + (name.empty() ? "the problem" : name + ":"));
  LogCounts(problem);
}

void LogHeader(Problem& problem, bool relaxed) {
  if (!problem.log.Enabled()) return;
  auto const& data = problem.data;
  std::string const sense = data.objective.sense < 0 ? "Maximising" : "Minimising";
  LogTitle(problem, (sense + (relaxed ? " the LP relaxation of" : "")).c_str());
  // Ranges tell something where there is more than a handful of numbers.
  constexpr std::size_t kTiny = 20;
  if (data.rows.matrix.ElementCount() <= kTiny) return;
  Range matrix;
  for (double const value : data.rows.matrix.RowValues()) matrix.Add(value);
  Range objective;
  objective.Add(data.columns.objective);
  Range bounds;
  bounds.Add(data.columns.lower);
  bounds.Add(data.columns.upper);
  Range sides;
  sides.Add(data.rows.lower);
  sides.Add(data.rows.upper);
  problem.log.Line("Ranges of the magnitudes:");
  LogRange(problem.log, "Matrix", matrix);
  LogRange(problem.log, "Objective", objective);
  LogRange(problem.log, "Bounds", bounds);
  LogRange(problem.log, "Row bounds", sides);
}

void LogEngine(Problem& problem, Engine const& engine, ProblemClass const& what) {
  problem.log.Print("Engine %s %s for %s", std::string(engine.Name()).c_str(), engine.Version().c_str(),
                    what.Describe().c_str());
}

void LogSummary(Problem& problem) {
  auto& log = problem.log;
  if (!log.Enabled()) return;
  auto const& result = problem.result;
  auto const status = result.isMip ? result.mipStatus : result.lpStatus;
  auto const& values = result.isMip ? result.mipValues : result.lp.values;
  log.Print("Status: %s", StatusText(status));
  if (!result.message.empty()) log.Line("  " + result.message);
  bool const hasSolution = values.size() == static_cast<std::size_t>(problem.data.columns.Count()) &&
                           (!values.empty() || status == SolveStatus::kOptimal);
  if (hasSolution) {
    log.Print("  Objective    %.10e", result.isMip ? result.mipObjective : result.lpObjective);
  }
  bool const hasNoBound = status == SolveStatus::kUnbounded || status == SolveStatus::kInfeasible ||
                          status == SolveStatus::kInfeasibleOrUnbounded;
  if (result.isMip && !hasNoBound && std::abs(result.bestBound) < kInfinity)
    log.Print("  Bound        %.10e", result.bestBound);
  if (result.isMip && hasSolution && result.bestGap < kInfinity)
    log.Print("  Gap          %.4f%%", 100.0 * result.bestGap);
  if (hasSolution) {
    auto const found = CheckSolution(problem.data, values, !result.isMip);
    log.Print("  Violations   bounds %.1e, rows %.1e", found.bounds, found.rows);
    if (result.isMip) log.Print("               integrality %.1e, discrete %.1e", found.integrality, found.discrete);
  }
  if (result.isMip) log.Print("  Nodes        %d", result.nodes);
  log.Print("  Iterations   %d", result.simplexIterations + result.barrierIterations);
  if (result.isMip) log.Print("  Solutions    %zu", result.pool.size());
  log.Print("  Time         %.2fs", result.seconds);
}

}  // namespace vorqsolver
