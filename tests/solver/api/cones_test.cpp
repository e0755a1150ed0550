// Cones, exponential cones and affine cones: round trips and refusals.
#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class ConesTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(6);
  }
};

TEST_F(ConesTest, ConesReadBackByTheRequiredSize) {
  int const types[] = {1, 2};
  int const begins[] = {0, 3};
  int const counts[] = {3, 2};
  int const cols[] = {4, 0, 1, 2, 3};
  ASSERT_EQ(VORQ_AddCones(prob, 2, types, begins, counts, cols), VORQ_OK);
  int required = 0;
  ASSERT_EQ(VORQ_GetCones(prob, 2, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 5);
  int kinds[2];
  int starts[2];
  int sizes[2];
  int members[5];
  ASSERT_EQ(VORQ_GetCones(prob, 2, nullptr, kinds, starts, sizes, members, 5, nullptr), VORQ_OK);
  EXPECT_THAT(kinds, ElementsAre(1, 2));
  EXPECT_THAT(starts, ElementsAre(0, 3));
  EXPECT_THAT(sizes, ElementsAre(3, 2));
  EXPECT_THAT(members, ElementsAre(4, 0, 1, 2, 3));
  EXPECT_EQ(VORQ_GetCones(prob, 2, nullptr, kinds, starts, sizes, members, 4, nullptr), VORQ_INVALID);
}

TEST_F(ConesTest, AFailedBatchAddsNothing) {
  int const types[] = {1, 3};
  int const begins[] = {0, 2};
  int const counts[] = {2, 2};
  int const single[] = {2, 1};
  int const rotated[] = {1, 2};
  int const cols[] = {0, 1, 2, 3};
  int const twice[] = {0, 1, 2, 2};
  int const outside[] = {0, 1, 2, 6};
  EXPECT_EQ(VORQ_AddCones(prob, 2, types, begins, counts, cols), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCones(prob, 2, rotated, begins, single, cols), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCones(prob, 2, rotated, begins, counts, twice), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCones(prob, 2, rotated, begins, counts, outside), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddCones(prob, 1, rotated, nullptr, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("Cones"), 0);
}

TEST_F(ConesTest, NullTypesMeanQuadraticAndPrimalExponential) {
  int const begin = 0;
  int const count = 3;
  int const cols[] = {0, 1, 2};
  ASSERT_EQ(VORQ_AddCones(prob, 1, nullptr, &begin, &count, cols), VORQ_OK);
  ASSERT_EQ(VORQ_AddExpCones(prob, 1, nullptr, cols), VORQ_OK);
  int type = 0;
  EXPECT_EQ(VORQ_GetCones(prob, 1, nullptr, &type, nullptr, nullptr, nullptr, 0, nullptr), VORQ_OK);
  EXPECT_EQ(type, 1);
  EXPECT_EQ(VORQ_GetExpCones(prob, 1, nullptr, &type, nullptr, 0, nullptr), VORQ_OK);
  EXPECT_EQ(type, 3);
}

TEST_F(ConesTest, ExponentialConesReadBack) {
  int const types[] = {3, 4};
  int const cols[] = {0, 1, 2, 5, 4, 3};
  ASSERT_EQ(VORQ_AddExpCones(prob, 2, types, cols), VORQ_OK);
  int required = 0;
  ASSERT_EQ(VORQ_GetExpCones(prob, 2, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 6);
  int const index = 1;
  int type = 0;
  int members[3];
  ASSERT_EQ(VORQ_GetExpCones(prob, 1, &index, &type, members, 3, nullptr), VORQ_OK);
  EXPECT_EQ(type, 4);
  EXPECT_THAT(members, ElementsAre(5, 4, 3));
}

TEST_F(ConesTest, BadExponentialConesAreRefused) {
  int const type = 1;
  int const cols[] = {0, 1, 2};
  int const twice[] = {0, 1, 1};
  int const outside[] = {0, 1, -1};
  EXPECT_EQ(VORQ_AddExpCones(prob, 1, &type, cols), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddExpCones(prob, 1, nullptr, twice), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddExpCones(prob, 1, nullptr, outside), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddExpCones(prob, 1, nullptr, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddExpCones(prob, -1, nullptr, cols), VORQ_INVALID);
  EXPECT_EQ(Attribute("ExpCones"), 0);
}

TEST_F(ConesTest, AffineConesReadBackWithPsdTerms) {
  int const zero = 0;
  double const one = 1.0;
  ASSERT_EQ(VORQ_AddPSDCol(prob, 2, nullptr), VORQ_OK);
  ASSERT_EQ(VORQ_AddSymMat(prob, 2, 1, &zero, &zero, &one), VORQ_OK);
  int const psdBegins[] = {0, 0, 1};
  int const psdCounts[] = {0, 1, 0};
  int const rowBegins[] = {0, 2, 2};
  int const rowCounts[] = {2, 0, 1};
  int const cols[] = {3, 1, 5};
  double const coefs[] = {1.0, 2.0, 3.0};
  double const constants[] = {0.5, 0.0, -1.0};
  ASSERT_EQ(VORQ_AddAffineCone(prob, 2, 3, 0, 0, psdBegins, psdCounts, &zero, &zero, rowBegins, rowCounts, cols, coefs,
                               constants, "cone"),
            VORQ_OK);
  int type = 0;
  int rows = 0;
  int psdRequired = 0;
  int required = 0;
  ASSERT_EQ(VORQ_GetAffineCone(prob, 0, &type, &rows, 0, 0, nullptr, nullptr, nullptr, nullptr, 0, &psdRequired,
                               nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required),
            VORQ_OK);
  EXPECT_EQ(type, 2);
  EXPECT_EQ(rows, 3);
  EXPECT_EQ(psdRequired, 1);
  EXPECT_EQ(required, 3);
  int psdBeg[3], psdCnt[3], psdCols[1], psdMats[1], rowBeg[3], rowCnt[3], members[3];
  double values[3], offsets[3];
  ASSERT_EQ(VORQ_GetAffineCone(prob, 0, &type, &rows, 0, 0, psdBeg, psdCnt, psdCols, psdMats, 1, nullptr, rowBeg,
                               rowCnt, members, values, offsets, 3, nullptr),
            VORQ_OK);
  EXPECT_THAT(psdCnt, ElementsAre(0, 1, 0));
  EXPECT_THAT(psdMats, ElementsAre(0));
  EXPECT_THAT(rowBeg, ElementsAre(0, 2, 2));
  EXPECT_THAT(rowCnt, ElementsAre(2, 0, 1));
  EXPECT_THAT(members, ElementsAre(3, 1, 5));
  EXPECT_THAT(values, ElementsAre(1.0, 2.0, 3.0));
  EXPECT_THAT(offsets, ElementsAre(0.5, 0.0, -1.0));
}

TEST_F(ConesTest, BadAffineConesAreRefused) {
  double const constants[] = {1.0, 1.0};
  auto const add = [&](int type, int rows) {
    return VORQ_AddAffineCone(prob, type, rows, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                              nullptr, constants, nullptr);
  };
  EXPECT_EQ(add(5, 2), VORQ_INVALID);
  EXPECT_EQ(add(1, 0), VORQ_INVALID);
  EXPECT_EQ(add(2, 1), VORQ_INVALID);
  EXPECT_EQ(add(3, 2), VORQ_INVALID);
  EXPECT_EQ(Attribute("AffineCones"), 0);
}

}  // namespace
