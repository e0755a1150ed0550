// The MIP engine: Cbc's branch and cut, for integer and semicontinuous columns, SOS and indicators over linear rows.
#pragma once

#include "solver/engines/engine.hpp"

namespace vorqsolver {

class CbcEngine : public Engine {
 public:
  std::string_view Name() const override { return "Cbc"; }
  std::string Version() const override;
  bool Supports(ProblemClass const& what) const override;
  SolveResult Solve(SolveTask const& task) const override;
};

}  // namespace vorqsolver
