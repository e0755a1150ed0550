// The limited search by Cbc.
#include "solver/engines/sub_search.hpp"

#include <CbcModel.hpp>
#include <algorithm>
#include <cmath>

#include "solver/engines/branch_and_cut.hpp"
#include "solver/engines/cbc_setup.hpp"
#include "solver/engines/clp_interface.hpp"
#include "solver/engines/osi_setup.hpp"

namespace vorqsolver {

std::optional<std::vector<double>> SearchModel(LinearModel const& linear, MipModel const& mip, SolveTask const& task,
                                               SubSearchLimits const& limits) {
  if (!mip.sets.empty() || mip.HasOpenIntegers()) return SearchWithSets(linear, mip, task, limits.nodes);
  SilentHandler silent;
  IterationWatch::Report tick = [](ClpSimplex const*) {};
  ClpInterface solver;
  Control(solver, silent, IterationWatch(task.stop, tick));
  LoadRelaxation(solver, linear, mip.isInteger, task.parameters);
  solver.initialSolve();
  if (!solver.isProvenOptimal() || task.stop.Asked()) return std::nullopt;
  if (solver.getObjValue() >= limits.cutoff) return std::nullopt;

  CbcModel model(solver);
  model.passInMessageHandler(&silent);
  model.setLogLevel(0);
  SetUpCbc(model, task.parameters);
  model.setMaximumNodes(limits.nodes < 0 ? std::numeric_limits<int>::max() : limits.nodes);
  model.setUseElapsedTime(true);
  model.setMaximumSeconds(std::max(0.0, std::min(limits.seconds, task.stop.Remaining())));
  if (std::isfinite(limits.cutoff)) model.setCutoff(limits.cutoff);
  tick = [&](ClpSimplex const*) {
    if (task.stop.Asked()) model.sayEventHappened();
  };
  model.branchAndBound();
  if (model.bestSolution() == nullptr) return std::nullopt;
  return std::vector<double>(model.bestSolution(), model.bestSolution() + linear.ColCount());
}

}  // namespace vorqsolver
