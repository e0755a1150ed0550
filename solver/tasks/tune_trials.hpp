// Trials of parameter sets: what a set is worth on a problem, measured by solves.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "solver/engines/engine.hpp"
#include "solver/problem/problem.hpp"

namespace vorqsolver {

// The values of the parameter TuneMode.
enum class TuneMode : int { kAutomatic = -1, kTime = 0, kGap = 1, kObjective = 2, kBound = 3 };

// The outcome of a solve, or of several.
struct TrialOutcome {
  double measure = 0.0;  // the smaller the better
  double seconds = 0.0;  // of the longest solve
  bool isSolved = true;  // all solves came to their end
  std::string detail;    // what each solve gave, for the log
};

class Trials {
 public:
  Trials(Problem& problem, Clock::time_point begin);

  // Tries a set on each copy of the problem; each solve gets as many seconds. Solves may run in several threads.
  TrialOutcome Try(Settings const& settings, double seconds) const;

  // Whether time is up or the tuning is interrupted.
  bool MustStop() const;
  double Elapsed() const;
  double Remaining() const { return limit_ - Elapsed(); }

  TuneMode mode = TuneMode::kTime;

  // Fills the copies: the problem as it is and `count` - 1 in other orders.
  void Prepare(int count);
  int CopyCount() const { return static_cast<int>(copies_.size()); }

 private:
  TrialOutcome SolveOnce(ProblemData const& data, ParameterSet const& parameters, double seconds) const;
  double Measure(SolveResult const& result, double seconds, bool isSolved) const;

  Problem& problem_;
  Clock::time_point begin_;
  double limit_;
  std::vector<std::shared_ptr<ProblemData const>> copies_;
};

}  // namespace vorqsolver
