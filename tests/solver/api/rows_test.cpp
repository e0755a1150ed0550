// Rows, lazy constraints and user cuts: senses and bounds, refusals and reading back.
#include <cmath>

#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class RowsTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(3);
  }

  std::pair<double, double> Bounds(int row) const {
    return {Info(VORQ_GetRowInfo, "LB", row), Info(VORQ_GetRowInfo, "UB", row)};
  }
};

TEST_F(RowsTest, TheSenseTellsHowBoundsAreRead) {
  for (int const sense : {static_cast<int>('E'), static_cast<int>('G'), static_cast<int>('L'), static_cast<int>('N'),
                          static_cast<int>('R'), 0}) {
    ASSERT_EQ(AddRow({0}, {1.0}, sense, 2.0, 7.0), VORQ_OK) << sense;
  }
  EXPECT_EQ(Bounds(0), std::pair(2.0, 2.0));
  EXPECT_EQ(Bounds(1), std::pair(2.0, 1e30));
  EXPECT_EQ(Bounds(2), std::pair(-1e30, 2.0));
  EXPECT_EQ(Bounds(3), std::pair(-1e30, 1e30));
  EXPECT_EQ(Bounds(4), std::pair(2.0, 7.0));
  EXPECT_EQ(Bounds(5), std::pair(2.0, 7.0));
}

TEST_F(RowsTest, UnknownSensesAreRefused) {
  EXPECT_EQ(AddRow({0}, {1.0}, 'X'), VORQ_INVALID);
  EXPECT_EQ(AddRow({0}, {1.0}, 'e'), VORQ_INVALID);
  EXPECT_EQ(Attribute("Rows"), 0);
}

TEST_F(RowsTest, NanIsRefusedWhereItIsRead) {
  double const nan = std::nan("");
  EXPECT_EQ(AddRow({0}, {1.0}, 'L', nan), VORQ_INVALID);
  EXPECT_EQ(AddRow({0}, {1.0}, 0, 0.0, nan), VORQ_INVALID);
  EXPECT_EQ(AddRow({0}, {nan}), VORQ_INVALID);
  EXPECT_EQ(AddRow({0}, {1e30}), VORQ_INVALID);
  EXPECT_EQ(AddRow({0}, {1.0}, 'L', 1.0, nan), VORQ_OK);
  EXPECT_EQ(Attribute("Rows"), 1);
}

TEST_F(RowsTest, RefusalsNameTheCulpritInTheLog) {
  ListenToLog();
  EXPECT_EQ(AddRow({0, 9}, {1.0, 1.0}), VORQ_INVALID);
  EXPECT_THAT(lines, ElementsAre("Error: Column 9 does not exist (there are 3)"));
}

TEST_F(RowsTest, RowsReadBackInTheOrderStated) {
  ASSERT_EQ(AddRow({2, 0}, {1.0, 0.0}), VORQ_OK);
  EXPECT_EQ(Row(0), (Run{{2, 0}, {1.0, 0.0}}));
}

TEST_F(RowsTest, DuplicateTermsAreSummed) {
  ASSERT_EQ(AddRow({1, 0, 1}, {1.0, 2.0, 3.0}), VORQ_OK);
  EXPECT_EQ(Row(0), (Run{{1, 0}, {4.0, 2.0}}));
}

TEST_F(RowsTest, BatchWithSenses) {
  int const begins[] = {2, 0, 0, 3, 4};
  int const counts[] = {1, 2, 0, 1, 0};
  int const cols[] = {0, 1, 2, 0};
  double const coefs[] = {1.0, 2.0, 3.0, 4.0};
  double const lowers[] = {1.0, 2.0, 3.0, 4.0, 5.0};
  double const uppers[] = {10.0, 20.0, 30.0, 40.0, 50.0};
  ASSERT_EQ(VORQ_AddRows(prob, 5, begins, counts, cols, coefs, "EGLNR", lowers, uppers, nullptr), VORQ_OK);
  EXPECT_EQ(Row(0), (Run{{2}, {3.0}}));
  EXPECT_EQ(Row(1), (Run{{0, 1}, {1.0, 2.0}}));
  EXPECT_EQ(Row(2), (Run{{}, {}}));
  EXPECT_EQ(Bounds(0), std::pair(1.0, 1.0));
  EXPECT_EQ(Bounds(1), std::pair(2.0, 1e30));
  EXPECT_EQ(Bounds(2), std::pair(-1e30, 3.0));
  EXPECT_EQ(Bounds(3), std::pair(-1e30, 1e30));
  EXPECT_EQ(Bounds(4), std::pair(5.0, 50.0));
}

