// What the documentation shows beside C++: samples of files are read by the readers, commands are run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "frame/vorq_solver.h"
#include "tests/docs/pages.hpp"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

void KeepLine(char const* line, void* user) {
  static_cast<std::vector<std::string>*>(user)->push_back(line);
}

class Samples : public testing::Test {
 public:
  Samples() {
    EXPECT_EQ(VORQ_CreateEnvWithPath(nullptr, &env_), VORQ_OK);
    EXPECT_EQ(VORQ_CreateProb(env_, &prob_), VORQ_OK);
    EXPECT_EQ(VORQ_SetIntParam(prob_, "LogToConsole", 0), VORQ_OK);
    EXPECT_EQ(VORQ_SetLogCallback(prob_, KeepLine, &lines_), VORQ_OK);
  }
  ~Samples() override {
    VORQ_DeleteProb(&prob_);
    VORQ_DeleteEnv(&env_);
  }

  // `last` is what the log tells of the file.
  void Read(int (*read)(VORQ_Prob*, char const*), std::string const& name, std::string const& text,
            std::string const& last) {
    std::string const path = folder_.Write(name, text);
    EXPECT_EQ(read(prob_, path.c_str()), VORQ_OK) << text;
    EXPECT_EQ(lines_, std::vector<std::string>{"Read '" + path + "'" + last}) << text;
  }

  void ReadLp(std::string const& text) {
    Read(VORQ_ReadLp, "sample.lp", text,
         ": 2 rows, 4 columns, 5 nonzeros, 2 quadratic terms, 1 quadratic constraints, 1 SOS, 1 indicators, "
         "1 lazy constraints, 1 user cuts");
    std::string types(4, '?');
    EXPECT_EQ(VORQ_GetColType(prob_, 4, nullptr, types.data()), VORQ_OK);
    EXPECT_EQ(types, "SCIB");
  }

  void ReadSol(std::string const& text) {
    for (char const* name : {"x", "my column"}) {
      EXPECT_EQ(VORQ_AddCol(prob_, 0.0, 0, nullptr, nullptr, 'C', 0.0, VORQ_INFINITY, name), VORQ_OK);
    }
    Read(VORQ_ReadSol, "sample.sol", text, ": values of 2 of 2 columns, kept as a MIP start");
  }

  void ReadPar(std::string const& text) {
    Read(VORQ_ReadParam, "sample.par", text, "");
    double value = 0.0;
    EXPECT_EQ(VORQ_GetDblParam(prob_, "TimeLimit", &value), VORQ_OK);
    EXPECT_EQ(value, 30.0);
  }

  void ReadTune(std::string const& text) {
    Read(VORQ_ReadTune, "sample.tune", text, ": values of 2 parameters to be tried");
  }

  // The targets of the Makefile are there; it is not for a test to build.
  void FindTargets(std::string const& text) {
    std::string const makefile = FileText(VORQ_SOURCE_DIR "/Makefile");
    static std::regex const target("make (\\w+) ");
    for (std::sregex_iterator found(text.begin(), text.end(), target), end; found != end; ++found) {
      EXPECT_THAT(makefile, HasSubstr("\n" + (*found)[1].str() + ":"));
    }
  }

  // In the folder of a model whose rows contradict each other.
  ProgramResult Run(std::string const& command) {
    folder_.Write("model.lp", "Minimize\n x\nSubject To\n c1: x >= 5\n c2: x <= 3\nBounds\n x <= 9\nEnd\n");
    std::string const tool = std::regex_replace(command, std::regex("^vorq"), VORQ_TOOL);
    return RunProgram("cd " + folder_.File("").string() + " && " + tool);
  }

  // A synopsis is what the command tells of itself; others are run as they stand.
  void RunCommands(std::string const& text) {
    std::smatch command;
    if (std::regex_match(text, command, std::regex("vorq (solve|iis|relax|convert) [FI][\\s\\S]*"))) {
      EXPECT_THAT(OneLine(Run("vorq " + command[1].str() + " --help").output), StartsWith("usage: " + OneLine(text)));
      return;
    }
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
      ProgramResult const result = Run(line);
      EXPECT_EQ(result.exitCode, 0) << line << '\n' << result.output << result.errors;
      EXPECT_EQ(result.errors, "") << line;
    }
  }

  // With one blank for all that is blank, and one at the end.
  static std::string OneLine(std::string const& text) { return std::regex_replace(text, std::regex("\\s+"), " "); }

  TemporaryFolder folder_;
  VORQ_Env* env_ = nullptr;
  VORQ_Prob* prob_ = nullptr;
  std::vector<std::string> lines_;
};

// Each passage is of a kind that has a test.
TEST_F(Samples, AreReadOrRun) {
  struct Kind {
    std::string_view begin;
    void (Samples::*check)(std::string const& text);
    int count = 0;
  };
  Kind kinds[] = {{"\\Problem name", &Samples::ReadLp},    {"# Objective value", &Samples::ReadSol},
                  {"# a quick look\n", &Samples::ReadPar}, {"# what to try\n", &Samples::ReadTune},
                  {"make ", &Samples::FindTargets},        {"vorq ", &Samples::RunCommands}};
  for (auto const& page : Pages()) {
    for (Passage const& passage : Passages(FileText(page))) {
      if (passage.language == "cpp") continue;
      SCOPED_TRACE(page.string());
      bool isKnown = false;
      for (Kind& kind : kinds) {
        if (!passage.text.starts_with(kind.begin)) continue;
        isKnown = true;
        ++kind.count;
        EXPECT_EQ(VORQ_ClearProb(prob_), VORQ_OK);
        lines_.clear();
        (this->*kind.check)(passage.text);
      }
      EXPECT_TRUE(isKnown) << "no test reads the passage\n" << passage.text;
    }
  }
  for (Kind const& kind : kinds) EXPECT_GT(kind.count, 0) << "no page shows what begins with " << kind.begin;
}

// Commands within the lines of a page name files; those with a file that is there can be run.
TEST_F(Samples, CommandsWithinLinesRun) {
  int count = 0;
  static std::regex const command("`(vorq (?:solve|convert)[^`]*)`");
  ASSERT_EQ(Run("vorq convert model.lp model.mps").exitCode, 0);
  for (auto const& page : Pages()) {
    std::string const text = FileText(page);
    for (std::sregex_iterator found(text.begin(), text.end(), command), end; found != end; ++found) {
      std::string const line = (*found)[1];
      if (line.find('.') == std::string::npos) continue;  // the name of a command
      ++count;
      constexpr int kInfeasible = 3;
      ProgramResult const result = Run(line);
      EXPECT_EQ(result.exitCode, line.starts_with("vorq solve") ? kInfeasible : 0) << page << '\n' << result.errors;
    }
  }
  EXPECT_GE(count, 2);
}

}  // namespace
