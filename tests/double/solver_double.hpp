// The recording double: the library vorqdouble defines all functions of frame/vorq_solver.h and stands in for the
// solver library in tests. It writes down each call, answers as the test scripts it, and watches its callers.
//
//     class VarsTest : public vorqtest::SolverDoubleTest {};          // resets, and checks for leaks and misuse
//
//     TEST_F(VarsTest, AddVarAppendsOneColumn) {
//       Vorq::Envr envr(...);
//       Vorq::Model model(...);
//       double_.ClearLog();                                           // the log starts anew here
//       model.AddVar(0.0, 1.0, 2.5, 'B', "x");
//       EXPECT_CALLS(double_, {R"(VORQ_AddCol(prob#1, 2.5, 0, null, null, 'B', 0, 1, "x"))"});
//     }
//
// Calls in the log. Handles have labels: env#1, prob#1, config#1, data#1, numbered as they are made. Arrays stand with
// all that the call says they hold, [0,1]; null is null. Doubles are in their shortest form that reads back: 4, 0.5,
// 1e+30, -0, nan. Senses and types are 'L', or the number where the character cannot be printed. Texts are "quoted",
// name arrays ["a","b"]. An output is `out`, or null; a function to call back is `function`, what goes with it `user`.
//
// Without a script a call succeeds. Each problem has a small store behind it: items are counted by kind (so "Cols",
// "Rows" and the like are true attributes), keep their names, column types, dimensions and symmetric matrices, and
// close their gaps; parameters that were set are kept. Numbers that nobody scripted are 0, matrices that are not there
// are -1. The banner is "double banner", the message of code 3 "double message 3".
//
// Scripts. Outputs go by the names of their arguments in vorq_solver.h; a number, a list, or a text:
//
//     double_.Answer("VORQ_GetRows").Set("rowBeg", {0}).Set("rowCnt", {2}).Set("cols", {0, 1}).Set("coefs", {1, 2.5});
//                                                            // from now on; `required` is the longest list by itself
//     double_.AnswerNext("VORQ_GetColIdx").Set("index", 4);  // for one call; several wait in line
//     double_.FailNext("VORQ_AddRow", VORQ_MEMORY);          // so does this
//     double_.FailNth("VORQ_AddRow", 3, VORQ_MEMORY);        // the third from now
//     double_.FailNthCall(5, VORQ_INTERNAL);                 // the fifth from now of whatever name
//     double_.SpoilOutputsOfFailures(true);                  // failures leave garbage in the outputs; else untouched
//     double_.Values("VORQ_GetColInfo", "Value", {0, 1.5});  // by item position; likewise for functions with indices
//     double_.Values("VORQ_GetColBasis", {0, 2});            // but without a name
//     double_.IntAttr("MipStatus", 1).DblAttr("ObjVal", 2.5);// attributes; the kind is found by VORQ_SearchParamAttr
//     double_.IntParam("Threads", 4).DblParam("InfBound", 1e20);
//     double_.Values("VORQ_GetIntParamMax", "Threads", {8});
//     double_.On("VORQ_Solve", [&](vorqtest::DoubleCall&) { double_.RunCallback(1); return 0; });   // may also throw
//     double_.SolveCallsBack({1, 4, 1});                     // each solve, at the places that the callback's mask
//     chooses double_.CallbackInt("NodeCnt", 3).CallbackDbl("BestObj", 2.5).CallbackVector("Incumbent", {1, 0});
//     double_.SendLogLine("line");                           // to the function of VORQ_SetLogCallback
//     double_.Banner("text");
//
// Whatever an output array has room for is written: behind the scripted values stands garbage. Handles are odd numbers
// that no memory stands behind (but for configs, whose leading word callers read: ConfigLeadingWord). Misuse does not
// stop a test, the call gets VORQ_INVALID and is kept in Violations(): handles that are null, deleted or never made,
// negative counts, null arrays that a count says hold something, an environment deleted before its problems. Tests that
// misuse on purpose take them away with TakeViolations(). A delete that is scripted to fail still ends its handle.
// UnusedScripts() names what was scripted for one call and not called (FailNthCall excepted, so that a loop may try
// each n); a test must leave nothing there.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/vorq_solver.h"
#include "tests/double/control.hpp"

namespace vorqtest {

// The base of fixtures. Members of the test's own fixture are gone when the checks run, so they may hold models.
class SolverDoubleTest : public testing::Test {
 protected:
  SolverDoubleTest() { double_.Reset(); }

  ~SolverDoubleTest() override {
    EXPECT_EQ(JoinLines(double_.Violations()), "") << "misuse of the solver library";
    EXPECT_EQ(JoinLines(double_.UnusedScripts()), "") << "scripted, but never called";
    EXPECT_EQ(double_.LiveProblems(), 0);
    EXPECT_EQ(double_.LiveEnvs(), 0);
    EXPECT_EQ(double_.LiveConfigs(), 0);
    double_.Reset();
  }

  SolverDouble& double_ = SolverDouble::Instance();
};

}  // namespace vorqtest

// The whole log since the last ClearLog, call by call: EXPECT_CALLS(double_, {"VORQ_Solve(prob#1)"}).
#define EXPECT_CALLS(solverDouble, ...) \
  EXPECT_EQ(vorqtest::JoinLines((solverDouble).Calls()), vorqtest::JoinLines(std::vector<std::string> __VA_ARGS__))

// The same for the calls of one function: EXPECT_CALLS_OF(double_, "VORQ_AddRow", {...}).
#define EXPECT_CALLS_OF(solverDouble, function, ...)             \
  EXPECT_EQ(vorqtest::JoinLines((solverDouble).Calls(function)), \
            vorqtest::JoinLines(std::vector<std::string> __VA_ARGS__))
