// Single coefficients of rows.
#include <cmath>

#include "problem_fixture.hpp"

namespace {

class CoefficientsTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(2);
    ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
    ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  }

  double Elem(int col, int row) const {
    double value = -777.0;
    EXPECT_EQ(VORQ_GetElem(prob, col, row, &value), VORQ_OK);
    return value;
  }
};

TEST_F(CoefficientsTest, SetAndGet) {
  ASSERT_EQ(VORQ_SetElem(prob, 1, 0, 5.0), VORQ_OK);
  ASSERT_EQ(VORQ_SetElem(prob, 0, 0, 2.0), VORQ_OK);
  EXPECT_EQ(Elem(0, 0), 2.0);
  EXPECT_EQ(Elem(1, 0), 5.0);
  EXPECT_EQ(Elem(1, 1), 0.0);
  EXPECT_EQ(Attribute("Elems"), 2);
}

TEST_F(CoefficientsTest, ZeroRemovesTheElement) {
  ASSERT_EQ(VORQ_SetElem(prob, 0, 0, 0.0), VORQ_OK);
  EXPECT_EQ(Attribute("Elems"), 0);
}

TEST_F(CoefficientsTest, TheLastOfSeveralValuesHolds) {
  int const cols[] = {1, 1, 0};
  int const rows[] = {1, 1, 0};
  double const values[] = {3.0, 4.0, 0.0};
  ASSERT_EQ(VORQ_SetElems(prob, 3, cols, rows, values), VORQ_OK);
  EXPECT_EQ(Elem(1, 1), 4.0);
  EXPECT_EQ(Elem(0, 0), 0.0);
}

TEST_F(CoefficientsTest, RefusalsChangeNothing) {
  double value = 0.0;
  EXPECT_EQ(VORQ_GetElem(prob, 2, 0, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetElem(prob, 0, -1, &value), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetElem(prob, 0, 0, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetElem(prob, 0, 2, 1.0), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetElem(prob, 0, 0, std::nan("")), VORQ_INVALID);
  int const cols[] = {0, 0};
  int const rows[] = {0, 9};
  double const values[] = {8.0, 8.0};
  EXPECT_EQ(VORQ_SetElems(prob, 2, cols, rows, values), VORQ_INVALID);
  EXPECT_EQ(Elem(0, 0), 1.0);
}

}  // namespace
