// Reading items back, each as a run of entries in flat arrays, with the required-size protocol.
#pragma once

#include <algorithm>

#include "solver/api/arguments.hpp"

namespace vorqsolver {

// `sizeOf(index)` tells how many entries an item has, `write(index, begin)` stores them from `begin` on; it is called
// only when one of `arrays` is there. Nothing is stored but `required` when the capacity is too small.
template <typename SizeOf, typename Write>
void ReadRuns(Selection const& items, int* begins, int* counts, std::initializer_list<void const*> arrays, int capacity,
              int* required, SizeOf sizeOf, Write write) {
  std::size_t total = 0;
  for (int place = 0; place < items.Size(); ++place) total += sizeOf(items[place]);
  bool const wanted = WantsTerms(total, arrays, capacity, required);
  std::size_t end = 0;
  for (int place = 0; place < items.Size(); ++place) {
    auto const size = sizeOf(items[place]);
    if (begins != nullptr) begins[place] = static_cast<int>(end);
    if (counts != nullptr) counts[place] = static_cast<int>(size);
    if (wanted) write(items[place], end);
    end += size;
  }
}

// Stores a list at `begin` of an array that may be null.
template <typename List, typename T>
void StoreAt(List const& list, T* array, std::size_t begin) {
  if (array != nullptr) std::ranges::copy(list, array + begin);
}

// Stores one member of each term, such as &LinearTerm::col.
template <typename Term, typename Member, typename T>
void StoreMembers(std::vector<Term> const& terms, Member Term::*member, T* array, std::size_t begin = 0) {
  if (array != nullptr)
    std::ranges::transform(terms, array + begin, [member](Term const& term) { return term.*member; });
}

// Stores one value of each chosen item, where the caller gave a place.
template <typename T, typename Value>
void StoreEach(Selection const& items, T* array, Value value) {
  if (array == nullptr) return;
  for (int place = 0; place < items.Size(); ++place) array[place] = value(items[place]);
}

}  // namespace vorqsolver
