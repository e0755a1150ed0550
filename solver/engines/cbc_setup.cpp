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
#include <CglTwomir.hpp>
#include <CglZeroHalf.hpp>
#include <limits>
#include <type_traits>

#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {

namespace {

// At the root, and in the tree only where the cuts proved of use there.
constexpr int kWhereUseful = -98;

// A negative number stands for the depth -2 - number, here 10.
constexpr int kFastDepth = -12;

CglProbing ProbingInSearch() {
  CglProbing probing = Probing();
  probing.setMaxProbe(10);
  probing.setMaxProbeRoot(50);
  probing.setMaxLook(10);
  probing.setMaxElements(200);
  probing.setMaxElementsRoot(300);
  return probing;
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

CglProbing Probing() {
  // Coefficient cuts beside these, which is 3, go wrong: bounds follow from them that cut off solutions.
  constexpr int kDisaggregationCuts = 1;
  CglProbing probing;
  probing.setUsingObjective(1);
  probing.setMaxPass(1);
  probing.setMaxPassRoot(1);
  probing.setMaxLookRoot(50);
  probing.setRowCuts(kDisaggregationCuts);
  return probing;
}

std::vector<NamedGenerator> CutGenerators() {
  CglGomory gomory;
  gomory.setLimitAtRoot(1000);
  gomory.setLimit(50);
  CglClique clique;
  clique.setStarCliqueReport(false);
  clique.setRowCliqueReport(false);

  std::vector<NamedGenerator> generators;
  auto const add = [&generators](char const* name, auto const& generator) {
    generators.push_back({name, std::make_unique<std::decay_t<decltype(generator)>>(generator)});
  };
  add("Probing", ProbingInSearch());
  add("Gomory", gomory);
  add("Knapsack", CglKnapsackCover());
  add("Clique", clique);
  add("Rounding", CglMixedIntegerRounding2());
  add("FlowCover", CglFlowCover());
  add("TwoMir", CglTwomir());
  add("ZeroHalf", CglZeroHalf());
  return generators;
}

void SetUpCbc(CbcModel& model, ParameterSet const& parameters) {
  if (parameters.Int(IntParam::kCutLevel) != 0) {
    for (auto const& [name, generator] : CutGenerators()) model.addCutGenerator(generator.get(), kWhereUseful, name);
  }
  if (parameters.Int(IntParam::kHeurLevel) != 0) AddHeuristics(model);
  model.setNumberStrong(parameters.Int(IntParam::kStrongBranching) == 0 ? 0 : 5);
  // More trials than usual: with fewer, a small general-integer problem such as bell5 can take many times as long.
  model.setNumberBeforeTrust(20);
  model.setMaximumCutPassesAtRoot(-100);
  model.setMaximumCutPasses(10);
  model.setMinimumDrop(1e-4);
  // From this depth on small subtrees are searched at one go, by linear solves alone.
  model.setFastNodeDepth(kFastDepth);

  model.setIntegerTolerance(parameters.Dbl(DblParam::kIntTol));
  model.setAllowableGap(parameters.Dbl(DblParam::kAbsGap));
  model.setAllowableFractionGap(parameters.Dbl(DblParam::kRelGap));
  int const nodes = parameters.Int(IntParam::kNodeLimit);
  model.setMaximumNodes(nodes < 0 ? std::numeric_limits<int>::max() : nodes);
}

}  // namespace vorqsolver
