// SOS constraints: round trips and refusals.
#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class SossTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(4);
  }

  int const types[2] = {1, 2};
  int const begins[2] = {0, 2};
  int const counts[2] = {2, 3};
  int const cols[5] = {1, 0, 3, 2, 1};
};

TEST_F(SossTest, WeightsReadBack) {
  double const weights[] = {1.5, 0.5, 3.0, 2.0, 1.0};
  ASSERT_EQ(VORQ_AddSOSs(prob, 2, types, begins, counts, cols, weights), VORQ_OK);
  int required = 0;
  ASSERT_EQ(VORQ_GetSOSs(prob, 2, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &required), VORQ_OK);
  EXPECT_EQ(required, 5);
  int kinds[2], starts[2], sizes[2], members[5];
  double values[5];
  ASSERT_EQ(VORQ_GetSOSs(prob, 2, nullptr, kinds, starts, sizes, members, values, required, nullptr), VORQ_OK);
  EXPECT_THAT(kinds, ElementsAre(1, 2));
  EXPECT_THAT(starts, ElementsAre(0, 2));
  EXPECT_THAT(sizes, ElementsAre(2, 3));
  EXPECT_THAT(members, ElementsAre(1, 0, 3, 2, 1));
  EXPECT_THAT(values, ElementsAre(1.5, 0.5, 3.0, 2.0, 1.0));
}

TEST_F(SossTest, WithoutWeightsTheOrderCounts) {
  ASSERT_EQ(VORQ_AddSOSs(prob, 2, types, begins, counts, cols, nullptr), VORQ_OK);
  int const index = 1;
  double values[3];
  ASSERT_EQ(VORQ_GetSOSs(prob, 1, &index, nullptr, nullptr, nullptr, nullptr, values, 3, nullptr), VORQ_OK);
  EXPECT_THAT(values, ElementsAre(1.0, 2.0, 3.0));
}

TEST_F(SossTest, AFailedBatchAddsNothing) {
  int const badTypes[] = {1, 3};
  int const outside[] = {0, 1, 2, 3, 4};
  double const weights[] = {1.0, 2.0, 3.0, 4.0, 1e30};
  EXPECT_EQ(VORQ_AddSOSs(prob, 2, badTypes, begins, counts, cols, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSOSs(prob, 2, types, begins, counts, outside, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSOSs(prob, 2, types, begins, counts, cols, weights), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddSOSs(prob, 2, nullptr, begins, counts, cols, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("Soss"), 0);
}

TEST_F(SossTest, AColumnThatStandsTwiceIsNamed) {
  ListenToLog();
  int const twice[] = {1, 0, 3, 2, 3};
  EXPECT_EQ(VORQ_AddSOSs(prob, 2, types, begins, counts, twice, nullptr), VORQ_INVALID);
  EXPECT_THAT(lines, ElementsAre("Error: An SOS constraint has column 3 twice"));
  // Two sets may share a column.
  EXPECT_EQ(VORQ_AddSOSs(prob, 2, types, begins, counts, cols, nullptr), VORQ_OK);
}

}  // namespace
