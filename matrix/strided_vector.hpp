// StridedVector: elements of a shared store at equal distances. It is what a lazy cell keeps of an array of one axis:
// the store, where it starts and how it steps. Copying one copies no element.
#pragma once

#include <cstdint>
#include <utility>

#include "ndarray/nd_array.hpp"

namespace Vorq {

template <class T>
class StridedVector {
 public:
  StridedVector() = default;

  // The elements of `array`; none when it has no store.
  explicit StridedVector(NdArray<T, 1> const& array) {
    if (!array.HasElements()) return;
    store_ = array.Store();
    start_ = array.GetShape().Start();
    stride_ = array.GetShape().GetStride(0);
    size_ = array.GetSize();
  }

  // `size` elements of `store`, the first one at position `start`. They must lie within it.
  StridedVector(SharedPtr<T> store, std::int64_t start, std::int64_t stride, std::uint64_t size)
      : store_(std::move(store)), start_(start), stride_(stride), size_(size) {}

  std::uint64_t Size() const { return size_; }
  bool IsEmpty() const { return size_ == 0; }
  T& operator[](std::uint64_t i) const { return First()[static_cast<std::int64_t>(i) * stride_]; }

  // The element at index 0, for loops of their own. Null when there is none.
  T* First() const { return size_ == 0 ? nullptr : store_.Get() + start_; }
  std::int64_t Stride() const { return stride_; }
  SharedPtr<T> const& Store() const { return store_; }

 private:
  SharedPtr<T> store_;
  std::int64_t start_ = 0;
  std::int64_t stride_ = 1;
  std::uint64_t size_ = 0;
};

}  // namespace Vorq
