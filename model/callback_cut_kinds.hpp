// User cuts and lazy constraints that a callback adds: two functions and texts for each.
#pragma once

#include "frame/vorq_solver.h"

namespace Vorq {

struct CallbackCutKind {
  int (*addOne)(VORQ_CallbackData* data, int n, int const* cols, double const* coefs, int sense, double rhs);
  int (*addMany)(VORQ_CallbackData* data, int count, int const* rowBeg, int const* rowCnt, int const* cols,
                 double const* coefs, char const* senses, double const* rhss);
  char const* addOneFailed;
  char const* addManyFailed;
};

inline constexpr CallbackCutKind kCallbackUserCut{.addOne = VORQ_AddCallbackUserCut,
                                                  .addMany = VORQ_AddCallbackUserCuts,
                                                  .addOneFailed = "Fail to add cut in callback",
                                                  .addManyFailed = "Fail to add cuts in callback"};
inline constexpr CallbackCutKind kCallbackLazyConstr{.addOne = VORQ_AddCallbackLazyConstr,
                                                     .addMany = VORQ_AddCallbackLazyConstrs,
                                                     .addOneFailed = "Fail to add lazy constraint in callback",
                                                     .addManyFailed = "Fail to add lazy constraints in callback"};

}  // namespace Vorq
