// ClpInterface: the interface that Clp and Cbc share, made safe. Trials of branches (hot starts) work on a reduced
// model there, and those of a model of at most two rows and two columns end the process by a check of the engine's own
// that such a model cannot pass. These are tried as they are.
#pragma once

#include <OsiClpSolverInterface.hpp>
#include <memory>

namespace vorqsolver {

class ClpInterface : public OsiClpSolverInterface {
 public:
  ClpInterface() = default;
  explicit ClpInterface(OsiClpSolverInterface const& other) : OsiSolverInterface(other), OsiClpSolverInterface(other) {}

  // A copy is not within trials.
  ClpInterface(ClpInterface const& other) : OsiSolverInterface(other), OsiClpSolverInterface(other) {}
  ClpInterface& operator=(ClpInterface const&) = delete;

  OsiSolverInterface* clone(bool copyData) const override {
    return copyData ? new ClpInterface(*this) : new ClpInterface();
  }

  void markHotStart() override;
  void solveFromHotStart() override;
  void unmarkHotStart() override;

 private:
  std::unique_ptr<CoinWarmStart> tinyStart_;  // within trials of a tiny model
};

}  // namespace vorqsolver
