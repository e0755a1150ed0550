// Index operations and views applied to shapes.
#include "ndarray/view.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "ndarray/shape.hpp"

namespace {

using Vorq::Axis;
using Vorq::kOffsets;
using Vorq::kSizes;
using Vorq::kStrides;
using Vorq::NDim;
using Vorq::View;

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

struct SliceCase {
  struct {
    std::uint64_t size;
    std::int64_t start, stop, step;
    int flags;
  } slice;
  std::int64_t first;
  std::vector<std::int64_t> positions;
};

// Size of the axis, start, stop, step, marks of what is left out; where the slice starts; the positions it reaches.
SliceCase const kSlices[] = {
    // clang-format off
    {{6, 0, 6, 1, 0}, 0, {0, 1, 2, 3, 4, 5}},
    {{6, 1, 4, 1, 0}, 1, {1, 2, 3}},
    {{6, 2, 2, 1, 0}, 2, {}},
    {{6, 4, 1, 1, 0}, 4, {}},
    {{6, 0, 0, 0, 7}, 0, {0, 1, 2, 3, 4, 5}},
    {{6, 0, 0, -1, 6}, 5, {5, 4, 3, 2, 1, 0}},
    {{6, 0, 0, 2, 6}, 0, {0, 2, 4}},
    {{6, 1, 0, 2, 2}, 1, {1, 3, 5}},
    {{6, 0, 5, 2, 4}, 0, {0, 2, 4}},
    {{6, 0, 5, 3, 0}, 0, {0, 3}},
    {{6, 0, 6, 5, 0}, 0, {0, 5}},
    {{6, 0, 6, 6, 0}, 0, {0}},
    {{6, 0, 6, 7, 0}, 0, {0}},
    {{6, -2, 6, 1, 0}, 4, {4, 5}},
    {{6, -2, -1, 1, 0}, 4, {4}},
    {{6, 0, -1, 1, 0}, 0, {0, 1, 2, 3, 4}},
    {{6, -10, 3, 1, 1}, -1, {-1, 0, 1, 2}},
    {{6, -10, 3, 1, 0}, -1, {-1, 0, 1, 2}},
    {{6, 9, 20, 1, 0}, 6, {}},
    {{6, 0, 20, 1, 0}, 0, {0, 1, 2, 3, 4, 5}},
    {{6, -6, -3, 1, 0}, 0, {0, 1, 2}},
    {{6, 4, 0, -2, 0}, 4, {4, 2}},
    {{6, 5, 0, -1, 0}, 5, {5, 4, 3, 2, 1}},
    {{6, 5, 0, -2, 0}, 5, {5, 3, 1}},
    {{6, 5, -7, -1, 0}, 5, {5, 4, 3, 2, 1, 0}},
    {{6, 5, -7, -3, 0}, 5, {5, 2}},
    {{6, 3, 5, -1, 0}, 3, {}},
    {{6, 3, 0, -1, 4}, 5, {5, 4, 3, 2, 1}},
    {{6, 3, 0, -1, 2}, 3, {3, 2, 1, 0}},
    {{6, 3, 0, -4, 2}, 3, {3}},
    {{6, 1, 4, 0, 0}, 1, {1, 1, 1}},
    {{6, 4, 1, 0, 0}, 4, {}},
    {{6, 1, 4, -2, 1}, 1, {1, 2, 3}},
    {{6, 3, 0, 5, 3}, 3, {3, 4, 5}},
    {{6, 0, 2, -7, 5}, 0, {0, 1}},
    {{1, 0, 0, -1, 6}, 0, {0}},
    {{1, 0, 1, 1, 0}, 0, {0}},
    {{1, -1, 1, 1, 0}, 0, {0}},
    {{0, 0, 0, 1, 7}, 0, {}},
    {{0, 0, 0, -1, 6}, -1, {}},
    {{0, 0, 0, 1, 0}, 0, {}},
    {{5, 0, 5, 2, 0}, 0, {0, 2, 4}},
    {{5, 4, -6, -2, 0}, 4, {4, 2, 0}},
    {{5, 3, -6, -2, 0}, 3, {3, 1}},
    // clang-format on
};

TEST(Slice, ReachesThePositionsOfTheTable) {
  for (auto const& [slice, first, positions] : kSlices) {
    SCOPED_TRACE(testing::Message() << slice.size << ": " << slice.start << " " << slice.stop << " " << slice.step
                                    << " flags " << slice.flags);
    View view;
    view.Slice(slice.start, slice.stop, slice.step, slice.flags);
    // A stride and an offset of its own show that both are carried through.
    NDim<1> const shape = NDim<1>::FromAxes({Axis{slice.size, 3, 100}}).Apply(view);
    EXPECT_EQ(shape.GetOffset(0), 100 + 3 * first);
    ASSERT_EQ(shape.GetDim(0), positions.size());
    for (std::uint64_t i = 0; i < positions.size(); ++i) EXPECT_EQ(shape.Position(i), 100 + 3 * positions[i]);
  }
}

TEST(Slice, OfAnEmptyAxisTakesItsNumbersAsTheyAre) {
  View view;
  view.Slice(-2, 3, 2, 0);
  NDim<1> const shape = NDim<1>({0}).Apply(view);
  EXPECT_EQ(shape.ToString(kSizes), "(3)");
  EXPECT_EQ(shape.ToString(kOffsets), "(-2)");
}

TEST(Slice, OfExtremeNumbersDoesNotOverflow) {
  View steps;
  steps.Slice(0, kLargest, kLargest, 0);
  EXPECT_EQ(NDim<1>({6}).Apply(steps).ToString(kSizes), "(1)");
  View back;
  back.Slice(kLargest, kSmallest, kSmallest, 0);
  EXPECT_EQ(NDim<1>({6}).Apply(back).ToString(kSizes), "(1)");
  View wide;
  wide.Slice(kSmallest, kLargest, 1, 0);
  EXPECT_EQ(NDim<1>({0}).Apply(wide).ToString(kSizes), "(18446744073709551615)");
}

TEST(Scalar, IsNormalised) {
  struct {
    std::int64_t index, position;
  } const cases[] = {{0, 0},  {5, 5},  {6, 6},   {7, 6},     {kLargest, 6},
                     {-1, 5}, {-6, 0}, {-7, -1}, {-100, -1}, {kSmallest, -1}};
  for (auto const& [index, position] : cases) {
    View view;
    view.Scalar(index);
    NDim<1> const shape = NDim<1>::FromAxes({Axis{6, 3, 100}}).Apply(view);
    EXPECT_EQ(shape.ToString(kSizes), "(1)");
    EXPECT_EQ(shape.GetStride(0), 3);
    EXPECT_EQ(shape.GetOffset(0), 100 + 3 * position) << index;
  }
}

TEST(Scalar, OfAnEmptyAxisIsTakenAsItIs) {
  View view;
  view.Scalar(-4);
  EXPECT_EQ(NDim<1>({0}).Apply(view).ToString(kOffsets), "(-4)");
}

TEST(Apply, WorkedExample) {
  View view;
  view.Scalar(1);
  view.Slice(4, 0, -2, 0);
  NDim<2> const shape = NDim<2>({4, 6}).Apply(view);
  EXPECT_EQ(shape.ToString(kSizes), "(1, 2)");
  EXPECT_EQ(shape.ToString(kStrides), "(6, -2)");
  EXPECT_EQ(shape.ToString(kOffsets), "(6, 4)");
  EXPECT_EQ(shape.Position(0), 10);
  EXPECT_EQ(shape.Position(1), 8);
}

TEST(Apply, OfAnEmptyViewChangesNothing) {
  NDim<2> const source = NDim<2>::FromAxes({Axis{3, -8, 16}, Axis{4, 2, 1}});
  NDim<2> const shape = source.Apply(View());
  EXPECT_EQ(shape.ToString(kSizes), source.ToString(kSizes));
  EXPECT_EQ(shape.ToString(kStrides), source.ToString(kStrides));
  EXPECT_EQ(shape.ToString(kOffsets), source.ToString(kOffsets));
}

TEST(Apply, AxesWithoutOperationStayWhole) {
  View view;
  view.Scalar(-1);
  NDim<3> const shape = NDim<3>({2, 3, 4}).Apply(view);
  EXPECT_EQ(shape.ToString(kSizes), "(1, 3, 4)");
  EXPECT_EQ(shape.ToString(kOffsets), "(12, 0, 0)");
}

TEST(Apply, FullKeepsItsAxis) {
  View view;
  view.Full();
  view.Scalar(2);
  NDim<2> const shape = NDim<2>({3, 4}).Apply(view);
  EXPECT_EQ(shape.ToString(kSizes), "(3, 1)");
  EXPECT_EQ(shape.ToString(kOffsets), "(0, 2)");
}

TEST(Apply, SliceOfAViewComposes) {
  View evens;
  evens.Slice(0, 0, 2, 6);
  View back;
  back.Slice(0, 0, -1, 6);
  NDim<1> const shape = NDim<1>({7}).Apply(evens).Apply(back);
  EXPECT_EQ(shape.ToString(kSizes), "(4)");
  EXPECT_EQ(shape.ToString(kStrides), "(-2)");
  EXPECT_EQ(shape.ToString(kOffsets), "(6)");
}

TEST(Apply, EmptySliceHasSizeZero) {
  View view;
  view.Slice(2, 2, 1, 0);
  EXPECT_EQ((NDim<2>({6, 3}).Apply(view).GetSize()), 0U);
}

TEST(View, KindsAreToldByName) {
  View view;
  view.Full();
  view.Slice(0, 1, 1, 0);
  view.Scalar(0);
  EXPECT_STREQ(view.Operations()[0]->GetName(), "Full");
  EXPECT_STREQ(view.Operations()[1]->GetName(), "Slice");
  EXPECT_STREQ(view.Operations()[2]->GetName(), "Scalar");
}

TEST(View, OperationsAreAppendedToBothViews) {
  View view;
  View const first = view.Full();
  View const second = view.Scalar(0);
  EXPECT_EQ(view.Operations().size(), 2U);
  EXPECT_EQ(first.Operations().size(), 1U);
  EXPECT_EQ(second.Operations().size(), 2U);
}

TEST(View, AChainLeavesItsFirstViewWithTheFirstOperation) {
  View view;
  View const chained = view.Full().Scalar(3).Slice(0, 1, 1, 0);
  EXPECT_EQ(view.Operations().size(), 1U);
  EXPECT_EQ(chained.Operations().size(), 3U);
}

TEST(View, CopiesShareTheOperationsThemselves) {
  View view;
  View const copy = view.Scalar(3);
  EXPECT_EQ(copy.Operations()[0], view.Operations()[0]);
}

}  // namespace
