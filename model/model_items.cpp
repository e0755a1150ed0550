// Lookup, collecting and naming of items: one template each, made for all kinds.
#include "items/normalize_name.hpp"
#include "model/model.hpp"

namespace Vorq {

template <class Item>
Item Model::Get(int index) {
  ItemTable<Item> const& table = core_->Table<Item>();
  if (index < 0 || index >= table.count) {
    Refuse(kModelKind<Item>.badIndex);
    return Invalid<Item>();
  }
  auto const position = static_cast<std::size_t>(index);
  // An item that is marked and not yet deleted can still be fetched.
  bool const found = position < table.items.size() &&
                     (table.items[position].Idx() == index || table.items[position].Idx() == RemovedIndex(index));
  if (!found) {
    Record(kInternal, kModelKind<Item>.badTable);
    return Invalid<Item>();
  }
  Record(kOk, "");
  return table.items[position];
}

template <class Item>
Item Model::GetByName(char const* name) {
  int index = -1;
  std::string const normalized = NormalizeName(name);
  if (!Record(kModelKind<Item>.find(Prob(), normalized.c_str(), &index), kModelKind<Item>.notFound)) {
    return Invalid<Item>();
  }
  return Get<Item>(index);
}

template <class Item>
std::vector<Item> Model::Collect() {
  std::vector<Item> items;
  for (int i = 0; i < Count<Item>() && !status.Failed(); ++i) {
    Item item = Get<Item>(i);
    if (item.IsLive()) items.push_back(std::move(item));
  }
  return items;
}

template <class Item>
bool Model::CheckLive(Item const& item) {
  if (item.IsLive()) return true;
  SetStatus(status, kInvalid, "The %d-th %s has been removed", RemovedIndex(item.Idx()), kModelKind<Item>.noun);
  return false;
}

template <class Item>
void Model::SetNames(std::vector<Item> const& items, char const* names, std::size_t length) {
  std::vector<int> indices;
  indices.reserve(items.size());
  for (Item const& item : items) {
    if (!CheckLive(item)) return;
    indices.push_back(item.Idx());
  }
  std::vector<char const*> split;
  int const count = static_cast<int>(items.size());
  if (!TakeNames(names, length, count, split)) return;
  Record(kModelKind<Item>.setNames(Prob(), count, indices.data(), split.data()), kModelKind<Item>.setNamesFailed);
  // The items' own names change whatever the solver library said, which is meant.
  for (std::size_t i = 0; i < items.size(); ++i) items[i].Record().name = NormalizeName(split[i]);
}

bool Model::LiveColumns(VarArray const& vars, std::vector<int>& cols) {
  cols.reserve(vars.size());
  for (Var const& var : vars) {
    if (!var.IsLive()) return Refuse("Invalid variable");
    cols.push_back(var.Idx());
  }
  return true;
}

// What each kind has.
#define VORQ_KIND(Item)                \
  template Item Model::Get<Item>(int); \
  template std::vector<Item> Model::Collect<Item>();
#define VORQ_NAMED_KIND(Item)                        \
  VORQ_KIND(Item)                                    \
  template Item Model::GetByName<Item>(char const*); \
  template bool Model::CheckLive<Item>(Item const&); \
  template void Model::SetNames<Item>(std::vector<Item> const&, char const*, std::size_t);

VORQ_NAMED_KIND(Var)
VORQ_NAMED_KIND(Constraint)
VORQ_KIND(Sos)
VORQ_NAMED_KIND(GenConstr)
VORQ_KIND(Cone)
VORQ_KIND(ExpCone)
VORQ_NAMED_KIND(AffineCone)
VORQ_NAMED_KIND(QConstraint)
VORQ_NAMED_KIND(PsdVar)
VORQ_NAMED_KIND(PsdConstraint)
VORQ_NAMED_KIND(LmiConstraint)
VORQ_KIND(SymMatrix)

#undef VORQ_NAMED_KIND
#undef VORQ_KIND

}  // namespace Vorq
