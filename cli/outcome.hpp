// What a run of the tool ends in, and the exit code of each.
#pragma once

#include <limits>
#include <string>

namespace cli {

enum class Outcome {
  kOptimal,
  kFailed,
  kUsageError,
  kInfeasible,
  kUnbounded,
  kInfeasibleOrUnbounded,
  kTimeLimit,
  kNodeLimit,
  kInterrupted,
  kImprecise,
};

// 0 for an answer; another number for each other outcome.
constexpr int ExitCode(Outcome outcome) {
  return static_cast<int>(outcome);
}

// The word that the tool prints, such as "time limit".
char const* OutcomeText(Outcome outcome);

// The outcome that a value of the attributes LpStatus and MipStatus stands for.
Outcome OutcomeOfStatus(int status);

struct SolveReport {
  Outcome outcome = Outcome::kFailed;
  double objective = std::numeric_limits<double>::quiet_NaN();  // of the best solution, if there is one
  double bound = std::numeric_limits<double>::quiet_NaN();      // proven, if there is one
  double seconds = 0.0;
  std::string engine;
  std::string message;
};

}  // namespace cli
