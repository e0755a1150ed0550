// Arrays seen with another rank or stretched.
#include "ndarray/rank_change.hpp"

#include <gtest/gtest.h>

#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::NdArray;
using Vorq::NDim;
using Ints = std::vector<int>;

TEST(ArrayExpandDims, SharesTheStore) {
  auto const array = Counting<int, 2>({2, 3});
  auto const expanded = Vorq::ExpandDims(array, 1);
  EXPECT_EQ(expanded.Store(), array.Store());
  EXPECT_EQ(expanded.GetShape().ToString(0), "(2, 1, 3)");
  EXPECT_EQ(Elements(expanded), Elements(array));
}

TEST(ArrayExpandDims, FailureHoldsTheSourcesFirstElementAndTheTextWithTwoPrefixes) {
  auto const failed = Vorq::ExpandDims(OfInts<1>({2}, {7, 8}), 3);
  EXPECT_EQ(failed.GetLastError(), 3);
  EXPECT_STREQ(failed.GetErrorMessage(), "(INVALID) (INVALID) Axis is out of bounds: #axis (3) > #ND (1)");
  EXPECT_EQ(failed.GetShape().ToString(0), "(1, 1)");
  EXPECT_EQ(Elements(failed), Ints{7});
}

TEST(ArrayExpandDims, OfRankZero) {
  auto const scalar = NdArray<int, 0>::OneElement(9);
  EXPECT_EQ(Vorq::ExpandDims(scalar, 0).Store(), scalar.Store());
  EXPECT_STREQ(Vorq::ExpandDims(scalar, -1).GetErrorMessage(), "(INVALID) (INVALID) Axis is out of bounds: #axis (-1)");
}

TEST(ArraySqueeze, ReadsTheSameElements) {
  auto const column =
      NdArray<int, 2>(NDim<2>::FromAxes({Vorq::Axis{2, 3, 0}, Vorq::Axis{1, 1, 2}}), Counting<int, 2>({2, 3}).Store());
  EXPECT_EQ(Elements(column), (Ints{2, 5}));
  EXPECT_EQ(Elements(Vorq::Squeeze(column, 1)), (Ints{2, 5}));
}

TEST(ArraySqueeze, ToRankZeroAndBack) {
  auto const array = Counting<int, 1>({4});
  auto const last = NdArray<int, 1>(NDim<1>::FromAxes({Vorq::Axis{1, 1, 3}}), array.Store());
  auto const scalar = Vorq::Squeeze(last, 0);
  EXPECT_EQ(scalar.Get(0), 3);
  EXPECT_EQ(Vorq::ExpandDims(scalar, 0).Get(0), 3);
}

TEST(ArraySqueeze, FailureHoldsTheSourcesFirstElement) {
  auto const failed = Vorq::Squeeze(OfInts<2>({2, 1}, {7, 8}), 0);
  EXPECT_STREQ(failed.GetErrorMessage(), "(INVALID) (INVALID) Dimension size at axis 0 is not one (2)");
  EXPECT_EQ(Elements(failed), Ints{7});
}

TEST(ArrayDiagonal, IsAViewOfTheSource) {
  auto const array = Counting<int, 2>({3, 4});
  auto above = Vorq::Diagonal(array, 1, 0, 1);
  EXPECT_EQ(Elements(above), (Ints{1, 6, 11}));
  EXPECT_EQ(Elements(Vorq::Diagonal(array, -1, 0, 1)), (Ints{4, 9}));
  EXPECT_EQ(Elements(Vorq::Diagonal(array, 3, 1, 0)), Ints{3});
  above.Set(0, 50);
  EXPECT_EQ(array.Get(1), 50);
}

TEST(ArrayDiagonal, OfRankThree) {
  auto const array = Counting<int, 3>({2, 2, 3});
  EXPECT_EQ(Elements(Vorq::Diagonal(array, 0, 0, 1)), (Ints{0, 9, 1, 10, 2, 11}));
  EXPECT_EQ(Elements(Vorq::Diagonal(array, 1, 1, 2)), (Ints{1, 5, 7, 11}));
}

TEST(ArrayDiagonal, FailureHoldsTheSourcesFirstElementAndTheTextWithOnePrefix) {
  auto const failed = Vorq::Diagonal(OfInts<2>({1, 2}, {7, 8}), 2, 0, 1);
  EXPECT_STREQ(failed.GetErrorMessage(), "(INVALID) Offset (2) is out of bounds: dimensions (2) at axis2");
  EXPECT_EQ(Elements(failed), Ints{7});
}

TEST(ArrayRepeatElement, AllPositionsReadOneElement) {
  auto repeated = Vorq::RepeatElement(7, 3);
  EXPECT_EQ(Elements(repeated), (Ints{7, 7, 7}));
  EXPECT_EQ(repeated.GetShape().ToString(Vorq::kStrides), "(0)");
  repeated.Set(1, 8);
  EXPECT_EQ(Elements(repeated), (Ints{8, 8, 8}));
}

TEST(ArrayRepeatElement, AnyNumberOfTimes) {
  EXPECT_EQ(Vorq::RepeatElement(7, 0).GetSize(), 0U);
  EXPECT_EQ(Vorq::RepeatElement(7, ~0ULL).Get(~0ULL - 1), 7);
}

}  // namespace
