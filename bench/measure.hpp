// Measuring processor time, peak memory and allocations, each in a child process of its own.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

namespace bench {

// What a piece of work took.
struct Cost {
  double seconds = 0.0;          // of processor time
  double peakBytes = 0.0;        // growth of the resident peak
  std::int64_t allocations = 0;  // with operator new
};

// Runs `work` in a forked child, so that each measurement starts with the memory of a fresh process, and the
// measurements of a run can be taken in turn. `work` may look at what it made through `check`, which is not measured;
// the program ends when `check` says no.
Cost Measure(std::function<void()> const& work, std::function<bool()> const& check = {});

// The cost of one pass of `work` over operands that the process has touched before: a forked child pays once for its
// copies of the operands' pages. Peak and allocations are those of the first pass.
Cost MeasurePass(std::function<void()> const& work);

// The medians of the costs.
Cost Median(std::vector<Cost> const& costs);

}  // namespace bench
