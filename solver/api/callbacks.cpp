// The C functions of callbacks and of the log sink.
#include "solver/api/guard.hpp"

using namespace vorqsolver;

namespace {

// Nobody hands out callback data yet, so any that comes is not ours.
int NoCallbackData() {
  return VORQ_INVALID;
}

}  // namespace

int VORQ_SetLogCallback(VORQ_Prob* prob, VORQ_LogFunction function, void* user) {
  return Guard(prob, [&](Problem& problem) { problem.log.SetSink(function, user); });
}

int VORQ_SetCallback(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user) {
  return Guard(prob, [&](Problem& problem) {
    if (function != nullptr) throw Failure(VORQ_INTERNAL, "Callbacks are not available in this version");
    problem.callback = {function, contextMask, user};
  });
}

int VORQ_SearchCallbackInfo(VORQ_Prob*, char const* name, int* type, int* dim) {
  return Guard([&] {
    Need(name, "name");
    if (type != nullptr) *type = VORQ_UNKNOWN_NAME;
    if (dim != nullptr) *dim = 0;
  });
}

int VORQ_GetCallbackInfo(VORQ_CallbackData*, char const*, void*) {
  return NoCallbackData();
}

int VORQ_AddCallbackSolution(VORQ_CallbackData*, double const*, double*) {
  return NoCallbackData();
}

int VORQ_AddCallbackUserCut(VORQ_CallbackData*, int, int const*, double const*, int, double) {
  return NoCallbackData();
}

int VORQ_AddCallbackUserCuts(VORQ_CallbackData*, int, int const*, int const*, int const*, double const*, char const*,
                             double const*) {
  return NoCallbackData();
}

int VORQ_AddCallbackLazyConstr(VORQ_CallbackData*, int, int const*, double const*, int, double) {
  return NoCallbackData();
}

int VORQ_AddCallbackLazyConstrs(VORQ_CallbackData*, int, int const*, int const*, int const*, double const*, char const*,
                                double const*) {
  return NoCallbackData();
}
