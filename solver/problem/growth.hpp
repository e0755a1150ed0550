// Growing a flat list so that appending many times costs amortised constant time for each entry.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vorqsolver {

// Makes room for `more` entries; appending them then takes no memory.
template <typename T>
void ReserveMore(std::vector<T>& items, std::size_t more) {
  auto const needed = items.size() + more;
  if (needed > items.capacity()) items.reserve(std::max(needed, items.capacity() + items.capacity() / 2));
}

}  // namespace vorqsolver
