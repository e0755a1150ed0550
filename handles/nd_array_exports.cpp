// The exported factories of arrays over a caller's elements.
#include <algorithm>
#include <array>

#include "handles/nd_array.hpp"
#include "vorqmodel/exports.h"

namespace {

enum class Ownership { kTaken, kCallers };

// An array over exactly the caller's elements, none when `data` is null. A negative size is taken as 0 and recorded.
template <class T, std::size_t N>
Vorq::INdArray<T, static_cast<int>(N)>* CreateOver(T* data, std::array<int, N> const& sizes, Ownership ownership) {
  constexpr int kRank = static_cast<int>(N);
  typename Vorq::NDim<kRank>::Sizes dims;
  std::transform(sizes.begin(), sizes.end(), dims.begin(),
                 [](int size) { return static_cast<std::uint64_t>(std::max(size, 0)); });
  Vorq::NDim<kRank> shape(dims);
  bool const isTaken = ownership == Ownership::kTaken;
  Vorq::SharedPtr<T> store;
  if (isTaken && shape.GetSize() == 0) {
    delete[] data;
  } else {
    store = Vorq::SharedPtr<T>(data, isTaken ? shape.GetSize() : 0);
  }
  Vorq::NdArray<T, kRank> array(std::move(shape), std::move(store));
  for (int axis = 0; axis < kRank; ++axis) {
    int const size = sizes[static_cast<std::size_t>(axis)];
    if (size >= 0) continue;
    SetStatus(array.GetStatus(), Vorq::kInvalid, "Dimension size at axis %d is negative (%d)", axis, size);
    break;
  }
  return Vorq::WrapArray(std::move(array));
}

}  // namespace

// The functions of one element type and one kind of ownership: Word is the type's word in their names.
#define VORQ_ARRAY_FACTORIES(T, Word, Suffix, ownership)                                  \
  Vorq::INdArray<T, 1>* CreateNdArray##Word##1##Suffix(T* data, int d0) {                 \
    return CreateOver(data, std::array{d0}, ownership);                                   \
  }                                                                                       \
  Vorq::INdArray<T, 2>* CreateNdArray##Word##2##Suffix(T* data, int d0, int d1) {         \
    return CreateOver(data, std::array{d0, d1}, ownership);                               \
  }                                                                                       \
  Vorq::INdArray<T, 3>* CreateNdArray##Word##3##Suffix(T* data, int d0, int d1, int d2) { \
    return CreateOver(data, std::array{d0, d1, d2}, ownership);                           \
  }

extern "C" {

VORQ_ARRAY_FACTORIES(double, Dbl, WithData, Ownership::kTaken)
VORQ_ARRAY_FACTORIES(int, Int, WithData, Ownership::kTaken)
VORQ_ARRAY_FACTORIES(long long, Int64t, WithData, Ownership::kTaken)
VORQ_ARRAY_FACTORIES(double, Dbl, WithExData, Ownership::kCallers)
VORQ_ARRAY_FACTORIES(int, Int, WithExData, Ownership::kCallers)
VORQ_ARRAY_FACTORIES(long long, Int64t, WithExData, Ownership::kCallers)

}  // extern "C"

#undef VORQ_ARRAY_FACTORIES
