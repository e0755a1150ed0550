// Trials of tiny models.
#include "solver/engines/clp_interface.hpp"

namespace vorqsolver {

void ClpInterface::markHotStart() {
  isTiny_ = getNumRows() <= 2 && getNumCols() <= 2;
  if (isTiny_) {
    OsiSolverInterface::markHotStart();
  } else {
    OsiClpSolverInterface::markHotStart();
  }
}

void ClpInterface::solveFromHotStart() {
  if (isTiny_) {
    OsiSolverInterface::solveFromHotStart();
  } else {
    OsiClpSolverInterface::solveFromHotStart();
  }
}

void ClpInterface::unmarkHotStart() {
  if (isTiny_) {
    OsiSolverInterface::unmarkHotStart();
  } else {
    OsiClpSolverInterface::unmarkHotStart();
  }
}

}  // namespace vorqsolver
