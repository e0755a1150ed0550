// Symmetric matrices, the coefficients of semidefinite terms, and linear combinations of them.
#ifndef VORQMODEL_SYMMETRIC_MATRICES_H
#define VORQMODEL_SYMMETRIC_MATRICES_H

#include <cstdint>

#include "vorqmodel/forward.h"

namespace Vorq {

// A symmetric matrix, taken by its lower triangle: registered in a model, or cached, with a single entry.
class ISymMatrix {
 public:
  virtual ~ISymMatrix() = default;

  // The index in the model, -1 for a cached matrix.
  virtual int GetIdx() = 0;
  // The number of rows.
  virtual int GetDim() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

// Terms matrix times coefficient, all matrices of one dimension. Outside of the terms there are matrices that stand for
// nothing, and coefficients 0, which cannot be set.
class ISymMatExpr {
 public:
  virtual ~ISymMatExpr() = default;

  // The dimension of the first matrix, 0 with no terms.
  virtual int GetDim() = 0;
  // The number of terms.
  virtual std::uint64_t GetSize() = 0;
  // The matrix of term `i`, a new handle owned by the caller.
  virtual ISymMatrix* GetSymMat(int i) = 0;
  virtual double GetCoeff(int i) = 0;
  virtual void SetCoeff(int i, double c) = 0;
  // Appends a term. False, with nothing added, for a matrix without a dimension, and for one of another dimension than
  // the first, which fails with code 3, "Dimension of symmetric matrix mismatch".
  virtual bool AddTerm(ISymMatrix* mat, double c) = 0;
  // Appends the terms up to the first that is refused. Returns the length of the array; -1 if a term was refused,
  // `coeffs` is null, or `n` is below that length.
  virtual int AddTerms(ISymMatrixArray* mats, double* coeffs, int n) = 0;
  // Adds `mult` times `other`. Fails as AddTerm does.
  virtual void AddSymMatExpr(ISymMatExpr* other, double mult) = 0;
  // Removes term `i`, the last one taking its place; a position outside does nothing.
  virtual void Remove(int i) = 0;
  // Removes every term of the matrix: of its index, or, for a cached one, of its entry.
  virtual void Remove(ISymMatrix* mat) = 0;
  // Makes room for `n` terms in all; never shrinks.
  virtual void Reserve(int n) = 0;
  // A copy of the terms, owned by the caller; the items are shared.
  virtual ISymMatExpr* Clone() = 0;
  // Multiplies all coefficients; the terms stay also for c = 0.
  virtual void Multiply(double c) = 0;
  // The code of the last failure, 0 if there was none: a later success does not clear it.
  virtual int GetLastError() = 0;
  // The text of the last failure, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
