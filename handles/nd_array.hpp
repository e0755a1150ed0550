// The handle on arrays of numbers.
#pragma once

#include "handles/handle.hpp"
#include "handles/shapes.hpp"
#include "handles/views.hpp"
#include "ndarray/nd_array_numbers.hpp"
#include "vorqmodel/nd_array.h"

template <class T, int N>
class VorqNdArray;

template <class T, int N>
struct Vorq::HandleTraits<Vorq::INdArray<T, N>> {
  using Handle = VorqNdArray<T, N>;
};

namespace Vorq {

// A handle on `array`, owned by the caller.
template <class T, int N>
INdArray<T, N>* WrapArray(NdArray<T, N>&& array) {
  return Wrap<INdArray<T, N>>(std::move(array));
}

}  // namespace Vorq

template <class T, int N>
class VorqNdArray final : public Vorq::Handle<VorqNdArray<T, N>, Vorq::INdArray<T, N>, Vorq::NdArray<T, N>> {
 public:
  using Vorq::Handle<VorqNdArray<T, N>, Vorq::INdArray<T, N>, Vorq::NdArray<T, N>>::Handle;

  template <int M>
  using Array = Vorq::INdArray<T, M>;

  int GetND() override { return N; }
  std::uint64_t GetDim(int axis) override { return this->Impl().GetDim(axis); }
  std::uint64_t GetSize() override { return this->Impl().GetSize(); }
  Vorq::INDim<N>* GetShape() override { return Vorq::Wrap<Vorq::INDim<N>>(this->Impl().GetShape()); }
  Array<1>* Reshape(Vorq::INDim<1>* shape) override { return this->template Make<Array<1>>(VORQ_CALL(Reshape, shape)); }
  Array<2>* Reshape(Vorq::INDim<2>* shape) override { return this->template Make<Array<2>>(VORQ_CALL(Reshape, shape)); }
  Array<3>* Reshape(Vorq::INDim<3>* shape) override { return this->template Make<Array<3>>(VORQ_CALL(Reshape, shape)); }
  Array<1>* Flatten() override { return Vorq::WrapArray(this->Impl().Flatten()); }
  Array<N>* Repeat(std::uint64_t n, int axis) override { return Vorq::WrapArray(this->Impl().Repeat(n, axis)); }
  Array<N>* RepeatBlock(std::uint64_t n, int axis) override {
    return Vorq::WrapArray(this->Impl().RepeatBlock(n, axis));
  }
  Array<0>* Sum() override { return Vorq::WrapArray(Vorq::Sum(this->Impl())); }
  Array<N>* Transpose() override { return Vorq::WrapArray(this->Impl().Transpose()); }
  T Get(std::uint64_t index) override { return this->Impl().Get(index); }
  Array<N>* View(Vorq::IView* view) override { return this->template Make<Array<N>>(VORQ_CALL(View, view)); }
  Array<1>* Pick(Vorq::INdArray<int, 1>* indices) override {
    return this->template Make<Array<1>>(VORQ_CALL(Pick, indices));
  }
  Array<1>* PickAt(Vorq::INdArray<int, 2>* coords) override {
    return this->template Make<Array<1>>(VORQ_CALL(PickAt, coords));
  }
  void Set(std::uint64_t index, T value) override { this->Impl().Set(index, value); }
  void Fill(T value) override { this->Impl().Fill(value); }
  std::string ToString(std::uint64_t limit) override { return Vorq::ToString(this->Impl(), limit); }
  int GetLastError() override { return this->Impl().GetLastError(); }
  char const* GetErrorMessage() override { return this->Impl().GetErrorMessage(); }
};

#define VORQ_NUMBER_HANDLES(T)             \
  extern template class VorqNdArray<T, 0>; \
  extern template class VorqNdArray<T, 1>; \
  extern template class VorqNdArray<T, 2>; \
  extern template class VorqNdArray<T, 3>;

VORQ_NUMBER_HANDLES(char)
VORQ_NUMBER_HANDLES(int)
VORQ_NUMBER_HANDLES(long long)
VORQ_NUMBER_HANDLES(double)

#undef VORQ_NUMBER_HANDLES
