// Templates of Model that turn terms into index lists and back, included by the topics that add or read lines.
#pragma once

#include <algorithm>
#include <span>

#include "model/cell_terms.hpp"
#include "model/model.hpp"

namespace Vorq {

inline std::vector<Var>& ItemsOf(Expr& expr) {
  return expr.vars;
}
inline std::vector<Constraint>& ItemsOf(Column& column) {
  return column.constrs;
}

template <class Terms>
int Model::Compact(Terms& terms, int size) {
  auto& items = ItemsOf(terms);
  indices_.resize(items.size());
  int top = size;
  for (std::size_t i = 0; i < items.size(); ++i) {
    indices_[i] = items[i].Idx();
    top = std::max(top, indices_[i] + 1);
  }
  EnsureMarks(top);
  if (!AreReduced(terms.coeffs, indices_, denseFlag_.data())) {
    EnsureDense(top);
    ReduceTermsDense([this](std::size_t i) { return indices_[i]; }, denseVal_.data(), denseFlag_.data(), terms.coeffs,
                     items, indices_);
  }
  return static_cast<int>(indices_.size());
}

template <class Terms>
void Model::Compact(Terms& terms, int size, std::vector<int>& indices) {
  Compact(terms, size);
  indices.insert(indices.end(), indices_.begin(), indices_.end());
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
