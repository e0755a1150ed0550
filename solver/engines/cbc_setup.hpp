// How a CbcModel is set up: cuts, heuristics, branching, limits. Without these Cbc is many times slower.
#pragma once

#include <CglCutGenerator.hpp>
#include <CglProbing.hpp>
#include <memory>
#include <vector>

class CbcModel;

namespace vorqsolver {

class ParameterSet;

void SetUpCbc(CbcModel& model, ParameterSet const& parameters);

// Probing as all use it; the limits of its work are up to the user.
CglProbing Probing();

// The generators of cuts that pay.
struct NamedGenerator {
  char const* name;
  std::unique_ptr<CglCutGenerator> generator;
};
std::vector<NamedGenerator> CutGenerators();

}  // namespace vorqsolver
