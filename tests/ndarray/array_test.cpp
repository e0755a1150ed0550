// Arrays: elements, sharing, reshaping, repeating, views.
#include <gtest/gtest.h>

#include "ndarray/view.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::Elements;
using arrays::OfInts;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::View;
using Ints = std::vector<int>;

template <int N>
void ExpectFailed(NdArray<int, N> const& array, int element, char const* text) {
  EXPECT_EQ(array.GetLastError(), 3);
  EXPECT_STREQ(array.GetErrorMessage(), text);
  for (int axis = 0; axis < N; ++axis) EXPECT_EQ(array.GetDim(axis), 1U);
  EXPECT_EQ(Elements(array), Ints{element});
}

// The last two columns of a (3, 4) array, rows backwards: strided, and late in its store.
NdArray<int, 2> StridedView(NdArray<int, 2> const& source) {
  View view;
  view.Slice(0, 0, -1, 6);
  view.Slice(2, 4, 1, 0);
  return source.View(view);
}

TEST(Array, GeneratedCallsInFlatOrder) {
  std::vector<std::uint64_t> calls;
  auto const array = NdArray<int, 2>::Generated(NDim<2>({2, 2}).Transpose(), [&](std::uint64_t i) {
    calls.push_back(i);
    return static_cast<int>(10 * i);
  });
  EXPECT_EQ(calls, (std::vector<std::uint64_t>{0, 1, 2, 3}));
  EXPECT_TRUE(array.GetShape().IsContiguous());
  EXPECT_EQ(Elements(array), (Ints{0, 10, 20, 30}));
}

TEST(Array, FilledOfEachRank) {
  EXPECT_EQ(Elements(NdArray<int, 0>::Filled(NDim<0>(), 7)), Ints{7});
  EXPECT_EQ(Elements(NdArray<int, 1>::Filled(NDim<1>({2}), 7)), (Ints{7, 7}));
  EXPECT_EQ(Elements(NdArray<int, 3>::Filled(NDim<3>({1, 2, 2}), 7)), (Ints{7, 7, 7, 7}));
  EXPECT_EQ((NdArray<int, 3>::Filled(NDim<3>({1, 0, 2}), 7).GetSize()), 0U);
}

TEST(Array, StoreCountsItsElements) {
  EXPECT_EQ((Counting<int, 2>({2, 3}).Store().Block()->count), 6U);
  EXPECT_EQ((NdArray<int, 0>::OneElement(1).Store().Block()->count), 1U);
  EXPECT_EQ((Counting<int, 1>({0}).Store().Block()), nullptr);
}

TEST(Array, GetAndSetGoThroughTheShape) {
  auto array = Counting<int, 2>({2, 3});
  auto transposed = array.Transpose();
  EXPECT_EQ(transposed.Get(1), 3);
  transposed.Set(1, 50);
  EXPECT_EQ(Elements(array), (Ints{0, 1, 2, 50, 4, 5}));
}

TEST(Array, OfRankZeroIgnoresTheIndex) {
  auto array = NdArray<int, 0>::OneElement(5);
  EXPECT_EQ(array.Get(0), 5);
  EXPECT_EQ(array.Get(99), 5);
  array.Set(99, 6);
  EXPECT_EQ(array.Get(0), 6);
}

TEST(Array, FillThroughAViewLeavesTheRestAlone) {
  auto array = Counting<int, 2>({3, 4});
  StridedView(array).Fill(-1);
  EXPECT_EQ(Elements(array), (Ints{0, 1, -1, -1, 4, 5, -1, -1, 8, 9, -1, -1}));
}

TEST(Array, FillWithAnElementOfItsOwn) {
  auto array = Counting<int, 1>({3});
  array.Fill(array.Store()[2]);
  EXPECT_EQ(Elements(array), (Ints{2, 2, 2}));
}

