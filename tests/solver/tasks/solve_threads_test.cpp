// Solving, interrupting and refusing from several threads.
#include <chrono>
#include <thread>

#include "tests/solver/engines/solve_fixture.hpp"
#include "tests/solver/tasks/two_threads.hpp"

namespace {

using SolveThreadsTest = SolveTest;

TEST_F(SolveThreadsTest, InterruptFromAnotherThreadStopsWithinTwoSeconds) {
  AddMarketSplit(5, 40);
  Set("TimeLimit", 60.0);
  std::chrono::steady_clock::time_point asked;
  std::jthread const other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(700));
    asked = std::chrono::steady_clock::now();
    EXPECT_EQ(VORQ_Interrupt(prob), VORQ_OK);
  });
  EXPECT_EQ(Solve(), kInterrupted);
  EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - asked).count(), 2.0);
}

TEST_F(SolveThreadsTest, ProblemCannotChangeOrSolveAgainDuringASolve) {
  AddMarketSplit(5, 40);
  Set("TimeLimit", 1.0);
  std::jthread const other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_EQ(VORQ_Solve(prob), VORQ_INVALID);
    EXPECT_EQ(VORQ_SetSlackBasis(prob), VORQ_INVALID);
    int const column = 0;
    char const* const name = "late";
    EXPECT_EQ(VORQ_SetColNames(prob, 1, &column, &name), VORQ_INVALID);
  });
  EXPECT_EQ(Solve(), kTimeLimit);
  int index = 0;
  EXPECT_EQ(VORQ_GetColIdx(prob, "late", &index), VORQ_INVALID);
}

TEST(TwoProblems, SolveInTwoThreads) {
  class One : public SolveTest {
   public:
    void TestBody() override {
      AddMarketSplit(2, 20);
      Set("RelGap", 0.0);
      EXPECT_EQ(Solve(), kOptimal);
      objective = Dbl("BestObj");
    }
    double objective = -1.0;
  };
  ExpectSameInTwoThreads<One>();
}

}  // namespace
