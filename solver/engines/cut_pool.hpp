// CutPool: the rows that a search holds beside its relaxation, and puts into it where a point violates them: lazy
// constraints and user cuts, of the problem and of callbacks.
#pragma once

#include <cstddef>
#include <span>
#include <unordered_map>
#include <vector>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// The distance of the row's activity to its sides, against the size of the numbers involved.
double Violation(LinearRow const& row, std::span<double const> point);

class CutPool {
 public:
  enum class Kind : char { kLazyConstraint, kUserCut };
  enum class Source : char { kProblem, kCallback };

  struct Entry {
    LinearRow row;  // each column once, ascending
    Kind kind;
    Source source;
    bool isActive = false;  // whether it stands in the relaxation

    // Whether solutions must satisfy it. A user cut of a callback speaks of relaxations only.
    bool IsRequired() const { return kind == Kind::kLazyConstraint || source == Source::kProblem; }
  };

  explicit CutPool(double tolerance) : tolerance_(tolerance) {}

  // A row that is known already counts once.
  void Add(LinearRow row, Kind kind, Source source);

  // The inactive rows that the point violates, most violated first, at most `limit` of them.
  std::vector<int> Violated(std::span<double const> point, std::size_t limit) const;

  // Whether the point satisfies all rows that solutions must satisfy.
  bool Accepts(std::span<double const> point) const;

  void SetActive(int entry, bool isActive) { entries_[entry].isActive = isActive; }

  Entry const& operator[](int entry) const { return entries_[entry]; }
  int Size() const { return static_cast<int>(entries_.size()); }
  int Count(Kind kind) const { return counts_[static_cast<int>(kind)]; }

 private:
  double tolerance_;
  std::vector<Entry> entries_;
  std::unordered_multimap<std::size_t, int> byHash_;
  int counts_[2] = {};
};

}  // namespace vorqsolver
