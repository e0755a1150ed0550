// Guard: the frame of every C function on a problem. It refuses a null problem, runs the body, and turns whatever the
// body throws into a return code, a line of the problem's log and its last message.
//
//     int VORQ_SetObjSense(VORQ_Prob* prob, int sense) {
//       return Guard(prob, [&](Problem& problem) { problem.data.objective.sense = sense; });
//     }
#pragma once

#include <concepts>
#include <type_traits>
#include <utility>

#include "frame/vorq_solver.h"
#include "solver/problem/failure.hpp"
#include "solver/problem/problem.hpp"

namespace vorqsolver {

inline Problem* ToProblem(VORQ_Prob* prob) {
  return reinterpret_cast<Problem*>(prob);
}
inline VORQ_Prob* ToHandle(Problem* problem) {
  return reinterpret_cast<VORQ_Prob*>(problem);
}

// To be called in a catch block: the code of the exception in flight. Its text goes to the problem, if there is one.
int ReportFailure(Problem* problem) noexcept;

// The code that a body gives, or success for one that gives nothing.
template <typename Body, typename... Arguments>
int Run(Body&& body, Arguments&... arguments) {
  if constexpr (std::is_same_v<std::invoke_result_t<Body, Arguments&...>, int>) {
    return std::forward<Body>(body)(arguments...);
  } else {
    std::forward<Body>(body)(arguments...);
    return VORQ_OK;
  }
}

// For functions without a problem: `body` takes nothing.
template <std::invocable Body>
int Guard(Body&& body) noexcept {
  try {
    return Run(std::forward<Body>(body));
  } catch (...) {
    return ReportFailure(nullptr);
  }
}

// `body` takes nothing or the Problem. One that returns a code says no to an ordinary question, such as a name that
// does not fit its buffer, and leaves the log alone.
template <typename Body>
requires std::invocable<Body> || std::invocable<Body, Problem&>
int Guard(VORQ_Prob* prob, Body&& body) noexcept {
  if (prob == nullptr) return VORQ_INVALID;
  auto& problem = *ToProblem(prob);
  try {
    if constexpr (std::invocable<Body, Problem&>) {
      return Run(std::forward<Body>(body), problem);
    } else {
      return Run(std::forward<Body>(body));
    }
  } catch (...) {
    return ReportFailure(&problem);
  }
}

// For functions that change the data of the problem: results go with the change, and none is made during a solve.
template <std::invocable<Problem&> Body>
int Edit(VORQ_Prob* prob, Body&& body) noexcept {
  return Guard(prob, [&body](Problem& problem) {
    if (problem.solving) Refuse("The problem cannot be changed while it is being solved");
    std::forward<Body>(body)(problem);
    problem.DataChanged();
  });
}

// Refuses a null pointer argument; `what` is its name.
inline void Need(void const* pointer, char const* what) {
  if (pointer == nullptr) Refuse("Argument '", what, "' is null");
}

}  // namespace vorqsolver
