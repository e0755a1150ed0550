// NDim<N>: the shape of an object with N axes, 0 to 3, and how a coordinate maps to a position in its element store.
//
// One store can be looked at through many shapes; a transposed, sliced, stretched or diagonal view is only another
// shape. A flat index counts in row-major order of the shape, last axis fastest, whatever the strides are.
//
//     NDim<2> shape({3, 4});                      // strides (4, 1)
//     shape.Broadcast(NDim<3>({5, 3, 4}));        // sizes (5, 3, 4), strides (0, 4, 1)
//     shape.ExpandDims(7).GetErrorMessage();      // "(INVALID) Axis is out of bounds: #axis (7) > #ND (2)"
//
// An operation that fails gives a shape whose sizes are all 1 and whose status tells why.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "frame/status.hpp"

namespace Vorq {

class View;

// One axis: how long it is, how many elements one step along it is, and where it starts.
struct Axis {
  std::uint64_t size = 0;
  std::int64_t stride = 1;
  std::int64_t offset = 0;
};

// What ToString prints. Any other number prints as the offsets.
enum ShapeText : int { kSizes = 0, kStrides = 1, kOffsets = 2 };

// Step times distance, and sums of those, wrap around like unsigned numbers: extreme steps of a caller are no overflow.
constexpr std::int64_t AddWrapped(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}
constexpr std::int64_t MultiplyWrapped(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
}

template <int N>
class NDim {
  static_assert(N >= 0 && N <= 3);

 public:
  static constexpr int kRank = N;
  using Sizes = std::array<std::uint64_t, N>;
  using Axes = std::array<Axis, N>;

  // Every size 0.
  NDim() = default;

  // A compact row-major shape.
  explicit NDim(Sizes const& sizes);

  // Any layout. `innerOffset` is the offset behind the last axis; it is 0 in all shapes that have an axis.
  static NDim FromAxes(Axes const& axes, std::int64_t innerOffset = 0) {
    NDim shape;
    shape.axes_ = axes;
    shape.innerOffset_ = innerOffset;
    return shape;
  }

  // A compact shape whose axes all have size n.
  static NDim Uniform(std::uint64_t n);

  int GetND() const { return N; }
  std::uint64_t GetDim(int axis) const { return HasAxis(axis) ? axes_[static_cast<std::size_t>(axis)].size : 0; }
  std::int64_t GetStride(int axis) const { return HasAxis(axis) ? axes_[static_cast<std::size_t>(axis)].stride : 1; }
  std::int64_t GetOffset(int axis) const {
    return HasAxis(axis) ? axes_[static_cast<std::size_t>(axis)].offset : innerOffset_;
  }
  Sizes GetDims() const;
  Axes const& GetAxes() const { return axes_; }

  std::uint64_t GetSize() const {
    std::uint64_t size = 1;
    for (Axis const& axis : axes_) size *= axis.size;
    return size;
  }

  // Whether the product of the sizes fits its type.
  bool SizeFits() const;

  // GetSize for a new store: throws std::bad_array_new_length when it does not fit.
  std::uint64_t StoreSize() const;

  // The same sizes, compact, without a status.
  NDim Clone() const { return NDim(GetDims()); }
  NDim CreateUniform(std::uint64_t n) const { return Uniform(n); }

  // "(2, 3)": the sizes, strides or offsets, see ShapeText.
  std::string ToString(int mode) const;

  // Strides and offsets count on axis 0 only, which is meant: shapes that differ in those of inner axes are equal.
  bool Equals(NDim const& other) const;

  // Whether the elements lie one behind the other in flat order; they may start late in the store.
  bool IsContiguous() const;

  // This shape stretched to the common shape with `other`; aligned at the last axis. The larger size wins, so that
  // sizes 0 and 1 meet as 1.
  template <int M>
  requires(N <= M) NDim<M> Broadcast(NDim<M> const& other)
  const;

  // One more axis, of size 1, at `axis`. (R is the rank: members that not all ranks have are templates of it.)
  template <int R = N>
  requires(R < 3) NDim<R + 1> ExpandDims(int axis)
  const;

  // One axis less, which must be of size 1. All elements keep their positions.
  template <int R = N>
  requires(R > 0) NDim<R - 1> Squeeze(int axis)
  const;

  // The axes in reverse order.
  NDim Transpose() const;

  // The cells whose coordinates on the two axes differ by `offset`; they become the last axis.
  template <int R = N>
  requires(R > 1) NDim<R - 1> Diagonal(int offset, int axis1, int axis2)
  const;

  // The compact shape of this and `other` one behind the other along `axis`, which counts from the end when it is
  // negative. All other sizes must agree, and the cells of the two together must be countable.
  template <int R = N>
  requires(R > 0) NDim Concat(NDim const& other, int axis)
  const;

  // The compact shape of the other axes, for sums along that one: there must be fewer than 2^63 cells.
  template <int R = N>
  requires(R > 0) NDim<R - 1> WithoutAxis(int axis)
  const;

  // The operations of `view` on the axes in order; operations beyond the last axis are for the caller to refuse.
  NDim Apply(View const& view) const;

  // Position of the coordinates that are all 0.
  std::int64_t Start() const {
    std::int64_t position = innerOffset_;
    for (Axis const& axis : axes_) position = AddWrapped(position, axis.offset);
    return position;
  }

  // Whether all positions lie in a store of `count` elements.
  bool StaysWithin(std::size_t count) const {
    std::int64_t low = Start();
    std::int64_t high = low;
    for (Axis const& axis : axes_) {
      if (axis.size == 0) return true;
      std::int64_t const reach = MultiplyWrapped(static_cast<std::int64_t>(axis.size - 1), axis.stride);
      (reach < 0 ? low : high) = AddWrapped(reach < 0 ? low : high, reach);
    }
    return low >= 0 && high < static_cast<std::int64_t>(count);
  }

  // Position of a flat index. No size may be 0.
  std::int64_t Position(std::uint64_t index) const {
    std::int64_t position = Start();
    for (std::size_t k = N; k-- > 0;) {
      // The first coordinate takes all that is left: an index beyond the end is not checked for.
      std::uint64_t const coordinate = k == 0 ? index : index % axes_[k].size;
      if (k > 0) index /= axes_[k].size;
      position = AddWrapped(position, MultiplyWrapped(static_cast<std::int64_t>(coordinate), axes_[k].stride));
    }
    return position;
  }

  Status& GetStatus() { return status_; }
  Status const& GetStatus() const { return status_; }
  bool Failed() const { return status_.Failed(); }
  int GetLastError() const { return status_.Code(); }
  char const* GetErrorMessage() const { return status_.Text(); }

 private:
  static constexpr bool HasAxis(int axis) { return axis >= 0 && axis < N; }

  Axes axes_{};
  std::int64_t innerOffset_ = 0;
  Status status_;
};

// The failed shape of rank M that stands where an operand of rank `from` would have to lose axes.
template <int M>
NDim<M> CannotCast(int from);

// The same for an operation in place on an object of rank `first` whose second operand has rank `second`.
template <int M>
NDim<M> CannotCast(int first, int second);

}  // namespace Vorq
