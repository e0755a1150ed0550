// Growing a flat list that may become long.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

#include "frame/huge_pages.hpp"

namespace Vorq {

// Moves the elements to a place with room for at least `needed`, and by half more than there was.
template <class T>
[[gnu::noinline]] void Grow(std::vector<T>& items, std::size_t needed) {
  static_assert(std::is_nothrow_move_constructible_v<T>);
  std::vector<T> grown;
  grown.reserve(std::max(needed, items.capacity() + items.capacity() / 2));
  AdviseHugePages(grown.data(), grown.capacity() * sizeof(T));
  grown.insert(grown.end(), std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
  items = std::move(grown);
}

// Makes room for `more` elements; appending them then takes no memory. Appending many times costs amortised constant
// time for each.
template <class T>
void ReserveMore(std::vector<T>& items, std::size_t more) {
  if (more > items.capacity() - items.size()) [[unlikely]]
    Grow(items, items.size() + more);
}

}  // namespace Vorq
