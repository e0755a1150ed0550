// CallbackSession: the border between a running search and the caller's callback. The search calls out through it, and
// what the callback asks for or adds comes back in through it, to the search that waits for the call.
#pragma once

#include <atomic>
#include <exception>
#include <optional>
#include <span>
#include <string_view>
#include <thread>
#include <variant>
#include <vector>

#include "frame/vorq_solver.h"
#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// What a search shows at a call. A vector is empty where there is none at that point.
struct SearchState {
  int nodes = 0;
  int openNodes = 0;
  int solutions = 0;
  int lazyConstraints = 0;
  int userCuts = 0;

  double seconds = 0.0;
  double bestObjective = 0.0;
  double bestBound = 0.0;
  double bestGap = 0.0;
  double candidateObjective = 0.0;
  double relaxationObjective = 0.0;

  std::span<double const> incumbent;
  std::span<double const> candidate;
  std::span<double const> relaxation;
};

// The search's side of a call.
class RunningSearch {
 public:
  virtual ~RunningSearch() = default;

  virtual SearchState const& State() const = 0;
  virtual void TakeLazyConstraints(std::vector<LinearRow> rows) = 0;
  virtual void TakeUserCuts(std::vector<LinearRow> rows) = 0;

  // The objective of what the solution gives once its open entries (1e40) were found; none if it gives nothing.
  virtual std::optional<double> OfferSolution(std::span<double const> values) = 0;
};

// What the caller's code threw, on its way to the caller.
struct CallbackException {
  std::exception_ptr cause;
};

class CallbackSession {
 public:
  // Takes the function for the solve that begins.
  void Set(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user);

  bool Wants(int context) const { return function_ != nullptr && (mask_ & context) != 0; }

  // Calls the caller's function if it wants this context; false if it asks for the end of the search. Throws
  // CallbackException.
  bool Call(int context, RunningSearch& search);

  // Whether this thread is inside of a call of the caller's function. The functions below hold only then.
  bool IsInside() const { return caller_.load() == std::this_thread::get_id(); }

  int Context() const { return context_; }
  RunningSearch& Search() const { return *search_; }
  VORQ_Prob* Prob() const { return prob_; }

 private:
  VORQ_Prob* prob_ = nullptr;
  VORQ_CallbackFunction function_ = nullptr;
  int mask_ = 0;
  void* user_ = nullptr;

  int context_ = 0;
  RunningSearch* search_ = nullptr;
  std::atomic<std::thread::id> caller_{};  // none outside of a call
};

// An information that callbacks read by name: an int, a double, or a double for each column.
struct CallbackInfo {
  using Member = std::variant<int SearchState::*, double SearchState::*, std::span<double const> SearchState::*>;

  std::string_view name;
  Member member;
};

// Null for a name that nobody bears; upper and lower case count alike.
CallbackInfo const* FindCallbackInfo(std::string_view name);

}  // namespace vorqsolver
