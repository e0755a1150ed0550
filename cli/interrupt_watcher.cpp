// Waiting for signals in a thread of its own.
#include "cli/interrupt_watcher.hpp"

#include <csignal>
#include <ctime>

namespace cli {
namespace {

sigset_t WatchedSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  return signals;
}

}  // namespace

void BlockInterrupts() {
  sigset_t const signals = WatchedSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

InterruptWatcher::InterruptWatcher(Vorq::IModel& model)
    : thread_([&model](std::stop_token const& stop) {
        sigset_t const signals = WatchedSignals();
        timespec const pause = {.tv_sec = 0, .tv_nsec = 50'000'000};
        while (!stop.stop_requested()) {
          if (sigtimedwait(&signals, nullptr, &pause) > 0) model.Interrupt();
        }
      }) {}

InterruptWatcher::~InterruptWatcher() {
  thread_.request_stop();
}

}  // namespace cli