TEST(Array, CopyOfAFailedOneGainsAPrefix) {
  auto const failed = NdArray<int, 0>::OneElement(1).Repeat(2, 0);
  NdArray<int, 0> const copy = failed;
  EXPECT_STREQ(copy.GetErrorMessage(), "(INVALID) (INVALID) Cannot repeat for NdArray of shape ()");
  EXPECT_EQ(copy.Store(), failed.Store());
}

TEST(Transpose, SharesTheStore) {
  auto const array = Counting<int, 3>({2, 3, 4});
  auto const transposed = array.Transpose();
  EXPECT_EQ(transposed.Store(), array.Store());
  EXPECT_EQ(transposed.GetShape().ToString(0), "(4, 3, 2)");
  EXPECT_EQ(transposed.GetShape().ToString(1), "(1, 4, 12)");
  EXPECT_EQ(transposed.Get(1), 12);
  EXPECT_EQ(Elements(transposed.Transpose()), Elements(array));
}

TEST(Transpose, OfRankZeroAndOneIsTheSameArray) {
  auto const scalar = NdArray<int, 0>::OneElement(4);
  EXPECT_EQ(scalar.Transpose().Store(), scalar.Store());
  auto const vector = Counting<int, 1>({3});
  EXPECT_EQ(vector.Transpose().Store(), vector.Store());
  EXPECT_EQ(Elements(vector.Transpose()), Elements(vector));
}

TEST(Flatten, OfAContiguousArraySharesTheStore) {
  auto array = Counting<int, 2>({2, 3});
  auto flat = array.Flatten();
  EXPECT_EQ(flat.GetShape().ToString(0), "(6)");
  EXPECT_EQ(flat.Store(), array.Store());
}

TEST(Flatten, OfALateContiguousViewKeepsItsOffset) {
  auto const array = Counting<int, 2>({3, 2});
  View view;
  view.Slice(1, 3, 1, 0);
  auto const flat = array.View(view).Flatten();
  EXPECT_EQ(flat.Store(), array.Store());
  EXPECT_EQ(flat.GetShape().ToString(2), "(2)");
  EXPECT_EQ(Elements(flat), (Ints{2, 3, 4, 5}));
}

TEST(Flatten, OfAStridedViewCopies) {
  auto const array = Counting<int, 2>({3, 4});
  auto flat = StridedView(array).Flatten();
  EXPECT_NE(flat.Store(), array.Store());
  EXPECT_EQ(flat.GetShape().ToString(1), "(1)");
  EXPECT_EQ(flat.GetShape().ToString(2), "(0)");
  EXPECT_EQ(Elements(flat), (Ints{10, 11, 6, 7, 2, 3}));
  flat.Set(0, 99);
  EXPECT_EQ(array.Get(10), 10);
}

TEST(Flatten, OfATransposedRankThree) {
  EXPECT_EQ(Elements(Counting<int, 3>({2, 2, 3}).Transpose().Flatten()), (Ints{0, 6, 3, 9, 1, 7, 4, 10, 2, 8, 5, 11}));
}

TEST(Flatten, OfRankZeroSharesTheStoreAndTakesTheOffset) {
  auto const array = Counting<int, 1>({4});
  auto const scalar = NdArray<int, 0>(NDim<0>::FromAxes({}, 3), array.Store());
  auto const flat = scalar.Flatten();
  EXPECT_EQ(flat.GetShape().ToString(0), "(1)");
  EXPECT_EQ(flat.GetShape().ToString(2), "(3)");
  EXPECT_EQ(flat.Store(), array.Store());
  EXPECT_EQ(flat.Get(0), 3);
}

TEST(Reshape, OfAContiguousArraySharesTheStore) {
  auto const array = Counting<int, 2>({2, 3});
  auto reshaped = array.Reshape(NDim<2>({3, 2}));
  reshaped.Set(5, 50);
  EXPECT_EQ(array.Get(5), 50);
  EXPECT_EQ(reshaped.GetLastError(), 0);
  EXPECT_EQ(Elements(array.Reshape(NDim<1>({6}))), (Ints{0, 1, 2, 3, 4, 50}));
  EXPECT_EQ(array.Reshape(NDim<3>({1, 6, 1})).GetShape().ToString(0), "(1, 6, 1)");
}

