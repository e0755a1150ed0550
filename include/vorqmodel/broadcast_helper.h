// IBroadCastHelper: matrix objects and arrays added, subtracted and multiplied cell by cell.
//
//     std::unique_ptr<Vorq::IBroadCastHelper> helper(CreateBroadCastHelper());
//     Vorq::IMLinExpr<2>* sum = helper->Add(x, row);         // x of shape (2, 3), row of shape (3)
//
// All operations read: Result<max(L, R)>* Add(Left<L>* left, Right<R>* right), likewise Sub and Mul, for the kinds of
// broadcast_groups.inc and all ranks L and R from 0 to 3. Shapes are aligned at their last axis; axes of size 1 are
// stretched. The result is new, shares no cell with an operand and is owned by the caller; for shapes that do not
// fit, and for an operand that is null, it has size 1 and carries the failure.
#ifndef VORQMODEL_BROADCAST_HELPER_H
#define VORQMODEL_BROADCAST_HELPER_H

#include "vorqmodel/forward.h"

namespace Vorq {

class IBroadCastHelper {
 public:
  virtual ~IBroadCastHelper() = default;

#define VORQ_ENTRY(L, R, MAX, operation, Left, Right, Result) \
  virtual VORQ_KIND(Result, MAX) * operation(VORQ_KIND(Left, L) * left, VORQ_KIND(Right, R) * right) = 0;
#define VORQ_GROUP(operation, Left, Right, Result) VORQ_RANK_PAIRS(VORQ_ENTRY, operation, Left, Right, Result)
#include "vorqmodel/broadcast_groups.inc"
#undef VORQ_ENTRY
};

#define VORQ_GROUP(...) +1
inline constexpr int kBroadcastGroups = 0
#include "vorqmodel/broadcast_groups.inc"
    ;
static_assert(kBroadcastGroups == 107);

#define VORQ_ENTRY(...) +1
#define VORQ_GROUP(...) +(0 VORQ_RANK_PAIRS(VORQ_ENTRY, ))
inline constexpr int kBroadcastOperations = 0
#include "vorqmodel/broadcast_groups.inc"
    ;
#undef VORQ_ENTRY
static_assert(kBroadcastOperations == 1712);

}  // namespace Vorq

#endif
