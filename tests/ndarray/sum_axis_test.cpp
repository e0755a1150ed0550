// Sums of arrays of numbers along one axis.
#include "ndarray/sum_axis.hpp"

#include <gtest/gtest.h>

#include <limits>

#include "ndarray/rank_change.hpp"
#include "ndarray/view.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::Axis;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::SumAxis;
using Ints = std::vector<int>;

TEST(ArraySumAxis, OfRankTwo) {
  auto const array = OfInts<2>({2, 3}, {1, 2, 3, 4, 5, 6});
  auto const columns = SumAxis(array, 0);
  EXPECT_EQ(columns.GetShape().ToString(Vorq::kSizes), "(3)");
  EXPECT_EQ(Elements(columns), (Ints{5, 7, 9}));
  auto const rows = SumAxis(array, 1);
  EXPECT_EQ(rows.GetShape().ToString(Vorq::kSizes), "(2)");
  EXPECT_EQ(Elements(rows), (Ints{6, 15}));
}

TEST(ArraySumAxis, OfRankThree) {
  auto const array = Counting<int, 3>({2, 3, 2});
  EXPECT_EQ(Elements(SumAxis(array, 0)), (Ints{6, 8, 10, 12, 14, 16}));
  EXPECT_EQ(Elements(SumAxis(array, 1)), (Ints{6, 9, 24, 27}));
  EXPECT_EQ(Elements(SumAxis(array, 2)), (Ints{1, 5, 9, 13, 17, 21}));
  EXPECT_EQ(SumAxis(array, 1).GetShape().ToString(Vorq::kSizes), "(2, 2)");
  EXPECT_EQ(SumAxis(array, 1).GetShape().ToString(Vorq::kStrides), "(2, 1)");
}

TEST(ArraySumAxis, OfRankOneGivesRankZero) {
  NdArray<int, 0> const sum = SumAxis(OfInts<1>({3}, {1, 2, 3}), 0);
  EXPECT_EQ(sum.Get(0), 6);
}

TEST(ArraySumAxis, OfStridedArrays) {
  auto const array = Counting<int, 3>({2, 3, 2});
  EXPECT_EQ(Elements(SumAxis(array.Transpose(), 0)), (Ints{1, 13, 5, 17, 9, 21}));
  EXPECT_EQ(Elements(SumAxis(array.Transpose(), 2)), (Ints{6, 10, 14, 8, 12, 16}));
  Vorq::View view;
  view.Scalar(1);
  view.Slice(0, 0, -2, Vorq::Slice::kStartOmitted | Vorq::Slice::kStopOmitted);
  auto const part = array.View(view);  // 10, 11 over 6, 7
  EXPECT_EQ(Elements(SumAxis(part, 0)), (Ints{10, 11, 6, 7}));
  EXPECT_EQ(Elements(SumAxis(part, 1)), (Ints{16, 18}));
  EXPECT_EQ(Elements(SumAxis(part, 2)), (Ints{21, 13}));
}

TEST(ArraySumAxis, OfStretchedArrays) {
  auto const stretched = arrays::Stretched(OfInts<1>({2}, {7, 8}), NDim<2>({3, 2}));
  EXPECT_EQ(Elements(SumAxis(stretched, 0)), (Ints{21, 24}));
  EXPECT_EQ(Elements(SumAxis(stretched, 1)), (Ints{15, 15, 15}));
  EXPECT_EQ(SumAxis(Vorq::RepeatElement(5, 4), 0).Get(0), 20);
}

TEST(ArraySumAxis, OffsetsOfAllLevelsCount) {
  auto const store = Counting<int, 1>({12}).Store();
  NdArray<int, 2> const array(NDim<2>::FromAxes({Axis{2, 4, 1}, Axis{2, 1, 2}}, 1), store);
  EXPECT_EQ(Elements(array), (Ints{4, 5, 8, 9}));
  EXPECT_EQ(Elements(SumAxis(array, 0)), (Ints{12, 14}));
  EXPECT_EQ(Elements(SumAxis(array, 1)), (Ints{9, 17}));
}

TEST(ArraySumAxis, OfNothingIsZero) {
  EXPECT_EQ(Elements(SumAxis(Counting<int, 2>({0, 3}), 0)), (Ints{0, 0, 0}));
  EXPECT_EQ(SumAxis(Counting<int, 2>({0, 3}), 1).GetSize(), 0U);
  EXPECT_EQ(SumAxis(Counting<double, 1>({0}), 0).Get(0), 0.0);
}

TEST(ArraySumAxis, PositionsWithoutAnElementCountAsZero) {
  Vorq::View view;
  view.Slice(-10, 2, 1, 1);
  EXPECT_EQ(SumAxis(OfInts<1>({3}, {7, 8, 9}).View(view), 0).Get(0), 15);
  EXPECT_EQ(Elements(SumAxis(NdArray<int, 2>(NDim<2>({3, 2}), {}), 0)), (Ints{0, 0}));
}

TEST(ArraySumAxis, AddsInCoordinateOrder) {
  auto const array = NdArray<double, 2>::Generated(
      NDim<2>({4, 2}), [](std::uint64_t i) { return i % 2 == 0 ? 1e16 : (i == 3 ? -1e16 : 1.0); });
  auto const column =
      NdArray<double, 1>::Generated(NDim<1>({4}), [&](std::uint64_t i) { return array.Get(2 * i + 1); });
  EXPECT_EQ(SumAxis(column, 0).Get(0), 1.0 - 1e16 + 1.0 + 1.0);
  EXPECT_EQ(SumAxis(array, 0).Get(1), 1.0 - 1e16 + 1.0 + 1.0);
}

TEST(ArraySumAxis, WholeNumbersWrapAround) {
  constexpr int kMax = std::numeric_limits<int>::max();
  EXPECT_EQ(SumAxis(OfInts<1>({2}, {kMax, 1}), 0).Get(0), std::numeric_limits<int>::min());
  constexpr long long kLongMax = std::numeric_limits<long long>::max();
  EXPECT_EQ(SumAxis(NdArray<long long, 2>::Filled(NDim<2>({2, 1}), kLongMax), 0).Get(0), -2);
}

TEST(ArraySumAxis, MoreElementsThanCanBeCountedAreRefused) {
  auto const sum = SumAxis(Vorq::RepeatElement(5, 1ULL << 63), 0);
  EXPECT_EQ(sum.GetLastError(), 3);
  EXPECT_STREQ(sum.GetErrorMessage(), "(INVALID) Array of shape (9223372036854775808) is too large to be summed");
  EXPECT_EQ(sum.Get(0), 0);
  EXPECT_EQ(SumAxis(Vorq::ExpandDims(Vorq::RepeatElement(5, 1ULL << 63), 1), 1).GetLastError(), 3);
}

TEST(ArraySumAxis, AnAxisThatThereIsNot) {
  auto const array = OfInts<2>({1, 2}, {7, 8});
  auto const negative = SumAxis(array, -1);
  EXPECT_EQ(negative.GetLastError(), 3);
  EXPECT_STREQ(negative.GetErrorMessage(), "(INVALID) Axis is negative (-1)");
  EXPECT_EQ(negative.GetShape().ToString(Vorq::kSizes), "(1)");
  EXPECT_EQ(Elements(negative), Ints{0});
  EXPECT_STREQ(SumAxis(array, 2).GetErrorMessage(), "(INVALID) Axis is out of bounds: #axis (2) >= #ND (2)");
}

}  // namespace
