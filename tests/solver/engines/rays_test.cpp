// Farkas rays and primal rays, held against the definition, and what the verification lets pass.
#include "solver/engines/certificates.hpp"
#include "solver/problem/problem.hpp"
#include "tests/solver/engines/solve_fixture.hpp"

namespace {

using testing::Each;
using testing::Ge;
using testing::IsEmpty;

class RayTest : public SolveTest, public testing::WithParamInterface<bool> {
 protected:
  RayTest() {
    Set("ReqFarkasRay", 1);
    if (GetParam()) Maximise();
  }

  vorqsolver::SolveResult const& Result() const { return reinterpret_cast<vorqsolver::Problem*>(prob)->result; }
};

// x + y >= 4 against x + 2y <= 3, nonnegative: any proof has the first row positive and the second negative.
TEST_P(RayTest, FarkasRayProvesInfeasibility) {
  Col(1.0);
  Col(-1.0);
  Row({0, 1}, {1.0, 1.0}, 'G', 4.0);
  Row({0, 1}, {1.0, 2.0}, 'L', 3.0);
  ASSERT_EQ(Solve(), kInfeasible);
  ASSERT_EQ(Int("HasDualFarkas"), 1);
  auto const& ray = Result().farkasRay;
  ASSERT_EQ(ray.size(), 2u);
  EXPECT_GE(ray[0], 0.0);
  EXPECT_LE(ray[1], 0.0);
  EXPECT_LE(ray[0] + ray[1], 1e-9);        // the combined row asks nothing positive of x
  EXPECT_LE(ray[0] + 2.0 * ray[1], 1e-9);  // and of y
  EXPECT_GT(4.0 * ray[0] + 3.0 * ray[1], 1e-9);
  double info[2] = {};
  ASSERT_EQ(VORQ_GetRowInfo(prob, "DualFarkas", 2, nullptr, info), VORQ_OK);
  EXPECT_THAT(ray, testing::ElementsAreArray(info));
  EXPECT_EQ(VORQ_GetColInfo(prob, "PrimalRay", 2, nullptr, info), VORQ_INVALID);
}

TEST_P(RayTest, PrimalRayKeepsRowsAndImproves) {
  double const sign = GetParam() ? 1.0 : -1.0;
  Col(sign);
  Col(2.0 * sign);
  Row({0, 1}, {1.0, -1.0}, 'L', 1.0);
  Row({0, 1}, {-2.0, 1.0}, 'L', 2.0);
  ASSERT_EQ(Solve(), kUnbounded);
  ASSERT_EQ(Int("HasPrimalRay"), 1);
  auto const& ray = Result().primalRay;
  ASSERT_EQ(ray.size(), 2u);
  EXPECT_THAT(ray, Each(Ge(0.0)));
  EXPECT_LE(ray[0] - ray[1], 1e-8);
  EXPECT_LE(-2.0 * ray[0] + ray[1], 1e-8);
  EXPECT_GT(ray[0] + 2.0 * ray[1], 1e-6);
  double info[2] = {};
  ASSERT_EQ(VORQ_GetColInfo(prob, "PrimalRay", 2, nullptr, info), VORQ_OK);
  EXPECT_THAT(ray, testing::ElementsAreArray(info));
  EXPECT_EQ(VORQ_GetRowInfo(prob, "DualFarkas", 2, nullptr, info), VORQ_INVALID);
}

// Dual infeasible, and primal infeasible as well.
TEST_P(RayTest, InfeasibleComesBeforeUnbounded) {
  Col(GetParam() ? 1.0 : -1.0);
  Col(0.0);
  Col(0.0);
  Row({1, 2}, {1.0, -1.0}, 'G', 1.0);
  Row({1, 2}, {1.0, -1.0}, 'L', -1.0);
  EXPECT_EQ(Solve(), kInfeasible);
}

INSTANTIATE_TEST_SUITE_P(BothDirections, RayTest, testing::Bool());

class VerificationTest : public testing::Test {
 protected:
  // x + y >= 4 and x + 2y <= 3 over nonnegative columns.
  VerificationTest() {
    data.columns.lower = {0.0, 0.0};
    data.columns.upper = {kInf, kInf};
    data.columns.objective = {-1.0, 0.0};
    data.columns.type = {'C', 'C'};
    data.rows.matrix.AppendEmptyCols(2);
    data.rows.matrix.AppendRow(std::vector<int>{0, 1}, std::vector<double>{1.0, 1.0});
    data.rows.matrix.AppendRow(std::vector<int>{0, 1}, std::vector<double>{1.0, 2.0});
    data.rows.lower = {4.0, -kInf};
    data.rows.upper = {kInf, 3.0};
  }

  vorqsolver::LinearModel Relaxation() const { return {data, false}; }

  vorqsolver::ProblemData data;
};

TEST_F(VerificationTest, ProofPassesInEitherSignAndIsScaled) {
  EXPECT_THAT(vorqsolver::VerifiedFarkasRay(Relaxation(), std::vector<double>{5.0, -5.0}), AreClose({1.0, -1.0}));
  EXPECT_THAT(vorqsolver::VerifiedFarkasRay(Relaxation(), std::vector<double>{-0.5, 0.5}), AreClose({1.0, -1.0}));
}

TEST_F(VerificationTest, WhatProvesNothingIsDropped) {
  EXPECT_THAT(vorqsolver::VerifiedFarkasRay(Relaxation(), std::vector<double>{1.0, 0.0}), IsEmpty());
  EXPECT_THAT(vorqsolver::VerifiedFarkasRay(Relaxation(), std::vector<double>{0.0, 0.0}), IsEmpty());
  EXPECT_THAT(vorqsolver::VerifiedFarkasRay(Relaxation(), std::vector<double>{1.0, 1.0}), IsEmpty());
}

TEST_F(VerificationTest, DirectionAgainstARowIsNoRay) {
  EXPECT_THAT(vorqsolver::VerifiedPrimalRay(Relaxation(), std::vector<double>{1.0, 0.0}), IsEmpty());
  data.rows.upper[1] = kInf;
  EXPECT_THAT(vorqsolver::VerifiedPrimalRay(Relaxation(), std::vector<double>{-3.0, 0.0}), AreClose({1.0, 0.0}));
  EXPECT_THAT(vorqsolver::VerifiedPrimalRay(Relaxation(), std::vector<double>{0.0, 1.0}), IsEmpty());
}

}  // namespace
