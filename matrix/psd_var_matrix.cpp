// How the entries of a PSD variable become expressions.
#include "matrix/psd_var_matrix.hpp"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace Vorq {
namespace {

std::uint64_t SideOf(PsdVar const& var) {
  return static_cast<std::uint64_t>(std::max(var.dim, 0));
}

NDim<2> ShapeOf(PsdVar const& var) {
  return NDim<2>({SideOf(var), SideOf(var)});
}

// Half of a matrix entry off the diagonal, for the inner product counts both halves.
PsdExpr EntryAt(PsdVar const& var, std::uint64_t position) {
  int const row = static_cast<int>(position / SideOf(var));
  int const col = static_cast<int>(position % SideOf(var));
  return PsdExpr(var, SymMatrix::Cached(var.dim, row, col, row == col ? 1.0 : 0.5));
}

// Records the failure in both places.
template <int N>
MPsdExpr<N> FailedEntries(PsdVar& var, std::string const& text, PsdExpr const& cell = PsdExpr()) {
  MPsdExpr<N> result(NDim<N>::Uniform(1), cell);
  for (Status* status : {&var.status, &result.GetStatus()}) SetStatus(*status, kInvalid, "%s", text.c_str());
  return result;
}

std::string OutOfBound(char const* what, std::int64_t number, PsdVar const& var) {
  return std::string(what) + " (=" + std::to_string(number) + ") is out of bound for dimension " +
         std::to_string(var.dim);
}

// The entries at the positions that positionOf(i) gives for each flat index i of `shape`.
template <int N, class PositionOf>
MPsdExpr<N> EntriesAt(PsdVar& var, NDim<N> const& shape, PositionOf positionOf) {
  auto const end = static_cast<std::int64_t>(SideOf(var) * SideOf(var));
  std::uint64_t const size = shape.GetSize();
  for (std::uint64_t i = 0; i < size; ++i) {
    auto const position = static_cast<std::int64_t>(positionOf(i));
    if (position >= 0 && position < end) continue;
    return FailedEntries<N>(var, OutOfBound("Index", position, var));
  }
  var.status.Clear();
  return MPsdExpr<N>(NdArray<PsdExpr, N>::Generated(shape, [&](std::uint64_t i) {
    return EntryAt(var, static_cast<std::uint64_t>(static_cast<std::int64_t>(positionOf(i))));
  }));
}

}  // namespace

MPsdExpr<2> ToMPsdExpr(PsdVar const& var) {
  return MPsdExpr<2>(
      NdArray<PsdExpr, 2>::Generated(ShapeOf(var), [&](std::uint64_t position) { return EntryAt(var, position); }));
}

PsdExpr Sum(PsdVar const& var) {
  PsdExpr sum;
  for (int row = 0; row < var.dim; ++row) {
    for (int col = row; col < var.dim; ++col) sum.AddTerm(var, SymMatrix::Cached(var.dim, row, col, 1.0));
  }
  return sum;
}

MPsdExpr<1> Diagonal(PsdVar& var, int offset) {
  long long const distance = std::llabs(offset);
  if (distance >= var.dim) return FailedEntries<1>(var, OutOfBound("Diagonal offset", offset, var));
  std::uint64_t const side = SideOf(var);
  auto const skipped = static_cast<std::uint64_t>(distance);
  std::uint64_t const first = offset < 0 ? skipped * side : skipped;
  return EntriesAt(var, NDim<1>({side - skipped}), [&](std::uint64_t i) { return first + i * (side + 1); });
}

MPsdExpr<2> Pick(PsdVar& var, View const& view) {
  if (view.Operations().size() > 2) {
    return FailedEntries<2>(var, "View has more operations than #ND (2)", var.dim > 0 ? EntryAt(var, 0) : PsdExpr());
  }
  NDim<2> const seen = ShapeOf(var).Apply(view);
  return EntriesAt(var, seen.Clone(), [&](std::uint64_t i) { return seen.Position(i); });
}

MPsdExpr<1> Pick(PsdVar& var, NdArray<int, 1> const& positions) {
  return EntriesAt(var, NDim<1>({positions.GetSize()}), [&](std::uint64_t i) { return positions.Get(i); });
}

MPsdExpr<1> PickAt(PsdVar& var, NdArray<int, 2> const& coords) {
  std::uint64_t const width = coords.GetDim(1);
  std::uint64_t const side = SideOf(var);
  std::int64_t const strides[] = {var.dim, 1};
  return EntriesAt(var, NDim<1>({coords.GetDim(0)}), [&](std::uint64_t i) {
    std::int64_t position = 0;
    for (std::uint64_t k = 0; k < width && width <= 2; ++k) {
      position += NormalizeIndex(coords.Get(i * width + k), side) * strides[k];
    }
    return position;
  });
}

}  // namespace Vorq
