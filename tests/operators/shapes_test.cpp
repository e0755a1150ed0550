// The shape step of the operators.
#include "matrix/broadcast_shapes.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Vorq::CommonShape;
using Vorq::NDim;
using Vorq::PairAxes;
using Vorq::StretchShapes;

TEST(CommonShape, AlignsAtTheLastAxis) {
  EXPECT_EQ(CommonShape<2>(NDim<1>({3}), NDim<2>({2, 3})).ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(CommonShape<3>(NDim<3>({4, 1, 3}), NDim<2>({2, 1})).ToString(Vorq::kSizes), "(4, 2, 3)");
}

TEST(CommonShape, RankZeroFitsEverything) {
  EXPECT_EQ(CommonShape<0>(NDim<0>(), NDim<0>()).ToString(Vorq::kSizes), "()");
  EXPECT_EQ(CommonShape<2>(NDim<0>(), NDim<2>({2, 3})).ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(CommonShape<1>(NDim<1>({0}), NDim<0>()).ToString(Vorq::kSizes), "(1)");
}

TEST(CommonShape, SizesZeroAndOneMeetAsOne) {
  EXPECT_EQ(CommonShape<1>(NDim<1>({0}), NDim<1>({1})).ToString(Vorq::kSizes), "(1)");
  EXPECT_EQ(CommonShape<1>(NDim<1>({1}), NDim<1>({0})).ToString(Vorq::kSizes), "(1)");
  EXPECT_EQ(CommonShape<1>(NDim<1>({0}), NDim<1>({0})).ToString(Vorq::kSizes), "(0)");
}

TEST(CommonShape, MismatchNamesTheShapesAsGiven) {
  auto const shape = CommonShape<2>(NDim<1>({3}), NDim<2>({3, 2}));
  EXPECT_EQ(shape.GetLastError(), 3);
  EXPECT_STREQ(shape.GetErrorMessage(),
               "(INVALID) Operand 1 of shape (3) is not compatible with Operand 2 of shape (3, 2)");
  EXPECT_EQ(shape.ToString(Vorq::kSizes), "(1, 1)");
}

TEST(CommonShape, SizeZeroAgainstThreeFails) {
  EXPECT_STREQ(CommonShape<1>(NDim<1>({0}), NDim<1>({3})).GetErrorMessage(),
               "(INVALID) Operand 1 of shape (0) is not compatible with Operand 2 of shape (3)");
}

TEST(StretchShapes, StretchedAxesHaveStrideZero) {
  auto const shapes = StretchShapes<2>(NDim<2>({2, 1}), NDim<1>({3}));
  EXPECT_EQ(shapes.left.ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(shapes.left.ToString(Vorq::kStrides), "(1, 0)");
  EXPECT_EQ(shapes.right.ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(shapes.right.ToString(Vorq::kStrides), "(0, 1)");
  EXPECT_FALSE(shapes.status.Failed());
}

TEST(StretchShapes, KeepsOffsets) {
  auto const scalar = NDim<0>::FromAxes({}, 5);
  auto const row = NDim<1>::FromAxes({Vorq::Axis{3, -1, 2}});
  auto const shapes = StretchShapes<1>(scalar, row);
  EXPECT_EQ(shapes.right.Start(), 2);
  EXPECT_EQ(shapes.right.GetStride(0), -1);
  EXPECT_EQ(StretchShapes<0>(scalar, NDim<0>()).left.Start(), 5);
}

TEST(StretchShapes, TellsEmptyOperands) {
  auto const shapes = StretchShapes<2>(NDim<1>({0}), NDim<2>({1, 1}));
  EXPECT_TRUE(shapes.leftIsEmpty);
  EXPECT_FALSE(shapes.rightIsEmpty);
  EXPECT_EQ(shapes.left.GetSize(), 1U);
}

// The pairs of positions that the loops reach, in order.
template <int N>
std::vector<std::pair<std::int64_t, std::int64_t>> Positions(NDim<N> const& left, NDim<N> const& right) {
  std::vector<std::pair<std::int64_t, std::int64_t>> positions;
  auto const axes = PairAxes(left, right);
  Vorq::ForEachPairRun(axes, left.Start(), right.Start(), [&](std::uint64_t count, std::int64_t a, std::int64_t b) {
    for (std::uint64_t i = 0; i < count; ++i, a += axes.back().left, b += axes.back().right)
      positions.push_back({a, b});
  });
  return positions;
}

template <int N>
std::vector<std::pair<std::int64_t, std::int64_t>> FlatPositions(NDim<N> const& left, NDim<N> const& right) {
  std::vector<std::pair<std::int64_t, std::int64_t>> positions;
  for (std::uint64_t i = 0; i < left.GetSize(); ++i) positions.push_back({left.Position(i), right.Position(i)});
  return positions;
}

TEST(PairAxes, ReachPositionsInFlatOrder) {
  NDim<3> const compact({2, 3, 4});
  NDim<3> const others[] = {compact,
                            NDim<3>({4, 3, 2}).Transpose(),
                            NDim<2>({3, 1}).Broadcast(compact),
                            NDim<1>({4}).Broadcast(compact),
                            NDim<0>().Broadcast(compact),
                            NDim<3>({2, 1, 4}).Broadcast(compact),
                            NDim<3>::FromAxes({Vorq::Axis{2, 12, 0}, Vorq::Axis{3, -4, 8}, Vorq::Axis{4, -1, 3}})};
  for (NDim<3> const& left : others) {
    for (NDim<3> const& right : others) EXPECT_EQ(Positions(left, right), FlatPositions(left, right));
  }
}

TEST(PairAxes, CompactShapesAreOneRun) {
  NDim<3> const shape({2, 3, 4});
  auto const axes = PairAxes(shape, shape);
  EXPECT_EQ(axes[0].size, 1U);
  EXPECT_EQ(axes[1].size, 1U);
  EXPECT_EQ(axes[2].size, 24U);
}

TEST(PairAxes, OneNumberAgainstACompactShapeIsOneRun) {
  NDim<3> const shape({2, 3, 4});
  auto const axes = PairAxes(shape, NDim<0>().Broadcast(shape));
  EXPECT_EQ(axes[2].size, 24U);
  EXPECT_EQ(axes[2].right, 0);
}

TEST(PairAxes, AColumnIsOneRun) {
  NDim<2> const column({1000, 1});
  EXPECT_EQ(PairAxes(column, column)[2].size, 1000U);
}

}  // namespace
