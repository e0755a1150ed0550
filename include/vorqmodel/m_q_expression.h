// The cell of a block of quadratic expressions: a quadratic expression, and a product of two vectors, of variables or
// of linear cells, that is not written out as terms. Its value is the sum of the two.
//
// A cell that is added to another one is written out as terms there; the product of the other one stays as it is.
#ifndef VORQMODEL_M_Q_EXPRESSION_H
#define VORQMODEL_M_Q_EXPRESSION_H

#include <cstdint>
#include <string>

#include "vorqmodel/forward.h"

namespace Vorq {

class IMQExpression {
 public:
  virtual ~IMQExpression() = default;

  // With a product of two vectors of linear cells, the products of their constants are counted in.
  virtual double GetConstant() = 0;
  virtual void AddConstant(double c) = 0;
  virtual void AddTerm(IVar* v, double c) = 0;
  virtual void AddTerm(IVar* first, IVar* second, double c) = 0;
  virtual void AddLinExpr(IExpr* e, double c) = 0;
  virtual void AddMExpression(IMExpression* m, double c) = 0;
  virtual void AddQuadExpr(IQuadExpr* q, double c) = 0;
  virtual void AddProduct(IMExpression* m, IVar* v) = 0;
  virtual void AddProduct(IMExpression* m, IExpr* e) = 0;
  // c times a times b.
  virtual void AddProduct(IMExpression* a, IMExpression* b, double c) = 0;
  virtual void AddMQExpression(IMQExpression* m, double c) = 0;
  virtual void Multiply(double c) = 0;
  virtual IMQExpression* Clone() = 0;
  // Half of the limit is for the quadratic expression; the terms of the product follow, as far as they fit.
  virtual std::string ToString(std::uint64_t limit) = 0;
};

}  // namespace Vorq

#endif
