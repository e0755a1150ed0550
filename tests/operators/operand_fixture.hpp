// Operands of all kinds and ranks for the operators, and what their cells are worth at a point.
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "handles/nd_array.hpp"
#include "matrix/operators.hpp"
#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {

// What can be asked of a block or an array, whatever its cells and its rank are.
struct Outcome {
  std::vector<std::uint64_t> sizes;
  bool isCompact = false;
  std::vector<double> values;  // of the cells at the point of MatrixTest, in flat order
  void const* store = nullptr;
  int code = 0;
  std::string message;
};

class OperandTest : public MatrixTest {
 public:
  using MatrixTest::ValueOf;
  // Constraints are worth as much as variables at the same position; nothing is worth 0.
  template <class Item>
  requires Vorq::kIsItem<Item>
  static double ValueOf(Item const& item) { return item.Idx() + 2.0; }
  static double ValueOf(double number) { return number; }
  static double ValueOf(long long number) { return static_cast<double>(number); }
  static double ValueOf(int number) { return number; }
  // A PSD variable at position i is worth i + 2 times the sum of the entries.
  static double ValueOf(Vorq::PsdExpr const& expr) {
    double value = ValueOf(expr.linear);
    for (std::size_t i = 0; i < expr.Size(); ++i) {
      Vorq::SymMatExpr const& matrix = expr.coeffs[i];
      for (std::size_t k = 0; k < matrix.Size(); ++k) {
        value += matrix.coeffs[k] * matrix.mats[k].value * (expr.vars[i].Idx() + 2.0);
      }
    }
    return value;
  }

  template <class Block>
  static Outcome Read(Block const& block) {
    auto const& cells = Vorq::CellsOf(block);
    Outcome outcome;
    for (Vorq::Axis const& axis : cells.GetShape().GetAxes()) outcome.sizes.push_back(axis.size);
    outcome.isCompact = cells.GetShape().IsContiguous() && cells.GetShape().Start() == 0;
    for (std::uint64_t i = 0; i < cells.GetSize(); ++i) outcome.values.push_back(ValueOf(cells.Get(i)));
    outcome.store = cells.Store().Get();
    outcome.code = block.GetLastError();
    outcome.message = block.GetErrorMessage() == nullptr ? "" : block.GetErrorMessage();
    return outcome;
  }

  // Reads and deletes an object that an operation returned.
  template <class Interface>
  static Outcome Take(Interface* object) {
    std::unique_ptr<Interface> const owner(object);
    return Read(Vorq::Unwrap(object));
  }

  // The cell that stands at flat index i of an operand; `seed` tells operands apart.
  template <class Cell>
  Cell MakeCell(std::uint64_t i, int seed) const {
    int const number = static_cast<int>(i) + seed;
    if constexpr (std::is_arithmetic_v<Cell>) {
      // Every fifth number is 0; doubles are no whole numbers.
      return static_cast<Cell>(number % 5 - 2) * (std::is_same_v<Cell, double> ? static_cast<Cell>(0.5) : Cell(1));
    } else {
      return MakeModelCell(Type<Cell>(), number);
    }
  }

  // A block or an array of such cells, its cells lying in the store in reverse order of the axes when it is `strided`.
  template <class Cell, int N>
  Vorq::BlockOf<Cell, N> MakeOperand(Sizes<N> sizes, int seed, bool strided = false) const {
    if (strided) std::reverse(sizes.begin(), sizes.end());
    auto cells = Vorq::NdArray<Cell, N>::Generated(Vorq::NDim<N>(sizes),
                                                   [&](std::uint64_t i) { return MakeCell<Cell>(i, seed); });
    return Vorq::BlockOf<Cell, N>(strided ? cells.Transpose() : cells);
  }

 private:
  template <class Cell>
  struct Type {};

  Vorq::Var Item(int number) const { return MakeCell<Vorq::Var>(0, number); }

  template <class Item>
  requires Vorq::kIsItem<Item> Item MakeModelCell(Type<Item>, int number)
  const { return Make<Item>("x" + std::to_string(number), number); }

  // Explicit, lazy, or both.
  Vorq::MExpression MakeModelCell(Type<Vorq::MExpression>, int number) const {
    Vorq::MExpression cell;
    if (number % 3 != 0) cell = LazyCell({1.0, 0.0, -2.0}, number);
    if (number % 3 != 0) cell.scale = 3.0;
    if (number % 3 != 1) cell.AddTerm(Item(number + 1), 2.0);
    if (number % 3 != 1) cell.AddTerm(Item(number), -1.0);
    cell.AddConstant(number - 3.0);
    return cell;
  }

  // Explicit, or with a lazy product of variables or of cells.
  Vorq::MQExpression MakeModelCell(Type<Vorq::MQExpression>, int number) const {
    Vorq::MQExpression cell;
    auto const vars = MakeVars<1>({2}, number).Cells();
    auto const lins = Vorq::NdArray<Vorq::MExpression, 1>::Generated(
        Vorq::NDim<1>({2}), [&](std::uint64_t i) { return MakeCell<Vorq::MExpression>(i, number); });
    if (number % 4 == 1) cell = Vorq::MQExpression(vars, vars);
    if (number % 4 == 2) cell = Vorq::MQExpression(vars, lins);
    if (number % 4 == 3) cell = Vorq::MQExpression(lins, lins);
    if (number % 4 != 0) cell.scale = -2.0;
    cell.AddTerm(Item(number), Item(number + 1), 3.0);
    cell.AddTerm(Item(number), 1.0);
    cell.AddConstant(number);
    return cell;
  }

  Vorq::PsdExpr MakeModelCell(Type<Vorq::PsdExpr>, int number) const {
    Vorq::PsdExpr cell;
    cell.AddTerm(MakePsdVar("X" + std::to_string(number), number, 2), Vorq::SymMatrix::Cached(2, 1, 0, 1.5));
    if (number % 2 == 0) cell.AddTerm(MakePsdVar("Y", number + 1, 2), Vorq::SymMatrix::Cached(2, 1, 1, 4.0));
    cell.linear.AddTerm(Item(number), 2.0);
    cell.linear.AddConstant(number + 1.0);
    return cell;
  }
};

}  // namespace vorqtest
