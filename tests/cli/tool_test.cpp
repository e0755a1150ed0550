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

TEST_F(Tool, ConvertsAModelThroughEveryFormatThatIsReadAndWritten) {
  std::string from = folder_.Write("m.lp", kDiet);
  for (char const* name : {"a.mps", "b.bin", "c.lp.gz", "d.MPS.GZ", "e.bin.gz", "f.lp"}) {
    std::string const to = folder_.File(name).string();
    ProgramResult const result = Run("convert " + from + " " + to);
    EXPECT_EQ(result.exitCode, 0) << name << result.errors;
    EXPECT_EQ(result.output + result.errors, "") << name;
    from = to;
  }
  ProgramResult const direct = Run("convert " + folder_.File("m.lp").string() + " " + folder_.File("g.lp").string());
  EXPECT_EQ(direct.exitCode, 0);
  EXPECT_EQ(FileText(folder_.File("f.lp")), FileText(folder_.File("g.lp")));
  EXPECT_NE(FileText(folder_.File("c.lp.gz")), FileText(folder_.File("f.lp")));
}

TEST_F(Tool, ConvertsSdpaToCbfAndTellsWhatIsLost) {
  std::string const sdpa = folder_.Write("m.dat-s", "1\n1\n2\n1\n1 1 1 2 1\n");
  EXPECT_EQ(Run("convert " + sdpa + " " + folder_.File("a.cbf").string()).exitCode, 0);
  EXPECT_THAT(FileText(folder_.File("a.cbf")), HasSubstr("HCOORD\n1\n0 0 1 0 1\n"));
  ProgramResult const result = Run("convert " + folder_.Write("m.lp", kDiet) + " " + folder_.File("a.nl").string());
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.errors, "vorq: warning: An NL file holds no names\n");
}

TEST_F(Tool, ConvertsConicFilesThatGzipPacked) {
  std::string const sdpa = folder_.Write("m.dat-s", "1\n1\n2\n1\n1 1 1 2 1\n");
  ASSERT_EQ(RunProgram("gzip -k " + sdpa).exitCode, 0);
  auto const convert = [&](char const* from, char const* to) {
    ProgramResult const result = Run("convert " + folder_.File(from).string() + " " + folder_.File(to).string());
    EXPECT_EQ(result.exitCode, 0) << from << ": " << result.errors;
  };
  convert("m.dat-s", "plain.cbf");
  convert("m.dat-s.gz", "packed.cbf.gz");
  convert("packed.cbf.gz", "unpacked.cbf");
  EXPECT_EQ(FileText(folder_.File("unpacked.cbf")), FileText(folder_.File("plain.cbf")));
}

TEST_F(Tool, RefusesAConversionThatTheFormatCannotHold) {
  std::string const cbf = folder_.Write("m.cbf", "VER\n1\nVAR\n3 1\nQ 3\n");
  std::string const out = folder_.File("a.mps").string();
  ProgramResult const result = Run("convert " + cbf + " " + out);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors, "vorq: " + out + ": An MPS file cannot hold cones\n");
  EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(Tool, NamesFileLineAndCauseOfABadConversion) {
  std::string const file = folder_.Write("bad.cbf", "VER\n1\nVAR\n1 1\nX 1\n");
  ProgramResult const result = Run("convert " + file + " " + folder_.File("a.bin").string());
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.errors, "vorq: " + file + ":5: unknown cone 'X'\n");
}

TEST_F(Tool, RefusesEndingsThatCannotBeConverted) {
  std::string const lp = folder_.Write("m.lp", kDiet);
  EXPECT_EQ(Run("convert " + lp + " a.dat-s").errors, "vorq: a.dat-s: a problem of this ending cannot be written\n");
  EXPECT_EQ(Run("convert " + lp + " a.xyz").errors, "vorq: a.xyz: a problem of this ending cannot be written\n");
  EXPECT_EQ(Run("convert a.nl a.lp").errors, "vorq: a.nl: a problem of this ending cannot be read\n");
  EXPECT_EQ(Run("convert " + lp).exitCode, 2);
  EXPECT_EQ(Run("convert --help").exitCode, 0);
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

constexpr char kContradiction[] =
    "Minimize\n o: x + y\nSubject To\n low: x + y >= 10\n high: x + y <= 4\n idle: x - y <= 3\nEnd\n";

TEST_F(Tool, PrintsAnInfeasibleSet) {
  std::string const model = folder_.Write("model.lp", kContradiction);
  ProgramResult const result = Run("iis " + model + " --output " + folder_.File("set.lp").string());
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("status: infeasible\nirreducible: yes\nrow low >= 10\nrow high <= 4\n"));
  EXPECT_EQ(Run("solve " + folder_.File("set.lp").string()).exitCode, 3);
}

TEST_F(Tool, PrintsAnInfeasibleSetAsJson) {
  ProgramResult const result = Run("iis " + folder_.Write("model.lp", kContradiction) + " --json");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, StartsWith("{\"status\": \"infeasible\", \"irreducible\": 1, \"rows\": 2, \"columns\": 0, "
                                        "\"sos\": 0, \"indicators\": 0, \"time\": "));
}

TEST_F(Tool, SaysThatAFeasibleModelHasNoInfeasibleSet) {
  ProgramResult const result = Run("iis " + folder_.Write("model.lp", kDiet) + " --json");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.errors, HasSubstr("There is no IIS: the problem is feasible"));
}

TEST_F(Tool, RelaxesAModel) {
  std::string const model = folder_.Write("model.lp", kContradiction);
  ProgramResult const result = Run("relax " + model + " --solution " + folder_.File("point.sol").string());
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("status: optimal\npenalty: 6\n"));
  EXPECT_THAT(FileText(folder_.File("point.sol")), HasSubstr("x "));
  ProgramResult const bounds = Run("relax " + model + " --bounds-only --json");
  EXPECT_EQ(bounds.exitCode, 3);
  EXPECT_THAT(bounds.output, StartsWith("{\"status\": \"infeasible\", \"penalty\": null, "));
}

TEST_F(Tool, RefusesToRelaxNothing) {
  EXPECT_EQ(Run("relax x.lp --rows-only --bounds-only").exitCode, 2);
  EXPECT_EQ(Run("iis").exitCode, 2);
  EXPECT_EQ(Run("iis x.lp --solution y").exitCode, 2);
  EXPECT_EQ(Run("relax --help").exitCode, 0);
}

}  // namespace
