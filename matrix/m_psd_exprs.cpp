// The blocks of PSD expressions, instantiated once.
#include "matrix/matrix_object_operations.hpp"

namespace Vorq {

VORQ_INSTANTIATE_BLOCKS(PsdExpr)

}  // namespace Vorq
