// The operators whose results are arrays of numbers.
#include "matrix/operators_kernel.hpp"

#define VORQ_INSTANCES_Dbl VORQ_KERNELS
#define VORQ_INSTANCES_Lng VORQ_KERNELS
#define VORQ_INSTANCES_Int VORQ_KERNELS
#include "matrix/operators_instances.inc"
