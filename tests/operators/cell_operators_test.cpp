// What the operators make of one pair of cells: the terms of the result, in order.
#include <limits>

#include "matrix/operators.hpp"
#include "tests/operators/operand_fixture.hpp"

namespace vorqtest {
namespace {

using Vorq::Add;
using Vorq::MExpression;
using Vorq::MQExpression;
using Vorq::Mul;
using Vorq::NdArray;
using Vorq::PsdExpr;
using Vorq::Sub;

class CellOperators : public OperandTest {
 protected:
  Vorq::MVar<0> Var(int idx) const { return MakeVars<0>({}, idx); }
  template <class Cell>
  static Vorq::MatrixObject<Cell, 0> One(Cell const& cell) {
    return {Vorq::NDim<0>(), cell};
  }
  template <class T>
  static NdArray<T, 0> Number(T value) {
    return NdArray<T, 0>::OneElement(value);
  }

  static std::string TermsOf(MExpression const& cell) { return Terms(cell.expr); }
  static std::string TermsOf(MQExpression const& cell) { return Terms(cell.expr); }
  // "1; 2 x0 | 3 X0(1, 0, 1.5)"
  static std::string TermsOf(PsdExpr const& cell) {
    std::ostringstream out;
    out << Terms(cell.linear) << " |";
    for (std::size_t i = 0; i < cell.Size(); ++i) {
      out << (i == 0 ? " " : ", ");
      Vorq::SymMatExpr const& matrix = cell.coeffs[i];
      for (std::size_t k = 0; k < matrix.Size(); ++k) {
        out << matrix.coeffs[k] << ' ' << cell.vars[i].GetName() << '(' << matrix.mats[k].row << ", "
            << matrix.mats[k].col << ", " << matrix.mats[k].value << ')';
      }
    }
    return out.str();
  }
  template <class Cell>
  static std::string Result(Vorq::MatrixObject<Cell, 0> const& block) {
    EXPECT_EQ(block.GetLastError(), 0);
    return TermsOf(block.Get(0));
  }

