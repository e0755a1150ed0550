// Indicator constraints: round trips and refusals.
#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class IndicatorsTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(2, 'B');
    AddCols(2);
  }

  int Add(int type, int binCol, int binVal, int col, char sense, double rhs) {
    int const begin = 0;
    int const count = 1;
    double const coef = 2.0;
    return VORQ_AddIndicators(prob, 1, &type, &binCol, &binVal, &begin, &count, &col, &coef, &sense, &rhs, nullptr);
  }
};

TEST_F(IndicatorsTest, AllOfItReadsBack) {
  int const types[] = {0, 1};
  int const binCols[] = {1, 0};
  int const binVals[] = {1, 0};
  int const begins[] = {0, 2};
  int const counts[] = {2, 1};
  int const cols[] = {2, 3, 2};
  double const coefs[] = {1.0, 2.0, 3.0};
  double const rhss[] = {4.0, 5.0};
  char const* const names[] = {nullptr, "second"};
  ASSERT_EQ(VORQ_AddIndicators(prob, 2, types, binCols, binVals, begins, counts, cols, coefs, "LG", rhss, names),
            VORQ_OK);
  int required = 0;
  ASSERT_EQ(VORQ_GetIndicators(prob, 2, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                               nullptr, 0, &required),
            VORQ_OK);
  EXPECT_EQ(required, 3);
  int kinds[2], bins[2], values[2], starts[2], sizes[2], members[3];
  double weights[3], sides[2];
  char senses[2];
  ASSERT_EQ(VORQ_GetIndicators(prob, 2, nullptr, kinds, bins, values, starts, sizes, members, weights, senses, sides, 3,
                               nullptr),
            VORQ_OK);
  EXPECT_THAT(kinds, ElementsAre(0, 1));
  EXPECT_THAT(bins, ElementsAre(1, 0));
  EXPECT_THAT(values, ElementsAre(1, 0));
  EXPECT_THAT(starts, ElementsAre(0, 2));
  EXPECT_THAT(sizes, ElementsAre(2, 1));
  EXPECT_THAT(members, ElementsAre(2, 3, 2));
  EXPECT_THAT(weights, ElementsAre(1.0, 2.0, 3.0));
  EXPECT_THAT(senses, ElementsAre('L', 'G'));
  EXPECT_THAT(sides, ElementsAre(4.0, 5.0));
}

TEST_F(IndicatorsTest, TheColumnMustBeBinary) {
  ListenToLog();
  EXPECT_EQ(Add(0, 2, 1, 3, 'L', 1.0), VORQ_INVALID);
  EXPECT_THAT(lines, ElementsAre("Error: Column 2 of an indicator constraint is not binary"));
}

TEST_F(IndicatorsTest, BadArgumentsAreRefused) {
  EXPECT_EQ(Add(0, 4, 1, 3, 'L', 1.0), VORQ_INVALID);
  EXPECT_EQ(Add(0, 0, 2, 3, 'L', 1.0), VORQ_INVALID);
  EXPECT_EQ(Add(0, 0, 1, 9, 'L', 1.0), VORQ_INVALID);
  EXPECT_EQ(Add(0, 0, 1, 3, 'R', 1.0), VORQ_INVALID);
  EXPECT_EQ(Add(0, 0, 1, 3, 'L', 1e30), VORQ_INVALID);
  EXPECT_EQ(Add(2, 0, 1, 3, 'L', 1.0), VORQ_INVALID);
  EXPECT_EQ(Attribute("Indicators"), 0);
  EXPECT_EQ(Add(0, 0, 1, 3, 'E', 1.0), VORQ_OK);
}

}  // namespace
