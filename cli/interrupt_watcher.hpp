// Turns an interrupt from the keyboard into an interruption of the running solve.
#pragma once

#include <csignal>
#include <thread>

#include <vorq>

namespace cli {

// While it lives, SIGINT and SIGTERM do not end the program: each interrupts the solve of `model`, which then ends in
// an orderly way with what it has; the signals are taken by a thread of their own, so that no code runs inside a signal
// handler.
class InterruptWatcher {
 public:
  explicit InterruptWatcher(Vorq::IModel& model);
  ~InterruptWatcher();
  InterruptWatcher(InterruptWatcher const&) = delete;
  InterruptWatcher& operator=(InterruptWatcher const&) = delete;

 private:
  sigset_t former_;
  std::jthread thread_;
};

}  // namespace cli
