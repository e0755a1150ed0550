// The starts of a task, one by one.
#include "solver/engines/mip_starts.hpp"

#include <algorithm>

#include "solver/problem/failure.hpp"

namespace vorqsolver {

namespace {

// The values of the parameter MipStartMode.
enum Mode { kRejectAll = 0, kFullOnly = 1, kNoRepair = 2 };

// Whether the start gave a solution; `outcome` says how, or why not.
bool TakeStart(SolveTask const& task, StartTaker& taker, MipStart const& start, std::string& outcome) {
  int const mode = task.parameters.Int(IntParam::kMipStartMode);
  auto const open = std::ranges::count(start.values, VORQ_UNDEFINED);
  bool const isFull = open == 0;
  outcome = "as MipStartMode says";
  if (mode == kRejectAll) return false;
  outcome = isFull ? taker.TakeAsIs(start) : Text("incomplete, ", open, " columns are open");
  if (outcome.empty()) {
    outcome = "accepted";
    return true;
  }
  if (mode == kFullOnly || (mode == kNoRepair && isFull)) return false;
  auto const cause = taker.TakeCompleted(start);
  if (cause.empty()) {
    outcome = isFull ? "repaired" : "completed";
  } else if (cause != outcome) {
    outcome += ", and " + cause;
  }
  return cause.empty();
}

}  // namespace

void TakeStarts(SolveTask const& task, StartTaker& taker) {
  int number = 0;
  for (auto const& start : task.starts) {
    ++number;
    std::string outcome;
    if (TakeStart(task, taker, start, outcome)) {
      task.log.Print("MIP start %d: %s, objective %.9e", number, outcome.c_str(), taker.TakenObjective());
    } else {
      task.log.Print("MIP start %d: rejected, %s", number, outcome.c_str());
    }
  }
}

void PassOverStarts(std::span<MipStart const> starts, Log& log, char const* cause) {
  for (std::size_t k = 0; k < starts.size(); ++k) log.Print("MIP start %zu: not used, %s", k + 1, cause);
}

bool GivesAllDiscrete(ProblemData const& data, std::span<double const> values) {
  bool gives = data.soss.empty();
  for (int col = 0; col < data.columns.Count(); ++col) {
    gives = gives && (values[col] != VORQ_UNDEFINED || data.columns.type[col] == 'C');
  }
  return gives;
}

}  // namespace vorqsolver
