// ItemName: short names, which stand in the object, and longer ones.
#include "items/item_name.hpp"

#include <gtest/gtest.h>

#include <string>

namespace Vorq {
namespace {

TEST(ItemNameTest, StartsEmpty) {
  ItemName const name;
  EXPECT_TRUE(name.empty());
  EXPECT_STREQ(name.c_str(), "");
}

TEST(ItemNameTest, NamesOfAnyLengthReadAsWritten) {
  for (std::size_t length = 0; length < 40; ++length) {
    std::string const text(length, 'x');
    ItemName const name(text);
    EXPECT_STREQ(name.c_str(), text.c_str());
    EXPECT_EQ(name.empty(), length == 0);
    EXPECT_TRUE(name == text);
  }
}

TEST(ItemNameTest, ANameTakesThePlaceOfAnother) {
  std::string const lengths[] = {"", "C1", std::string(11, 'b'), std::string(12, 'c'), std::string(100, 'd')};
  for (std::string const& before : lengths) {
    for (std::string const& after : lengths) {
      ItemName name(before);
      name = after;
      EXPECT_STREQ(name.c_str(), after.c_str());
      EXPECT_EQ(name.empty(), after.empty());
    }
  }
}

TEST(ItemNameTest, APartOfItselfBecomesTheName) {
  ItemName name("a name that is long");
  name = std::string_view(name.c_str()).substr(2);
  EXPECT_STREQ(name.c_str(), "name that is long");
  name = std::string_view(name.c_str()).substr(0, 4);
  EXPECT_STREQ(name.c_str(), "name");
}

}  // namespace
}  // namespace Vorq
