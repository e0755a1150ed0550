// Lazy constraints and user cuts, given with the problem or by a callback, against the same rows as ordinary ones.
#include <algorithm>
#include <cmath>

#include "tests/solver/tasks/callback_fixture.hpp"
#include "tests/solver/tasks/random.hpp"

namespace {

struct LinearRow {
  std::vector<int> cols;
  std::vector<double> coefs;
  char sense = 'L';
  double rhs = 0.0;

  double Activity(std::vector<double> const& point) const {
    double activity = 0.0;
    for (std::size_t k = 0; k < cols.size(); ++k) activity += coefs[k] * point[cols[k]];
    return activity;
  }
  bool Holds(std::vector<double> const& point) const {
    double const excess = Activity(point) - rhs;
    if (sense == 'L') return excess <= 1e-6;
    if (sense == 'G') return excess >= -1e-6;
    return std::abs(excess) <= 1e-6;
  }
};

// How the rows under test come into the solve.
enum class Way { kOrdinary, kLazyInProblem, kCutInProblem, kCallback, kEagerCallback };

class LazyRowsTest : public CallbackTest, public testing::WithParamInterface<int> {
 protected:
  void AddRows(std::vector<LinearRow> const& rows, Way way) {
    for (auto const& row : rows) {
      auto const count = static_cast<int>(row.cols.size());
      auto const add = [&](auto function) {
        ASSERT_EQ(function(prob, count, row.cols.data(), row.coefs.data(), row.sense, row.rhs, 0.0, nullptr), VORQ_OK);
      };
      if (way == Way::kOrdinary) add(VORQ_AddRow);
      if (way == Way::kLazyInProblem) add(VORQ_AddLazyConstr);
      if (way == Way::kCutInProblem) add(VORQ_AddUserCut);
    }
    if (way != Way::kCallback && way != Way::kEagerCallback) return;
    OnCall(way == Way::kCallback ? kCandidate : kCandidate | kRelaxation, [rows](Call const& call) {
      auto const point = call.Point();
      // One violated row at a time makes it hard.
      auto const broken = std::ranges::find_if(rows, [&](LinearRow const& row) { return !row.Holds(point); });
      if (broken != rows.end()) call.Lazy(broken->cols, broken->coefs, broken->sense, broken->rhs);
    });
  }

  // Builds the problem and solves it each way; all must agree.
  void Compare(std::function<std::vector<LinearRow>(Random&)> const& build) {
    for (int seed = GetParam() * 100; seed < GetParam() * 100 + 12; ++seed) {
      SCOPED_TRACE(testing::Message() << "seed " << seed);
      int status = 0;
      double best = 0.0;
      for (auto const way :
           {Way::kOrdinary, Way::kLazyInProblem, Way::kCutInProblem, Way::kCallback, Way::kEagerCallback}) {
        SCOPED_TRACE(testing::Message() << "way " << static_cast<int>(way));
        EXPECT_EQ(VORQ_ClearProb(prob), VORQ_OK);
        EXPECT_EQ(VORQ_SetCallback(prob, nullptr, 0, nullptr), VORQ_OK);
        Random random(static_cast<std::uint64_t>(seed));
        Set("RelGap", 0.0);
        Set("HeurLevel", random.Chance(50) ? -1 : 0);
        Set("CutLevel", random.Chance(50) ? -1 : 0);
        Set("Presolve", random.Chance(50) ? -1 : 0);
        auto const rows = build(random);
        AddRows(rows, way);
        int const found = Run();
        if (way == Way::kOrdinary) {
          status = found;
          ASSERT_TRUE(status == kOptimal || status == kInfeasible) << status;
          if (status == kOptimal) best = Dbl("BestObj");
          continue;
        }
        ASSERT_EQ(found, status);
        nodes += Int("NodeCnt");
        if (status != kOptimal) continue;
        EXPECT_NEAR(Dbl("BestObj"), best, 1e-6 * std::max(1.0, std::abs(best)));
        EXPECT_NEAR(Dbl("BestBnd"), best, 1e-5 * std::max(1.0, std::abs(best)));
        auto const values = Values();
        for (auto const& row : rows) EXPECT_LT(std::abs(Slackless(row, values)), 1e-5);
      }
    }
  }

  // How far the row is from holding.
  static double Slackless(LinearRow const& row, std::vector<double> const& point) {
    double const excess = row.Activity(point) - row.rhs;
    if (row.sense == 'L') return std::max(0.0, excess);
    return row.sense == 'G' ? std::min(0.0, excess) : excess;
  }

