// The handles on arrays of items and symmetric matrices.
#pragma once

#include "handles/items.hpp"
#include "handles/symmetric_matrices.hpp"
#include "vorqmodel/arrays.h"

// Behind the others, for it defines a macro.
#include "handles/array_macro.inc"

VORQ_ARRAY(VarArray, Var, Vorq::WithReserve, Vorq::WithToVector)
VORQ_ARRAY(ConstrArray, Constraint, Vorq::WithReserve, Vorq::WithToVector)
VORQ_ARRAY(SosArray, Sos)
VORQ_ARRAY(GenConstrArray, GenConstr, Vorq::WithReserve, Vorq::WithToVector)
VORQ_ARRAY(ConeArray, Cone)
VORQ_ARRAY(ExpConeArray, ExpCone)
VORQ_ARRAY(AffineConeArray, AffineCone, Vorq::WithReserve, Vorq::WithToVector)
VORQ_ARRAY(QConstrArray, QConstraint, Vorq::WithReserve)
VORQ_ARRAY(PsdVarArray, PsdVar, Vorq::WithReserve, Vorq::WithToVector)
VORQ_ARRAY(PsdConstrArray, PsdConstraint, Vorq::WithReserve)
VORQ_ARRAY(LmiConstrArray, LmiConstraint, Vorq::WithReserve)
VORQ_ARRAY(SymMatrixArray, SymMatrix, Vorq::WithReserve)

#undef VORQ_ARRAY
