// ProblemClass: which kinds of things a problem holds, so that an engine can be found for it.
#pragma once

#include <string>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

struct ProblemClass {
  bool integers = false;
  bool semicontinuous = false;
  bool sos = false;
  bool indicators = false;
  bool quadraticObjective = false;
  bool quadraticRows = false;
  bool cones = false;
  bool expCones = false;
  bool affineCones = false;
  bool psd = false;
  bool lmi = false;
  bool sideRows = false;  // lazy constraints or user cuts beside discrete parts
  bool callback = false;  // that a search over discrete parts is to call

  bool IsDiscrete() const { return integers || semicontinuous || sos || indicators; }
  bool IsLinear() const {
    return !(quadraticObjective || quadraticRows || cones || expCones || affineCones || psd || lmi);
  }

  // Whether rows may come while the search runs.
  bool IsDynamic() const { return sideRows || callback; }

  // Without integrality, SOS, indicators and semicontinuity; nothing comes during the solve then.
  ProblemClass Relaxed() const;

  // Such as "integer columns and a quadratic objective"; "linear rows" where there is nothing else.
  std::string Describe() const;
};

ProblemClass Classify(ProblemData const& data);

}  // namespace vorqsolver
