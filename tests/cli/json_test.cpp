// The JSON object that the tool prints.
#include "cli/json.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

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

struct SequenceCase {
  char const* name;
  std::string_view valid;
  std::string_view invalid;  // beside it
};

class JsonUtf8 : public testing::TestWithParam<SequenceCase> {};

TEST_P(JsonUtf8, KeepsTheLastThatIsValidAndReplacesTheNext) {
  EXPECT_EQ(TextOf(GetParam().valid.data()), "{\"v\": \"" + std::string(GetParam().valid) + "\"}");
  std::string replaced;
  for (std::size_t i = 0; i < GetParam().invalid.size(); ++i) replaced += "\xEF\xBF\xBD";
  EXPECT_EQ(TextOf(GetParam().invalid.data()), "{\"v\": \"" + replaced + "\"}");
}
INSTANTIATE_TEST_SUITE_P(Limits, JsonUtf8,
                         testing::Values(SequenceCase{"OverlongOfTwo", "\xC2\x80", "\xC1\xBF"},
                                         SequenceCase{"OverlongOfThree", "\xE0\xA0\x80", "\xE0\x9F\xBF"},
                                         SequenceCase{"FirstSurrogate", "\xED\x9F\xBF", "\xED\xA0\x80"},
                                         SequenceCase{"LastSurrogate", "\xEE\x80\x80", "\xED\xBF\xBF"},
                                         SequenceCase{"OverlongOfFour", "\xF0\x90\x80\x80", "\xF0\x8F\xBF\xBF"},
                                         SequenceCase{"BeyondUnicode", "\xF4\x8F\xBF\xBF", "\xF4\x90\x80\x80"},
                                         SequenceCase{"LeadBeyondUnicode", "\xF3\xBF\xBF\xBF", "\xF5\x80\x80\x80"}),
                         [](auto const& test) { return std::string(test.param.name); });

TEST(Json, ASequenceThatIsCutOffIsReplaced) {
  EXPECT_EQ(TextOf("\xF0\x90\x80"), "{\"v\": \"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"}");
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
