// Templates of Model that turn terms into index lists and back, included by the topics that add or read lines.
#pragma once

#include <span>

#include "model/cell_terms.hpp"
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

template <class Terms>
std::size_t Model::Collect(Terms const& terms) {
  EnsureDense(Count<Var>());
  indices_.clear();
  coeffs_.clear();
  return CollectTerms(terms, denseIdx_, indices_, coeffs_);
}

template <class Item, class Terms>
void Model::AddTerms(std::span<int const> indices, std::span<double const> coeffs, Terms& terms) {
  for (std::size_t k = 0; k < indices.size(); ++k) {
    Item const item = Get<Item>(indices[k]);
    if (status.Failed()) return;
    terms.AddTerm(item, coeffs[k]);
  }
}

template <class Item, class Terms>
void Model::AddLine(SparseLines const& lines, std::size_t line, Terms& terms) {
  auto const begin = static_cast<std::size_t>(lines.begin[line]);
  auto const count = static_cast<std::size_t>(lines.count[line]);
  AddTerms<Item>(std::span(lines.index).subspan(begin, count), std::span(lines.value).subspan(begin, count), terms);
}

}  // namespace Vorq
