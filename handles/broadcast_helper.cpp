// The handle on the operators, and its exported factory.
#include "vorqmodel/broadcast_helper.h"
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "handles/nd_array.hpp"
#include "handles/null_operand.hpp"
#include "matrix/operators.hpp"
#include "vorqmodel/exports.h"

namespace {

using Vorq::IMLinExpr;
using Vorq::IMPsdExpr;
using Vorq::IMQuadExpr;
using Vorq::IMVar;
using Vorq::INdArray;
using Vorq::Operand;
using Vorq::OperandCells;
using Vorq::Operation;

// One function for each kernel, which the operations for the ranks of operands share.
template <Operation kOperation, class Left, class Right, int N>
[[gnu::noinline]] auto* OperateAndWrap(Operand<Left> const& left, Operand<Right> const& right) {
  auto result = Vorq::Operate<kOperation, Left, Right, N>(left, right);
  if constexpr (requires { Vorq::WrapBlock(std::move(result)); }) {
    return Vorq::WrapBlock(std::move(result));
  } else {
    return Vorq::WrapArray(std::move(result));
  }
}

}  // namespace

// It has no state, and so no object behind it.
class VorqBroadCastHelper final : public Vorq::IBroadCastHelper {
 public:
#define VORQ_ENTRY(L, R, MAX, operation, Left, Right, Result)                                                    \
  VORQ_KIND(Result, MAX) * operation(VORQ_KIND(Left, L) * left, VORQ_KIND(Right, R) * right) override {          \
    if (int const place = Vorq::NullPlace(left, right)) return Vorq::NullOperand<VORQ_KIND(Result, MAX)>(place); \
    return OperateAndWrap<Operation::k##operation, OperandCells::Left, OperandCells::Right, MAX>(                \
        Vorq::CellsOf(Vorq::Unwrap(left)), Vorq::CellsOf(Vorq::Unwrap(right)));                                  \
  }
#define VORQ_GROUP(operation, Left, Right, Result) VORQ_RANK_PAIRS(VORQ_ENTRY, operation, Left, Right, Result)
#include "vorqmodel/broadcast_groups.inc"
#undef VORQ_ENTRY
};

extern "C" Vorq::IBroadCastHelper* CreateBroadCastHelper() {
  return new VorqBroadCastHelper();
}
