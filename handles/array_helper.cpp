// The handle on the service of products, stacks and sums, and its exported factory.
#include "vorqmodel/array_helper.h"

#include <utility>

#include "handles/item_arrays.hpp"
#include "handles/m_expressions.hpp"
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "handles/nd_array.hpp"
#include "handles/null_operand.hpp"
#include "handles/shapes.hpp"
#include "matrix/concat.hpp"
#include "matrix/dense_products.hpp"
#include "matrix/rank_change.hpp"
#include "matrix/sum_axis.hpp"
#include "vorqmodel/exports.h"

using namespace Vorq;

namespace {

// Unwraps the operands, calls, and wraps the result.
template <class Result, class Function, class... Operands>
Result* Operate(Function const& function, Operands const&... operands) {
  if (int const place = NullPlace(operands...)) return NullOperand<Result>(place);
  return WrapResult<Result>(function(std::as_const(UnwrapArgument(operands))...));
}

}  // namespace

// It has no state, and so no object behind it.
class VorqMHelper final : public IMHelper {
 public:
#define VORQ_OPERATE_MatMult \
  Operate<Result>([](auto const& a, auto const& b) { return Vorq::MatMult(a, b); }, left, right)
#define VORQ_OPERATE_Diagonal \
  Operate<Result>([=](auto const& a) { return Vorq::Diagonal(a, offset, axis1, axis2); }, object)
#define VORQ_OPERATE_ExpandDims Operate<Result>([axis](auto const& a) { return Vorq::ExpandDims(a, axis); }, object)
#define VORQ_OPERATE_Squeeze Operate<Result>([axis](auto const& a) { return Vorq::Squeeze(a, axis); }, object)
#define VORQ_OPERATE_Repeat1d Operate<Result>([n](auto const& cell) { return Vorq::Repeat1d(cell, n); }, value)
#define VORQ_OPERATE_Concat \
  Operate<Result>([axis](auto const& a, auto const& b) { return Vorq::Concat(a, b, axis); }, left, right)
#define VORQ_OPERATE_SumAxis Operate<Result>([axis](auto const& a) { return Vorq::SumAxis(a, axis); }, object)
#define VORQ_OPERATION(operation, Kind, N, ...)          \
  VORQ_KIND(Kind, N) * operation(__VA_ARGS__) override { \
    using Result = VORQ_KIND(Kind, N);                   \
    return VORQ_OPERATE_##operation;                     \
  }
#include "vorqmodel/array_groups.inc"

#undef VORQ_OPERATE_MatMult
#undef VORQ_OPERATE_Diagonal
#undef VORQ_OPERATE_ExpandDims
#undef VORQ_OPERATE_Squeeze
#undef VORQ_OPERATE_Repeat1d
#undef VORQ_OPERATE_Concat
#undef VORQ_OPERATE_SumAxis
};

extern "C" IMHelper* CreateMHelper() {
  return new VorqMHelper();
}
