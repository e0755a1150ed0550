// The C functions that solve a problem and read what was found.
#include "solver/tasks/solve.hpp"

#include <algorithm>
#include <cmath>
#include <exception>

#include "solver/api/arguments.hpp"
#include "solver/api/guard.hpp"
#include "solver/tasks/callback_session.hpp"
#include "solver/tasks/feas_relax.hpp"
#include "solver/tasks/iis.hpp"
#include "solver/tasks/tune.hpp"

using namespace vorqsolver;

namespace {

// What is known of a problem must not move while it is being solved.
template <typename Body>
int Idle(VORQ_Prob* prob, Body&& body) noexcept {
  return Guard(prob, [&body](Problem& problem) {
    if (problem.solving) Refuse("The problem is being solved");
    body(problem);
  });
}

// An exception of the caller's callback goes on to the caller, once nothing of the solve is left.
int SolveOrRethrow(VORQ_Prob* prob, bool relaxed) {
  std::exception_ptr thrown;
  int const code = Guard(prob, [&](Problem& problem) {
    try {
      SolveProblem(problem, relaxed);
    } catch (CallbackException const& exception) {
      thrown = exception.cause;
    }
  });
  if (thrown) std::rethrow_exception(thrown);
  return code;
}

// Null buffers are skipped.
template <typename T>
void CopyOut(std::vector<T> const& from, T* to) {
  if (to != nullptr) std::ranges::copy(from, to);
}

// `missing` completes "There is no ...".
void RequireSize(std::size_t size, int count, char const* missing) {
  if (static_cast<int>(size) != count) Refuse("There is no ", missing);
}

std::vector<int> CheckedBasis(int const* codes, int count, char const* what) {
  if (count > 0) Need(codes, what);
  std::vector<int> basis(codes, codes + count);
  for (int k = 0; k < count; ++k) {
    if (basis[k] < 0 || basis[k] > static_cast<int>(BasisStatus::kFixed)) {
      Refuse("The code ", basis[k], " of entry ", k, " of '", what, "' is no basis status");
    }
  }
  return basis;
}

PoolSolution const& PoolAt(Problem const& problem, int index) {
  auto const count = static_cast<int>(problem.result.pool.size());
  CheckIndex(index, count, "Pool solution");
  return problem.result.pool[static_cast<std::size_t>(index)];
}

}  // namespace

int VORQ_Solve(VORQ_Prob* prob) {
  return SolveOrRethrow(prob, false);
}

int VORQ_SolveLp(VORQ_Prob* prob) {
  return SolveOrRethrow(prob, true);
}

// Touches nothing but the flag, so that any thread may call it at any time.
int VORQ_Interrupt(VORQ_Prob* prob) {
  if (prob == nullptr) return VORQ_INVALID;
  ToProblem(prob)->interrupted = true;
  return VORQ_OK;
}

int VORQ_ComputeIIS(VORQ_Prob* prob) {
  return Guard(prob, [](Problem& problem) { ComputeIis(problem); });
}

// `rowBnd` prices the side `bound` of a row as VORQ_AddRow has it, `rowUpp` the side `upper` of a row between two
// sides. Without `rowUpp` both sides take `rowBnd`; elsewhere a finite entry of `rowUpp` is for the upper side.
int VORQ_FeasRelax(VORQ_Prob* prob, double const* colLow, double const* colUpp, double const* rowBnd,
                   double const* rowUpp) {
  return Idle(prob, [&](Problem& problem) {
    auto const copy = [](double const* from, int count) {
      return std::vector(from, from == nullptr ? from : from + count);
    };
    int const cols = problem.data.columns.Count();
    auto const& rows = problem.data.rows;
    RelaxPenalties penalties = {copy(colLow, cols), copy(colUpp, cols), copy(rowBnd, rows.Count()),
                                copy(rowUpp == nullptr ? rowBnd : rowUpp, rows.Count())};
    double const infinity = problem.parameters.Dbl(DblParam::kInfBound);
    if (rowBnd != nullptr) {
      for (int row = 0; row < rows.Count(); ++row) {
        bool const isRange =
            rows.lower[row] != rows.upper[row] && rows.lower[row] > -kInfinity && rows.upper[row] < kInfinity;
        if (!isRange && penalties.rowUpper[row] >= infinity) penalties.rowUpper[row] = rowBnd[row];
      }
    }
    RelaxFeasibility(problem, std::move(penalties));
  });
}

