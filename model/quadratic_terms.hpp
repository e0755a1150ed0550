// QuadraticTerms: the indices of an expression's quadratic terms. They are taken as they stand, also those of variables
// that are not live: the solver library judges them.
#pragma once

#include <vector>

#include "items/quad_expr.hpp"

namespace Vorq {

struct QuadraticTerms {
  explicit QuadraticTerms(QuadExpr const& expr) {
    rows.reserve(expr.Size());
    cols.reserve(expr.Size());
    for (Var const& var : expr.vars1) rows.push_back(var.Idx());
    for (Var const& var : expr.vars2) cols.push_back(var.Idx());
  }

  int Count() const { return static_cast<int>(rows.size()); }

  std::vector<int> rows;
  std::vector<int> cols;
};

}  // namespace Vorq
