// The handles on blocks of variables, instantiated once.
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_instances.hpp"

VORQ_BLOCK_HANDLES(VorqMVar, Vorq::Var)
