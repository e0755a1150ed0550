// The command line of `vorq solve`.
#include "cli/arguments.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

cli::SolveArguments Parse(std::vector<char const*> const& arguments) {
  return cli::ParseSolveArguments(arguments);
}

std::string ErrorOf(std::vector<char const*> const& arguments) {
  try {
    Parse(arguments);
  } catch (cli::UsageError const& error) {
    return error.what();
  }
  return "";
}

TEST(SolveArguments, ReadsAllOptionsInAnyOrder) {
  cli::SolveArguments const result = Parse({"--set", "RelGap=0.5", "model.mps", "--time-limit", "2.5", "--json",
                                            "--solution", "out.sol", "--set", "Logging=0"});
  EXPECT_EQ(result.file, "model.mps");
  EXPECT_EQ(result.timeLimit, 2.5);
  EXPECT_EQ(result.solutionFile, "out.sol");
  EXPECT_TRUE(result.json);
  ASSERT_EQ(result.settings.size(), 2u);
  EXPECT_EQ(result.settings[0], std::pair(std::string("RelGap"), std::string("0.5")));
  EXPECT_EQ(result.settings[1], std::pair(std::string("Logging"), std::string("0")));
}

TEST(SolveArguments, TakesAFileNamedLikeAnOptionBehindTwoDashes) {
  EXPECT_EQ(Parse({"--", "-x.lp"}).file, "-x.lp");
}

TEST(SolveArguments, NeedsNoFileForHelp) {
  EXPECT_TRUE(Parse({"--help"}).help);
}

TEST(SolveArguments, NamesEachMistake) {
  EXPECT_EQ(ErrorOf({}), "no model file is given");
  EXPECT_EQ(ErrorOf({"a.lp", "b.lp"}), "more than one model file: 'a.lp', 'b.lp'");
  EXPECT_EQ(ErrorOf({"a.lp", "--time-limit"}), "--time-limit needs a value");
  EXPECT_EQ(ErrorOf({"a.lp", "--time-limit", "soon"}), "--time-limit needs a number of seconds, not 'soon'");
  EXPECT_EQ(ErrorOf({"a.lp", "--time-limit", "-1"}), "--time-limit needs a number of seconds, not '-1'");
  EXPECT_EQ(ErrorOf({"a.lp", "--time-limit", "nan"}), "--time-limit needs a number of seconds, not 'nan'");
  EXPECT_EQ(ErrorOf({"a.lp", "--set", "RelGap"}), "--set needs NAME=VALUE, not 'RelGap'");
  EXPECT_EQ(ErrorOf({"a.lp", "--set", "=1"}), "--set needs NAME=VALUE, not '=1'");
  EXPECT_EQ(ErrorOf({"a.lp", "--sett", "a=1"}), "unknown option '--sett'");
}

TEST(ConvertArguments, AreTwoFiles) {
  auto const result = cli::ParseConvertArguments(std::vector<char const*>{"--", "-a.lp", "b.mps"});
  EXPECT_EQ(result.input, "-a.lp");
  EXPECT_EQ(result.output, "b.mps");
  EXPECT_THROW(cli::ParseConvertArguments(std::vector<char const*>{"a", "b", "c"}), cli::UsageError);
  EXPECT_THROW(cli::ParseConvertArguments(std::vector<char const*>{"--fast", "b", "c"}), cli::UsageError);
  EXPECT_TRUE(cli::ParseConvertArguments(std::vector<char const*>{"-h"}).help);
}

}  // namespace
