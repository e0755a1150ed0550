// The shape operations and their failure texts.
#include "ndarray/shape.hpp"

#include <algorithm>
#include <limits>
#include <new>

#include "ndarray/view.hpp"

namespace Vorq {
namespace {

// The stride of an axis of size 1 in front of `axis`: one step along it would pass all of `axis`.
std::int64_t StrideBefore(Axis const& axis) {
  return MultiplyWrapped(static_cast<std::int64_t>(axis.size), axis.stride);
}

template <std::size_t K>
std::array<Axis, K + 1> Insert(std::array<Axis, K> const& axes, std::size_t place, Axis const& axis) {
  std::array<Axis, K + 1> result;
  for (std::size_t k = 0; k <= K; ++k) result[k] = k < place ? axes[k] : k == place ? axis : axes[k - 1];
  return result;
}

template <std::size_t K>
std::array<Axis, K - 1> Erase(std::array<Axis, K> const& axes, std::size_t place) {
  std::array<Axis, K - 1> result;
  for (std::size_t k = 0; k + 1 < K; ++k) result[k] = axes[k < place ? k : k + 1];
  return result;
}

// Axes of size 1 in front, until there are M of them.
template <int M, int N>
std::array<Axis, M> PadFront(NDim<N> const& shape) {
  if constexpr (N == M) {
    return shape.GetAxes();
  } else {
    return PadFront<M>(shape.ExpandDims(0));
  }
}

template <int N>
NDim<N> Ones() {
  return NDim<N>::Uniform(1);
}

// Whether there is that axis; if not, the status tells.
bool CheckAxis(Status& status, int axis, int rank) {
  if (axis >= 0 && axis < rank) return true;
  if (axis < 0) {
    SetStatus(status, kInvalid, "Axis is negative (%d)", axis);
  } else {
    SetStatus(status, kInvalid, "Axis is out of bounds: #axis (%d) >= #ND (%d)", axis, rank);
  }
  return false;
}

}  // namespace

template <int N>
NDim<N>::NDim(Sizes const& sizes) {
  std::int64_t stride = 1;
  for (std::size_t k = N; k-- > 0;) {
    axes_[k] = {sizes[k], stride, 0};
    stride = StrideBefore(axes_[k]);
  }
}

template <int N>
NDim<N> NDim<N>::Uniform(std::uint64_t n) {
  Sizes sizes;
  sizes.fill(n);
  return NDim(sizes);
}

template <int N>
typename NDim<N>::Sizes NDim<N>::GetDims() const {
  Sizes sizes;
  for (std::size_t k = 0; k < N; ++k) sizes[k] = axes_[k].size;
  return sizes;
}

template <int N>
bool NDim<N>::SizeFits() const {
  // Dividing the sizes out again leaves 1 only where the product did not wrap around.
  std::uint64_t rest = GetSize();
  bool fits = true;
  for (Axis const& axis : axes_) {
    if (axis.size == 0) return true;
    fits = fits && rest % axis.size == 0;
    rest /= axis.size;
  }
  return fits && rest == 1;
}

template <int N>
std::uint64_t NDim<N>::StoreSize() const {
  if (!SizeFits()) throw std::bad_array_new_length();
  return GetSize();
}

template <int N>
std::string NDim<N>::ToString(int mode) const {
  // A shape without axes shows what stands behind the last axis: stride 1 and the inner offset.
  std::string text = "(";
  if (N == 0 && mode > kSizes) text += std::to_string(mode == kStrides ? 1 : innerOffset_);
  for (Axis const& axis : axes_) {
    if (text.size() > 1) text += ", ";
    text += mode == kSizes     ? std::to_string(axis.size)
            : mode == kStrides ? std::to_string(axis.stride)
                               : std::to_string(axis.offset);
  }
  return text + ")";
}

template <int N>
bool NDim<N>::Equals(NDim const& other) const {
  if (GetDims() != other.GetDims()) return false;
  return GetStride(0) == other.GetStride(0) && (N == 0 || GetOffset(0) == other.GetOffset(0));
}

template <int N>
bool NDim<N>::IsContiguous() const {
  std::int64_t stride = 1;
  for (std::size_t k = N; k-- > 0;) {
    if (axes_[k].stride != stride || (k > 0 && axes_[k].offset != 0)) return false;
    stride = StrideBefore(axes_[k]);
  }
  return true;
}

template <int N>
template <int M>
requires(N <= M) NDim<M> NDim<N>::Broadcast(NDim<M> const& other)
const {
  std::array<Axis, M> axes = PadFront<M>(*this);
  for (std::size_t k = 0; k < M; ++k) {
    std::uint64_t const mine = axes[k].size;
    std::uint64_t const theirs = other.GetAxes()[k].size;
    if (mine == theirs) continue;
    if (mine != 1 && theirs != 1) {
      NDim<M> failed = Ones<M>();
      SetStatus(failed.GetStatus(), kInvalid, "Shape of %s is not compatible with %s",
                NDim<M>::FromAxes(PadFront<M>(*this)).ToString(kSizes).c_str(), other.ToString(kSizes).c_str());
      return failed;
    }
    if (mine < theirs) axes[k] = {theirs, 0, axes[k].offset};
  }
  // Between shapes without axes there is nothing to stretch.
  return NDim<M>::FromAxes(axes, M == 0 ? innerOffset_ : 0);
}

template <int N>
template <int R>
requires(R < 3) NDim<R + 1> NDim<N>::ExpandDims(int axis)
const {
  if constexpr (N == 0) {
    if (axis == 0) return NDim<1>::FromAxes(std::array{Axis{1, 1, innerOffset_}});
    // A text of its own, without the rank, also for a negative axis.
    NDim<1> failed = Ones<1>();
    SetStatus(failed.GetStatus(), kInvalid, "Axis is out of bounds: #axis (%d)", axis);
    return failed;
  } else {
    if (axis >= 0 && axis <= N) {
      auto const place = static_cast<std::size_t>(axis);
      std::int64_t const stride = place == 0 ? StrideBefore(axes_[0]) : axes_[place - 1].stride;
      return NDim<N + 1>::FromAxes(Insert(axes_, place, {1, stride, 0}), innerOffset_);
    }
    NDim<N + 1> failed = Ones<N + 1>();
    if (axis < 0) {
      SetStatus(failed.GetStatus(), kInvalid, "Axis is negative (%d)", axis);
    } else {
      SetStatus(failed.GetStatus(), kInvalid, "Axis is out of bounds: #axis (%d) > #ND (%d)", axis, N);
    }
    return failed;
  }
}

template <int N>
template <int R>
requires(R > 0) NDim<R - 1> NDim<N>::Squeeze(int axis)
const {
  NDim<N - 1> failed = Ones<N - 1>();
  if (!CheckAxis(failed.GetStatus(), axis, N)) return failed;
  auto const place = static_cast<std::size_t>(axis);
  if (axes_[place].size != 1) {
    SetStatus(failed.GetStatus(), kInvalid, "Dimension size at axis %d is not one (%zu)", axis,
              static_cast<std::size_t>(axes_[place].size));
    return failed;
  }
  // The offset moves to a neighbour, so that all elements stay where they are.
  std::int64_t const offset = axes_[place].offset;
  std::array<Axis, N - 1> axes = Erase(axes_, place);
  if constexpr (N == 1) {
    return NDim<0>::FromAxes(axes, AddWrapped(innerOffset_, offset));
  } else {
    Axis& neighbour = axes[place == 0 ? 0 : place - 1];
    neighbour.offset = AddWrapped(neighbour.offset, offset);
    return NDim<N - 1>::FromAxes(axes, innerOffset_);
  }
}

template <int N>
NDim<N> NDim<N>::Transpose() const {
  Axes axes = axes_;
  std::reverse(axes.begin(), axes.end());
  return FromAxes(axes, innerOffset_);
}

template <int N>
template <int R>
requires(R > 1) NDim<R - 1> NDim<N>::Diagonal(int offset, int axis1, int axis2)
const {
  NDim<N - 1> failed = Ones<N - 1>();
  Status& failure = failed.GetStatus();
  auto const [low, high] = std::minmax({axis1, axis2});
  if (low == high) {
    SetStatus(failure, kInvalid, "Axis 1 and axis 2 are the same (%d)", low);
    return failed;
  }
  if (low < 0) {
    SetStatus(failure, kInvalid, "One axis is negative (%d)", low);
    return failed;
  }
  if (high >= N) {
    SetStatus(failure, kInvalid, "One axis is out of bounds: #axis (%d) >= #ND (%d)", high, N);
    return failed;
  }
  Axis const& rows = axes_[static_cast<std::size_t>(low)];
  Axis const& columns = axes_[static_cast<std::size_t>(high)];
  bool const above = offset >= 0;
  std::uint64_t const skipped = above ? static_cast<std::uint64_t>(offset) : 0 - static_cast<std::uint64_t>(offset);
  Axis const& skippedOn = above ? columns : rows;
  if (skipped >= skippedOn.size) {
    SetStatus(failure, kInvalid, "Offset (%d) is out of bounds: dimensions (%d) at axis%d", offset,
              static_cast<int>(skippedOn.size), above ? 2 : 1);
    return failed;
  }
  std::uint64_t const length = std::min(skippedOn.size - skipped, (above ? rows : columns).size);
  std::int64_t const start = AddWrapped(AddWrapped(rows.offset, columns.offset),
                                        MultiplyWrapped(static_cast<std::int64_t>(skipped), skippedOn.stride));
  std::array<Axis, N - 1> axes;
  auto const end = std::copy_if(axes_.begin(), axes_.end(), axes.begin(),
                                [&](Axis const& axis) { return &axis != &rows && &axis != &columns; });
  *end = {length, AddWrapped(rows.stride, columns.stride), start};
  return NDim<N - 1>::FromAxes(axes, innerOffset_);
}

template <int N>
template <int R>
requires(R > 0) NDim<N> NDim<N>::Concat(NDim const& other, int axis)
const {
  NDim failed = Ones<N>();
  if (axis < -N || axis >= N) {
    SetStatus(failed.GetStatus(), kInvalid, "Axis %d is out of bounds for array of dimensions %d", axis, N);
    return failed;
  }
  auto const place = static_cast<std::size_t>(axis < 0 ? axis + N : axis);
  Sizes sizes = GetDims();
  for (std::size_t k = 0; k < N; ++k) {
    std::uint64_t const theirs = other.axes_[k].size;
    if (k == place || sizes[k] == theirs) continue;
    SetStatus(failed.GetStatus(), kInvalid,
              "Along the %d-th dimension, array 1 has size [%d] and array 2 has size [%d]", static_cast<int>(k),
              static_cast<int>(sizes[k]), static_cast<int>(theirs));
    return failed;
  }
  sizes[place] += other.axes_[place].size;
  NDim joined(sizes);
  if (sizes[place] < other.axes_[place].size || !joined.SizeFits()) {
    SetStatus(failed.GetStatus(), kInvalid, "Shapes %s and %s are too large to join", ToString(0).c_str(),
              other.ToString(0).c_str());
    return failed;
  }
  return joined;
}

template <int N>
template <int R>
requires(R > 0) NDim<R - 1> NDim<N>::WithoutAxis(int axis)
const {
  NDim<N - 1> failed = Ones<N - 1>();
  if (!CheckAxis(failed.GetStatus(), axis, N)) return failed;
  if (!SizeFits() || GetSize() > std::numeric_limits<std::int64_t>::max()) {
    SetStatus(failed.GetStatus(), kInvalid, "Array of shape %s is too large to be summed", ToString(0).c_str());
    return failed;
  }
  typename NDim<N - 1>::Sizes sizes;
  for (std::size_t k = 0; k + 1 < N; ++k) sizes[k] = axes_[k < static_cast<std::size_t>(axis) ? k : k + 1].size;
  return NDim<N - 1>(sizes);
}

template <int N>
NDim<N> NDim<N>::Apply(View const& view) const {
  Axes axes = axes_;
  auto const& operations = view.Operations();
  for (std::size_t k = 0; k < std::min<std::size_t>(N, operations.size()); ++k) {
    axes[k] = ApplyToAxis(*operations[k], axes[k]);
  }
  return FromAxes(axes, innerOffset_);
}

template <int M>
NDim<M> CannotCast(int from) {
  NDim<M> failed = Ones<M>();
  SetStatus(failed.GetStatus(), kInvalid, "Cannot cast %d-dimensional shape to %d-dimension", from, M);
  return failed;
}

template <int M>
NDim<M> CannotCast(int first, int second) {
  NDim<M> failed = Ones<M>();
  SetStatus(failed.GetStatus(), kInvalid, "Cannot cast %d-dimensional shape and %d-dimensional shape to %d-dimension",
            first, second, M);
  return failed;
}

template class NDim<0>;
template class NDim<1>;
template class NDim<2>;
template class NDim<3>;

template NDim<0> NDim<0>::Broadcast(NDim<0> const&) const;
template NDim<1> NDim<0>::Broadcast(NDim<1> const&) const;
template NDim<2> NDim<0>::Broadcast(NDim<2> const&) const;
template NDim<3> NDim<0>::Broadcast(NDim<3> const&) const;
template NDim<1> NDim<1>::Broadcast(NDim<1> const&) const;
template NDim<2> NDim<1>::Broadcast(NDim<2> const&) const;
template NDim<3> NDim<1>::Broadcast(NDim<3> const&) const;
template NDim<2> NDim<2>::Broadcast(NDim<2> const&) const;
template NDim<3> NDim<2>::Broadcast(NDim<3> const&) const;
template NDim<3> NDim<3>::Broadcast(NDim<3> const&) const;

template NDim<1> NDim<0>::ExpandDims(int) const;
template NDim<2> NDim<1>::ExpandDims(int) const;
template NDim<3> NDim<2>::ExpandDims(int) const;
template NDim<0> NDim<1>::Squeeze(int) const;
template NDim<1> NDim<2>::Squeeze(int) const;
template NDim<2> NDim<3>::Squeeze(int) const;
template NDim<1> NDim<2>::Diagonal(int, int, int) const;
template NDim<2> NDim<3>::Diagonal(int, int, int) const;

template NDim<1> NDim<1>::Concat(NDim<1> const&, int) const;
template NDim<2> NDim<2>::Concat(NDim<2> const&, int) const;
template NDim<3> NDim<3>::Concat(NDim<3> const&, int) const;
template NDim<0> NDim<1>::WithoutAxis(int) const;
template NDim<1> NDim<2>::WithoutAxis(int) const;
template NDim<2> NDim<3>::WithoutAxis(int) const;

template NDim<0> CannotCast<0>(int);
template NDim<1> CannotCast<1>(int);
template NDim<2> CannotCast<2>(int);
template NDim<0> CannotCast<0>(int, int);
template NDim<1> CannotCast<1>(int, int);
template NDim<2> CannotCast<2>(int, int);

}  // namespace Vorq
