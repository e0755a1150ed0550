// Irreducible infeasible sets of small problems: the members, the file, the log, and bad input.
#include "tests/solver/tasks/iis_fixture.hpp"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// The set needs no more than the row beside the lazy constraint.
TEST_F(IisTest, PlainCauseBesideLazyConstraintsIsFiltered) {
  Col(1.0, -kInf, 4.0);
  Row({0}, {2.0}, 'G', 12.0);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 1, &col, &one, 'L', 5.0, 0.0, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(MemberCount(), 1);
  EXPECT_THAT(RowLower(), ElementsAre(1));
  EXPECT_EQ(Int("IsMinIIS"), 1);
}

TEST_F(IisTest, ProblemThatOnlyAUserCutMadeInfeasibleHasNoSet) {
  Col(1.0, 0.0, 1.0, 'B');
  Col(1.0, 0.0, 1.0, 'B');
  Row({0, 1}, {1.0, 1.0}, 'G', 1.0);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddUserCut(prob, 1, &col, &one, 'G', 2.0, 0.0, nullptr), VORQ_OK);
  ASSERT_EQ(Solve(), kInfeasible);
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
}

TEST_F(IisTest, ProblemThatOnlyACallbackMadeInfeasibleHasNoSet) {
  Col(1.0, 0.0, 1.0, 'B');
  Col(1.0, 0.0, 1.0, 'B');
  Row({0, 1}, {1.0, 1.0}, 'G', 1.0);
  auto const cutAll = [](VORQ_Prob*, VORQ_CallbackData* data, int, void*) {
    int const col = 0;
    double const one = 1.0;
    return VORQ_AddCallbackLazyConstr(data, 1, &col, &one, 'G', 5.0);
  };
  int const contexts = VORQ_CONTEXT_RELAXATION | VORQ_CONTEXT_CANDIDATE;
  ASSERT_EQ(VORQ_SetCallback(prob, cutAll, contexts, nullptr), VORQ_OK);
  ASSERT_EQ(Solve(), kInfeasible);
  ASSERT_EQ(VORQ_SetCallback(prob, nullptr, 0, nullptr), VORQ_OK);
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
}

TEST_F(IisTest, CrossedBoundsOfAColumnAreBothMembers) {
  Col(1.0);
  Col(1.0, 5.0, 3.0);
  Row({0, 1}, {1.0, 1.0}, 'L', 10.0);
  ListenToLog();
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(ColLower(), ElementsAre(0, 1));
  EXPECT_THAT(ColUpper(), ElementsAre(0, 1));
  EXPECT_THAT(RowUpper(), ElementsAre(0));
  EXPECT_EQ(Int("HasIIS"), 1);
  EXPECT_EQ(Int("IsMinIIS"), 1);
  EXPECT_EQ(Int("IISCols"), 1);
  EXPECT_EQ(Int("IISRows"), 0);
  EXPECT_THAT(lines, testing::Contains("A plain cause: column 1: its lower bound 5 is above its upper bound 3"));
  ExpectIrreducible();
}

TEST_F(IisTest, RowThatCannotReachItsSideComesWithTheBoundsThatHoldIt) {
  for (int k = 0; k < 3; ++k) Col(0.0, 0.0, 2.0);
  Row({0, 1}, {1.0, -1.0}, 'G', 5.0);
  Row({0, 1, 2}, {1.0, 1.0, 1.0}, 'G', 100.0);
  char const* const names[] = {"need", "total"};
  ASSERT_EQ(VORQ_SetRowNames(prob, 2, nullptr, names), VORQ_OK);
  ListenToLog();
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(RowLower(), ElementsAre(1, 0));
  EXPECT_THAT(ColUpper(), ElementsAre(1, 0, 0));
  EXPECT_THAT(ColLower(), ElementsAre(0, 1, 0));
  EXPECT_THAT(lines, testing::Contains("A plain cause: row 'need': it asks for at least 5 and reaches 2"));
  EXPECT_THAT(lines, testing::Contains("IIS: 1 row sides, 2 column bounds, irreducible"));
  EXPECT_THAT(lines, testing::Contains("  row 'need' >= 5"));
  ExpectIrreducible();
}

