// Variables, and what all kinds of items have in common.
#include "tests/items/items_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::Var;

class VarTest : public ItemsTest {};

TEST_F(VarTest, CopiesShareTheIndexAndTheName) {
  Var x = MakeVar("", 3);
  Var copy = x;
  copy.SetName("x");
  copy.MarkRemoved();
  EXPECT_EQ(x.Idx(), -6);
  EXPECT_STREQ(x.GetName(), "x");
}

TEST_F(VarTest, CopiesHaveAStatusOfTheirOwn) {
  Var x = MakeVar("x", 0);
  Var copy = x;
  copy.Set("nonsense", 1.0);
  EXPECT_EQ(Report(copy.status), "3 (INVALID) Unknown variable information");
  EXPECT_EQ(Report(x.status), "0 -");
}

TEST_F(VarTest, ACopyOfAFailedItemHasThePrefixTwice) {
  Var x = MakeVar("x", -2);
  x.GetBasis();
  Var copy = x;
  EXPECT_EQ(Report(copy.status), "3 (INVALID) (INVALID) Invalid variable");
}

TEST_F(VarTest, ACopyAfterASuccessHasNoText) {
  Var x = MakeVar("x", 0);
  x.Set("nonsense", 1.0);
  x.Set("LB", 1.0);
  Var copy = x;
  EXPECT_EQ(Report(x.status), "0 (INVALID) Unknown variable information");
  EXPECT_EQ(Report(copy.status), "0 -");
}

TEST_F(VarTest, TheProblemLivesAsLongAsItsLastItem) {
  Var x = MakeVar("x", 0);
  problem_ = {};
  EXPECT_EQ(double_.LiveProblems(), 1);
  x = Var();
  EXPECT_EQ(double_.LiveProblems(), 0);
}

TEST_F(VarTest, RemoveMarksTheItemAndTheProblem) {
  Var x = MakeVar("x", 0);
  x.MarkRemoved();
  EXPECT_EQ(x.Idx(), -3);
  EXPECT_TRUE(problem_->dirty);
  EXPECT_CALLS(double_, {});
}

TEST_F(VarTest, RemoveTwiceDoesNothing) {
  Var x = MakeVar("x", 7);
  x.MarkRemoved();
  problem_->dirty = false;
  x.MarkRemoved();
  EXPECT_EQ(x.Idx(), -10);
  EXPECT_FALSE(problem_->dirty);
}

TEST_F(VarTest, RemoveOnAnInvalidItemDoesNothing) {
  Var x = MakeVar("", -2);
  x.MarkRemoved();
  EXPECT_EQ(x.Idx(), -2);
  EXPECT_FALSE(problem_->dirty);
}

TEST_F(VarTest, SetNameNormalisesTheCacheAndHandsTheNameOnAsItIs) {
  Var x = MakeVar("", 4);
  x.SetName(" my name ");
  EXPECT_STREQ(x.GetName(), "my_name");
  EXPECT_CALLS(double_, {R"(VORQ_SetColNames(prob#1, 1, [4], [" my name "]))"});
  EXPECT_EQ(Report(x.status), "0 -");
}

TEST_F(VarTest, SetNameWritesTheCacheAlsoWhenTheSolverRefuses) {
  Var x = MakeVar("old", 4);
  double_.FailNext("VORQ_SetColNames", VORQ_MEMORY);
  x.SetName("new");
  EXPECT_STREQ(x.GetName(), "new");
  EXPECT_EQ(Report(x.status), "1 (MEMORY) Fail to set variable name");
}

TEST_F(VarTest, SetNameOfNullOnALiveItemChangesNothing) {
  Var x = MakeVar("old", 4);
  x.Set("nonsense", 1.0);
  x.SetName(nullptr);
  EXPECT_STREQ(x.GetName(), "old");
  EXPECT_EQ(Report(x.status), "3 (INVALID) Unknown variable information");
  EXPECT_CALLS(double_, {});
}

TEST_F(VarTest, SetNameOfNullOnARemovedItemReportsIt) {
  Var x = MakeVar("old", -3);
  x.SetName(nullptr);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Invalid variable");
}

