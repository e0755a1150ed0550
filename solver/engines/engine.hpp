// Engine: what solves a problem of the classes that it supports. A task tells what to solve and from where to start,
// and carries the means to stop and to report.
#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "solver/engines/problem_class.hpp"
#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/problem_data.hpp"
#include "solver/problem/solution.hpp"
#include "solver/tasks/log.hpp"

namespace vorqsolver {

class CallbackSession;

using Clock = std::chrono::steady_clock;

// Says when to stop, and which of the reasons it was.
class StopSignal {
 public:
  StopSignal(std::atomic<bool> const& interrupted, Clock::time_point start, double seconds);

  // Whether to stop now.
  bool Asked();

  // The reason, once Asked was true: kInterrupted or kTimeLimit; kUnstarted while there is none.
  SolveStatus Reason() const { return reason_; }

  double Elapsed() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }
  double Remaining() const { return seconds_ - Elapsed(); }

  // As if interrupted.
  void Stop() { reason_ = SolveStatus::kInterrupted; }

  // From the first solution on another limit may hold, counted from the start as well.
  void Tighten(double seconds);

 private:
  std::atomic<bool> const& interrupted_;
  Clock::time_point start_;
  double seconds_;
  SolveStatus reason_ = SolveStatus::kUnstarted;
};

struct SolveTask {
  ProblemData const& data;
  ParameterSet const& parameters;
  Basis const& startBasis;                 // empty if none; fits the problem otherwise
  std::vector<double> const& startValues;  // a point to start an LP from, empty if none
  std::vector<MipStart> const& starts;
  StopSignal& stop;
  Log& log;
  CallbackSession* callback = nullptr;  // the caller's callback, null where none is called
};

class Engine {
 public:
  virtual ~Engine() = default;

  virtual std::string_view Name() const = 0;
  virtual std::string Version() const = 0;
  virtual bool Supports(ProblemClass const& what) const = 0;

  // The data was validated: no value that is not a number, no crossed bounds.
  virtual SolveResult Solve(SolveTask const& task) const = 0;
};

}  // namespace vorqsolver
