// IMHelper: products, diagonals, axes, stacks and sums of matrix objects and arrays.
//
//     std::unique_ptr<Vorq::IMHelper> helper(CreateMHelper());
//     Vorq::IMLinExpr<1>* load = helper->MatMult(rates, x);       // rates of shape (2, 3), x of shape (3)
//     Vorq::IMVar<1>* trace = helper->Diagonal(assign, 0, 0, 1);
//     Vorq::IMVar<2>* all = helper->Concat(first, second, 0);
//
// Its operations, for the kinds and ranks of array_groups.inc:
//
//   Result<K>* MatMult(Left<L>* left, Right<R>* right)
//       The product for L and R of 1 or 2: a vector on the left is a row, a vector on the right a column, and the
//       result loses its axis. Numbers times variables keep the two vectors and make no terms. An IVarArray counts as
//       a vector of variables. Beware of one on the left of an INdArray<int>: the memory of the ints is then read as
//       long long (rank 1) or double numbers (rank 2). Use a block of variables or wider numbers there.
//   Kind<N - 1>* Diagonal(Kind<N>* object, int offset, int axis1, int axis2)
//       The cells whose coordinates on the two axes, the larger less the smaller, differ by `offset`: they become the
//       last axis. Shares the cells. Negative axes are refused.
//   Kind<N + 1>* ExpandDims(Kind<N>* object, int axis)
//       One more axis of size 1 at that place, 0 to N. Shares the cells. Also for shapes.
//   Kind<N - 1>* Squeeze(Kind<N>* object, int axis)
//       That axis of size 1 taken out. Shares the cells. Also for shapes.
//   Kind<1>* Repeat1d(value, std::uint64_t n)
//       n positions that all read one new cell, a copy of the value: a Set at one of them is seen at all.
//   Wider<N>* Concat(Left<N>* left, Right<N>* right, int axis)
//       The two one behind the other along the axis; a negative axis counts from the end. Their other sizes must
//       agree. All cells are copied; numbers become constants, and variables terms, where the other operand is wider.
//   Sum<N - 1>* SumAxis(Kind<N>* object, int axis)
//       The sums along the axis, in new cells; variables give linear expressions. Negative axes are refused.
//
// Operands keep what they are. Each result is new and owned by the caller; an operation that fails gives one of size 1
// that carries the failure, as it does for an operand that is null. The service has no state.
#ifndef VORQMODEL_ARRAY_HELPER_H
#define VORQMODEL_ARRAY_HELPER_H

#include <cstdint>

#include "vorqmodel/forward.h"

namespace Vorq {

class IMHelper {
 public:
  virtual ~IMHelper() = default;

#define VORQ_OPERATION(operation, Kind, N, ...) virtual VORQ_KIND(Kind, N) * operation(__VA_ARGS__) = 0;
#include "vorqmodel/array_groups.inc"
};

enum class ArrayOperation { MatMult, Diagonal, ExpandDims, Squeeze, Repeat1d, Concat, SumAxis };

// The family of each operation, in the order of the interface.
#define VORQ_OPERATION(operation, ...) ArrayOperation::operation,
inline constexpr ArrayOperation kArrayOperations[] = {
#include "vorqmodel/array_groups.inc"
};

// The number of operations of a family.
constexpr int CountArrayOperations(ArrayOperation family) {
  int count = 0;
  for (ArrayOperation operation : kArrayOperations) count += operation == family ? 1 : 0;
  return count;
}
static_assert(CountArrayOperations(ArrayOperation::MatMult) == 148);
static_assert(CountArrayOperations(ArrayOperation::Diagonal) == 20);
static_assert(CountArrayOperations(ArrayOperation::ExpandDims) == 33);
static_assert(CountArrayOperations(ArrayOperation::Squeeze) == 33);
static_assert(CountArrayOperations(ArrayOperation::Repeat1d) == 7);
static_assert(CountArrayOperations(ArrayOperation::Concat) == 150);
static_assert(CountArrayOperations(ArrayOperation::SumAxis) == 21);
static_assert(sizeof(kArrayOperations) / sizeof(kArrayOperations[0]) == 412);

}  // namespace Vorq

#endif
