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

TEST(Map, GivesACompactArrayOfTheResultType) {
  auto const halves = Vorq::Map<double>(Counting<int, 2>({2, 2}).Transpose(), [](int x) { return 0.5 * x; });
  EXPECT_EQ(Elements(halves), (std::vector<double>{0.0, 1.0, 0.5, 1.5}));
  EXPECT_TRUE(halves.GetShape().IsContiguous());
}

TEST(Combine, TakesElementsAtTheSamePlace) {
  auto const a = Counting<int, 2>({2, 3});
  auto const b = OfInts<2>({3, 2}, {10, 40, 20, 50, 30, 60}).Transpose();
  EXPECT_EQ(Elements(Vorq::Combine<int>(a, b, std::plus())), (Ints{10, 21, 32, 43, 54, 65}));
  EXPECT_EQ(Elements(Vorq::Combine<int>(b, a, std::minus())), (Ints{10, 19, 28, 37, 46, 55}));
}

TEST(Combine, OfStretchedArraysOnEitherSide) {
  auto const a = Counting<int, 2>({2, 3});
  auto const row = Vorq::Broadcast(OfInts<1>({3}, {10, 20, 30}), a.GetShape());
  auto const column = Vorq::Broadcast(OfInts<2>({2, 1}, {100, 200}), a.GetShape());
  EXPECT_EQ(Elements(Vorq::Combine<int>(a, row, std::plus())), (Ints{10, 21, 32, 13, 24, 35}));
  EXPECT_EQ(Elements(Vorq::Combine<int>(a, column, std::plus())), (Ints{100, 101, 102, 203, 204, 205}));
  EXPECT_EQ(Elements(Vorq::Combine<int>(column, a, std::minus())), (Ints{100, 99, 98, 197, 196, 195}));
  EXPECT_EQ(Elements(Vorq::Combine<int>(column, column, std::plus())), (Ints{200, 200, 200, 400, 400, 400}));
}

TEST(Combine, ConvertsToTheResultType) {
  auto const sum = Vorq::Combine<double>(Counting<int, 1>({2}), Counting<double, 1>({2}),
                                         [](double a, double b) { return a + b / 2; });
  EXPECT_EQ(Elements(sum), (std::vector<double>{0.0, 1.5}));
}

TEST(Combine, OfAnArrayWithoutAStoreTakesDefaults) {
  NdArray<int, 1> const none(NDim<1>({2}), {});
  EXPECT_EQ(Elements(Vorq::Combine<int>(none, Counting<int, 1>({2}), std::plus())), (Ints{0, 1}));
  EXPECT_EQ((Vorq::Combine<int>(Counting<int, 1>({0}), Counting<int, 1>({0}), std::plus()).GetSize()), 0U);
}

}  // namespace
