// Callbacks and other threads.
#include <atomic>
#include <chrono>
#include <thread>

#include "tests/solver/tasks/callback_fixture.hpp"
#include "tests/solver/tasks/two_threads.hpp"

namespace {

using CallbackThreadsTest = CallbackTest;

TEST_F(CallbackThreadsTest, InterruptFromAnotherThreadStopsWithinTwoSeconds) {
  AddMarketSplit(5, 40);
  Set("TimeLimit", 60.0);
  OnCall(kAll, [](Call const&) {});
  std::chrono::steady_clock::time_point asked;
  std::jthread const other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(700));
    asked = std::chrono::steady_clock::now();
    EXPECT_EQ(VORQ_Interrupt(prob), VORQ_OK);
  });
  EXPECT_EQ(Run(), kInterrupted);
  EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - asked).count(), 2.0);
}

TEST_F(CallbackThreadsTest, CallbackDataIsOfNoUseInAnotherThread) {
  AddMarketSplit(2, 10);
  OnCall(kRelaxation, [](Call const& call) {
    std::jthread const other([data = call.data] {
      int nodes = 0;
      EXPECT_EQ(VORQ_GetCallbackInfo(data, "NodeCnt", &nodes), VORQ_INVALID);
      EXPECT_EQ(VORQ_AddCallbackLazyConstr(data, 0, nullptr, nullptr, 'L', 0.0), VORQ_INVALID);
    });
  });
  EXPECT_EQ(Run(), kOptimal);
  EXPECT_GE(calls[kRelaxation], 1);
}

TEST_F(CallbackThreadsTest, OneCallAtATime) {
  AddMarketSplit(2, 16);
  std::atomic<int> inside = 0;
  OnCall(kAll, [&](Call const& call) {
    EXPECT_EQ(++inside, 1);
    call.Offer(std::vector<double>(static_cast<std::size_t>(20), VORQ_UNDEFINED));
    --inside;
  });
  EXPECT_EQ(Run(), kOptimal);
}

TEST(TwoProblemsWithCallbacks, SolveInTwoThreads) {
  class One : public CallbackTest {
   public:
    void TestBody() override {
      AddMarketSplit(2, 18);
      Set("RelGap", 0.0);
      OnCall(kAll, [](Call const& call) {
        if (call.context == kCandidate && call.Vector("MipCandidate")[0] > 0.5) call.Lazy({0}, {1}, 'L', 0.0);
      });
      EXPECT_EQ(Run(), kOptimal);
      objective = Dbl("BestObj");
    }
    double objective = -1.0;
  };
  ExpectSameInTwoThreads<One>();
}

}  // namespace
