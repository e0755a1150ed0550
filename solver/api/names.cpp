// The C functions on names of items: lookup, setting and reading, for the eight kinds that have names.
#include <algorithm>

#include "solver/api/arguments.hpp"
#include "solver/api/item_kinds.hpp"

using namespace vorqsolver;

namespace {

// A name that nobody bears is an ordinary answer: a code, but no line in the log.
int FindName(VORQ_Prob* prob, ItemKind const& kind, char const* name, int* index) {
  return Guard(prob, [&](Problem& problem) -> int {
    Need(name, "name");
    Need(index, "index");
    auto const found = kind.names(problem.data).Find(name);
    *index = found.value_or(-1);
    return found ? VORQ_OK : VORQ_INVALID;
  });
}

// Names are no part of what is solved, so results stay.
int SetItemNames(VORQ_Prob* prob, ItemKind const& kind, int count, int const* indices, char const* const* names) {
  return Guard(prob, [&](Problem& problem) {
    if (problem.solving) Refuse("Names cannot be changed while the problem is being solved");
    Selection const items(count, indices, kind.Count(problem), kind.title);
    if (count > 0) Need(names, "names");
    CheckNames(count, names);
    auto& list = kind.names(problem.data);
    for (int place = 0; place < count; ++place) list.Set(items[place], ToName(names[place]));
  });
}

// A buffer that is too small is an ordinary answer, too.
int GetName(VORQ_Prob* prob, ItemKind const& kind, int index, char* buffer, int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) -> int {
    CheckIndex(index, kind.Count(problem), kind.title);
    auto const name = kind.names(problem.data).Get(index);
    auto const size = static_cast<int>(name.size()) + 1;
    Store(required, size);
    if (buffer == nullptr) return required != nullptr ? VORQ_OK : VORQ_INVALID;
    if (capacity < size) return VORQ_INVALID;
    std::ranges::copy(name, buffer);
    buffer[name.size()] = '\0';
    return VORQ_OK;
  });
}

}  // namespace

#define VORQ_NAME_FUNCTIONS(item, kind)                                                                 \
  int VORQ_Get##item##Idx(VORQ_Prob* prob, char const* name, int* index) {                              \
    return FindName(prob, kind, name, index);                                                           \
  }                                                                                                     \
  int VORQ_Set##item##Names(VORQ_Prob* prob, int count, int const* indices, char const* const* names) { \
    return SetItemNames(prob, kind, count, indices, names);                                             \
  }                                                                                                     \
  int VORQ_Get##item##Name(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required) {     \
    return GetName(prob, kind, index, buffer, capacity, required);                                      \
  }

VORQ_NAME_FUNCTIONS(Col, kColumnKind)
VORQ_NAME_FUNCTIONS(Row, kRowKind)
VORQ_NAME_FUNCTIONS(Indicator, kIndicatorKind)
VORQ_NAME_FUNCTIONS(AffineCone, kAffineConeKind)
VORQ_NAME_FUNCTIONS(QConstr, kQuadConstraintKind)
VORQ_NAME_FUNCTIONS(PSDCol, kPsdColumnKind)
VORQ_NAME_FUNCTIONS(PSDConstr, kPsdConstraintKind)
VORQ_NAME_FUNCTIONS(LMIConstr, kLmiConstraintKind)

#undef VORQ_NAME_FUNCTIONS
