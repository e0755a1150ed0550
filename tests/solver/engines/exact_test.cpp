// Small random LPs with free columns against the exact simplex method: status and objective.
#include <cmath>
#include <random>
#include <tuple>

#include "tests/solver/engines/exact_simplex.hpp"
#include "tests/solver/engines/solve_fixture.hpp"

namespace {

class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  int Between(int low, int high) { return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1)); }

  ExactProblem Make() {
    bool const hasCosts = Between(0, 1) == 1;
    int const freeOfTen = std::vector{0, 3, 10}[static_cast<std::size_t>(Between(0, 2))];
    ExactProblem problem;
    problem.columns.resize(static_cast<std::size_t>(Between(2, 6)));
    for (auto& column : problem.columns) {
      column.cost = hasCosts ? Between(-4, 4) : 0;
      column.isFree = Between(1, 10) <= freeOfTen;
      column.lower = Between(-3, 1);
      column.upper = column.lower + Between(0, 5);
    }
    problem.rows.resize(static_cast<std::size_t>(Between(1, 6)));
    for (auto& row : problem.rows) {
      for (std::size_t k = 0; k < problem.columns.size(); ++k) row.coefs.push_back(Between(0, 2) ? Between(-4, 4) : 0);
      row.sense = "LGE"[Between(0, 2)];
      row.side = Between(-6, 6);
    }
    return problem;
  }

 private:
  std::mt19937 random_;
};

class Model : public SolveTest {
 public:
  Model(ExactProblem const& problem, int method, int presolve) {
    Set("LpMethod", method);
    Set("Presolve", presolve);
    std::vector<int> all;
    for (auto const& column : problem.columns) {
      all.push_back(Col(column.cost, column.isFree ? -kInf : column.lower, column.isFree ? kInf : column.upper));
    }
    for (auto const& row : problem.rows) {
      Row(all, std::vector<double>(row.coefs.begin(), row.coefs.end()), row.sense, row.side);
    }
  }
  void TestBody() override {}

  using SolveTest::Dbl;
  using SolveTest::Solve;
};

int StatusOf(ExactResult const& result) {
  using enum ExactResult::Outcome;
  return result.outcome == kOptimal ? ::kOptimal : result.outcome == kInfeasible ? ::kInfeasible : ::kUnbounded;
}

// Method and presolve.
class ExactTest : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(ExactTest, RandomProblemsWithFreeColumnsEndAsTheExactMethodEnds) {
  auto const [method, presolve] = GetParam();
  int count[4] = {};
  for (unsigned seed = 0; seed < 1500; ++seed) {
    SCOPED_TRACE(seed);
    auto const problem = Generator(seed).Make();
    auto const exact = SolveExactly(problem);
    Model model(problem, method, presolve);
    int const status = StatusOf(exact);
    ASSERT_EQ(model.Solve(), status);
    if (status == kOptimal) {
      ASSERT_NEAR(model.Dbl("LpObjval"), exact.objective, 1e-6 * std::max(1.0, std::abs(exact.objective)));
    }
    ++count[status];
  }
  // All outcomes are there in number.
  for (int const status : {kOptimal, kInfeasible, kUnbounded}) EXPECT_GT(count[status], 100);
}

INSTANTIATE_TEST_SUITE_P(MethodsAndPresolve, ExactTest,
                         testing::Combine(testing::Values(-1, 0, 1), testing::Values(-1, 0)));

// A feasible problem that the engine's dual method takes for infeasible.
class FreeColumnsTest : public SolveTest {};

TEST_F(FreeColumnsTest, FeasibleProblemWithoutCostsIsNotInfeasible) {
  Col(0.0, 1.0, kInf);
  Col(0.0, -kInf, kInf);
  Col(0.0, -kInf, kInf);
  Row({0, 1, 2}, {4.0, -3.0, -4.0}, 'L', 0.0);
  Row({0, 1, 2}, {-1.0, 3.0, 2.0}, 'L', -3.0);
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_EQ(VORQ_ComputeIIS(prob), VORQ_INVALID);
}

TEST_F(FreeColumnsTest, UnboundedProblemIsNotInfeasible) {
  Col(1.0, -kInf, kInf);
  Col(0.0, -kInf, kInf);
  Row({0, 1}, {-3.0, -4.0}, 'L', -4.0);
  Row({0, 1}, {3.0, 2.0}, 'L', -2.0);
  EXPECT_EQ(Solve(), kUnbounded);
}

// A MIP whose relaxation the engine's dual method takes for infeasible; the columns 4 to 6 stand in no row.
TEST_F(FreeColumnsTest, UnboundedMipIsNotInfeasible) {
  for (int col = 0; col < 4; ++col) Col(col - 2.5, 0.0, 9.0, col < 2 ? 'I' : 'C');
  Row({0, 1, 2, 3}, {2.0, 3.0, -1.0, 4.0}, 'L', 17.5);
  Row({0, 1, 2, 3}, {5.0, -2.0, 3.0, 1.0}, 'L', 11.3);
  for (int col = 0; col < 3; ++col) Col(-1.0, 0.0, kInf, 'I');
  EXPECT_EQ(Solve(), kUnbounded);
}

}  // namespace
