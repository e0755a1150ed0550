// The texts of failures.
#include "solver/problem/failure.hpp"

#include <gtest/gtest.h>

namespace vorqsolver {
namespace {

TEST(FailureTest, TextJoinsTextsAndNumbers) {
  EXPECT_EQ(Text("Row ", 7, " has the bound ", 0.1, ", sense '", 'E', "'"), "Row 7 has the bound 0.1, sense 'E'");
}

TEST(FailureTest, NumbersAreAsShortAsTheyCanBe) {
  EXPECT_EQ(ToText(1e30), "1e+30");
  EXPECT_EQ(ToText(-3.0), "-3");
}

TEST(FailureTest, RefuseThrowsTheInvalidCodeWithItsText) {
  try {
    Refuse("Column ", 3, " does not exist");
    FAIL() << "nothing was thrown";
  } catch (Failure const& failure) {
    EXPECT_EQ(failure.code, VORQ_INVALID);
    EXPECT_STREQ(failure.what(), "Column 3 does not exist");
  }
}

}  // namespace
}  // namespace vorqsolver
