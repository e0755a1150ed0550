// The thread that looks after a silent log.
#include "solver/tasks/watchdog.hpp"

#include <algorithm>
#include <chrono>

namespace vorqsolver {

namespace {

constexpr std::chrono::seconds kSilence(5);

}  // namespace

Watchdog::Watchdog(Log& log) : log_(log) {
  if (log_.Enabled()) thread_ = std::thread([this] { Watch(); });
}

Watchdog::~Watchdog() {
  if (!thread_.joinable()) return;
  {
    std::lock_guard const lock(mutex_);
    hasEnded_ = true;
  }
  ended_.notify_one();
  thread_.join();
}

void Watchdog::Watch() {
  std::unique_lock lock(mutex_);
  auto next = begin_ + kSilence;
  while (!ended_.wait_until(lock, next, [this] { return hasEnded_; })) {
    auto const due = log_.LastLine() + kSilence;
    if (due <= Clock::now()) {
      // A sink may take its time; the end of the solve need not wait for the lock meanwhile.
      lock.unlock();
      log_.Print("  at work for %.0fs", std::chrono::duration<double>(Clock::now() - begin_).count());
      lock.lock();
    }
    next = std::max(log_.LastLine() + kSilence, Clock::now() + std::chrono::milliseconds(100));
  }
}

}  // namespace vorqsolver
