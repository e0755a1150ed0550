// The cell of a block of linear expressions: a linear expression, and a product of two vectors that is not written out
// as terms. Its value is the sum of the two.
//
// A cell that is added to another one is written out as terms there; the product of the other one stays as it is.
#ifndef VORQMODEL_M_EXPRESSION_H
#define VORQMODEL_M_EXPRESSION_H

#include <cstdint>
#include <string>

#include "vorqmodel/forward.h"

namespace Vorq {

class IMExpression {
 public:
  virtual ~IMExpression() = default;

  virtual double GetConstant() = 0;
  virtual void AddConstant(double c) = 0;
  virtual void SetConstant(double c) = 0;
  virtual void AddTerm(IVar* v, double c) = 0;
  virtual void AddExpr(IExpr* e, double c) = 0;
  virtual void AddMExpression(IMExpression* m, double c) = 0;
  virtual void Multiply(double c) = 0;
  virtual IMExpression* Clone() = 0;
  // Half of the limit is for the linear expression; the terms of the product follow, as far as they fit.
  virtual std::string ToString(std::uint64_t limit) = 0;
};

}  // namespace Vorq

#endif
