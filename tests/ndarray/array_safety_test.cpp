// Arrays without elements or without a store, and shapes that do not fit: nothing outside of the store is read.
#include <gtest/gtest.h>

#include <array>
#include <new>

#include "ndarray/view.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::Axis;
using Vorq::NdArray;
using Vorq::NDim;
using Ints = std::vector<int>;

TEST(EmptyArray, ReadsDefaultsAndIgnoresWrites) {
  auto array = Counting<int, 2>({3, 0});
  EXPECT_EQ(array.Get(0), 0);
  EXPECT_EQ(array.Get(7), 0);
  array.Set(0, 5);
  array.Fill(5);
  EXPECT_EQ(array.Get(0), 0);
}

TEST(EmptyArray, FailuresHoldADefaultElement) {
  Vorq::View view;
  view.Full();
  view.Full();
  auto const failed = Counting<int, 1>({0}).View(view);
  EXPECT_EQ(Elements(failed), Ints{0});
  EXPECT_STREQ(failed.GetErrorMessage(), "(INVALID) View has more operations than #ND (1)");
}

TEST(EmptyArray, StaysEmptyUnderEachOperation) {
  auto const array = Counting<int, 3>({2, 0, 3});
  EXPECT_EQ(array.Flatten().GetSize(), 0U);
  EXPECT_EQ(array.Transpose().Flatten().GetSize(), 0U);
  EXPECT_EQ(array.Repeat(4, 1).GetShape().ToString(0), "(2, 0, 3)");
  EXPECT_EQ(array.RepeatBlock(4, 0).GetShape().ToString(0), "(8, 0, 3)");
}

TEST(EmptyArray, GathersDefaults) {
  auto const array = Counting<int, 1>({0});
  EXPECT_EQ(Elements(array.Pick(Counting<int, 1>({2}))), (Ints{0, 0}));
  EXPECT_EQ(Elements(array.PickAt(Counting<int, 2>({2, 1}))), (Ints{0, 0}));
}

TEST(StorelessArray, KeepsItsSizesAndReadsDefaults) {
  NdArray<int, 2> array(NDim<2>({2, 2}), {});
  EXPECT_EQ(array.GetSize(), 4U);
  EXPECT_EQ(Elements(array), (Ints{0, 0, 0, 0}));
  array.Set(1, 5);
  array.Fill(5);
  EXPECT_EQ(array.Get(1), 0);
  EXPECT_EQ(Vorq::Sum(array).Get(0), 0);
  EXPECT_EQ(Vorq::ToString(array, 100), "[[0, 0]\n [0, 0]\n]\n");
}

