// The handles on blocks of linear expressions, instantiated once.
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_instances.hpp"

VORQ_BLOCK_HANDLES(VorqMLinExpr, Vorq::MExpression)
