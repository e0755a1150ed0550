// TreeRelaxation: the linear relaxation of a search tree, one for all nodes: its bounds follow the node, and rows come
// and go.
#pragma once

#include <CoinWarmStartBasis.hpp>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "solver/engines/clp_control.hpp"
#include "solver/engines/clp_interface.hpp"
#include "solver/engines/cut_pool.hpp"
#include "solver/engines/mip_model.hpp"

namespace vorqsolver {

struct BoundChange {
  int col;
  double lower;
  double upper;
};

class TreeRelaxation {
 public:
  enum class Outcome { kOptimal, kInfeasible, kUnbounded, kStopped, kFailed };

  TreeRelaxation(SolveTask const& task, MipModel const& mip, CutPool& pool, IterationWatch::Report const& tick);
  TreeRelaxation(TreeRelaxation const&) = delete;
  TreeRelaxation& operator=(TreeRelaxation const&) = delete;

  Outcome Solve();

  // Solves as if no column lay farther than `size` from 0 where its bounds leave that open: a point for a relaxation
  // that has no end. The objective bounds nothing.
  Outcome SolveWithin(double size);

  // Of the last solve.
  double Objective() const { return objective_; }
  std::span<double const> Values() const { return values_; }

  // Solves with further changes for some iterations, each time from where it was at the begin of the trials; the end of
  // the trials goes back there.
  struct Trial {
    Outcome outcome = Outcome::kFailed;
    double objective = 0.0;
  };
  void BeginTrials(int iterations);
  Trial Try(std::span<BoundChange const> changes);
  void EndTrials();
  int TrialIterations() const { return trialIterations_; }

  double Lower(int col) const { return solver_.getColLower()[col]; }
  double Upper(int col) const { return solver_.getColUpper()[col]; }
  int Iterations() const { return iterations_; }

  // The bounds that hold everywhere in the tree.
  void SetRootBounds(int col, double lower, double upper);

  // Root bounds with these changes on top, the later ones over the earlier ones.
  void MoveTo(std::span<BoundChange const> changes);
  void Change(std::span<BoundChange const> changes);

  std::shared_ptr<CoinWarmStartBasis> Basis() const;
  void SetBasis(CoinWarmStartBasis const& basis);

  void AddFromPool(std::span<int const> entries);

  // All rows of the pool that are not in; false if there is none.
  bool AddWholePool();

  // Takes the tightened bounds and, of the rows that the point of the last solve violates, at most `limit`; false if
  // there is nothing to take.
  bool AddCuts(OsiCuts const& cuts, std::size_t limit);

  // Counts the solves in which each added row was slack, and names those rows that were slack for long, if there are
  // many. The caller keeps them out of the bases that it holds.
  std::vector<int> IdleRows();
  void DeleteRows(std::vector<int> const& rows);

  // For cut generators.
  ClpInterface const& Solver() const { return solver_; }

 private:
  struct AddedRow {
    int poolEntry;  // -1 for a cut of no pool
    int idle = 0;
  };

  Outcome SolveAfresh();
  void TakePoint();
  Outcome Read();

  SolveTask const& task_;
  CutPool& pool_;
  IterationWatch::Report const& tick_;
  SilentHandler silent_;
  ClpInterface solver_;
  int baseRows_ = 0;
  std::vector<AddedRow> added_;
  std::vector<double> rootLower_;
  std::vector<double> rootUpper_;
  std::vector<double> values_;
  double objective_ = 0.0;
  bool isSolved_ = false;
  int iterations_ = 0;
  int trialIterations_ = 0;
  std::unique_ptr<CoinWarmStart> trialBasis_;
};

}  // namespace vorqsolver
