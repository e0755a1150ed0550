// The objective: sense, constant, linear, quadratic and PSD terms.
#include <cmath>

#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class ObjectiveTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(3);
  }

  std::vector<double> Coefficients() const {
    std::vector<double> values(3);
    EXPECT_EQ(VORQ_GetColInfo(prob, "Obj", 3, nullptr, values.data()), VORQ_OK);
    return values;
  }
};

TEST_F(ObjectiveTest, SenseIsOneOrMinusOne) {
  EXPECT_EQ(Attribute("ObjSense"), 1);
  EXPECT_EQ(VORQ_SetObjSense(prob, -1), VORQ_OK);
  EXPECT_EQ(VORQ_SetObjSense(prob, 0), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetObjSense(prob, 2), VORQ_INVALID);
  EXPECT_EQ(Attribute("ObjSense"), -1);
}

TEST_F(ObjectiveTest, ConstantIsFinite) {
  EXPECT_EQ(VORQ_SetObjConst(prob, 4.5), VORQ_OK);
  EXPECT_EQ(VORQ_SetObjConst(prob, std::nan("")), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetObjConst(prob, -1e30), VORQ_INVALID);
  double constant = 0.0;
  EXPECT_EQ(VORQ_GetDblAttr(prob, "ObjConst", &constant), VORQ_OK);
  EXPECT_EQ(constant, 4.5);
}

TEST_F(ObjectiveTest, ReplaceSetsTheOthersToZero) {
  double const all[] = {1.0, 2.0, 3.0};
  ASSERT_EQ(VORQ_SetColObj(prob, 3, nullptr, all), VORQ_OK);
  int const cols[] = {2, 0, 2};
  double const values[] = {5.0, 6.0, 7.0};
  ASSERT_EQ(VORQ_ReplaceColObj(prob, 3, cols, values), VORQ_OK);
  EXPECT_THAT(Coefficients(), ElementsAre(6.0, 0.0, 12.0));
  ASSERT_EQ(VORQ_ReplaceColObj(prob, 0, nullptr, nullptr), VORQ_OK);
  EXPECT_THAT(Coefficients(), ElementsAre(0.0, 0.0, 0.0));
}

TEST_F(ObjectiveTest, AFailedReplaceChangesNothing) {
  double const all[] = {1.0, 2.0, 3.0};
  ASSERT_EQ(VORQ_SetColObj(prob, 3, nullptr, all), VORQ_OK);
  int const cols[] = {0, 3};
  EXPECT_EQ(VORQ_ReplaceColObj(prob, 2, cols, all), VORQ_INVALID);
  EXPECT_THAT(Coefficients(), ElementsAre(1.0, 2.0, 3.0));
}

TEST_F(ObjectiveTest, SetQuadObjReplacesAllTerms) {
  int const rows[] = {0, 1};
  int const cols[] = {1, 0};
  double const values[] = {1.0, 2.0};
  ASSERT_EQ(VORQ_SetQuadObj(prob, 2, rows, cols, values), VORQ_OK);
  ASSERT_EQ(VORQ_SetQuadObj(prob, 1, rows, cols, values), VORQ_OK);
  EXPECT_EQ(Attribute("QElems"), 1);
  ASSERT_EQ(VORQ_SetQuadObj(prob, 2, rows, cols, values), VORQ_OK);
  int count = 0, newRows[2], newCols[2];
  double newValues[2];
  ASSERT_EQ(VORQ_GetQuadObj(prob, &count, nullptr, nullptr, nullptr), VORQ_OK);
  ASSERT_EQ(count, 2);
  ASSERT_EQ(VORQ_GetQuadObj(prob, nullptr, newRows, newCols, newValues), VORQ_OK);
  EXPECT_THAT(newRows, ElementsAre(0, 1));
  EXPECT_THAT(newCols, ElementsAre(1, 0));
  EXPECT_THAT(newValues, ElementsAre(1.0, 2.0));
  int const outside[] = {0, 3};
  EXPECT_EQ(VORQ_SetQuadObj(prob, 2, outside, cols, values), VORQ_INVALID);
  EXPECT_EQ(Attribute("QElems"), 2);
  ASSERT_EQ(VORQ_DelQuadObj(prob), VORQ_OK);
  EXPECT_EQ(Attribute("QElems"), 0);
}

TEST_F(ObjectiveTest, PsdObjectiveHasOneMatrixForEachColumn) {
  int const dims[] = {2, 2};
  int const zeros[] = {0, 0};
  int const one = 1;
  double const value = 1.0;
  ASSERT_EQ(VORQ_AddPSDCols(prob, 2, dims, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddSymMat(prob, 2, 1, zeros, zeros, &value), VORQ_OK);
  ASSERT_EQ(VORQ_ReplacePSDObj(prob, 1, &one, zeros), VORQ_OK);
  EXPECT_EQ(Attribute("HasPSDObj"), 1);
  int matrix = -9;
  EXPECT_EQ(VORQ_GetPSDObj(prob, 0, &matrix), VORQ_OK);
  EXPECT_EQ(matrix, -1);
  EXPECT_EQ(VORQ_GetPSDObj(prob, 1, &matrix), VORQ_OK);
  EXPECT_EQ(matrix, 0);
  EXPECT_EQ(VORQ_ReplacePSDObj(prob, 2, zeros, zeros), VORQ_INVALID);
  EXPECT_EQ(VORQ_ReplacePSDObj(prob, 1, &one, &one), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetPSDObj(prob, 2, &matrix), VORQ_INVALID);
  EXPECT_EQ(Attribute("HasPSDObj"), 1);
  ASSERT_EQ(VORQ_DelPSDObj(prob), VORQ_OK);
  EXPECT_EQ(Attribute("HasPSDObj"), 0);
}

}  // namespace
