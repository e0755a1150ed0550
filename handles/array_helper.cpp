// The handle on the service of products, stacks and sums, and its exported factory.
#include "vorqmodel/array_helper.h"

#include <type_traits>
#include <utility>

#include "handles/item_arrays.hpp"
#include "handles/m_expressions.hpp"
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "handles/nd_array.hpp"
#include "handles/shapes.hpp"
#include "matrix/concat.hpp"
#include "matrix/dense_products.hpp"
#include "matrix/rank_change.hpp"
#include "matrix/sum_axis.hpp"
#include "vorqmodel/exports.h"

using namespace Vorq;

namespace {

// Operands are objects or numbers.
template <class Operand>
decltype(auto) UnwrapOperand(Operand const& operand) {
  if constexpr (std::is_pointer_v<Operand>) {
    return std::as_const(Unwrap(operand));
  } else {
    return operand;
  }
}

template <class Operand>
bool IsNull(Operand const& operand) {
  if constexpr (std::is_pointer_v<Operand>) {
    return operand == nullptr;
  } else {
    return false;
  }
}

template <int N>
INDim<N>* WrapResult(NDim<N>&& shape) {
  return Wrap<INDim<N>>(std::move(shape));
}
template <class T, int N>
INdArray<T, N>* WrapResult(NdArray<T, N>&& array) {
  return WrapArray(std::move(array));
}
template <class Cell, int N>
IMatrixObject<Cell, N>* WrapResult(MatrixObject<Cell, N>&& block) {
  return WrapBlock(std::move(block));
}

// The failed result of an operation whose operand at that place, counted from 1, is null.
template <class Result>
Result NullOperand(int place) {
  Status failure;
  SetStatus(failure, kInvalid, "Operand %d is null", place);
  constexpr int kRank = Result::kRank;
  if constexpr (requires { typename Result::Cell; }) {
    using Cell = typename Result::Cell;
    return Result(NdArray<Cell, kRank>::Failed(DefaultCell<Cell>(), std::move(failure)));
  } else if constexpr (requires { typename Result::Element; }) {
    return Result::Failed(typename Result::Element(), std::move(failure));
  } else {
    Result shape = Result::Uniform(1);
    shape.GetStatus() = std::move(failure);
    return shape;
  }
}

// Unwraps the operands, calls, and wraps the result.
template <class Function, class... Operands>
auto Operate(Function const& function, Operands... operands) {
  using Result = decltype(function(UnwrapOperand(operands)...));
  int place = 0;
  if (((++place, IsNull(operands)) || ...)) return WrapResult(NullOperand<Result>(place));
  return WrapResult(function(UnwrapOperand(operands)...));
}

}  // namespace

// It has no state, and so no object behind it.
class VorqMHelper final : public IMHelper {
 public:
#define VORQ_CALL_MatMult Operate([](auto const& a, auto const& b) { return Vorq::MatMult(a, b); }, left, right)
#define VORQ_CALL_Diagonal Operate([=](auto const& a) { return Vorq::Diagonal(a, offset, axis1, axis2); }, object)
#define VORQ_CALL_ExpandDims Operate([axis](auto const& a) { return Vorq::ExpandDims(a, axis); }, object)
#define VORQ_CALL_Squeeze Operate([axis](auto const& a) { return Vorq::Squeeze(a, axis); }, object)
#define VORQ_CALL_Repeat1d Operate([n](auto const& cell) { return Vorq::Repeat1d(cell, n); }, value)
#define VORQ_CALL_Concat Operate([axis](auto const& a, auto const& b) { return Vorq::Concat(a, b, axis); }, left, right)
#define VORQ_CALL_SumAxis Operate([axis](auto const& a) { return Vorq::SumAxis(a, axis); }, object)
#define VORQ_OPERATION(operation, Kind, N, ...)          \
  VORQ_KIND(Kind, N) * operation(__VA_ARGS__) override { \
    return VORQ_CALL_##operation;                        \
  }
#include "vorqmodel/array_groups.inc"

#undef VORQ_CALL_MatMult
#undef VORQ_CALL_Diagonal
#undef VORQ_CALL_ExpandDims
#undef VORQ_CALL_Squeeze
#undef VORQ_CALL_Repeat1d
#undef VORQ_CALL_Concat
#undef VORQ_CALL_SumAxis
};

extern "C" IMHelper* CreateMHelper() {
  return new VorqMHelper();
}
