// Random numbers that are the same everywhere.
#pragma once

#include <cstdint>

class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed * 6364136223846793005ULL + 1442695040888963407ULL) {
    for (int i = 0; i < 8; ++i) Next();
  }

  // From `low` to `high`, both included.
  int Int(int low, int high) { return low + static_cast<int>(Next() % static_cast<std::uint32_t>(high - low + 1)); }
  bool Chance(int percent) { return Int(1, 100) <= percent; }

 private:
  std::uint32_t Next() {
    state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<std::uint32_t>(state_ >> 33);
  }

  std::uint64_t state_;
};