TEST(StorelessArray, GivesArraysOfDefaults) {
  NdArray<int, 2> const array(NDim<2>({2, 2}), {});
  EXPECT_EQ(Elements(array.Flatten()), (Ints{0, 0, 0, 0}));
  EXPECT_EQ(Elements(array.Transpose().Flatten()), (Ints{0, 0, 0, 0}));
  EXPECT_EQ(Elements(array.Reshape(NDim<1>({4}))), (Ints{0, 0, 0, 0}));
  EXPECT_EQ(Elements(array.Repeat(2, 0)), (Ints{0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(Elements(array.Pick(Counting<int, 1>({2}))), (Ints{0, 0}));
  EXPECT_EQ(Elements(array.PickAt(Counting<int, 2>({2, 2}))), (Ints{0, 0}));
}

TEST(StorelessArray, AsIndicesPicksTheFirstElement) {
  auto const array = Counting<int, 1>({3});
  EXPECT_EQ(Elements(array.Pick(NdArray<int, 1>(NDim<1>({2}), {}))), (Ints{0, 0}));
  EXPECT_EQ(Elements(array.PickAt(NdArray<int, 2>(NDim<2>({2, 1}), {}))), (Ints{0, 0}));
}

// Indices of views are not checked.
TEST(ViewBeyondTheStore, IsAnArrayOfItsOwnWithDefaultsForMissingElements) {
  auto array = OfInts<1>({3}, {5, 6, 7});
  Vorq::View view;
  view.Slice(-10, 2, 1, 1);
  auto partly = array.View(view);
  EXPECT_EQ(Elements(partly), (Ints{0, 5, 6}));
  partly.Fill(7);
  EXPECT_EQ(Elements(partly), (Ints{7, 7, 7}));
  EXPECT_EQ(Elements(array), (Ints{5, 6, 7}));
}

TEST(ViewBeyondTheStore, OfAnEmptyArrayHasDefaults) {
  Vorq::View view;
  view.Slice(0, 5, 1, 0);
  auto const five = Counting<int, 1>({0}).View(view);
  EXPECT_EQ(Elements(five.Repeat(1, 0)), (Ints{0, 0, 0, 0, 0}));
}

TEST(ViewBeyondTheStore, ReadsDefaultsAndWritesNothing) {
  auto const array = Counting<int, 1>({3});
  Vorq::View view;
  view.Scalar(5);
  auto beyond = array.View(view);
  EXPECT_EQ(beyond.Get(0), 0);
  EXPECT_EQ(Elements(beyond), Ints{0});
  EXPECT_EQ(Vorq::Sum(beyond).Get(0), 0);
  EXPECT_EQ(Elements(beyond.Repeat(2, 0)), (Ints{0, 0}));
  EXPECT_EQ(Vorq::ToString(beyond, 100), "[0]\n");
  beyond.Set(0, 7);
  beyond.Fill(7);
  EXPECT_EQ(Elements(array), (Ints{0, 1, 2}));
}

TEST(ViewBeyondTheStore, AsCoordinatesReadsZeros) {
  auto const array = Counting<int, 1>({3});
  Vorq::View view;
  view.Scalar(5);
  auto const coords = Counting<int, 2>({2, 1}).View(view);
  EXPECT_EQ(Elements(array.PickAt(coords)), Ints{0});
}

// Indices of gathering are not checked either.
TEST(PickBeyondTheStore, ReadsDefaults) {
  auto const array = NdArray<int, 1>::Filled(NDim<1>({3}), 4);
  auto const indices = NdArray<int, 1>::Generated(NDim<1>({3}), [](std::uint64_t i) {
    return std::array{-1, 1, 3}[i];
  });
  EXPECT_EQ(Elements(array.Pick(indices)), (Ints{0, 4, 0}));
  auto const column = indices.Reshape(NDim<2>({3, 1}));
  EXPECT_EQ(Elements(array.PickAt(column)), (Ints{0, 4, 0}));
  auto const square = NdArray<int, 2>::Filled(NDim<2>({2, 2}), 4).Transpose();
  EXPECT_EQ(Elements(square.Pick(NdArray<int, 1>::Filled(NDim<1>({1}), 9))), Ints{0});
}

TEST(Reshape, ToAShapeThatReachesBeyondTheStoreHasDefaults) {
  auto const array = OfInts<1>({3}, {5, 6, 7});
  EXPECT_EQ(Elements(array.Reshape(NDim<1>::FromAxes({Axis{3, 2, 0}}))), (Ints{5, 7, 0}));
  EXPECT_EQ(Elements(array.Reshape(NDim<1>::FromAxes({Axis{3, -1, 1}}))), (Ints{6, 5, 0}));
  EXPECT_EQ(Elements(array.Reshape(NDim<1>::FromAxes({Axis{3, -1, 2}}))), (Ints{7, 6, 5}));
}

TEST(Reshape, ToSizesWhoseProductWrapsAroundFails) {
  auto const failed = Counting<int, 1>({6}).Reshape(NDim<2>({(1ULL << 63) + 3, 2}));
  EXPECT_STREQ(failed.GetErrorMessage(),
               "(INVALID) Cannot reshape NdArray of size 6 to new shape (9223372036854775811, 2)");
}

TEST(Repeat, BeyondAllMemoryThrowsTheAllocationFailure) {
  auto const array = Counting<int, 2>({2, 3});
  EXPECT_THROW(static_cast<void>(array.Repeat(1ULL << 63, 0)), std::bad_alloc);
  EXPECT_THROW(static_cast<void>(array.Repeat(1ULL << 61, 1)), std::bad_alloc);
}

}  // namespace
