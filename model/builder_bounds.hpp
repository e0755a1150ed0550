// From the bounds of a row to the builder that makes such a row.
#pragma once

#include "frame/vorq_solver.h"
#include "items/builders.hpp"
#include "model/model.hpp"

namespace Vorq {

// `linear` is the linear part of the builder's expression, whose constant takes the right side.
template <class Builder>
void FoldBounds(Builder& builder, Expr& linear, double lower, double upper) {
  bool const boundedBelow = lower > -VORQ_INFINITY;
  bool const boundedAbove = upper < VORQ_INFINITY;
  builder.range = 0.0;
  if (!boundedAbove) {
    builder.sense = boundedBelow ? 'G' : 'N';
    linear.AddConstant(boundedBelow ? -lower : -0.0);
  } else if (!boundedBelow) {
    builder.sense = 'L';
    linear.AddConstant(-upper);
  } else if (lower == upper) {
    builder.sense = 'E';
    linear.AddConstant(-upper);
  } else {
    builder.sense = 'R';
    // Here the constant is replaced, which is meant.
    linear.constant = -upper;
    builder.range = upper - lower;
  }
}

template <class Builder, class Item>
bool Model::AddBounds(Builder& builder, Expr& linear, Item& constr) {
  double const lower = constr.Get("LB");
  if (constr.status.Failed()) return HandOn(constr.status);
  double const upper = constr.Get("UB");
  if (constr.status.Failed()) return HandOn(constr.status);
  FoldBounds(builder, linear, lower, upper);
  return true;
}

}  // namespace Vorq
