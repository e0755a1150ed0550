// The larger operations of NdArray, for the files that instantiate it.
#pragma once

#include <algorithm>
#include <limits>
#include <new>

#include "ndarray/nd_array.hpp"
#include "ndarray/view.hpp"

namespace Vorq {

template <class T, int N>
NdArray<T, N> NdArray<T, N>::Filled(NDim<N> const& shape, T const& value) {
  if constexpr (std::is_arithmetic_v<T>) {
    NdArray result = Fresh(shape);
    std::fill_n(result.store_.Get(), result.GetSize(), value);
    return result;
  } else {
    if (shape.StoreSize() == 1) return NdArray(shape.Clone(), MakeShared<T>(value));
    return Generated(shape, [&value](std::uint64_t) -> T const& { return value; });
  }
}

template <class T, int N>
void NdArray<T, N>::Fill(T const& value) {
  ForEach([filling = value](T& element) { element = filling; });
}

template <class T, int N>
void NdArray<T, N>::CopyTo(T* target) const {
  if (HasElements()) {
    CopyAxes<T>(store_.Get() + shape_.Start(), shape_.GetAxes(), target);
  } else {
    std::fill_n(target, GetSize(), T());
  }
}

template <class T, int N>
NdArray<T, 1> NdArray<T, N>::Flatten() const {
  if (shape_.IsContiguous()) {
    return NdArray<T, 1>(NDim<1>::FromAxes({Axis{GetSize(), 1, shape_.GetOffset(0)}}), store_);
  }
  auto result = NdArray<T, 1>::Fresh(NDim<1>({shape_.StoreSize()}));
  CopyTo(result.Store().Get());
  return result;
}

template <class T, int N>
NdArray<T, N> NdArray<T, N>::WithinStore() && {
  if (!HasElements()) return std::move(*this);
  std::size_t const count = store_.Block()->count;
  if (count == 0 || shape_.StaysWithin(count)) return std::move(*this);
  return Generated(shape_, [&](std::uint64_t i) {
    T const* const element = Find(i);
    return element == nullptr ? T() : *element;
  });
}

template <class T, int N>
template <int M>
NdArray<T, M> NdArray<T, N>::ReshapeTo(NDim<M> const& target) const {
  if (target.GetSize() == GetSize() && target.SizeFits()) {
    return NdArray<T, M>(target, Flatten().Store()).WithinStore();
  }
  auto result = NdArray<T, M>::OneElement(Get(0));
  SetStatus(result.GetStatus(), kInvalid, "Cannot reshape NdArray of size %zu to new shape %s",
            static_cast<std::size_t>(GetSize()), target.ToString(kSizes).c_str());
  return result;
}

template <class T, int N>
NdArray<T, 1> NdArray<T, N>::Reshape(NDim<1> const& target) const {
  return ReshapeTo(target);
}

template <class T, int N>
NdArray<T, 2> NdArray<T, N>::Reshape(NDim<2> const& target) const {
  return ReshapeTo(target);
}

template <class T, int N>
NdArray<T, 3> NdArray<T, N>::Reshape(NDim<3> const& target) const {
  return ReshapeTo(target);
}

template <class T, int N>
NdArray<T, N> NdArray<T, N>::RepeatAxis(std::uint64_t n, int axis, bool wholeRun) const {
  if constexpr (N == 0) {
    NdArray result = OneElement(Get(0));
    SetStatus(result.status_, kInvalid, "Cannot repeat for NdArray of shape ()");
    return result;
  } else {
    if (axis < -N || axis >= N) {
      NdArray result = OneElement(T());
      SetStatus(result.status_, kInvalid, "Axis %d is out of bounds for array of dimensions %d", axis, N);
      return result;
    }
    auto const place = static_cast<std::size_t>(axis < 0 ? axis + N : axis);
    auto sizes = shape_.GetDims();
    if (n != 0 && sizes[place] > std::numeric_limits<std::uint64_t>::max() / n) throw std::bad_array_new_length();
    sizes[place] *= n;
    NdArray result = Fresh(NDim<N>(sizes));
    if (!HasElements()) {
      std::fill_n(result.store_.Get(), result.GetSize(), T());
      return result;
    }
    if (n == 0) return result;
    // Repeating is reading along one more axis with stride 0, in front of the repeated axis or behind it.
    std::array<Axis, N + 1> axes;
    std::size_t const extra = place + (wholeRun ? 0 : 1);
    for (std::size_t k = 0; k <= N; ++k) {
      axes[k] = k == extra ? Axis{n, 0, 0} : shape_.GetAxes()[k - (k > extra ? 1 : 0)];
    }
    CopyAxes<T>(store_.Get() + shape_.Start(), axes, result.store_.Get());
    return result;
  }
}

template <class T, int N>
NdArray<T, N> NdArray<T, N>::Transpose() const {
  if constexpr (N < 2) {
    return *this;
  } else {
    return NdArray(shape_.Transpose(), store_);
  }
}

template <class T, int N>
NdArray<T, N> NdArray<T, N>::View(Vorq::View const& view) const {
  if constexpr (N == 0) {
    return *this;
  } else {
    if (view.Operations().size() <= N) return NdArray(shape_.Apply(view), store_).WithinStore();
    NdArray result = OneElement(Get(0));
    SetStatus(result.status_, kInvalid, "View has more operations than #ND (%d)", N);
    return result;
  }
}

template <class T, int N>
void NdArray<T, N>::CopyAt(std::int64_t position, T& target) const {
  if (T const* const element = FindAt(position)) {
    target = *element;
  } else {
    target = T();
  }
}

template <class T, int N>
NdArray<T, 1> NdArray<T, N>::Pick(NdArray<int, 1> const& indices) const {
  std::uint64_t const count = indices.GetSize();
  if constexpr (N == 0) {
    return NdArray<T, 1>(NDim<1>::FromAxes({Axis{count, 0, 0}}), NdArray<T, 1>::OneElement(Get(0)).Store());
  } else {
    if (!HasElements() || !indices.HasElements()) return NdArray<T, 1>::Filled(NDim<1>({count}), Get(0));
    auto result = NdArray<T, 1>::Fresh(NDim<1>({count}));
    T* target = result.Store().Get();
    if (shape_.IsContiguous()) {
      indices.ForEach([&](int index) { CopyAt(shape_.Start() + index, *target++); });
    } else {
      indices.ForEach([&](int index) { CopyAt(shape_.Position(static_cast<std::uint64_t>(index)), *target++); });
    }
    return result;
  }
}

template <class T, int N>
template <class CoordinateOf>
NdArray<T, 1> NdArray<T, N>::PickRows(NdArray<int, 2> const& coords, CoordinateOf&& coordinateOf) const {
  std::uint64_t const count = coords.GetDim(0);
  if constexpr (N == 0) {
    return NdArray<T, 1>(NDim<1>::FromAxes({Axis{count, 0, 0}}), NdArray<T, 1>::OneElement(Get(0)).Store());
  } else {
    if (!HasElements()) return NdArray<T, 1>::Filled(NDim<1>({count}), T());
    // Axes for which a row has no entry are read at their start.
    std::size_t const given = coords.HasElements() ? std::min<std::size_t>(coords.GetDim(1), N) : 0;
    auto result = NdArray<T, 1>::Fresh(NDim<1>({count}));
    T* target = result.Store().Get();
    for (std::int64_t row = 0; row < static_cast<std::int64_t>(count); ++row) {
      std::int64_t position = shape_.Start();
      for (std::size_t k = 0; k < given; ++k) {
        int const* const entry = coords.Store().Get() + coords.GetShape().Start() +
                                 row * coords.GetShape().GetStride(0) +
                                 static_cast<std::int64_t>(k) * coords.GetShape().GetStride(1);
        Axis const& axis = shape_.GetAxes()[k];
        position = AddWrapped(position, MultiplyWrapped(coordinateOf(*entry, axis), axis.stride));
      }
      CopyAt(position, *target++);
    }
    return result;
  }
}

template <class T, int N>
NdArray<T, 1> NdArray<T, N>::PickAt(NdArray<int, 2> const& coords) const {
  return PickRows(coords, [](int entry, Axis const&) -> std::int64_t { return entry; });
}

template <class T, int N>
NdArray<T, 1> NdArray<T, N>::PickAtScalars(NdArray<int, 2> const& coords) const {
  // With too many entries the view of a row fails, and a failed view holds the first element.
  bool const failed = coords.GetDim(1) > N;
  return PickRows(coords,
                  [failed](int entry, Axis const& axis) { return failed ? 0 : NormalizeIndex(entry, axis.size); });
}

}  // namespace Vorq
