// Walks through shapes, and functions over whole arrays.
#include "ndarray/elementwise.hpp"

#include <gtest/gtest.h>

#include <functional>

#include "ndarray/rank_change.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Run;
using Ints = std::vector<int>;

template <int N>
std::vector<std::int64_t> Positions(NDim<N> const& shape, int* runs) {
  std::vector<std::int64_t> positions;
  *runs = 0;
  Vorq::ForEachRun(
      [&](std::uint64_t count, Run run) {
        ++*runs;
        for (std::uint64_t i = 0; i < count; ++i) {
          positions.push_back(run.start + static_cast<std::int64_t>(i) * run.stride);
        }
      },
      shape);
  return positions;
}

template <int N>
void ExpectWalk(NDim<N> const& shape, int expectedRuns) {
  int runs = 0;
  std::vector<std::int64_t> expected;
  for (std::uint64_t i = 0; i < shape.GetSize(); ++i) expected.push_back(shape.Position(i));
  EXPECT_EQ(Positions(shape, &runs), expected);
  EXPECT_EQ(runs, expectedRuns);
}

TEST(ForEachRun, PassesAContiguousShapeInOneRun) {
  ExpectWalk(NDim<0>(), 1);
  ExpectWalk(NDim<1>({5}), 1);
  ExpectWalk(NDim<2>({3, 4}), 1);
  ExpectWalk(NDim<3>({2, 3, 4}), 1);
}

TEST(ForEachRun, PassesOtherShapesAlongTheLastAxis) {
  ExpectWalk(NDim<1>::FromAxes({Vorq::Axis{5, -2, 9}}), 1);
  ExpectWalk(NDim<2>({3, 4}).Transpose(), 4);
  ExpectWalk(NDim<3>({2, 3, 4}).Transpose(), 12);
  ExpectWalk(NDim<1>({4}).Broadcast(NDim<3>({2, 3, 4})), 6);
}

TEST(ForEachRun, VisitsNothingOfAnEmptyShape) {
  ExpectWalk(NDim<1>({0}), 0);
  ExpectWalk(NDim<3>({2, 0, 4}).Transpose(), 0);
}

}  // namespace
