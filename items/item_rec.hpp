// ItemRec: the identity of one model item, shared by all objects that stand for it.
#pragma once

#include <string_view>

#include "frame/shared_ptr.hpp"
#include "items/item_name.hpp"
#include "items/prob_handle.hpp"

namespace Vorq {

// The index of an item that a failed operation returned: it stands for nothing.
inline constexpr int kInvalidIndex = -2;

// The index of a removed item that stood at `position`, and back: the two are one mapping.
constexpr int RemovedIndex(int position) {
  return -3 - position;
}

struct ItemRec {
  ItemRec(SharedPtr<ProbHandle> const& problem, std::string_view itemName, int index)
      : idx(index), name(itemName), prob(problem) {}

  // 0 or above: the position in the solver's list. -2: invalid. -3 or below: removed. It stands first, behind the
  // control block, so that the counter and the index that every term reads share a cache line.
  int idx;
  // The cached name; empty if it was not fetched or there is none.
  ItemName name;
  SharedPtr<ProbHandle> prob;
};

}  // namespace Vorq
