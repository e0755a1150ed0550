// Cuts, heuristics and branching rules of the MIP engine.
#include "solver/engines/cbc_setup.hpp"

#include <CbcHeuristic.hpp>
#include <CbcHeuristicDiveCoefficient.hpp>
#include <CbcHeuristicFPump.hpp>
#include <CbcHeuristicGreedy.hpp>
#include <CbcHeuristicRINS.hpp>
#include <CbcModel.hpp>
#include <CglClique.hpp>
#include <CglFlowCover.hpp>
#include <CglGomory.hpp>
#include <CglKnapsackCover.hpp>
#include <CglMixedIntegerRounding2.hpp>
#include <CglProbing.hpp>
#include <CglTwomir.hpp>
#include <CglZeroHalf.hpp>
#include <limits>

#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {

namespace {

// At the root, and in the tree only where the cuts proved of use there.
constexpr int kWhereUseful = -98;

// A negative number stands for the depth -2 - number, here 10.
constexpr int kFastDepth = -12;

void AddCuts(CbcModel& model) {
  CglProbing probing;
  probing.setUsingObjective(1);
  probing.setMaxPass(1);
  probing.setMaxPassRoot(1);
  probing.setMaxProbe(10);
  probing.setMaxProbeRoot(50);
  probing.setMaxLook(10);
  probing.setMaxLookRoot(50);
  probing.setMaxElements(200);
  probing.setMaxElementsRoot(300);
  probing.setRowCuts(3);
  model.addCutGenerator(&probing, kWhereUseful, "Probing");

  CglGomory gomory;
  gomory.setLimitAtRoot(1000);
  gomory.setLimit(50);
  model.addCutGenerator(&gomory, kWhereUseful, "Gomory");

  CglKnapsackCover knapsack;
  model.addCutGenerator(&knapsack, kWhereUseful, "Knapsack");

  CglClique clique;
  clique.setStarCliqueReport(false);
  clique.setRowCliqueReport(false);
  model.addCutGenerator(&clique, kWhereUseful, "Clique");

  CglMixedIntegerRounding2 rounding;
  model.addCutGenerator(&rounding, kWhereUseful, "Rounding");

  CglFlowCover flow;
  model.addCutGenerator(&flow, kWhereUseful, "FlowCover");

  CglTwomir twomir;
  model.addCutGenerator(&twomir, kWhereUseful, "TwoMir");

  CglZeroHalf zeroHalf;
  model.addCutGenerator(&zeroHalf, kWhereUseful, "ZeroHalf");
}

void AddHeuristics(CbcModel& model) {
  CbcRounding rounding(model);
  model.addHeuristic(&rounding, "rounding");

  CbcHeuristicFPump pump(model);
  pump.setMaximumPasses(30);
  pump.setFractionSmall(0.5);
  model.addHeuristic(&pump, "feasibility pump");

  CbcHeuristicRINS neighbourhood(model);
  neighbourhood.setFractionSmall(0.5);
  neighbourhood.setDecayFactor(5.0);
  model.addHeuristic(&neighbourhood, "RINS");

  CbcHeuristicDiveCoefficient dive(model);
  dive.setWhen(3);
  dive.setMaxIterations(100);
  model.addHeuristic(&dive, "dive");

  CbcHeuristicGreedyCover greedy(model);
  model.addHeuristic(&greedy, "greedy cover");
}

}  // namespace

void SetUpCbc(CbcModel& model, ParameterSet const& parameters, bool plain) {
  if (parameters.Int(IntParam::kCutLevel) != 0) AddCuts(model);
  if (parameters.Int(IntParam::kHeurLevel) != 0 && !plain) AddHeuristics(model);
  model.setNumberStrong(parameters.Int(IntParam::kStrongBranching) == 0 ? 0 : 5);
  // More trials than usual: with fewer, a small general-integer problem such as bell5 can take many times as long.
  model.setNumberBeforeTrust(20);
  model.setMaximumCutPassesAtRoot(-100);
  model.setMaximumCutPasses(10);
  model.setMinimumDrop(1e-4);
  // From this depth on small subtrees are searched at one go, by linear solves alone. Such a search sees no SOS.
  if (!plain) model.setFastNodeDepth(kFastDepth);

  model.setIntegerTolerance(parameters.Dbl(DblParam::kIntTol));
  model.setAllowableGap(parameters.Dbl(DblParam::kAbsGap));
  model.setAllowableFractionGap(parameters.Dbl(DblParam::kRelGap));
  int const nodes = parameters.Int(IntParam::kNodeLimit);
  model.setMaximumNodes(nodes < 0 ? std::numeric_limits<int>::max() : nodes);
}

}  // namespace vorqsolver
