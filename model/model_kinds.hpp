// The twelve kinds of things that a model keeps in tables: what tells one from another, as data. All that the model
// does with its tables is written once, over these records; a further kind is one more record and its place in the
// lists.
//
// The texts differ between like operations, misspellings included; this is meant.
#pragma once

#include <vector>

#include "frame/vorq_solver.h"
#include "items/cones.hpp"
#include "items/constraint.hpp"
#include "items/logical_items.hpp"
#include "items/psd_items.hpp"
#include "items/q_constraint.hpp"
#include "items/sym_matrix.hpp"
#include "items/var.hpp"

namespace Vorq {

template <class... Items>
struct KindList {};

// In the order in which removals are carried out and tables are rebuilt.
using RemovableKinds = KindList<Var, Constraint, Sos, GenConstr, Cone, ExpCone, AffineCone, QConstraint, PsdVar,
                                PsdConstraint, LmiConstraint>;
using AllKinds = KindList<Var, Constraint, Sos, GenConstr, Cone, ExpCone, AffineCone, QConstraint, PsdVar,
                          PsdConstraint, LmiConstraint, SymMatrix>;

// Calls `step` for each kind until it gives false; true if it never did.
template <class Step, class... Items>
bool ForEachKind(KindList<Items...>, Step step) {
  return (step.template operator()<Items>() && ...);
}

// Reads the dimensions of the first dims.size() things of a kind.
int LoadPsdVarDims(VORQ_Prob* prob, std::vector<int>& dims);
int LoadLmiConstraintDims(VORQ_Prob* prob, std::vector<int>& dims);
int LoadSymMatrixDims(VORQ_Prob* prob, std::vector<int>& dims);

struct ModelKind {
  char const* countAttribute;  // the attribute that counts the kind
  char const* badIndex;
  char const* badTable;
  // Removal; null for kinds that cannot be removed.
  int (*remove)(VORQ_Prob* prob, int count, int const* indices) = nullptr;
  char const* removeFailed = nullptr;
  // Names; null for kinds that have none.
  int (*find)(VORQ_Prob* prob, char const* name, int* index) = nullptr;
  char const* notFound = nullptr;
  int (*setNames)(VORQ_Prob* prob, int count, int const* indices, char const* const* names) = nullptr;
  char const* setNamesFailed = nullptr;
  char const* noun = nullptr;  // in "The %d-th ... has been removed"
  // Dimensions; null for kinds that have none. Without a text for clones, a clone takes them from its source.
  int (*loadDims)(VORQ_Prob* prob, std::vector<int>& dims) = nullptr;
  char const* reloadDimsFailed = nullptr;
  char const* cloneDimsFailed = nullptr;
};

template <class Item>
inline constexpr ModelKind kModelKind{};

template <>
inline constexpr ModelKind kModelKind<Var>{.countAttribute = "Cols",
                                           .badIndex = "Invalid col index",
                                           .badTable = "Internal col index error",
                                           .remove = VORQ_DelCols,
                                           .removeFailed = "Fail to del cols",
                                           .find = VORQ_GetColIdx,
                                           .notFound = "No such variable",
                                           .setNames = VORQ_SetColNames,
                                           .setNamesFailed = "Fail to set names of variables",
                                           .noun = "variable"};

template <>
inline constexpr ModelKind kModelKind<Constraint>{.countAttribute = "Rows",
                                                  .badIndex = "Invalid row index",
                                                  .badTable = "Internal row index error",
                                                  .remove = VORQ_DelRows,
                                                  .removeFailed = "Fail to del rows",
                                                  .find = VORQ_GetRowIdx,
                                                  .notFound = "No such constraint",
                                                  .setNames = VORQ_SetRowNames,
                                                  .setNamesFailed = "Fail to set names of constraints",
                                                  .noun = "constraint"};

template <>
inline constexpr ModelKind kModelKind<Sos>{.countAttribute = "Soss",
                                           .badIndex = "Invalid sos index",
                                           .badTable = "Internal sos index error",
                                           .remove = VORQ_DelSOSs,
                                           .removeFailed = "Fail to del SOSs"};

template <>
inline constexpr ModelKind kModelKind<GenConstr>{.countAttribute = "Indicators",
                                                 .badIndex = "Invalid index of general constraint",
                                                 .badTable = "Internal index error of gernal constraint",
                                                 .remove = VORQ_DelIndicators,
                                                 .removeFailed = "Fail to del GenConstrs",
                                                 .find = VORQ_GetIndicatorIdx,
                                                 .notFound = "No such general constraint",
                                                 .setNames = VORQ_SetIndicatorNames,
                                                 .setNamesFailed = "Fail to set names of general constraints",
                                                 .noun = "general constraint"};

template <>
inline constexpr ModelKind kModelKind<Cone>{.countAttribute = "Cones",
                                            .badIndex = "Invalid cone index",
                                            .badTable = "Internal cone index error",
                                            .remove = VORQ_DelCones,
                                            .removeFailed = "Fail to del cones"};

template <>
inline constexpr ModelKind kModelKind<ExpCone>{.countAttribute = "ExpCones",
                                               .badIndex = "Invalid exponential cone index",
                                               .badTable = "Internal exponential cone index error",
                                               .remove = VORQ_DelExpCones,
                                               .removeFailed = "Fail to del exponential cones"};

template <>
inline constexpr ModelKind kModelKind<AffineCone>{.countAttribute = "AffineCones",
                                                  .badIndex = "Invalid affine cone index",
                                                  .badTable = "Internal affine cone index error",
                                                  .remove = VORQ_DelAffineCones,
                                                  .removeFailed = "Fail to delete affine cones",
                                                  .find = VORQ_GetAffineConeIdx,
                                                  .notFound = "Invalid affine cone constraint name",
                                                  .setNames = VORQ_SetAffineConeNames,
                                                  .setNamesFailed = "Fail to set names of affine cone constraints",
                                                  .noun = "affine cone constraint"};

template <>
inline constexpr ModelKind kModelKind<QConstraint>{.countAttribute = "QConstrs",
                                                   .badIndex = "Invalid quad row index",
                                                   .badTable = "Internal quad row index error",
                                                   .remove = VORQ_DelQConstrs,
                                                   .removeFailed = "Fail to del quatratic constraints",
                                                   .find = VORQ_GetQConstrIdx,
                                                   .notFound = "No such constraint",
                                                   .setNames = VORQ_SetQConstrNames,
                                                   .setNamesFailed = "Fail to set names of quadratic constraints",
                                                   .noun = "quadratic constraint"};

template <>
inline constexpr ModelKind kModelKind<PsdVar>{.countAttribute = "PSDCols",
                                              .badIndex = "Invalid index of PSD variables",
                                              .badTable = "Internal index error of PSD variables",
                                              .remove = VORQ_DelPSDCols,
                                              .removeFailed = "Fail to delete PSD vars",
                                              .find = VORQ_GetPSDColIdx,
                                              .notFound = "No such PSD variable",
                                              .setNames = VORQ_SetPSDColNames,
                                              .setNamesFailed = "Fail to set names of PSD variables",
                                              .noun = "PSD variable",
                                              .loadDims = LoadPsdVarDims,
                                              .reloadDimsFailed = "Fail to load dimension of PSD variables",
                                              .cloneDimsFailed = "Fail to load dimensions of PSD variables"};

template <>
inline constexpr ModelKind kModelKind<PsdConstraint>{.countAttribute = "PSDConstrs",
                                                     .badIndex = "Invalid row index of PSD constraint",
                                                     .badTable = "Internal row index error of PSD constraint",
                                                     .remove = VORQ_DelPSDConstrs,
                                                     .removeFailed = "Fail to del PSD constraints",
                                                     .find = VORQ_GetPSDConstrIdx,
                                                     .notFound = "No such PSD constraint",
                                                     .setNames = VORQ_SetPSDConstrNames,
                                                     .setNamesFailed = "Fail to set names of PSD constraints",
                                                     .noun = "PSD constraint"};

template <>
inline constexpr ModelKind kModelKind<LmiConstraint>{.countAttribute = "LMIConstrs",
                                                     .badIndex = "Invalid row index of LMI constraint",
                                                     .badTable = "Internal row index error of LMI constraint",
                                                     .remove = VORQ_DelLMIConstrs,
                                                     .removeFailed = "Fail to del LMI constraints",
                                                     .find = VORQ_GetLMIConstrIdx,
                                                     .notFound = "No such LMI constraint",
                                                     .setNames = VORQ_SetLMIConstrNames,
                                                     .setNamesFailed = "Fail to set names of LMI constraints",
                                                     .noun = "LMI constraint",
                                                     .loadDims = LoadLmiConstraintDims,
                                                     .reloadDimsFailed = "Fail to load dimensions of LMI constraints",
                                                     .cloneDimsFailed = "Fail to load dimensions of LMI constraints"};

template <>
inline constexpr ModelKind kModelKind<SymMatrix>{.countAttribute = "SymMats",
                                                 .badIndex = "Invalid index of symmetric matrix",
                                                 .badTable = "Internal index error of symmetric matrix",
                                                 .loadDims = LoadSymMatrixDims,
                                                 .reloadDimsFailed = "Fail to load dimensions of symmetric matrices"};

}  // namespace Vorq
