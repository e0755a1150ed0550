// Small MIPs on which Cbc, Cgl and Clp go wrong or abort if they are trusted: each with presolve and without, by our
// own branch and cut, and without its cuts and heuristics. Then random ones, partly unbounded, which all roads must
// solve alike.
#include <cmath>
#include <cstdint>
#include <optional>

#include "tests/solver/engines/roads.hpp"
#include "tests/solver/engines/solve_fixture.hpp"
#include "tests/solver/tasks/random.hpp"

namespace {

struct SmallRow {
  std::vector<int> cols;
  std::vector<double> coefs;
  char sense;
  double bound;
  double upper = 0.0;
};

struct SmallCol {
  double cost;
  double lower;
  double upper;
  char type;
};

struct SmallMip {
  char const* name;
  int sense;
  std::vector<SmallCol> cols;
  std::vector<SmallRow> rows;
  int status;
  double objective = 0.0;
};

struct Outcome {
  int status;
  double objective;
  std::vector<double> values;
};

class SmallModel : public SolveTest {
 public:
  void TestBody() override {}

  Outcome SolveBy(Road road, SmallMip const& mip) {
    if (mip.sense < 0) Maximise();
    for (auto const& [cost, lower, upper, type] : mip.cols) Col(cost, lower, upper, type);
    for (auto const& row : mip.rows) Row(row.cols, row.coefs, row.sense, row.bound, row.upper);
    Set("RelGap", 0.0);
    Set("NodeLimit", 2000);
    TakeRoad(prob, road);
    Outcome outcome{Solve(), 0.0, {}};
    if (outcome.status == kOptimal) {
      outcome.objective = Dbl(Int("IsMIP") != 0 ? "BestObj" : "LpObjval");
      outcome.values = Values();
    }
    return outcome;
  }
};

void PrintTo(SmallMip const& mip, std::ostream* stream) {
  *stream << mip.name;
}

std::vector<SmallMip> KnownMips() {
  return {
      // Probing with both sorts of cuts cuts the solution off.
      {"ProbingCuts",
       -1,
       {{0, -kInf, 10, 'I'}, {-7, -kInf, 8, 'I'}, {0, -6.5, -3, 'C'}, {5, 1, 4, 'I'}},
       {{{0, 1, 3}, {8, 9, -7}, 'G', 22}, {{0}, {-3}, 'L', 6}},
       kOptimal,
       43},
      // Preprocessing makes the third column integer.
      {"NewIntegers",
       1,
       {{6, 0, 1, 'B'}, {0, 0, 10, 'I'}, {-10, -9, 11, 'C'}, {-1, -2.5, 17, 'I'}, {-8, -9, -1, 'I'}},
       {{{0, 2, 3}, {6, -5, 4}, 'G', -23},
        {{0, 1, 2, 3, 4}, {3, 2, 0.5, -9, -2}, 'L', -23},
        {{1, 2, 4}, {-1, 2, 7}, 'L', -3}},
       kOptimal,
       -106},
      {"NewIntegersBesideOpenColumns",
       1,
       {{0, -3, kInf, 'I'},
        {1, -2, -2, 'I'},
        {-7, -kInf, 7, 'C'},
        {0, -6, -5, 'I'},
        {-8, -1, 11, 'C'},
        {-6, -kInf, 7, 'I'},
        {8, 0, 1, 'B'}},
       {{{1, 2, 4, 5, 6}, {-7, -8, 3, -8, 1}, 'G', 26},
        {{0, 2, 3, 4, 5}, {6, 7, 1, 9, -2.5}, 'G', 22},
        {{0, 2}, {-3, -1.5}, 'L', 9}},
       kOptimal,
       -112.375},
      // Preprocessing calls it infeasible.
      {"NotInfeasible",
       1,
       {{5, -4, kInf, 'I'},
        {-4, 0, 1, 'B'},
        {-9, -3, 13, 'C'},
        {-3, -kInf, 0, 'I'},
        {-3, -kInf, 16, 'I'},
        {0, 2.5, 4, 'C'},
        {6, -8, 6, 'C'}},
       {{{1, 2, 3, 5, 6}, {-8, 6, 6, 2.5, -9}, 'L', -29}},
       kOptimal,
       -147.0 - 5.0 / 6.0},
      // A hot start of the reduced relaxation aborts.
      {"HotStart",
       -1,
       {{-9, -kInf, 5, 'I'}, {5, -kInf, 6, 'I'}},
       {{{0}, {6}, 'E', 13}, {{0, 1}, {2, 7}, 'E', 7}},
       kInfeasible},
      // Probing, and hot starts beside free columns, abort. The relaxation is unbounded, and said to be optimal.
      {"FreeColumns",
       1,
       {{4, 0, 1, 'B'},
        {0, -10, -6, 'I'},
        {-8, 0, 1, 'B'},
        {-8, 1, 17, 'C'},
        {-10, -1, 19, 'I'},
        {-4, -kInf, kInf, 'C'},
        {7, -kInf, kInf, 'I'},
        {2, -2, -2, 'C'}},
       {{{1, 3, 4, 7}, {5, -7, 9, -4}, 'L', -27},
        {{2, 3, 4, 5, 7}, {0.5, 9, -6, -2, 2}, 'L', 6},
        {{0, 1, 2, 3, 4, 5}, {-3, 3, 1, -3, -3, 8}, 'G', -10},
        {{0, 1, 2, 3, 4, 5, 6, 7}, {-1, -3, -8, -4, -9, 9, 9, -5}, 'G', 30}},
       kUnbounded},
      // The preprocessing within a heuristic aborts.
      {"Pump",
       1,
       {{-8, 0, kInf, 'I'},
        {7, -1, 0, 'C'},
        {6, -5, kInf, 'C'},
        {0, 0, 1, 'B'},
        {7, -kInf, 17, 'I'},
        {8, -3, 4, 'C'},
        {4, 2, kInf, 'C'}},
       {{{0, 1, 2, 3, 4}, {-3, 3, 7, -2.5, 7}, 'R', 4, 8},
        {{1, 2, 4}, {1, 7, -7}, 'G', -16},
        {{1, 3, 5, 6}, {1, -2, 1, -2}, 'L', 21},
        {{0, 2, 4}, {4, -1, -7}, 'G', -3}},
       kUnbounded},
      // A solve that begins where an unbounded one ended finds no solution, or one that is none.
      {"UnboundedTwice",
       1,
       {{0, 0, 8, 'I'}, {0, 0, kInf, 'C'}, {8, 0, 1, 'B'}, {0, 2, kInf, 'C'}, {-7, 0, 1, 'B'}, {10, -kInf, 11, 'C'}},
       {{{1, 2, 5}, {0.5, 7, 6}, 'R', -22, -13}},
       kUnbounded},
      // Preprocessing fixes the last integer column where only a continuous one could give way.
      {"DualArguments",
       -1,
       {{8, -10, 3, 'C'},
        {8, -kInf, 19, 'C'},
        {0, -3, -2, 'I'},
        {-3, 0, 1, 'B'},
        {0, -kInf, kInf, 'C'},
        {3, -5, -1, 'I'},
        {0, 0, 18, 'I'}},
       {{{2, 3, 4, 5}, {-0.5, 3, 4.5, 9}, 'G', 1},
        {{1, 5, 6}, {3.5, 7, -3.5}, 'E', -24},
        {{0, 2, 3, 4, 5}, {-4.5, 7, 5, 0.5, -1}, 'L', 10}},
       kOptimal,
       157.0 + 1.0 / 7.0},
      // Far away on free columns, a node seems infeasible.
      {"FreeNode",
       1,
       {{3, -kInf, 13, 'C'},
        {3, -kInf, kInf, 'C'},
        {1, 0, 1, 'B'},
        {5, 0, 1, 'B'},
        {-9, -kInf, kInf, 'C'},
        {-6, 0, 1, 'B'},
        {6, -kInf, 1, 'C'}},
       {{{0, 1, 3, 4}, {-5, -9, 4.5, -6.5}, 'E', 23},
        {{0, 2, 3, 4, 5}, {1.5, -1, -7, -4, 7.5}, 'G', 29},
        {{0, 1, 6}, {-1, -3, -2}, 'L', -13},
        {{1, 4}, {3.5, -5}, 'G', 25}},
       kOptimal},
      // A row without a term that counts.
      {"ZeroRow", -1, {{2, -kInf, kInf, 'I'}, {-1, 2, kInf, 'I'}}, {{{0}, {0}, 'E', -12}}, kInfeasible},
      // Trials of branches of so small a model abort.
      {"TinyTrials",
       1,
       {{-10, 0, 1, 'B'}, {-6, -8, kInf, 'I'}},
       {{{0}, {8}, 'G', -9}, {{0, 1}, {2, 1.5}, 'R', 7, 10}},
       kOptimal,
       -40.0},
      {"UnboundedInABox",
       -1,
       {{0, -kInf, kInf, 'I'}, {0, 0, kInf, 'I'}, {-1, -kInf, 7, 'C'}},
       {{{1}, {-4}, 'R', -9, -2}, {{0, 1, 2}, {3, 3.5, 9}, 'R', 29, 31}},
       kUnbounded},
  };
}

class KnownMipsTest : public testing::TestWithParam<SmallMip> {};

TEST_P(KnownMipsTest, AreSolvedRightByAllRoads) {
  auto const& mip = GetParam();
  std::optional<double> objective;
  for (auto const road : kRoads) {
    SCOPED_TRACE(static_cast<int>(road));
    auto const outcome = SmallModel().SolveBy(road, mip);
    ASSERT_EQ(outcome.status, mip.status);
    if (mip.status != kOptimal) continue;
    if (!objective) objective = mip.objective == 0.0 ? outcome.objective : mip.objective;
    EXPECT_NEAR(outcome.objective, *objective, 1e-5);
  }
}

INSTANTIATE_TEST_SUITE_P(SmallMips, KnownMipsTest, testing::ValuesIn(KnownMips()),
                         [](auto const& tested) { return tested.param.name; });

SmallMip RandomMip(Random& random) {
  SmallMip mip{"Random", random.Chance(50) ? -1 : 1, {}, {}, 0};
  int const cols = random.Int(2, 8);
  for (int col = 0; col < cols; ++col) {
    char const type = "CCIIIB"[random.Int(0, 5)];
    double lower = random.Chance(30) ? -kInf : random.Int(-10, 2);
    double upper = random.Chance(40) ? kInf : (lower == -kInf ? 0.0 : lower) + random.Int(0, 20);
    if (type == 'B') lower = 0.0, upper = 1.0;
    mip.cols.push_back({random.Chance(20) ? 0.0 : random.Int(-10, 10), lower, upper, type});
  }
  for (int row = random.Int(1, 6); row > 0; --row) {
    SmallRow made{{}, {}, "LLGGERLG"[random.Int(0, 7)], static_cast<double>(random.Int(-30, 30))};
    made.upper = made.bound + random.Int(0, 10);
    for (int col = 0; col < cols; ++col) {
      if (!random.Chance(60)) continue;
      made.cols.push_back(col);
      made.coefs.push_back(random.Int(-18, 18) / 2.0);
    }
    mip.rows.push_back(std::move(made));
  }
  return mip;
}

class RandomMipsTest : public testing::TestWithParam<int> {};

TEST_P(RandomMipsTest, AllRoadsAgree) {
  for (int seed = 100 * GetParam(); seed < 100 * GetParam() + 30; ++seed) {
    SCOPED_TRACE(seed);
    Random random(static_cast<std::uint64_t>(seed));
    auto const mip = RandomMip(random);
    auto const first = SmallModel().SolveBy(Road::kDefault, mip);
    if (first.status == kNodeLimit) continue;
    for (auto const road : kRoads) {
      SCOPED_TRACE(static_cast<int>(road));
      auto const outcome = SmallModel().SolveBy(road, mip);
      if (outcome.status == kNodeLimit) continue;
      ASSERT_EQ(outcome.status, first.status);
      EXPECT_NEAR(outcome.objective, first.objective, 1e-5 * std::max(1.0, std::abs(first.objective)));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomMipsTest, testing::Range(1, 9));

}  // namespace
