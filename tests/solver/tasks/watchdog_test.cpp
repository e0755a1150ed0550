// The watchdog: it speaks where nobody else does, and not beyond its life.
#include "solver/tasks/watchdog.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {
namespace {

class WatchdogTest : public testing::Test {
 protected:
  WatchdogTest() {
    parameters.SetInt("LogToConsole", 0);
    log.SetSink([](char const*, void* user) { ++*static_cast<std::atomic<int>*>(user); }, &lines);
  }

  ParameterSet parameters;
  Log log{&parameters};
  std::atomic<int> lines = 0;
};

TEST_F(WatchdogTest, BreaksTheSilenceAfterSomeSeconds) {
  Watchdog const watchdog(log);
  std::this_thread::sleep_for(std::chrono::milliseconds(5500));
  EXPECT_EQ(lines, 1);
}

TEST_F(WatchdogTest, SaysNothingWhereLinesCome) {
  Watchdog const watchdog(log);
  for (int k = 0; k < 6; ++k) {
    std::this_thread::sleep_for(std::chrono::milliseconds(950));
    log.Line("still here");
  }
  EXPECT_EQ(lines, 6);
}

TEST_F(WatchdogTest, EndsAtOnceAndSilently) {
  auto const begin = Clock::now();
  { Watchdog const watchdog(log); }
  EXPECT_LT(Clock::now() - begin, std::chrono::seconds(2));
  EXPECT_EQ(lines, 0);
}

TEST_F(WatchdogTest, LogThatIsOffStaysSilent) {
  parameters.SetInt("Logging", 0);
  Watchdog const watchdog(log);
  EXPECT_EQ(lines, 0);
}

}  // namespace
}  // namespace vorqsolver
