// The cells of an operand, of which each can be read: those of an array without a store read as default cells.
#pragma once

#include "matrix/operators_kinds.hpp"
#include "ndarray/with_elements.hpp"

namespace Vorq {

template <class Operand>
NdArray<OperandCell<Operand>, Operand::kRank> ReadableCells(Operand const& operand) {
  return WithElements(CellsOf(operand), DefaultCell<OperandCell<Operand>>());
}

}  // namespace Vorq
