// Texts of arrays.
#include <gtest/gtest.h>

#include <limits>
#include <locale>

#include "ndarray/printer.hpp"
#include "tests/ndarray/arrays.hpp"

namespace {

using arrays::Counting;
using arrays::OfInts;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::ToString;

constexpr std::uint64_t kAll = 1000;

TEST(Printer, OfEachRank) {
  EXPECT_EQ(ToString(NdArray<int, 0>::OneElement(5), kAll), "5");
  EXPECT_EQ(ToString(Counting<int, 1>({3}), kAll), "[0, 1, 2]\n");
  EXPECT_EQ(ToString(OfInts<2>({2, 2}, {1, 2, 3, 4}), kAll), "[[1, 2]\n [3, 4]\n]\n");
  EXPECT_EQ(ToString(Counting<int, 3>({2, 2, 2}), kAll),
            "[[[0, 1]\n"
            "  [2, 3]\n"
            " ]\n"
            " [[4, 5]\n"
            "  [6, 7]\n"
            " ]\n"
            "]\n");
}

TEST(Printer, OfAxesOfSizeOne) {
  EXPECT_EQ(ToString(Counting<int, 1>({1}), kAll), "[0]\n");
  EXPECT_EQ(ToString(Counting<int, 3>({1, 1, 1}), kAll), "[[[0]\n ]\n]\n");
}

TEST(Printer, OfAxesOfSizeZero) {
  EXPECT_EQ(ToString(Counting<int, 1>({0}), kAll), "[]\n");
  EXPECT_EQ(ToString(Counting<int, 2>({0, 3}), kAll), "[]\n");
  EXPECT_EQ(ToString(Counting<int, 2>({2, 0}), kAll), "[[]\n []\n]\n");
  EXPECT_EQ(ToString(Counting<int, 3>({2, 0, 3}), kAll), "[[]\n []\n]\n");
}

TEST(Printer, ReadsThroughTheShape) {
  EXPECT_EQ(ToString(Counting<int, 2>({2, 2}).Transpose(), kAll), "[[0, 2]\n [1, 3]\n]\n");
}

TEST(Printer, OfEachElementType) {
  EXPECT_EQ(ToString(NdArray<char, 1>::Generated(NDim<1>({3}), [](std::uint64_t i) { return "CIB"[i]; }), kAll),
            "[C, I, B]\n");
  EXPECT_EQ(ToString(NdArray<long long, 1>::Filled(NDim<1>({1}), std::numeric_limits<long long>::min()), kAll),
            "[-9223372036854775808]\n");
  double const numbers[] = {1.0, 0.1, 1.0 / 3, 1234567.0, 1e-7, -2.5, 1e30, std::numeric_limits<double>::infinity()};
  auto const doubles = NdArray<double, 1>::Generated(NDim<1>({8}), [&](std::uint64_t i) { return numbers[i]; });
  EXPECT_EQ(ToString(doubles, kAll), "[1, 0.1, 0.333333, 1.23457e+06, 1e-07, -2.5, 1e+30, inf]\n");
}

TEST(Printer, LimitOfZeroStopsBeforeTheFirstElement) {
  EXPECT_EQ(ToString(Counting<int, 1>({3}), 0), "[...");
  EXPECT_EQ(ToString(Counting<int, 3>({2, 2, 2}), 0), "[[[...");
}

struct LimitCase {
  std::uint64_t limit;
  char const* text;
};

// Of [0, 1, 2]: the text has 1, 4 and 7 characters before its elements.
TEST(Printer, LimitIsHeldAgainstTheTextBeforeEachElement) {
  LimitCase const cases[] = {{1, "[..."},       {2, "[0, ..."},     {4, "[0, ..."},    {5, "[0, 1, ..."},
                             {7, "[0, 1, ..."}, {8, "[0, 1, 2]\n"}, {9, "[0, 1, 2]\n"}};
  for (auto const& [limit, text] : cases) EXPECT_EQ(ToString(Counting<int, 1>({3}), limit), text) << limit;
}

TEST(Printer, LimitInALaterRowLeavesAllBracketsOpen) {
  // "[[0, 1]", a line end and " [" are 10 characters.
  EXPECT_EQ(ToString(Counting<int, 2>({2, 2}), 10), "[[0, 1]\n [...");
  EXPECT_EQ(ToString(Counting<int, 2>({2, 2}), 11), "[[0, 1]\n [2, ...");
  EXPECT_EQ(ToString(Counting<int, 3>({2, 2, 2}), 28), "[[[0, 1]\n  [2, 3]\n ]\n [[4, 5]\n  [...");
}

TEST(Printer, LimitDoesNotBoundRankZeroNorAnArrayWithoutElements) {
  EXPECT_EQ(ToString(NdArray<int, 0>::OneElement(123456), 0), "123456");
  EXPECT_EQ(ToString(Counting<int, 1>({0}), 0), "[]\n");
}

TEST(Printer, TakesTheElementsTextFromTheCaller) {
  auto const text = Vorq::PrintArray(Counting<int, 2>({2, 1}), kAll,
                                     [](std::ostream& stream, int element) { stream << "x" << element; });
  EXPECT_EQ(text, "[[x0]\n [x1]\n]\n");
}

struct CommaPoint : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Printer, IsTheSameInEachLocale) {
  std::locale const before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  std::string const text = ToString(NdArray<double, 1>::Filled(NDim<1>({2}), 12345.5), kAll);
  std::locale::global(before);
  EXPECT_EQ(text, "[12345.5, 12345.5]\n");
}

}  // namespace
