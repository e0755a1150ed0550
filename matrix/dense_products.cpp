// The kernels of the dense products, one for each group, and the products that read int numbers as wider ones.
#include "matrix/dense_products.hpp"

#include <cstring>

#include "matrix/dense_products_kernel.hpp"

namespace Vorq {
namespace {

// How many elements there are from the start of the store. Foreign memory has no known end: it counts up to the last
// element that the array reaches.
template <int N>
std::uint64_t ReachableElements(NdArray<int, N> const& ints) {
  if (!ints.HasElements()) return 0;
  std::size_t const count = ints.Store().Block()->count;
  if (count != 0) return count;
  std::int64_t last = ints.GetShape().Start();
  for (Axis const& axis : ints.GetShape().GetAxes()) {
    last += std::max<std::int64_t>(static_cast<std::int64_t>(axis.size - 1) * axis.stride, 0);
  }
  return static_cast<std::uint64_t>(last) + 1;
}

// The memory of the ints as elements of twice their width, at the positions that the shape gives.
template <class Wide, int N>
NdArray<Wide, N> ReadAs(NdArray<int, N> const& ints) {
  static_assert(sizeof(Wide) == 2 * sizeof(int));
  std::uint64_t const wideElements = ReachableElements(ints) / 2;
  return NdArray<Wide, N>::Generated(ints.GetShape(), [&](std::uint64_t i) {
    auto const position = static_cast<std::uint64_t>(ints.GetShape().Position(i));
    Wide element = 0;
    if (position < wideElements) std::memcpy(&element, ints.Store().Get() + 2 * position, sizeof element);
    return element;
  });
}

}  // namespace

MLinExpr<0> MatMult(VarArray const& left, NdArray<int, 1> const& right) {
  return MatMult(left, ReadAs<long long>(right));
}
MLinExpr<1> MatMult(VarArray const& left, NdArray<int, 2> const& right) {
  return MatMult(left, ReadAs<double>(right));
}

#define VORQ_PRODUCT(Left, Right, Result)                                                             \
  template SharedPtr<OperandCells::Result> MultiplyMatrices(MatrixOperand<OperandCells::Left> const&, \
                                                            MatrixOperand<OperandCells::Right> const&);
#include "matrix/product_groups.inc"

}  // namespace Vorq
