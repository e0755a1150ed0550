// LinearModel: the linear part of a problem in the form that the engines take: columns and rows with bounds, infinite
// ones as the engines write them, and an objective that is always minimised.
#pragma once

#include <CoinPackedMatrix.hpp>
#include <memory>
#include <span>
#include <vector>

#include "solver/problem/problem_data.hpp"
#include "solver/problem/solution.hpp"

class ClpSimplex;

namespace vorqsolver {

// Rows and columns may be added behind those of the problem, for constraints that the engines know no name for.
class LinearModel {
 public:
  // Bounds that cross by less than a tolerance meet in their middle.
  // The relaxation: bounds of integer columns as they are, semicontinuous columns with 0 within their bounds; lazy
  // constraints as rows. With `userCuts`, these are rows too.
  LinearModel(ProblemData const& data, bool userCuts);

  // The same without lazy constraints and user cuts.
  struct NoSideRows {};
  LinearModel(ProblemData const& data, NoSideRows none);

  int AddCol(double lower, double upper, double objective);
  void AddRow(std::span<LinearTerm const> terms, double lower, double upper);

  // The coefficients, those of the added rows and columns included.
  CoinPackedMatrix Matrix() const;

  int ColCount() const { return static_cast<int>(lower.size()); }
  int RowCount() const { return static_cast<int>(rowLower.size()); }
  std::size_t ElementCount() const;

  // Calls `visit(column, coefficient)` for each element of a row.
  template <typename Visit>
  void VisitRow(int row, Visit&& visit) const {
    int const own = data_->rows.Count();
    if (row >= own) {
      for (auto const& term : added_[static_cast<std::size_t>(row - own)]) visit(term.col, term.value);
      return;
    }
    auto const view = data_->rows.matrix.Row(row);
    for (std::size_t k = 0; k < view.indices.size(); ++k) {
      if (!IsNothing(view.values[k])) visit(view.indices[k], view.values[k]);
    }
  }

  // Loads the model into an empty simplex engine.
  void Load(ClpSimplex& simplex) const;

  std::vector<double> lower;
  std::vector<double> upper;
  std::vector<double> cost;
  std::vector<double> rowLower;
  std::vector<double> rowUpper;
  double sign = 1.0;  // of the problem's objective against `cost`

 private:
  // Elements so small only trouble the engines: they are left out.
  static constexpr double kLeast = 1e-15;
  static bool IsNothing(double value) { return value > -kLeast && value < kLeast; }

  void AddSideRows(SideRows const& side);

  ProblemData const* data_;
  std::vector<std::vector<LinearTerm>> added_;  // the terms of the added rows
};

double ToEngine(double bound);  // the engine's infinity for ours

// Values, slacks, duals, reduced costs, basis and objective of the rows and columns of `data`, signs as documented.
void ReadLpSolution(ClpSimplex const& simplex, LinearModel const& model, ProblemData const& data, SolveResult& result);

// The slack of each row.
std::vector<double> Slacks(ProblemData const& data, std::span<double const> values);

double ObjectiveOf(ProblemData const& data, std::span<double const> values);

}  // namespace vorqsolver
