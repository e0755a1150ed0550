// How a CbcModel is set up: cuts, heuristics, branching, limits. Without these Cbc is many times slower.
#pragma once

#include <CglCutGenerator.hpp>
#include <CglProbing.hpp>
#include <memory>
#include <vector>

#include "solver/engines/mip_model.hpp"

class CbcModel;

namespace vorqsolver {

class ParameterSet;

// `plain` leaves heuristics out, which know nothing of SOS.
void SetUpCbc(CbcModel& model, ParameterSet const& parameters, bool plain);

// Adds the sets as things to branch on.
void AddSets(CbcModel& model, std::vector<MipModel::Set> const& sets);

// Probing as all use it; the limits of its work are up to the user.
CglProbing Probing();

// The generators of cuts that pay.
struct NamedGenerator {
  char const* name;
  std::unique_ptr<CglCutGenerator> generator;
};
std::vector<NamedGenerator> CutGenerators();

}  // namespace vorqsolver
