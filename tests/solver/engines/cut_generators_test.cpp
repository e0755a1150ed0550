// The cuts of all generators at the relaxations of small integer programs, against every solution of these.
#include <gtest/gtest.h>

#include <CglTreeInfo.hpp>
#include <OsiClpSolverInterface.hpp>
#include <algorithm>
#include <cstdint>
#include <vector>

#include "solver/engines/cbc_setup.hpp"
#include "solver/engines/clp_control.hpp"
#include "tests/solver/tasks/random.hpp"

namespace {

using vorqsolver::CutGenerators;

struct SmallProgram {
  std::vector<double> lower, upper, cost, rowLower, rowUpper;
  std::vector<std::vector<double>> rows;

  explicit SmallProgram(Random& random);

  std::size_t Cols() const { return cost.size(); }
  bool Holds(std::vector<double> const& point) const;
  std::vector<std::vector<double>> Solutions() const;
  void Load(OsiClpSolverInterface& solver) const;
};

SmallProgram::SmallProgram(Random& random) {
  int const cols = random.Int(2, 4);
  bool const isBinary = random.Chance(40);
  for (int col = 0; col < cols; ++col) {
    lower.push_back(isBinary ? 0 : random.Int(-4, 2));
    upper.push_back(isBinary ? 1.0 : lower.back() + random.Int(0, 6));
    cost.push_back(random.Int(-9, 9));
  }
  for (int row = random.Int(1, 4); row > 0; --row) {
    std::vector<double> coefs;
    for (int col = 0; col < cols; ++col) coefs.push_back(random.Chance(70) ? random.Int(-9, 9) : 0);
    rows.push_back(coefs);
    double const side = random.Int(-20, 20);
    int const kind = random.Int(0, 2);
    rowLower.push_back(kind == 0 ? -COIN_DBL_MAX : side);
    rowUpper.push_back(kind == 0 ? side : kind == 1 ? COIN_DBL_MAX : side + random.Int(0, 8));
  }
}

bool SmallProgram::Holds(std::vector<double> const& point) const {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    double activity = 0.0;
    for (std::size_t col = 0; col < point.size(); ++col) activity += rows[row][col] * point[col];
    if (activity < rowLower[row] || activity > rowUpper[row]) return false;
  }
  return true;
}

std::vector<std::vector<double>> SmallProgram::Solutions() const {
  std::vector<std::vector<double>> found;
  for (auto point = lower;;) {
    if (Holds(point)) found.push_back(point);
    std::size_t col = 0;
    while (col < point.size() && point[col] == upper[col]) point[col] = lower[col], ++col;
    if (col == point.size()) return found;
    point[col] += 1.0;
  }
}

void SmallProgram::Load(OsiClpSolverInterface& solver) const {
  CoinPackedMatrix matrix(false, 0, 0);
  matrix.setDimensions(0, static_cast<int>(Cols()));
  for (auto const& coefs : rows) {
    CoinPackedVector row;
    for (std::size_t col = 0; col < Cols(); ++col) {
      if (coefs[col] != 0.0) row.insert(static_cast<int>(col), coefs[col]);
    }
    matrix.appendRow(row);
  }
  solver.loadProblem(matrix, lower.data(), upper.data(), cost.data(), rowLower.data(), rowUpper.data());
  for (std::size_t col = 0; col < Cols(); ++col) solver.setInteger(static_cast<int>(col));
}

// How far a point lies outside of a bound that a generator gives.
double Outside(OsiColCut const& cut, std::vector<double> const& point) {
  double most = 0.0;
  auto const look = [&](CoinPackedVector const& bounds, double sign) {
    for (int k = 0; k < bounds.getNumElements(); ++k) {
      double const value = point[static_cast<std::size_t>(bounds.getIndices()[k])];
      most = std::max(most, sign * (bounds.getElements()[k] - value));
    }
  };
  look(cut.lbs(), 1.0);
  look(cut.ubs(), -1.0);
  return most;
}

class CutGeneratorsTest : public testing::TestWithParam<int> {};

// With a cutoff, cuts may do away with what is no better.
TEST_P(CutGeneratorsTest, KeepAllSolutions) {
  vorqsolver::SilentHandler silent;
  auto const which = static_cast<std::size_t>(GetParam());
  for (int seed = 0; seed < 3000; ++seed) {
    Random random(static_cast<std::uint64_t>(seed));
    SmallProgram const program(random);
    OsiClpSolverInterface solver;
    solver.passInMessageHandler(&silent);
    program.Load(solver);
    solver.initialSolve();
    auto const solutions = program.Solutions();
    if (!solver.isProvenOptimal() || solutions.empty()) continue;
    auto const value = [&](std::vector<double> const& point) {
      double sum = 0.0;
      for (std::size_t col = 0; col < point.size(); ++col) sum += program.cost[col] * point[col];
      return sum;
    };
    double cutoff = COIN_DBL_MAX;
    if (random.Chance(50)) {
      cutoff =
          value(solutions[static_cast<std::size_t>(random.Int(0, static_cast<int>(solutions.size()) - 1))]) - 0.999;
      solver.setDblParam(OsiDualObjectiveLimit, cutoff);
    }
    CglTreeInfo info;
    info.formulation_rows = solver.getNumRows();
    info.options = 4;
    OsiCuts cuts;
    CutGenerators()[which].generator->generateCuts(solver, cuts, info);
    for (auto const& point : solutions) {
      if (value(point) > cutoff) continue;
      for (int k = 0; k < cuts.sizeRowCuts(); ++k) ASSERT_LT(cuts.rowCutPtr(k)->violated(point.data()), 1e-5) << seed;
      for (int k = 0; k < cuts.sizeColCuts(); ++k) ASSERT_LT(Outside(*cuts.colCutPtr(k), point), 1e-6) << seed;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Generators, CutGeneratorsTest, testing::Range(0, 8), [](auto const& tested) {
  return CutGenerators()[static_cast<std::size_t>(tested.param)].name;
});

}  // namespace
