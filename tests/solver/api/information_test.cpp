// Informations and flags of items where there is no result.
#include "problem_fixture.hpp"

namespace {

class InformationTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(2, 'B');
    ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  }
};

TEST_F(InformationTest, NamesAreFoundInAnyCase) {
  EXPECT_EQ(Info(VORQ_GetColInfo, "uB", 0), 1.0);
  EXPECT_EQ(Info(VORQ_GetRowInfo, "ub", 0), 1.0);
}

TEST_F(InformationTest, UnknownNamesAreRefused) {
  double value = 0.0;
  EXPECT_EQ(VORQ_GetColInfo(prob, "Slack", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetColInfo(prob, "", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetColInfo(prob, nullptr, 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRowInfo(prob, "Obj", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetColInfo(prob, "LB", 1, nullptr, nullptr), VORQ_INVALID);
}

TEST_F(InformationTest, WithoutASolutionThereAreNoValues) {
  double value = 0.0;
  for (char const* const name : {"Value", "RedCost", "PrimalRay"}) {
    EXPECT_EQ(VORQ_GetColInfo(prob, name, 1, nullptr, &value), VORQ_INVALID) << name;
  }
  for (char const* const name : {"Slack", "Dual", "DualFarkas"}) {
    EXPECT_EQ(VORQ_GetRowInfo(prob, name, 1, nullptr, &value), VORQ_INVALID) << name;
  }
}

TEST_F(InformationTest, MatrixInformationsNeedASolutionToo) {
  ASSERT_EQ(VORQ_AddPSDCol(prob, 1, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddLMIConstr(prob, 1, 0, nullptr, nullptr, -1, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddPSDConstr(prob, 0, nullptr, nullptr, 0, nullptr, nullptr, 'E', 2.0, 2.0, nullptr), VORQ_OK);
  double value = 0.0;
  EXPECT_EQ(VORQ_GetPSDColInfo(prob, "Value", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetLMIConstrInfo(prob, "Dual", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetPSDConstrInfo(prob, "Slack", 1, nullptr, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetPSDColInfo(prob, "LB", 1, nullptr, &value), VORQ_INVALID);
}

TEST_F(InformationTest, WithoutAnIisThereAreNoFlags) {
  ListenToLog();
  int flag = 0;
  EXPECT_EQ(VORQ_GetColLowerIIS(prob, 1, nullptr, &flag), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetColUpperIIS(prob, 1, nullptr, &flag), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRowLowerIIS(prob, 1, nullptr, &flag), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRowUpperIIS(prob, 1, nullptr, &flag), VORQ_INVALID);
  EXPECT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines.front(), "Error: There is no IIS");
}

TEST_F(InformationTest, WithoutABasisThereAreNoCodes) {
  int code = 0;
  EXPECT_EQ(VORQ_GetColBasis(prob, 1, nullptr, &code), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRowBasis(prob, 1, nullptr, &code), VORQ_INVALID);
}

}  // namespace
