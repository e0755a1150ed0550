// Builders: records of what is needed to add one constraint, without a model. A builder says "expression sense 0": the
// right side is folded into the constant.
#pragma once

#include <vector>

#include "items/expr.hpp"
#include "items/psd_expr.hpp"
#include "items/quad_expr.hpp"

namespace Vorq {

// A builder whose right side goes into the constant of its expression.
template <class Expression>
struct FoldedBuilder {
  Expression expr;
  char sense = 0;

 protected:
  static Expr& LinearPart(Expr& e) { return e; }
  template <class E>
  static Expr& LinearPart(E& e) {
    return e.linear;
  }

  void SetFolded(Expression const& expression, char newSense, double rhs) {
    expr = expression;
    LinearPart(expr).AddConstant(-rhs);
    sense = newSense;
  }
};

// A builder that can also state a range: bounded above by minus the constant, below by that bound minus `range`.
template <class Expression>
struct RangedBuilder : FoldedBuilder<Expression> {
  double range = 0.0;

  void Set(Expression const& expression, char newSense, double rhs) {
    this->SetFolded(expression, newSense, rhs);
    range = 0.0;
  }
  void SetRange(Expression const& expression, double newRange) {
    this->expr = expression;
    this->sense = 'R';
    range = newRange;
  }
};

struct ConstrBuilder : RangedBuilder<Expr> {};

struct PsdConstrBuilder : RangedBuilder<PsdExpr> {};

struct QConstrBuilder : FoldedBuilder<QuadExpr> {
  void Set(QuadExpr const& expression, char newSense, double rhs) { SetFolded(expression, newSense, rhs); }
};

struct SosBuilder {
  int type = 0;
  std::vector<Var> vars;
  std::vector<double> weights;

  // Appends to what a former Set left, which is meant. Null weights are 1, 2, 3 and so on, as in the solver library.
  void Set(std::vector<Var> const& variables, double const* newWeights, int newType);
};

struct ConeBuilder {
  int type = 0;
  std::vector<Var> vars;

  // Appends to what a former Set left, which is meant.
  void Set(std::vector<Var> const& variables, int newType);
};

struct ExpConeBuilder : ConeBuilder {};

struct GenConstrBuilder {
  Expr binVar;  // one term: the indicating variable with coefficient 1
  int binVal = 0;
  Expr expr;
  char sense = 0;
  int type = 0;

  // The constant of `expression` is taken as it is: the right side is expected to be in it.
  void Set(Var const& variable, int value, Expr const& expression, char newSense, int newType);
};

}  // namespace Vorq
