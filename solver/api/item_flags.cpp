// The C functions that read the basis codes and the IIS flags of items.
#include <vector>

#include "solver/api/arguments.hpp"
#include "solver/api/item_kinds.hpp"

using namespace vorqsolver;

namespace {

// `list(problem)` has one entry for each item, or there is none of it.
template <typename List>
int GetFlags(VORQ_Prob* prob, ItemKind const& kind, int count, int const* indices, int* flags, char const* what,
             List list) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kind.Count(problem), kind.title);
    if (count > 0) Need(flags, what);
    std::vector<int> const& entries = list(problem);
    if (static_cast<int>(entries.size()) != kind.Count(problem)) Refuse("There is no ", what);
    for (int place = 0; place < count; ++place) flags[place] = entries[static_cast<std::size_t>(items[place])];
  });
}

int GetIisFlags(VORQ_Prob* prob, ItemKind const& kind, int count, int const* indices, int* flags,
                std::vector<int> Iis::*list) {
  return GetFlags(
      prob, kind, count, indices, flags, "IIS", [list](Problem const& problem) -> auto const& {
        if (!problem.result.iis.available) Refuse("There is no IIS");
        return problem.result.iis.*list;
      });
}

}  // namespace

int VORQ_GetColBasis(VORQ_Prob* prob, int count, int const* indices, int* basis) {
  return GetFlags(
      prob, kColumnKind, count, indices, basis, "basis",
      [](Problem const& problem) -> auto const& { return problem.CurrentBasis().cols; });
}

int VORQ_GetRowBasis(VORQ_Prob* prob, int count, int const* indices, int* basis) {
  return GetFlags(
      prob, kRowKind, count, indices, basis, "basis",
      [](Problem const& problem) -> auto const& { return problem.CurrentBasis().rows; });
}

#define VORQ_IIS_READER(name, kind, list)                                               \
  int VORQ_Get##name##IIS(VORQ_Prob* prob, int count, int const* indices, int* flags) { \
    return GetIisFlags(prob, kind, count, indices, flags, &Iis::list);                  \
  }

VORQ_IIS_READER(ColLower, kColumnKind, colLower)
VORQ_IIS_READER(ColUpper, kColumnKind, colUpper)
VORQ_IIS_READER(RowLower, kRowKind, rowLower)
VORQ_IIS_READER(RowUpper, kRowKind, rowUpper)
VORQ_IIS_READER(SOS, kSosKind, soss)
VORQ_IIS_READER(Indicator, kIndicatorKind, indicators)

#undef VORQ_IIS_READER
