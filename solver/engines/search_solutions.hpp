// SearchSolutions: the solutions of a branch and cut: who may judge a candidate (the problem, the rows of the pool, the
// caller's callback), the best so far, and what the caller offers.
#pragma once

#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "solver/engines/cut_pool.hpp"
#include "solver/engines/engine.hpp"
#include "solver/engines/mip_incumbents.hpp"
#include "solver/engines/mip_model.hpp"
#include "solver/engines/mip_progress.hpp"
#include "solver/tasks/callback_session.hpp"

namespace vorqsolver {

enum class Verdict {
  kAccepted,   // the new incumbent
  kCutOff,     // it violates rows of the pool
  kImprecise,  // the callback objects to it for less than the tolerances
  kRefused,    // it does not solve the problem, or is no better than the incumbent
  kUnsolved,   // what it leaves open could not be solved
};

class SearchSolutions : public RunningSearch {
 public:
  SearchSolutions(SolveTask const& task, MipModel const& mip, CutPool& pool, MipProgress& progress);
  SearchSolutions(SearchSolutions const&) = delete;
  SearchSolutions& operator=(SearchSolutions const&) = delete;

  // Numbers for the callback, before each call.
  void SetCounts(int nodes, int openNodes, double bound);

  // Calls back for the relaxation of a node.
  void ShowRelaxation(std::span<double const> values, double objective);

  // `values` has the columns of the problem first; integers are rounded. `mark` as in MipProgress.
  Verdict Judge(std::span<double const> values, char mark) { return Judge(values, mark, false); }

  // The same for a point with good values of what is discrete: the rest is solved anew, and again with each row that
  // cuts it off.
  Verdict JudgeCompleted(std::span<double const> values, char mark);

  // Fills open entries (1e40) and mends the others by fixing what is given; none if nothing feasible comes of it. The
  // limit counts the nodes of a search for open integers, negative for none.
  std::optional<std::vector<double>> Complete(std::span<double const> values, int nodeLimit);

  // The problem's columns, with the integer ones exactly so.
  std::vector<double> Rounded(std::span<double const> values) const;

  // Judges what the caller offered meanwhile. To be called where the search can bear a new incumbent.
  void TakeOffers();

  // The rows of the pool that solutions must satisfy, put into a model of the problem's columns.
  void AddRequiredRows(LinearModel& model) const;

  MipIncumbents const& Incumbents() const { return incumbents_; }

  // The objective, as the engine minimises it, from which on a solution is no improvement worth looking for.
  double Cutoff() const { return cutoff_; }

  // The linear problem that is left once all that is discrete stands as in the incumbent, solved; its values are the
  // incumbent's own, but for rounding.
  SolveResult FinalLp() const;

  SearchState const& State() const override { return state_; }
  void TakeLazyConstraints(std::vector<LinearRow> rows) override;
  void TakeUserCuts(std::vector<LinearRow> rows) override;
  std::optional<double> OfferSolution(std::span<double const> values) override;

 private:
  // With `isExact` the point is as precise as it can be.
  Verdict Judge(std::span<double const> values, char mark, bool isExact);

  struct Offer {
    std::vector<double> given;
    int lazyConstraints;  // that were known when it was completed
    std::optional<double> objective;
  };

  bool IsOver() const { return task_.stop.Asked() && task_.stop.Reason() == SolveStatus::kInterrupted; }
  void Call(int context);
  void CountRows();
  void Install(std::vector<double> const& values, double objective, char mark);
  double EngineValue(double objective) const { return sign_ * (objective - task_.data.objective.constant); }
  double ObjectiveStep() const;
  bool IsFeasible(std::span<double const> values) const;
  LinearModel Rest(std::span<double const> values) const;
  // The status is that of the linear problem.
  SolveResult SolveRest(LinearModel const& rest) const;
  std::optional<std::vector<double>> SearchRest(std::span<double const> given, bool fixContinuous, int nodeLimit) const;

  SolveTask const& task_;
  MipModel const& mip_;
  CutPool& pool_;
  MipProgress& progress_;
  MipIncumbents incumbents_;
  SearchState state_;
  double sign_;
  double step_;  // the objective of any two solutions differs by a multiple; 0 where nothing is known
  double cutoff_;
  bool isObjected_ = false;    // whether a lazy constraint came that the candidate violates, be it ever so little
  std::vector<Offer> offers_;  // the last few, since callers repeat them
  std::deque<std::vector<double>> queue_;  // completed offers to be judged
};

}  // namespace vorqsolver
