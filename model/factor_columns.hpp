// FactorColumns: the columns of the variables of a sparse product, read once for the rows of all of its cells.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "frame/growth.hpp"
#include "matrix/sparse_terms.hpp"

namespace Vorq {

class FactorColumns {
 public:
  // For this many terms: where a product has many more variables, reading all of them does not pay.
  explicit FactorColumns(std::size_t terms) : credit_(terms) {}

  // The column of each variable of the vector that the terms refer to; negative for those that are not live. Null where
  // each term is better read for itself. Valid until the next call.
  int const* Find(SparseTerms const& terms) {
    if (factors_ != &terms.Factors() && !Read(terms.Factors())) return nullptr;
    return columns_.data() + terms.VectorBegin();
  }

  // Of the product that Find was last called for: the greatest column, and whether each variable of its first vector
  // is at its column.
  int Greatest() const { return greatest_; }
  bool AreInOrder() const { return areInOrder_; }

 private:
  bool Read(SparseFactors const& factors) {
    auto const vars = factors.Vars();
    // Reading a variable after the other costs a fraction of what reading the scattered ones of a term does.
    std::size_t const cost = vars.size() / 4;
    if (cost > credit_) return false;
    credit_ -= cost;
    factors_ = &factors;
    columns_.clear();
    ReserveMore(columns_, vars.size());
    greatest_ = -1;
    areInOrder_ = true;
    for (Var const& var : vars) {
      int const column = var.Idx();
      greatest_ = std::max(greatest_, column);
      areInOrder_ = areInOrder_ && std::cmp_equal(column, columns_.size());
      columns_.push_back(column);
    }
    return true;
  }

  std::size_t credit_;
  SparseFactors const* factors_ = nullptr;
  std::vector<int> columns_;
  int greatest_ = -1;
  bool areInOrder_ = true;
};

}  // namespace Vorq
