// Checks of a problem's data ahead of any engine: engines take bad data badly.
#pragma once

#include <string>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

class ParameterSet;

// The engines calculate with coefficients below this.
inline constexpr double kTooGreat = 1e20;

// An item as messages call it: "Row 'c1'", or "Row 4" where it has no name; `kind` is the first word.
std::string Called(char const* kind, NameList const& names, int index);

// Throws Failure(VORQ_INVALID) for numbers that are none or too large, and for indices out of range.
void Validate(ProblemData const& data);

// Why the problem has no solution, where that is plain: bounds that cross, an integer column without an integer within
// its bounds, an empty row that asks for something. Empty otherwise. With `relaxed`, columns count as continuous.
std::string PlainInfeasibility(ProblemData const& data, ParameterSet const& parameters, bool relaxed);

}  // namespace vorqsolver
