// Expressions: unsorted lists of terms, from which constraints and objectives are written. An operation that is given a
// null object changes nothing; where it gives a number of terms, it gives that of a refusal. Outside of the terms there
// are items and expressions that stand for nothing, and coefficients 0, which cannot be set.
#ifndef VORQMODEL_EXPRESSIONS_H
#define VORQMODEL_EXPRESSIONS_H

#include <cstdint>

#include "vorqmodel/forward.h"

namespace Vorq {

// A constant and terms coefficient times variable. Duplicates are merged when the model takes the expression, which may
// reorder its terms.
class IExpr {
 public:
  virtual ~IExpr() = default;

  // The number of terms.
  virtual std::uint64_t GetSize() = 0;
  // The variable of term `i`, a new handle owned by the caller.
  virtual IVar* GetVar(int i) = 0;
  virtual double GetCoeff(int i) = 0;
  virtual double GetConstant() = 0;
  virtual void SetCoeff(int i, double c) = 0;
  virtual void SetConstant(double c) = 0;
  virtual void AddConstant(double c) = 0;
  // Appends a term, also with c = 0 and for a variable that is there already.
  virtual void AddTerm(IVar* var, double c) = 0;
  // Appends the terms coeffs[i] times vars[i]. Returns their number, or -1, with nothing added, if `coeffs` is null or
  // `n` is below the length of the array.
  virtual int AddTerms(IVarArray* vars, double* coeffs, int n) = 0;
  // Adds `mult` times `other`. mult = 0 changes nothing at all.
  virtual void AddExpr(IExpr* other, double mult) = 0;
  // The value at the solution; NaN where the value of a variable cannot be fetched.
  virtual double Evaluate() = 0;
  // Removes term `i`, the last term taking its place; a position outside does nothing.
  virtual void Remove(int i) = 0;
  // Removes every term of the variable; one that is not live does nothing.
  virtual void Remove(IVar* var) = 0;
  // Makes room for `n` terms in all; never shrinks.
  virtual void Reserve(int n) = 0;
  // Removes all terms and sets the constant to 0.
  virtual void Clear() = 0;
  // A copy of the terms, owned by the caller; the items are shared.
  virtual IExpr* Clone() = 0;
  // Multiplies all coefficients and the constant; the terms stay also for c = 0.
  virtual void Multiply(double c) = 0;
};

// Terms coefficient and constraint: how a new variable enters existing constraints.
class IColumn {
 public:
  virtual ~IColumn() = default;

  // The number of terms.
  virtual int GetSize() = 0;
  // The constraint of term `i`, a new handle owned by the caller.
  virtual IConstraint* GetConstr(int i) = 0;
  virtual double GetCoeff(int i) = 0;
  // Appends a term, also with c = 0 and for a constraint that is there already.
  virtual void AddTerm(IConstraint* constr, double c) = 0;
  // Appends the terms coeffs[i] in constrs[i]. Returns their number, or -1, with nothing added, if `coeffs` is null or
  // `n` is below the length of the array.
  virtual int AddTerms(IConstrArray* constrs, double* coeffs, int n) = 0;
  // Appends `mult` times the terms of `other`, also for mult = 0.
  virtual void AddColumn(IColumn* other, double mult) = 0;
  // Removes term `i`, the last term taking its place; a position outside does nothing.
  virtual void Remove(int i) = 0;
  // Removes every term of the constraint; 1 if there was one, otherwise 0. A constraint that is not live does nothing.
  virtual int Remove(IConstraint* constr) = 0;
  // Makes room for `n` terms in all; never shrinks.
  virtual void Reserve(int n) = 0;
  // Removes all terms.
  virtual void Clear() = 0;
  // A copy of the terms, owned by the caller; the items are shared.
  virtual IColumn* Clone() = 0;
};

// A linear expression and terms coefficient times variable times variable. Quadratic terms are never merged: x * y and
// y * x are two.
class IQuadExpr {
 public:
  virtual ~IQuadExpr() = default;

