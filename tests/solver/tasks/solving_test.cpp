// Solving as seen from outside: the log, interruption, silence, and what is refused.
#include <cmath>

#include "tests/solver/engines/solve_fixture.hpp"

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class SolvingTest : public SolveTest {
 protected:
  void AddSmallLp() {
    Maximise();
    Col(1.0, 0.0, 3.0);
    Row({0}, {1.0}, 'L', 2.0);
  }
};

TEST_F(SolvingTest, LogTellsSizeEngineAndOutcome) {
  ListenToLog();
  AddSmallLp();
  ASSERT_EQ(Solve(), kOptimal);
  ASSERT_FALSE(lines.empty());
  EXPECT_THAT(lines[0], StartsWith("Vorq 7.2.5"));
  EXPECT_THAT(lines, Contains("  1 rows, 1 columns, 1 elements"));
  EXPECT_THAT(lines, Contains(StartsWith("Engine Clp")));
  EXPECT_THAT(lines, Contains("Status: optimal"));
  EXPECT_THAT(lines, Contains(StartsWith("  Objective    2.0000000000e+00")));
  EXPECT_LE(lines.size(), 12u);
}

TEST_F(SolvingTest, LogOfAMipHasATableAndAGap) {
  ListenToLog();
  AddMarketSplit(4, 30);
  Set("TimeLimit", 1.0);
  ASSERT_EQ(Solve(), kTimeLimit);
  EXPECT_THAT(lines, Contains(HasSubstr("Incumbent             Bound       Gap     Time")));
  EXPECT_THAT(lines, Contains(StartsWith("H ")));
  EXPECT_THAT(lines, Contains("Status: time limit"));
  EXPECT_THAT(lines, Contains(StartsWith("  Gap ")));
}

TEST_F(SolvingTest, LogSaysWhyABadProblemIsInfeasible) {
  ListenToLog();
  Col(1.0, 2.0, 1.0);
  ASSERT_EQ(Solve(), kInfeasible);
  EXPECT_THAT(lines, Contains("  Column 0: its bounds cross"));
}

TEST_F(SolvingTest, LoggingOffIsSilent) {
  ListenToLog();
  AddSmallLp();
  Set("Logging", 0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(SolvingTest, NothingGoesToTheConsoleUnlessAsked) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  AddSmallLp();
  for (int const method : {-1, 0, 1, 2}) {
    Set("LpMethod", method);
    ASSERT_EQ(VORQ_Reset(prob, 1), VORQ_OK);
    EXPECT_EQ(Solve(), kOptimal);
  }
  ASSERT_EQ(VORQ_ClearProb(prob), VORQ_OK);
  ASSERT_EQ(VORQ_ResetParam(prob), VORQ_OK);
  Set("LogToConsole", 0);
  AddMarketSplit(2, 15);
  Set("TimeLimit", 2.0);
  Solve();
  std::fflush(nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SolvingTest, InterruptBeforeASolveDoesNotLinger) {
  AddSmallLp();
  ASSERT_EQ(VORQ_Interrupt(prob), VORQ_OK);
  EXPECT_EQ(Solve(), kOptimal);
}

TEST_F(SolvingTest, WhatNoEngineSolvesIsRefusedByName) {
  ListenToLog();
  Col(1.0, 0.0, 1.0, 'B');
  int const zero = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_SetQuadObj(prob, 1, &zero, &zero, &one), VORQ_OK);
  EXPECT_EQ(VORQ_Solve(prob), VORQ_INTERNAL);
  EXPECT_THAT(
      lines,
      Contains(HasSubstr("No engine of this version solves a problem with integer columns and a quadratic objective")));
  EXPECT_EQ(Int("MipStatus"), 0);
}

TEST_F(SolvingTest, NothingIsThereBeforeASolve) {
  AddSmallLp();
  double value = 0.0;
  int code = 0;
  EXPECT_EQ(VORQ_GetSolution(prob, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetLpSolution(prob, &value, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetPSDSolution(prob, &value, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetLMISolution(prob, &value, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetBasis(prob, &code, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetPoolObjVal(prob, 0, &value), VORQ_INVALID);
}

TEST_F(SolvingTest, ChangeDropsTheResults) {
  AddSmallLp();
  ASSERT_EQ(Solve(), kOptimal);
  SetUpper(0, 1.0);
  EXPECT_EQ(Int("HasLpSol"), 0);
  EXPECT_EQ(Int("LpStatus"), 0);
  ASSERT_EQ(Solve(), kOptimal);
  EXPECT_THAT(Values(), AreClose({1.0}));
}

TEST_F(SolvingTest, GivenLpSolutionMustBeNumbers) {
  AddSmallLp();
  double const none = std::nan("");
  EXPECT_EQ(VORQ_SetLpSolution(prob, &none, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetLpSolution(prob, nullptr, nullptr, nullptr, nullptr), VORQ_INVALID);
}

TEST_F(SolvingTest, NullProblemIsRefused) {
  EXPECT_EQ(VORQ_Solve(nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_SolveLp(nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_Interrupt(nullptr), VORQ_INVALID);
}

TEST_F(SolvingTest, LogFileThatCannotBeOpenedIsAFileFailure) {
  EXPECT_EQ(VORQ_SetLogFile(prob, "/nowhere/at/all.log"), VORQ_FILE);
  EXPECT_EQ(VORQ_SetLogFile(prob, nullptr), VORQ_OK);
}

}  // namespace
