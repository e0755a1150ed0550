// NdArray<T, N>: the array under everything: a shape over a store of elements, and a status.
//
// Several arrays may share one store, each through its own shape; a write through one of them is seen by all. Elements
// are numbers, or the cells of matrix objects. Positions and flat indices are not checked, but an array without
// elements, or without a store, reads as default elements and ignores writes.
//
//     auto a = NdArray<double, 2>::Generated(NDim<2>({2, 3}), [](std::uint64_t i) { return 0.5 * i; });
//     NdArray<double, 2> b = a.Transpose();      // shares the store
//     b.Set(0, 7.0);                             // a.Get(0) is 7.0
//
// The larger operations are defined in nd_array_operations.hpp, which only the files include that instantiate arrays of
// a new element type. Numbers are instantiated here, see nd_array_numbers.hpp.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/shared_ptr.hpp"
#include "frame/status.hpp"
#include "ndarray/runs.hpp"
#include "ndarray/shape.hpp"

namespace Vorq {

template <class T, int N>
class NdArray {
 public:
  using Element = T;
  static constexpr int kRank = N;

  // An array without a store; without elements, if it has an axis.
  NdArray() = default;

  NdArray(NDim<N> shape, SharedPtr<T> store) : shape_(std::move(shape)), store_(std::move(store)) {}

  // A compact array of the sizes of `shape` with a store of its own. Numbers are left unset.
  static NdArray Fresh(NDim<N> const& shape) { return NdArray(shape.Clone(), MakeSharedArray<T>(shape.StoreSize())); }

  // The same with copies of `value`.
  static NdArray Filled(NDim<N> const& shape, T const& value);

  // The same with fill(i) for each flat index i, in ascending order.
  template <class FillFunction>
  static NdArray Generated(NDim<N> const& shape, FillFunction&& fill) {
    std::uint64_t const size = shape.StoreSize();
    if constexpr (std::is_arithmetic_v<T>) {
      NdArray result = Fresh(shape);
      for (std::uint64_t i = 0; i < size; ++i) result.store_[i] = fill(i);
      return result;
    } else {
      SharedArrayBuilder<T> elements(size);
      for (std::uint64_t i = 0; i < size; ++i) elements.Emplace(fill(i));
      return NdArray(shape.Clone(), elements.Finish());
    }
  }

  // Every size 1, with a copy of `value`: the form of a failed result.
  static NdArray OneElement(T const& value) { return Filled(NDim<N>::Uniform(1), value); }

  // The same with the failure of an operation.
  static NdArray Failed(T const& value, Status&& failure) {
    NdArray result = OneElement(value);
    result.status_ = std::move(failure);
    return result;
  }

  int GetND() const { return N; }
  std::uint64_t GetDim(int axis) const { return shape_.GetDim(axis); }
  std::uint64_t GetSize() const { return shape_.GetSize(); }
  NDim<N> const& GetShape() const { return shape_; }
  SharedPtr<T> const& Store() const { return store_; }

  // The element at a flat index, which is not checked: it is read by the strides, and null where there is none.
  T* Find(std::uint64_t index) const { return HasElements() ? FindAt(shape_.Position(index)) : nullptr; }

  // The element at a position in the store; null where there is none. Only with a store.
  T* FindAt(std::int64_t position) const {
    std::size_t const count = store_.Block()->count;
    bool const isInside = count == 0 || (position >= 0 && static_cast<std::uint64_t>(position) < count);
    return isInside ? store_.Get() + position : nullptr;
  }

  T Get(std::uint64_t index) const {
    T const* element = Find(index);
    return element == nullptr ? T() : *element;
  }

  void Set(std::uint64_t index, T const& value) {
    T* element = Find(index);
    if (element != nullptr && element != &value) *element = value;
  }

  // Calls visit(element) in flat order, for no element when there is no store.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    if (!HasElements()) return;
    T* const store = store_.Get();
    ForEachRun(
        [&](std::uint64_t count, Run run) {
          T* const first = store + run.start;
          auto const n = static_cast<std::int64_t>(count);
          if (run.stride == 1) {
            for (std::int64_t i = 0; i < n; ++i) visit(first[i]);
          } else {
            for (std::int64_t i = 0; i < n; ++i) visit(first[i * run.stride]);
          }
        },
        shape_);
  }

  void Fill(T const& value);

  // Over the flattened store, which starts at the store's first element, whatever the offset here: that is meant. For a
  // target that reaches beyond the store see View.
  NdArray<T, 1> Reshape(NDim<1> const& target) const;
  NdArray<T, 2> Reshape(NDim<2> const& target) const;
  NdArray<T, 3> Reshape(NDim<3> const& target) const;

  // All elements along one axis; shares the store when the shape is contiguous.
  NdArray<T, 1> Flatten() const;

  // Each element n times along the axis, or the whole run along it n times. A negative axis counts from the end.
  NdArray Repeat(std::uint64_t n, int axis) const { return RepeatAxis(n, axis, false); }
  NdArray RepeatBlock(std::uint64_t n, int axis) const { return RepeatAxis(n, axis, true); }

  NdArray Transpose() const;

  // Indices of views are not checked. A view that reaches beyond the store, where there is nothing to share, is an
  // array of its own, with a default element for each position that has none.
  NdArray View(Vorq::View const& view) const;

  // Gathers the elements at the flat indices. They are neither checked nor counted from the end: an index that leads
  // beyond the store gives a default element.
  NdArray<T, 1> Pick(NdArray<int, 1> const& indices) const;

  // Gathers one element a row of `coords`, its entries taken as coordinates as they are.
  NdArray<T, 1> PickAt(NdArray<int, 2> const& coords) const;

  // The same with the entries taken as scalar indices of a view, so that negative ones count from the end. A row with
  // more entries than there are axes picks the first element.
  NdArray<T, 1> PickAtScalars(NdArray<int, 2> const& coords) const;

  Status& GetStatus() { return status_; }
  Status const& GetStatus() const { return status_; }
  int GetLastError() const { return status_.Code(); }
  char const* GetErrorMessage() const { return status_.Text(); }

  bool HasElements() const { return static_cast<bool>(store_) && GetSize() != 0; }

 private:
  // The array as it is, or where its shape reaches beyond the store, a compact copy. The end of foreign memory is not
  // known.
  NdArray WithinStore() &&;

  template <int M>
  NdArray<T, M> ReshapeTo(NDim<M> const& target) const;
  NdArray RepeatAxis(std::uint64_t n, int axis, bool wholeRun) const;
  template <class CoordinateOf>
  NdArray<T, 1> PickRows(NdArray<int, 2> const& coords, CoordinateOf&& coordinateOf) const;
  void CopyTo(T* target) const;

  // A default element where the position is none of the store.
  void CopyAt(std::int64_t position, T& target) const;

  template <class, int>
  friend class NdArray;

  NDim<N> shape_;
  SharedPtr<T> store_;
  Status status_;
};

}  // namespace Vorq
