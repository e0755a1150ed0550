// Pick and PickAt.
#include <gtest/gtest.h>

#include "ndarray/nd_array_operations.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::NdArray;
using Vorq::NDim;
using Ints = std::vector<int>;

TEST(Pick, GathersByFlatIndex) {
  auto const array = Counting<int, 2>({2, 3});
  auto const indices = OfInts<1>({4}, {4, 0, 4, 5});
  EXPECT_EQ(Elements(array.Pick(indices)), (Ints{4, 0, 4, 5}));
  EXPECT_EQ(Elements(array.Transpose().Pick(indices)), (Ints{2, 0, 2, 5}));
  EXPECT_EQ(Elements(Counting<int, 3>({2, 2, 2}).Transpose().Pick(indices)), (Ints{1, 0, 1, 5}));
}

TEST(Pick, GivesACompactArrayOfItsOwn) {
  auto const array = Counting<int, 1>({3});
  auto picked = array.Pick(OfInts<1>({1}, {2}));
  picked.Set(0, 9);
  EXPECT_EQ(array.Get(2), 2);
  EXPECT_EQ(picked.GetShape().ToString(1), "(1)");
}

TEST(Pick, ReadsIndicesThroughTheirOwnStrides) {
  auto const indices = OfInts<1>({3}, {0, 1, 2});
  auto const backwards = NdArray<int, 1>(NDim<1>::FromAxes({Vorq::Axis{3, -1, 2}}), indices.Store());
  EXPECT_EQ(Elements(Counting<int, 1>({5}).Pick(backwards)), (Ints{2, 1, 0}));
}

TEST(Pick, StartsWhereALateViewStarts) {
  auto const array = Counting<int, 1>({6});
  auto const late = NdArray<int, 1>(NDim<1>::FromAxes({Vorq::Axis{3, 1, 3}}), array.Store());
  EXPECT_EQ(Elements(late.Pick(OfInts<1>({2}, {2, 0}))), (Ints{5, 3}));
  // A negative index is not counted from the end: here it stays in the store.
  EXPECT_EQ(Elements(late.Pick(OfInts<1>({1}, {-1}))), (Ints{2}));
}

TEST(Pick, OfNoIndices) {
  EXPECT_EQ((Counting<int, 1>({3}).Pick(Counting<int, 1>({0})).GetSize()), 0U);
}

TEST(Pick, OfRankZeroRepeatsItsElement) {
  auto const scalar = NdArray<int, 0>::OneElement(9);
  auto picked = scalar.Pick(OfInts<1>({3}, {5, -7, 100}));
  EXPECT_EQ(Elements(picked), (Ints{9, 9, 9}));
  EXPECT_EQ(picked.GetShape().ToString(1), "(0)");
  EXPECT_NE(picked.Store(), scalar.Store());
  picked.Set(1, 4);
  EXPECT_EQ(Elements(picked), (Ints{4, 4, 4}));
  EXPECT_EQ(scalar.Get(0), 9);
}

TEST(PickAt, GathersByCoordinates) {
  auto const array = Counting<int, 3>({2, 3, 4});
  auto const coords = OfInts<2>({3, 3}, {0, 0, 0, 1, 2, 3, 1, 0, 2});
  EXPECT_EQ(Elements(array.PickAt(coords)), (Ints{0, 23, 14}));
  EXPECT_EQ(Elements(Counting<int, 1>({5}).PickAt(OfInts<2>({2, 1}, {4, 1}))), (Ints{4, 1}));
}

TEST(PickAt, ReadsBothArraysThroughTheirStrides) {
  auto const array = Counting<int, 2>({3, 2}).Transpose();
  auto const coords = OfInts<2>({2, 2}, {0, 1, 2, 1}).Transpose();
  // The rows of the transposed coordinates are (0, 2) and (1, 1).
  EXPECT_EQ(Elements(array.PickAt(coords)), (Ints{4, 3}));
}

TEST(PickAt, OfRankZeroRepeatsItsElement) {
  auto const picked = NdArray<int, 0>::OneElement(9).PickAt(Counting<int, 2>({3, 2}));
  EXPECT_EQ(Elements(picked), (Ints{9, 9, 9}));
  EXPECT_EQ(picked.GetShape().ToString(1), "(0)");
}

TEST(PickAt, AxesWithoutACoordinateAreReadAtTheirStart) {
  auto const array = Counting<int, 2>({2, 3});
  EXPECT_EQ(Elements(array.PickAt(OfInts<2>({2, 1}, {1, 0}))), (Ints{3, 0}));
  EXPECT_EQ(Elements(array.PickAt(OfInts<2>({1, 0}, {}))), (Ints{0}));
}

TEST(PickAt, CoordinatesInExcessAreLeftOut) {
  EXPECT_EQ(Elements(Counting<int, 2>({2, 3}).PickAt(OfInts<2>({1, 3}, {1, 2, 7}))), (Ints{5}));
}

TEST(PickAtScalars, CountsNegativeCoordinatesFromTheEnd) {
  auto const array = Counting<int, 2>({2, 3});
  EXPECT_EQ(Elements(array.PickAtScalars(OfInts<2>({3, 2}, {-1, -1, 0, -3, 1, 1}))), (Ints{5, 0, 4}));
}

TEST(PickAtScalars, RowWithTooManyEntriesPicksTheFirstElement) {
  EXPECT_EQ(Elements(Counting<int, 2>({2, 3}).PickAtScalars(OfInts<2>({1, 3}, {1, 2, 0}))), (Ints{0}));
}

}  // namespace
