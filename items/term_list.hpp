// The operations that all lists of terms share. A list of terms is a set of parallel vectors of one length; terms are
// unsorted, and a removal moves the last term into the gap.
#pragma once

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Vorq {

// Room for `count` terms in all; a count that is not positive does nothing.
template <class... Lists>
void ReserveTerms(int count, Lists&... lists) {
  if (count > 0) (lists.reserve(static_cast<std::size_t>(count)), ...);
}

// The room made before `count` terms are appended at once.
template <class First, class... Lists>
void MakeRoomForTerms(std::size_t count, First& first, Lists&... lists) {
  std::size_t const capacity = first.capacity();
  if (2 * capacity >= count) return;
  first.reserve(count + capacity);
  (lists.reserve(count + capacity), ...);
}

// Room for one more element. The first growth gives room for a typical row at once.
template <class List>
[[gnu::noinline]] void MakeRoomForOne(List& list) {
  constexpr std::size_t kFirstRoom = 8;
  if (list.size() == list.capacity()) list.reserve(std::max(kFirstRoom, 2 * list.size()));
}

// Room for `count` more, growing geometrically.
template <class... Lists>
void MakeRoomForMore(std::size_t count, Lists&... lists) {
  auto grow = [count](auto& list) {
    std::size_t const needed = list.size() + count;
    if (needed > list.capacity()) list.reserve(std::max(needed, 2 * list.capacity()));
  };
  (grow(lists), ...);
}

// Empties a list of items ahead of its end. Items lie apart in memory, each with a counter: those of the next terms are
// asked for early, so that they come together.
template <class Item>
void ReleaseItems(std::vector<Item>& items) noexcept {
  constexpr std::size_t kAhead = 12;
  std::size_t const count = items.size();
  for (std::size_t i = count - std::min(count, kAhead); i < count; ++i) items[i].Prefetch();
  while (!items.empty()) {
    if (items.size() > kAhead) items[items.size() - 1 - kAhead].Prefetch();
    items.pop_back();
  }
}

// Removes the term at `i`, a position that exists: the last one takes its place.
template <class... Lists>
void SwapRemove(std::size_t i, Lists&... lists) {
  auto remove = [i](auto& list) {
    if (i + 1 != list.size()) list[i] = std::move(list.back());
    list.pop_back();
  };
  (remove(lists), ...);
}

// Removes the term at `i`; a position outside the list does nothing.
template <class First, class... Lists>
void RemoveTerm(int i, First& first, Lists&... lists) {
  if (i < 0 || static_cast<std::size_t>(i) >= first.size()) return;
  SwapRemove(static_cast<std::size_t>(i), first, lists...);
}

// Removes all terms whose element of `first` matches, and returns whether there were any.
template <class Match, class First, class... Lists>
bool RemoveMatchingTerms(Match matches, First& first, Lists&... lists) {
  std::size_t const before = first.size();
  for (std::size_t i = 0; i < first.size();) {
    if (matches(first[i])) {
      SwapRemove(i, first, lists...);
    } else {
      ++i;
    }
  }
  return first.size() != before;
}

// Removes all terms of the item `item`, which must be live.
template <class Item, class... Lists>
bool RemoveTermsOf(Item const& item, std::vector<Item>& items, Lists&... lists) {
  if (!item.IsLive()) return false;
  return RemoveMatchingTerms([index = item.Idx()](Item const& other) { return other.Idx() == index; }, items, lists...);
}

// Leaves one term per live item: merge(to, from) adds a later term to the first of its item. Terms of items that are
// not live are dropped.
template <class Merge, class Item, class... Lists>
void MergeDuplicates(Merge merge, std::vector<Item>& items, Lists&... lists) {
  std::unordered_map<int, std::size_t> firstOf;
  for (std::size_t i = 0; i < items.size();) {
    if (items[i].IsLive()) {
      auto const [entry, isNew] = firstOf.try_emplace(items[i].Idx(), i);
      if (isNew) {
        ++i;
        continue;
      }
      merge(entry->second, i);
    }
    SwapRemove(i, items, lists...);
  }
}

// Whether merging would leave the terms as they are: no coefficient is zero, and no index negative or there twice.
// `indices` are those of the terms' items; `marks` as below.
inline bool AreReduced(std::vector<double> const& coeffs, std::vector<int> const& indices, unsigned char* marks) {
  std::size_t const count = coeffs.size();
  std::size_t seen = 0;
  while (seen < count && indices[seen] >= 0 && marks[indices[seen]] == 0 && coeffs[seen] != 0.0) {
    marks[indices[seen++]] = 1;
  }
  for (std::size_t i = 0; i < seen; ++i) marks[indices[i]] = 0;
  return seen == count;
}

// Merges the terms of each item with scratch arrays that have an entry for each index; all marks are zero before and
// after. Zero terms and terms of items that are not live are dropped; a sum of zero stays. `indexAt(i)` is the index of
// the item of term i; `lists` follow the coefficients.
template <class IndexAt, class... Lists>
void ReduceTermsDense(IndexAt indexAt, double* sums, unsigned char* marks, std::vector<double>& coeffs,
                      Lists&... lists) {
  for (std::size_t i = 0; i < coeffs.size(); ++i) {
    int const index = indexAt(i);
    double const c = coeffs[i];
    if (index < 0 || c == 0.0) continue;
    if (marks[index] != 0) {
      sums[index] += c;
    } else {
      sums[index] = c;
      marks[index] = 1;
    }
  }
  for (std::size_t i = 0; i < coeffs.size();) {
    int const index = indexAt(i);
    if (index >= 0 && marks[index] != 0) {
      coeffs[i] = sums[index];
      marks[index] = 0;
      ++i;
    } else {
      SwapRemove(i, coeffs, lists...);
    }
  }
}

// The same with the indices that the items have.
template <class Item>
void ReduceTermsDense(std::vector<double>& coeffs, std::vector<Item>& items, double* sums, unsigned char* marks) {
  ReduceTermsDense([&items](std::size_t i) { return items[i].Idx(); }, sums, marks, coeffs, items);
}

// Merges the terms of each item, all indices being below `size`. Where the scratch arrays of the dense path would be
// long for the number of terms a map takes their place; there a term of coefficient zero stays.
template <class Item>
void ReduceTerms(std::vector<double>& coeffs, std::vector<Item>& items, int size) {
  constexpr std::size_t kLongestDensePath = 99;
  if (items.empty()) return;
  std::size_t const length = size < 0 ? 0 : static_cast<std::size_t>(size);
  if (length / items.size() <= kLongestDensePath) {
    std::vector<double> sums(length);
    std::vector<unsigned char> marks(length);
    ReduceTermsDense(coeffs, items, sums.data(), marks.data());
  } else {
    MergeDuplicates([&coeffs](std::size_t to, std::size_t from) { coeffs[to] += coeffs[from]; }, items, coeffs);
  }
}

// Appends the terms of another, or of the same, list, `scale` giving each its new coefficient.
template <class Coefficient, class Item, class Scale>
void AppendTerms(std::vector<Coefficient>& coeffs, std::vector<Item>& items, std::vector<Coefficient> const& newCoeffs,
                 std::vector<Item> const& newItems, Scale scale) {
  std::size_t const count = newItems.size();
  MakeRoomForMore(count, coeffs, items);
  for (std::size_t i = 0; i < count; ++i) {
    // The lists keep one length also when a copy throws.
    Coefficient coeff = scale(newCoeffs[i]);
    items.push_back(newItems[i]);
    coeffs.push_back(std::move(coeff));
  }
}

// A coefficient times a multiplier: by 1 it stays as it is, by -1 it is taken from zero.
inline double ScaledCoefficient(double c, double mult) {
  return mult == 1.0 ? c : mult == -1.0 ? 0.0 - c : c * mult;
}

// Appends one term. `item` must not be an element of `items`.
template <class Item>
void AppendTerm(std::vector<double>& coeffs, std::vector<Item>& items, double c, Item const& item) {
  if (coeffs.size() == coeffs.capacity() || items.size() == items.capacity()) [[unlikely]] {
    MakeRoomForOne(coeffs);
    MakeRoomForOne(items);
  }
  items.push_back(item);
  coeffs.push_back(c);
}

// The linear AddTerms: -1 if there are no coefficients or `n` is below the number of items; otherwise that number.
template <class Item>
int AddLinearTerms(std::vector<double>& coeffs, std::vector<Item>& items, std::vector<Item> const& newItems,
                   double const* newCoeffs, int n) {
  int const count = static_cast<int>(newItems.size());
  if (newCoeffs == nullptr || n < count) return -1;
  MakeRoomForTerms(newItems.size(), items, coeffs);
  MakeRoomForMore(newItems.size(), coeffs, items);
  items.insert(items.end(), newItems.begin(), newItems.end());
  coeffs.insert(coeffs.end(), newCoeffs, newCoeffs + count);
  return count;
}

}  // namespace Vorq
