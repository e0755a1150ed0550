// Growing a flat list of a problem.
#pragma once

#include "frame/flat_list.hpp"
#include "frame/growth.hpp"

namespace vorqsolver {

using Vorq::ReserveMore;

template <class T>
void ReserveMore(Vorq::FlatList<T>& items, std::size_t more) {
  items.reserve_more(more);
}

}  // namespace vorqsolver
