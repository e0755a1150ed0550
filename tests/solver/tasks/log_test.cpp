// Log: sink, file, console, and the parameters that rule them.
#include "solver/tasks/log.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LogTest : public testing::Test {
 protected:
  LogTest() {
    parameters.SetInt("LogToConsole", 0);
    log.SetSink([](char const* line, void* user) { static_cast<std::vector<std::string>*>(user)->push_back(line); },
                &lines);
  }
  ~LogTest() override { std::filesystem::remove(path); }

  std::string FileText() const {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
  }

  ParameterSet parameters;
  Log log{&parameters};
  std::vector<std::string> lines;
  std::string path =
      (std::filesystem::temp_directory_path() / ("vorq_log_test_" + std::to_string(::getpid()) + ".log")).string();
};

TEST_F(LogTest, LineGoesToTheSinkWithoutItsEnd) {
  log.Line("one");
  log.Line("two\n");
  EXPECT_THAT(lines, ElementsAre("one", "two"));
}

TEST_F(LogTest, TextOfSeveralLinesIsSplit) {
  log.Line("one\n\ntwo");
  EXPECT_THAT(lines, ElementsAre("one", "", "two"));
}

TEST_F(LogTest, PrintFormats) {
  log.Print("%d %s 100%%", 7, "rows");
  EXPECT_THAT(lines, ElementsAre("7 rows 100%"));
}

TEST_F(LogTest, LineTakesPercentSignsAsTheyAre) {
  log.Line("%s%n");
  EXPECT_THAT(lines, ElementsAre("%s%n"));
}

TEST_F(LogTest, LoggingOffIsSilentEverywhere) {
  parameters.SetInt("Logging", 0);
  parameters.SetInt("LogToConsole", 1);
  log.SetFile(path.c_str());
  testing::internal::CaptureStdout();
  log.Line("one");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_THAT(lines, IsEmpty());
  EXPECT_EQ(FileText(), "");
  EXPECT_FALSE(log.Enabled());
}

TEST_F(LogTest, ConsoleFollowsItsParameter) {
  testing::internal::CaptureStdout();
  log.Line("one");
  parameters.SetInt("LogToConsole", 1);
  log.Line("two");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "two\n");
  EXPECT_THAT(lines, ElementsAre("one", "two"));
}

TEST_F(LogTest, LogWithoutParametersNeverWritesToTheConsole) {
  Log plain;
  testing::internal::CaptureStdout();
  plain.Line("one");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(LogTest, FileIsAppendedTo) {
  log.SetFile(path.c_str());
  log.Line("one");
  log.SetFile(nullptr);
  log.Line("two");
  log.SetFile(path.c_str());
  log.Line("three");
  log.SetFile("");
  EXPECT_EQ(FileText(), "one\nthree\n");
}

TEST_F(LogTest, FileThatCannotBeOpenedFailsAndKeepsTheFormer) {
  log.SetFile(path.c_str());
  try {
    log.SetFile("/nowhere/at/all.log");
    FAIL() << "opened";
  } catch (Failure const& failure) {
    EXPECT_EQ(failure.code, VORQ_FILE);
    EXPECT_STREQ(failure.what(), "Cannot open log file '/nowhere/at/all.log'");
  }
  log.Line("one");
  EXPECT_EQ(FileText(), "one\n");
}

TEST_F(LogTest, NullSinkEndsTheCalls) {
  log.SetSink(nullptr, nullptr);
  log.Line("one");
  EXPECT_THAT(lines, IsEmpty());
}

}  // namespace
}  // namespace vorqsolver
