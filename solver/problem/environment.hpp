// Environment: what a VORQ_Env points to. A new problem takes a copy of what it needs, so it may outlive the
// environment that it was made from.
#pragma once

#include "frame/vorq_solver.h"
#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {

struct Environment {
  bool open = true;
  ParameterSet parameters;  // the first values of a new problem's parameters
};

inline Environment* ToEnvironment(VORQ_Env* env) {
  return reinterpret_cast<Environment*>(env);
}

// The environment behind `env`; fails for a null pointer and for a closed environment.
inline Environment& OpenEnvironment(VORQ_Env* env) {
  if (env == nullptr) Refuse("The environment is null");
  if (!ToEnvironment(env)->open) Refuse("The environment is closed");
  return *ToEnvironment(env);
}

}  // namespace vorqsolver