TEST_F(IisTest, IntegerColumnWithoutAnIntegerBetweenItsBounds) {
  Col(0.0, 0.25, 0.75, 'I');
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(MemberCount(), 2);
  ExpectIrreducible();
}

TEST_F(IisTest, BoundsOfABinaryColumnThatItsTypeImpliesAreNoMembers) {
  Col(0.0, 0.0, 0.0, 'B');
  Col(0.0, 0.0, 1.0, 'B');
  Row({0, 1}, {1.0, 1.0}, 'G', 2.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(ColUpper(), ElementsAre(1, 0));
  EXPECT_THAT(RowLower(), ElementsAre(1));
  ExpectIrreducible();
}

TEST_F(IisTest, BoundThatIsIdleForABinaryColumnIsNoMember) {
  Col(0.0, 0.0, 0.0, 'B');
  Row({0}, {1.0}, 'G', 3.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(MemberCount(), 1);
  ExpectIrreducible();
}

// x + y <= 1, x >= 1 - y / 2 + 1 ... a cycle of rows that no single one shows.
TEST_F(IisTest, RowsThatContradictEachOther) {
  for (int k = 0; k < 4; ++k) Col(1.0, -kInf);
  Row({0, 1}, {1.0, -1.0}, 'G', 1.0);
  Row({1, 2}, {1.0, -1.0}, 'G', 1.0);
  Row({2, 0}, {1.0, -1.0}, 'G', 1.0);
  Row({0, 3}, {1.0, 1.0}, 'E', 1.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(RowLower(), ElementsAre(1, 1, 1, 0));
  EXPECT_THAT(RowUpper(), ElementsAre(0, 0, 0, 0));
  EXPECT_EQ(MemberCount(), 3);
  EXPECT_EQ(IisFile(), R"(Minimize
 obj:
Subject To
 R1: + 1 C1 - 1 C2 >= 1
 R2: + 1 C2 - 1 C3 >= 1
 R3: + 1 C3 - 1 C1 >= 1
Bounds
 C1 free
 C2 free
 C3 free
End
)");
  ExpectIrreducible();
}

TEST_F(IisTest, OneSideOfAnEquationMayDo) {
  Col(0.0, 0.0, 4.0);
  Col(0.0, 0.0, 4.0);
  Row({0, 1}, {1.0, 1.0}, 'E', 6.0);
  Row({0, 1}, {1.0, 1.0}, 'L', 5.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(RowLower(), ElementsAre(1, 0));
  EXPECT_THAT(RowUpper(), ElementsAre(0, 1));
  EXPECT_EQ(MemberCount(), 2);
  ExpectIrreducible();
}

TEST_F(IisTest, RowOfIntegersThatTheirDivisorForbids) {
  Col(0.0, 0.0, 10.0, 'I');
  Col(0.0, 0.0, 10.0, 'I');
  Row({0, 1}, {2.0, -2.0}, 'E', 1.0);
  Row({0, 1}, {1.0, 1.0}, 'L', 7.0);
  ListenToLog();
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(RowLower(), ElementsAre(1, 0));
  EXPECT_THAT(RowUpper(), ElementsAre(1, 0));
  EXPECT_EQ(MemberCount(), 2);
  EXPECT_THAT(lines, testing::Contains("A plain cause: row 0: its activity is a multiple of 2, and none lies between 1 "
                                       "and 1"));
}

TEST_F(IisTest, IntegersThatAreNeededForTheContradiction) {
  Col(0.0, 0.0, 3.0, 'I');
  Col(0.0, 0.0, 3.0, 'I');
  Row({0, 1}, {2.0, 3.0}, 'G', 1.0);
  Row({0, 1}, {3.0, 2.0}, 'L', 1.9);
  Row({0, 1}, {1.0, 1.0}, 'L', 7.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(RowUpper(), ElementsAre(0, 1, 0));
  EXPECT_EQ(Int("IsMinIIS"), 1);
  ExpectIrreducible();
}

// Without a bound the search for integers has no end, so the trial is given up and the bound stays.
TEST_F(IisTest, SearchThatWouldNotEndCostsTheProof) {
  Col(0.0, 0.0, 10.0, 'I');
  Col(0.0, 0.0, 10.0, 'I');
  Row({0, 1}, {2.0, -2.0}, 'G', 0.5);
  Row({0, 1}, {2.0, -2.0}, 'L', 1.5);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(RowLower()[0], 1);
  EXPECT_EQ(RowUpper()[1], 1);
}

TEST_F(IisTest, MembersThatIntegralityMakesNeedlessGo) {
  // As a linear problem it takes both rows; with integers the first one is infeasible by itself within the bounds.
  Col(0.0, 0.0, 1.0, 'B');
  Row({0}, {2.0}, 'E', 1.0);
  Row({0}, {1.0}, 'G', 1.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(Int("IsMinIIS"), 1);
  ExpectIrreducible();
}

TEST_F(IisTest, IndicatorsAndSosAreMembers) {
  int const on = Col(0.0, 0.0, 1.0, 'B');
  int const x = Col(0.0, 0.0, 10.0);
  int const y = Col(0.0, 0.0, 10.0);
  Row({on}, {1.0}, 'G', 1.0);
  Indicator(on, 1, {x}, {1.0}, 'G', 2.0);
  Indicator(on, 1, {y}, {1.0}, 'L', 9.0);
  Row({y}, {1.0}, 'G', 1.0);
  Sos(1, {x, y});
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(Flags(VORQ_GetIndicatorIIS, "Indicators"), ElementsAre(1, 0));
  EXPECT_THAT(Flags(VORQ_GetSOSIIS, "Soss"), ElementsAre(1));
  EXPECT_EQ(Int("IISIndicators"), 1);
  EXPECT_EQ(Int("IISSOSs"), 1);
  EXPECT_THAT(RowLower(), ElementsAre(1, 1));
  ExpectIrreducible();
}

TEST_F(IisTest, SemicontinuousColumnKeepsItsZero) {
  int const x = Col(0.0, 3.0, 5.0, 'S');
  Row({x}, {1.0}, 'G', 1.0);
  Row({x}, {1.0}, 'L', 2.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_THAT(ColLower(), ElementsAre(1));
  EXPECT_THAT(ColUpper(), ElementsAre(0));
  EXPECT_THAT(RowLower(), ElementsAre(1, 0));
  EXPECT_THAT(RowUpper(), ElementsAre(0, 1));
  ExpectIrreducible();
}

TEST_F(IisTest, LazyConstraintsHoldInEverySet) {
  Col(0.0);
  Row({0}, {1.0}, 'G', 5.0);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 1, &col, &one, 'L', 3.0, 0.0, "late"), VORQ_OK);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(MemberCount(), 1);
  EXPECT_THAT(IisFile(), HasSubstr("Lazy Constraints\n late: + 1 C1 <= 3\n"));
}

TEST_F(IisTest, LazyConstraintsThatAreInfeasibleAloneLeaveAnEmptySet) {
  Col(0.0, -kInf);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 1, &col, &one, 'L', 3.0, 0.0, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddLazyConstr(prob, 1, &col, &one, 'G', 5.0, 0.0, nullptr), VORQ_OK);
  ListenToLog();
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(MemberCount(), 0);
  EXPECT_THAT(lines, testing::Contains("  What an IIS has no members for is infeasible by itself"));
}

TEST_F(IisTest, FeasibleProblemHasNone) {
  Col(1.0);
  Row({0}, {1.0}, 'G', 5.0);
  ListenToLog();
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
  EXPECT_EQ(lines.back(), "Error: There is no IIS: the problem is feasible");
  EXPECT_EQ(Int("HasIIS"), 0);
  EXPECT_EQ(Int("IsMinIIS"), 0);
  EXPECT_EQ(VORQ_WriteIIS(prob, Path("set.iis").c_str()), VORQ_INVALID);
  EXPECT_EQ(lines.back(), "Error: There is no IIS to write");
  EXPECT_FALSE(std::filesystem::exists(Path("set.iis")));
}

TEST_F(IisTest, UnboundedProblemIsFeasible) {
  Col(-1.0);
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
}

TEST_F(IisTest, EmptyProblemIsFeasible) {
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
  EXPECT_EQ(VORQ_ComputeIIS(nullptr), VORQ_INVALID);
}

TEST_F(IisTest, ResultsOfTheLastSolveStay) {
  Col(0.0, 0.0, 1.0);
  Row({0}, {1.0}, 'G', 2.0);
  EXPECT_EQ(Solve(), kInfeasible);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(Int("LpStatus"), kInfeasible);
}

TEST_F(IisTest, ChangeOfTheProblemDropsTheSet) {
  Col(0.0, 0.0, 1.0);
  Row({0}, {1.0}, 'G', 2.0);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_GE(Dbl("IISTime"), 0.0);
  SetUpper(0, 1.5);
  EXPECT_EQ(Int("HasIIS"), 0);
  int flag = 7;
  EXPECT_EQ(VORQ_GetColUpperIIS(prob, 1, nullptr, &flag), VORQ_INVALID);
  EXPECT_EQ(flag, 7);
}

// An engine for quadratic rows takes it; without one the failure names what is missing.
TEST_F(IisTest, QuadraticProblemNeedsAnEngine) {
  ListenToLog();
  Col(0.0, 0.0, 1.0);
  int const col = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddQConstr(prob, 0, nullptr, nullptr, 1, &col, &col, &one, 'L', -1.0, nullptr), VORQ_OK);
  int const code = VORQ_ComputeIIS(prob);
  if (code == VORQ_OK) return;
  EXPECT_EQ(code, VORQ_INTERNAL);
  EXPECT_EQ(lines.back(), "Error: No engine of this version proves a problem infeasible with quadratic constraints");
}

TEST_F(IisTest, TimeLimitBeforeAProofIsAFailure) {
  AddMarketSplit(4, 30);
  std::vector<int> slacks;
  for (int col = 30; col < Int("Cols"); ++col) slacks.push_back(col);
  std::vector<double> const zeros(slacks.size(), 0.0);
  ASSERT_EQ(VORQ_SetColUpper(prob, static_cast<int>(slacks.size()), slacks.data(), zeros.data()), VORQ_OK);
  Set("TimeLimit", 0.5);
  ListenToLog();
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
  EXPECT_EQ(lines.back(), "Error: There is no IIS: the time limit came before the problem was proved infeasible");
}

TEST_F(IisTest, OtherMethodFindsASetToo) {
  for (int k = 0; k < 3; ++k) Col(0.0, -kInf);
  Row({0, 1}, {1.0, -1.0}, 'G', 1.0);
  Row({1, 2}, {1.0, -1.0}, 'G', 1.0);
  Row({2, 0}, {1.0, -1.0}, 'G', 1.0);
  Row({0, 1, 2}, {1.0, 1.0, -2.0}, 'L', 1.0);
  Set("IISMethod", 1);
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  ExpectIrreducible();
}

TEST_F(IisTest, LoggingOffIsSilent) {
  Col(0.0, 0.0, 1.0);
  Row({0}, {1.0}, 'G', 2.0);
  ListenToLog();
  Set("Logging", 0);
  Set("LogToConsole", 1);
  testing::internal::CaptureStdout();
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_THAT(lines, testing::IsEmpty());
}

}  // namespace
