// The blocks of quadratic expressions, instantiated once.
#include "matrix/matrix_object_operations.hpp"

namespace Vorq {

VORQ_INSTANTIATE_BLOCKS(MQExpression)

}  // namespace Vorq