  // The number of quadratic terms.
  virtual std::uint64_t GetSize() = 0;
  // The variables of quadratic term `i`, new handles owned by the caller.
  virtual IVar* GetVar1(int i) = 0;
  virtual IVar* GetVar2(int i) = 0;
  // The coefficient of quadratic term `i`.
  virtual double GetCoeff(int i) = 0;
  virtual double GetConstant() = 0;
  // A copy of the linear part with the constant, owned by the caller.
  virtual IExpr* GetLinExpr() = 0;
  virtual void SetCoeff(int i, double c) = 0;
  virtual void SetConstant(double c) = 0;
  virtual void AddConstant(double c) = 0;
  // Appends a linear term.
  virtual void AddTerm(IVar* var, double c) = 0;
  // Appends a quadratic term.
  virtual void AddTerm(IVar* var1, IVar* var2, double c) = 0;
  // Appends linear terms. Returns their number, or -1, with nothing added, if `coeffs` is null or `n` is below the
  // length of the array.
  virtual int AddTerms(IVarArray* vars, double* coeffs, int n) = 0;
  // Appends a quadratic term for each pair, reading as many coefficients as there are pairs. Returns their number, or
  // -1, with nothing added, if `coeffs` is null, `n` is above that number, or the arrays differ in length.
  virtual int AddTerms(IVarArray* vars1, IVarArray* vars2, double* coeffs, int n) = 0;
  // Adds `mult` times a linear expression. mult = 0 changes nothing at all.
  virtual void AddLinExpr(IExpr* expr, double mult) = 0;
  // Adds `mult` times `other`. mult = 0 changes nothing at all.
  virtual void AddQuadExpr(IQuadExpr* other, double mult) = 0;
  // Adds the full product of the two.
  virtual void AddProduct(IExpr* a, IExpr* b) = 0;
  // The same for a variable; a linear term is added also where the constant of `expr` is 0.
  virtual void AddProduct(IExpr* expr, IVar* var) = 0;
  // The value at the solution; NaN where the value of a variable cannot be fetched.
  virtual double Evaluate() = 0;
  // Removes quadratic term `i`, the last one taking its place; a position outside does nothing.
  virtual void Remove(int i) = 0;
  // Removes the quadratic terms that have the variable in first place; all other terms stay. A variable that is not
  // live does nothing.
  virtual void Remove(IVar* var) = 0;
  // Makes room for `n` quadratic terms in all; never shrinks.
  virtual void Reserve(int n) = 0;
  // Removes all terms of both parts and sets the constant to 0.
  virtual void Clear() = 0;
  // A copy of the terms, owned by the caller; the items are shared.
  virtual IQuadExpr* Clone() = 0;
  // Multiplies both parts; the terms stay also for c = 0.
  virtual void Multiply(double c) = 0;
};

// A linear expression and terms inner product of a symmetric matrix expression with a PSD variable.
class IPsdExpr {
 public:
  virtual ~IPsdExpr() = default;