TEST_F(VarTest, GetNameFetchesOnce) {
  Var x = MakeVar("", 4);
  double_.Answer("VORQ_GetColName").Set("buffer", "fetched");
  EXPECT_STREQ(x.GetName(), "fetched");
  EXPECT_STREQ(x.GetName(), "fetched");
  EXPECT_CALLS(double_, {"VORQ_GetColName(prob#1, 4, out, 128, out)"});
}

TEST_F(VarTest, GetNameDoesNotFetchAKnownName) {
  EXPECT_STREQ(MakeVar("known", 4).GetName(), "known");
  EXPECT_CALLS(double_, {});
}

TEST_F(VarTest, GetNameFetchesALongNameInTwoCalls) {
  Var x = MakeVar("", 4);
  std::string const name(300, 'n');
  int const idx = 4;
  char const* const names[] = {name.c_str()};
  VORQ_SetColNames(problem_->prob, 1, &idx, names);
  double_.ClearLog();
  EXPECT_EQ(x.GetName(), name);
  EXPECT_CALLS(double_, {"VORQ_GetColName(prob#1, 4, out, 128, out)", "VORQ_GetColName(prob#1, 4, out, 301, null)"});
}

TEST_F(VarTest, GetNameIgnoresFailures) {
  Var x = MakeVar("", 4);
  double_.FailNext("VORQ_GetColName", VORQ_INTERNAL);
  EXPECT_STREQ(x.GetName(), "");
  EXPECT_EQ(Report(x.status), "0 -");
}

TEST_F(VarTest, GetNameOfAnItemRemovedBeforeItWasReadIsEmpty) {
  EXPECT_STREQ(MakeVar("", -3).GetName(), "");
  EXPECT_CALLS(double_, {});
}

TEST_F(VarTest, ARemovedItemKeepsItsNameAsLastSeen) {
  Var x = MakeVar("", 1);
  x.SetName("seen");
  x.MarkRemoved();
  EXPECT_STREQ(x.GetName(), "seen");
}

TEST_F(VarTest, GetTypeReportsNothing) {
  double_.Answer("VORQ_GetColType").Set("types", "I");
  Var x = MakeVar("x", 2);
  EXPECT_EQ(x.GetType(), 'I');
  EXPECT_CALLS(double_, {"VORQ_GetColType(prob#1, 1, [2], out)"});
  Var removed = MakeVar("x", -3);
  EXPECT_EQ(removed.GetType(), '\0');
  EXPECT_EQ(Report(removed.status), "0 -");
}

TEST_F(VarTest, GetTypeLeavesAnEarlierFailureAlone) {
  Var x = MakeVar("x", 2);
  x.Set("nonsense", 0.0);
  x.GetType();
  EXPECT_EQ(Report(x.status), "3 (INVALID) Unknown variable information");
}

TEST_F(VarTest, SetTypeHandsTheTypeOn) {
  Var x = MakeVar("x", 2);
  x.SetType('B');
  EXPECT_CALLS(double_, {"VORQ_SetColType(prob#1, 1, [2], ['B'])"});
}

TEST_F(VarTest, SetTypeReportsItsFailures) {
  Var x = MakeVar("x", 2);
  double_.FailNext("VORQ_SetColType", VORQ_INVALID);
  x.SetType('?');
  EXPECT_EQ(Report(x.status), "3 (INVALID) Fail to set variable type");
  Var removed = MakeVar("x", -3);
  removed.SetType('B');
  EXPECT_EQ(Report(removed.status), "3 (INVALID) Invalid variable");
}

TEST_F(VarTest, ReadsGiveWhatTheSolverTells) {
  double_.Values("VORQ_GetColBasis", {0, 0, 3});
  double_.Values("VORQ_GetColLowerIIS", {0, 0, 1});
  double_.Values("VORQ_GetColUpperIIS", {0, 0, 1});
  double_.Values("VORQ_GetColInfo", "Value", {0, 0, 2.5});
  Var x = MakeVar("x", 2);
  EXPECT_EQ(x.GetBasis(), 3);
  EXPECT_EQ(x.GetLowerIIS(), 1);
  EXPECT_EQ(x.GetUpperIIS(), 1);
  EXPECT_EQ(x.Get("Value"), 2.5);
  EXPECT_CALLS(double_,
               {"VORQ_GetColBasis(prob#1, 1, [2], out)", "VORQ_GetColLowerIIS(prob#1, 1, [2], out)",
                "VORQ_GetColUpperIIS(prob#1, 1, [2], out)", R"(VORQ_GetColInfo(prob#1, "Value", 1, [2], out))"});
}

