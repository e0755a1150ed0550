// Running the solver, its callback and its log.
#include "model/solve_scope.hpp"

namespace Vorq {
namespace {

// Called by the solver library with each line of its log.
void PassLogLine(char const* line, void* user) {
  if (user != nullptr) static_cast<ILogSink*>(user)->Log(line);
}

}  // namespace

void Model::Solve() {
  SolveScope const scope(*this);
  if (!ApplyRemovals()) return;
  // Columns may have been added since the callback was set, or its object may have served another model.
  if (!TellColumnCount()) {
    Refuse("The callback is running for another model");
    return;
  }
  Record(VORQ_Solve(Prob()), "Fail to solve problem");
}

void Model::SolveLp() {
  SolveScope const scope(*this);
  FlushAndCall("Fail to solve problem as LP", VORQ_SolveLp);
}

void Model::ComputeIIS() {
  SolveScope const scope(*this);
  FlushAndCall("Fail to compute IIS", VORQ_ComputeIIS);
}

void Model::Tune() {
  SolveScope const scope(*this);
  FlushAndCall("Fail to tune model", VORQ_Tune);
}

void Model::LoadTuneParam(int index) {
  FlushAndCall("Fail to load tuned parameters to model", VORQ_LoadTuneParam, index);
}

void Model::Interrupt() {
  int const code = VORQ_Interrupt(Prob());
  if (!solving_) Record(code, "Fail to call interrupt");
}

bool Model::SetCallback(VORQ_CallbackFunction function, int contextMask, void* user, ColumnCountListener listener) {
  char const* const text = function == nullptr ? "Fail to clean user callback" : "Fail to set user callback";
  // The callback from before stays where the solver library refuses, and so does who is told of the columns.
  if (!Record(VORQ_SetCallback(Prob(), function, contextMask, user), text)) return false;
  columnCountListener_ = std::move(listener);
  return true;
}

int Model::SetLogFile(char const* path) {
  return VORQ_SetLogFile(Prob(), path);
}

int Model::SetLogCallback(ILogSink* logger) {
  return VORQ_SetLogCallback(Prob(), PassLogLine, logger);
}

}  // namespace Vorq