  int nodes = 0;
};

TEST_P(LazyRowsTest, SetCover) {
  Compare([this](Random& random) {
    int const sets = random.Int(15, 40);
    for (int set = 0; set < sets; ++set) Col(random.Int(1, 9), 0.0, 1.0, 'B');
    std::vector<LinearRow> rows;
    int const elements = random.Int(10, 30);
    for (int element = 0; element < elements; ++element) {
      LinearRow row{{}, {}, 'G', 1.0};
      for (int set = 0; set < sets; ++set) {
        if (!random.Chance(15)) continue;
        row.cols.push_back(set);
        row.coefs.push_back(1.0);
      }
      if (row.cols.empty()) continue;
      rows.push_back(std::move(row));
    }
    return rows;
  });
}

TEST_P(LazyRowsTest, Knapsacks) {
  Compare([this](Random& random) {
    Maximise();
    int const items = random.Int(15, 25);
    for (int item = 0; item < items; ++item) {
      Col(random.Int(5, 60), 0.0, random.Int(1, 3), random.Chance(70) ? 'B' : 'I');
    }
    auto const knapsack = [&](int percent) {
      LinearRow row;
      double sum = 0.0;
      for (int item = 0; item < items; ++item) {
        row.cols.push_back(item);
        row.coefs.push_back(random.Int(5, 60));
        sum += row.coefs.back();
      }
      row.rhs = std::floor(sum * percent / 100.0);
      return row;
    };
    auto const first = knapsack(60);
    Row(first.cols, first.coefs, 'L', first.rhs);
    std::vector<LinearRow> rows;
    for (int k = random.Int(2, 5); k > 0; --k) rows.push_back(knapsack(random.Int(30, 55)));
    return rows;
  });
  // The trees are not small.
  EXPECT_GT(nodes, 2000);
}

// Plants that cost when open, and flows that only open ones may carry: the rows that say so are lazy and hold the
// continuous flows.
TEST_P(LazyRowsTest, FixedCharge) {
  Compare([this](Random& random) {
    int const plants = random.Int(4, 8);
    int const customers = random.Int(4, 10);
    std::vector<int> open;
    std::vector<LinearRow> rows;
    for (int plant = 0; plant < plants; ++plant) open.push_back(Col(random.Int(20, 80), 0.0, 1.0, 'B'));
    std::vector<std::vector<int>> into(customers);
    for (int plant = 0; plant < plants; ++plant) {
      LinearRow capacity{{open[plant]}, {-static_cast<double>(random.Int(10, 25))}, 'L', 0.0};
      for (int customer = 0; customer < customers; ++customer) {
        int const flow = Col(random.Int(1, 20) / 2.0);
        into[customer].push_back(flow);
        capacity.cols.push_back(flow);
        capacity.coefs.push_back(1.0);
      }
      rows.push_back(std::move(capacity));
    }
    for (auto const& flows : into) Row(flows, std::vector<double>(flows.size(), 1.0), 'G', random.Int(1, 6));
    return rows;
  });
}

// A continuous column above many tangents, as in outer approximations and Benders' cuts; nothing else bounds it below.
TEST_P(LazyRowsTest, Epigraph) {
  Compare([this](Random& random) {
    int const integers = random.Int(3, 8);
    LinearRow sum{{}, {}, 'G', 0.0};
    for (int col = 0; col < integers; ++col) {
      Col(random.Int(-6, 6), 0.0, random.Int(3, 9), 'I');
      sum.cols.push_back(col);
      sum.coefs.push_back(1.0);
    }
    Row(sum.cols, sum.coefs, 'G', random.Int(1, 2 * integers));
    int const above = Col(1.0, random.Chance(50) ? -kInf : 0.0);
    std::vector<LinearRow> rows;
    for (int k = random.Int(5, 30); k > 0; --k) {
      LinearRow row{{above}, {1.0}, 'G', static_cast<double>(random.Int(-20, 20))};
      for (int col = 0; col < integers; ++col) {
        row.cols.push_back(col);
        row.coefs.push_back(random.Int(-70, 70) / 10.0);
      }
      rows.push_back(std::move(row));
    }
    return rows;
  });
}

// Semicontinuous columns, SOS and indicators beside lazy rows.
TEST_P(LazyRowsTest, OtherDiscreteParts) {
  Compare([this](Random& random) {
    Maximise();
    int const cols = random.Int(6, 10);
    for (int col = 0; col < cols; ++col) {
      char const type = "CBIS"[random.Int(0, 3)];
      Col(random.Int(1, 20), type == 'S' ? 2.0 : 0.0, type == 'B' ? 1.0 : 8.0, type);
    }
    int const binary = Col(random.Int(-5, 5), 0.0, 1.0, 'B');
    Sos(random.Int(1, 2), {0, 1, 2, 3, 4});
    Indicator(binary, random.Int(0, 1), {1, 2, 5}, {1, 1, 1}, 'L', random.Int(2, 9));
    std::vector<LinearRow> rows;
    for (int k = 0; k < 4; ++k) {
      LinearRow row{{}, {}, 'L', static_cast<double>(random.Int(10, 40))};
      for (int col = 0; col < cols; ++col) {
        row.cols.push_back(col);
        row.coefs.push_back(random.Int(-2, 9));
      }
      rows.push_back(std::move(row));
    }
    return rows;
  });
}

INSTANTIATE_TEST_SUITE_P(Seeds, LazyRowsTest, testing::Values(1, 2, 104));

}  // namespace
