// Arrays of numbers put one behind the other.
#include "ndarray/concat.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <new>

#include "ndarray/rank_change.hpp"
#include "ndarray/view.hpp"
#include "ndarray/with_elements.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::Axis;
using Vorq::NdArray;
using Vorq::NDim;
using Ints = std::vector<int>;

template <class Left, class Right, int N>
NdArray<int, N> Concat(NdArray<Left, N> const& left, NdArray<Right, N> const& right, int axis) {
  return Vorq::Concat<int>(left, right, axis, [](auto element) { return static_cast<int>(element); });
}

TEST(ArrayConcat, AlongEachAxis) {
  auto const a = OfInts<2>({2, 2}, {1, 2, 3, 4});
  auto const b = OfInts<2>({2, 2}, {5, 6, 7, 8});
  auto const rows = Concat(a, b, 0);
  EXPECT_EQ(rows.GetShape().ToString(Vorq::kSizes), "(4, 2)");
  EXPECT_EQ(Elements(rows), (Ints{1, 2, 3, 4, 5, 6, 7, 8}));
  auto const columns = Concat(a, b, 1);
  EXPECT_EQ(columns.GetShape().ToString(Vorq::kSizes), "(2, 4)");
  EXPECT_EQ(Elements(columns), (Ints{1, 2, 5, 6, 3, 4, 7, 8}));
}

TEST(ArrayConcat, AlongTheMiddleAxisOfThree) {
  auto const result = Concat(Counting<int, 3>({2, 1, 2}), OfInts<3>({2, 2, 2}, {10, 11, 12, 13, 14, 15, 16, 17}), 1);
  EXPECT_EQ(result.GetShape().ToString(Vorq::kSizes), "(2, 3, 2)");
  EXPECT_EQ(Elements(result), (Ints{0, 1, 10, 11, 12, 13, 2, 3, 14, 15, 16, 17}));
}

TEST(ArrayConcat, NegativeAxisCountsFromTheEnd) {
  auto const a = Counting<int, 2>({2, 3});
  auto const b = Counting<int, 2>({2, 4});
  EXPECT_EQ(Concat(a, b, -1).GetShape().ToString(Vorq::kSizes), "(2, 7)");
  EXPECT_EQ(Elements(Concat(a, b, -1)), Elements(Concat(a, b, 1)));
  EXPECT_EQ(Concat(a, a, -2).GetShape().ToString(Vorq::kSizes), "(4, 3)");
}

TEST(ArrayConcat, ReadsStridedOperandsInFlatOrder) {
  auto const a = OfInts<2>({2, 3}, {1, 2, 3, 4, 5, 6}).Transpose();
  Vorq::View reversed;
  reversed.Slice(0, 0, -1, Vorq::Slice::kStartOmitted | Vorq::Slice::kStopOmitted);
  EXPECT_EQ(Elements(Concat(a, a.View(reversed), 0)), (Ints{1, 4, 2, 5, 3, 6, 3, 6, 2, 5, 1, 4}));
  auto const stretched = arrays::Stretched(OfInts<1>({2}, {7, 8}), NDim<2>({3, 2}));
  EXPECT_EQ(Elements(Concat(a, stretched, 1)), (Ints{1, 4, 7, 8, 2, 5, 7, 8, 3, 6, 7, 8}));
}

TEST(ArrayConcat, TheResultIsCompactAndHasAStoreOfItsOwn) {
  auto const a = OfInts<1>({1}, {1});
  auto result = Concat(a, Counting<int, 1>({0}), 0);
  EXPECT_EQ(result.GetShape().ToString(Vorq::kStrides), "(1)");
  result.Set(0, 5);
  EXPECT_EQ(a.Get(0), 1);
}

TEST(ArrayConcat, EmptyOperands) {
  auto const none = Counting<int, 2>({0, 3});
  EXPECT_EQ(Elements(Concat(none, OfInts<2>({1, 3}, {1, 2, 3}), 0)), (Ints{1, 2, 3}));
  EXPECT_EQ(Elements(Concat(OfInts<2>({1, 3}, {1, 2, 3}), none, 0)), (Ints{1, 2, 3}));
  auto const empty = Concat(none, none, 1);
  EXPECT_EQ(empty.GetShape().ToString(Vorq::kSizes), "(0, 6)");
  EXPECT_EQ(empty.GetLastError(), 0);
}

TEST(ArrayConcat, AnAxisThatThereIsNot) {
  auto const a = OfInts<2>({1, 2}, {7, 8});
  for (int axis : {2, -3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    auto const failed = Concat(a, a, axis);
    EXPECT_EQ(failed.GetLastError(), 3);
    EXPECT_EQ(failed.GetErrorMessage(),
              "(INVALID) Axis " + std::to_string(axis) + " is out of bounds for array of dimensions 2");
    EXPECT_EQ(failed.GetShape().ToString(Vorq::kSizes), "(1, 1)");
    EXPECT_EQ(Elements(failed), Ints{0});
  }
}

TEST(ArrayConcat, SizesThatDiffer) {
  auto const failed = Concat(Counting<int, 2>({2, 3}), Counting<int, 2>({2, 4}), 0);
  EXPECT_EQ(failed.GetLastError(), 3);
  EXPECT_STREQ(failed.GetErrorMessage(),
               "(INVALID) Along the 1-th dimension, array 1 has size [3] and array 2 has size [4]");
  EXPECT_EQ(Elements(failed), Ints{0});
  EXPECT_STREQ(Concat(Counting<int, 3>({2, 3, 4}), Counting<int, 3>({1, 3, 5}), 1).GetErrorMessage(),
               "(INVALID) Along the 0-th dimension, array 1 has size [2] and array 2 has size [1]");
}

TEST(ArrayConcat, TheAxisIsTestedFirst) {
  EXPECT_STREQ(Concat(Counting<int, 2>({2, 3}), Counting<int, 2>({1, 4}), 2).GetErrorMessage(),
               "(INVALID) Axis 2 is out of bounds for array of dimensions 2");
}

TEST(ArrayConcat, RankOneFitsAnySizes) {
  EXPECT_EQ(Elements(Concat(OfInts<1>({2}, {1, 2}), OfInts<1>({3}, {3, 4, 5}), 0)), (Ints{1, 2, 3, 4, 5}));
}

TEST(ArrayConcat, MoreElementsThanCanBeCountedAreRefused) {
  auto const endless = Vorq::RepeatElement(1, ~0ULL);
  EXPECT_STREQ(Concat(endless, OfInts<1>({2}, {1, 2}), 0).GetErrorMessage(),
               "(INVALID) Shapes (18446744073709551615) and (2) are too large to join");
  NDim<2> const half({1ULL << 62, 2});
  EXPECT_STREQ(half.Concat(half, 0).GetErrorMessage(),
               "(INVALID) Shapes (4611686018427387904, 2) and (4611686018427387904, 2) are too large to join");
}

TEST(ArrayWithElements, LeavesAnArrayWithAStoreAsItIs) {
  auto const array = Counting<int, 2>({2, 3}).Transpose();
  EXPECT_EQ(Vorq::WithElements(array, -1).Store(), array.Store());
  EXPECT_EQ(Vorq::WithElements(array, -1).GetShape().ToString(Vorq::kStrides), "(1, 3)");
}

TEST(ArrayWithElements, NoStoreReadsAsTheStandIn) {
  NdArray<int, 2> const none(NDim<2>({1, 2}), {});
  EXPECT_EQ(Elements(Vorq::WithElements(none, -1)), (Ints{-1, -1}));
}

}  // namespace
