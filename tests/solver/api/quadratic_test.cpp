// Quadratic constraints: round trips, senses, right-hand sides and refusals.
#include <cmath>

#include "problem_fixture.hpp"

namespace {

using testing::ElementsAre;

class QuadraticTest : public ProblemTest {
 protected:
  void SetUp() override {
    ProblemTest::SetUp();
    AddCols(3);
  }

  int Add(std::vector<int> const& linear, std::vector<int> const& rows, std::vector<int> const& cols, int sense = 'L',
          double bound = 1.0) {
    std::vector<double> const coefs(10, 2.0);
    return VORQ_AddQConstr(prob, static_cast<int>(linear.size()), linear.data(), coefs.data(),
                           static_cast<int>(rows.size()), rows.data(), cols.data(), coefs.data(), sense, bound,
                           nullptr);
  }
};

TEST_F(QuadraticTest, TermsReadBackAsStated) {
  ASSERT_EQ(Add({2}, {0, 1, 1}, {1, 0, 1}, 'G', -3.0), VORQ_OK);
  int required = 0;
  ASSERT_EQ(VORQ_GetQConstr(prob, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0,
                            &required),
            VORQ_OK);
  EXPECT_EQ(required, 3);
  int nLin = 0, nQuad = 0, linIdx[3], qRow[3], qCol[3];
  double linCoef[3], qCoef[3], bound = 0.0;
  char sense = 0;
  ASSERT_EQ(VORQ_GetQConstr(prob, 0, &nLin, linIdx, linCoef, &nQuad, qRow, qCol, qCoef, &sense, &bound, 3, nullptr),
            VORQ_OK);
  EXPECT_EQ(nLin, 1);
  EXPECT_EQ(linIdx[0], 2);
  EXPECT_EQ(nQuad, 3);
  EXPECT_THAT(qRow, ElementsAre(0, 1, 1));
  EXPECT_THAT(qCol, ElementsAre(1, 0, 1));
  EXPECT_EQ(sense, 'G');
  EXPECT_EQ(bound, -3.0);
  EXPECT_EQ(VORQ_GetQConstr(prob, 0, &nLin, linIdx, linCoef, &nQuad, qRow, qCol, qCoef, &sense, &bound, 2, nullptr),
            VORQ_INVALID);
}

TEST_F(QuadraticTest, BadArgumentsAreRefused) {
  EXPECT_EQ(Add({3}, {0}, {0}), VORQ_INVALID);
  EXPECT_EQ(Add({}, {3}, {0}), VORQ_INVALID);
  EXPECT_EQ(Add({}, {0}, {-1}), VORQ_INVALID);
  EXPECT_EQ(Add({}, {0}, {0}, 'R'), VORQ_INVALID);
  EXPECT_EQ(Add({}, {0}, {0}, 'L', std::nan("")), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddQConstr(prob, 0, nullptr, nullptr, 1, nullptr, nullptr, nullptr, 'L', 1.0, nullptr), VORQ_INVALID);
  EXPECT_EQ(Attribute("QConstrs"), 0);
}

TEST_F(QuadraticTest, SenseAndRightHandSideChange) {
  ASSERT_EQ(Add({}, {0}, {0}), VORQ_OK);
  ASSERT_EQ(Add({}, {1}, {1}), VORQ_OK);
  double const values[] = {7.0, 8.0};
  ASSERT_EQ(VORQ_SetQConstrSense(prob, 2, nullptr, "EG"), VORQ_OK);
  ASSERT_EQ(VORQ_SetQConstrRhs(prob, 2, nullptr, values), VORQ_OK);
  char senses[2];
  double rhss[2];
  EXPECT_EQ(VORQ_GetQConstrSense(prob, 2, nullptr, senses), VORQ_OK);
  EXPECT_EQ(VORQ_GetQConstrRhs(prob, 2, nullptr, rhss), VORQ_OK);
  EXPECT_THAT(senses, ElementsAre('E', 'G'));
  EXPECT_THAT(rhss, ElementsAre(7.0, 8.0));
}

TEST_F(QuadraticTest, SettersRefuseWithoutAChange) {
  ASSERT_EQ(Add({}, {0}, {0}), VORQ_OK);
  ASSERT_EQ(Add({}, {1}, {1}), VORQ_OK);
  double const values[] = {7.0, std::nan("")};
  EXPECT_EQ(VORQ_SetQConstrSense(prob, 2, nullptr, "EN"), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetQConstrRhs(prob, 2, nullptr, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetQConstrRhs(prob, 3, nullptr, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_SetQConstrSense(prob, 1, nullptr, nullptr), VORQ_INVALID);
  char sense = 0;
  double rhs = 0.0;
  EXPECT_EQ(VORQ_GetQConstrSense(prob, 1, nullptr, &sense), VORQ_OK);
  EXPECT_EQ(VORQ_GetQConstrRhs(prob, 1, nullptr, &rhs), VORQ_OK);
  EXPECT_EQ(sense, 'L');
  EXPECT_EQ(rhs, 1.0);
}

}  // namespace
