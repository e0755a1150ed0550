// Causes of infeasibility that need no solve: bounds that cross, an integer column without an integer between its
// bounds, a row whose activity cannot reach one of its sides, a row of integers without a multiple of their divisor
// between its sides.
#pragma once

#include <string>

#include "solver/tasks/iis_members.hpp"

namespace vorqsolver {

struct PlainCause {
  Members members;   // irreducible; empty where there is no such cause
  std::string text;  // names the culprit, such as "row 'c1' asks for at least 10 and reaches 8"
};

// The cause with the fewest members.
PlainCause FindPlainCause(ProblemData const& data, ParameterSet const& parameters);

}  // namespace vorqsolver
