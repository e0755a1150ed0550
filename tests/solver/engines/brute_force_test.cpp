// Small random problems over a grid of integers, against a search through all of its points.
#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

#include "tests/solver/engines/roads.hpp"
#include "tests/solver/engines/solve_fixture.hpp"

namespace {

struct GridRow {
  std::vector<double> coefs;
  char sense;
  double bound;
  double upper;
};

struct GridIndicator {
  int binary;
  int value;
  GridRow row;
};

struct GridSos {
  int type;
  std::vector<int> cols;
};

struct GridProblem {
  int sense = 1;
  std::vector<double> objective;
  std::vector<int> lower;
  std::vector<int> upper;
  std::string types;
  std::vector<GridRow> rows;
  std::vector<GridIndicator> indicators;
  std::vector<GridSos> soss;
};

class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  int Between(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }

  GridProblem Make();

 private:
  GridRow MakeRow(GridProblem const& problem);
  void AddColumn(GridProblem& problem);

  std::mt19937 random_;
  bool areEqual_ = false;  // most rows
};

void Generator::AddColumn(GridProblem& problem) {
  char const type = "IIIBN"[Between(0, 4)];
  int low = type == 'B' ? 0 : Between(-3, 2);
  int high = type == 'B' ? 1 : low + Between(0, 4);
  problem.types += type;
  problem.lower.push_back(low);
  problem.upper.push_back(high);
  problem.objective.push_back(Between(-5, 5));
}

GridRow Generator::MakeRow(GridProblem const& problem) {
  GridRow row;
  for (std::size_t k = 0; k < problem.types.size(); ++k) row.coefs.push_back(Between(0, 2) == 0 ? 0 : Between(-4, 4));
  row.sense = (areEqual_ ? "EEEELG" : "LLGGER")[Between(0, 5)];
  row.bound = Between(-6, 6);
  row.upper = row.bound + Between(0, 5);
  return row;
}

GridProblem Generator::Make() {
  GridProblem problem;
  problem.sense = Between(0, 1) == 0 ? 1 : -1;
  int const cols = Between(2, 5);
  areEqual_ = Between(0, 3) == 0;
  for (int k = 0; k < cols; ++k) AddColumn(problem);
  int const rows = Between(0, 4);
  for (int k = 0; k < rows; ++k) problem.rows.push_back(MakeRow(problem));
  for (int k = 0; k < cols; ++k) {
    if (problem.types[static_cast<std::size_t>(k)] != 'B' || Between(0, 1) == 0) continue;
    problem.indicators.push_back({k, Between(0, 1), MakeRow(problem)});
    char& sense = problem.indicators.back().row.sense;
    if (sense == 'R') sense = 'E';
  }
  if (Between(0, 2) == 0) {
    GridSos sos{Between(1, 2), {}};
    for (int k = 0; k < cols; ++k) {
      if (Between(0, 3) > 0) sos.cols.push_back(k);
    }
    std::ranges::shuffle(sos.cols, random_);
    if (!sos.cols.empty()) problem.soss.push_back(sos);
  }
  return problem;
}

bool Holds(GridRow const& row, std::vector<int> const& point) {
  double activity = 0.0;
  for (std::size_t k = 0; k < point.size(); ++k) activity += row.coefs[k] * point[k];
  switch (row.sense) {
    case 'L': return activity <= row.bound;
    case 'G': return activity >= row.bound;
    case 'E': return activity == row.bound;
    default: return activity >= row.bound && activity <= row.upper;
  }
}

bool Holds(GridSos const& sos, std::vector<int> const& point) {
  int first = -1;
  int last = -1;
  for (int k = 0; k < static_cast<int>(sos.cols.size()); ++k) {
    if (point[static_cast<std::size_t>(sos.cols[static_cast<std::size_t>(k)])] == 0) continue;
    if (first < 0) first = k;
    last = k;
  }
  return first < 0 || last - first < sos.type;
}

