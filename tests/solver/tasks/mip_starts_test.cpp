// MIP starts of every sort and what the log says of each; the pool against all solutions of small knapsacks.
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include "tests/solver/engines/solve_fixture.hpp"

namespace {

using testing::Contains;
using testing::StartsWith;

class MipStartsTest : public SolveTest {
 protected:
  // maximise 5 a + 4 b + 3 c + y, 2 a + 3 b + c <= 5, y <= 4 - a, a b c binary, y continuous up to 10
  MipStartsTest() {
    Maximise();
    Col(5.0, 0.0, 1.0, 'B');
    Col(4.0, 0.0, 1.0, 'B');
    Col(3.0, 0.0, 1.0, 'B');
    Col(1.0, 0.0, 10.0);
    Row({0, 1, 2}, {2.0, 3.0, 1.0}, 'L', 5.0);
    Row({0, 3}, {1.0, 1.0}, 'L', 4.0);
    ListenToLog();
  }

  void Start(std::vector<int> const& cols, std::vector<double> const& values) {
    ASSERT_EQ(VORQ_AddMipStart(prob, static_cast<int>(cols.size()), cols.data(), values.data()), VORQ_OK);
  }

  std::vector<std::string> StartLines() {
    EXPECT_EQ(Solve(), kOptimal);
    EXPECT_NEAR(Dbl("BestObj"), 12.0, 1e-6);
    std::vector<std::string> found;
    std::ranges::copy_if(lines, std::back_inserter(found),
                         [](auto const& line) { return line.starts_with("MIP start"); });
    return found;
  }
};

TEST_F(MipStartsTest, FullStartIsAcceptedAsItIs) {
  Start({0, 1, 2, 3}, {0.0, 1.0, 1.0, 2.0});
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: accepted, objective 9.000000000e+00"));
}

// With a callback, our own branch and cut is the engine.
TEST_F(MipStartsTest, FullStartCountsWhereALimitIsMetAtTheRoot) {
  for (bool const hasCallback : {false, true}) {
    SCOPED_TRACE(hasCallback);
    if (hasCallback) {
      ASSERT_EQ(VORQ_SetCallback(
                    prob, [](VORQ_Prob*, VORQ_CallbackData*, int, void*) { return 0; }, -1, nullptr),
                VORQ_OK);
    }
    Set("TimeLimit", 0.0);
    Start({0, 1, 2, 3}, {0.0, 1.0, 1.0, 2.0});
    EXPECT_EQ(Solve(), kTimeLimit);
    ASSERT_EQ(Int("HasMipSol"), 1);
    EXPECT_NEAR(Dbl("BestObj"), 9.0, 1e-9);
    EXPECT_THAT(Values(), AreClose({0.0, 1.0, 1.0, 2.0}));
    EXPECT_GE(Dbl("BestBnd"), 12.0);
  }
}

TEST_F(MipStartsTest, OpenContinuousColumnsAreCompleted) {
  Start({0, 1, 2}, {0.0, 1.0, 1.0});
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: completed, objective 1.100000000e+01"));
}

TEST_F(MipStartsTest, OpenIntegerColumnsAreCompletedBySearch) {
  Start({1}, {1.0});
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: completed, objective 1.200000000e+01"));
}

TEST_F(MipStartsTest, InfeasibleContinuousPartIsRepaired) {
  Start({0, 1, 2, 3}, {1.0, 0.0, 1.0, 9.0});
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: repaired, objective 1.100000000e+01"));
}

TEST_F(MipStartsTest, InfeasibleIntegersAreRejectedWithTheCause) {
  Start({0, 1, 2, 3}, {1.0, 1.0, 1.0, 0.0});
  EXPECT_THAT(StartLines(),
              testing::ElementsAre("MIP start 1: rejected, infeasible, a row violated by 1, and no solution "
                                   "with its integers was found"));
}

TEST_F(MipStartsTest, IncompleteStartThatCannotBeCompletedIsRejected) {
  SetUpper(3, 1.0);
  Row({3}, {1.0}, 'G', 0.5);
  Row({0, 3}, {1.0, -1.0}, 'L', 0.25);
  Start({0, 1, 2}, {1.0, 1.0, 1.0});
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_THAT(lines,
              Contains("MIP start 1: rejected, incomplete, 1 columns are open, and no solution with its integers "
                       "was found"));
}

TEST_F(MipStartsTest, EachOfSeveralStartsHasItsLine) {
  Start({0, 1, 2, 3}, {0.0, 1.0, 1.0, 2.0});
  Start({0, 1, 2, 3}, {1.0, 1.0, 1.0, 0.0});
  Start({0}, {0.0});
  auto const found = StartLines();
  ASSERT_EQ(found.size(), 3u);
  EXPECT_THAT(found[0], StartsWith("MIP start 1: accepted"));
  EXPECT_THAT(found[1], StartsWith("MIP start 2: rejected"));
  EXPECT_THAT(found[2], StartsWith("MIP start 3: completed"));
}

TEST_F(MipStartsTest, ModesRejectWhatTheyDoNotWant) {
  Start({0, 1, 2, 3}, {0.0, 1.0, 1.0, 2.0});
  Start({0}, {0.0});
  Start({0, 1, 2, 3}, {1.0, 0.0, 1.0, 9.0});
  struct Case {
    int mode;
    char const* outcomes[3];
  };
  for (auto const& [mode, outcomes] :
       {Case{0, {"rejected, as MipStartMode says", "rejected, as MipStartMode says", "rejected, as MipStartMode says"}},
        Case{1, {"accepted", "rejected, incomplete, 3 columns are open", "rejected, infeasible, a row violated by 6"}},
        Case{2, {"accepted", "completed", "rejected, infeasible, a row violated by 6"}}}) {
    Set("MipStartMode", mode);
    lines.clear();
    auto const found = StartLines();
    ASSERT_EQ(found.size(), 3u);
    for (std::size_t k = 0; k < 3; ++k) {
      EXPECT_THAT(found[k], StartsWith("MIP start " + std::to_string(k + 1) + ": " + outcomes[k])) << "mode " << mode;
    }
  }
}

// With a callback, our own branch and cut is the engine.
TEST_F(MipStartsTest, BothEnginesTellTheSame) {
  ASSERT_EQ(VORQ_SetCallback(
                prob, [](VORQ_Prob*, VORQ_CallbackData*, int, void*) { return 0; }, -1, nullptr),
            VORQ_OK);
  Start({0, 1, 2, 3}, {1.0, 1.0, 1.0, 0.0});
  Start({0, 1, 2}, {0.0, 0.0, 1.0});
  Start({0, 1, 2, 3}, {0.0, 1.0, 1.0, 2.0});
  Start({0, 1, 2, 3}, {1.0, 0.0, 1.0, 9.0});
  Start({0, 1, 2, 3}, {0.0, 0.0, 0.0, 0.0});
  Start({1}, {1.0});
  EXPECT_THAT(StartLines(),
              testing::ElementsAre("MIP start 1: rejected, infeasible, a row violated by 1, and no solution "
                                   "with its integers was found",
                                   "MIP start 2: completed, objective 7.000000000e+00",
                                   "MIP start 3: accepted, objective 9.000000000e+00",
                                   "MIP start 4: repaired, objective 1.100000000e+01",
                                   "MIP start 5: rejected, no better than the best solution so far",
                                   "MIP start 6: completed, objective 1.200000000e+01"));
}

TEST_F(MipStartsTest, StartThatTheCallbackCutsOffIsRejected) {
  ASSERT_EQ(VORQ_SetCallback(
                prob,
                [](VORQ_Prob*, VORQ_CallbackData* data, int, void*) {
                  int const col = 0;
                  double const one = 1.0;
                  return VORQ_AddCallbackLazyConstr(data, 1, &col, &one, 'L', 0.0);
                },
                VORQ_CONTEXT_CANDIDATE, nullptr),
            VORQ_OK);
  Set("MipStartMode", 1);
  Start({0, 1, 2, 3}, {1.0, 1.0, 0.0, 3.0});
  EXPECT_EQ(Solve(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 11.0, 1e-6);
  EXPECT_THAT(lines, Contains("MIP start 1: rejected, cut off by the callback"));
}

TEST_F(MipStartsTest, NodeLimitOfCompletionMayBeNone) {
  Set("MipStartNodeLimit", -1);
  Start({1}, {1.0});
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: completed, objective 1.200000000e+01"));
}

TEST_F(MipStartsTest, UnusedStartsAreNamed) {
  Start({1}, {1.0});
  Start({2}, {1.0});
  EXPECT_EQ(VORQ_SolveLp(prob), VORQ_OK);
  EXPECT_THAT(lines, Contains("MIP start 1: not used, nothing is discrete"));
  EXPECT_THAT(lines, Contains("MIP start 2: not used, nothing is discrete"));
  lines.clear();
  Row({0, 1}, {1.0, 1.0}, 'G', 1.5);
  Row({0, 1, 2}, {2.0, 3.0, -1.0}, 'L', 1.0);
  EXPECT_EQ(Solve(), kInfeasible);
  EXPECT_THAT(lines, Contains("MIP start 2: not used, the relaxation settles the problem"));
  lines.clear();
  Row({0}, {1.0}, 'G', 1.5);
  SetUpper(0, -1.0);
  EXPECT_EQ(Solve(), kInfeasible);
  EXPECT_THAT(lines, Contains("MIP start 1: not used, no solution exists"));
}

// The gap is what the search proved, also where it found nothing better than the start.
TEST_F(MipStartsTest, OptimalStartLeavesNoGap) {
  Set("Presolve", 0);
  Set("CutLevel", 0);
  Set("HeurLevel", 0);
  Set("RelGap", 0.0);
  Row({0, 1, 2}, {4.0, 5.0, 6.0}, 'L', 10.5);
  Start({0, 1, 2, 3}, {1.0, 1.0, 0.0, 3.0});
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: accepted, objective 1.200000000e+01"));
  EXPECT_NEAR(Dbl("BestBnd"), 12.0, 1e-5);
  EXPECT_NEAR(Dbl("BestGap"), 0.0, 1e-5);
}

TEST_F(MipStartsTest, StartComesFromAFile) {
  std::string const path =
      (std::filesystem::temp_directory_path() / ("vorq_" + std::to_string(::getpid()) + ".mst")).string();
  std::ofstream(path) << "# a start\nC1 0\nC2 1\nC3 1\n";
  EXPECT_EQ(VORQ_ReadMst(prob, path.c_str()), VORQ_OK);
  std::filesystem::remove(path);
  EXPECT_THAT(StartLines(), testing::ElementsAre("MIP start 1: completed, objective 1.100000000e+01"));
}

TEST_F(MipStartsTest, BadStartsAreRefused) {
  double const values[] = {1.0, 1e30};
  int const cols[] = {0, 9};
  EXPECT_EQ(VORQ_AddMipStart(prob, 2, nullptr, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddMipStart(prob, 2, cols, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddMipStart(prob, -1, cols, values), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddMipStart(prob, 1, cols, nullptr), VORQ_INVALID);
  EXPECT_EQ(VORQ_AddMipStart(nullptr, 0, nullptr, nullptr), VORQ_INVALID);
  EXPECT_TRUE(StartLines().empty());
}

// Knapsacks small enough to know all of their solutions.
class PoolTest : public SolveTest, public testing::WithParamInterface<int> {};

TEST_P(PoolTest, HoldsDistinctSolutionsBestFirst) {
  unsigned state = static_cast<unsigned>(GetParam());
  auto const random = [&state] {
    state = state * 1664525u + 1013904223u;
    return 1.0 + static_cast<double>((state >> 16) % 50);
  };
  constexpr int kCount = 8;
  Maximise();
  std::vector<int> cols;
  std::vector<double> weights;
  std::vector<double> gains;
  double capacity = 0.0;
  for (int j = 0; j < kCount; ++j) {
    gains.push_back(random());
    weights.push_back(random());
    capacity += 0.4 * weights.back();
    cols.push_back(Col(gains.back(), 0.0, 1.0, 'B'));
  }
  Row(cols, weights, 'L', capacity);
  std::multiset<double> objectives;
  for (int subset = 0; subset < 1 << kCount; ++subset) {
    double gain = 0.0;
    double weight = 0.0;
    for (int j = 0; j < kCount; ++j) {
      gain += (subset >> j & 1) != 0 ? gains[j] : 0.0;
      weight += (subset >> j & 1) != 0 ? weights[j] : 0.0;
    }
    if (weight <= capacity) objectives.insert(gain);
  }
  for (int k = 0; k < 3; ++k) {
    double const value = k == 0 ? 1.0 : 0.0;
    int const col = k;
    ASSERT_EQ(VORQ_AddMipStart(prob, 1, &col, &value), VORQ_OK);
  }
  EXPECT_EQ(Solve(), kOptimal);
  int const size = Int("PoolSols");
  ASSERT_GE(size, 1);
  std::set<std::vector<double>> seen;
  double former = kInf;
  for (int k = 0; k < size; ++k) {
    double objective = 0.0;
    std::vector<double> values(kCount);
    ASSERT_EQ(VORQ_GetPoolObjVal(prob, k, &objective), VORQ_OK);
    ASSERT_EQ(VORQ_GetPoolSolution(prob, k, kCount, nullptr, values.data()), VORQ_OK);
    EXPECT_LE(objective, former);
    former = objective;
    EXPECT_TRUE(objectives.contains(objective)) << objective;
    double gain = 0.0;
    double weight = 0.0;
    for (int j = 0; j < kCount; ++j) {
      gain += gains[j] * values[j];
      weight += weights[j] * values[j];
    }
    EXPECT_EQ(gain, objective);
    EXPECT_LE(weight, capacity + 1e-9);
    EXPECT_TRUE(seen.insert(values).second);
  }
  double best = 0.0;
  ASSERT_EQ(VORQ_GetPoolObjVal(prob, 0, &best), VORQ_OK);
  EXPECT_NEAR(best, *objectives.rbegin(), 1e-6);
  double none = 0.0;
  EXPECT_EQ(VORQ_GetPoolObjVal(prob, size, &none), VORQ_INVALID);
}

INSTANTIATE_TEST_SUITE_P(Knapsacks, PoolTest, testing::Range(1, 9));

}  // namespace