TEST_F(VarTest, FailedReadsLeaveTheirDefaults) {
  Var x = MakeVar("x", 2);
  double_.FailNext("VORQ_GetColBasis", VORQ_INTERNAL);
  EXPECT_EQ(x.GetBasis(), -2147483647 - 1);
  EXPECT_EQ(Report(x.status), "5 (INTERNAL) Fail to set variable basis");
  double_.FailNext("VORQ_GetColLowerIIS", VORQ_INTERNAL);
  EXPECT_EQ(x.GetLowerIIS(), 0);
  EXPECT_EQ(Report(x.status), "5 (INTERNAL) Fail to get IIS status for variable");
  double_.FailNext("VORQ_GetColUpperIIS", VORQ_INTERNAL);
  EXPECT_EQ(x.GetUpperIIS(), 0);
  EXPECT_EQ(Report(x.status), "5 (INTERNAL) Fail to get IIS status for variable");
  double_.FailNext("VORQ_GetColInfo", VORQ_INVALID);
  EXPECT_EQ(x.Get("Nonsense"), -2147483648.0);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Fail to get variable information");
}

TEST_F(VarTest, ReadsOfADeadItemReportItAndCallNothing) {
  for (int const idx : {-2, -3}) {
    Var x = MakeVar("x", idx);
    EXPECT_EQ(x.GetBasis(), -2147483647 - 1);
    EXPECT_EQ(Report(x.status), "3 (INVALID) Invalid variable");
    EXPECT_EQ(x.GetLowerIIS(), 0);
    EXPECT_EQ(x.GetUpperIIS(), 0);
    EXPECT_EQ(x.Get("Value"), -2147483648.0);
  }
  EXPECT_CALLS(double_, {});
}

TEST_F(VarTest, SetIgnoresCase) {
  Var x = MakeVar("x", 2);
  x.Set("lb", 1.0);
  x.Set("uB", 2.0);
  x.Set("OBJ", 3.0);
  EXPECT_CALLS(double_, {"VORQ_SetColLower(prob#1, 1, [2], [1])", "VORQ_SetColUpper(prob#1, 1, [2], [2])",
                         "VORQ_SetColObj(prob#1, 1, [2], [3])"});
}

TEST_F(VarTest, SetReportsFailuresOfTheSolver) {
  Var x = MakeVar("x", 2);
  double_.FailNext("VORQ_SetColLower", VORQ_MEMORY);
  x.Set("LB", 1.0);
  EXPECT_EQ(Report(x.status), "1 (MEMORY) Fail to set variable LB");
  double_.FailNext("VORQ_SetColUpper", VORQ_MEMORY);
  x.Set("UB", 1.0);
  EXPECT_EQ(Report(x.status), "1 (MEMORY) Fail to set variable UB");
  double_.FailNext("VORQ_SetColObj", VORQ_MEMORY);
  x.Set("Obj", 1.0);
  EXPECT_EQ(Report(x.status), "1 (MEMORY) Fail to set variable Obj");
}

TEST_F(VarTest, SetTestsTheNameBeforeTheIndex) {
  Var x = MakeVar("x", -3);
  x.Set(nullptr, 1.0);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Invalid args");
  x.Set("nonsense", 1.0);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Invalid variable");
  x.Set("", 1.0);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Invalid args");
}

TEST_F(VarTest, ASuccessClearsTheCodeAndKeepsTheText) {
  Var x = MakeVar("x", 2);
  x.Set("LB ", 1.0);
  EXPECT_EQ(Report(x.status), "3 (INVALID) Unknown variable information");
  x.Set("LB", 1.0);
  EXPECT_EQ(Report(x.status), "0 (INVALID) Unknown variable information");
}

}  // namespace
}  // namespace vorqtest