bool IsFeasible(GridProblem const& problem, std::vector<int> const& point) {
  for (std::size_t k = 0; k < point.size(); ++k) {
    bool const isInside = point[k] >= problem.lower[k] && point[k] <= problem.upper[k];
    if (!isInside && !(problem.types[k] == 'N' && point[k] == 0)) return false;
  }
  auto const holds = [&](auto const& item) { return Holds(item, point); };
  if (!std::ranges::all_of(problem.rows, holds) || !std::ranges::all_of(problem.soss, holds)) return false;
  return std::ranges::all_of(problem.indicators, [&](GridIndicator const& indicator) {
    return point[static_cast<std::size_t>(indicator.binary)] != indicator.value || Holds(indicator.row, point);
  });
}

// The best objective over all points; none if no point is feasible.
std::optional<double> Search(GridProblem const& problem) {
  std::optional<double> best;
  std::vector<int> low = problem.lower;
  std::vector<int> high = problem.upper;
  for (int& value : low) value = std::min(value, 0);
  for (int& value : high) value = std::max(value, 0);
  for (std::vector<int> point = low;;) {
    if (IsFeasible(problem, point)) {
      double objective = 0.0;
      for (std::size_t k = 0; k < point.size(); ++k) objective += problem.objective[k] * point[k];
      if (!best || problem.sense * objective < problem.sense * *best) best = objective;
    }
    std::size_t k = 0;
    while (k < point.size() && point[k] == high[k]) point[k] = low[k], ++k;
    if (k == point.size()) return best;
    ++point[k];
  }
}

class BruteForceTest : public testing::TestWithParam<int> {};

class GridModel : public SolveTest {
 public:
  void TestBody() override {}

  void Build(GridProblem const& problem);
  void ExpectFeasible(GridProblem const& problem);

  using SolveTest::Dbl;
  using SolveTest::prob;
  using SolveTest::Set;
  using SolveTest::Solve;
};

void GridModel::Build(GridProblem const& problem) {
  if (problem.sense < 0) Maximise();
  std::vector<int> cols;
  for (std::size_t k = 0; k < problem.types.size(); ++k) {
    cols.push_back(Col(problem.objective[k], problem.lower[k], problem.upper[k], problem.types[k]));
  }
  for (auto const& row : problem.rows) Row(cols, row.coefs, row.sense, row.bound, row.upper);
  for (auto const& indicator : problem.indicators) {
    Indicator(indicator.binary, indicator.value, cols, indicator.row.coefs, indicator.row.sense, indicator.row.bound);
  }
  for (auto const& sos : problem.soss) Sos(sos.type, sos.cols);
  Set("RelGap", 0.0);
}

void GridModel::ExpectFeasible(GridProblem const& problem) {
  std::vector<int> point;
  for (double const value : Values()) {
    EXPECT_NEAR(value, std::round(value), 1e-6);
    point.push_back(static_cast<int>(std::round(value)));
  }
  EXPECT_TRUE(IsFeasible(problem, point));
}

TEST_P(BruteForceTest, FindsWhatTheSearchFinds) {
  for (int k = 0; k < 40; ++k) {
    int const seed = 1000 * GetParam() + k;
    SCOPED_TRACE(seed);
    auto const problem = Generator(static_cast<unsigned>(seed)).Make();
    auto const best = Search(problem);
    for (auto const road : kRoads) {
      SCOPED_TRACE(static_cast<int>(road));
      GridModel model;
      model.Build(problem);
      TakeRoad(model.prob, road);
      int const status = model.Solve();
      ASSERT_EQ(status, best ? kOptimal : kInfeasible);
      if (!best) continue;
      ASSERT_NEAR(model.Dbl("BestObj"), *best, 1e-6);
      model.ExpectFeasible(problem);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, BruteForceTest, testing::Range(1, 11));

}  // namespace
