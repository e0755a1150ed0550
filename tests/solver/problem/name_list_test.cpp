// NameList: reading, lookup, deletion, and random edits against a plain list of names.
#include "solver/problem/name_list.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace vorqsolver {
namespace {

TEST(NameListTest, UnsetNamesAreEmpty) {
  NameList names;
  EXPECT_EQ(names.Get(5), "");
  names.Set(2, "c");
  EXPECT_EQ(names.Get(0), "");
  EXPECT_EQ(names.Get(2), "c");
  EXPECT_EQ(names.Get(3), "");
}

TEST(NameListTest, TheEmptyNameIsNeverFound) {
  NameList names;
  names.Set(1, "a");
  EXPECT_FALSE(names.Find("").has_value());
  EXPECT_FALSE(names.Find("b").has_value());
}

TEST(NameListTest, OfDuplicatesTheFirstIsFound) {
  NameList names;
  names.Set(4, "x");
  EXPECT_EQ(names.Find("x"), 4);
  names.Set(1, "x");
  EXPECT_EQ(names.Find("x"), 1);
  names.Set(6, "x");
  EXPECT_EQ(names.Find("x"), 1);
  names.Set(1, "y");
  EXPECT_EQ(names.Find("x"), 4);
}

TEST(NameListTest, DeleteClosesTheGaps) {
  NameList names;
  names.Set(0, "a");
  names.Set(1, "b");
  names.Set(3, "d");
  ASSERT_EQ(names.Find("d"), 3);
  names.Delete(std::vector{1, 2});
  EXPECT_EQ(names.Get(0), "a");
  EXPECT_EQ(names.Get(1), "d");
  EXPECT_EQ(names.Find("d"), 1);
  EXPECT_FALSE(names.Find("b").has_value());
}

TEST(NameListTest, ClearForgetsNamesAndIndex) {
  NameList names;
  names.Set(0, "a");
  ASSERT_EQ(names.Find("a"), 0);
  names.Clear();
  EXPECT_EQ(names.Get(0), "");
  EXPECT_FALSE(names.Find("a").has_value());
}

TEST(NameListTest, RandomEditsAgreeWithAPlainList) {
  std::mt19937 random(11);
  auto const below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  NameList names;
  std::vector<std::string> plain(30);
  for (int step = 0; step < 5000; ++step) {
    if (below(50) == 0) {
      std::vector<int> deleted;
      for (int place = 0; place < 30; ++place) {
        if (below(6) == 0) deleted.push_back(place);
      }
      names.Delete(deleted);
      for (auto place = deleted.rbegin(); place != deleted.rend(); ++place) plain.erase(plain.begin() + *place);
      plain.resize(30);
    } else {
      auto const place = below(30);
      auto const name = below(4) == 0 ? std::string() : "n" + std::to_string(below(12));
      names.Set(place, name);
      plain[static_cast<std::size_t>(place)] = name;
    }
    auto const wanted = "n" + std::to_string(below(12));
    auto const first = std::find(plain.begin(), plain.end(), wanted);
    auto const expected =
        first == plain.end() ? std::nullopt : std::optional<int>(static_cast<int>(first - plain.begin()));
    ASSERT_EQ(names.Find(wanted), expected) << "step " << step;
    auto const place = below(30);
    ASSERT_EQ(names.Get(place), plain[static_cast<std::size_t>(place)]) << "step " << step;
  }
}

}  // namespace
}  // namespace vorqsolver
