// MipIncumbents: turns integer parts into exact solutions of the problem, keeps the different ones best first, and
// makes solutions of MIP starts.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "solver/engines/engine.hpp"

namespace vorqsolver {

class MipIncumbents {
 public:
  explicit MipIncumbents(SolveTask const& task) : task_(task) {}

  // Fixes all that is discrete as in `values`, solves the linear rest, and keeps the solution if the problem accepts
  // it. With `urgent` the rest gets little time, whatever stopped the search, and where
  // that is too little the point is kept as it is. Whether that gave a solution, known or
  // not.
  bool Complete(std::span<double const> values, bool urgent);

  // Keeps the point as it is if it solves the problem.
  bool KeepAsIs(std::span<double const> values);

  std::vector<PoolSolution> const& Pool() const { return pool_; }
  bool IsEmpty() const { return pool_.empty(); }
  PoolSolution const& Best() const { return pool_.front(); }

  // The objective of the solution that was kept last, known or not.
  double LastObjective() const { return lastObjective_; }

  // The LP of the best solution, empty where that was taken as it is.
  SolveResult const& BestLp() const { return bestLp_; }

 private:
  std::vector<double> Rounded(std::span<double const> values) const;
  bool Insert(std::vector<double> values);

  SolveTask const& task_;
  std::vector<PoolSolution> pool_;
  double lastObjective_ = 0.0;
  SolveResult bestLp_;
};

}  // namespace vorqsolver
