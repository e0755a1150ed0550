// What the index operations make of an axis.
#include "ndarray/view.hpp"

#include <algorithm>
#include <string_view>

#include "ndarray/shape.hpp"

namespace Vorq {
namespace {

// The number of steps of length `step` that fit between two positions `distance` apart, the last one perhaps short.
std::uint64_t CountSteps(std::uint64_t distance, std::uint64_t step) {
  return step <= 1 ? distance : (distance - 1) / step + 1;
}

// Length of the range, which is empty when `step` does not lead from start to stop. A step of 0 is not refused: it
// stays at start as often as a step of 1 would move.
std::uint64_t RangeLength(std::int64_t start, std::int64_t stop, std::int64_t step) {
  auto const first = static_cast<std::uint64_t>(start);
  auto const last = static_cast<std::uint64_t>(stop);
  if (step >= 0) return start < stop ? CountSteps(last - first, static_cast<std::uint64_t>(step)) : 0;
  return start > stop ? CountSteps(first - last, 0 - static_cast<std::uint64_t>(step)) : 0;
}

Axis ApplyScalar(Scalar const& scalar, Axis const& axis) {
  std::int64_t const position = NormalizeIndex(scalar.index, axis.size);
  return {1, axis.stride, AddWrapped(MultiplyWrapped(position, axis.stride), axis.offset)};
}

Axis ApplySlice(Slice const& slice, Axis const& axis) {
  auto const size = static_cast<std::int64_t>(axis.size);
  std::int64_t const step = (slice.flags & Slice::kStepOmitted) != 0 ? 1 : slice.step;
  std::int64_t start = NormalizeIndex(slice.start, axis.size);
  std::int64_t stop = NormalizeIndex(slice.stop, axis.size);
  if ((slice.flags & Slice::kStartOmitted) != 0) start = step < 0 ? size - 1 : 0;
  if ((slice.flags & Slice::kStopOmitted) != 0) stop = step < 0 ? -1 : size;
  return {RangeLength(start, stop, step), MultiplyWrapped(step, axis.stride),
          AddWrapped(MultiplyWrapped(start, axis.stride), axis.offset)};
}

}  // namespace

View View::Append(Indexing* operation) {
  operations_.push_back(SharedPtr<Indexing>(operation));
  return *this;
}

std::int64_t NormalizeIndex(std::int64_t index, std::uint64_t size) {
  if (size == 0) return index;
  auto const end = static_cast<std::int64_t>(size);
  std::int64_t const position = std::min(index, end);
  return position < 0 ? std::max(position + end, std::int64_t{-1}) : position;
}

Axis ApplyToAxis(Indexing const& operation, Axis const& axis) {
  std::string_view const name = operation.GetName();
  if (name == "Full") return axis;
  if (name == "Slice") return ApplySlice(static_cast<Slice const&>(operation), axis);
  return ApplyScalar(static_cast<Scalar const&>(operation), axis);
}

}  // namespace Vorq
