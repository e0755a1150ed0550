// LP solves by Clp.
#include "solver/engines/clp_engine.hpp"

#include <ClpConfig.h>

#include <ClpPresolve.hpp>
#include <ClpSimplex.hpp>
#include <ClpSolve.hpp>
#include <CoinError.hpp>
#include <algorithm>
#include <cmath>
#include <memory>

#include "solver/engines/certificates.hpp"
#include "solver/engines/clp_control.hpp"
#include "solver/engines/osi_setup.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {

namespace {

// The values of the parameter LpMethod.
enum LpMethod { kAutomatic = -1, kPrimal = 0, kDual = 1, kBarrier = 2 };

constexpr double kSecondsBetweenLines = 3.0;
constexpr int kPresolvePasses = 5;

// Clp's own numbers for the outcome of a solve.
enum ClpOutcome { kOptimal = 0, kInfeasible = 1, kUnbounded = 2, kLimit = 3, kStoppedByEvent = 5 };

class ClpSolver {
 public:
  ClpSolver(LinearModel const& model, SolveTask const& task) : model_(model), task_(task) {
    report_ = [this](ClpSimplex const* simplex) { Report(simplex); };
    Prepare(simplex_);
    model.Load(simplex_);
    result_.engine = "Clp";
  }

  SolveResult Run();

 private:
  void Prepare(ClpSimplex& simplex);
  void Report(ClpSimplex const* simplex);
  void RunMethod(ClpSimplex& simplex);
  void RunBarrier();
  bool RunPresolved();
  void SetStartBasis();
  void SetStartValues();
  void Finish();
  void FinishUnbounded();
  bool IsFeasible();
  void SolveFeasibility(ClpSimplex& feasibility);
  void FindFarkasRay();
  bool TakeFarkasRay(ClpSimplex const& simplex);
  int Method() const { return task_.parameters.Int(IntParam::kLpMethod); }

