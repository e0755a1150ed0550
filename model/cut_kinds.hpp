// User cuts and lazy constraints: rows that the solver library keeps apart, and for which no item is made.
#pragma once

#include "frame/vorq_solver.h"

namespace Vorq {

struct CutKind {
  int (*addOne)(VORQ_Prob* prob, int n, int const* cols, double const* coefs, int sense, double bound, double upper,
                char const* name);
  int (*addMany)(VORQ_Prob* prob, int count, int const* rowBeg, int const* rowCnt, int const* cols, double const* coefs,
                 char const* senses, double const* lowers, double const* uppers, char const* const* names);
  char const* addOneFailed;
  char const* addManyFailed;
};

inline constexpr CutKind kUserCut{.addOne = VORQ_AddUserCut,
                                  .addMany = VORQ_AddUserCuts,
                                  .addOneFailed = "Fail to add user cut to model",
                                  .addManyFailed = "Fail to add user cuts to model"};
inline constexpr CutKind kLazyConstr{.addOne = VORQ_AddLazyConstr,
                                     .addMany = VORQ_AddLazyConstrs,
                                     .addOneFailed = "Fail to add lazy constraint to model",
                                     .addManyFailed = "Fail to add lazy constraints to model"};

}  // namespace Vorq
