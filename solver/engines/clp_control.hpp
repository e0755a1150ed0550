// What keeps the engines silent and stoppable: a message handler that drops all messages, and an event handler that is
// asked at each simplex iteration.
#pragma once

#include <ClpEventHandler.hpp>
#include <CoinMessageHandler.hpp>
#include <functional>
#include <utility>

#include "solver/engines/engine.hpp"

namespace vorqsolver {

class SilentHandler : public CoinMessageHandler {
 public:
  SilentHandler() { setLogLevel(0); }
  int print() override { return 0; }
  CoinMessageHandler* clone() const override { return new SilentHandler(*this); }
};

// The engines copy it at will; all copies share what they point to. `each` runs at every iteration, for reports.
class IterationWatch : public ClpEventHandler {
 public:
  using Report = std::function<void(ClpSimplex const*)>;

  IterationWatch(StopSignal& stop, Report const& each) : stop_(&stop), each_(&each) {}

  int event(Event which) override {
    if (which != endOfIteration && which != endOfFactorization) return kContinue;
    if (*each_) (*each_)(simplex());
    return stop_->Asked() ? kStop : kContinue;
  }

  ClpEventHandler* clone() const override { return new IterationWatch(*this); }

 private:
  static constexpr int kContinue = -1;
  static constexpr int kStop = 5;

  StopSignal* stop_;
  Report const* each_;  // outlives the engine's models
};

}  // namespace vorqsolver
