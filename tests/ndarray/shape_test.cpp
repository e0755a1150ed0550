// Sizes, strides, texts, equality and contiguity of shapes.
#include <gtest/gtest.h>

#include <new>

#include "ndarray/shape.hpp"

namespace {

using Vorq::Axis;
using Vorq::kOffsets;
using Vorq::kSizes;
using Vorq::kStrides;
using Vorq::NDim;

TEST(FreshShape, IsCompactRowMajor) {
  NDim<3> const shape({3, 4, 5});
  EXPECT_EQ(shape.ToString(kSizes), "(3, 4, 5)");
  EXPECT_EQ(shape.ToString(kStrides), "(20, 5, 1)");
  EXPECT_EQ(shape.ToString(kOffsets), "(0, 0, 0)");
  EXPECT_EQ(shape.GetSize(), 60U);
  EXPECT_EQ(shape.GetDims(), (NDim<3>::Sizes{3, 4, 5}));
}

TEST(FreshShape, HasNoFailureAndNoText) {
  NDim<2> const shape({3, 4});
  EXPECT_EQ(shape.GetLastError(), 0);
  EXPECT_EQ(shape.GetErrorMessage(), nullptr);
}

TEST(FreshShape, OfRankZeroHasOneElement) {
  NDim<0> const shape;
  EXPECT_EQ(shape.GetND(), 0);
  EXPECT_EQ(shape.GetSize(), 1U);
  EXPECT_EQ(shape.GetDim(0), 0U);
  EXPECT_EQ(shape.GetStride(0), 1);
  EXPECT_EQ(shape.GetOffset(0), 0);
}

TEST(FreshShape, MayHaveSizeZero) {
  NDim<3> const shape({2, 0, 3});
  EXPECT_EQ(shape.GetSize(), 0U);
  EXPECT_EQ(shape.ToString(kStrides), "(0, 3, 1)");
}

TEST(Shape, AxesThatThereAreNotHaveSizeZeroAndStrideOne) {
  NDim<2> const shape({3, 4});
  for (int axis : {-1, 2, 5}) {
    EXPECT_EQ(shape.GetDim(axis), 0U);
    EXPECT_EQ(shape.GetStride(axis), 1);
    EXPECT_EQ(shape.GetOffset(axis), 0);
  }
}

TEST(Shape, OffsetOfAnAxisThatThereIsNotIsTheInnerOne) {
  NDim<0> const shape = NDim<1>::FromAxes({Axis{1, 1, 7}}).Squeeze(0);
  EXPECT_EQ(shape.GetOffset(0), 7);
  EXPECT_EQ(shape.GetOffset(-3), 7);
  EXPECT_EQ(shape.GetOffset(5), 7);
}

TEST(Shape, CloneIsCompactWhateverTheSourceIs) {
  NDim<2> const source = NDim<2>::FromAxes({Axis{3, 1, 2}, Axis{4, 3, 1}});
  NDim<2> const clone = source.Clone();
  EXPECT_EQ(clone.ToString(kSizes), "(3, 4)");
  EXPECT_EQ(clone.ToString(kStrides), "(4, 1)");
  EXPECT_EQ(clone.ToString(kOffsets), "(0, 0)");
}

TEST(Shape, CloneDropsTheFailure) {
  NDim<2> const clone = NDim<1>({3}).ExpandDims(9).Clone();
  EXPECT_EQ(clone.GetLastError(), 0);
  EXPECT_EQ(clone.ToString(kSizes), "(1, 1)");
}

TEST(Shape, CreateUniformIgnoresItsOwnSizes) {
  NDim<3> const uniform = NDim<3>({3, 4, 5}).CreateUniform(2);
  EXPECT_EQ(uniform.ToString(kSizes), "(2, 2, 2)");
  EXPECT_EQ(uniform.ToString(kStrides), "(4, 2, 1)");
}

TEST(Shape, CreateUniformOfRankZeroIgnoresItsArgument) {
  EXPECT_EQ(NDim<0>().CreateUniform(9).GetSize(), 1U);
}

TEST(ShapeText, OfEachRank) {
  EXPECT_EQ(NDim<0>().ToString(0), "()");
  EXPECT_EQ(NDim<1>({7}).ToString(0), "(7)");
  EXPECT_EQ(NDim<2>({3, 4}).ToString(0), "(3, 4)");
  EXPECT_EQ(NDim<3>({2, 3, 4}).ToString(0), "(2, 3, 4)");
  EXPECT_EQ(NDim<3>({2, 3, 4}).ToString(1), "(12, 4, 1)");
  EXPECT_EQ(NDim<3>({2, 3, 4}).ToString(2), "(0, 0, 0)");
}

TEST(ShapeText, AnyOtherModeShowsOffsets) {
  NDim<2> const shape = NDim<2>::FromAxes({Axis{3, -4, 8}, Axis{4, 1, -2}});
  EXPECT_EQ(shape.ToString(1), "(-4, 1)");
  EXPECT_EQ(shape.ToString(2), "(8, -2)");
  EXPECT_EQ(shape.ToString(17), "(8, -2)");
  EXPECT_EQ(shape.ToString(-1), "(8, -2)");
}

TEST(ShapeText, OfRankZeroShowsInnerStrideAndOffset) {
  NDim<0> const shape = NDim<1>::FromAxes({Axis{1, 1, 7}}).Squeeze(0);
  EXPECT_EQ(shape.ToString(-1), "()");
  EXPECT_EQ(shape.ToString(0), "()");
  EXPECT_EQ(shape.ToString(1), "(1)");
  EXPECT_EQ(shape.ToString(2), "(7)");
  EXPECT_EQ(shape.ToString(9), "(7)");
}

TEST(ShapeText, PrintsSizesUnsigned) {
  EXPECT_EQ(NDim<1>({~0ULL}).ToString(0), "(18446744073709551615)");
}

TEST(ShapeEquality, OfRankZeroAlwaysHolds) {
  EXPECT_TRUE(NDim<0>().Equals(NDim<1>::FromAxes({Axis{1, 1, 7}}).Squeeze(0)));
}

TEST(ShapeEquality, ComparesAllSizes) {
  EXPECT_TRUE(NDim<3>({2, 3, 4}).Equals(NDim<3>({2, 3, 4})));
  EXPECT_FALSE(NDim<3>({2, 3, 4}).Equals(NDim<3>({2, 3, 5})));
  EXPECT_FALSE(NDim<2>({2, 3}).Equals(NDim<2>({3, 2})));
}

TEST(ShapeEquality, LeavesOutStridesAndOffsetsOfInnerAxes) {
  NDim<2> const shape = NDim<2>::FromAxes({Axis{3, 4, 0}, Axis{4, 1, 0}});
  EXPECT_TRUE(shape.Equals(NDim<2>::FromAxes({Axis{3, 4, 0}, Axis{4, 9, 0}})));
  EXPECT_TRUE(shape.Equals(NDim<2>::FromAxes({Axis{3, 4, 0}, Axis{4, 1, 5}})));
}

TEST(ShapeEquality, ComparesStrideAndOffsetOfTheFirstAxis) {
  NDim<2> const shape = NDim<2>::FromAxes({Axis{3, 4, 0}, Axis{4, 1, 0}});
  EXPECT_FALSE(shape.Equals(NDim<2>::FromAxes({Axis{3, 5, 0}, Axis{4, 1, 0}})));
  EXPECT_FALSE(shape.Equals(NDim<2>::FromAxes({Axis{3, 4, 1}, Axis{4, 1, 0}})));
}

TEST(Contiguity, OfFreshShapes) {
  EXPECT_TRUE(NDim<1>({5}).IsContiguous());
  EXPECT_TRUE(NDim<2>({3, 4}).IsContiguous());
  EXPECT_TRUE(NDim<3>({2, 3, 4}).IsContiguous());
}

TEST(Contiguity, OffsetOfTheFirstAxisDoesNotCount) {
  EXPECT_TRUE(NDim<1>::FromAxes({Axis{5, 1, 9}}).IsContiguous());
  EXPECT_TRUE(NDim<2>::FromAxes({Axis{3, 4, 9}, Axis{4, 1, 0}}).IsContiguous());
  EXPECT_TRUE((NDim<3>::FromAxes({Axis{2, 12, 9}, Axis{3, 4, 0}, Axis{4, 1, 0}}).IsContiguous()));
}

TEST(Contiguity, OffsetsOfInnerAxesCount) {
  EXPECT_FALSE(NDim<2>::FromAxes({Axis{3, 4, 0}, Axis{4, 1, 1}}).IsContiguous());
  EXPECT_FALSE((NDim<3>::FromAxes({Axis{2, 12, 0}, Axis{3, 4, 1}, Axis{4, 1, 0}}).IsContiguous()));
  EXPECT_FALSE((NDim<3>::FromAxes({Axis{2, 12, 0}, Axis{3, 4, 0}, Axis{4, 1, 1}}).IsContiguous()));
}

TEST(Contiguity, EachStrideCounts) {
  EXPECT_FALSE(NDim<1>::FromAxes({Axis{5, 2, 0}}).IsContiguous());
  EXPECT_FALSE(NDim<2>::FromAxes({Axis{3, 5, 0}, Axis{4, 1, 0}}).IsContiguous());
  EXPECT_FALSE(NDim<2>({3, 4}).Transpose().IsContiguous());
  EXPECT_FALSE((NDim<3>::FromAxes({Axis{2, 13, 0}, Axis{3, 4, 0}, Axis{4, 1, 0}}).IsContiguous()));
  EXPECT_FALSE((NDim<3>::FromAxes({Axis{2, 12, 0}, Axis{3, 5, 0}, Axis{4, 1, 0}}).IsContiguous()));
}

TEST(Position, SplitsTheFlatIndexRowMajor) {
  // Every second row of a store of rows of 10, backwards, from column 3 on.
  NDim<2> const shape = NDim<2>::FromAxes({Axis{3, -20, 40}, Axis{4, 1, 3}});
  EXPECT_EQ(shape.Start(), 43);
  EXPECT_EQ(shape.Position(0), 43);
  EXPECT_EQ(shape.Position(3), 46);
  EXPECT_EQ(shape.Position(4), 23);
  EXPECT_EQ(shape.Position(11), 6);
}

TEST(Position, OfRankThree) {
  NDim<3> const shape = NDim<3>({2, 3, 4}).Transpose();
  // Coordinates (3, 1, 1) of sizes (4, 3, 2) are coordinates (1, 1, 3) of the source.
  EXPECT_EQ(shape.Position(3 * 6 + 1 * 2 + 1), 12 + 4 + 3);
}

TEST(Position, OfRankZeroIsItsOffsetForAnyIndex) {
  NDim<0> const shape = NDim<1>::FromAxes({Axis{1, 1, 7}}).Squeeze(0);
  EXPECT_EQ(shape.Position(0), 7);
  EXPECT_EQ(shape.Position(99), 7);
}

TEST(StoreSize, RefusesAProductThatWrapsAround) {
  EXPECT_EQ(NDim<2>({3, 4}).StoreSize(), 12U);
  EXPECT_EQ(NDim<3>({1ULL << 40, 0, 1ULL << 40}).StoreSize(), 0U);
  EXPECT_THROW(static_cast<void>(NDim<2>({1ULL << 33, 1ULL << 31}).StoreSize()), std::bad_array_new_length);
  EXPECT_THROW(static_cast<void>(NDim<2>({(1ULL << 63) + 3, 2}).StoreSize()), std::bad_array_new_length);
}

TEST(Transpose, ReversesSizesStridesAndOffsets) {
  NDim<3> const shape = NDim<3>::FromAxes({Axis{2, 12, 5}, Axis{3, 4, 6}, Axis{4, 1, 7}}).Transpose();
  EXPECT_EQ(shape.ToString(kSizes), "(4, 3, 2)");
  EXPECT_EQ(shape.ToString(kStrides), "(1, 4, 12)");
  EXPECT_EQ(shape.ToString(kOffsets), "(7, 6, 5)");
}

TEST(FailedShape, GainsAPrefixAtEachCopy) {
  NDim<2> const failed = NDim<1>({3}).ExpandDims(-1);
  NDim<2> const once = failed;
  NDim<2> const twice = once;
  EXPECT_EQ(twice.GetLastError(), 3);
  EXPECT_STREQ(failed.GetErrorMessage(), "(INVALID) Axis is negative (-1)");
  EXPECT_STREQ(once.GetErrorMessage(), "(INVALID) (INVALID) Axis is negative (-1)");
  EXPECT_STREQ(twice.GetErrorMessage(), "(INVALID) (INVALID) (INVALID) Axis is negative (-1)");
}

TEST(FailedShape, CopiedTextIsCut) {
  NDim<0> shape = Vorq::CannotCast<0>(1, 2);
  for (int i = 0; i < 12; ++i) shape = NDim<0>(shape);
  EXPECT_EQ(std::string(shape.GetErrorMessage()).size(), 10U + 95U);
}

}  // namespace
