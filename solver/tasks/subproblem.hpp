// SolveSubproblem: one solve of data that a task made from its problem, such as a part of it or a relaxation.
#pragma once

#include "solver/engines/engine.hpp"

namespace vorqsolver {

// What the solve goes by; the points to start from are none.
struct SubproblemTask {
  ProblemData const& data;
  ParameterSet const& parameters;
  StopSignal& stop;
  Log& log;
  bool relaxed = false;  // the LP relaxation
};

// Finds an engine, solves, and checks the solution as a solve does: one that violates the data is kImprecise. Throws
// Failure where the data is unfit or no engine solves problems of this kind.
SolveResult SolveSubproblem(SubproblemTask const& task);

// The engine for problems of that kind, null where there is none.
Engine const* FindEngine(ProblemClass const& what);

// The status that the result is about: that of the MIP where it is one.
inline SolveStatus StatusOf(SolveResult const& result) {
  return result.isMip ? result.mipStatus : result.lpStatus;
}
inline std::vector<double> const& ValuesOf(SolveResult const& result) {
  return result.isMip ? result.mipValues : result.lp.values;
}

}  // namespace vorqsolver
