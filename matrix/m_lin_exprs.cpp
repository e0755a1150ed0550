// The blocks of linear expressions, instantiated once.
#include "matrix/matrix_object_operations.hpp"

namespace Vorq {

VORQ_INSTANTIATE_BLOCKS(MExpression)

}  // namespace Vorq