int VORQ_Tune(VORQ_Prob* prob) {
  return Guard(prob, [](Problem& problem) { Tune(problem); });
}

int VORQ_LoadTuneParam(VORQ_Prob* prob, int index) {
  return Idle(prob, [&](Problem& problem) {
    CheckIndex(index, static_cast<int>(problem.tuning.sets.size()), "Tuned parameter set");
    ParameterSet parameters = problem.parameters;
    for (auto const& [name, value] : problem.tuning.sets[static_cast<std::size_t>(index)].settings) {
      parameters.SetText(name, value);
    }
    problem.parameters = std::move(parameters);
  });
}

// ------------------------------------------------------------------ solutions

int VORQ_GetSolution(VORQ_Prob* prob, double* values) {
  return Guard(prob, [&](Problem& problem) {
    Need(values, "values");
    auto const& result = problem.result;
    if (result.relaxed.available) {
      CopyOut(result.relaxed.values, values);
      return;
    }
    if (!result.isMip && problem.HasLpSolution()) {
      CopyOut(result.lp.values, values);
      return;
    }
    if (!result.isMip || result.mipValues.empty()) Refuse("There is no solution");
    CopyOut(result.mipValues, values);
  });
}

int VORQ_GetLpSolution(VORQ_Prob* prob, double* values, double* slacks, double* duals, double* redCosts) {
  return Guard(prob, [&](Problem& problem) {
    auto const& relaxed = problem.result.relaxed;
    LpSolution relaxedPoint;
    if (relaxed.available) relaxedPoint = {relaxed.values, relaxed.slacks, {}, {}};
    auto const& lp = relaxed.available ? relaxedPoint : problem.result.lp;
    if (!relaxed.available && !problem.HasLpSolution()) Refuse("There is no LP solution");
    if (slacks != nullptr) RequireSize(lp.slacks.size(), problem.data.rows.Count(), "slack");
    if (duals != nullptr) RequireSize(lp.duals.size(), problem.data.rows.Count(), "dual solution");
    if (redCosts != nullptr) RequireSize(lp.reducedCosts.size(), problem.data.columns.Count(), "reduced cost");
    CopyOut(lp.values, values);
    CopyOut(lp.slacks, slacks);
    CopyOut(lp.duals, duals);
    CopyOut(lp.reducedCosts, redCosts);
  });
}

int VORQ_SetLpSolution(VORQ_Prob* prob, double const* values, double const* slacks, double const* duals,
                       double const* redCosts) {
  return Idle(prob, [&](Problem& problem) {
    int const cols = problem.data.columns.Count();
    int const rows = problem.data.rows.Count();
    if (values == nullptr && cols > 0) Refuse("Argument 'values' is null");
    auto const copy = [](double const* from, int count, char const* what) {
      std::vector<double> to(from, from == nullptr ? from : from + count);
      for (double const value : to) {
        if (!std::isfinite(value)) Refuse("An entry of '", what, "' is ", value);
      }
      return to;
    };
    SolveResult given;
    given.lp = {copy(values, cols, "values"), copy(slacks, rows, "slacks"), copy(duals, rows, "duals"),
                copy(redCosts, cols, "redCosts")};
    given.lpIsGiven = true;
    for (int col = 0; col < cols; ++col) {
      given.lpObjective += problem.data.columns.objective[col] * given.lp.values[col];
    }
    given.lpObjective += problem.data.objective.constant;
    problem.result = std::move(given);
    problem.startBasis = Basis();
  });
}

