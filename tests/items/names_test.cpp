// Names: how they are normalised and compared.
#include <gtest/gtest.h>

#include "items/equals_no_case.hpp"
#include "items/normalize_name.hpp"

using Vorq::EqualsNoCase;
using Vorq::NormalizeName;

TEST(NormalizeName, NullGivesTheEmptyName) {
  EXPECT_EQ(NormalizeName(nullptr), "");
}
TEST(NormalizeName, OuterWhiteSpaceGoes) {
  EXPECT_EQ(NormalizeName(" \t\n x1 \v\f\r"), "x1");
}
TEST(NormalizeName, BlanksInsideBecomeUnderscores) {
  EXPECT_EQ(NormalizeName("a  b c"), "a__b_c");
}
TEST(NormalizeName, OtherWhiteSpaceInsideStays) {
  EXPECT_EQ(NormalizeName("a\tb\nc"), "a\tb\nc");
}
TEST(NormalizeName, OnlyWhiteSpaceGivesTheEmptyName) {
  EXPECT_EQ(NormalizeName("  \t "), "");
}
TEST(NormalizeName, BytesAboveAsciiStay) {
  EXPECT_EQ(NormalizeName(" \xc3\xa4 b"), "\xc3\xa4_b");
}

TEST(EqualsNoCase, IgnoresCase) {
  EXPECT_TRUE(EqualsNoCase("lB", "Lb"));
}
TEST(EqualsNoCase, LengthsMustAgree) {
  EXPECT_FALSE(EqualsNoCase("LB", "LBs"));
  EXPECT_FALSE(EqualsNoCase("LBs", "LB"));
}
TEST(EqualsNoCase, DifferentLettersDiffer) {
  EXPECT_FALSE(EqualsNoCase("LB", "UB"));
}
TEST(EqualsNoCase, EmptyTextsAreEqual) {
  EXPECT_TRUE(EqualsNoCase("", ""));
}
