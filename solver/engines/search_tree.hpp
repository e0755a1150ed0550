// SearchTree: the open nodes of a branch and cut, best bound first.
#pragma once

#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "solver/engines/tree_relaxation.hpp"

namespace vorqsolver {

// How a node came from its parent, for what is learned of a column.
struct BranchOrigin {
  int col = -1;  // -1 where it was no branch on a column
  bool isUp = false;
  double distance = 0.0;  // that the column had to move
};

struct SearchNode {
  double bound = -std::numeric_limits<double>::infinity();
  int depth = 0;
  std::vector<BoundChange> changes;  // against the bounds of the root
  std::shared_ptr<CoinWarmStartBasis> basis;
  BranchOrigin origin;
};

class SearchTree {
 public:
  void Push(SearchNode node);

  // The node with the best bound; of several the deepest.
  SearchNode Pop();

  bool IsEmpty() const { return nodes_.empty(); }
  int Size() const { return static_cast<int>(nodes_.size()); }
  double BestBound() const { return nodes_.front().bound; }

  // Drops the nodes that cannot lead below `cutoff`.
  void Prune(double cutoff);

  // Takes rows out of all bases.
  void DeleteRows(std::vector<int> const& rows);

 private:
  std::vector<SearchNode> nodes_;  // a heap
};

}  // namespace vorqsolver
