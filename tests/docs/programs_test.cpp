// The programs of the documentation, run as a user runs them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/program.hpp"

namespace {

using testing::HasSubstr;

ProgramResult RunExample(std::string const& name) {
  return RunProgram(VORQ_EXAMPLES "/" + name);
}

TEST(Documentation, FirstModelPrintsTheOptimum) {
  ProgramResult const result = RunExample("first_model");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("profit 14 with x = 4, y = 1\n"));
}

TEST(Documentation, ModelTourPrintsBothSolutions) {
  ProgramResult const result = RunExample("model_tour");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("(INVALID) Invalid variable\n"));
  EXPECT_THAT(result.output, HasSubstr("the row has 2 terms, the bound is 60\n"));
}

TEST(Documentation, SolvingTourPrintsValueAndDuals) {
  ProgramResult const result = RunExample("solving_tour");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("cost 420, dual 5, reduced cost -2\n"));
}

TEST(Documentation, InfeasibilityTourNamesWhatContradictsItself) {
  ProgramResult const result = RunExample("infeasibility_tour");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("3 rows and 0 columns contradict each other\n"));
  EXPECT_THAT(result.output, HasSubstr("  weight is at least 10\n"));
  EXPECT_THAT(result.output, HasSubstr("for 1.636 of penalties: 7.091 oats, 1.273 nuts\n"));
  EXPECT_THAT(result.output, HasSubstr("best 12, "));
}

TEST(Documentation, ConicTourSolvesWhatCanBeSolved) {
  ProgramResult const result = RunExample("conic_tour");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("profit 16, first plant 4, second plant idle: 1\n"));
  EXPECT_THAT(result.output, HasSubstr("risk: 3 products, constant -3, sense L\n"));
  EXPECT_THAT(result.output, HasSubstr("(INTERNAL) Fail to solve problem\n"));
  EXPECT_THAT(result.output, HasSubstr("cone of type 2 and size 3, led by v_3\n"));
  EXPECT_THAT(result.output, HasSubstr("6 matrices in the model, the inequality has dimension 2\n"));
}

TEST(Documentation, AffineConesReadBackAsRows) {
  ProgramResult const result = RunExample("affine_cones");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("row 0: constant 2, 0 terms\nrow 1: constant -1, 1 terms\n"));
  EXPECT_THAT(result.output, HasSubstr("4 cones, the last affine one is shifted(1)\n0 variables are left\n"));
  EXPECT_THAT(result.output, HasSubstr("cone of 3 rows, 3 matrices in the model\n"));
}

TEST(Documentation, ArrayTourPrintsArraysAndBlocks) {
  ProgramResult const result = RunExample("array_tour");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("row:\n[[9, 2, 5]\n]\ncolumns:\n[[4, 5]\n [3, 2]\n [7, 9]\n]\n"));
  EXPECT_THAT(result.output, HasSubstr("(INVALID) (INVALID) Operand 1 of shape (2, 3) is not compatible with Operand 2 "
                                       "of shape (2)\n"));
  EXPECT_THAT(result.output, HasSubstr("scaled:\n[[8, 6, 14]\n [2.5, 1, 3]\n]\n"));
  EXPECT_THAT(result.output, HasSubstr("arrives:\n[send_0 + send_3, send_1 + send_4, send_2 + send_5]\n"));
  EXPECT_THAT(result.output, HasSubstr("padded:\n[send_1, send_5, 1, 1]\n"));
}

TEST(Documentation, MatrixModelFindsTheBestProfit) {
  ProgramResult const result = RunExample("matrix_model");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("profit 10.5\nproducts [2.5, 1.5, 0]\nprices of machine hours "));
}

TEST(Documentation, NetworkFlowProvesTheCheapestFlow) {
  ProgramResult const result = RunExample("network_flow");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("cost 14\n"));
  EXPECT_THAT(result.output, HasSubstr("from 0 to 2: 2 of 2\nfrom 1 to 2: 2 of 2\n"));
  EXPECT_THAT(result.output, HasSubstr("proven by its duals: yes\n"));
}

// The line of both programs that tells the cost.
std::string TotalCost(ProgramResult const& result) {
  std::size_t const begin = result.output.find("total cost ");
  if (begin == std::string::npos) return result.output;
  return result.output.substr(begin, result.output.find_first_of(",\n", begin) - begin);
}

TEST(Documentation, ProductionMatrixCostsWhatTheScalarModelCosts) {
  ProgramResult const blocks = RunExample("production_matrix");
  EXPECT_EQ(blocks.exitCode, 0) << blocks.errors;
  EXPECT_EQ(TotalCost(blocks), TotalCost(RunExample("production_planning")));
}

TEST(Documentation, PortfolioIsReadBackFromItsFile) {
  ProgramResult const result = RunExample("portfolio " + testing::TempDir() + "portfolio.cbf");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("read back: 4 columns, 1 rows, 1 affine cones\n"));
  EXPECT_THAT(result.output, HasSubstr("the cone has type 1 and 5 rows, the first of them is 0.12\n"));
}

TEST(Documentation, MaxCutIsReadBackFromItsFile) {
  ProgramResult const result = RunExample("max_cut " + testing::TempDir() + "max_cut.cbf");
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("read back: 1 matrix variables, 5 semidefinite rows\n"));
}

}  // namespace
