// The table of all operations, made from the table of the groups.
#include "tests/operators/law_table.hpp"

namespace vorqtest {
namespace {

using Vorq::IMLinExpr;
using Vorq::IMPsdExpr;
using Vorq::IMQuadExpr;
using Vorq::IMVar;
using Vorq::INdArray;

}  // namespace

#define VORQ_ENTRY(L, R, MAX, operation, Left, Right)                                                         \
  {L, R, MAX, [](Vorq::IBroadCastHelper& helper, void* left, void* right) {                                   \
     return OperandTest::Take(                                                                                \
         helper.operation(static_cast<VORQ_KIND(Left, L)*>(left), static_cast<VORQ_KIND(Right, R)*>(right))); \
   }},
#define VORQ_GROUP(operation, Left, Right, Result) \
  {#operation,                                     \
   Kind::Left,                                     \
   Kind::Right,                                    \
   #operation "_" #Left "_" #Right,                \
   {VORQ_RANK_PAIRS(VORQ_ENTRY, operation, Left, Right)}},

std::vector<LawGroup> const& LawGroups() {
  static std::vector<LawGroup> const groups = {
#include "vorqmodel/broadcast_groups.inc"
  };
  return groups;
}

#undef VORQ_ENTRY

}  // namespace vorqtest
