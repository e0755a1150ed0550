// The C functions that delete items.
#include <algorithm>
#include <vector>

#include "solver/api/arguments.hpp"
#include "solver/api/item_kinds.hpp"

using namespace vorqsolver;

namespace {

int Delete(VORQ_Prob* prob, ItemKind const& kind, int count, int const* indices) {
  return Edit(prob, [&](Problem& problem) {
    auto const list = List(count, indices, "indices");
    CheckIndices(list, kind.Count(problem), kind.title);
    std::vector<int> deleted(list.begin(), list.end());
    std::ranges::sort(deleted);
    deleted.erase(std::unique(deleted.begin(), deleted.end()), deleted.end());
    if (!deleted.empty()) kind.erase(problem, deleted);
  });
}

}  // namespace

#define VORQ_DELETER(name, kind)                                       \
  int VORQ_Del##name(VORQ_Prob* prob, int count, int const* indices) { \
    return Delete(prob, kind, count, indices);                         \
  }

VORQ_DELETER(Cols, kColumnKind)
VORQ_DELETER(Rows, kRowKind)
VORQ_DELETER(SOSs, kSosKind)
VORQ_DELETER(Cones, kConeKind)
VORQ_DELETER(ExpCones, kExpConeKind)
VORQ_DELETER(AffineCones, kAffineConeKind)
VORQ_DELETER(Indicators, kIndicatorKind)
VORQ_DELETER(QConstrs, kQuadConstraintKind)
VORQ_DELETER(PSDCols, kPsdColumnKind)
VORQ_DELETER(PSDConstrs, kPsdConstraintKind)
VORQ_DELETER(LMIConstrs, kLmiConstraintKind)

#undef VORQ_DELETER
