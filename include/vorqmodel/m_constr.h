// Blocks of linear constraints of rank 0 to 3.
//
// Readers give a new array of the same sizes, with one read for each constraint. A read that fails is recorded in that
// constraint. Operations that fail give a block of one cell that carries the failure.
#ifndef VORQMODEL_M_CONSTR_H
#define VORQMODEL_M_CONSTR_H

#include <concepts>
#include <cstdint>
#include <string>

#include "vorqmodel/forward.h"

namespace Vorq {

template <int N>
class IMConstr {
 public:
  virtual ~IMConstr() = default;

  virtual int GetND() = 0;
  // Size of an axis, 0 for an axis that there is not.
  virtual std::uint64_t GetDim(int axis) = 0;
  // Number of cells, 1 for rank 0.
  virtual std::uint64_t GetSize() = 0;
  virtual INDim<N>* GetShape() = 0;
  virtual INdArray<int, N>* GetBasis() = 0;
  virtual INdArray<int, N>* GetIdx() = 0;
  virtual INdArray<int, N>* GetLowerIIS() = 0;
  virtual INdArray<int, N>* GetUpperIIS() = 0;
  virtual INdArray<double, N>* Get(char const* attr) = 0;
  virtual void Set(char const* attr, double value) = 0;
  // Cell i gets the value at flat index i. Sizes are not compared.
  virtual void Set(char const* attr, INdArray<double, N>* values) = 0;
  // The same cells in another shape of the same size. Cells are shared when they lie one behind the other; they are
  // then read from the first one of the store.
  virtual IMConstr<1>* Reshape(INDim<1>* shape) = 0;
  virtual IMConstr<2>* Reshape(INDim<2>* shape) = 0;
  virtual IMConstr<3>* Reshape(INDim<3>* shape) = 0;
  virtual IMConstr<1>* Flatten() = 0;
  // All axes reversed; cells are shared.
  virtual IMConstr<N>* Transpose() = 0;
  // The item at that flat index, which is not checked.
  virtual IConstraint* Get(std::uint64_t index) = 0;
  // The same for any type of index: without it a literal 0 could be a name as well.
  template <std::integral Index>
  IConstraint* Get(Index index) {
    return Get(static_cast<std::uint64_t>(index));
  }
  // The part that the view tells; cells are shared.
  virtual IMConstr<N>* View(IView* view) = 0;
  // Copies of the cells at the given flat indices, which are not checked.
  virtual IMConstr<1>* Pick(INdArray<int, 1>* indices) = 0;
  // Copies of the cells whose coordinates stand in the rows of `coords`; negative ones count from the end.
  virtual IMConstr<1>* PickAt(INdArray<int, 2>* coords) = 0;
  // Assigns to the cell in the shared store.
  virtual void Set(std::uint64_t index, IConstraint* value) = 0;
  // Shares the cells.
  virtual IMConstr<N>* Clone() = 0;
  // The text, cut with "..." once it has `limit` characters.
  virtual std::string ToString(std::uint64_t limit) = 0;
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
