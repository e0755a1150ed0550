// The JSON object that the tool prints.
#include "cli/json.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::string TextOf(char const* value) {
  cli::JsonObject object;
  object.Add("v", value);
  return object.Text();
}

std::string TextOf(double value) {
  cli::JsonObject object;
  object.Add("v", value);
  return object.Text();
}

TEST(Json, SeparatesFields) {
  cli::JsonObject object;
  object.Add("status", "optimal");
  object.Add("objective", 12.5);
  EXPECT_EQ(object.Text(), R"({"status": "optimal", "objective": 12.5})");
}

TEST(Json, EscapesWhatTextMayNotHold) {
  EXPECT_EQ(TextOf("a\"b\\c\n\x7f"), R"({"v": "a\"b\\c\u000a\u007f"})");
}

TEST(Json, KeepsUtf8AndReplacesOtherBytes) {
  EXPECT_EQ(TextOf("\xC3\xA9"), "{\"v\": \"\xC3\xA9\"}");
  EXPECT_EQ(TextOf("\xC3(\xFF"), "{\"v\": \"\xEF\xBF\xBD(\xEF\xBF\xBD\"}");
}

TEST(Json, WritesNumbersInTheirShortestForm) {
  EXPECT_EQ(TextOf(0.1), R"({"v": 0.1})");
  EXPECT_EQ(TextOf(1e30), R"({"v": 1e+30})");
}

TEST(Json, WritesNullWhereThereIsNoNumber) {
  EXPECT_EQ(TextOf(std::numeric_limits<double>::infinity()), R"({"v": null})");
  EXPECT_EQ(TextOf(std::numeric_limits<double>::quiet_NaN()), R"({"v": null})");
}

}  // namespace
