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

// For this thread and those that it starts; the former mask.
sigset_t BlockSignals() {
  sigset_t const signals = WatchedSignals();
  sigset_t former;
  pthread_sigmask(SIG_BLOCK, &signals, &former);
  return former;
}

}  // namespace

InterruptWatcher::InterruptWatcher(Vorq::IModel& model)
    : former_(BlockSignals()), thread_([&model](std::stop_token const& stop) {
        sigset_t const signals = WatchedSignals();
        timespec const pause = {.tv_sec = 0, .tv_nsec = 50'000'000};
        while (!stop.stop_requested()) {
          if (sigtimedwait(&signals, nullptr, &pause) > 0) model.Interrupt();
        }
      }) {}

InterruptWatcher::~InterruptWatcher() {
  thread_.request_stop();
  thread_.join();
  pthread_sigmask(SIG_SETMASK, &former_, nullptr);
}

}  // namespace cli
