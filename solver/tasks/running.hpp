// Running: marks a problem as being solved for as long as it lives, so that nothing changes it meanwhile.
#pragma once

#include "solver/problem/failure.hpp"
#include "solver/problem/problem.hpp"

namespace vorqsolver {

class Running {
 public:
  explicit Running(Problem& problem) : problem_(problem) {
    if (problem_.solving.exchange(true)) throw Failure(VORQ_INVALID, "The problem is being solved already");
    problem_.interrupted = false;
  }
  Running(Running const&) = delete;
  Running& operator=(Running const&) = delete;
  ~Running() { problem_.solving = false; }

 private:
  Problem& problem_;
};

}  // namespace vorqsolver