TEST_F(RowsTest, BatchWithoutSensesLiesBetweenItsBounds) {
  double const lowers[] = {1.0, -1e40};
  double const uppers[] = {2.0, 3.0};
  ASSERT_EQ(VORQ_AddRows(prob, 2, nullptr, nullptr, nullptr, nullptr, nullptr, lowers, uppers, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddRows(prob, 1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(Bounds(0), std::pair(1.0, 2.0));
  EXPECT_EQ(Bounds(1), std::pair(-1e30, 3.0));
  EXPECT_EQ(Bounds(2), std::pair(-1e30, 1e30));
}

TEST_F(RowsTest, SensesWithoutBoundsHaveTheRightHandSideZero) {
  ASSERT_EQ(VORQ_AddRows(prob, 1, nullptr, nullptr, nullptr, nullptr, "E", nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(Bounds(0), std::pair(0.0, 0.0));
}

TEST_F(RowsTest, AFailedBatchAddsNothing) {
  int const begins[] = {0, 1};
  int const negative[] = {0, -1};
  int const counts[] = {1, 1};
  int const cols[] = {0, 1};
  int const outside[] = {0, 3};
  double const coefs[] = {1.0, 1.0};
  char const* const names[] = {"one", "two"};
  auto const add = [&](int const* starts, int const* sizes, int const* cells, double const* values,
                       char const* senses) {
    return VORQ_AddRows(prob, 2, starts, sizes, cells, values, senses, nullptr, nullptr, names);
  };
  EXPECT_EQ(add(begins, counts, outside, coefs, "LL"), VORQ_INVALID);
  EXPECT_EQ(add(negative, counts, cols, coefs, "LL"), VORQ_INVALID);
  EXPECT_EQ(add(begins, negative, cols, coefs, "LL"), VORQ_INVALID);
  EXPECT_EQ(add(begins, counts, cols, nullptr, "LL"), VORQ_INVALID);
  EXPECT_EQ(add(begins, counts, nullptr, nullptr, "LL"), VORQ_INVALID);
  EXPECT_EQ(add(nullptr, nullptr, cols, coefs, "LL"), VORQ_INVALID);
  EXPECT_EQ(add(begins, counts, cols, coefs, "LX"), VORQ_INVALID);
  EXPECT_EQ(Attribute("Rows"), 0);
  EXPECT_EQ(Attribute("Elems"), 0);
  int index = 0;
  EXPECT_EQ(VORQ_GetRowIdx(prob, "one", &index), VORQ_INVALID);
}

TEST_F(RowsTest, SetBoundsOfChosenRows) {
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  int const index = 1;
  double const lower = -4.0;
  double const upper = 1e35;
  ASSERT_EQ(VORQ_SetRowLower(prob, 1, &index, &lower), VORQ_OK);
  ASSERT_EQ(VORQ_SetRowUpper(prob, 1, &index, &upper), VORQ_OK);
  EXPECT_EQ(Bounds(0), std::pair(-1e30, 1.0));
  EXPECT_EQ(Bounds(1), std::pair(-4.0, 1e30));
}

TEST_F(RowsTest, LazyConstraintsAndCutsAreNoRows) {
  int const cols[] = {0, 1};
  double const coefs[] = {1.0, 2.0};
  int const begin = 0;
  int const count = 2;
  double const rhs = 3.0;
  EXPECT_EQ(VORQ_AddLazyConstr(prob, 2, cols, coefs, 'L', 3.0, 1e30, "lazy"), VORQ_OK);
  EXPECT_EQ(VORQ_AddLazyConstrs(prob, 1, &begin, &count, cols, coefs, "G", &rhs, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(VORQ_AddUserCut(prob, 2, cols, coefs, 'L', 3.0, 1e30, nullptr), VORQ_OK);
  EXPECT_EQ(VORQ_AddUserCuts(prob, 1, &begin, &count, cols, coefs, "L", &rhs, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(VORQ_AddLazyConstr(prob, 2, cols, coefs, 'Z', 3.0, 1e30, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("Rows"), 0);
  EXPECT_EQ(Attribute("LazyConsElems"), 4);
}

TEST_F(RowsTest, NullProblemIsRefused) {
  EXPECT_EQ(VORQ_AddRow(nullptr, 0, nullptr, nullptr, 'L', 0.0, 0.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_GetRows(nullptr, 0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr), VORQ_INVALID);
}

}  // namespace
