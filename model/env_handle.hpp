// EnvHandle: one open environment of the solver library, closed with the last holder: every model core has one.
#pragma once

#include "frame/vorq_solver.h"
#include "vorqmodel/environment.h"

namespace Vorq {

struct EnvHandle {
  explicit EnvHandle(ILogSink* logSink) : sink(logSink) {}
  EnvHandle(EnvHandle const&) = delete;
  EnvHandle& operator=(EnvHandle const&) = delete;
  ~EnvHandle() {
    if (env != nullptr) VORQ_DeleteEnv(&env);
  }

  // Null when the environment could not be opened.
  VORQ_Env* env = nullptr;
  // The caller's, may be null.
  ILogSink* sink;
};

}  // namespace Vorq
