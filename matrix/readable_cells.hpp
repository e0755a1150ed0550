// The cells of an operand, of which each can be read: an array of numbers without a store reads as zeros, and what a
// shape reaches outside of the store as a default cell.
#pragma once

#include "matrix/operators_kinds.hpp"
#include "ndarray/within_store.hpp"

namespace Vorq {

template <class Operand>
NdArray<OperandCell<Operand>, Operand::kRank> ReadableCells(Operand const& operand) {
  return WithinStore(CellsOf(operand), DefaultCell<OperandCell<Operand>>());
}

}  // namespace Vorq
