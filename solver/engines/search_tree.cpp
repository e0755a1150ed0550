// The heap of open nodes.
#include "solver/engines/search_tree.hpp"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vorqsolver {

namespace {

bool IsWorse(SearchNode const& left, SearchNode const& right) {
  if (left.bound != right.bound) return left.bound > right.bound;
  return left.depth < right.depth;
}

}  // namespace

void SearchTree::Push(SearchNode node) {
  nodes_.push_back(std::move(node));
  std::ranges::push_heap(nodes_, IsWorse);
}

SearchNode SearchTree::Pop() {
  std::ranges::pop_heap(nodes_, IsWorse);
  SearchNode node = std::move(nodes_.back());
  nodes_.pop_back();
  return node;
}

void SearchTree::Prune(double cutoff) {
  std::erase_if(nodes_, [cutoff](SearchNode const& node) { return node.bound >= cutoff; });
  std::ranges::make_heap(nodes_, IsWorse);
}

void SearchTree::DeleteRows(std::vector<int> const& rows) {
  if (rows.empty()) return;
  std::unordered_set<CoinWarmStartBasis*> bases;
  for (auto const& node : nodes_) {
    if (node.basis) bases.insert(node.basis.get());
  }
  for (auto* basis : bases) {
    // A basis that is older than a row knows nothing of it.
    auto const known = std::ranges::lower_bound(rows, basis->getNumArtificial()) - rows.begin();
    if (known > 0) basis->deleteRows(static_cast<int>(known), rows.data());
  }
}

}  // namespace vorqsolver
