// User cuts and lazy constraints, for which no item is made: rows that the solver library keeps apart, and those that a
// callback adds. Two functions and texts for each.
#pragma once

#include "frame/vorq_solver.h"

namespace Vorq {

template <class AddOne, class AddMany>
struct CutFunctions {
  AddOne* addOne;
  AddMany* addMany;
  char const* addOneFailed;
  char const* addManyFailed;
};

using CutKind = CutFunctions<decltype(VORQ_AddUserCut), decltype(VORQ_AddUserCuts)>;
using CallbackCutKind = CutFunctions<decltype(VORQ_AddCallbackUserCut), decltype(VORQ_AddCallbackUserCuts)>;

inline constexpr CutKind kUserCut{VORQ_AddUserCut, VORQ_AddUserCuts, "Fail to add user cut to model",
                                  "Fail to add user cuts to model"};
inline constexpr CutKind kLazyConstr{VORQ_AddLazyConstr, VORQ_AddLazyConstrs, "Fail to add lazy constraint to model",
                                     "Fail to add lazy constraints to model"};
inline constexpr CallbackCutKind kCallbackUserCut{VORQ_AddCallbackUserCut, VORQ_AddCallbackUserCuts,
                                                  "Fail to add cut in callback", "Fail to add cuts in callback"};
inline constexpr CallbackCutKind kCallbackLazyConstr{VORQ_AddCallbackLazyConstr, VORQ_AddCallbackLazyConstrs,
                                                     "Fail to add lazy constraint in callback",
                                                     "Fail to add lazy constraints in callback"};

}  // namespace Vorq
