// ModelCore: what belongs to one problem on the library's side: a table of items for each kind, and the MIP start.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>

#include "frame/flat_list.hpp"
#include "frame/shared_ptr.hpp"
#include "items/prob_handle.hpp"
#include "model/env_handle.hpp"
#include "model/model_kinds.hpp"

namespace Vorq {

// The entry at position i is the item with index i, or the item that had it and is marked for removal.
template <class Item>
struct ItemTable {
  // The bound that lookups check. Equals the length of the table between operations, unless a reload broke off.
  int count = 0;
  FlatList<Item> items;
};

template <class... Items>
struct ItemTables;
template <class... Items>
struct ItemTables<KindList<Items...>> : ItemTable<Items>... {};

// Start values; any two objects of one variable are one key.
struct SameRecord {
  std::size_t operator()(Var const& var) const { return std::hash<ItemRec*>()(&var.Record()); }
  bool operator()(Var const& a, Var const& b) const { return &a.Record() == &b.Record(); }
};
using MipStart = std::unordered_map<Var, double, SameRecord, SameRecord>;

// Members are released from the last to the first: the start, the tables in reverse order, then problem and
// environment.
struct ModelCore {
  SharedPtr<EnvHandle> env;
  SharedPtr<ProbHandle> prob;
  std::string name;
  ItemTables<AllKinds> tables;
  MipStart mipStart;

  template <class Item>
  ItemTable<Item>& Table() {
    return tables;
  }
};

}  // namespace Vorq
