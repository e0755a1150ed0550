// Trials of tiny models.
#include "solver/engines/clp_interface.hpp"

namespace vorqsolver {

void ClpInterface::markHotStart() {
  if (IsTiny()) {
    OsiSolverInterface::markHotStart();
  } else {
    OsiClpSolverInterface::markHotStart();
  }
}

void ClpInterface::solveFromHotStart() {
  if (IsTiny()) {
    OsiSolverInterface::solveFromHotStart();
  } else {
    OsiClpSolverInterface::solveFromHotStart();
  }
}

void ClpInterface::unmarkHotStart() {
  if (IsTiny()) {
    OsiSolverInterface::unmarkHotStart();
  } else {
    OsiClpSolverInterface::unmarkHotStart();
  }
}

}  // namespace vorqsolver
