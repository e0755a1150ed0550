// The operators whose results are blocks of quadratic expressions.
#include "matrix/operators_kernel.hpp"

#define VORQ_INSTANCES_Quad VORQ_KERNELS
#include "matrix/operators_instances.inc"
