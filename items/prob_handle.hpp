// ProbHandle: the owner of one problem of the solver library, shared by the model and all its items.
#pragma once

#include "frame/vorq_solver.h"

namespace Vorq {

struct ProbHandle {
  ProbHandle() = default;

  // Creates a problem. `prob` stays null where the solver library refuses; there is no other report.
  explicit ProbHandle(VORQ_Env* env) { VORQ_CreateProb(env, &prob); }

  // A copy of the problem, `prob` being null where the solver library refuses.
  ProbHandle(ProbHandle const& other);
  ProbHandle& operator=(ProbHandle const& other);

  // An exception out of the solver library ends the process here.
  ~ProbHandle() noexcept { Delete(); }

  // Items have been marked as removed, and the solver library has not been told yet.
  bool dirty = false;
  VORQ_Prob* prob = nullptr;

 private:
  void Delete() noexcept;
};

}  // namespace Vorq
