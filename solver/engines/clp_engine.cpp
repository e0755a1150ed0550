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
#include <optional>
#include <span>

#include "solver/engines/certificates.hpp"
#include "solver/engines/clp_control.hpp"
#include "solver/engines/lp_questions.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {

namespace {

// The values of the parameter LpMethod.
enum LpMethod { kAutomatic = -1, kPrimal = 0, kDual = 1, kBarrier = 2 };

constexpr double kSecondsBetweenLines = 3.0;
constexpr int kPresolvePasses = 5;

// Clp's own numbers for the outcome of a solve.
enum ClpOutcome { kOptimal = 0, kInfeasible = 1, kUnbounded = 2, kLimit = 3, kStoppedByEvent = 5 };

// Beyond this a point is no evidence of anything.
constexpr double kDoubtful = 1e9;
constexpr double kProofTolerance = 1e-10;

std::span<double const> Entries(double const* first, int count) {
  return {first, static_cast<std::size_t>(count)};
}

class ClpSolver {
 public:
  ClpSolver(LinearModel const& model, SolveTask const& task) : model_(model), task_(task) {
    report_ = [this](ClpSimplex const* simplex) { Report(simplex); };
    Prepare(simplex_);
    model.Load(simplex_);
    result_.engine = "Clp";
    method_ = task.parameters.Int(IntParam::kLpMethod);
    if (method_ == kBarrier && !SuitsBarrier()) {
      task.log.Line("The barrier method is not used: the sizes of the numbers differ too much for it");
      method_ = kDual;
    }
  }

  SolveResult Run();

 private:
  void Prepare(ClpSimplex& simplex);
  void Report(ClpSimplex const* simplex);
  void RunMethod(ClpSimplex& simplex);
  void RunPrimal(ClpSimplex& simplex, int valuesPass = 0);
  bool SuitsBarrier() const;
  void RunBarrier();
  bool RunPresolved();
  void SetStartBasis();
  void SetStartValues();
  void Finish();
  bool WasStopped(ClpSimplex const& simplex);
  void TakeOptimum();
  bool TakeEngineRay();
  bool TakeFarkasRay(std::span<double const> ray);
  void TakePrimalRay();
  bool FindPrimalRay();
  bool FindPoint();
  int Method() const { return method_; }
  bool IsRayWanted() const { return task_.parameters.Int(IntParam::kReqFarkasRay) != 0; }
  std::span<double const> Point() const { return Entries(simplex_.primalColumnSolution(), model_.ColCount()); }

  LinearModel const& model_;
  SolveTask const& task_;
  SilentHandler silent_;
  IterationWatch::Report report_;
  ClpSimplex simplex_;
  SolveResult result_;
  int method_ = kAutomatic;
  int iterations_ = 0;                            // of the runs that are over
  std::optional<std::vector<double>> primalRay_;  // once looked for; empty if there is none
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
    RunPrimal(simplex);
    return;
  }
  simplex.dual();
  iterations_ += simplex.numberIterations();
}

void ClpSolver::RunPrimal(ClpSimplex& simplex, int valuesPass) {
  simplex.primal(valuesPass);
  iterations_ += simplex.numberIterations();
}

// The engine's barrier ends the whole process where its steps grow beyond all measure, which takes numbers beyond
// these.
bool ClpSolver::SuitsBarrier() const {
  auto const suits = [](double value) {
    double const size = std::abs(value);
    return size == 0.0 || size >= kInfinity || (size > 1e-9 && size < 1e9);
  };
  for (auto const* values : {&model_.cost, &model_.lower, &model_.upper, &model_.rowLower, &model_.rowUpper}) {
    if (!std::ranges::all_of(*values, suits)) return false;
  }
  bool result = true;
  for (int row = 0; row < model_.RowCount(); ++row) {
    model_.VisitRow(row, [&](int, double value) { result = result && suits(value); });
  }
  return result;
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
  RunPrimal(simplex_);
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
    RunPrimal(simplex_, 1);
  } else if (!presolves || !RunPresolved()) {
    RunMethod(simplex_);
  }
  if (result_.lpStatus == SolveStatus::kUnstarted) Finish();
  result_.simplexIterations = iterations_;
  return std::move(result_);
}

// What the engine says of infeasible and unbounded problems can be wrong, with free columns above all, and far out a
// point can seem optimal where there is no end. So only what is proved is reported.
void ClpSolver::Finish() {
  // The engine says unbounded of all that is dual infeasible; a second look tells more.
  if (simplex_.status() == kUnbounded) RunPrimal(simplex_);
  if (WasStopped(simplex_)) return;
  if (simplex_.status() == kInfeasible && TakeEngineRay()) return;
  bool const isDoubtful = std::ranges::any_of(Point(), [](double value) { return std::abs(value) >= kDoubtful; });
  if (simplex_.status() == kOptimal && (!isDoubtful || !FindPrimalRay())) {
    TakeOptimum();
    return;
  }
  bool const isPoint = !isDoubtful && HoldsIn(model_, Point(), task_.parameters.Dbl(DblParam::kFeasTol));
  if (!isPoint && !FindPoint()) return;
  if (FindPrimalRay()) {
    TakePrimalRay();
    return;
  }
  // There are a point and an end, so there is an optimum.
  RunPrimal(simplex_);
  if (WasStopped(simplex_)) return;
  result_.lpStatus = SolveStatus::kNumerical;
  if (simplex_.status() == kOptimal) TakeOptimum();
}

