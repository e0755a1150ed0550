// The operators whose results are blocks of linear expressions.
#include "matrix/operators_kernel.hpp"

#define VORQ_INSTANCES_Lin VORQ_KERNELS
#include "matrix/operators_instances.inc"
