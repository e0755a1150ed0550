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

}  // namespace