int VORQ_GetPSDSolution(VORQ_Prob* prob, double* values, double* slacks, double* duals, double* redCosts) {
  return Guard(prob, [&](Problem& problem) {
    auto const& psd = problem.result.psd;
    if (psd.values.empty()) Refuse("There is no PSD solution");
    CopyOut(psd.values, values);
    CopyOut(psd.slacks, slacks);
    CopyOut(psd.duals, duals);
    CopyOut(psd.reducedCosts, redCosts);
  });
}

int VORQ_GetLMISolution(VORQ_Prob* prob, double* slacks, double* duals) {
  return Guard(prob, [&](Problem& problem) {
    auto const& lmi = problem.result.lmi;
    if (lmi.slacks.empty()) Refuse("There is no LMI solution");
    CopyOut(lmi.slacks, slacks);
    CopyOut(lmi.duals, duals);
  });
}

// ------------------------------------------------------------------ basis

int VORQ_GetBasis(VORQ_Prob* prob, int* colBasis, int* rowBasis) {
  return Guard(prob, [&](Problem& problem) {
    if (!problem.HasBasis()) Refuse("There is no basis");
    auto const& basis = problem.CurrentBasis();
    CopyOut(basis.cols, colBasis);
    CopyOut(basis.rows, rowBasis);
  });
}

int VORQ_SetBasis(VORQ_Prob* prob, int const* colBasis, int const* rowBasis) {
  return Idle(prob, [&](Problem& problem) {
    Basis given{CheckedBasis(colBasis, problem.data.columns.Count(), "colBasis"),
                CheckedBasis(rowBasis, problem.data.rows.Count(), "rowBasis")};
    problem.startBasis = std::move(given);
  });
}

int VORQ_SetSlackBasis(VORQ_Prob* prob) {
  return Idle(prob, [](Problem& problem) {
    Basis slack;
    auto const& columns = problem.data.columns;
    for (int col = 0; col < columns.Count(); ++col) {
      double const lower = columns.lower[col];
      double const upper = columns.upper[col];
      auto const code = lower > -kInfinity  ? (lower == upper ? BasisStatus::kFixed : BasisStatus::kLower)
                        : upper < kInfinity ? BasisStatus::kUpper
                                            : BasisStatus::kSuperBasic;
      slack.cols.push_back(static_cast<int>(code));
    }
    slack.rows.assign(problem.data.rows.Count(), static_cast<int>(BasisStatus::kBasic));
    problem.startBasis = std::move(slack);
  });
}

// ------------------------------------------------------------------ pool and MIP starts

int VORQ_GetPoolObjVal(VORQ_Prob* prob, int index, double* value) {
  return Guard(prob, [&](Problem& problem) {
    Need(value, "value");
    *value = PoolAt(problem, index).objective;
  });
}

int VORQ_GetPoolSolution(VORQ_Prob* prob, int index, int count, int const* cols, double* values) {
  return Guard(prob, [&](Problem& problem) {
    auto const& solution = PoolAt(problem, index);
    Selection const chosen(count, cols, problem.data.columns.Count(), "Column");
    if (chosen.Size() > 0) Need(values, "values");
    for (int place = 0; place < chosen.Size(); ++place) {
      values[place] = solution.values[static_cast<std::size_t>(chosen[place])];
    }
  });
}

int VORQ_AddMipStart(VORQ_Prob* prob, int count, int const* cols, double const* values) {
  return Idle(prob, [&](Problem& problem) {
    auto const given = List(count, values, "values");
    Selection const chosen(count, cols, problem.data.columns.Count(), "Column");
    MipStart start;
    start.values.assign(problem.data.columns.Count(), VORQ_UNDEFINED);
    for (int place = 0; place < chosen.Size(); ++place) {
      double const value = given[static_cast<std::size_t>(place)];
      if (value != VORQ_UNDEFINED && !(std::abs(value) < kInfinity)) Refuse("The value ", value, " of a MIP start");
      start.values[static_cast<std::size_t>(chosen[place])] = value;
    }
    problem.starts.push_back(std::move(start));
  });
}

int VORQ_SetLogFile(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) { problem.log.SetFile(path); });
}
