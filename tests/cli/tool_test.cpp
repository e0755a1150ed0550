// The tool `vorq`, run as a user runs it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/program.hpp"

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr char kDiet[] =
    "Maximize\n profit: 3 x + 2 y\n"
    "Subject To\n hours: x + y <= 4\n room: x + 3 y <= 6\n"
    "Bounds\n x <= 3\nEnd\n";

class Tool : public testing::Test {
 protected:
  static ProgramResult Run(std::string const& arguments) { return RunProgram(VORQ_TOOL " " + arguments); }

  // The result of solving a model, given as text in LP format.
  ProgramResult Solve(std::string const& model, std::string const& options = "") {
    return Run("solve " + folder_.Write("model.lp", model) + " " + options);
  }

  TemporaryFolder folder_;
};

TEST_F(Tool, PrintsTheLogAndTheResult) {
  ProgramResult const result = Solve(kDiet);
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("status: optimal\nobjective: 11\nbound: 11\n"));
  EXPECT_THAT(result.output, HasSubstr("Engine Clp "));
  EXPECT_EQ(result.errors, "");
}

TEST_F(Tool, PrintsOneJsonObjectOnly) {
  ProgramResult const result = Solve(kDiet, "--json");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.output,
              MatchesRegex("\\{\"status\": \"optimal\", \"objective\": 11, \"bound\": 11, \"time\": [-0-9.e]*, "
                           "\"engine\": \"[A-Za-z0-9. ]+\", \"message\": \"\"\\}\n"));
  EXPECT_EQ(result.errors, "");
}

TEST_F(Tool, SolvesAMixedIntegerModel) {
  ProgramResult const result = Solve(
      "Maximize\n v: 5 a + 4 b + 3 c\nSubject To\n w: 2 a + 3 b + c <= 5\n t: 4 a + b + 2 c <= 11\nGenerals\n a b "
      "c\nEnd\n",
      "--json");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.output, StartsWith("{\"status\": \"optimal\", \"objective\": 15, \"bound\": 15,"));
}

TEST_F(Tool, TellsAnInfeasibleModel) {
  ProgramResult const result = Solve("Minimize\n o: x\nSubject To\n a: x >= 2\n b: x <= 1\nEnd\n", "--json");
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_THAT(result.output, StartsWith("{\"status\": \"infeasible\", \"objective\": null, \"bound\": null,"));
}

TEST_F(Tool, TellsAnUnboundedModel) {
  ProgramResult const result = Solve("Maximize\n o: x + y\nSubject To\n a: x - y <= 1\nEnd\n", "--json");
  EXPECT_EQ(result.exitCode, 4);
  EXPECT_THAT(result.output, StartsWith("{\"status\": \"unbounded\", \"objective\": null,"));
}

TEST_F(Tool, WritesTheSolution) {
  ProgramResult const result = Solve(kDiet, "--solution " + folder_.File("out.sol").string());
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  std::string const solution = FileText(folder_.File("out.sol"));
  EXPECT_THAT(solution, HasSubstr("x 3\n"));
  EXPECT_THAT(solution, HasSubstr("y 1\n"));
}

TEST_F(Tool, NamesFileLineAndCauseOfABadModel) {
  std::string const file = folder_.Write("bad.mps", "NAME bad\nROWS\n N cost\nCOLUMNS\n x nowhere 1\nENDATA\n");
  ProgramResult const result = Run("solve " + file + " --json");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.output, StartsWith("{\"status\": \"failed\", \"objective\": null,"));
  EXPECT_THAT(result.errors, HasSubstr("bad.mps:5: "));
  EXPECT_THAT(result.errors, HasSubstr("nowhere"));
}

TEST_F(Tool, NamesAFileThatIsNotThere) {
  ProgramResult const result = Run("solve " + folder_.File("none.lp").string());
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.errors, HasSubstr("none.lp"));
}

TEST_F(Tool, RefusesAnUnknownExtension) {
  ProgramResult const result = Run("solve " + folder_.Write("model.xyz", ""));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.errors, HasSubstr("Unknown file type"));
}

TEST_F(Tool, SetsParametersByNameInAnyCase) {
  EXPECT_EQ(Solve(kDiet, "--set feastol=1e-7 --set LOGGING=0").exitCode, 0);
}

TEST_F(Tool, NamesASettingThatIsRefused) {
  EXPECT_THAT(Solve(kDiet, "--set Nothing=1").errors, HasSubstr("--set Nothing=1: there is no such parameter"));
  EXPECT_THAT(Solve(kDiet, "--set RelGap=much").errors, HasSubstr("--set RelGap=much: the value is not a number"));
  EXPECT_THAT(Solve(kDiet, "--set Logging=0.5").errors,
              HasSubstr("--set Logging=0.5: the value is not a whole number"));
  EXPECT_THAT(Solve(kDiet, "--set RelGap=-1").errors, HasSubstr("--set RelGap=-1: "));
}

TEST_F(Tool, PrintsItsVersion) {
  ProgramResult const result = Run("--version");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.output, "vorq 7.2.5\n");
}

TEST_F(Tool, TellsItsUsageOnAMistake) {
  EXPECT_EQ(Run("").exitCode, 2);
  EXPECT_EQ(Run("dance").exitCode, 2);
  EXPECT_EQ(Run("solve").exitCode, 2);
  EXPECT_THAT(Run("solve --fast x.lp").errors, StartsWith("vorq: unknown option '--fast'\nusage: "));
  EXPECT_EQ(Run("solve --help").exitCode, 0);
}

}  // namespace
