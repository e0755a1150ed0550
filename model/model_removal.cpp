// Carrying out removals: one deletion for each kind of which items are marked.
#include "model/model.hpp"

namespace Vorq {

template <class Item>
bool Model::RemoveMarked() {
  ItemTable<Item>& table = core_->Table<Item>();
  auto const marked = std::count_if(table.items.begin(), table.items.end(),
                                    [](Item const& item) { return item.Idx() < kInvalidIndex; });
  if (marked == 0) return true;

  std::vector<int> positions;
  FlatList<Item> kept;
  positions.reserve(static_cast<std::size_t>(marked));
  kept.reserve(table.items.size() - static_cast<std::size_t>(marked));
  for (Item const& item : table.items) {
    if (item.IsLive()) {
      kept.push_back(item);
    } else if (item.Idx() < kInvalidIndex) {
      positions.push_back(RemovedIndex(item.Idx()));
    }
  }
  ModelKind const& kind = kModelKind<Item>;
  if (!Record(kind.remove(Prob(), static_cast<int>(positions.size()), positions.data()), kind.removeFailed)) {
    return false;
  }
  table.items = std::move(kept);
  table.count = 0;
  for (Item const& item : table.items) item.Record().idx = table.count++;
  return true;
}

bool Model::ApplyRemovals() {
  if (!core_->prob->dirty) return true;
  bool const done = ForEachKind(RemovableKinds(), [this]<class Item>() {
    int const before = Count<Item>();
    if (!RemoveMarked<Item>()) return false;
    if constexpr (std::is_same_v<Item, Var>) {
      if (Count<Item>() != before) TellColumnCount();
    }
    return true;
  });
  if (done) core_->prob->dirty = false;
  return done;
}

bool Model::TellColumnCount() {
  return !columnCountListener_ || columnCountListener_(Count<Var>());
}

}  // namespace Vorq