bool ClpSolver::WasStopped(ClpSimplex const& simplex) {
  if (simplex.status() == kLimit) result_.lpStatus = SolveStatus::kUnfinished;
  if (simplex.status() == kStoppedByEvent) result_.lpStatus = task_.stop.Reason();
  return result_.lpStatus != SolveStatus::kUnstarted;
}

void ClpSolver::TakeOptimum() {
  result_.lpStatus = SolveStatus::kOptimal;
  ReadLpSolution(simplex_, model_, task_.data, result_);
  if (Method() == kBarrier && task_.parameters.Int(IntParam::kCrossover) == 0) result_.basis = {};
}

bool ClpSolver::TakeEngineRay() {
  std::unique_ptr<double[]> const ray(simplex_.infeasibilityRay());
  return ray && TakeFarkasRay(Entries(ray.get(), model_.RowCount()));
}

// The caller's ray speaks of the rows of the problem alone.
bool ClpSolver::TakeFarkasRay(std::span<double const> ray) {
  auto proof = VerifiedFarkasRay(model_, ray);
  if (proof.empty()) return false;
  result_.lpStatus = SolveStatus::kInfeasible;
  auto const rows = static_cast<std::size_t>(task_.data.rows.Count());
  bool const usesOthers =
      std::ranges::any_of(std::span(proof).subspan(rows), [](double value) { return value != 0.0; });
  if (!IsRayWanted() || usesOthers) return true;
  proof.resize(rows);
  result_.farkasRay = std::move(proof);
  return true;
}

void ClpSolver::TakePrimalRay() {
  result_.lpStatus = SolveStatus::kUnbounded;
  if (!IsRayWanted()) return;
  result_.primalRay = *primalRay_;
  result_.primalRay.resize(static_cast<std::size_t>(task_.data.columns.Count()));
}

// Whether there is a direction without an end, the engine's own or another one.
bool ClpSolver::FindPrimalRay() {
  if (primalRay_) return !primalRay_->empty();
  primalRay_.emplace();
  if (std::ranges::all_of(model_.cost, [](double cost) { return cost == 0.0; })) return false;
  std::unique_ptr<double[]> const ray(simplex_.status() == kUnbounded ? simplex_.unboundedRay() : nullptr);
  if (ray) primalRay_ = VerifiedPrimalRay(model_, Entries(ray.get(), model_.ColCount()));
  if (!primalRay_->empty()) return true;
  ClpSimplex directions;
  Prepare(directions);
  LoadDirections(model_, directions);
  RunPrimal(directions);
  if (directions.status() == kOptimal) {
    primalRay_ = VerifiedPrimalRay(model_, Entries(directions.primalColumnSolution(), model_.ColCount()));
  }
  return !primalRay_->empty();
}

// Looks for a point to go on from; where there is none, the result says why.
bool ClpSolver::FindPoint() {
  ClpSimplex elastic;
  Prepare(elastic);
  LoadElastic(model_, elastic);
  // Its duals have to be a proof, which a reduced cost of the wrong sign spoils however small it is.
  elastic.setDualTolerance(kProofTolerance);
  RunPrimal(elastic);
  if (WasStopped(elastic)) return false;
  auto const point = Entries(elastic.primalColumnSolution(), model_.ColCount());
  if (HoldsIn(model_, point, task_.parameters.Dbl(DblParam::kFeasTol))) {
    std::ranges::copy(point, simplex_.primalColumnSolution());
    for (int col = 0; col < model_.ColCount(); ++col) simplex_.setColumnStatus(col, elastic.getColumnStatus(col));
    for (int row = 0; row < model_.RowCount(); ++row) simplex_.setRowStatus(row, elastic.getRowStatus(row));
    return true;
  }
  if (!TakeFarkasRay(Entries(elastic.dualRowSolution(), model_.RowCount()))) {
    result_.lpStatus = SolveStatus::kNumerical;
  }
  return false;
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

SolveStatus ProvedStatus(LinearModel const& relaxation, SolveTask const& task) {
  Basis const noBasis;
  std::vector<double> const noValues;
  Log quiet;
  return SolveLinearModel(relaxation, {task.data, task.parameters, noBasis, noValues, task.starts, task.stop, quiet})
      .lpStatus;
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
