// Appending checked items of one kind with their names: all of them or, when memory runs out, none.
#pragma once

#include <iterator>
#include <utility>
#include <vector>

#include "solver/api/arguments.hpp"
#include "solver/problem/growth.hpp"

namespace vorqsolver {

template <typename T>
void AppendItems(std::vector<T>& items, std::vector<T>&& added) {
  ReserveMore(items, added.size());
  std::ranges::move(added, std::back_inserter(items));
}

template <typename T>
void AppendItems(std::vector<T>& items, NameList& list, std::vector<T>&& added, char const* const* names) {
  auto const count = static_cast<int>(added.size());
  CheckNames(count, names);
  ReserveMore(items, added.size());
  SetNames(list, static_cast<int>(items.size()), count, names);
  std::ranges::move(added, std::back_inserter(items));
}

template <typename T>
void AppendItem(std::vector<T>& items, NameList& list, T added, char const* name) {
  std::vector<T> one;
  one.push_back(std::move(added));
  AppendItems(items, list, std::move(one), &name);
}

}  // namespace vorqsolver
