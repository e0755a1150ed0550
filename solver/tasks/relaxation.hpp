// Relaxation: a problem with further columns for the violation of bounds and rows.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "solver/problem/problem_data.hpp"
#include "solver/problem/solution.hpp"

namespace vorqsolver {

// A side that may be violated: by the value of `slack`, which costs `penalty`, times its square, or times `counter`.
struct RelaxedSide {
  bool isRow;
  bool isLower;
  int index;
  double penalty;
  int slack;         // the column of the amount
  int counter = -1;  // the binary column that is 1 where there is a violation; only where violations are counted
};

class Relaxation {
 public:
  Relaxation(ProblemData const& original, RelaxPenalties const& penalties, RelaxMode mode);

  ProblemData const& Data() const { return data_; }
  std::vector<RelaxedSide> const& Sides() const { return sides_; }

  // The objective of the relaxation at a point of it.
  double PenaltyAt(std::vector<double> const& values) const;

  // From now on the problem's own objective, with no more than `penalty`.
  void OptimiseWithin(ProblemData const& original, double penalty);

 private:
  bool Counts() const { return mode_ == RelaxMode::kCount || mode_ == RelaxMode::kCountThenObjective; }
  bool Squares() const { return mode_ == RelaxMode::kSquares || mode_ == RelaxMode::kSquaresThenObjective; }
  // A side so far out stays: nobody can calculate with what it is violated by.
  bool MayRelax(double penalty, double bound) const { return penalty < kInfinity && std::abs(bound) < 1e15; }
  void RelaxRow(int row);
  void RelaxColumn(int col);
  void AddSide(RelaxedSide side, int row, std::string const& name, double most);
  int AddRow(SparseMatrix::View terms, double lower, double upper, std::string const& name);
  int AddCol(double upper, double cost, char type, std::string const& name);
  double MostViolation(int row, bool isLower) const;

  RelaxMode mode_;
  int colCount_;                     // of the problem
  RelaxPenalties const& penalties_;  // looked at during construction only
  ProblemData data_;
  std::vector<RelaxedSide> sides_;
};

}  // namespace vorqsolver
