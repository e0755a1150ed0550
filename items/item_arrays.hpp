// The arrays: ordered lists of items, columns and builders.
#pragma once

#include <vector>

#include "items/builders.hpp"
#include "items/column.hpp"
#include "items/cones.hpp"
#include "items/constraint.hpp"
#include "items/logical_items.hpp"
#include "items/psd_items.hpp"
#include "items/q_constraint.hpp"
#include "items/sym_matrix.hpp"
#include "items/var.hpp"

namespace Vorq {

using VarArray = std::vector<Var>;
using ConstrArray = std::vector<Constraint>;
using ColumnArray = std::vector<Column>;
using SosArray = std::vector<Sos>;
using GenConstrArray = std::vector<GenConstr>;
using ConeArray = std::vector<Cone>;
using ExpConeArray = std::vector<ExpCone>;
using AffineConeArray = std::vector<AffineCone>;
using QConstrArray = std::vector<QConstraint>;
using PsdVarArray = std::vector<PsdVar>;
using PsdConstrArray = std::vector<PsdConstraint>;
using LmiConstrArray = std::vector<LmiConstraint>;
using SymMatrixArray = std::vector<SymMatrix>;
using ConstrBuilderArray = std::vector<ConstrBuilder>;
using QConstrBuilderArray = std::vector<QConstrBuilder>;
using PsdConstrBuilderArray = std::vector<PsdConstrBuilder>;
using SosBuilderArray = std::vector<SosBuilder>;
using GenConstrBuilderArray = std::vector<GenConstrBuilder>;
using ConeBuilderArray = std::vector<ConeBuilder>;
using ExpConeBuilderArray = std::vector<ExpConeBuilder>;

}  // namespace Vorq
