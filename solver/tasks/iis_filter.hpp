// DeletionFilter: makes an infeasible set of members irreducible by leaving out what is not needed for infeasibility.
//
// The deletion filter with the sets of rays as short cuts (Chinneck, Feasibility and Infeasibility in Optimization,
// 2008, chapters 6 and 7). Members are left out in lots, whose size adapts; feasible points that turned up on the way
// answer later questions; for points of integers their neighbours are looked at, too (the model rotation of
// Marques-Silva and Lynce, On improving MUS extraction algorithms, 2011).
#pragma once

#include <atomic>
#include <cstddef>
#include <optional>
#include <vector>

#include "solver/engines/engine.hpp"
#include "solver/problem/problem.hpp"
#include "solver/tasks/iis_members.hpp"

namespace vorqsolver {

class DeletionFilter {
 public:
  // `data` is all or a part of the problem's; parameters, log and interruption are those of the problem.
  DeletionFilter(ProblemData const& data, Problem& problem, StopSignal& stop);

  enum class Verdict { kInfeasible, kFeasible, kUnknown };

  // Whether the members are infeasible together. On kInfeasible, `members` shrink to those that the proof rests upon.
  // A search of a problem with discrete parts gets as many seconds.
  Verdict Judge(Members& members, std::optional<double> seconds = std::nullopt);

  // Leaves out members, the first ones first, until none is left that can go. They must be infeasible together.
  void Run(Members& members);

  // Whether Run answered all its questions.
  bool IsIrreducible() const { return isIrreducible_; }

  int Trials() const { return trials_; }

 private:
  Verdict JudgeDiscrete(Members const& members, std::optional<double> seconds);
  void KeepPoint(MemberProblem const& stated, std::vector<double> const& values);
  bool IsKnownFeasible(Members const& members, Members const& left);
  void Rotate(Members const& members, Member only);
  void Tick(std::size_t left, std::size_t needed);

  ProblemData const& data_;
  ParameterSet parameters_;
  std::atomic<bool> const& interrupted_;
  StopSignal& stop_;
  Log& log_;
  Log quiet_;
  bool mayRotate_ = false;
  bool isIrreducible_ = true;
  int trials_ = 0;
  double longestProof_ = 0.0;  // seconds of a search that proved infeasibility
  double lastLine_ = 0.0;
  std::size_t mostPoints_ = 0;
  std::vector<std::vector<double>> points_;
};

}  // namespace vorqsolver
