// What the operations of the array service must hold, one check for each family, for operands of all kinds, ranks and
// layouts: what a result is worth at a point is what the operation gives on what the operands are worth.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "handles/item_arrays.hpp"
#include "handles/m_expressions.hpp"
#include "handles/shapes.hpp"
#include "tests/operators/operand_fixture.hpp"
#include "vorqmodel/array_helper.h"
#include "vorqmodel/exports.h"

namespace vorqtest {

using SizeList = std::vector<std::uint64_t>;

// How the cells of an operand lie in its store.
enum class Layout { kCompact, kTransposed, kReversed, kStretched };
inline constexpr Layout kLayouts[] = {Layout::kCompact, Layout::kTransposed, Layout::kReversed, Layout::kStretched};

// Coordinates of a flat index, the last axis fastest.
inline SizeList Coordinates(SizeList const& sizes, std::uint64_t index) {
  SizeList coordinates(sizes.size());
  for (std::size_t k = sizes.size(); k-- > 0; index /= sizes[k]) coordinates[k] = index % sizes[k];
  return coordinates;
}

inline std::uint64_t FlatIndex(SizeList const& sizes, SizeList const& coordinates) {
  std::uint64_t index = 0;
  for (std::size_t k = 0; k < sizes.size(); ++k) index = index * sizes[k] + coordinates[k];
  return index;
}

inline std::uint64_t Count(SizeList const& sizes) {
  std::uint64_t count = 1;
  for (std::uint64_t size : sizes) count *= size;
  return count;
}

// The cell and the rank behind an interface.
template <class Object>
struct Described;
template <class Cell, int N>
struct Described<Vorq::MatrixObject<Cell, N>> {
  using CellType = Cell;
  static constexpr int kRank = N;
};
template <class T, int N>
struct Described<Vorq::NdArray<T, N>> {
  using CellType = T;
  static constexpr int kRank = N;
};
template <class Interface>
using Implementation = typename Vorq::HandleTraits<Interface>::Handle::Impl_t;
template <class Interface>
using CellOf = typename Described<Implementation<Interface>>::CellType;
template <class Interface>
inline constexpr int kRankOf = Described<Implementation<Interface>>::kRank;

class ArrayLaw : public OperandTest {
 public:
  // An operand of these sizes behind its interface; `seed` tells operands apart.
  template <class Interface>
  std::unique_ptr<Interface> Make(SizeList const& sizes, Layout layout, int seed) const {
    return std::unique_ptr<Interface>(
        Vorq::Wrap<Interface>(Block<CellOf<Interface>, kRankOf<Interface>>(sizes, layout, seed)));
  }

  template <class Interface>
  static Outcome ReadObject(Interface* object) {
    return Read(Vorq::Unwrap(object));
  }

  // A failed result: every size 1, one cell of that worth, and the text.
  static void ExpectFailure(Outcome const& result, std::size_t rank, std::string const& text, double worth = 0.0) {
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.message, text);
    EXPECT_EQ(result.sizes, SizeList(rank, 1));
    EXPECT_EQ(result.values, std::vector<double>{worth});
  }

  // A result in cells of its own.
  static void ExpectFresh(Outcome const& result, SizeList const& sizes, std::vector<double> const& values) {
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.message, "");
    EXPECT_EQ(result.sizes, sizes);
    EXPECT_EQ(result.values, values);
    EXPECT_TRUE(result.isCompact);
  }

  // A result over the cells of the operand.
  static void ExpectView(Outcome const& result, Outcome const& operand, SizeList const& sizes,
                         std::vector<double> const& values) {
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.message, "");
    EXPECT_EQ(result.sizes, sizes);
    EXPECT_EQ(result.values, values);
    EXPECT_EQ(result.store, operand.store);
  }

  static void ExpectUnchanged(Outcome const& now, Outcome const& before) {
    EXPECT_EQ(now.sizes, before.sizes);
    EXPECT_EQ(now.values, before.values);
    EXPECT_EQ(now.store, before.store);
  }

  std::unique_ptr<Vorq::IMHelper> const helper_{CreateMHelper()};

 private:
  template <class Cell, int N>
  Vorq::BlockOf<Cell, N> Block(SizeList sizes, Layout layout, int seed) const {
    Sizes<N> array{};
    if (layout == Layout::kStretched && N > 0) sizes.front() = 1;
    std::copy_n(sizes.begin(), N, array.begin());
    if (layout == Layout::kReversed) {
      Vorq::View everySecondFromTheEnd;
      for (std::uint64_t& size : array) {
        size *= 2;
        everySecondFromTheEnd.Slice(0, 0, -2, Vorq::Slice::kStartOmitted | Vorq::Slice::kStopOmitted);
      }
      return Vorq::BlockOf<Cell, N>(MakeOperand<Cell, N>(array, seed).View(everySecondFromTheEnd));
    }
    auto block = MakeOperand<Cell, N>(array, seed, layout == Layout::kTransposed);
    if (layout != Layout::kStretched || N == 0) return block;
    // Three times the one position on the first axis.
    auto const& cells = Vorq::CellsOf(block);
    auto axes = cells.GetShape().GetAxes();
    if constexpr (N > 0) axes.front() = {3, 0, axes.front().offset};
    return Vorq::BlockOf<Cell, N>(Vorq::NdArray<Cell, N>(Vorq::NDim<N>::FromAxes(axes), cells.Store()));
  }
};

}  // namespace vorqtest
