// Reordering of a problem.
#include "solver/tasks/permuted.hpp"

#include <algorithm>
#include <numeric>
#include <random>

namespace vorqsolver {

namespace {

// Fisher and Yates; std::shuffle gives other orders with other libraries.
std::vector<int> RandomOrder(int count, std::mt19937& random) {
  std::vector<int> order(static_cast<std::size_t>(count));
  std::iota(order.begin(), order.end(), 0);
  for (std::size_t k = order.size(); k > 1; --k) std::swap(order[k - 1], order[random() % k]);
  return order;
}

class Permutation {
 public:
  Permutation(ProblemData const& data, unsigned seed) : data_(data), random_(seed) {
    order_ = RandomOrder(data.columns.Count(), random_);
    place_.resize(order_.size());
    for (std::size_t k = 0; k < order_.size(); ++k) place_[static_cast<std::size_t>(order_[k])] = static_cast<int>(k);
  }

  ProblemData Apply();

 private:
  template <typename AnyRows>
  AnyRows Moved(AnyRows const& rows);
  int PlaceOf(int col) const { return place_[static_cast<std::size_t>(col)]; }

  ProblemData const& data_;
  std::mt19937 random_;
  std::vector<int> order_;  // the column that stands at each place
  std::vector<int> place_;  // of each column
};

template <typename AnyRows>
AnyRows Permutation::Moved(AnyRows const& rows) {
  AnyRows moved;
  moved.matrix.AppendEmptyCols(data_.columns.Count());
  for (int const row : RandomOrder(rows.Count(), random_)) {
    auto const view = rows.matrix.Row(row);
    std::vector<int> cols;
    cols.reserve(view.indices.size());
    for (int const col : view.indices) cols.push_back(PlaceOf(col));
    moved.matrix.AppendRow(cols, view.values);
    moved.lower.push_back(rows.lower[row]);
    moved.upper.push_back(rows.upper[row]);
  }
  return moved;
}

ProblemData Permutation::Apply() {
  ProblemData moved;
  moved.objective = data_.objective;
  auto const& columns = data_.columns;
  for (int const col : order_) {
    moved.columns.lower.push_back(columns.lower[col]);
    moved.columns.upper.push_back(columns.upper[col]);
    moved.columns.objective.push_back(columns.objective[col]);
    moved.columns.type.push_back(columns.type[col]);
  }
  moved.rows = Moved(data_.rows);
  moved.lazyConstraints = Moved(data_.lazyConstraints);
  moved.userCuts = Moved(data_.userCuts);
  moved.soss = data_.soss;
  for (auto& sos : moved.soss) {
    for (int& col : sos.cols) col = PlaceOf(col);
  }
  moved.indicators = data_.indicators;
  for (auto& indicator : moved.indicators) {
    indicator.binCol = PlaceOf(indicator.binCol);
    for (auto& term : indicator.terms) term.col = PlaceOf(term.col);
  }
  return moved;
}

}  // namespace

ProblemData Permuted(ProblemData const& data, unsigned seed) {
  return Permutation(data, seed).Apply();
}

}  // namespace vorqsolver
