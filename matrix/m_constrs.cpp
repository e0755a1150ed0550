// The blocks of constraints, instantiated once.
#include "matrix/matrix_object_operations.hpp"

namespace Vorq {

VORQ_INSTANTIATE_BLOCKS(Constraint)
VORQ_INSTANTIATE_BLOCKS(QConstraint)
VORQ_INSTANTIATE_BLOCKS(PsdConstraint)

}  // namespace Vorq
