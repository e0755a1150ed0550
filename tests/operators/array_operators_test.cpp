// The operators on arrays of numbers.
#include <gtest/gtest.h>

#include <limits>

#include "matrix/operators.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using Vorq::Add;
using Vorq::Mul;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::Sub;

template <class T>
NdArray<T, 0> Scalar(T value) {
  return NdArray<T, 0>::OneElement(value);
}

// The element types of the results.
template <class T, class Array>
constexpr bool kHolds = std::is_same_v<typename Array::Element, T>;

TEST(ArrayOperators, WiderTypeWins) {
  auto const integers = Scalar(2);
  auto const longs = Scalar(3LL);
  auto const doubles = Scalar(0.5);
  static_assert(kHolds<int, decltype(Add(integers, integers))>);
  static_assert(kHolds<long long, decltype(Sub(integers, longs))>);
  static_assert(kHolds<long long, decltype(Mul(longs, integers))>);
  static_assert(kHolds<double, decltype(Add(doubles, longs))>);
  static_assert(kHolds<double, decltype(Mul(integers, doubles))>);
  EXPECT_EQ(Mul(integers, doubles).Get(0), 1.0);
}

TEST(ArrayOperators, IntProductOverflowsAsIntDoes) {
  auto const big = NdArray<int, 1>::Filled(NDim<1>({1}), 65537);
  EXPECT_EQ(Mul(big, big).Get(0), 131073);
  EXPECT_EQ(Mul(big, NdArray<double, 1>::Filled(NDim<1>({1}), 65537.0)).Get(0), 4295098369.0);
  EXPECT_EQ(Mul(big, NdArray<long long, 1>::Filled(NDim<1>({1}), 65537)).Get(0), 4295098369LL);
}

TEST(ArrayOperators, LongsWrapAround) {
  constexpr long long kMax = std::numeric_limits<long long>::max();
  EXPECT_EQ(Add(Scalar(kMax), Scalar(1)).Get(0), std::numeric_limits<long long>::min());
  EXPECT_EQ(Sub(Scalar(-kMax), Scalar(2)).Get(0), kMax);
  EXPECT_EQ(Mul(Scalar(kMax), Scalar(2LL)).Get(0), -2);
}

TEST(ArrayOperators, SubOfLongAndDoubleConvertsTheLeftOne) {
  // 2^53 + 1 is no double.
  EXPECT_EQ(Sub(Scalar(9007199254740993LL), Scalar(1.0)).Get(0), 9007199254740991.0);
}

TEST(ArrayOperators, StretchesRowsAndColumns) {
  auto const column = NdArray<double, 2>::Generated(NDim<2>({2, 1}), [](std::uint64_t i) { return 10.0 * double(i); });
  auto const sum = Add(column, arrays::Counting<int, 1>({3}));
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(2, 3)");
  EXPECT_EQ(arrays::Elements(sum), (std::vector<double>{0, 1, 2, 10, 11, 12}));
}

TEST(ArrayOperators, SizeOneReadsItsElementAgain) {
  auto const five = NdArray<int, 1>::Filled(NDim<1>({1}), 5);
  EXPECT_EQ(arrays::Elements(Sub(five, arrays::Counting<int, 1>({5}))), (std::vector<int>{5, 4, 3, 2, 1}));
}

TEST(ArrayOperators, ReadsStridedOperandsInFlatOrder) {
  auto const counting = arrays::Counting<int, 2>({2, 3});
  auto const product = Mul(counting.Transpose(), arrays::Counting<int, 2>({3, 2}));
  EXPECT_EQ(arrays::Elements(product), (std::vector<int>{0, 3, 2, 12, 8, 25}));
}

TEST(ArrayOperators, EmptyOperandsGiveAnEmptyResult) {
  auto const empty = arrays::Counting<double, 2>({0, 3});
  auto const sum = Add(empty, arrays::Counting<double, 2>({0, 1}));
  EXPECT_EQ(sum.GetShape().ToString(Vorq::kSizes), "(0, 3)");
  EXPECT_EQ(sum.GetLastError(), 0);
}

TEST(ArrayOperators, EmptyAgainstSizeOneReadsADefaultElement) {
  auto const sum = Add(arrays::Counting<int, 1>({0}), NdArray<int, 1>::Filled(NDim<1>({1}), 7));
  EXPECT_EQ(arrays::Elements(sum), std::vector<int>{7});
  // A view without elements has a store all the same, and may stand behind its end.
  Vorq::View view;
  view.Slice(5, 5, 1, 0);
  auto const none = arrays::Counting<int, 1>({5}).View(view);
  EXPECT_EQ(arrays::Elements(Sub(none, NdArray<int, 1>::Filled(NDim<1>({1}), 7))), std::vector<int>{-7});
}

TEST(ArrayOperators, ArrayWithoutAStoreReadsAsZeros) {
  NdArray<double, 1> const none(NDim<1>({2}), {});
  EXPECT_EQ(arrays::Elements(Add(none, arrays::Counting<double, 1>({2}))), (std::vector<double>{0, 1}));
}

TEST(ArrayOperators, FailureIsLostInTheNextStep) {
  auto const failed = Add(arrays::Counting<int, 1>({2}), arrays::Counting<int, 1>({3}));
  EXPECT_STREQ(failed.GetErrorMessage(),
               "(INVALID) (INVALID) Operand 1 of shape (2) is not compatible with Operand 2 of shape (3)");
  auto const next = Mul(failed, Scalar(2));
  EXPECT_EQ(next.GetLastError(), 0);
  EXPECT_EQ(arrays::Elements(next), std::vector<int>{0});
}

TEST(ArrayOperators, MoreElementsThanCanBeCountedAreRefused) {
  constexpr std::uint64_t kHuge = std::uint64_t{1} << 40;
  auto const row =
      NdArray<double, 2>(NDim<2>::FromAxes({Vorq::Axis{1, 0, 0}, Vorq::Axis{kHuge, 0, 0}}), Scalar(1.0).Store());
  EXPECT_THROW(static_cast<void>(Add(row, row.Transpose())), std::bad_array_new_length);
}

}  // namespace
