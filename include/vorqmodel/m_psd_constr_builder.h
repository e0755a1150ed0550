// Builders of blocks of PSD constraints: what is needed to add them, without a model. The right side is folded into
// the constants of the cells, so that a builder says: expression sense 0.
//
// Senses are 'E', 'G', 'L', 'N' and 'R'; a letter is stored as it is. A new builder has none of them.
#ifndef VORQMODEL_M_PSD_CONSTR_BUILDER_H
#define VORQMODEL_M_PSD_CONSTR_BUILDER_H

#include <cstdint>

#include "vorqmodel/forward.h"

namespace Vorq {

template <int N>
class IMPsdConstrBuilder {
 public:
  virtual ~IMPsdConstrBuilder() = default;

  // The same constraints along one axis, with cells of their own.
  virtual IMPsdConstrBuilder<1>* Flatten() = 0;
  virtual int GetND() = 0;
  // Shares the cells: operations in place through it reach the builder.
  virtual IMPsdExpr<N>* GetExpr() = 0;
  virtual char GetSense() = 0;
  virtual double GetRange() = 0;
  // lhs sense rhs. The cells of `lhs` are copied. An array's element at the same flat index counts; sizes are not
  // compared.
  virtual void Set(IMPsdExpr<N>* lhs, char sense, double rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, INdArray<double, N>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, INdArray<long long, N>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, INdArray<int, N>* rhs) = 0;
  // The same with `rhs` stretched to the shape of `lhs` where needed; its rank must not be above N. A failure is
  // recorded in what GetExpr gives.
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMVar<0>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMVar<1>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMVar<2>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMVar<3>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMLinExpr<0>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMLinExpr<1>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMLinExpr<2>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMLinExpr<3>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMPsdExpr<0>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMPsdExpr<1>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMPsdExpr<2>* rhs) = 0;
  virtual void Set(IMPsdExpr<N>* lhs, char sense, IMPsdExpr<3>* rhs) = 0;
  // From minus the constant of each cell up to `range`: the sense is 'R'.
  virtual void SetRange(IMPsdExpr<N>* expr, double range) = 0;
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