TEST(Reshape, OfATransposedArrayCopiesInTransposedOrder) {
  auto const array = Counting<int, 2>({2, 3});
  auto const reshaped = array.Transpose().Reshape(NDim<2>({2, 3}));
  EXPECT_NE(reshaped.Store(), array.Store());
  EXPECT_EQ(Elements(reshaped), (Ints{0, 3, 1, 4, 2, 5}));
}

TEST(Reshape, OfALateContiguousViewStartsAtTheStoresFirstElement) {
  auto const array = Counting<int, 2>({3, 2});
  View view;
  view.Scalar(2);
  auto const row = array.View(view);
  EXPECT_EQ(Elements(row), (Ints{4, 5}));
  EXPECT_EQ(Elements(row.Reshape(NDim<1>({2}))), (Ints{0, 1}));
}

TEST(Reshape, TakesTheTargetAsItStands) {
  auto const array = Counting<int, 1>({6});
  EXPECT_EQ(Elements(array.Reshape(NDim<2>({3, 2}).Transpose())), (Ints{0, 2, 4, 1, 3, 5}));
}

TEST(Reshape, ToAFailedShapeKeepsItsFailureInTheShape) {
  NDim<2> const failed = NDim<1>({3}).ExpandDims(-1);
  auto const reshaped = NdArray<int, 0>::OneElement(9).Reshape(failed);
  EXPECT_EQ(reshaped.GetLastError(), 0);
  EXPECT_STREQ(reshaped.GetShape().GetErrorMessage(), "(INVALID) (INVALID) Axis is negative (-1)");
}

TEST(Reshape, ToAnotherSizeFails) {
  auto const array = OfInts<1>({6}, {7, 1, 2, 3, 4, 5});
  ExpectFailed(array.Reshape(NDim<1>({4})), 7, "(INVALID) Cannot reshape NdArray of size 6 to new shape (4)");
  ExpectFailed(array.Reshape(NDim<2>({4, 2})), 7, "(INVALID) Cannot reshape NdArray of size 6 to new shape (4, 2)");
  ExpectFailed(array.Reshape(NDim<3>({1, 2, 2})), 7,
               "(INVALID) Cannot reshape NdArray of size 6 to new shape (1, 2, 2)");
  EXPECT_NE(array.Reshape(NDim<1>({4})).Store(), array.Store());
}

TEST(Reshape, FailureOfAViewHoldsTheViewsFirstElement) {
  ExpectFailed(StridedView(Counting<int, 2>({3, 4})).Reshape(NDim<1>({5})), 10,
               "(INVALID) Cannot reshape NdArray of size 6 to new shape (5)");
}

TEST(Reshape, OfRankZero) {
  auto const scalar = NdArray<int, 0>::OneElement(9);
  EXPECT_EQ(scalar.Reshape(NDim<2>({1, 1})).Store(), scalar.Store());
  ExpectFailed(scalar.Reshape(NDim<1>({2})), 9, "(INVALID) Cannot reshape NdArray of size 1 to new shape (2)");
}

TEST(Reshape, OfAnEmptyArray) {
  auto const empty = Counting<int, 2>({0, 3});
  EXPECT_EQ(empty.Reshape(NDim<2>({5, 0})).GetLastError(), 0);
  ExpectFailed(empty.Reshape(NDim<1>({2})), 0, "(INVALID) Cannot reshape NdArray of size 0 to new shape (2)");
}

struct RepeatCase {
  std::uint64_t n;
  int axis;
  std::string sizes;
  Ints repeat;
  Ints block;
};

