// What the services, which have no status, answer to an operand that is null.
#pragma once

#include "handles/handle.hpp"

namespace Vorq {

// The place of the first object that is null, counted from 1; 0 if there is none.
template <class... Operands>
int NullPlace(Operands const&... operands) {
  int place = 0;
  return ((++place, IsNullObject(operands)) || ...) ? place : 0;
}

// The failed result of an operation whose operand at that place is null. Cells have no status, and are empty.
template <class Result>
[[gnu::cold]] Result* NullOperand(int place) {
  using Value = typename HandleTraits<Result>::Handle::Impl_t;
  return Wrap<Result>(FailedValue<Value>("Operand " + std::to_string(place) + " is null"));
}

}  // namespace Vorq
