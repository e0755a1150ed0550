// How a list closes the gaps that deleted positions leave. Positions are ascending and without duplicates.
#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace vorqsolver {

// Positions behind the end of `items` are taken as deleted from an unstored tail.
template <typename List>
void KeepRemaining(List& items, std::span<int const> deleted) {
  if (deleted.empty() || static_cast<std::size_t>(deleted.front()) >= items.size()) return;
  auto kept = static_cast<std::size_t>(deleted.front());
  auto next = deleted.begin();
  for (std::size_t place = kept; place < items.size(); ++place) {
    if (next != deleted.end() && static_cast<std::size_t>(*next) == place) {
      ++next;
    } else {
      items[kept++] = std::move(items[place]);
    }
  }
  items.resize(kept);
}

// The new position of each of `count` old ones, -1 for the deleted.
inline std::vector<int> NewPositions(int count, std::span<int const> deleted) {
  std::vector<int> positions(static_cast<std::size_t>(count));
  auto next = deleted.begin();
  int kept = 0;
  for (int place = 0; place < count; ++place) {
    bool const gone = next != deleted.end() && *next == place;
    if (gone) ++next;
    positions[static_cast<std::size_t>(place)] = gone ? -1 : kept++;
  }
  return positions;
}

}  // namespace vorqsolver
