// MatrixConstrBuilder<Cell, N>: what is needed to add a block of constraints, without a model: a block of expressions
// and a sense. The right side is folded into the constants of the cells, so that a builder says "expression sense 0".
//
//     MConstrBuilder<1> builder(NDim<1>({3}));
//     builder.Set(lhs, 'L', 4.0);            // copies the cells of lhs, each with its constant less 4
//     builder.Set(lhs, 'E', x);              // a block: lhs - x
//     builder.SetRange(lhs, 10.0);
#pragma once

#include "items/item_arrays.hpp"
#include "matrix/matrix_object.hpp"
#include "matrix/operators.hpp"

namespace Vorq {

template <class Cell, int N>
class MatrixConstrBuilder {
 public:
  using Block = MatrixObject<Cell, N>;

  MatrixConstrBuilder() = default;
  explicit MatrixConstrBuilder(NDim<N> const& shape) : expr(shape, Cell()) {}

  void Set(Block const& lhs, char newSense, double rhs) {
    Take(Block(lhs.CopyCells()), newSense);
    expr.ForEach([rhs](Cell& cell) { LinearPart(cell).AddConstant(-rhs); });
  }

  // The element at the same flat index counts; sizes are not compared.
  template <class T>
  void Set(Block const& lhs, char newSense, NdArray<T, N> const& rhs) {
    Take(Block(lhs.CopyCells()), newSense);
    expr.SubConstants(rhs);
  }

  // A block of any rank up to N, stretched where needed. What fails is recorded in the status of `expr`.
  template <class RhsCell, int M>
  void Set(Block const& lhs, char newSense, MatrixObject<RhsCell, M> const& rhs) {
    Take(SubKeepingRank(lhs, rhs), newSense);
  }

  // From minus the constant of each cell up to `newRange`.
  void SetRange(Block const& block, double newRange) {
    Take(Block(block.CopyCells()), 'R');
    range = newRange;
    isRange = true;
  }

  // The same constraints along one axis, with cells of their own.
  MatrixConstrBuilder<Cell, 1> Flatten() const {
    MatrixConstrBuilder<Cell, 1> flat;
    if (isRange) {
      flat.SetRange(expr.Flatten(), range);
    } else {
      flat.Set(expr.Flatten(), sense, 0.0);
    }
    return flat;
  }

  Block expr;
  char sense = 0;  // none of the letters that a model takes
  double range = 0.0;
  bool isRange = false;
  Status status;

 private:
  void Take(Block&& block, char newSense) {
    expr = std::move(block);
    sense = newSense;
    range = 0.0;
    isRange = false;
  }
};

template <int N>
using MConstrBuilder = MatrixConstrBuilder<MExpression, N>;
template <int N>
using MQConstrBuilder = MatrixConstrBuilder<MQExpression, N>;
template <int N>
using MPsdConstrBuilder = MatrixConstrBuilder<PsdExpr, N>;

// One builder a cell in flat order, with all terms explicit.
template <int N>
ConstrBuilderArray ToConstrBuilderArray(MConstrBuilder<N> const& builder) {
  ConstrBuilderArray result;
  result.reserve(builder.expr.GetSize());
  builder.expr.Cells().ForEach([&](MExpression const& cell) {
    Expr expr;
    cell.AddTo(expr, 1.0);
    ConstrBuilder& single = result.emplace_back();
    if (builder.isRange) {
      single.SetRange(expr, builder.range);
    } else {
      single.Set(expr, builder.sense, 0.0);
    }
  });
  return result;
}

}  // namespace Vorq
