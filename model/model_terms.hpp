// Templates of Model that turn terms into index lists and back, included by the topics that add or read lines.
#pragma once

#include "model/model.hpp"

namespace Vorq {

inline std::vector<Var> const& ItemsOf(Expr const& expr) {
  return expr.vars;
}
inline std::vector<Constraint> const& ItemsOf(Column const& column) {
  return column.constrs;
}

template <class Terms>
void Model::Compact(Terms& terms, int size, std::vector<int>& indices) {
  auto const& items = ItemsOf(terms);
  std::size_t const start = indices.size();
  int top = size;
  for (auto const& item : items) {
    int const index = item.Idx();
    indices.push_back(index);
    if (index >= top) top = index + 1;
  }
  EnsureDense(top);
  terms.ReduceDense(denseVal_, denseFlag_);
  if (indices.size() - start == items.size()) return;  // nothing was merged, so that nothing moved
  indices.resize(start);
  for (auto const& item : items) indices.push_back(item.Idx());
}

template <class Terms>
int Model::Compact(Terms& terms, int size) {
  indices_.clear();
  Compact(terms, size, indices_);
  return static_cast<int>(indices_.size());
}

template <class Item, class Terms>
void Model::AddLine(SparseLines const& lines, std::size_t line, Terms& terms) {
  for (int k = lines.begin[line]; k < lines.begin[line] + lines.count[line]; ++k) {
    auto const position = static_cast<std::size_t>(k);
    Item const item = Get<Item>(lines.index[position]);
    if (status.Failed()) return;
    terms.AddTerm(item, lines.value[position]);
  }
}

}  // namespace Vorq
