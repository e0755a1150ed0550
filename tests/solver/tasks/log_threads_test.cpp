// Several threads with one log.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "solver/parameters/parameter_set.hpp"
#include "solver/tasks/log.hpp"

namespace vorqsolver {
namespace {

TEST(LogThreadsTest, LinesOfSeveralThreadsDoNotMix) {
  ParameterSet parameters;
  parameters.SetInt("LogToConsole", 0);
  Log log{&parameters};
  std::vector<std::string> lines;
  log.SetSink([](char const* line, void* user) { static_cast<std::vector<std::string>*>(user)->push_back(line); },
              &lines);
  {
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t) {
      threads.emplace_back([&log] {
        for (int k = 0; k < 200; ++k) log.Line("a line");
      });
    }
  }
  EXPECT_EQ(lines.size(), 800u);
  EXPECT_THAT(lines, testing::Each("a line"));
}

}  // namespace
}  // namespace vorqsolver
