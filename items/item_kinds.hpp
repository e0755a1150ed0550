// What tells one kind of model item from another: its texts and its functions of the solver library, as data.
//
// The texts differ between like operations, and within one kind; this is meant.
#pragma once

#include "frame/vorq_solver.h"

namespace Vorq {

// One operation of the solver library on a list of items.
template <class T>
using ItemReader = int (*)(VORQ_Prob* prob, int count, int const* indices, T* values);
template <class T>
using ItemWriter = int (*)(VORQ_Prob* prob, int count, int const* indices, T const* values);
using InfoReader = int (*)(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values);
using NameWriter = int (*)(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
using NameReader = int (*)(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);

struct ItemKind {
  char const* invalid;  // what an operation on an item that is not live reports
  // Names; null for kinds that have none.
  char const* invalidForSetName = nullptr;
  NameWriter setNames = nullptr;
  char const* setNameFailure = nullptr;
  NameReader getName = nullptr;
};

inline constexpr ItemKind kVarKind{.invalid = "Invalid variable",
                                   .invalidForSetName = "Invalid variable",
                                   .setNames = VORQ_SetColNames,
                                   .setNameFailure = "Fail to set variable name",
                                   .getName = VORQ_GetColName};

inline constexpr ItemKind kConstraintKind{.invalid = "Invalid constraint",
                                          .invalidForSetName = "Invalid constraint",
                                          .setNames = VORQ_SetRowNames,
                                          .setNameFailure = "Fail to set constraint name",
                                          .getName = VORQ_GetRowName};

inline constexpr ItemKind kQConstraintKind{.invalid = "Invalid quadratic constraint",
                                           .invalidForSetName = "Invalid constraint",  // meant
                                           .setNames = VORQ_SetQConstrNames,
                                           .setNameFailure = "Fail to set name of quadratic constraint",
                                           .getName = VORQ_GetQConstrName};

inline constexpr ItemKind kPsdVarKind{.invalid = "Invalid PSD variable",
                                      .invalidForSetName = "Invalid PSD variable",
                                      .setNames = VORQ_SetPSDColNames,
                                      .setNameFailure = "Fail to set PSD variable name",
                                      .getName = VORQ_GetPSDColName};

inline constexpr ItemKind kPsdConstraintKind{.invalid = "Invalid PSD constraint",
                                             .invalidForSetName = "Invalid constraint",  // meant
                                             .setNames = VORQ_SetPSDConstrNames,
                                             .setNameFailure = "Fail to set name of PSD constraint",
                                             .getName = VORQ_GetPSDConstrName};

inline constexpr ItemKind kLmiConstraintKind{.invalid = "Invalid LMI constraint",
                                             .invalidForSetName = "Invalid LMI constraint",
                                             .setNames = VORQ_SetLMIConstrNames,
                                             .setNameFailure = "Fail to set name of LMI constraint",
                                             .getName = VORQ_GetLMIConstrName};

inline constexpr ItemKind kGenConstrKind{.invalid = "Invalid general constraint",
                                         .invalidForSetName = "Invalid general constraint",
                                         .setNames = VORQ_SetIndicatorNames,
                                         .setNameFailure = "Fail to set name of general constraint",
                                         .getName = VORQ_GetIndicatorName};

inline constexpr ItemKind kAffineConeKind{.invalid = "Invalid affine cone",
                                          .invalidForSetName = "Invalid affine cone",
                                          .setNames = VORQ_SetAffineConeNames,
                                          .setNameFailure = "Fail to set name of affine cone",
                                          .getName = VORQ_GetAffineConeName};

inline constexpr ItemKind kSosKind{.invalid = "Invalid SOS constraint"};

}  // namespace Vorq