  // The number of PSD terms.
  virtual std::uint64_t GetSize() = 0;
  // The variable of PSD term `i`, a new handle owned by the caller.
  virtual IPsdVar* GetPsdVar(int i) = 0;
  // A copy of the matrix expression of PSD term `i`, owned by the caller.
  virtual ISymMatExpr* GetCoeff(int i) = 0;
  virtual double GetConstant() = 0;
  // A copy of the linear part with the constant, owned by the caller.
  virtual IExpr* GetLinExpr() = 0;
  // Replaces the matrix expression of PSD term `i` by one matrix.
  virtual void SetCoeff(int i, ISymMatrix* mat) = 0;
  virtual void SetConstant(double c) = 0;
  virtual void AddConstant(double c) = 0;
  // Appends a linear term.
  virtual void AddTerm(IVar* var, double c) = 0;
  // Append a PSD term.
  virtual void AddTerm(IPsdVar* var, ISymMatrix* mat) = 0;
  virtual void AddTerm(IPsdVar* var, ISymMatExpr* expr) = 0;
  // Appends linear terms. Returns their number, or -1, with nothing added, if `coeffs` is null or `n` is below the
  // length of the array.
  virtual int AddTerms(IVarArray* vars, double* coeffs, int n) = 0;
  // Appends a PSD term for each pair. Returns their number, or -1, with nothing added, if the arrays differ in length.
  virtual int AddTerms(IPsdVarArray* vars, ISymMatrixArray* mats) = 0;
  // Adds `mult` times a linear expression. mult = 0 changes nothing at all.
  virtual void AddLinExpr(IExpr* expr, double mult) = 0;
  // Adds `mult` times `other`. For mult = 0 its PSD terms are appended with coefficients 0.
  virtual void AddPsdExpr(IPsdExpr* other, double mult) = 0;
  // Adds `mult` times a cell of a matrix expression.
  virtual void AddMExpression(IMExpression* cell, double mult) = 0;
  // The value at the solution; NaN where a value or a matrix cannot be fetched.
  virtual double Evaluate() = 0;
  // Removes PSD term `i`, the last one taking its place; a position outside does nothing.
  virtual void Remove(int i) = 0;
  // Removes every linear term of the variable.
  virtual void Remove(IVar* var) = 0;
  // Removes every PSD term of the variable. A variable that is not live does nothing.
  virtual void Remove(IPsdVar* var) = 0;
  // Makes room for `n` PSD terms in all; never shrinks.
  virtual void Reserve(int n) = 0;
  // A copy of the terms, owned by the caller; the items are shared.
  virtual IPsdExpr* Clone() = 0;
  // Multiplies both parts; the terms stay also for c = 0.
  virtual void Multiply(double c) = 0;
};

// A constant symmetric matrix expression and terms variable times symmetric matrix expression.
class ILmiExpr {
 public:
  virtual ~ILmiExpr() = default;

  // The number of terms.
  virtual std::uint64_t GetSize() = 0;
  // The variable of term `i`, a new handle owned by the caller.
  virtual IVar* GetVar(int i) = 0;
  // A copy of the matrix expression of term `i`, owned by the caller.
  virtual ISymMatExpr* GetCoeff(int i) = 0;
  // A copy of the constant, owned by the caller.
  virtual ISymMatExpr* GetConstant() = 0;
  // Replaces the matrix expression of term `i` by one matrix.
  virtual void SetCoeff(int i, ISymMatrix* mat) = 0;
  // Replaces the constant by one matrix.
  virtual void SetConstant(ISymMatrix* mat) = 0;
  // Adds to the constant; nothing happens if the dimensions differ.
  virtual void AddConstant(ISymMatExpr* expr) = 0;
  // Append a term.
  virtual void AddTerm(IVar* var, ISymMatrix* mat) = 0;
  virtual void AddTerm(IVar* var, ISymMatExpr* expr) = 0;
  // Appends a term for each pair. Returns their number, or -1, with nothing added, if the arrays differ in length.
  virtual int AddTerms(IVarArray* vars, ISymMatrixArray* mats) = 0;
  // Adds `mult` times `other`, also for mult = 0.
  virtual void AddLmiExpr(ILmiExpr* other, double mult) = 0;
  // Removes term `i`, the last one taking its place; a position outside does nothing.
  virtual void Remove(int i) = 0;
  // Removes every term of the variable; one that is not live does nothing.
  virtual void Remove(IVar* var) = 0;
  // Makes room for `n` terms in all; never shrinks.
  virtual void Reserve(int n) = 0;
  // A copy of the terms, owned by the caller; the items are shared.
  virtual ILmiExpr* Clone() = 0;
  // Multiplies the constant and all terms; the terms stay also for c = 0.
  virtual void Multiply(double c) = 0;
};

}  // namespace Vorq

#endif
