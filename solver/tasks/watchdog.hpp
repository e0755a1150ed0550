// Watchdog: breaks the silence of a log while an engine is in a phase that reports nothing.
//
//     Watchdog const watchdog(problem.log);
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "solver/engines/engine.hpp"
#include "solver/tasks/log.hpp"

namespace vorqsolver {

// Logs the elapsed time whenever there was no line for some seconds, from a thread of its own, for as long as the
// watchdog lives. A log that is off gets no thread.
class Watchdog {
 public:
  explicit Watchdog(Log& log);
  Watchdog(Watchdog const&) = delete;
  Watchdog& operator=(Watchdog const&) = delete;
  ~Watchdog();

 private:
  void Watch();
  void Report() noexcept;

  Log& log_;
  Clock::time_point begin_ = Clock::now();
  std::mutex mutex_;
  std::condition_variable ended_;
  bool hasEnded_ = false;
  std::thread thread_;
};

}  // namespace vorqsolver
