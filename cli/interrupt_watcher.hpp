// Turns an interrupt from the keyboard into an interruption of the running solve.
#pragma once

#include <thread>

#include <vorq>

namespace cli {

// While it lives, the first SIGINT or SIGTERM interrupts the solve of `model`, which then ends in an orderly way with
// what it has; the signals are taken by a thread of their own, so that no code runs inside a signal handler.
class InterruptWatcher {
 public:
  explicit InterruptWatcher(Vorq::IModel& model);
  ~InterruptWatcher();
  InterruptWatcher(InterruptWatcher const&) = delete;
  InterruptWatcher& operator=(InterruptWatcher const&) = delete;

 private:
  std::jthread thread_;
};

// Blocks the two signals for this thread and those that it starts; to be called before any other thread exists.
void BlockInterrupts();

}  // namespace cli
