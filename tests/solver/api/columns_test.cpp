// Columns: defaults, types, bounds, refusals and reading back.
#include <cmath>
#include <limits>

#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class ColumnsTest : public ProblemTest {
 protected:
  char Type(int col) const {
    char type = 0;
    EXPECT_EQ(VORQ_GetColType(prob, 1, &col, &type), VORQ_OK);
    return type;
  }
};

TEST_F(ColumnsTest, AddColKeepsWhatWasStated) {
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  int const rows[] = {1, 0};
  double const coefs[] = {2.0, 3.0};
  ASSERT_EQ(VORQ_AddCol(prob, 1.5, 2, rows, coefs, 'I', -1.0, 4.0, "x"), VORQ_OK);
  EXPECT_EQ(Type(0), 'I');
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 0), -1.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "UB", 0), 4.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Obj", 0), 1.5);
  EXPECT_EQ(Col(0), (Run{{0, 1}, {3.0, 2.0}}));
  EXPECT_EQ(Row(1), (Run{{0}, {2.0}}));
  EXPECT_EQ(Attribute("Elems"), 2);
}

TEST_F(ColumnsTest, NullListsGiveTheDefaults) {
  ASSERT_EQ(VORQ_AddCols(prob, 2, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
            VORQ_OK);
  EXPECT_EQ(Attribute("Cols"), 2);
  EXPECT_EQ(Type(1), 'C');
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 1), 0.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "UB", 1), 1e30);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Obj", 1), 0.0);
}

TEST_F(ColumnsTest, DefaultUpperBoundOfABinaryIsOne) {
  AddCols(1, 'B');
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 0), 0.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "UB", 0), 1.0);
}

TEST_F(ColumnsTest, SettingTypeBinaryClipsTheBounds) {
  ASSERT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C', -3.0, 8.0, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_SetColType(prob, 1, nullptr, "B"), VORQ_OK);
  EXPECT_EQ(Type(0), 'B');
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 0), 0.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "UB", 0), 1.0);
}

TEST_F(ColumnsTest, BoundsOfABinaryStayInTheUnitInterval) {
  AddCols(1, 'B');
  double const low = -2.0;
  double const high = 5.0;
  ASSERT_EQ(VORQ_SetColLower(prob, 1, nullptr, &low), VORQ_OK);
  ASSERT_EQ(VORQ_SetColUpper(prob, 1, nullptr, &high), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 0), 0.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "UB", 0), 1.0);
}

TEST_F(ColumnsTest, AllFiveTypesAreTaken) {
  for (char const type : {'C', 'B', 'I', 'S', 'N'}) {
    EXPECT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, type, 0.0, 1.0, nullptr), VORQ_OK) << type;
  }
  EXPECT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'X', 0.0, 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C' + 256, 0.0, 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("Cols"), 5);
}

TEST_F(ColumnsTest, BoundsBeyondTheLimitAreInfinite) {
  double const infinity = std::numeric_limits<double>::infinity();
  ASSERT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C', -infinity, 1e31, nullptr), VORQ_OK);
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 0), -1e30);
  EXPECT_EQ(Info(VORQ_GetColInfo, "UB", 0), 1e30);
}

TEST_F(ColumnsTest, CrossedBoundsAreAccepted) {
  EXPECT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C', 2.0, 1.0, nullptr), VORQ_OK);
}

