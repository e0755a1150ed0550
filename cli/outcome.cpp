// The table of outcomes.
#include "cli/outcome.hpp"

namespace cli {

char const* OutcomeText(Outcome outcome) {
  switch (outcome) {
    case Outcome::kOptimal: return "optimal";
    case Outcome::kFailed: return "failed";
    case Outcome::kUsageError: return "usage error";
    case Outcome::kInfeasible: return "infeasible";
    case Outcome::kUnbounded: return "unbounded";
    case Outcome::kInfeasibleOrUnbounded: return "infeasible or unbounded";
    case Outcome::kTimeLimit: return "time limit";
    case Outcome::kNodeLimit: return "node limit";
    case Outcome::kInterrupted: return "interrupted";
    case Outcome::kImprecise: return "imprecise";
  }
  return "failed";
}

Outcome OutcomeOfStatus(int status) {
  switch (status) {
    case 1: return Outcome::kOptimal;
    case 2: return Outcome::kInfeasible;
    case 3: return Outcome::kUnbounded;
    case 4: return Outcome::kInfeasibleOrUnbounded;
    case 6: return Outcome::kNodeLimit;
    case 7: return Outcome::kImprecise;
    case 8: return Outcome::kTimeLimit;
    case 10: return Outcome::kInterrupted;
    default: return Outcome::kFailed;
  }
}

}  // namespace cli
