// The arrays of numbers, instantiated once.
#include "ndarray/nd_array_numbers.hpp"

#include <ostream>

#include "ndarray/nd_array_operations.hpp"
#include "ndarray/printer.hpp"

namespace Vorq {

template <class T, int N>
NdArray<T, 0> Sum(NdArray<T, N> const& array) {
  if constexpr (std::is_integral_v<T>) {
    std::uint64_t sum = 0;
    array.ForEach([&](T element) { sum += static_cast<std::uint64_t>(element); });
    return NdArray<T, 0>::OneElement(static_cast<T>(sum));
  } else {
    T sum = 0;
    array.ForEach([&](T element) { sum += element; });
    return NdArray<T, 0>::OneElement(sum);
  }
}

template <class T, int N>
std::string ToString(NdArray<T, N> const& array, std::uint64_t limit) {
  return PrintArray(array, limit, [](std::ostream& stream, T element) { stream << element; });
}

#define VORQ_NUMBER_ARRAY(T, N)                           \
  template class NdArray<T, N>;                           \
  template NdArray<T, 0> Sum<T, N>(NdArray<T, N> const&); \
  template std::string ToString<T, N>(NdArray<T, N> const&, std::uint64_t);
#define VORQ_NUMBER_ARRAYS(T) \
  VORQ_NUMBER_ARRAY(T, 0) VORQ_NUMBER_ARRAY(T, 1) VORQ_NUMBER_ARRAY(T, 2) VORQ_NUMBER_ARRAY(T, 3)

VORQ_NUMBER_ARRAYS(char)
VORQ_NUMBER_ARRAYS(int)
VORQ_NUMBER_ARRAYS(long long)
VORQ_NUMBER_ARRAYS(double)

#undef VORQ_NUMBER_ARRAYS
#undef VORQ_NUMBER_ARRAY

}  // namespace Vorq
