// What arrays allocate and copy: views, transposes and stretched arrays share the store.
#include <gtest/gtest.h>

#include <functional>

#include "ndarray/nd_array_operations.hpp"
#include "ndarray/rank_change.hpp"
#include "tests/ndarray/arrays.hpp"
#include "tests/support/allocations.hpp"

namespace {

using Vorq::NdArray;
using Vorq::NDim;
using Vorq::View;
using vorqtest::allocatedBytes;

constexpr std::uint64_t kSide = 1000;

// Bytes that `work` allocates.
template <class Work>
std::size_t Allocated(Work&& work) {
  std::size_t const before = allocatedBytes;
  work();
  return allocatedBytes - before;
}

// A cell that counts itself.
struct Cell {
  Cell() { ++live; }
  explicit Cell(int number) : value(number) { ++live; }
  Cell(Cell const& other) : value(other.value) {
    ++live;
    ++copies;
  }
  Cell& operator=(Cell const& other) {
    value = other.value;
    ++copies;
    return *this;
  }
  ~Cell() { --live; }

  int value = 0;

  static inline int live = 0;
  static inline int copies = 0;
};

class Memory : public testing::Test {
 protected:
  Memory() { Cell::copies = 0; }
  ~Memory() override { EXPECT_EQ(Cell::live, 0); }
};

TEST_F(Memory, NoShapeOfAMillionNumbersAllocates) {
  auto const array = NdArray<double, 2>::Filled(NDim<2>({kSide, kSide}), 1.0);
  View view;
  view.Slice(0, 0, -2, 6);
  view.Slice(1, 900, 3, 0);
  NDim<1> const flat({kSide * kSide});
  EXPECT_EQ(Allocated([&] { static_cast<void>(array.Transpose()); }), 0U);
  EXPECT_EQ(Allocated([&] { static_cast<void>(array.View(view)); }), 0U);
  EXPECT_EQ(Allocated([&] { static_cast<void>(array.Flatten()); }), 0U);
  EXPECT_EQ(Allocated([&] { static_cast<void>(array.Reshape(flat)); }), 0U);
  EXPECT_EQ(Allocated([&] { static_cast<void>(Vorq::ExpandDims(array, 1)); }), 0U);
  EXPECT_EQ(Allocated([&] { static_cast<void>(Vorq::Squeeze(Vorq::ExpandDims(array, 0), 0)); }), 0U);
  EXPECT_EQ(Allocated([&] { static_cast<void>(Vorq::Diagonal(array, 3, 0, 1)); }), 0U);
}

TEST_F(Memory, NoShapeOfAMillionCellsCopiesACell) {
  auto const array = NdArray<Cell, 2>::Fresh(NDim<2>({kSide, kSide}));
  View view;
  view.Slice(0, 0, -1, 6);
  EXPECT_EQ(Cell::live, static_cast<int>(kSide * kSide));
  EXPECT_EQ(Allocated([&] {
              auto const seen = array.Transpose().View(view);
              static_cast<void>(Vorq::Diagonal(seen, 1, 0, 1));
              static_cast<void>(array.Reshape(NDim<3>({10, 100, kSide})));
            }),
            0U);
  EXPECT_EQ(Cell::live, static_cast<int>(kSide * kSide));
  EXPECT_EQ(Cell::copies, 0);
}

TEST_F(Memory, OperationsThatCopyCopyEachCellOnce) {
  auto const array = NdArray<Cell, 2>::Generated(NDim<2>({4, 5}), [](std::uint64_t i) { return Cell(int(i)); });
  struct {
    char const* name;
    int cells;
    std::function<void()> work;
  } const cases[] = {
      {"Flatten", 20, [&] { static_cast<void>(array.Transpose().Flatten()); }},
      {"Reshape", 20,
       [&] {
         static_cast<void>(array.Transpose().Reshape(NDim<2>({10, 2})));
       }},
      {"Repeat", 60, [&] { static_cast<void>(array.Transpose().Repeat(3, 0)); }},
      {"RepeatBlock", 60, [&] { static_cast<void>(array.RepeatBlock(3, 1)); }},
      {"Pick", 3, [&] { static_cast<void>(array.Pick(arrays::Counting<int, 1>({3}))); }},
      {"PickAt", 2,
       [&] {
         static_cast<void>(array.PickAt(arrays::Counting<int, 2>({2, 2})));
       }},
  };
  for (auto const& [name, cells, work] : cases) {
    Cell::copies = 0;
    work();
    EXPECT_EQ(Cell::copies, cells) << name;
  }
}

TEST_F(Memory, StoreLivesAsLongAsItsLastView) {
  NdArray<Cell, 2> seen;
  {
    auto const array = NdArray<Cell, 2>::Generated(NDim<2>({2, 3}), [](std::uint64_t i) { return Cell(int(i)); });
    seen = array.Transpose();
  }
  EXPECT_EQ(Cell::live, 6);
  EXPECT_EQ(seen.Get(1).value, 3);
}

TEST_F(Memory, OneCellIsASingleObject) {
  auto const one = NdArray<Cell, 2>::OneElement(Cell(7));
  auto const scalar = NdArray<Cell, 0>::Fresh(NDim<0>());
  EXPECT_EQ(one.Store().Block()->count, 1U);
  EXPECT_EQ(scalar.Store().Block()->count, 1U);
  EXPECT_EQ(Cell::live, 2);
  EXPECT_EQ(one.Get(0).value, 7);
}

TEST_F(Memory, SettingACellToItselfDoesNothing) {
  auto array = NdArray<Cell, 1>::Fresh(NDim<1>({2}));
  array.Set(1, array.Store()[1]);
  EXPECT_EQ(Cell::copies, 0);
}

}  // namespace
