// The operators whose results are blocks of PSD expressions.
#include "matrix/operators_kernel.hpp"

#define VORQ_INSTANCES_Psd VORQ_KERNELS
#include "matrix/operators_instances.inc"
