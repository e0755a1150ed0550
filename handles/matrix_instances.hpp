// How handles on blocks are made, for the files that instantiate them.
#pragma once

#include "handles/matrix_handle.hpp"

namespace Vorq {

template <class Cell, int N>
IMatrixObject<Cell, N>* WrapBlock(MatrixObject<Cell, N>&& block) {
  return Wrap<IMatrixObject<Cell, N>>(std::move(block));
}

}  // namespace Vorq

// The handles of one kind, and how they are made.
#define VORQ_BLOCK_HANDLES(Handle, Cell)                                           \
  template class Handle<0>;                                                        \
  template class Handle<1>;                                                        \
  template class Handle<2>;                                                        \
  template class Handle<3>;                                                        \
  template Vorq::IMatrixObject<Cell, 0>* Vorq::WrapBlock(MatrixObject<Cell, 0>&&); \
  template Vorq::IMatrixObject<Cell, 1>* Vorq::WrapBlock(MatrixObject<Cell, 1>&&); \
  template Vorq::IMatrixObject<Cell, 2>* Vorq::WrapBlock(MatrixObject<Cell, 2>&&); \
  template Vorq::IMatrixObject<Cell, 3>* Vorq::WrapBlock(MatrixObject<Cell, 3>&&);
