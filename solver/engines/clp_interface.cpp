// Trials of tiny models.
#include "solver/engines/clp_interface.hpp"

namespace vorqsolver {

void ClpInterface::markHotStart() {
  bool const isTiny = getNumRows() <= 2 && getNumCols() <= 2;
  if (isTiny) {
    tinyStart_.reset(getWarmStart());
  } else {
    OsiClpSolverInterface::markHotStart();
  }
}

void ClpInterface::solveFromHotStart() {
  if (tinyStart_) {
    setWarmStart(tinyStart_.get());
    resolve();
  } else {
    OsiClpSolverInterface::solveFromHotStart();
  }
}

void ClpInterface::unmarkHotStart() {
  if (tinyStart_) {
    tinyStart_.reset();
  } else {
    OsiClpSolverInterface::unmarkHotStart();
  }
}

}  // namespace vorqsolver
