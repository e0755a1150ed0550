// TermMerger: merges the terms of expressions with scratch arrays that it keeps, so that a short expression costs
// little also where there are many columns.
#pragma once

#include <cstddef>
#include <vector>

#include "items/expr.hpp"

namespace Vorq {

class TermMerger {
 public:
  // Merges the terms in place, and appends the columns of those that stay.
  void Merge(Expr& expr, std::vector<int>& cols) {
    // Room is made for columns that the model does not have, which the solver library is to judge.
    for (Var const& var : expr.vars) MakeRoom(var.Idx());
    expr.ReduceDense(sums_, marks_);
    for (Var const& var : expr.vars) cols.push_back(var.Idx());
  }

 private:
  void MakeRoom(int col) {
    if (col < static_cast<int>(sums_.size())) return;
    sums_.resize(static_cast<std::size_t>(col) + 1);
    marks_.resize(static_cast<std::size_t>(col) + 1);
  }

  // One entry for each column up to the last that was met. Between merges all marks are zero.
  std::vector<double> sums_;
  std::vector<unsigned char> marks_;
};

}  // namespace Vorq
