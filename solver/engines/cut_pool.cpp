// Rows known once each, and what a point makes of them.
#include "solver/engines/cut_pool.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace vorqsolver {

namespace {

// Each column once, in order, without zeros.
std::vector<LinearTerm> Merged(std::vector<LinearTerm> terms) {
  std::ranges::stable_sort(terms, {}, &LinearTerm::col);
  std::size_t kept = 0;
  for (std::size_t k = 0; k < terms.size(); ++k) {
    if (kept > 0 && terms[kept - 1].col == terms[k].col) {
      terms[kept - 1].value += terms[k].value;
    } else {
      terms[kept++] = terms[k];
    }
  }
  terms.resize(kept);
  std::erase_if(terms, [](LinearTerm const& term) { return term.value == 0.0; });
  return terms;
}

std::size_t HashOf(LinearRow const& row) {
  std::size_t hash = row.terms.size();
  auto const mix = [&hash](std::size_t value) { hash = (hash ^ value) * 1099511628211ULL; };
  for (auto const& term : row.terms) {
    mix(static_cast<std::size_t>(term.col));
    mix(std::hash<double>()(term.value));
  }
  mix(std::hash<double>()(row.lower));
  mix(std::hash<double>()(row.upper));
  return hash;
}

bool IsSame(LinearRow const& left, LinearRow const& right) {
  return left.lower == right.lower && left.upper == right.upper &&
         std::ranges::equal(left.terms, right.terms, [](LinearTerm const& a, LinearTerm const& b) {
           return a.col == b.col && a.value == b.value;
         });
}

}  // namespace

double Violation(LinearRow const& row, std::span<double const> point) {
  double activity = 0.0;
  double size = 1.0;
  for (auto const& [col, value] : row.terms) {
    double const term = value * point[static_cast<std::size_t>(col)];
    activity += term;
    size = std::max(size, std::abs(term));
  }
  double violation = 0.0;
  if (row.lower > -kInfinity) violation = (row.lower - activity) / std::max(size, std::abs(row.lower));
  if (row.upper < kInfinity) {
    violation = std::max(violation, (activity - row.upper) / std::max(size, std::abs(row.upper)));
  }
  return violation;
}

void CutPool::Add(LinearRow row, Kind kind, Source source) {
  row.terms = Merged(std::move(row.terms));
  auto const hash = HashOf(row);
  auto const [first, last] = byHash_.equal_range(hash);
  for (auto known = first; known != last; ++known) {
    auto& entry = entries_[static_cast<std::size_t>(known->second)];
    if (!IsSame(entry.row, row)) continue;
    if (entry.IsRequired() || kind == Kind::kUserCut) return;
    --counts_[static_cast<int>(entry.kind)];
    ++counts_[static_cast<int>(kind)];
    entry.kind = kind;
    return;
  }
  byHash_.emplace(hash, Size());
  ++counts_[static_cast<int>(kind)];
  entries_.push_back({std::move(row), kind, source});
}

std::vector<int> CutPool::Violated(std::span<double const> point, std::size_t limit) const {
  std::vector<std::pair<double, int>> found;
  for (int entry = 0; entry < Size(); ++entry) {
    if (entries_[entry].isActive) continue;
    double const violation = Violation(entries_[entry].row, point);
    if (violation > tolerance_) found.emplace_back(-violation, entry);
  }
  std::ranges::sort(found);
  if (found.size() > limit) found.resize(limit);
  std::vector<int> entries;
  entries.reserve(found.size());
  for (auto const& [violation, entry] : found) entries.push_back(entry);
  return entries;
}

bool CutPool::Accepts(std::span<double const> point) const {
  return std::ranges::all_of(
      entries_, [&](Entry const& entry) { return !entry.IsRequired() || Violation(entry.row, point) <= tolerance_; });
}

}  // namespace vorqsolver