  LinearModel const& model_;
  SolveTask const& task_;
  SilentHandler silent_;
  IterationWatch::Report report_;
  ClpSimplex simplex_;
  SolveResult result_;
  int iterations_ = 0;  // of finished models, beside those of simplex_
  double lastLine_ = 0.0;
  bool hasHeader_ = false;
};

void ClpSolver::Prepare(ClpSimplex& simplex) {
  auto const& parameters = task_.parameters;
  simplex.passInMessageHandler(&silent_);
  simplex.setLogLevel(0);
  IterationWatch const watch(task_.stop, report_);
  simplex.passInEventHandler(&watch);
  // The engine works on a scaled model; some room is left for what unscaling adds.
  simplex.setPrimalTolerance(0.1 * parameters.Dbl(DblParam::kFeasTol));
  simplex.setDualTolerance(0.1 * parameters.Dbl(DblParam::kDualTol));
  if (parameters.Int(IntParam::kScaling) == 0) simplex.scaling(0);
}

void ClpSolver::Report(ClpSimplex const* simplex) {
  double const now = task_.stop.Elapsed();
  if (simplex == nullptr || now < lastLine_ + kSecondsBetweenLines) return;
  lastLine_ = now;
  if (!hasHeader_) task_.log.Line(" Iteration         Objective     Primal inf.       Dual inf.     Time");
  hasHeader_ = true;
  task_.log.Print("%10d %17.8e %15.6e %15.6e %7.1fs", iterations_ + simplex->numberIterations(),
                  model_.sign * simplex->objectiveValue() + task_.data.objective.constant,
                  simplex->sumPrimalInfeasibilities(), simplex->sumDualInfeasibilities(), now);
}

void ClpSolver::RunMethod(ClpSimplex& simplex) {
  if (Method() == kPrimal) {
    simplex.primal();
  } else {
    simplex.dual();
  }
}

void ClpSolver::RunBarrier() {
  ClpSolve options;
  bool const crossover = task_.parameters.Int(IntParam::kCrossover) != 0;
  options.setSolveType(crossover ? ClpSolve::useBarrier : ClpSolve::useBarrierNoCross);
  options.setPresolveType(ClpSolve::presolveOff);
  simplex_.setIntParam(ClpMaxNumIteration, 99999999);
  simplex_.initialSolve(options);
  result_.barrierIterations = simplex_.getIterationCount();
}

// Solves a reduced model and carries the solution back; false if that told nothing and the model itself must be solved.
bool ClpSolver::RunPresolved() {
  ClpPresolve presolve;
  std::unique_ptr<ClpSimplex> reduced(
      presolve.presolvedModel(simplex_, 0.1 * task_.parameters.Dbl(DblParam::kFeasTol), false, kPresolvePasses));
  if (!reduced) {
    presolve.destroyPresolve();
    return false;
  }
  task_.log.Print("Presolve: %d rows, %d columns, %lld elements left", reduced->numberRows(), reduced->numberColumns(),
                  static_cast<long long>(reduced->getNumElements()));
  Prepare(*reduced);
  RunMethod(*reduced);
  iterations_ += reduced->numberIterations();
  if (reduced->status() == kStoppedByEvent) {
    presolve.destroyPresolve();
    result_.lpStatus = task_.stop.Reason();
    return true;
  }
  if (reduced->status() != kOptimal) {
    presolve.destroyPresolve();
    return false;
  }
  presolve.postsolve(true);
  // From the basis carried back: no iterations, or few.
  Prepare(simplex_);
  simplex_.primal();
  return true;
}

void ClpSolver::SetStartBasis() {
  static constexpr ClpSimplex::Status kStatuses[] = {ClpSimplex::atLowerBound, ClpSimplex::basic,
                                                     ClpSimplex::atUpperBound, ClpSimplex::superBasic,
                                                     ClpSimplex::isFixed};
  // A nonbasic column or row sits at a finite bound if it has one, and is free otherwise.
  auto const status = [](int code, double lower, double upper) {
    auto const wanted = kStatuses[code];
    bool const hasLower = lower > -kInfinity;
    bool const hasUpper = upper < kInfinity;
    if (wanted == ClpSimplex::basic || (wanted == ClpSimplex::superBasic && hasLower + hasUpper > 0)) return wanted;
    if (!hasLower && !hasUpper) return ClpSimplex::isFree;
    if (wanted == ClpSimplex::atUpperBound) return hasUpper ? ClpSimplex::atUpperBound : ClpSimplex::atLowerBound;
    return hasLower ? ClpSimplex::atLowerBound : ClpSimplex::atUpperBound;
  };
  simplex_.createStatus();
  auto const& basis = task_.startBasis;
  for (int col = 0; col < static_cast<int>(basis.cols.size()); ++col) {
    simplex_.setColumnStatus(col, status(basis.cols[col], model_.lower[col], model_.upper[col]));
  }
  for (int row = 0; row < static_cast<int>(basis.rows.size()); ++row) {
    simplex_.setRowStatus(row, status(basis.rows[row], model_.rowLower[row], model_.rowUpper[row]));
  }
}

void ClpSolver::SetStartValues() {
  simplex_.createStatus();
  for (int col = 0; col < static_cast<int>(task_.startValues.size()); ++col) {
    double const value = std::clamp(task_.startValues[col], model_.lower[col], model_.upper[col]);
    simplex_.primalColumnSolution()[col] = value;
    if (value == model_.lower[col]) {
      simplex_.setColumnStatus(col, ClpSimplex::atLowerBound);
    } else if (value == model_.upper[col]) {
      simplex_.setColumnStatus(col, ClpSimplex::atUpperBound);
    } else {
      simplex_.setColumnStatus(col, ClpSimplex::superBasic);
    }
  }
}

SolveResult ClpSolver::Run() {
  bool const presolves = task_.parameters.Int(IntParam::kPresolve) != 0;
  if (Method() == kBarrier) {
    RunBarrier();
  } else if (!task_.startBasis.cols.empty()) {
    SetStartBasis();
    RunMethod(simplex_);
  } else if (!task_.startValues.empty()) {
    SetStartValues();
    simplex_.primal(1);
  } else if (!presolves || !RunPresolved()) {
    RunMethod(simplex_);
  }
  if (result_.lpStatus == SolveStatus::kUnstarted) Finish();
  result_.simplexIterations = iterations_ + (Method() == kBarrier ? 0 : simplex_.numberIterations());
  return std::move(result_);
}

void ClpSolver::Finish() {
  if (simplex_.status() == kOptimal && IsFarAway(simplex_)) {
    iterations_ += simplex_.numberIterations();
    simplex_.createStatus();
    simplex_.primal();
  }
  switch (simplex_.status()) {
    case kOptimal:
      result_.lpStatus = SolveStatus::kOptimal;
      ReadLpSolution(simplex_, model_, task_.data, result_);
      if (Method() == kBarrier && task_.parameters.Int(IntParam::kCrossover) == 0) result_.basis = {};
      return;
    case kInfeasible:
      result_.lpStatus = SolveStatus::kInfeasible;
      if (task_.parameters.Int(IntParam::kReqFarkasRay) != 0) FindFarkasRay();
      return;
    case kUnbounded: FinishUnbounded(); return;
    case kLimit: result_.lpStatus = SolveStatus::kUnfinished; return;
    case kStoppedByEvent: result_.lpStatus = task_.stop.Reason(); return;
    default: result_.lpStatus = SolveStatus::kNumerical;
  }
}

// The engine says unbounded also of problems that are infeasible; a second look tells which it is.
void ClpSolver::FinishUnbounded() {
  iterations_ += simplex_.numberIterations();
  simplex_.primal();
  if (simplex_.status() == kStoppedByEvent) {
    result_.lpStatus = task_.stop.Reason();
    return;
  }
  std::unique_ptr<double[]> const ray(simplex_.status() == kUnbounded ? simplex_.unboundedRay() : nullptr);
  if (!IsFeasible()) {
    auto const reason = task_.stop.Reason();
    result_.lpStatus = reason == SolveStatus::kUnstarted ? SolveStatus::kInfeasible : reason;
    return;
  }
  result_.lpStatus = SolveStatus::kUnbounded;
  if (ray && task_.parameters.Int(IntParam::kReqFarkasRay) != 0) {
    result_.primalRay = VerifiedPrimalRay(task_.data, {ray.get(), static_cast<std::size_t>(model_.ColCount())});
  }
}

bool ClpSolver::IsFeasible() {
  ClpSimplex feasibility;
  SolveFeasibility(feasibility);
  return feasibility.status() == kOptimal;
}

// The same rows and bounds without an objective.
void ClpSolver::SolveFeasibility(ClpSimplex& feasibility) {
  Prepare(feasibility);
  LinearModel withoutCost = model_;
  std::ranges::fill(withoutCost.cost, 0.0);
  withoutCost.Load(feasibility);
  feasibility.dual();
  iterations_ += feasibility.numberIterations();
}

// The engine's first ray may prove nothing, so other roads to infeasibility follow: the primal method from the slack
// basis, then the dual one without an objective.
void ClpSolver::FindFarkasRay() {
  if (TakeFarkasRay(simplex_)) return;
  iterations_ += simplex_.numberIterations();
  simplex_.createStatus();
  simplex_.primal();
  if (TakeFarkasRay(simplex_)) return;
  ClpSimplex feasibility;
  SolveFeasibility(feasibility);
  TakeFarkasRay(feasibility);
}

bool ClpSolver::TakeFarkasRay(ClpSimplex const& simplex) {
  if (simplex.status() != kInfeasible) return false;
  std::unique_ptr<double[]> const ray(simplex.infeasibilityRay());
  if (!ray) return false;
  result_.farkasRay = VerifiedFarkasRay(task_.data, {ray.get(), static_cast<std::size_t>(model_.RowCount())});
  return !result_.farkasRay.empty();
}

}  // namespace