// Of the array [[0, 1, 2], [3, 4, 5]].
RepeatCase const kRepeats[] = {
    {1, 0, "(2, 3)", {0, 1, 2, 3, 4, 5}, {0, 1, 2, 3, 4, 5}},
    {2, 0, "(4, 3)", {0, 1, 2, 0, 1, 2, 3, 4, 5, 3, 4, 5}, {0, 1, 2, 3, 4, 5, 0, 1, 2, 3, 4, 5}},
    {2, 1, "(2, 6)", {0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5}, {0, 1, 2, 0, 1, 2, 3, 4, 5, 3, 4, 5}},
    {2, -1, "(2, 6)", {0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5}, {0, 1, 2, 0, 1, 2, 3, 4, 5, 3, 4, 5}},
    {2, -2, "(4, 3)", {0, 1, 2, 0, 1, 2, 3, 4, 5, 3, 4, 5}, {0, 1, 2, 3, 4, 5, 0, 1, 2, 3, 4, 5}},
    {3,
     -1,
     "(2, 9)",
     {0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5},
     {0, 1, 2, 0, 1, 2, 0, 1, 2, 3, 4, 5, 3, 4, 5, 3, 4, 5}},
    {0, 0, "(0, 3)", {}, {}},
    {0, 1, "(2, 0)", {}, {}},
};

TEST(Repeat, OfATableOfCases) {
  auto const array = Counting<int, 2>({2, 3});
  // The same elements read from a transposed store.
  auto const strided = OfInts<2>({3, 2}, {0, 3, 1, 4, 2, 5}).Transpose();
  for (RepeatCase const& c : kRepeats) {
    SCOPED_TRACE(testing::Message() << c.n << " along " << c.axis);
    EXPECT_EQ(array.Repeat(c.n, c.axis).GetShape().ToString(0), c.sizes);
    EXPECT_EQ(Elements(array.Repeat(c.n, c.axis)), c.repeat);
    EXPECT_EQ(Elements(strided.Repeat(c.n, c.axis)), c.repeat);
    EXPECT_EQ(Elements(array.RepeatBlock(c.n, c.axis)), c.block);
    EXPECT_EQ(Elements(strided.RepeatBlock(c.n, c.axis)), c.block);
  }
}

