// Setting up the interface of Clp and Cbc, and what their points are worth.
#include "solver/engines/osi_setup.hpp"

#include <ClpSimplex.hpp>
#include <cmath>

#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {

void Control(OsiClpSolverInterface& solver, SilentHandler& silent, IterationWatch const& watch) {
  solver.passInMessageHandler(&silent);
  solver.setHintParam(OsiDoReducePrint, true, OsiHintTry);
  auto* simplex = solver.getModelPtr();
  simplex->passInMessageHandler(&silent);
  simplex->setLogLevel(0);
  simplex->passInEventHandler(&watch);
}

void LoadRelaxation(OsiClpSolverInterface& solver, LinearModel const& linear, std::span<char const> isInteger,
                    ParameterSet const& parameters) {
  solver.loadProblem(linear.Matrix(), linear.lower.data(), linear.upper.data(), linear.cost.data(),
                     linear.rowLower.data(), linear.rowUpper.data());
  solver.setObjSense(1.0);
  // The engine works on a scaled model; some room is left for what unscaling adds.
  solver.setDblParam(OsiPrimalTolerance, 0.1 * parameters.Dbl(DblParam::kFeasTol));
  solver.setDblParam(OsiDualTolerance, 0.1 * parameters.Dbl(DblParam::kDualTol));
  for (int col = 0; col < linear.ColCount(); ++col) {
    if (isInteger[static_cast<std::size_t>(col)] != 0) solver.setInteger(col);
  }
}

bool IsFarAway(ClpSimplex const& simplex) {
  constexpr double kFar = 1e15;
  double const* values = simplex.primalColumnSolution();
  for (int col = 0; col < simplex.numberColumns(); ++col) {
    bool const isAtBound = values[col] == simplex.columnLower()[col] || values[col] == simplex.columnUpper()[col];
    if (std::abs(values[col]) >= kFar && !isAtBound) return true;
  }
  return false;
}

}  // namespace vorqsolver
