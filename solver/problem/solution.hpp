// What a solve leaves behind: status, solutions, basis, rays, pool.
#pragma once

#include <string>
#include <vector>

namespace vorqsolver {

// The values of the attributes LpStatus and MipStatus.
enum class SolveStatus : int {
  kUnstarted = 0,
  kOptimal = 1,
  kInfeasible = 2,
  kUnbounded = 3,
  kInfeasibleOrUnbounded = 4,
  kNumerical = 5,
  kNodeLimit = 6,
  kImprecise = 7,
  kTimeLimit = 8,
  kUnfinished = 9,
  kInterrupted = 10,
};

// The codes of VORQ_GetBasis and VORQ_SetBasis.
enum class BasisStatus : int { kLower = 0, kBasic = 1, kUpper = 2, kSuperBasic = 3, kFixed = 4 };

// One value for each column; slacks, duals and reduced costs as docs/solver-library.md tells.
struct LpSolution {
  std::vector<double> values;
  std::vector<double> slacks;
  std::vector<double> duals;
  std::vector<double> reducedCosts;
};

struct Basis {
  std::vector<int> cols;
  std::vector<int> rows;

  bool IsEmpty() const { return cols.empty() && rows.empty(); }
};

// Matrices lie behind each other, each in full and row by row.
struct PsdSolution {
  std::vector<double> values;        // the matrix of each PSD column
  std::vector<double> slacks;        // one for each PSD constraint
  std::vector<double> duals;         // one for each PSD constraint
  std::vector<double> reducedCosts;  // the matrix of each PSD column
};

struct LmiSolution {
  std::vector<double> slacks;  // the matrix of each LMI constraint
  std::vector<double> duals;
};

// One for each quadratic constraint.
struct QuadraticSolution {
  std::vector<double> slacks;
  std::vector<double> duals;
};

// The members of an infeasible set: 1 or 0 for each bound and constraint.
struct Iis {
  bool available = false;
  bool irreducible = true;  // proved: without any one member the rest is feasible
  double seconds = 0.0;     // of its computation
  std::vector<int> colLower;
  std::vector<int> colUpper;
  std::vector<int> rowLower;
  std::vector<int> rowUpper;
  std::vector<int> soss;
  std::vector<int> indicators;
};

struct PoolSolution {
  double objective = 0.0;
  std::vector<double> values;
};

// The values of the parameter FeasRelaxMode: what is minimised, for each odd value with the problem's own objective
// among the least violations.
enum class RelaxMode : int {
  kSum = 0,
  kSumThenObjective = 1,
  kCount = 2,
  kCountThenObjective = 3,
  kSquares = 4,
  kSquaresThenObjective = 5,
};

// What a violation by 1 costs, one for each column or row; kInfinity for what must hold, empty where all must.
struct RelaxPenalties {
  std::vector<double> colLower;
  std::vector<double> colUpper;
  std::vector<double> rowLower;
  std::vector<double> rowUpper;
};

// The point that violates a problem the least, by the penalties of VORQ_FeasRelax.
struct RelaxedSolution {
  bool attempted = false;  // the relaxation was stated, whether or not it has a solution
  bool available = false;
  std::vector<double> values;  // one for each column
  std::vector<double> slacks;  // one for each row
  double penalty = 0.0;        // what the violations cost
  RelaxPenalties penalties;
  RelaxMode mode = RelaxMode::kSum;
  double seconds = 0.0;
};

struct MipStart {
  std::string name;
  std::vector<double> values;  // one for each column, VORQ_UNDEFINED where open
};

// Everything that a solve produces. A vector is empty where there is nothing.
struct SolveResult {
  SolveStatus lpStatus = SolveStatus::kUnstarted;
  SolveStatus mipStatus = SolveStatus::kUnstarted;
  bool isMip = false;

  LpSolution lp;
  bool lpIsGiven = false;  // by the caller, as the start of the next solve
  PsdSolution psd;
  LmiSolution lmi;
  QuadraticSolution quadratic;
  double lpObjective = 0.0;
  Basis basis;
  std::vector<double> farkasRay;  // one for each row
  std::vector<double> primalRay;  // one for each column

  std::vector<double> mipValues;
  double mipObjective = 0.0;
  double bestBound = 0.0;
  double bestGap = 0.0;
  std::vector<PoolSolution> pool;  // best first

  int simplexIterations = 0;
  int barrierIterations = 0;
  int nodes = 0;
  double seconds = 0.0;
  std::string engine;
  std::string message;

  Iis iis;
  RelaxedSolution relaxed;

  bool IsEmpty() const {
    return lpStatus == SolveStatus::kUnstarted && mipStatus == SolveStatus::kUnstarted && !isMip && !iis.available &&
           !relaxed.attempted && lp.values.empty() && lp.slacks.empty() && lp.duals.empty() &&
           lp.reducedCosts.empty() && mipValues.empty() && pool.empty() && basis.IsEmpty() && engine.empty() &&
           message.empty();
  }
};

}  // namespace vorqsolver
