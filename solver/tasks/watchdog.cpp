// The thread that looks after a silent log.
#include "solver/tasks/watchdog.hpp"

#include <algorithm>
#include <chrono>
#include <exception>
#include <system_error>

namespace vorqsolver {

namespace {

constexpr std::chrono::seconds kSilence(5);

}  // namespace

Watchdog::Watchdog(Log& log) : log_(log) {
  if (!log_.Enabled()) return;
  try {
    thread_ = std::thread([this] { Watch(); });
  } catch (std::system_error const&) {
    // The solve goes on without it.
    return;
  }
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

void Watchdog::Report() noexcept {
  try {
    log_.Print("  at work for %.0fs", std::chrono::duration<double>(Clock::now() - begin_).count());
  } catch (std::exception const&) {
    // Without memory there is no line.
    return;
  }
}

void Watchdog::Watch() {
  std::unique_lock lock(mutex_);
  auto next = begin_ + kSilence;
  while (!ended_.wait_until(lock, next, [this] { return hasEnded_; })) {
    auto const due = log_.LastLine() + kSilence;
    if (due <= Clock::now()) {
      // A sink may take its time; the end of the solve need not wait for the lock meanwhile.
      lock.unlock();
      Report();
      lock.lock();
    }
    next = std::max(log_.LastLine() + kSilence, Clock::now() + std::chrono::milliseconds(100));
  }
}

}  // namespace vorqsolver
