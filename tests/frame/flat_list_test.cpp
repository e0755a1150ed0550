// FlatList: short and mapped lists, growth, copies, and elements that are more than plain values.
#include "frame/flat_list.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

namespace Vorq {

// Counts its objects, and may be moved by its bytes.
struct FlatListElement {
  explicit FlatListElement(int n) : number(n) { ++live; }
  FlatListElement(FlatListElement const& other) : number(other.number) { ++live; }
  FlatListElement& operator=(FlatListElement const&) = default;
  ~FlatListElement() { --live; }

  int number;
  static inline int live = 0;
};
template <>
struct IsRelocatable<FlatListElement> : std::true_type {};

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

// Far beyond the size from which lists are mapped.
constexpr int kMany = 1'500'000;

FlatList<int> Counted(int count) {
  FlatList<int> list;
  for (int i = 0; i < count; ++i) list.push_back(i);
  return list;
}

bool CountsTo(FlatList<int> const& list, int count) {
  if (std::ssize(list) != count) return false;
  for (int i = 0; i < count; ++i) {
    if (list[static_cast<std::size_t>(i)] != i) return false;
  }
  return true;
}

TEST(FlatListTest, StartsEmpty) {
  FlatList<double> const list;
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(list.capacity(), 0u);
  EXPECT_EQ(list.begin(), list.end());
}

TEST(FlatListTest, ListsItsElementsInOrder) {
  FlatList<int> list = {3, 1};
  list.push_back(4);
  EXPECT_THAT(list, ElementsAre(3, 1, 4));
  EXPECT_EQ(list.back(), 4);
  EXPECT_EQ(std::span<int const>(list)[1], 1);
  list.pop_back();
  EXPECT_THAT(list, ElementsAre(3, 1));
}

TEST(FlatListTest, ElementsStayWhenALongListGrows) {
  EXPECT_TRUE(CountsTo(Counted(kMany), kMany));
}

TEST(FlatListTest, ElementsThatFillNoPageEvenlyStayToo) {
  struct Triple {
    std::int64_t a, b, c;
  };
  FlatList<Triple> list;
  for (std::int64_t i = 0; i < kMany / 4; ++i) list.push_back({i, 2 * i, 3 * i});
  std::int64_t sum = 0;
  for (Triple const& triple : list) sum += triple.c - triple.b - triple.a;
  EXPECT_EQ(sum, 0);
  EXPECT_EQ(list.back().c, 3 * (kMany / 4 - 1));
}

TEST(FlatListTest, AppendsAndAssignsRanges) {
  std::vector<int> numbers(kMany);
  std::iota(numbers.begin(), numbers.end(), 3);
  FlatList<int> list = Counted(3);
  list.append(numbers.begin(), numbers.end());
  EXPECT_TRUE(CountsTo(list, kMany + 3));
  list.assign(numbers.begin(), numbers.begin() + 2);
  EXPECT_THAT(list, ElementsAre(3, 4));
  list.assign(3, 7);
  EXPECT_THAT(list, ElementsAre(7, 7, 7));
}

TEST(FlatListTest, ResizeCutsAndFills) {
  FlatList<int> list = Counted(3);
  list.resize(1);
  EXPECT_THAT(list, ElementsAre(0));
  list.resize(3);
  EXPECT_THAT(list, ElementsAre(0, 0, 0));
  list.resize(kMany, 9);
  EXPECT_EQ(list[2], 0);
  EXPECT_THAT(std::span(list).subspan(3), Each(9));
}

TEST(FlatListTest, RoomThatWasMadeIsUsed) {
  FlatList<int> list;
  list.reserve(100);
  int const* const place = list.data();
  for (int i = 0; i < 100; ++i) list.push_back(i);
  EXPECT_EQ(list.data(), place);
  EXPECT_TRUE(CountsTo(list, 100));
}

TEST(FlatListTest, CopiesAreApart) {
  FlatList<int> list = Counted(kMany);
  FlatList<int> copy = list;
  EXPECT_TRUE(copy == list);
  copy[5] = 0;
  EXPECT_FALSE(copy == list);
  EXPECT_TRUE(CountsTo(list, kMany));
  copy = FlatList<int>{1};
  EXPECT_THAT(copy, ElementsAre(1));
}

TEST(FlatListTest, AMovedListIsEmpty) {
  FlatList<int> list = Counted(kMany);
  int const* const place = list.data();
  FlatList<int> const moved = std::move(list);
  EXPECT_EQ(moved.data(), place);
  EXPECT_THAT(list, IsEmpty());  // NOLINT(bugprone-use-after-move): this is what the test is about
}

TEST(FlatListTest, ElementsEndOnce) {
  {
    FlatList<FlatListElement> list;
    for (int i = 0; i < kMany; ++i) list.emplace_back(i);
    EXPECT_EQ(FlatListElement::live, kMany);
    EXPECT_EQ(list[kMany / 2].number, kMany / 2);
    FlatList<FlatListElement> const copy = list;
    EXPECT_EQ(FlatListElement::live, 2 * kMany);
    list.pop_back();
    EXPECT_EQ(FlatListElement::live, 2 * kMany - 1);
    list.clear();
    EXPECT_EQ(FlatListElement::live, kMany);
  }
  EXPECT_EQ(FlatListElement::live, 0);
}

TEST(FlatListTest, SizesBeyondAllMemoryAreRefused) {
  FlatList<double> list = {1.0, 2.0};
  EXPECT_THROW(list.reserve(std::size_t{1} << 61), std::bad_alloc);
  if (!kIsAddressSanitized) {
    EXPECT_THROW(list.reserve(std::size_t{1} << 56), std::bad_alloc);
    list.resize(1'000'000);
    EXPECT_THROW(list.reserve(std::size_t{1} << 56), std::bad_alloc);
    list.resize(2);
  }
  EXPECT_THAT(list, ElementsAre(1.0, 2.0));
}

}  // namespace
}  // namespace Vorq
