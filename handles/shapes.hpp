// The handle on shapes.
#pragma once

#include "handles/handle.hpp"
#include "ndarray/shape.hpp"
#include "vorqmodel/shapes.h"

template <int N>
class VorqNDim;

template <int N>
struct Vorq::HandleTraits<Vorq::INDim<N>> {
  using Handle = VorqNDim<N>;
};

template <int N>
class VorqNDim final : public Vorq::Handle<VorqNDim<N>, Vorq::INDim<N>, Vorq::NDim<N>> {
 public:
  using Vorq::Handle<VorqNDim<N>, Vorq::INDim<N>, Vorq::NDim<N>>::Handle;

  int GetND() override { return N; }
  std::uint64_t GetDim(int axis) override { return this->Impl().GetDim(axis); }
  std::uint64_t GetSize() override { return this->Impl().GetSize(); }
  std::int64_t GetStride(int axis) override { return this->Impl().GetStride(axis); }
  std::int64_t GetOffset(int axis) override { return this->Impl().GetOffset(axis); }
  Vorq::INDim<N>* Clone() override { return Vorq::Wrap<Vorq::INDim<N>>(this->Impl().Clone()); }
  Vorq::INDim<N>* CreateUniform(std::uint64_t n) override {
    return Vorq::Wrap<Vorq::INDim<N>>(this->Impl().CreateUniform(n));
  }
  std::string ToString(int mode) override { return this->Impl().ToString(mode); }
  bool Equals(Vorq::INDim<N>* other) override { return this->Ask(false, VORQ_CALL(Equals, other)); }
  int GetLastError() override { return this->Impl().GetLastError(); }
  char const* GetErrorMessage() override { return this->Impl().GetErrorMessage(); }
};

extern template class VorqNDim<0>;
extern template class VorqNDim<1>;
extern template class VorqNDim<2>;
extern template class VorqNDim<3>;