TEST_F(ColumnsTest, AFailedBatchAddsNothing) {
  AddCols(1);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  double const nan = std::nan("");
  double const objs[] = {1.0, nan};
  double const bounds[] = {0.0, nan};
  char const types[] = {'C', 'Q'};
  char const* const names[] = {"good", "bad\n"};
  int const begins[] = {0, 1};
  int const counts[] = {1, 1};
  int const rows[] = {0, 1};
  double const coefs[] = {1.0, 1.0};
  auto const add = [&](double const* objective, char const* kinds, double const* lowers, char const* const* labels,
                       int const* cells) {
    return VORQ_AddCols(prob, 2, objective, begins, counts, cells, coefs, kinds, lowers, nullptr, labels);
  };
  EXPECT_EQ(add(objs, nullptr, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(add(nullptr, types, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(add(nullptr, nullptr, bounds, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(add(nullptr, nullptr, nullptr, names, nullptr), VORQ_INVALID);
  EXPECT_EQ(add(nullptr, nullptr, nullptr, nullptr, rows), VORQ_INVALID);
  EXPECT_EQ(Attribute("Cols"), 1);
  EXPECT_EQ(Attribute("Elems"), 1);
  int index = 0;
  EXPECT_EQ(VORQ_GetColIdx(prob, "good", &index), VORQ_INVALID);
}

TEST_F(ColumnsTest, InfiniteCoefficientsAreRefused) {
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  int const row = 0;
  double const coef = 1e30;
  EXPECT_EQ(VORQ_AddCol(prob, 0.0, 1, &row, &coef, 'C', 0.0, 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCol(prob, -1e30, 0, nullptr, nullptr, 'C', 0.0, 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("Cols"), 0);
}

TEST_F(ColumnsTest, DuplicateEntriesAreSummed) {
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  int const rows[] = {0, 0};
  double const coefs[] = {1.0, 2.5};
  ASSERT_EQ(VORQ_AddCol(prob, 0.0, 2, rows, coefs, 'C', 0.0, 1.0, nullptr), VORQ_OK);
  EXPECT_EQ(Col(0), (Run{{0}, {3.5}}));
}

TEST_F(ColumnsTest, BatchWithoutCountsTakesTheNextBegin) {
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  int const begins[] = {0, 1, 3};
  int const rows[] = {1, 0, 1};
  double const coefs[] = {1.0, 2.0, 3.0};
  ASSERT_EQ(VORQ_AddCols(prob, 2, nullptr, begins, nullptr, rows, coefs, nullptr, nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(Col(0), (Run{{1}, {1.0}}));
  EXPECT_EQ(Col(1), (Run{{0, 1}, {2.0, 3.0}}));
}

TEST_F(ColumnsTest, BatchWithoutBeginsLiesBehindEachOther) {
  ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  int const counts[] = {0, 1, 1};
  int const rows[] = {0, 0};
  double const coefs[] = {1.0, 2.0};
  ASSERT_EQ(VORQ_AddCols(prob, 3, nullptr, nullptr, counts, rows, coefs, nullptr, nullptr, nullptr, nullptr), VORQ_OK);
  EXPECT_EQ(Row(0), (Run{{1, 2}, {1.0, 2.0}}));
}

TEST_F(ColumnsTest, NegativeCountsAreRefused) {
  EXPECT_EQ(VORQ_AddCols(prob, -1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr),
            VORQ_INVALID);
  int const row = 0;
  double const coef = 1.0;
  EXPECT_EQ(VORQ_AddCol(prob, 0.0, -1, &row, &coef, 'C', 0.0, 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCol(prob, 0.0, 1, nullptr, nullptr, 'C', 0.0, 1.0, nullptr), VORQ_INVALID);
}

TEST_F(ColumnsTest, SettersRefuseWithoutAChange) {
  AddCols(2);
  int const indices[] = {0, 2};
  double const values[] = {1.0, 1.0};
  double const bad[] = {1.0, std::nan("")};
  EXPECT_EQ(VORQ_SetColLower(prob, 2, indices, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetColLower(prob, 2, nullptr, bad), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetColObj(prob, 2, nullptr, bad), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetColType(prob, 2, nullptr, "IZ"), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetColUpper(prob, 3, nullptr, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetColUpper(prob, 2, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(Info(VORQ_GetColInfo, "LB", 0), 0.0);
  EXPECT_EQ(Info(VORQ_GetColInfo, "Obj", 0), 0.0);
  EXPECT_EQ(Type(0), 'C');
}

TEST_F(ColumnsTest, NullIndicesReadTheFirstColumnsInOrder) {
  AddCols(2);
  ASSERT_EQ(AddRow({0, 1}, {1.0, 2.0}), VORQ_OK);
  ASSERT_EQ(AddRow({1}, {3.0}), VORQ_OK);
  int begins[2];
  int counts[2];
  int rows[3];
  double coefs[3];
  ASSERT_EQ(VORQ_GetCols(prob, 2, nullptr, begins, counts, rows, coefs, 3, nullptr), VORQ_OK);
  EXPECT_THAT(begins, ElementsAre(0, 1));
  EXPECT_THAT(counts, ElementsAre(1, 2));
  EXPECT_THAT(rows, ElementsAre(0, 0, 1));
  EXPECT_THAT(coefs, ElementsAre(1.0, 2.0, 3.0));
}

TEST_F(ColumnsTest, ACapacityTooSmallStoresNothingButTheSize) {
  AddCols(1);
  ASSERT_EQ(AddRow({0}, {1.0}), VORQ_OK);
  ASSERT_EQ(AddRow({0}, {2.0}), VORQ_OK);
  int begin = -7;
  int rows[2] = {-7, -7};
  double coefs[2] = {};
  int required = 0;
  EXPECT_EQ(VORQ_GetCols(prob, 1, nullptr, &begin, nullptr, rows, coefs, 1, &required), VORQ_INVALID);
  EXPECT_EQ(required, 2);
  EXPECT_EQ(begin, -7);
  EXPECT_THAT(rows, ElementsAre(-7, -7));
}

TEST_F(ColumnsTest, ManyColumnsAddedOneByOneStayCheap) {
  constexpr int kCount = 100000;
  for (int row = 0; row < kCount; ++row) ASSERT_EQ(AddRow({}, {}), VORQ_OK);
  double const coefs[] = {1.0, 2.0};
  for (int col = 0; col < kCount; ++col) {
    int const rows[] = {col, (col * 31 + 1) % kCount};
    ASSERT_EQ(VORQ_AddCol(prob, 0.0, rows[0] == rows[1] ? 1 : 2, rows, coefs, 'C', 0.0, 1.0, nullptr), VORQ_OK);
  }
  EXPECT_EQ(Col(5), (Run{{5, 156}, {1.0, 2.0}}));
}

}  // namespace
