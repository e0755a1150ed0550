// Arrays of numbers: char, int, long long and double.
#pragma once

#include <cstdint>
#include <string>

#include "ndarray/nd_array.hpp"

namespace Vorq {

// Sum of all elements in flat order, from 0, in their own type. Whole numbers wrap around.
template <class T, int N>
NdArray<T, 0> Sum(NdArray<T, N> const& array);

// The text of an array, see PrintArray. A char prints as the character.
template <class T, int N>
std::string ToString(NdArray<T, N> const& array, std::uint64_t limit);

#define VORQ_NUMBER_ARRAY(T, N)                                  \
  extern template class NdArray<T, N>;                           \
  extern template NdArray<T, 0> Sum<T, N>(NdArray<T, N> const&); \
  extern template std::string ToString<T, N>(NdArray<T, N> const&, std::uint64_t);
#define VORQ_NUMBER_ARRAYS(T) \
  VORQ_NUMBER_ARRAY(T, 0) VORQ_NUMBER_ARRAY(T, 1) VORQ_NUMBER_ARRAY(T, 2) VORQ_NUMBER_ARRAY(T, 3)

VORQ_NUMBER_ARRAYS(char)
VORQ_NUMBER_ARRAYS(int)
VORQ_NUMBER_ARRAYS(long long)
VORQ_NUMBER_ARRAYS(double)

#undef VORQ_NUMBER_ARRAYS
#undef VORQ_NUMBER_ARRAY

}  // namespace Vorq
