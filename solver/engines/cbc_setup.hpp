// How a CbcModel is set up: cuts, heuristics, branching, limits. Without these Cbc is many times slower.
#pragma once

class CbcModel;

namespace vorqsolver {

class ParameterSet;

// `plain` leaves heuristics out, which know nothing of SOS.
void SetUpCbc(CbcModel& model, ParameterSet const& parameters, bool plain);

}  // namespace vorqsolver
