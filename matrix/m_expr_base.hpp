// MExprBase<N>: what all blocks of N axes can be asked for, whatever their cells are.
#pragma once

#include <cstdint>

#include "ndarray/shape.hpp"

namespace Vorq {

template <int N>
class MExprBase {
 public:
  virtual ~MExprBase() = default;

  virtual int GetND() const = 0;
  // The size of an axis, 0 for an axis that there is not.
  virtual std::uint64_t GetDim(int axis) const = 0;
  // The product of the sizes, 1 for N = 0.
  virtual std::uint64_t GetSize() const = 0;
  virtual NDim<N> GetShape() const = 0;

 protected:
  MExprBase() = default;
  MExprBase(MExprBase const&) = default;
  MExprBase(MExprBase&&) noexcept = default;
  MExprBase& operator=(MExprBase const&) = default;
  MExprBase& operator=(MExprBase&&) noexcept = default;
};

}  // namespace Vorq
