// MipProgress: what a running MIP solve knows, and the lines of fixed columns that tell it.
#pragma once

#include <limits>
#include <vector>

#include "solver/engines/engine.hpp"

namespace vorqsolver {

class MipProgress {
 public:
  explicit MipProgress(SolveTask const& task) : task_(task) {}

  // All in the direction of the engine, minimising, without the constant of the objective.
  void Update(int nodes, int open, double bound);

  // A new incumbent; `mark` is 'H' for a heuristic's, '*' for one of the search, 'S' for a start.
  void Incumbent(double objective, char mark);

  // A line if none came for some seconds.
  void Tick();

  void Line(char mark);

  double Bound() const { return bound_; }
  int Nodes() const { return nodes_; }

 private:
  static constexpr double kNone = std::numeric_limits<double>::infinity();

  SolveTask const& task_;
  int nodes_ = 0;
  int open_ = 0;
  double bound_ = -kNone;
  double incumbent_ = kNone;
  double lastLine_ = 0.0;
  bool hasHeader_ = false;
};

// The relative gap of the attribute BestGap: |objective - bound| over |objective|, 0 where they are equal.
double RelativeGap(double objective, double bound);

}  // namespace vorqsolver