TEST(Repeat, OfRankOneAndThree) {
  auto const pair = OfInts<1>({2}, {7, 8});
  EXPECT_EQ(Elements(pair.Repeat(2, 0)), (Ints{7, 7, 8, 8}));
  EXPECT_EQ(Elements(pair.RepeatBlock(2, 0)), (Ints{7, 8, 7, 8}));
  auto const cube = Counting<int, 3>({2, 2, 2});
  EXPECT_EQ(Elements(cube.Repeat(2, 1)), (Ints{0, 1, 0, 1, 2, 3, 2, 3, 4, 5, 4, 5, 6, 7, 6, 7}));
  EXPECT_EQ(Elements(cube.RepeatBlock(2, 1)), (Ints{0, 1, 2, 3, 0, 1, 2, 3, 4, 5, 6, 7, 4, 5, 6, 7}));
  EXPECT_EQ(Elements(cube.RepeatBlock(2, -3)), (Ints{0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST(Repeat, ResultIsCompactInAStoreOfItsOwn) {
  auto const array = Counting<int, 2>({2, 3});
  auto const repeated = array.Repeat(1, 0);
  EXPECT_NE(repeated.Store(), array.Store());
  EXPECT_TRUE(array.Transpose().Repeat(2, 0).GetShape().IsContiguous());
}

TEST(Repeat, AlongAnAxisThatThereIsNotFails) {
  auto const array = OfInts<2>({1, 2}, {7, 8});
  ExpectFailed(array.Repeat(3, 2), 0, "(INVALID) Axis 2 is out of bounds for array of dimensions 2");
  ExpectFailed(array.Repeat(3, -3), 0, "(INVALID) Axis -3 is out of bounds for array of dimensions 2");
  ExpectFailed(array.RepeatBlock(3, 2), 0, "(INVALID) Axis 2 is out of bounds for array of dimensions 2");
  ExpectFailed(OfInts<1>({1}, {7}).Repeat(2, 1), 0, "(INVALID) Axis 1 is out of bounds for array of dimensions 1");
}

TEST(Repeat, OfRankZeroFailsWithACopyOfTheElement) {
  auto const scalar = NdArray<int, 0>::OneElement(9);
  ExpectFailed(scalar.Repeat(2, 0), 9, "(INVALID) Cannot repeat for NdArray of shape ()");
  ExpectFailed(scalar.RepeatBlock(0, 7), 9, "(INVALID) Cannot repeat for NdArray of shape ()");
  EXPECT_NE(scalar.Repeat(2, 0).Store(), scalar.Store());
}

TEST(ArrayView, SharesTheStore) {
  auto const array = Counting<int, 2>({3, 4});
  auto view = StridedView(array);
  EXPECT_EQ(Elements(view), (Ints{10, 11, 6, 7, 2, 3}));
  view.Set(0, 50);
  EXPECT_EQ(array.Get(10), 50);
}

TEST(ArrayView, OfTheWorkedExample) {
  View view;
  view.Scalar(1);
  view.Slice(4, 0, -2, 0);
  EXPECT_EQ(Elements(Counting<int, 2>({4, 6}).View(view)), (Ints{10, 8}));
}

TEST(ArrayView, WithTooManyOperationsFails) {
  View view;
  view.Full();
  view.Full();
  view.Scalar(0);
  ExpectFailed(OfInts<2>({1, 2}, {7, 8}).View(view), 7, "(INVALID) View has more operations than #ND (2)");
  ExpectFailed(OfInts<1>({2}, {7, 8}).View(view), 7, "(INVALID) View has more operations than #ND (1)");
  EXPECT_EQ((Counting<int, 3>({1, 2, 3}).View(view).GetLastError()), 0);
}

TEST(ArrayView, OfRankZeroIsIgnored) {
  View view;
  view.Scalar(5);
  view.Full();
  auto const scalar = NdArray<int, 0>::OneElement(9);
  auto const seen = scalar.View(view);
  EXPECT_EQ(seen.Store(), scalar.Store());
  EXPECT_EQ(seen.GetLastError(), 0);
}

TEST(Sum, OfEachElementType) {
  EXPECT_EQ(Vorq::Sum(Counting<int, 2>({3, 4})).Get(0), 66);
  EXPECT_EQ(Vorq::Sum(Counting<long long, 1>({3})).Get(0), 3);
  EXPECT_EQ(Vorq::Sum(Counting<double, 3>({2, 2, 2}).Transpose()).Get(0), 28.0);
  EXPECT_EQ(Vorq::Sum(NdArray<double, 0>::OneElement(2.5)).Get(0), 2.5);
}

TEST(Sum, OfAViewTakesTheViewOnly) {
  EXPECT_EQ(Vorq::Sum(StridedView(Counting<int, 2>({3, 4}))).Get(0), 39);
}

TEST(Sum, OfAnEmptyArrayIsZero) {
  EXPECT_EQ(Vorq::Sum(Counting<double, 1>({0})).Get(0), 0.0);
  EXPECT_EQ(Vorq::Sum(Counting<int, 3>({2, 0, 3})).Get(0), 0);
}

TEST(Sum, OfWholeNumbersWrapsAround) {
  EXPECT_EQ(Vorq::Sum(NdArray<char, 1>::Filled(NDim<1>({3}), 100)).Get(0), 44);
  EXPECT_EQ(Vorq::Sum(OfInts<1>({2}, {2147483647, 1})).Get(0), -2147483647 - 1);
}

TEST(Sum, OfDoublesRunsInFlatOrder) {
  auto const array = NdArray<double, 1>::Generated(NDim<1>({3}), [](std::uint64_t i) {
    return i == 0 ? 1e16 : i == 1 ? 1.0 : -1e16;
  });
  EXPECT_EQ(Vorq::Sum(array).Get(0), 0.0);
}

}  // namespace