std::string ClpEngine::Version() const {
  return CLP_VERSION;
}

bool ClpEngine::Supports(ProblemClass const& what) const {
  return what.IsLinear() && !what.IsDiscrete();
}

SolveResult ClpEngine::Solve(SolveTask const& task) const {
  LinearModel const model(task.data, false);
  return SolveLinearModel(model, task);
}

SolveResult SolveLinearModel(LinearModel const& model, SolveTask const& task) {
  if (model.ColCount() == 0 || model.ElementCount() == 0) return SolveWithoutElements(model, task);
  try {
    return ClpSolver(model, task).Run();
  } catch (CoinError const& error) {
    throw Failure(VORQ_INTERNAL, "The engine Clp failed: " + error.message());
  }
}

SolveResult SolveWithoutElements(LinearModel const& model, SolveTask const& task) {
  SolveResult result;
  result.engine = "Clp";
  auto const& data = task.data;
  bool const rays = task.parameters.Int(IntParam::kReqFarkasRay) != 0;
  double const tolerance = task.parameters.Dbl(DblParam::kFeasTol);
  result.lpStatus = SolveStatus::kOptimal;
  for (int row = 0; row < model.RowCount(); ++row) {
    if (model.rowLower[row] <= tolerance && model.rowUpper[row] >= -tolerance) continue;
    result.lpStatus = SolveStatus::kInfeasible;
    if (rays && row < data.rows.Count()) {
      result.farkasRay.assign(data.rows.Count(), 0.0);
      result.farkasRay[row] = model.rowLower[row] > 0.0 ? 1.0 : -1.0;
    }
    return result;
  }
  auto& values = result.lp.values;
  for (int col = 0; col < data.columns.Count(); ++col) {
    double const lower = model.lower[col];
    double const upper = model.upper[col];
    double const cost = model.cost[col];
    double const best = cost > 0.0 ? lower : cost < 0.0 ? upper : std::clamp(0.0, lower, upper);
    if (std::abs(best) >= kInfinity) {
      result = {};
      result.engine = "Clp";
      result.lpStatus = SolveStatus::kUnbounded;
      if (rays) result.primalRay.assign(data.columns.Count(), 0.0);
      if (rays) result.primalRay[col] = best > 0.0 ? 1.0 : -1.0;
      return result;
    }
    values.push_back(best);
    auto const code = lower == upper  ? BasisStatus::kFixed
                      : best == lower ? BasisStatus::kLower
                      : best == upper ? BasisStatus::kUpper
                                      : BasisStatus::kSuperBasic;
    result.basis.cols.push_back(static_cast<int>(code));
  }
  result.lp.reducedCosts.assign(data.columns.objective.begin(), data.columns.objective.end());
  result.lp.duals.assign(data.rows.Count(), 0.0);
  result.lp.slacks = Slacks(data, values);
  result.basis.rows.assign(data.rows.Count(), static_cast<int>(BasisStatus::kBasic));
  result.lpObjective = ObjectiveOf(data, values);
  return result;
}

}  // namespace vorqsolver