  // 5 + 2 x0 + 3 * (1 x1 + 0 x2)
  MExpression LinearCell() const {
    MExpression cell = LazyCell({1.0, 0.0}, 1);
    cell.scale = 3.0;
    cell.AddTerm(MakeVar("x0", 0), 2.0);
    cell.AddConstant(5.0);
    return cell;
  }
  // 4 + 1 x3 + 6 x0 x1 + 2 * (x1 x1 + x2 x2)
  MQExpression QuadraticCell() const {
    auto const vars = MakeVars<1>({2}, 1).Cells();
    MQExpression cell(vars, vars);
    cell.scale = 2.0;
    cell.AddTerm(MakeVar("x0", 0), MakeVar("x1", 1), 6.0);
    cell.AddTerm(MakeVar("x3", 3), 1.0);
    cell.AddConstant(4.0);
    return cell;
  }
  // 7 + 2 x4 + X(1, 0, 1.5)
  PsdExpr PsdCell() const {
    PsdExpr cell(MakePsdVar("X", 0, 2), Vorq::SymMatrix::Cached(2, 1, 0, 1.5));
    cell.linear.AddTerm(MakeVar("x4", 4), 2.0);
    cell.linear.AddConstant(7.0);
    return cell;
  }
};

TEST_F(CellOperators, TheSameVariableOnBothSidesGivesTwoTerms) {
  EXPECT_EQ(Result(Add(Var(0), Var(0))), "0; 1 x0, 1 x0");
  EXPECT_EQ(Result(Sub(Var(0), Var(0))), "0; 1 x0, -1 x0");
}

TEST_F(CellOperators, NumbersGoIntoTheConstant) {
  EXPECT_EQ(Result(Add(Var(0), Number(2.5))), "2.5; 1 x0");
  EXPECT_EQ(Result(Sub(Number(3), Var(0))), "3; -1 x0");
  EXPECT_EQ(Result(Sub(Var(0), Number(3))), "-3; 1 x0");
  EXPECT_EQ(Result(Add(Number(2), One(PsdCell()))), "9; 2 x4 | 1 X(1, 0, 1.5)");
  EXPECT_EQ(Result(Sub(One(QuadraticCell()), Number(0.5))), "3.5; 1 x3 | 6 x0 x1, 2 x1 x1, 2 x2 x2");
}

TEST_F(CellOperators, SubtractingTheNumberZeroLeavesNoNegativeZero) {
  EXPECT_FALSE(std::signbit(Sub(Var(0), Number(0)).Get(0).GetConstant()));
  EXPECT_FALSE(std::signbit(Sub(Var(0), Number(0.0)).Get(0).GetConstant()));
}

TEST_F(CellOperators, LazyPartsBecomeExplicitTerms) {
  auto const sum = Add(One(LinearCell()), Var(9));
  EXPECT_EQ(Result(sum), "5; 2 x0, 3 x1, 0 x2, 1 x9");
  EXPECT_EQ(sum.Get(0).LazySize(), 0U);
  EXPECT_EQ(Result(Sub(Var(9), One(LinearCell()))), "-5; 1 x9, -2 x0, -3 x1, -0 x2");
  EXPECT_EQ(Result(Add(One(LinearCell()), One(QuadraticCell()))),
            "9; 2 x0, 3 x1, 0 x2, 1 x3 | 6 x0 x1, 2 x1 x1, 2 x2 x2");
  EXPECT_EQ(Result(Sub(One(LinearCell()), One(QuadraticCell()))),
            "1; 2 x0, 3 x1, 0 x2, -1 x3 | -6 x0 x1, -2 x1 x1, -2 x2 x2");
}

TEST_F(CellOperators, PsdTermsAreAppendedAndNegated) {
  EXPECT_EQ(Result(Sub(One(PsdCell()), One(PsdCell()))), "0; 2 x4, -2 x4 | 1 X(1, 0, 1.5), -1 X(1, 0, 1.5)");
  EXPECT_EQ(Result(Add(Var(0), One(PsdCell()))), "7; 1 x0, 2 x4 | 1 X(1, 0, 1.5)");
}

TEST_F(CellOperators, LinearCellEntersAPsdCellInItsExplicitForm) {
  EXPECT_EQ(Result(Add(One(PsdCell()), One(LinearCell()))), "12; 2 x4, 2 x0, 3 x1, 0 x2 | 1 X(1, 0, 1.5)");
  // Subtracted from a PSD cell a factor of 0 has no sign, unlike in a linear one.
  EXPECT_EQ(Result(Sub(One(PsdCell()), One(LinearCell()))), "2; 2 x4, -2 x0, -3 x1, 0 x2 | 1 X(1, 0, 1.5)");
}

TEST_F(CellOperators, ProductOfVariablesIsOneTerm) {
  EXPECT_EQ(Result(Mul(Var(2), Var(1))), "0; | 1 x2 x1");
}

TEST_F(CellOperators, CellStandsBeforeTheVariableOnEitherSide) {
  char const* const expected = "0; 5 x9 | 2 x0 x9, 3 x1 x9, 0 x2 x9";
  EXPECT_EQ(Result(Mul(One(LinearCell()), Var(9))), expected);
  EXPECT_EQ(Result(Mul(Var(9), One(LinearCell()))), expected);
}

TEST_F(CellOperators, ProductOfCellsMultipliesAllTerms) {
  auto const product = Mul(One(LinearCell()), One(LinearCell()));
  EXPECT_EQ(ValueOf(product.Get(0)), ValueOf(LinearCell()) * ValueOf(LinearCell()));
  EXPECT_EQ(product.Get(0).expr.linear.constant, 25.0);
  EXPECT_EQ(product.Get(0).LazySize(), 0U);
}

TEST_F(CellOperators, VariableTimesZeroKeepsItsTerm) {
  EXPECT_EQ(Result(Mul(Number(0.0), Var(0))), "0; 0 x0");
  EXPECT_EQ(Result(Mul(Var(0), Number(0))), "0; 0 x0");
}

TEST_F(CellOperators, LinearCellTimesANumber) {
  EXPECT_EQ(Result(Mul(Number(2.0), One(LinearCell()))), "10; 4 x0, 6 x1, 0 x2");
  EXPECT_EQ(Result(Mul(One(LinearCell()), Number(-1))), "-5; -2 x0, -3 x1, 0 x2");
}

TEST_F(CellOperators, LinearCellTimesZeroKeepsItsLazyTermsOnly) {
  EXPECT_EQ(Result(Mul(Number(0.0), One(LinearCell()))), "0; 0 x1, 0 x2");
  EXPECT_EQ(Result(Mul(One(LinearCell()), Number(0))), "0; 0 x1, 0 x2");
}

TEST_F(CellOperators, LazyFactorsKeepNanAndZero) {
  MExpression cell = LazyCell({std::numeric_limits<double>::quiet_NaN(), 0.0});
  cell.scale = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Result(Mul(One(cell), Number(2.0))), "0; nan x0, 0 x1");
  EXPECT_EQ(Result(Add(One(cell), Number(0.0))), "0; nan x0, 0 x1");
}

TEST_F(CellOperators, QuadraticCellTimesANumber) {
  EXPECT_EQ(Result(Mul(Number(3.0), One(QuadraticCell()))), "12; 3 x3 | 18 x0 x1, 6 x1 x1, 6 x2 x2");
  EXPECT_EQ(Result(Mul(One(QuadraticCell()), Number(0))), "0; |");
}

TEST_F(CellOperators, PsdCellTimesANumber) {
  EXPECT_EQ(Result(Mul(Number(2), One(PsdCell()))), "14; 4 x4 | 2 X(1, 0, 1.5)");
  EXPECT_EQ(Result(Mul(One(PsdCell()), Number(0.0))), "0; 0 x4 | 0 X(1, 0, 1.5)");
}

TEST_F(CellOperators, OperandsAreNotChanged) {
  auto const cell = One(LinearCell());
  static_cast<void>(Mul(cell, Number(0.0)));
  EXPECT_EQ(cell.Get(0).LazySize(), 2U);
  EXPECT_EQ(cell.Get(0).scale, 3.0);
  EXPECT_EQ(TermsOf(cell.Get(0)), "5; 2 x0");
}

}  // namespace
}  // namespace vorqtest
