// The handles on arrays of columns and builders.
#pragma once

#include "handles/builders.hpp"
#include "handles/expressions.hpp"
#include "vorqmodel/arrays.h"

// Behind the others, for it defines a macro.
#include "handles/array_macro.inc"

VORQ_ARRAY(ColumnArray, Column, Vorq::WithReserve, Vorq::WithClear)
VORQ_ARRAY(ConstrBuilderArray, ConstrBuilder, Vorq::WithReserve)
VORQ_ARRAY(QConstrBuilderArray, QConstrBuilder, Vorq::WithReserve)
VORQ_ARRAY(PsdConstrBuilderArray, PsdConstrBuilder, Vorq::WithReserve)
VORQ_ARRAY(SosBuilderArray, SosBuilder)
VORQ_ARRAY(GenConstrBuilderArray, GenConstrBuilder)
VORQ_ARRAY(ConeBuilderArray, ConeBuilder)
VORQ_ARRAY(ExpConeBuilderArray, ExpConeBuilder)

#undef VORQ_ARRAY
