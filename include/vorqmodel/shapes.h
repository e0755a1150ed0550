// Shapes: how many axes an object has, how long each is, and how it lies in its element store.
//
//     Vorq::INDim<2>* shape = array->GetShape();
//     shape->GetDim(0);        // rows
//     shape->ToString(0);      // "(3, 4)"
//
// Ranks are 0 to 3. Axis 0 is the outermost. A shape never changes; operations give new shapes, owned by the caller.
#ifndef VORQMODEL_SHAPES_H
#define VORQMODEL_SHAPES_H

#include <cstdint>
#include <string>

#include "vorqmodel/forward.h"

namespace Vorq {

template <int N>
class INDim {
 public:
  virtual ~INDim() = default;

  virtual int GetND() = 0;
  // Size of an axis, 0 for an axis that there is not.
  virtual std::uint64_t GetDim(int axis) = 0;
  // Product of the sizes, 1 for rank 0.
  virtual std::uint64_t GetSize() = 0;
  // Elements of the store to step for one step along the axis, 1 for an axis that there is not.
  virtual std::int64_t GetStride(int axis) = 0;
  virtual std::int64_t GetOffset(int axis) = 0;
  // A compact shape of the same sizes.
  virtual INDim<N>* Clone() = 0;
  // A compact shape whose axes all have size n.
  virtual INDim<N>* CreateUniform(std::uint64_t n) = 0;
  // The sizes (mode 0), strides (mode 1) or offsets (any other mode).
  virtual std::string ToString(int mode) = 0;
  // Compares all sizes, and stride and offset of axis 0 only.
  virtual bool Equals(INDim<N>* other) = 0;
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
