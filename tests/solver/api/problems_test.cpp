// Making, copying, clearing and ending problems.
#include "problem_fixture.hpp"

namespace {

class ProblemsTest : public ProblemTest {};

TEST_F(ProblemsTest, CreateRefusesNullArguments) {
  VORQ_Prob* made = nullptr;
  EXPECT_EQ(VORQ_CreateProb(nullptr, &made), VORQ_INVALID);
  EXPECT_EQ(made, nullptr);
  EXPECT_EQ(VORQ_CreateCopy(nullptr, &made), VORQ_INVALID);
  EXPECT_EQ(VORQ_CreateCopy(prob, nullptr), VORQ_INVALID);
}

TEST_F(ProblemsTest, DeletingANullProblemDoesNothing) {
  VORQ_Prob* none = nullptr;
  EXPECT_EQ(VORQ_DeleteProb(&none), VORQ_OK);
  EXPECT_EQ(VORQ_DeleteProb(nullptr), VORQ_INVALID);
}

TEST_F(ProblemsTest, ACopyHasDataNamesAndParametersOfItsOwn) {
  AddCols(2);
  ASSERT_EQ(AddRow({0, 1}, {1.0, 2.0}, 'E', 3.0, 0.0, "row"), VORQ_OK);
  ASSERT_EQ(VORQ_SetDblParam(prob, "TimeLimit", 12.0), VORQ_OK);
  VORQ_Prob* copy = nullptr;
  ASSERT_EQ(VORQ_CreateCopy(prob, &copy), VORQ_OK);
  ASSERT_EQ(VORQ_SetElem(prob, 0, 0, 9.0), VORQ_OK);
  double value = 0.0;
  EXPECT_EQ(VORQ_GetElem(copy, 0, 0, &value), VORQ_OK);
  EXPECT_EQ(value, 1.0);
  EXPECT_EQ(VORQ_GetDblParam(copy, "TimeLimit", &value), VORQ_OK);
  EXPECT_EQ(value, 12.0);
  int index = -1;
  EXPECT_EQ(VORQ_GetRowIdx(copy, "row", &index), VORQ_OK);
  EXPECT_EQ(VORQ_DeleteProb(&copy), VORQ_OK);
}

TEST_F(ProblemsTest, ACopyDoesNotShareTheLog) {
  ListenToLog();
  VORQ_Prob* copy = nullptr;
  ASSERT_EQ(VORQ_CreateCopy(prob, &copy), VORQ_OK);
  EXPECT_EQ(VORQ_SetElem(copy, 0, 0, 1.0), VORQ_INVALID);
  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(VORQ_DeleteProb(&copy), VORQ_OK);
}

TEST_F(ProblemsTest, ClearKeepsParametersAndLog) {
  AddCols(2, 'B');
  ASSERT_EQ(AddRow({0}, {1.0}, 'L', 1.0, 0.0, "row"), VORQ_OK);
  ASSERT_EQ(VORQ_AddPSDCol(prob, 3, "X"), VORQ_OK);
  ASSERT_EQ(VORQ_SetDblParam(prob, "TimeLimit", 12.0), VORQ_OK);
  ListenToLog();
  ASSERT_EQ(VORQ_ClearProb(prob), VORQ_OK);
  EXPECT_EQ(Attribute("Cols"), 0);
  EXPECT_EQ(Attribute("Rows"), 0);
  EXPECT_EQ(Attribute("PSDCols"), 0);
  int index = 0;
  EXPECT_EQ(VORQ_GetRowIdx(prob, "row", &index), VORQ_INVALID);
  double limit = 0.0;
  EXPECT_EQ(VORQ_GetDblParam(prob, "TimeLimit", &limit), VORQ_OK);
  EXPECT_EQ(limit, 12.0);
  EXPECT_EQ(VORQ_SetElem(prob, 0, 0, 1.0), VORQ_INVALID);
  EXPECT_EQ(lines.size(), 1u);
}

TEST_F(ProblemsTest, ResetParamBringsTheDefaultsBack) {
  double standard = 0.0;
  double limit = 0.0;
  ASSERT_EQ(VORQ_GetDblParamDef(prob, "TimeLimit", &standard), VORQ_OK);
  ASSERT_EQ(VORQ_SetDblParam(prob, "TimeLimit", 12.0), VORQ_OK);
  ASSERT_EQ(VORQ_ResetParam(prob), VORQ_OK);
  ASSERT_EQ(VORQ_GetDblParam(prob, "TimeLimit", &limit), VORQ_OK);
  EXPECT_EQ(limit, standard);
}

TEST_F(ProblemsTest, ResetKeepsTheDataAndAllOfItTheStartsToo) {
  AddCols(1);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  int const code = 1;
  ASSERT_EQ(VORQ_SetBasis(prob, &code, &code), VORQ_OK);
  int basis = -1;
  ASSERT_EQ(VORQ_Reset(prob, 0), VORQ_OK);
  EXPECT_EQ(VORQ_GetColBasis(prob, 1, nullptr, &basis), VORQ_OK);
  ASSERT_EQ(VORQ_Reset(prob, 1), VORQ_OK);
  EXPECT_EQ(VORQ_GetColBasis(prob, 1, nullptr, &basis), VORQ_INVALID);
  EXPECT_EQ(Attribute("Cols"), 1);
}

TEST_F(ProblemsTest, AStartBasisGrowsWithTheProblem) {
  AddCols(1);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  ASSERT_EQ(VORQ_SetSlackBasis(prob), VORQ_OK);
  ASSERT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C', -1e30, 4.0, nullptr), VORQ_OK);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  int cols[2] = {-1, -1};
  int rows[2] = {-1, -1};
  ASSERT_EQ(VORQ_GetColBasis(prob, 2, nullptr, cols), VORQ_OK);
  ASSERT_EQ(VORQ_GetRowBasis(prob, 2, nullptr, rows), VORQ_OK);
  EXPECT_EQ(cols[1], 2);
  EXPECT_EQ(rows[1], 1);
}

TEST_F(ProblemsTest, ADeletionDropsTheStartBasis) {
  AddCols(2);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  ASSERT_EQ(VORQ_SetSlackBasis(prob), VORQ_OK);
  int const index = 1;
  ASSERT_EQ(VORQ_DelCols(prob, 1, &index), VORQ_OK);
  int basis = -1;
  EXPECT_EQ(VORQ_GetColBasis(prob, 1, nullptr, &basis), VORQ_INVALID);
}

TEST_F(ProblemsTest, AChangeDropsTheSolution) {
  AddCols(1);
  ASSERT_EQ(AddRow({0}, {1.0}, 'G', 2.0), VORQ_OK);
  double const cost = 1.0;
  ASSERT_EQ(VORQ_SetColObj(prob, 1, nullptr, &cost), VORQ_OK);
  ASSERT_EQ(VORQ_Solve(prob), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetColInfo, "value", 0), 2.0);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "SLACK", 0), 0.0);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "Dual", 0), 1.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "RedCost", 0), 0.0);
  int basis = -1;
  EXPECT_EQ(VORQ_GetColBasis(prob, 1, nullptr, &basis), VORQ_OK);
  EXPECT_EQ(basis, 1);
  char const* const name = "x";
  ASSERT_EQ(VORQ_SetColNames(prob, 1, nullptr, &name), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Value", 0), 2.0);
  double const lower = 3.0;
  ASSERT_EQ(VORQ_SetColLower(prob, 1, nullptr, &lower), VORQ_OK);
  double value = 0.0;
  EXPECT_EQ(VORQ_GetColInfo(prob, "Value", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetSolution(prob, &value), VORQ_INVALID);
  ASSERT_EQ(VORQ_Solve(prob), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Value", 0), 3.0);
}

TEST_F(ProblemsTest, SlacksOfAMixedIntegerSolutionAreThere) {
  AddCols(1, 'I');
  ASSERT_EQ(AddRow({0}, {2.0}, 'L', 5.0), VORQ_OK);
  double const cost = 1.0;
  ASSERT_EQ(VORQ_SetColObj(prob, 1, nullptr, &cost), VORQ_OK);
  ASSERT_EQ(VORQ_SetObjSense(prob, VORQ_MAXIMIZE), VORQ_OK);
  ASSERT_EQ(VORQ_Solve(prob), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Value", 0), 2.0);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "Slack", 0), 1.0);
  double value = 0.0;
  EXPECT_EQ(VORQ_GetRowInfo(prob, "Dual", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetColInfo(prob, "RedCost", 1, nullptr, &value), VORQ_INVALID);
}

}  // namespace
