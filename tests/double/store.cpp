// The operations of the double's store.
#include "tests/double/store.hpp"

#include <algorithm>
#include <set>

namespace vorqtest {

Item* Store::Find(Kind kind, int index) {
  if (index < 0 || index >= Count(kind)) return nullptr;
  return &items[kind][static_cast<std::size_t>(index)];
}

void Store::Delete(Kind kind, int count, int const* indices) {
  std::set<int> const gone(indices, indices + count);
  std::vector<Item> kept;
  for (int i = 0; i < Count(kind); ++i) {
    if (!gone.contains(i)) kept.push_back(std::move(items[kind][static_cast<std::size_t>(i)]));
  }
  items[kind] = std::move(kept);
}

int Store::Search(Kind kind, std::string_view name) const {
  auto const found =
      std::find_if(items[kind].begin(), items[kind].end(), [name](Item const& item) { return item.name == name; });
  return found == items[kind].end() ? -1 : static_cast<int>(found - items[kind].begin());
}

}  // namespace vorqtest
