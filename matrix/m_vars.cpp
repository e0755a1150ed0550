// The blocks of variables, instantiated once.
#include "matrix/matrix_object_operations.hpp"

namespace Vorq {

VORQ_INSTANTIATE_BLOCKS(Var)

}  // namespace Vorq
