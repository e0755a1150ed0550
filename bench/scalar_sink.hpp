// Builds a model through the scalar interfaces, as a program that uses them does: a handle a variable, one expression
// that is filled and handed over row by row.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <vorq>

#include "bench/generators.hpp"

namespace bench {

class ScalarSink {
 public:
  explicit ScalarSink(Vorq::IModel& model) : model_(model), row_(CreateExpr(0.0)) {}

  void Reserve(std::int64_t cols, std::int64_t, std::int64_t) { vars_.reserve(cols); }
  void Col(double lower, double upper, double objective, bool isInteger) {
    vars_.emplace_back(model_.AddVar(lower, upper, objective, isInteger ? 'B' : 'C', nullptr));
  }
  void EndCols() {}
  void Row(double lower, double upper, int count, int const* cols, double const* coefs) {
    row_->Clear();
    for (int k = 0; k < count; ++k) row_->AddTerm(vars_[cols[k]].get(), coefs[k]);
    bool const isUpper = lower <= -kInfinity;
    std::unique_ptr<Vorq::IConstraint> const row(model_.AddConstr(row_.get(),
                                                                  isUpper          ? 'L'
                                                                  : lower == upper ? 'E'
                                                                                   : 'G',
                                                                  isUpper ? upper : lower, nullptr));
  }

 private:
  Vorq::IModel& model_;
  std::unique_ptr<Vorq::IExpr> row_;
  std::vector<std::unique_ptr<Vorq::IVar>> vars_;
};

}  // namespace bench
