// Two problems at once in two threads: both end as one alone does.
#pragma once

#include <gtest/gtest.h>

#include <thread>

// Test is a fixture with a TestBody that solves, and the `objective` that it found.
template <class Test>
void ExpectSameInTwoThreads() {
  Test alone;
  alone.TestBody();
  Test first;
  Test second;
  {
    std::jthread const a([&] { first.TestBody(); });
    std::jthread const b([&] { second.TestBody(); });
  }
  EXPECT_NEAR(first.objective, alone.objective, 1e-6);
  EXPECT_NEAR(second.objective, alone.objective, 1e-6);
}
