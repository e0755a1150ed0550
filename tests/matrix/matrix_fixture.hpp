// The base of tests of cells, blocks and builders: items of the recording double in arrays, and what expressions hold
// as texts.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "matrix/matrix_object.hpp"
#include "matrix/nda_from_array.hpp"
#include "tests/items/items_fixture.hpp"

namespace vorqtest {

class MatrixTest : public ItemsTest {
 protected:
  template <int N>
  using Sizes = typename Vorq::NDim<N>::Sizes;

  // Items at positions first, first + 1, ... named x0, x1, ... by their positions.
  template <class Item>
  std::vector<Item> MakeItems(int count, int first = 0) const {
    std::vector<Item> items;
    for (int i = first; i < first + count; ++i) items.push_back(Make<Item>("x" + std::to_string(i), i));
    return items;
  }

  // A block of such items, in flat order.
  template <class Item, int N>
  Vorq::MatrixObject<Item, N> MakeBlock(Sizes<N> const& sizes, int first = 0) const {
    Vorq::NDim<N> const shape(sizes);
    std::vector<Item> const items = MakeItems<Item>(static_cast<int>(shape.GetSize()), first);
    return Vorq::MatrixObject<Item, N>(Vorq::NdArray<Item, N>(shape, Vorq::NdaFromArray<Item>(items).Store()));
  }
  template <int N>
  Vorq::MVar<N> MakeVars(Sizes<N> const& sizes, int first = 0) const {
    return MakeBlock<Vorq::Var, N>(sizes, first);
  }

  // Numbers in flat order.
  template <int N>
  static Vorq::NdArray<double, N> Numbers(Sizes<N> const& sizes, std::vector<double> const& values) {
    return Vorq::NdArray<double, N>::Generated(Vorq::NDim<N>(sizes), [&](std::uint64_t i) { return values[i]; });
  }

  // A cell that holds the lazy product of the numbers with x<first>, x<first + 1>, ...
  Vorq::MExpression LazyCell(std::vector<double> const& coeffs, int first = 0) const {
    std::uint64_t const size = coeffs.size();
    return {Numbers<1>({size}, coeffs), MakeVars<1>({size}, first).Cells()};
  }

  // All that an expression holds, also what its own text leaves out: "2.5; 1 x0, 0 x1".
  static std::string Terms(Vorq::Expr const& expr) {
    std::ostringstream out;
    out << expr.constant << ';';
    for (std::size_t i = 0; i < expr.Size(); ++i) {
      out << (i == 0 ? " " : ", ") << expr.coeffs[i] << ' ' << expr.vars[i].GetName();
    }
    return out.str();
  }
  static std::string Terms(Vorq::QuadExpr const& expr) {
    std::ostringstream out;
    out << Terms(expr.linear) << " |";
    for (std::size_t i = 0; i < expr.Size(); ++i) {
      out << (i == 0 ? " " : ", ") << expr.coeffs[i] << ' ' << expr.vars1[i].GetName() << ' '
          << expr.vars2[i].GetName();
    }
    return out.str();
  }

  // The values at the point where the variable at position i has the value i + 2.
  static double ValueOf(Vorq::Var const& var) { return var.Idx() + 2.0; }
  static double ValueOf(Vorq::Expr const& expr) {
    double value = expr.constant;
    for (std::size_t i = 0; i < expr.Size(); ++i) value += expr.coeffs[i] * ValueOf(expr.vars[i]);
    return value;
  }
  static double ValueOf(Vorq::QuadExpr const& expr) {
    double value = ValueOf(expr.linear);
    for (std::size_t i = 0; i < expr.Size(); ++i) {
      value += expr.coeffs[i] * ValueOf(expr.vars1[i]) * ValueOf(expr.vars2[i]);
    }
    return value;
  }
  static double ValueOf(Vorq::MExpression const& cell) {
    double value = ValueOf(cell.ExplicitPart());
    for (std::uint64_t i = 0; i < cell.vars.Size(); ++i) value += cell.scale * cell.coeffs[i] * ValueOf(cell.vars[i]);
    return value;
  }
  static double ValueOf(Vorq::ProductSide const& side, std::uint64_t i) {
    return side.kind == Vorq::SideKind::kVars ? ValueOf(side.vars[i]) : ValueOf(side.lins[i]);
  }
  static double ValueOf(Vorq::MQExpression const& cell) {
    double value = ValueOf(cell.expr);
    for (std::uint64_t i = 0; i < cell.side1.Size(); ++i) {
      value += cell.scale * ValueOf(cell.side1, i) * ValueOf(cell.side2, i);
    }
    return value;
  }

  // The names of the items of a block in flat order: "x0 x1".
  template <class Item, int N>
  static std::string Names(Vorq::MatrixObject<Item, N> const& block) {
    std::string names;
    for (std::uint64_t i = 0; i < block.GetSize(); ++i) {
      names += (i == 0 ? "" : " ") + std::string(block.Get(i).GetName());
    }
    return names;
  }

  template <class Cell, int N, int M>
  static bool ShareStore(Vorq::MatrixObject<Cell, N> const& a, Vorq::MatrixObject<Cell, M> const& b) {
    return a.Cells().Store() == b.Cells().Store();
  }

  template <class T, int N>
  static std::vector<T> Elements(Vorq::NdArray<T, N> const& array) {
    std::vector<T> elements;
    for (std::uint64_t i = 0; i < array.GetSize(); ++i) elements.push_back(array.Get(i));
    return elements;
  }
};

}  // namespace vorqtest
