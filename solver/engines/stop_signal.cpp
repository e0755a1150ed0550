// The reasons to stop a solve.
#include <algorithm>

#include "solver/engines/engine.hpp"

namespace vorqsolver {

StopSignal::StopSignal(std::atomic<bool> const& interrupted, Clock::time_point start, double seconds)
    : interrupted_(interrupted), start_(start), seconds_(seconds) {}

bool StopSignal::Asked() {
  if (reason_ != SolveStatus::kUnstarted) return true;
  if (interrupted_.load(std::memory_order_relaxed)) {
    reason_ = SolveStatus::kInterrupted;
  } else if (Elapsed() >= seconds_) {
    reason_ = SolveStatus::kTimeLimit;
  }
  return reason_ != SolveStatus::kUnstarted;
}

void StopSignal::Tighten(double seconds) {
  seconds_ = std::min(seconds_, seconds);
}

}  // namespace vorqsolver
