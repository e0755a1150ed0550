// What the dense products accept and what they give: the table of groups as a trait of cells.
//
//     ProductResult<double, Var>        // MExpression
//     ProductResult<Var, MQExpression>  // does not exist
#pragma once

#include "matrix/operators_kinds.hpp"

namespace Vorq {

template <class Left, class Right>
struct ProductGroup;

#define VORQ_PRODUCT(LeftKind, RightKind, ResultKind)                    \
  template <>                                                            \
  struct ProductGroup<OperandCells::LeftKind, OperandCells::RightKind> { \
    using Result = OperandCells::ResultKind;                             \
  };
#include "matrix/product_groups.inc"

// The cell of the result; there is none for cells that no group combines.
template <class Left, class Right>
using ProductResult = typename ProductGroup<Left, Right>::Result;

// A vector or a matrix of cells.
template <class T>
concept Factor = (T::kRank == 1 || T::kRank == 2) && requires {
  typename OperandCell<T>;
};

template <class Left, class Right>
concept Multipliable = Factor<Left> && Factor<Right> && requires {
  typename ProductResult<OperandCell<Left>, OperandCell<Right>>;
};

}  // namespace Vorq
