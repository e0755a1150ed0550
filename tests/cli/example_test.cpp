// The examples of the README, run as a user runs them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/program.hpp"

namespace {

using testing::HasSubstr;

TEST(Examples, ProductionPlanningFindsTheCheapestPlan) {
  ProgramResult const result = RunProgram(PRODUCTION_PLANNING);
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("total cost "));
  EXPECT_THAT(result.output, HasSubstr("slack of hours"));
}

TEST(Examples, FacilityLocationIsSolvedFromItsFile) {
  ProgramResult const result =
      RunProgram(VORQ_TOOL " solve " VORQ_SOURCE_DIR "/examples/data/facility_location.lp --json");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("\"status\": \"optimal\""));
}

}  // namespace
