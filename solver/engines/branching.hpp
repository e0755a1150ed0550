// Branching: how a node is split: by a column whose value is not integer, chosen by what earlier branches on it gained,
// or by a set (SOS) with too many nonzero columns.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "solver/engines/search_tree.hpp"
#include "solver/engines/tree_relaxation.hpp"

namespace vorqsolver {

struct BranchChoice {
  std::vector<BoundChange> down;
  std::vector<BoundChange> up;
  int col = -1;  // of a branch on a column
  double downDistance = 0.0;
  double upDistance = 0.0;
  bool upFirst = false;

  // What a trial proved: no solution on that side.
  bool downIsEmpty = false;
  bool upIsEmpty = false;
};

class Branching {
 public:
  Branching(MipModel const& mip, ParameterSet const& parameters);

  bool IsIntegral(std::span<double const> values) const;
  bool SetsHold(std::span<double const> values) const;

  // A split that excludes the point of the relaxation, which is not integral or violates a set. The relaxation is the
  // same afterwards. `cutoff` is the objective at which a node is of no use.
  BranchChoice Choose(TreeRelaxation& relaxation, double cutoff);

  // A split of a set that the bounds leave open, whatever the point; none if they settle all sets.
  std::optional<BranchChoice> ChooseOpenSet(TreeRelaxation const& relaxation) const;

  // A split of the integer columns that are still free where the point itself is integral; none if all are fixed.
  std::optional<BranchChoice> ChooseAmongIntegral(TreeRelaxation const& relaxation) const;

  // What a node's relaxation gained over its parent.
  void Learn(BranchOrigin const& origin, double gain);

  static double Distance(double value);
  bool IsInteger(double value) const { return Distance(value) <= tolerance_; }

 private:
  struct Experience {
    double gain = 0.0;  // for each unit of the distance
    int count = 0;
  };
  struct Candidate {
    int col;
    double value;
    double score;
  };

  double Estimate(int col, bool isUp) const;
  double Score(int col, double value) const;
  bool IsReliable(int col) const;
  std::vector<Candidate> Candidates(std::span<double const> values) const;
  BranchChoice SplitColumn(TreeRelaxation const& relaxation, int col, double value) const;
  BranchChoice SplitSet(std::span<double const> values) const;
  double Try(TreeRelaxation& relaxation, BranchChoice& choice, double cutoff);
  static BranchChoice SplitAt(MipModel::Set const& set, int first, int place, int last);
  int FirstNonzero(MipModel::Set const& set, std::span<double const> values) const;
  int LastNonzero(MipModel::Set const& set, std::span<double const> values) const;

  MipModel const& mip_;
  double tolerance_;
  double setTolerance_;
  bool tries_;
  std::vector<Experience> experience_[2];  // down, up
  Experience average_[2];
};

}  // namespace vorqsolver
