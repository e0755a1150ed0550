// Shapes that are stretched, gain or lose axes, and their failures.
#include <gtest/gtest.h>

#include "ndarray/shape.hpp"

namespace {

using Vorq::Axis;
using Vorq::kOffsets;
using Vorq::kSizes;
using Vorq::kStrides;
using Vorq::NDim;

template <int N>
void ExpectFailed(NDim<N> const& shape, char const* text) {
  EXPECT_EQ(shape.GetLastError(), 3);
  EXPECT_STREQ(shape.GetErrorMessage(), text);
  EXPECT_EQ(shape.GetSize(), 1U);
  for (int axis = 0; axis < N; ++axis) {
    EXPECT_EQ(shape.GetDim(axis), 1U);
    EXPECT_EQ(shape.GetStride(axis), 1);
    EXPECT_EQ(shape.GetOffset(axis), 0);
  }
}

TEST(Broadcast, StretchesSizeOneWithStrideZero) {
  NDim<2> const shape = NDim<2>({1, 3}).Broadcast(NDim<2>({2, 3}));
  EXPECT_EQ(shape.GetLastError(), 0);
  EXPECT_EQ(shape.ToString(kSizes), "(2, 3)");
  EXPECT_EQ(shape.ToString(kStrides), "(0, 1)");
}

TEST(Broadcast, AgainstSizeOneKeepsTheStrides) {
  NDim<2> const shape = NDim<2>({2, 3}).Broadcast(NDim<2>({1, 3}));
  EXPECT_EQ(shape.ToString(kSizes), "(2, 3)");
  EXPECT_EQ(shape.ToString(kStrides), "(3, 1)");
}

TEST(Broadcast, OfUnequalSizesFails) {
  ExpectFailed(NDim<2>({2, 3}).Broadcast(NDim<2>({4, 3})), "(INVALID) Shape of (2, 3) is not compatible with (4, 3)");
  ExpectFailed(NDim<1>({2}).Broadcast(NDim<1>({3})), "(INVALID) Shape of (2) is not compatible with (3)");
}

TEST(Broadcast, FailureOnALaterAxisShowsTheUnstretchedShape) {
  ExpectFailed(NDim<2>({1, 3}).Broadcast(NDim<2>({4, 5})), "(INVALID) Shape of (1, 3) is not compatible with (4, 5)");
}

TEST(Broadcast, OfRankOneAlignsAtTheLastAxis) {
  NDim<2> const shape = NDim<1>({3}).Broadcast(NDim<2>({2, 3}));
  EXPECT_EQ(shape.ToString(kSizes), "(2, 3)");
  EXPECT_EQ(shape.ToString(kStrides), "(0, 1)");
}

TEST(Broadcast, FailureShowsThePaddedShape) {
  ExpectFailed(NDim<1>({3}).Broadcast(NDim<2>({3, 2})), "(INVALID) Shape of (1, 3) is not compatible with (3, 2)");
  ExpectFailed(NDim<1>({3}).Broadcast(NDim<3>({4, 3, 2})),
               "(INVALID) Shape of (1, 1, 3) is not compatible with (4, 3, 2)");
  ExpectFailed(NDim<2>({5, 3}).Broadcast(NDim<3>({4, 3, 3})),
               "(INVALID) Shape of (1, 5, 3) is not compatible with (4, 3, 3)");
}

TEST(Broadcast, AddedAxesThatStayHaveTheStrideOfTheOldFirstAxis) {
  NDim<3> const fromOne = NDim<1>({4}).Broadcast(NDim<3>({1, 1, 4}));
  EXPECT_EQ(fromOne.ToString(kSizes), "(1, 1, 4)");
  EXPECT_EQ(fromOne.ToString(kStrides), "(4, 4, 1)");
  NDim<3> const fromTwo = NDim<2>({3, 4}).Broadcast(NDim<3>({1, 3, 4}));
  EXPECT_EQ(fromTwo.ToString(kStrides), "(12, 4, 1)");
}

TEST(Broadcast, OfRankOneAndTwoAgainstRankThree) {
  EXPECT_EQ(NDim<1>({4}).Broadcast(NDim<3>({2, 3, 4})).ToString(kStrides), "(0, 0, 1)");
  EXPECT_EQ(NDim<2>({3, 4}).Broadcast(NDim<3>({2, 3, 4})).ToString(kStrides), "(0, 4, 1)");
  EXPECT_EQ(NDim<2>({3, 1}).Broadcast(NDim<3>({2, 3, 4})).ToString(kStrides), "(0, 1, 0)");
  EXPECT_EQ(NDim<3>({2, 1, 4}).Broadcast(NDim<3>({2, 3, 4})).ToString(kStrides), "(4, 0, 1)");
}

TEST(Broadcast, MayStretchBothShapes) {
  NDim<2> const column({2, 1});
  NDim<2> const row({1, 3});
  EXPECT_EQ(column.Broadcast(row).ToString(kSizes), "(2, 3)");
  EXPECT_EQ(column.Broadcast(row).ToString(kStrides), "(1, 0)");
  EXPECT_EQ(row.Broadcast(column).ToString(kSizes), "(2, 3)");
  EXPECT_EQ(row.Broadcast(column).ToString(kStrides), "(0, 1)");
}

TEST(Broadcast, SizesZeroAndOneMeetAsOne) {
  EXPECT_EQ(NDim<1>({0}).Broadcast(NDim<1>({1})).ToString(kSizes), "(1)");
  EXPECT_EQ(NDim<1>({0}).Broadcast(NDim<1>({1})).ToString(kStrides), "(0)");
  EXPECT_EQ(NDim<1>({1}).Broadcast(NDim<1>({0})).ToString(kSizes), "(1)");
  EXPECT_EQ(NDim<1>({1}).Broadcast(NDim<1>({0})).ToString(kStrides), "(1)");
}

TEST(Broadcast, SizeZeroMeetsOnlyZeroAndOne) {
  EXPECT_EQ(NDim<1>({0}).Broadcast(NDim<1>({0})).ToString(kSizes), "(0)");
  ExpectFailed(NDim<1>({0}).Broadcast(NDim<1>({3})), "(INVALID) Shape of (0) is not compatible with (3)");
}

TEST(Broadcast, CarriesOffsetsOver) {
  NDim<2> const shape = NDim<2>::FromAxes({Axis{1, 5, 10}, Axis{3, 1, 2}}).Broadcast(NDim<2>({4, 3}));
  EXPECT_EQ(shape.ToString(kOffsets), "(10, 2)");
  NDim<3> const padded = NDim<1>::FromAxes({Axis{3, 2, 7}}).Broadcast(NDim<3>({2, 2, 3}));
  EXPECT_EQ(padded.ToString(kOffsets), "(0, 0, 7)");
}

TEST(Broadcast, OfRankZeroReadsItsElementEverywhere) {
  NDim<0> const scalar = NDim<1>::FromAxes({Axis{1, 1, 7}}).Squeeze(0);
  NDim<2> const shape = scalar.Broadcast(NDim<2>({2, 3}));
  EXPECT_EQ(shape.ToString(kStrides), "(0, 0)");
  EXPECT_EQ(shape.Position(5), 7);
  EXPECT_EQ(scalar.Broadcast(NDim<0>()).Start(), 7);
}

TEST(ExpandDims, AtAnyPlace) {
  NDim<2> const shape({3, 4});
  EXPECT_EQ(shape.ExpandDims(0).ToString(kSizes), "(1, 3, 4)");
  EXPECT_EQ(shape.ExpandDims(0).ToString(kStrides), "(12, 4, 1)");
  EXPECT_EQ(shape.ExpandDims(1).ToString(kSizes), "(3, 1, 4)");
  EXPECT_EQ(shape.ExpandDims(1).ToString(kStrides), "(4, 4, 1)");
  EXPECT_EQ(shape.ExpandDims(2).ToString(kSizes), "(3, 4, 1)");
  EXPECT_EQ(shape.ExpandDims(2).ToString(kStrides), "(4, 1, 1)");
  EXPECT_EQ(NDim<1>({5}).ExpandDims(0).ToString(kStrides), "(5, 1)");
  EXPECT_EQ(NDim<1>({5}).ExpandDims(1).ToString(kStrides), "(1, 1)");
}

TEST(ExpandDims, NewAxisHasOffsetZeroAndOldOnesKeepTheirs) {
  NDim<2> const shape = NDim<2>::FromAxes({Axis{3, 8, 16}, Axis{4, 2, 1}});
  EXPECT_EQ(shape.ExpandDims(0).ToString(kStrides), "(24, 8, 2)");
  EXPECT_EQ(shape.ExpandDims(0).ToString(kOffsets), "(0, 16, 1)");
  EXPECT_EQ(shape.ExpandDims(1).ToString(kOffsets), "(16, 0, 1)");
  EXPECT_EQ(shape.ExpandDims(2).ToString(kOffsets), "(16, 1, 0)");
}

TEST(ExpandDims, OfANegativeAxisFails) {
  ExpectFailed(NDim<2>({3, 4}).ExpandDims(-1), "(INVALID) Axis is negative (-1)");
  ExpectFailed(NDim<1>({3}).ExpandDims(-2), "(INVALID) Axis is negative (-2)");
}

TEST(ExpandDims, BeyondTheRankFails) {
  ExpectFailed(NDim<2>({3, 4}).ExpandDims(3), "(INVALID) Axis is out of bounds: #axis (3) > #ND (2)");
  ExpectFailed(NDim<1>({3}).ExpandDims(2), "(INVALID) Axis is out of bounds: #axis (2) > #ND (1)");
}

TEST(ExpandDims, OfRankZeroCarriesTheOffset) {
  NDim<1> const shape = NDim<1>::FromAxes({Axis{1, 1, 7}}).Squeeze(0).ExpandDims(0);
  EXPECT_EQ(shape.ToString(kSizes), "(1)");
  EXPECT_EQ(shape.ToString(kStrides), "(1)");
  EXPECT_EQ(shape.ToString(kOffsets), "(7)");
  EXPECT_EQ(shape.Start(), 7);
}

TEST(ExpandDims, OfRankZeroFailsWithATextOfItsOwn) {
  ExpectFailed(NDim<0>().ExpandDims(1), "(INVALID) Axis is out of bounds: #axis (1)");
  ExpectFailed(NDim<0>().ExpandDims(-1), "(INVALID) Axis is out of bounds: #axis (-1)");
}

TEST(Squeeze, RemovesAnAxisOfSizeOne) {
  EXPECT_EQ(NDim<2>({2, 1}).Squeeze(1).ToString(kSizes), "(2)");
  EXPECT_EQ(NDim<3>({1, 3, 4}).Squeeze(0).ToString(kStrides), "(4, 1)");
  EXPECT_EQ(NDim<1>({1}).Squeeze(0).ToString(kSizes), "()");
}

TEST(Squeeze, KeepsTheElementPositions) {
  NDim<3> const shape = NDim<3>::FromAxes({Axis{2, 30, 100}, Axis{1, 7, 20}, Axis{3, 2, 5}});
  NDim<2> const squeezed = shape.Squeeze(1);
  EXPECT_EQ(squeezed.ToString(kOffsets), "(120, 5)");
  for (std::uint64_t i = 0; i < 6; ++i) EXPECT_EQ(squeezed.Position(i), shape.Position(i));
}

TEST(Squeeze, OffsetOfTheFirstAxisMovesToTheNextOne) {
  NDim<2> const shape = NDim<2>::FromAxes({Axis{1, 30, 100}, Axis{3, 2, 5}});
  EXPECT_EQ(shape.Squeeze(0).ToString(kOffsets), "(105)");
  NDim<2> const last = NDim<2>::FromAxes({Axis{3, 30, 100}, Axis{1, 2, 5}});
  EXPECT_EQ(last.Squeeze(1).ToString(kOffsets), "(105)");
  EXPECT_EQ(last.Squeeze(1).ToString(kStrides), "(30)");
}

TEST(Squeeze, Failures) {
  ExpectFailed(NDim<2>({2, 1}).Squeeze(0), "(INVALID) Dimension size at axis 0 is not one (2)");
  ExpectFailed(NDim<1>({0}).Squeeze(0), "(INVALID) Dimension size at axis 0 is not one (0)");
  ExpectFailed(NDim<2>({2, 1}).Squeeze(-1), "(INVALID) Axis is negative (-1)");
  ExpectFailed(NDim<2>({2, 1}).Squeeze(2), "(INVALID) Axis is out of bounds: #axis (2) >= #ND (2)");
  ExpectFailed(NDim<3>({2, 1, 1}).Squeeze(7), "(INVALID) Axis is out of bounds: #axis (7) >= #ND (3)");
}

TEST(Diagonal, OfAMatrix) {
  NDim<2> const shape({3, 4});
  EXPECT_EQ(shape.Diagonal(0, 0, 1).ToString(kSizes), "(3)");
  EXPECT_EQ(shape.Diagonal(0, 0, 1).ToString(kStrides), "(5)");
  EXPECT_EQ(shape.Diagonal(1, 0, 1).ToString(kSizes), "(3)");
  EXPECT_EQ(shape.Diagonal(1, 0, 1).ToString(kOffsets), "(1)");
  EXPECT_EQ(shape.Diagonal(3, 0, 1).ToString(kSizes), "(1)");
  EXPECT_EQ(shape.Diagonal(-1, 0, 1).ToString(kSizes), "(2)");
  EXPECT_EQ(shape.Diagonal(-1, 0, 1).ToString(kOffsets), "(4)");
}

TEST(Diagonal, OrderOfTheAxesDoesNotMatter) {
  NDim<2> const shape({3, 4});
  EXPECT_TRUE(shape.Diagonal(0, 1, 0).Equals(shape.Diagonal(0, 0, 1)));
  EXPECT_TRUE(shape.Diagonal(2, 1, 0).Equals(shape.Diagonal(2, 0, 1)));
}

TEST(Diagonal, OfRankThreeStandsBehindTheOtherAxis) {
  NDim<3> const shape({2, 3, 4});
  EXPECT_EQ(shape.Diagonal(0, 0, 2).ToString(kSizes), "(3, 2)");
  EXPECT_EQ(shape.Diagonal(0, 0, 2).ToString(kStrides), "(4, 13)");
  EXPECT_EQ(shape.Diagonal(0, 0, 1).ToString(kSizes), "(4, 2)");
  EXPECT_EQ(shape.Diagonal(-1, 1, 2).ToString(kSizes), "(2, 2)");
  EXPECT_EQ(shape.Diagonal(-1, 1, 2).ToString(kOffsets), "(0, 4)");
}

TEST(Diagonal, Failures) {
  NDim<2> const shape({3, 4});
  ExpectFailed(shape.Diagonal(0, 1, 1), "(INVALID) Axis 1 and axis 2 are the same (1)");
  ExpectFailed(shape.Diagonal(0, 0, -1), "(INVALID) One axis is negative (-1)");
  ExpectFailed(shape.Diagonal(0, 5, -1), "(INVALID) One axis is negative (-1)");
  ExpectFailed(shape.Diagonal(0, 0, 2), "(INVALID) One axis is out of bounds: #axis (2) >= #ND (2)");
  ExpectFailed(shape.Diagonal(4, 0, 1), "(INVALID) Offset (4) is out of bounds: dimensions (4) at axis2");
  ExpectFailed(shape.Diagonal(-3, 0, 1), "(INVALID) Offset (-3) is out of bounds: dimensions (3) at axis1");
  ExpectFailed(shape.Diagonal(-2147483647 - 1, 0, 1),
               "(INVALID) Offset (-2147483648) is out of bounds: dimensions (3) at axis1");
}

TEST(Cast, ToALowerRankFails) {
  ExpectFailed(Vorq::CannotCast<0>(1), "(INVALID) Cannot cast 1-dimensional shape to 0-dimension");
  ExpectFailed(Vorq::CannotCast<2>(3), "(INVALID) Cannot cast 3-dimensional shape to 2-dimension");
  ExpectFailed(Vorq::CannotCast<1>(1, 3),
               "(INVALID) Cannot cast 1-dimensional shape and 3-dimensional shape to 1-dimension");
}

}  // namespace
