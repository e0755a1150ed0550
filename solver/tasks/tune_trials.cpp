// The solves of a trial and their measure.
#include "solver/tasks/tune_trials.hpp"

#include <algorithm>
#include <cmath>

#include "solver/problem/failure.hpp"
#include "solver/tasks/permuted.hpp"
#include "solver/tasks/subproblem.hpp"

namespace vorqsolver {

namespace {

enum TuneMeasure { kAverage = 0, kMaximum = 1 };

constexpr double kUnsolvedFactor = 10.0;  // on the seconds of a solve that came to no end

// The forms that reading makes, before several threads read.
void MakeForms(SparseMatrix const& matrix) {
  matrix.Pack();
  static_cast<void>(matrix.ColBegins());
}

void MakeForms(ProblemData const& data) {
  MakeForms(data.rows.matrix);
  MakeForms(data.lazyConstraints.matrix);
  MakeForms(data.userCuts.matrix);
}

}  // namespace

Trials::Trials(Problem& problem, Clock::time_point begin)
    : problem_(problem), begin_(begin), limit_(problem.parameters.Dbl(DblParam::kTuneTimeLimit)) {
  if (limit_ == 0.0) limit_ = 1e20;
}

double Trials::Elapsed() const {
  return std::chrono::duration<double>(Clock::now() - begin_).count();
}

bool Trials::MustStop() const {
  return problem_.interrupted || Remaining() <= 0.0;
}

void Trials::Prepare(int count) {
  constexpr int kMostPermutations = 1000;
  if (count > kMostPermutations) Refuse("TunePermutes is ", count, ", and at most ", kMostPermutations, " are tried");
  copies_.clear();
  copies_.push_back(std::make_shared<ProblemData const>(problem_.data));
  auto const seed = static_cast<unsigned>(problem_.parameters.Int(IntParam::kRandSeed));
  for (int k = 1; k < count && !MustStop(); ++k) {
    copies_.push_back(std::make_shared<ProblemData const>(Permuted(problem_.data, seed + static_cast<unsigned>(k))));
  }
  for (auto const& copy : copies_) MakeForms(*copy);
}

double Trials::Measure(SolveResult const& result, double seconds, bool isSolved) const {
  double const sense = problem_.data.objective.sense < 0 ? -1.0 : 1.0;
  bool const hasSolution = !ValuesOf(result).empty();
  double const objective = result.isMip ? result.mipObjective : result.lpObjective;
  switch (mode) {
    case TuneMode::kGap: return isSolved ? 0.0 : hasSolution && result.isMip ? result.bestGap : kInfinity;
    case TuneMode::kObjective: return hasSolution ? sense * objective : kInfinity;
    case TuneMode::kBound:
      return !isSolved && !result.isMip ? kInfinity : -sense * (result.isMip ? result.bestBound : objective);
    default: return isSolved ? seconds : kUnsolvedFactor * seconds;
  }
}

TrialOutcome Trials::SolveOnce(ProblemData const& data, ParameterSet const& parameters, double seconds) const {
  auto const begin = Clock::now();
  StopSignal stop(problem_.interrupted, begin, std::min(seconds, Remaining()));
  Log quiet;
  auto const result = SolveSubproblem({data, parameters, stop, quiet, false});
  TrialOutcome outcome;
  outcome.seconds = stop.Elapsed();
  auto const status = StatusOf(result);
  outcome.isSolved = status == SolveStatus::kOptimal || status == SolveStatus::kInfeasible ||
                     status == SolveStatus::kUnbounded || status == SolveStatus::kInfeasibleOrUnbounded;
  outcome.measure = Measure(result, outcome.seconds, outcome.isSolved);
  return outcome;
}

TrialOutcome Trials::Try(Settings const& settings, double seconds) const {
  TrialOutcome total;
  try {
    ParameterSet parameters = problem_.parameters;
    for (auto const& [name, value] : settings) parameters.SetText(name, value);
    bool const isMaximum = problem_.parameters.Int(IntParam::kTuneMeasure) == kMaximum;
    for (auto const& copy : copies_) {
      auto const one = SolveOnce(*copy, parameters, seconds);
      total.measure = isMaximum ? std::max(total.measure, one.measure)
                                : total.measure + one.measure / static_cast<double>(copies_.size());
      if (isMaximum && &copy == &copies_.front()) total.measure = one.measure;
      total.seconds = std::max(total.seconds, one.seconds);
      total.isSolved = total.isSolved && one.isSolved;
      char text[64];
      std::snprintf(text, sizeof text, " %.2fs%s", one.seconds, one.isSolved ? "" : " (unfinished)");
      total.detail += text;
      if (MustStop()) break;
    }
  } catch (std::exception const& failure) {
    // A set that an engine cannot work with is no good set.
    total.measure = kInfinity;
    total.isSolved = false;
    total.detail = Text(" ", failure.what());
  } catch (...) {
    // Engines throw classes of their own.
    total.measure = kInfinity;
    total.isSolved = false;
    total.detail = " failed";
  }
  return total;
}

}  // namespace vorqsolver
