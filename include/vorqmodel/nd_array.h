// Arrays of numbers of rank 0 to 3: coefficients, bounds, solution and attribute values.
//
//     double data[] = {1, 2, 3, 4, 5, 6};
//     Vorq::INdArray<double, 2>* a = CreateNdArrayDbl2WithExData(data, 2, 3);
//     Vorq::INdArray<double, 2>* t = a->Transpose();      // shares the elements
//     t->Set(1, 7.0);                                      // data[3] is 7
//
// Element types are char, int, long long and double. Flat indices count in row-major order of the shape, last axis
// fastest, and are not checked. Operations that fail give an array of one element that carries the failure.
#ifndef VORQMODEL_ND_ARRAY_H
#define VORQMODEL_ND_ARRAY_H

#include <cstdint>
#include <string>

#include "vorqmodel/forward.h"

namespace Vorq {

template <class T, int N>
class INdArray {
 public:
  virtual ~INdArray() = default;

  virtual int GetND() = 0;
  virtual std::uint64_t GetDim(int axis) = 0;
  virtual std::uint64_t GetSize() = 0;
  virtual INDim<N>* GetShape() = 0;
  // The same elements in another shape of the same size. Elements are shared when they lie one behind the other; they
  // are then read from the first element of the store.
  virtual INdArray<T, 1>* Reshape(INDim<1>* shape) = 0;
  virtual INdArray<T, 2>* Reshape(INDim<2>* shape) = 0;
  virtual INdArray<T, 3>* Reshape(INDim<3>* shape) = 0;
  virtual INdArray<T, 1>* Flatten() = 0;
  // Each element n times along the axis: (a, b) gives (a, a, b, b).
  virtual INdArray<T, N>* Repeat(std::uint64_t n, int axis) = 0;
  // The whole run along the axis n times: (a, b) gives (a, b, a, b).
  virtual INdArray<T, N>* RepeatBlock(std::uint64_t n, int axis) = 0;
  virtual INdArray<T, 0>* Sum() = 0;
  // All axes reversed; elements are shared.
  virtual INdArray<T, N>* Transpose() = 0;
  virtual T Get(std::uint64_t index) = 0;
  // The part that the view tells; elements are shared.
  virtual INdArray<T, N>* View(IView* view) = 0;
  // The elements at the given flat indices.
  virtual INdArray<T, 1>* Pick(INdArray<int, 1>* indices) = 0;
  // The elements whose coordinates stand in the rows of `coords`.
  virtual INdArray<T, 1>* PickAt(INdArray<int, 2>* coords) = 0;
  virtual void Set(std::uint64_t index, T value) = 0;
  virtual void Fill(T value) = 0;
  // The text, cut with "..." once it has `limit` characters.
  virtual std::string ToString(std::uint64_t limit) = 0;
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
