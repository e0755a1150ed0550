// Cells together with the elements of other arrays at the same flat index.
#include "matrix/paired_cells.hpp"

#include "ndarray/nd_array_numbers.hpp"
#include "tests/matrix/matrix_fixture.hpp"
#include "tests/ndarray/arrays.hpp"

namespace vorqtest {
namespace {

using testing::ElementsAre;
using Vorq::ForEachPair;
using Vorq::NdArray;
using Vorq::NDim;
using Vorq::SharedPtr;
using Vorq::View;

class PairedCellsTest : public MatrixTest {
 protected:
  // The pairs that are met, as cell * 100 + element.
  template <int N>
  static std::vector<double> Pairs(NdArray<double, N> const& cells, NdArray<double, N> const& elements) {
    std::vector<double> pairs;
    ForEachPair([&](double cell, double element) { pairs.push_back(cell * 100 + element); }, cells, elements);
    return pairs;
  }
};

TEST_F(PairedCellsTest, EachArrayIsReadByItsOwnStrides) {
  auto const cells = Numbers<2>({2, 2}, {1, 2, 3, 4});
  auto const elements = Numbers<2>({2, 2}, {5, 6, 7, 8}).Transpose();
  EXPECT_THAT(Pairs(cells, elements), ElementsAre(105, 207, 306, 408));
  EXPECT_THAT(Pairs(elements, cells), ElementsAre(501, 702, 603, 804));
}

TEST_F(PairedCellsTest, ThreeArraysGoTogether) {
  double sum = 0.0;
  ForEachPair([&](double a, double b, double c) { sum += a * b * c; }, Numbers<1>({2}, {1, 2}), Numbers<1>({2}, {3, 4}),
              Numbers<1>({2}, {5, 6}));
  EXPECT_EQ(sum, 1 * 3 * 5 + 2 * 4 * 6.0);
}

TEST_F(PairedCellsTest, ShapesOfOtherSizesAreReadByFlatIndex) {
  EXPECT_THAT(Pairs(Numbers<2>({2, 2}, {1, 2, 3, 4}), Numbers<2>({1, 4}, {5, 6, 7, 8})),
              ElementsAre(105, 206, 307, 408));
}

TEST_F(PairedCellsTest, AShorterViewIsReadOnByItsStrides) {
  View firstTwo;
  firstTwo.Slice(0, 2, 1, 0);
  auto const elements = Numbers<1>({4}, {5, 6, 7, 8}).View(firstTwo);
  EXPECT_THAT(Pairs(Numbers<1>({3}, {1, 2, 3}), elements), ElementsAre(105, 206, 307));
}

TEST_F(PairedCellsTest, CellsBehindTheEndOfAStoreAreLeftOut) {
  EXPECT_THAT(Pairs(Numbers<1>({3}, {1, 2, 3}), Numbers<1>({2}, {5, 6})), ElementsAre(105, 206));
  EXPECT_THAT(Pairs(Numbers<1>({3}, {1, 2, 3}), NdArray<double, 1>()), ElementsAre());
}

TEST_F(PairedCellsTest, BorrowedMemoryIsReadOnByItsStrides) {
  double numbers[] = {5, 6, 7};
  NdArray<double, 1> const elements(NDim<1>({2}), SharedPtr<double>(numbers, 0));
  EXPECT_THAT(Pairs(Numbers<1>({3}, {1, 2, 3}), elements), ElementsAre(105, 206, 307));
}

TEST_F(PairedCellsTest, TheCellsAreCounted) {
  EXPECT_THAT(Pairs(Numbers<1>({1}, {1}), Numbers<1>({3}, {5, 6, 7})), ElementsAre(105));
  EXPECT_THAT(Pairs(NdArray<double, 1>(), Numbers<1>({3}, {5, 6, 7})), ElementsAre());
}

TEST_F(PairedCellsTest, ARepeatedCellIsMetAsOftenAsTheShapeRepeatsIt) {
  auto const repeated = arrays::Stretched(Numbers<1>({1}, {1}), NDim<1>({3}));
  EXPECT_THAT(Pairs(repeated, Numbers<1>({3}, {5, 6, 7})), ElementsAre(105, 106, 107));
}

TEST_F(PairedCellsTest, RankZeroMeetsOnePair) {
  EXPECT_THAT(Pairs(Numbers<0>({}, {1}), Numbers<0>({}, {5})), ElementsAre(105));
}

}  // namespace
}  // namespace vorqtest
