// The handle on a symmetric matrix.
#pragma once

#include "handles/handle.hpp"
#include "items/sym_matrix.hpp"
#include "vorqmodel/symmetric_matrices.h"

class VorqSymMatrix final : public Vorq::Handle<VorqSymMatrix, Vorq::ISymMatrix, Vorq::SymMatrix> {
 public:
  using Handle::Handle;

  int GetIdx() override { return Impl().Idx(); }
  int GetDim() override { return Impl().dim; }
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }
};

template <>
struct Vorq::HandleTraits<Vorq::ISymMatrix> {
  using Handle = VorqSymMatrix;
};
