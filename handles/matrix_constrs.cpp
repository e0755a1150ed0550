// The handles on blocks of constraints, instantiated once.
#include "handles/matrix_instances.hpp"
#include "handles/matrix_items.hpp"

VORQ_BLOCK_HANDLES(VorqMConstr, Vorq::Constraint)
VORQ_BLOCK_HANDLES(VorqMQConstr, Vorq::QConstraint)
VORQ_BLOCK_HANDLES(VorqMPsdConstr, Vorq::PsdConstraint)
