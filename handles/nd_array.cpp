// The handles on arrays of numbers, instantiated once.
#include "handles/nd_array.hpp"

#define VORQ_NUMBER_HANDLES(T)      \
  template class VorqNdArray<T, 0>; \
  template class VorqNdArray<T, 1>; \
  template class VorqNdArray<T, 2>; \
  template class VorqNdArray<T, 3>;

VORQ_NUMBER_HANDLES(char)
VORQ_NUMBER_HANDLES(int)
VORQ_NUMBER_HANDLES(long long)
VORQ_NUMBER_HANDLES(double)

#undef VORQ_NUMBER_HANDLES
