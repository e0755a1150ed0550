// Builders: what is needed to add one constraint, without a model. The right side is folded into the constant of the
// expression, so that a builder says: expression sense 0. A null object changes nothing, and a position outside of a
// list gives a variable that stands for nothing, or 0.
#ifndef VORQMODEL_BUILDERS_H
#define VORQMODEL_BUILDERS_H

#include <vector>

#include "vorqmodel/forward.h"

namespace Vorq {

// A linear constraint. A range, sense 'R', is bounded above by minus the constant of the expression, and below by that
// bound minus the range.
class IConstrBuilder {
 public:
  virtual ~IConstrBuilder() = default;

  // A copy of the expression, right side included, owned by the caller.
  virtual IExpr* GetExpr() = 0;
  // 'E', 'G', 'L', 'N' or 'R'; 0 before the first Set.
  virtual char GetSense() = 0;
  // The width of a range, otherwise 0.
  virtual double GetRange() = 0;
  // Takes a copy of `expr`, with `rhs` taken off its constant.
  virtual void Set(IExpr* expr, char sense, double rhs) = 0;
  // Takes a copy of `expr` as it is; the sense becomes 'R'.
  virtual void SetRange(IExpr* expr, double range) = 0;
};

// A quadratic constraint.
class IQConstrBuilder {
 public:
  virtual ~IQConstrBuilder() = default;

  // A copy of the expression, right side included, owned by the caller.
  virtual IQuadExpr* GetQuadExpr() = 0;
  // 'E', 'G' or 'L'; 0 before the first Set.
  virtual char GetSense() = 0;
  // Takes a copy of `quadExpr`, with `rhs` taken off its constant.
  virtual void Set(IQuadExpr* quadExpr, char sense, double rhs) = 0;
};

// A constraint on a PSD expression; ranges are those of IConstrBuilder.
class IPsdConstrBuilder {
 public:
  virtual ~IPsdConstrBuilder() = default;

  // A copy of the expression, right side included, owned by the caller.
  virtual IPsdExpr* GetPsdExpr() = 0;
  // 'E', 'G', 'L', 'N' or 'R'; 0 before the first Set.
  virtual char GetSense() = 0;
  // The width of a range, otherwise 0.
  virtual double GetRange() = 0;
  // Takes a copy of `psdExpr`, with `rhs` taken off its constant.
  virtual void Set(IPsdExpr* psdExpr, char sense, double rhs) = 0;
  // Takes a copy of `psdExpr` as it is; the sense becomes 'R'.
  virtual void SetRange(IPsdExpr* psdExpr, double range) = 0;
};

// A special ordered set: variables with weights.
class ISosBuilder {
 public:
  virtual ~ISosBuilder() = default;

  // 1 or 2; 0 before the first Set.
  virtual int GetType() = 0;
  // The number of variables.
  virtual int GetSize() = 0;
  // Variable `i`, a new handle owned by the caller.
  virtual IVar* GetVar(int i) = 0;
  // A copy of the list, owned by the caller.
  virtual IVarArray* GetVars() = 0;
  virtual double GetWeight(int i) = 0;
  // Writes GetSize() weights to `out` and returns their number.
  virtual int GetWeights(double* out) = 0;
  // Takes the type, and appends the variables and as many weights to those that are there.
  virtual void Set(IVarArray* vars, double const* weights, int type) = 0;
};

// A second-order cone.
class IConeBuilder {
 public:
  virtual ~IConeBuilder() = default;

  // The type; 0 before the first Set.
  virtual int GetType() = 0;
  // The number of variables.
  virtual int GetSize() = 0;
  // Variable `i`, a new handle owned by the caller.
  virtual IVar* GetVar(int i) = 0;
  // A copy of the list, owned by the caller.
  virtual IVarArray* GetVars() = 0;
  // Takes the type, and appends the variables to those that are there.
  virtual void Set(IVarArray* vars, int type) = 0;
};

// An exponential cone.
class IExpConeBuilder {
 public:
  virtual ~IExpConeBuilder() = default;

  // The type; 0 before the first Set.
  virtual int GetType() = 0;
  // The number of variables.
  virtual int GetSize() = 0;
  // Variable `i`, a new handle owned by the caller.
  virtual IVar* GetVar(int i) = 0;
  // A copy of the list, owned by the caller.
  virtual IVarArray* GetVars() = 0;
  // Takes the type, and appends the variables to those that are there.
  virtual void Set(IVarArray* vars, int type) = 0;
};

// An indicator constraint: binVar = binVal decides about the linear constraint expr sense 0.
class IGenConstrBuilder {
 public:
  virtual ~IGenConstrBuilder() = default;

  // The indicating variable, a new handle owned by the caller; before the first Set, one that stands for nothing.
  virtual IVar* GetBinVar() = 0;
  virtual int GetBinVal() = 0;
  // A copy of the expression, owned by the caller.
  virtual IExpr* GetExpr() = 0;
  // 'E', 'G' or 'L'; 0 before the first Set.
  virtual char GetSense() = 0;
  // Which way the indication goes; 0 before the first Set.
  virtual int GetType() = 0;
  // Takes a copy of `expr` as it is: its constant holds the right side.
  virtual void Set(IVar* binVar, int binVal, IExpr* expr, char sense, int type) = 0;
};

// An affine cone: a vector of expressions that shall lie in a cone, one row for each.
class IAffineConeBuilder {
 public:
  virtual ~IAffineConeBuilder() = default;

  // The number of rows; 0 before the first Set.
  virtual int GetDim() = 0;
  // The type of the cone; 0 before the first Set.
  virtual int GetType() = 0;
  // Without a meaning yet; false.
  virtual bool GetFlag() = 0;
  // A copy of the linear part of row `i`, and of the whole row, owned by the caller; empty for a row that there is not.
  virtual IExpr* GetExpr(int i) = 0;
  virtual IPsdExpr* GetPsdExpr(int i) = 0;
  // Copies of the linear parts of all rows, owned by the caller.
  virtual IMLinExpr<1>* GetMLinExpr() = 0;
  // The rows themselves, owned by the caller: what changes there changes in the builder, until the next Set.
  virtual IMPsdExpr<1>* GetMPsdExpr() = 0;
  // Each replaces type and rows, the rows by copies. A variable becomes a row with coefficient 1. A null argument, or a
  // null in a list, changes nothing.
  virtual void Set(IMPsdExpr<1>* exprs, int type) = 0;
  virtual void Set(std::vector<IPsdExpr*> exprs, int type) = 0;
  virtual void Set(IMLinExpr<1>* exprs, int type) = 0;
  virtual void Set(std::vector<IVar*> vars, int type) = 0;
};

}  // namespace Vorq

#endif
