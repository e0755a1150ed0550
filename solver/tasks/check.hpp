// CheckSolution: how far a point is from holding all that a problem asks for. Used before a solution is reported, for
// the summary of a solve, and for points that come from outside.
#pragma once

#include <span>
#include <string>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

class ParameterSet;

// The greatest violations of each kind, 0 where all holds. The relative ones are measured against the size of the
// numbers involved: a bound, or the greatest term of a row.
struct Violations {
  double bounds = 0.0;
  double rows = 0.0;
  double integrality = 0.0;
  double discrete = 0.0;  // semicontinuity, SOS, indicators

  double relativeBounds = 0.0;
  double relativeRows = 0.0;
  double relativeDiscrete = 0.0;

  // Whether the relative violations are within FeasTol and integrality within IntTol.
  bool Holds(ParameterSet const& parameters) const;

  // The greatest one in words: "a row violated by 2".
  std::string Worst() const;
};

// Lazy constraints and user cuts count as rows. With `relaxed`, user cuts, integrality, semicontinuity, SOS and
// indicators do not count.
Violations CheckSolution(ProblemData const& data, std::span<double const> values, bool relaxed = false);

}  // namespace vorqsolver
