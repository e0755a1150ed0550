// Blocks of quadratic expressions of rank 0 to 3.
//
// A cell (see IMQExpression) may hold a product of two vectors that is not written out as terms. Views, transposes and
// reshaped blocks share cells: an operation in place through one of them changes what all see.
//
// Operations in place that take an array or a block use the element at the same flat index; sizes are not compared.
// Operations that fail give a block of one cell that carries the failure.
#ifndef VORQMODEL_M_QUAD_EXPR_H
#define VORQMODEL_M_QUAD_EXPR_H

#include <cstdint>
#include <string>

#include "vorqmodel/forward.h"

namespace Vorq {

template <int N>
class IMQuadExpr {
 public:
  virtual ~IMQuadExpr() = default;

  virtual int GetND() = 0;
  // Size of an axis, 0 for an axis that there is not.
  virtual std::uint64_t GetDim(int axis) = 0;
  // Number of cells, 1 for rank 0.
  virtual std::uint64_t GetSize() = 0;
  virtual INDim<N>* GetShape() = 0;
  // The same cells in another shape of the same size. Cells are shared when they lie one behind the other; they are
  // then read from the first one of the store.
  virtual IMQuadExpr<1>* Reshape(INDim<1>* shape) = 0;
  virtual IMQuadExpr<2>* Reshape(INDim<2>* shape) = 0;
  virtual IMQuadExpr<3>* Reshape(INDim<3>* shape) = 0;
  virtual IMQuadExpr<1>* Flatten() = 0;
  // Each cell `count` times along the axis: (a, b) gives (a, a, b, b). A negative axis counts from the end.
  virtual IMQuadExpr<N>* Repeat(std::uint64_t count, int axis) = 0;
  // The whole run along the axis `count` times: (a, b) gives (a, b, a, b).
  virtual IMQuadExpr<N>* RepeatBlock(std::uint64_t count, int axis) = 0;
  // The sum of all cells, as explicit terms.
  virtual IMQuadExpr<0>* Sum() = 0;
  // All axes reversed; cells are shared.
  virtual IMQuadExpr<N>* Transpose() = 0;
  // A copy of the cell at that flat index, which is not checked: changes to it do not reach the block.
  virtual IMQExpression* Get(std::uint64_t index) = 0;
  // The part that the view tells; cells are shared.
  virtual IMQuadExpr<N>* View(IView* view) = 0;
  // Copies of the cells at the given flat indices, which are not checked.
  virtual IMQuadExpr<1>* Pick(INdArray<int, 1>* indices) = 0;
  // Copies of the cells whose coordinates stand in the rows of `coords`; negative ones count from the end.
  virtual IMQuadExpr<1>* PickAt(INdArray<int, 2>* coords) = 0;
  // Assigns to the cell in the shared store.
  virtual void Set(std::uint64_t index, IMQExpression* value) = 0;
  virtual void Multiply(double c) = 0;
  virtual void AddConstant(double c) = 0;
  virtual void AddConstant(INdArray<double, N>* values) = 0;
  virtual void AddConstant(INdArray<long long, N>* values) = 0;
  virtual void AddConstant(INdArray<int, N>* values) = 0;
  virtual void SubConstant(INdArray<double, N>* values) = 0;
  virtual void SubConstant(INdArray<long long, N>* values) = 0;
  virtual void SubConstant(INdArray<int, N>* values) = 0;
  virtual void AddTerm(IVar* v, double c) = 0;
  virtual void AddTerm(IVar* first, IVar* second, double c) = 0;
  virtual void AddTerm(IMVar<N>* vars, double c) = 0;
  virtual void AddTerm(IMVar<N>* vars, INdArray<double, N>* coeffs) = 0;
  virtual void AddLinExpr(IExpr* e, double c) = 0;
  virtual void AddQuadExpr(IQuadExpr* q, double c) = 0;
  virtual void AddMExpression(IMExpression* m, double c) = 0;
  virtual void AddMQExpression(IMQExpression* m, double c) = 0;
  virtual void AddMLinExpr(IMLinExpr<N>* other, double c) = 0;
  virtual void AddMQuadExpr(IMQuadExpr<N>* other, double c) = 0;
  // Each cell becomes the constant 0. The shape and the store stay.
  virtual void Clear() = 0;
  // Copies the cells.
  virtual IMQuadExpr<N>* Clone() = 0;
  // The text, cut with "..." once it has `limit` characters.
  virtual std::string ToString(std::uint64_t limit) = 0;
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
