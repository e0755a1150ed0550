// Callbacks: contexts, informations, rows and solutions that they give, their end by a return value, an interruption or
// an exception, and their misuse.
#include <cmath>
#include <limits>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "tests/solver/tasks/callback_fixture.hpp"

namespace {

using testing::Contains;
using testing::HasSubstr;

constexpr double kOpen = VORQ_UNDEFINED;

class CallbacksTest : public CallbackTest {
 protected:
  // Maximise 5 a + 4 b + 3 c with 2 a + 3 b + c <= 5, 4 a + b + 2 c <= 11, 3 a + 4 b + 2 c <= 8, all integer: 13 at
  // (2, 0, 1).
  void AddSmall() {
    Maximise();
    for (double const value : {5.0, 4.0, 3.0}) Col(value, 0.0, 10.0, 'I');
    Row({0, 1, 2}, {2, 3, 1}, 'L', 5.0);
    Row({0, 1, 2}, {4, 1, 2}, 'L', 11.0);
    Row({0, 1, 2}, {3, 4, 2}, 'L', 8.0);
  }

  // A knapsack whose relaxation is fractional: a best value of 15 by the second and third item.
  void AddKnapsack() {
    Maximise();
    for (double const value : {9.0, 8.0, 7.0}) Col(value, 0.0, 1.0, 'B');
    Row({0, 1, 2}, {6, 5, 4}, 'L', 9.5);
    Set("CutLevel", 0);
    Set("HeurLevel", 0);
  }
};

TEST_F(CallbacksTest, MaskChoosesTheContexts) {
  AddKnapsack();
  for (int const mask : {kRelaxation, kCandidate, kIncumbent, kRelaxation | kIncumbent, kAll}) {
    OnCall(mask, [](Call const&) {});
    EXPECT_EQ(Run(), kOptimal);
    EXPECT_EQ(calls.contains(kRelaxation), (mask & kRelaxation) != 0) << mask;
    EXPECT_EQ(calls.contains(kCandidate), (mask & kCandidate) != 0) << mask;
    EXPECT_EQ(calls.contains(kIncumbent), (mask & kIncumbent) != 0) << mask;
    EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
  }
}

TEST_F(CallbacksTest, MaskOfZeroAndNoFunctionCallNothing) {
  AddKnapsack();
  OnCall(0, [](Call const&) {});
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_TRUE(calls.empty());
  OnCall(kAll, [](Call const&) {});
  EXPECT_EQ(VORQ_SetCallback(prob, nullptr, 0, nullptr), VORQ_OK);
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_TRUE(calls.empty());
}

TEST_F(CallbacksTest, UnknownContextsOfAMaskAreRefused) {
  ListenToLog();
  EXPECT_EQ(VORQ_SetCallback(
                prob, [](VORQ_Prob*, VORQ_CallbackData*, int, void*) { return 0; }, 9, nullptr),
            VORQ_INVALID);
  EXPECT_THAT(lines, Contains("Error: The mask 9 names a context that does not exist"));
}

TEST_F(CallbacksTest, LinearProblemsAndRelaxationsHaveNoContexts) {
  AddKnapsack();
  OnCall(kAll, [](Call const&) {});
  EXPECT_EQ(VORQ_SolveLp(prob), VORQ_OK);
  EXPECT_TRUE(calls.empty());
  for (int col = 0; col < 3; ++col) EXPECT_EQ(VORQ_SetColType(prob, 1, &col, "C"), VORQ_OK);
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_TRUE(calls.empty());
}

TEST_F(CallbacksTest, InformationsHaveTypesAndDimensions) {
  struct Expected {
    char const* name;
    int type;
    int dim;
  };
  for (auto const& [name, type, dim] : {Expected{"NodeCnt", 0, 0},
                                        {"OpenNodeCnt", 0, 0},
                                        {"SolutionCnt", 0, 0},
                                        {"LazyConstrCnt", 0, 0},
                                        {"UserCutCnt", 0, 0},
                                        {"SolvingTime", 1, 0},
                                        {"BestObj", 1, 0},
                                        {"BestBnd", 1, 0},
                                        {"BestGap", 1, 0},
                                        {"MipCandidateObj", 1, 0},
                                        {"RelaxSolutionObj", 1, 0},
                                        {"Incumbent", 1, 1},
                                        {"MipCandidate", 1, 1},
                                        {"RelaxSolution", 1, 1},
                                        {"mipCANDIDATE", 1, 1},
                                        {"Nothing", -1, 0},
                                        {"", -1, 0}}) {
    int foundType = -7;
    int foundDim = -7;
    EXPECT_EQ(VORQ_SearchCallbackInfo(prob, name, &foundType, &foundDim), VORQ_OK);
    EXPECT_EQ(foundType, type) << name;
    EXPECT_EQ(foundDim, dim) << name;
    EXPECT_EQ(VORQ_SearchCallbackInfo(prob, name, nullptr, nullptr), VORQ_OK);
  }
  EXPECT_EQ(VORQ_SearchCallbackInfo(prob, nullptr, nullptr, nullptr), VORQ_INVALID);
}

TEST_F(CallbacksTest, InformationsTellOfTheSearch) {
  AddKnapsack();
  double bound = kInf;
  double best = -kInf;
  OnCall(kAll, [&](Call const& call) {
    EXPECT_LE(call.Dbl("BestBnd"), bound + 1e-9);
    bound = call.Dbl("BestBnd");
    EXPECT_GE(call.Dbl("SolvingTime"), 0.0);
    EXPECT_GE(call.Int("NodeCnt"), 0);
    EXPECT_GE(call.Int("OpenNodeCnt"), 0);
    if (call.context == kRelaxation) {
      auto const point = call.Vector("RelaxSolution");
      EXPECT_NEAR(call.Dbl("RelaxSolutionObj"), 9 * point[0] + 8 * point[1] + 7 * point[2], 1e-6);
      EXPECT_LE(6 * point[0] + 5 * point[1] + 4 * point[2], 9.5 + 1e-6);
    }
    if (call.context == kCandidate) {
      auto const point = call.Vector("MipCandidate");
      EXPECT_NEAR(call.Dbl("MipCandidateObj"), 9 * point[0] + 8 * point[1] + 7 * point[2], 1e-9);
      for (double const value : point) EXPECT_EQ(value, std::round(value));
      EXPECT_EQ(call.Dbl("BestObj"), best);
    }
    if (call.context == kIncumbent) {
      auto const point = call.Vector("Incumbent");
      EXPECT_NEAR(call.Dbl("BestObj"), 9 * point[0] + 8 * point[1] + 7 * point[2], 1e-9);
      EXPECT_GT(call.Dbl("BestObj"), best);
      best = call.Dbl("BestObj");
      EXPECT_GE(call.Int("SolutionCnt"), 1);
      EXPECT_NEAR(call.Dbl("BestGap"), std::abs(bound - best) / best, 1e-9);
    }
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(best, Dbl("BestObj"), 1e-9);
  EXPECT_GE(bound, best - 1e-9);
}

TEST_F(CallbacksTest, VectorsAreRefusedWhereThereAreNone) {
  AddKnapsack();
  ListenToLog();
  bool wasFirst = true;
  OnCall(kAll, [&](Call const& call) {
    std::vector<double> values(3, -777.0);
    auto const get = [&](char const* name) { return VORQ_GetCallbackInfo(call.data, name, values.data()); };
    EXPECT_EQ(get("RelaxSolution"), call.context == kRelaxation ? VORQ_OK : VORQ_INVALID);
    EXPECT_EQ(get("MipCandidate"), call.context == kCandidate ? VORQ_OK : VORQ_INVALID);
    if (std::exchange(wasFirst, false)) {
      EXPECT_EQ(get("Incumbent"), VORQ_INVALID);
    }
    EXPECT_EQ(get("Nonsense"), VORQ_INVALID);
    EXPECT_EQ(get(nullptr), VORQ_INVALID);
    EXPECT_EQ(VORQ_GetCallbackInfo(call.data, "NodeCnt", nullptr), VORQ_INVALID);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_THAT(lines, Contains("Error: There is no 'Incumbent' at this point of the solve"));
  EXPECT_THAT(lines, Contains("Error: There is no callback information 'Nonsense'"));
}

TEST_F(CallbacksTest, LazyConstraintCutsOffTheCandidate) {
  AddSmall();
  OnCall(kCandidate, [](Call const& call) {
    if (call.Vector("MipCandidate")[0] > 0.5) call.Lazy({0}, {1}, 'L', 0.0);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_THAT(Values(), AreClose({0, 0, 4}));
  EXPECT_NEAR(Dbl("BestObj"), 12.0, 1e-9);
  EXPECT_NEAR(Dbl("BestBnd"), 12.0, 1e-9);
}

TEST_F(CallbacksTest, LazyConstraintsCanLeaveNoSolution) {
  AddSmall();
  OnCall(kCandidate, [](Call const& call) { call.Lazy({0, 1, 2}, {1, 1, 1}, 'G', 100.0); });
  EXPECT_EQ(Run(), kInfeasible);
  OnCall(kCandidate, [](Call const& call) { call.Lazy({}, {}, 'G', 1.0); });
  EXPECT_EQ(Run(), kInfeasible);
}

TEST_F(CallbacksTest, LazyConstraintThatHoldsAcceptsTheCandidate) {
  AddSmall();
  OnCall(kCandidate, [](Call const& call) { call.Lazy({0, 1, 2}, {1, 1, 1}, 'L', 100.0); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 13.0, 1e-9);
}

TEST_F(CallbacksTest, RowsOfACallbackSumTermsThatNameAColumnTwice) {
  AddSmall();
  OnCall(kCandidate, [](Call const& call) { call.Lazy({0, 0, 1, 1}, {1, 1, 3, -3}, 'L', 2.0); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_LE(Values()[0], 1.0);
}

TEST_F(CallbacksTest, BatchesAddAllRows) {
  AddSmall();
  OnCall(kCandidate, [](Call const& call) {
    int const begins[] = {0, 1};
    int const counts[] = {1, 2};
    int const cols[] = {0, 1, 2};
    double const coefs[] = {1, 1, 1};
    double const sides[] = {1.0, 0.0};
    EXPECT_EQ(VORQ_AddCallbackLazyConstrs(call.data, 2, begins, counts, cols, coefs, "LE", sides), VORQ_OK);
    EXPECT_EQ(VORQ_AddCallbackLazyConstrs(call.data, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), VORQ_OK);
    EXPECT_EQ(call.Int("LazyConstrCnt"), 2);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_THAT(Values(), AreClose({1, 0, 0}));
}

TEST_F(CallbacksTest, BadRowsAreRefusedByName) {
  AddKnapsack();
  ListenToLog();
  double const nan = std::numeric_limits<double>::quiet_NaN();
  OnCall(kRelaxation, [&](Call const& call) {
    int const cols[] = {0, 3, -1};
    double const coefs[] = {1.0, nan, kInf};
    auto const add = [&](int n, int const* at, double const* values, int sense, double rhs) {
      return VORQ_AddCallbackLazyConstr(call.data, n, at, values, sense, rhs);
    };
    EXPECT_EQ(add(2, cols, coefs, 'L', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, cols + 2, coefs, 'L', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, cols, coefs + 1, 'L', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, cols, coefs + 2, 'L', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, cols, coefs, 'L', nan), VORQ_INVALID);
    EXPECT_EQ(add(1, cols, coefs, 'R', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, cols, coefs, 'N', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, nullptr, coefs, 'L', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(1, cols, nullptr, 'L', 1.0), VORQ_INVALID);
    EXPECT_EQ(add(-1, cols, coefs, 'L', 1.0), VORQ_INVALID);
    int const begins[] = {0, 1};
    int const counts[] = {1, 1};
    double const ones[] = {1.0, 1.0};
    auto const many = [&](int count, char const* senses, double const* sides) {
      return VORQ_AddCallbackUserCuts(call.data, count, begins, counts, cols, ones, senses, sides);
    };
    EXPECT_EQ(many(2, "LL", ones), VORQ_INVALID);
    EXPECT_EQ(many(1, nullptr, ones), VORQ_INVALID);
    EXPECT_EQ(many(1, "L", nullptr), VORQ_INVALID);
    EXPECT_EQ(many(-1, "L", ones), VORQ_INVALID);
    EXPECT_EQ(call.Int("UserCutCnt") + call.Int("LazyConstrCnt"), 0);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
  EXPECT_THAT(lines, Contains("Error: Lazy constraint 0 of the callback: Column 3 does not exist (there are 3)"));
  EXPECT_THAT(lines, Contains("Error: Lazy constraint 0 of the callback: The bound of a row is not a number"));
  EXPECT_THAT(lines, Contains("Error: User cut 1 of the callback: Column 3 does not exist (there are 3)"));
  EXPECT_THAT(lines, Contains("Error: Unknown sense 82 of a constraint"));
}

TEST_F(CallbacksTest, RowsInTheWrongContextAreRefused) {
  AddKnapsack();
  ListenToLog();
  OnCall(kCandidate | kIncumbent, [&](Call const& call) {
    int const col = 0;
    double const one = 1.0;
    EXPECT_EQ(VORQ_AddCallbackUserCut(call.data, 1, &col, &one, 'L', 0.0), VORQ_INVALID);
    if (call.context != kIncumbent) return;
    EXPECT_EQ(VORQ_AddCallbackLazyConstr(call.data, 1, &col, &one, 'L', 0.0), VORQ_INVALID);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
  EXPECT_THAT(lines, Contains("Error: User cuts are taken for the relaxation of a node only"));
  EXPECT_THAT(lines, Contains(HasSubstr("Lazy constraints are not taken for a new incumbent")));
}

TEST_F(CallbacksTest, UserCutsLeaveTheOptimumAndAreCounted) {
  AddKnapsack();
  int most = 0;
  OnCall(kRelaxation, [&](Call const& call) {
    // A cover: the first and second item are too heavy together, and so are the first and third.
    call.Cut({0, 1}, {1, 1}, 'L', 1.0);
    call.Cut({0, 2}, {1, 1}, 'L', 1.0);
    most = std::max(most, call.Int("UserCutCnt"));
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
  EXPECT_GE(calls[kRelaxation], 2);
  EXPECT_EQ(Int("NodeCnt"), 0);
}

TEST_F(CallbacksTest, OfferedSolutionBecomesTheIncumbent) {
  AddKnapsack();
  bool offered = false;
  double objective = 0.0;
  std::vector<double> first;
  OnCall(kRelaxation | kIncumbent, [&](Call const& call) {
    if (call.context == kRelaxation && !std::exchange(offered, true)) objective = call.Offer({0, 1, 0});
    if (call.context == kIncumbent && first.empty()) first = call.Vector("Incumbent");
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(objective, 8.0, 1e-9);
  EXPECT_THAT(first, AreClose({0, 1, 0}));
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
}

TEST_F(CallbacksTest, PartialSolutionIsCompleted) {
  AddKnapsack();
  int const rest = Col(1.0, 0.0, 3.0);
  Row({0, rest}, {2, 1}, 'L', 3.5);
  double objective = 0.0;
  OnCall(kRelaxation, [&](Call const& call) { objective = call.Offer({1, 0, 0, kOpen}); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(objective, 10.5, 1e-6);
  OnCall(kRelaxation, [&](Call const& call) { objective = call.Offer({1, kOpen, kOpen, 0.5}); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(objective, 9.5, 1e-6);
  OnCall(kRelaxation, [&](Call const& call) { objective = call.Offer({kOpen, kOpen, kOpen, kOpen}); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(objective, 18.0, 1e-6);
}

TEST_F(CallbacksTest, OfferThatSolvesNothingHasNoObjective) {
  AddKnapsack();
  OnCall(kAll, [](Call const& call) {
    EXPECT_EQ(call.Offer({1, 1, kOpen}), kInf);
    EXPECT_EQ(call.Offer({5, 0, 0}), kInf);
    double objective = 0.0;
    double const nan[] = {std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0};
    EXPECT_EQ(VORQ_AddCallbackSolution(call.data, nan, &objective), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCallbackSolution(call.data, nullptr, &objective), VORQ_INVALID);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
}

TEST_F(CallbacksTest, OfferMustPassTheLazyConstraintsOfTheCallback) {
  AddKnapsack();
  OnCall(kRelaxation | kCandidate, [](Call const& call) {
    call.Offer({0, 1, 1});
    if (call.context == kCandidate && call.Vector("MipCandidate")[1] > 0.5) call.Lazy({1}, {1}, 'L', 0.0);
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_LE(Values()[1], 1e-9);
  EXPECT_NEAR(Dbl("BestObj"), 9.0, 1e-9);
}

TEST_F(CallbacksTest, SameSolutionOfferedAtEveryCallEndsAllTheSame) {
  AddKnapsack();
  OnCall(kAll, [](Call const& call) { EXPECT_NEAR(call.Offer({1, kOpen, kOpen}), 9.0, 1e-9); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
}

TEST_F(CallbacksTest, MipStartIsACandidateToo) {
  AddKnapsack();
  int const cols[] = {0, 1, 2};
  double const values[] = {0, 0, 1};
  ASSERT_EQ(VORQ_AddMipStart(prob, 3, cols, values), VORQ_OK);
  std::vector<double> first;
  OnCall(kCandidate, [&](Call const& call) {
    if (first.empty()) first = call.Vector("MipCandidate");
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_THAT(first, AreClose({0, 0, 1}));
}

TEST_F(CallbacksTest, InterruptFromInsideStopsAndKeepsTheIncumbent) {
  AddMarketSplit(4, 30);
  OnCall(kIncumbent, [&](Call const&) { EXPECT_EQ(VORQ_Interrupt(prob), VORQ_OK); });
  EXPECT_EQ(Run(), kInterrupted);
  EXPECT_EQ(calls[kIncumbent], 1);
  EXPECT_EQ(Int("HasMipSol"), 1);
}

TEST_F(CallbacksTest, ReturnValueOtherThanZeroStops) {
  AddMarketSplit(4, 30);
  answer = 1;
  OnCall(kRelaxation, [](Call const&) {});
  EXPECT_EQ(Run(), kInterrupted);
  EXPECT_EQ(calls[kRelaxation], 1);
}

TEST_F(CallbacksTest, WhoEndedTheSearchIsNotCalledAgain) {
  AddKnapsack();
  for (int const context : {kRelaxation, kCandidate, kIncumbent}) {
    for (bool const interrupts : {false, true}) {
      SCOPED_TRACE(testing::Message() << context << ' ' << interrupts);
      int later = 0;
      bool isOver = false;
      answer = 0;
      OnCall(kAll, [&](Call const& call) {
        later += isOver ? 1 : 0;
        if (call.context != context) return;
        isOver = true;
        if (interrupts) {
          EXPECT_EQ(VORQ_Interrupt(prob), VORQ_OK);
        } else {
          answer = 1;
        }
      });
      EXPECT_EQ(Run(), kInterrupted);
      EXPECT_EQ(later, 0);
      // The candidate of that call counts, since nothing came against it.
      EXPECT_EQ(Int("HasMipSol"), context == kRelaxation ? 0 : 1);
    }
  }
}

TEST_F(CallbacksTest, TrialsOfBranchesBesideLazyConstraintsOfATinyModel) {
  Maximise();
  for (int col = 0; col < 2; ++col) Col(1.0, 0.0, 20.0, 'I');
  Set("CutLevel", 0);
  int const cols[] = {0, 1};
  for (auto const& [a, b, rhs] : {std::tuple(6.0, 4.0, 33.0), std::tuple(4.0, 7.0, 35.0)}) {
    double const coefs[] = {a, b};
    ASSERT_EQ(VORQ_AddLazyConstr(prob, 2, cols, coefs, 'L', rhs, 0.0, nullptr), VORQ_OK);
  }
  OnCall(kAll, [](Call const&) {});
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 6.0, 1e-9);
}

TEST_F(CallbacksTest, ExceptionPassesThroughAndLeavesTheProblemUsable) {
  AddKnapsack();
  for (int const mask : {kRelaxation, kCandidate, kIncumbent}) {
    OnCall(mask, [](Call const&) { throw std::runtime_error("mine"); });
    try {
      Run();
      ADD_FAILURE() << "no exception from context " << mask;
    } catch (std::runtime_error const& error) {
      EXPECT_STREQ(error.what(), "mine");
    }
    EXPECT_EQ(Int("MipStatus"), 0);
    EXPECT_EQ(VORQ_SetCallback(prob, nullptr, 0, nullptr), VORQ_OK);
    EXPECT_EQ(Run(), kOptimal);
    EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
  }
}

TEST_F(CallbacksTest, ExceptionOfAnyTypePassesThrough) {
  AddKnapsack();
  OnCall(kCandidate, [](Call const&) { throw 42; });
  EXPECT_THROW(VORQ_Solve(prob), int);
  OnCall(kCandidate, [](Call const&) { throw std::bad_alloc(); });
  EXPECT_THROW(VORQ_Solve(prob), std::bad_alloc);
}

TEST_F(CallbacksTest, CallbackDataIsOfNoUseOutsideOfACall) {
  AddKnapsack();
  VORQ_CallbackData* stale = nullptr;
  OnCall(kRelaxation, [&](Call const& call) { stale = call.data; });
  EXPECT_EQ(Run(), kOptimal);
  for (auto* data : {stale, static_cast<VORQ_CallbackData*>(nullptr)}) {
    double values[3] = {};
    EXPECT_EQ(VORQ_GetCallbackInfo(data, "BestObj", values), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCallbackSolution(data, values, values), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCallbackUserCut(data, 0, nullptr, nullptr, 'L', 0.0), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCallbackLazyConstr(data, 0, nullptr, nullptr, 'L', 0.0), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCallbackUserCuts(data, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCallbackLazyConstrs(data, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), VORQ_INVALID);
  }
}

TEST_F(CallbacksTest, ProblemIsClosedToChangesInsideOfACall) {
  AddKnapsack();
  OnCall(kAll, [&](Call const&) {
    EXPECT_EQ(VORQ_Solve(prob), VORQ_INVALID);
    EXPECT_EQ(VORQ_AddCol(prob, 0.0, 0, nullptr, nullptr, 'C', 0.0, 1.0, nullptr), VORQ_INVALID);
    EXPECT_EQ(VORQ_SetCallback(prob, nullptr, 0, nullptr), VORQ_INVALID);
    auto* copy = prob;
    EXPECT_EQ(VORQ_DeleteProb(&copy), VORQ_INVALID);
    double values[3] = {};
    EXPECT_EQ(VORQ_GetSolution(prob, values), VORQ_INVALID);
  });
  EXPECT_EQ(Run(), kOptimal);
}

TEST_F(CallbacksTest, AnotherProblemCanBeSolvedInsideOfACall) {
  AddKnapsack();
  class Inner : public CallbacksTest {
   public:
    void TestBody() override {
      AddKnapsack();
      OnCall(kCandidate, [](Call const& call) { call.Lazy({2}, {1}, 'L', 0.0); });
      EXPECT_EQ(Run(), kOptimal);
      EXPECT_NEAR(Dbl("BestObj"), 9.0, 1e-9);
    }
  };
  OnCall(kRelaxation, [](Call const&) { Inner().TestBody(); });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_NEAR(Dbl("BestObj"), 15.0, 1e-9);
}

TEST_F(CallbacksTest, ProblemWithoutColumnsCanHaveACallback) {
  OnCall(kAll, [](Call const&) {});
  EXPECT_EQ(Run(), kOptimal);
}

}  // namespace
