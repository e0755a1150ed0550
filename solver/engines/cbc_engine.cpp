// Branch and cut by Cbc.
#include "solver/engines/cbc_engine.hpp"

#include <CbcConfig.h>

#include <CbcEventHandler.hpp>
#include <CbcModel.hpp>
#include <CbcTree.hpp>
#include <CglPreProcess.hpp>
#include <CoinError.hpp>
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "solver/engines/branch_and_cut.hpp"
#include "solver/engines/cbc_setup.hpp"
#include "solver/engines/clp_control.hpp"
#include "solver/engines/clp_engine.hpp"
#include "solver/engines/clp_interface.hpp"
#include "solver/engines/mip_incumbents.hpp"
#include "solver/engines/mip_model.hpp"
#include "solver/engines/mip_progress.hpp"
#include "solver/engines/mip_starts.hpp"
#include "solver/engines/osi_setup.hpp"
#include "solver/problem/failure.hpp"
#include "solver/tasks/check.hpp"

namespace vorqsolver {

namespace {

constexpr int kOnePass = 1000000;       // of preprocessing; more make columns integer that are not
constexpr int kNoDualArguments = 4096;  // these fix integer columns where only continuous ones could give way
constexpr double kSame = 1e-5;          // relative
constexpr double kUrgentSeconds = 0.5;  // for the way back to the problem's columns, once the search was stopped
constexpr double kPatientSeconds = 10.0;

// Cbc's own numbers.
enum CbcOutcome { kFinished = 0, kNumericalTrouble = 2 };
enum CbcReason { kGapReached = 2, kNodesReached = 3 };

// Watches the search: progress, incumbents, stops.
class SearchWatch : public CbcEventHandler {
 public:
  SearchWatch(SolveTask const& task, MipProgress& progress, std::vector<std::vector<double>>& found)
      : task_(&task), progress_(&progress), found_(&found) {}

  CbcEventHandler* clone() const override { return new SearchWatch(*this); }

  CbcAction event(CbcEvent which) override {
    bool const isMain = model_ != nullptr && model_->parentModel() == nullptr;
    if (isMain && (which == node || which == treeStatus)) {
      int const open = model_->tree() != nullptr ? model_->tree()->size() : 0;
      progress_->Update(model_->getNodeCount(), open, model_->getBestPossibleObjValue());
    }
    if (isMain && (which == solution || which == heuristicSolution) && model_->bestSolution() != nullptr) {
      Record(which == solution ? '*' : 'H');
    }
    progress_->Tick();
    return task_->stop.Asked() ? stop : noAction;
  }

 private:
  void Record(char mark) {
    double const* values = model_->bestSolution();
    found_->emplace_back(values, values + model_->getNumCols());
    progress_->Incumbent(model_->getObjValue(), mark);
  }

  SolveTask const* task_;
  MipProgress* progress_;
  std::vector<std::vector<double>>* found_;
};

class CbcSolver : private StartTaker {
 public:
  explicit CbcSolver(SolveTask const& task)
      : task_(task), mip_(task.data, task.parameters), incumbents_(task), progress_(task) {
    tick_ = [this](ClpSimplex const*) { progress_.Tick(); };
    result_.engine = "Cbc";
    result_.isMip = true;
  }

  // Beside integer columns, Cbc's choice of a branch on a set can fail.
  bool IsFit() const { return mip_.sets.empty() && !mip_.HasOpenIntegers(); }
  SolveResult Run();

  // Whether the engine cannot be trusted with this outcome.
  bool IsDoubtful(SolveStatus outcome) const;

  bool HasSearched() const { return hasSearched_; }

 private:
  void Control(ClpInterface& solver) { vorqsolver::Control(solver, silent_, IterationWatch(task_.stop, tick_)); }
  void Load(ClpInterface& solver);
  bool SolveRoot();
  bool GiveUpUnboundedRoot();
  std::string TakeAsIs(MipStart const& start) override;
  std::string TakeCompleted(MipStart const& start) override;
  double TakenObjective() const override { return incumbents_.LastObjective(); }
  bool CompletePartial(MipStart const& start);
  std::unique_ptr<ClpInterface> Preprocess();
  bool IsConclusive() const;
  void SearchWhole();
  bool MayPreprocess() const;
  void Search(ClpInterface& reduced);
  bool IsAsGoodAsFound() const;
  void RaiseBound();
  void OfferStart(CbcModel& model, ClpInterface const& reduced);
  void Conclude(CbcModel const& model);
  void CarryBack(std::vector<double> const& reducedValues);
  bool KeepFinal(std::vector<double> const& reducedValues, ClpInterface const& reduced, double seconds);
  SolveResult Finish();

  double EngineValue(double objective) const { return mip_.linear.sign * (objective - task_.data.objective.constant); }
  double ProblemValue(double engineValue) const {
    return mip_.linear.sign * engineValue + task_.data.objective.constant + 0.0;
  }

  SolveTask const& task_;
  MipModel mip_;
  MipIncumbents incumbents_;
  MipProgress progress_;
  SilentHandler silent_;
  IterationWatch::Report tick_;
  ClpInterface solver_;
  std::unique_ptr<CglPreProcess> preprocess_;
  std::vector<int> originalCols_;  // of the reduced model; empty where nothing was reduced
  double searchObjective_ = -std::numeric_limits<double>::infinity();  // of the best point that the search found
  SolveResult result_;
  bool hasSearched_ = false;
};

void CbcSolver::Load(ClpInterface& solver) {
  Control(solver);
  LoadRelaxation(solver, mip_.linear, mip_.isInteger, task_.parameters);
}

SolveResult CbcSolver::Run() {
  Load(solver_);
  bool const goesOn = SolveRoot();
  // A complete start counts also where a limit was met.
  if (goesOn || task_.stop.Asked()) {
    TakeStarts(task_, *this);
    if (!incumbents_.IsEmpty()) progress_.Incumbent(EngineValue(incumbents_.Best().objective), 'S');
  } else if (result_.mipStatus != SolveStatus::kInfeasibleOrUnbounded) {
    PassOverStarts(task_.starts, task_.log, "the relaxation settles the problem");
  }
  if (!goesOn) return Finish();
  hasSearched_ = true;
  if (task_.stop.Asked()) {
    result_.mipStatus = task_.stop.Reason();
    return Finish();
  }
  auto reduced = Preprocess();
  if (reduced) Search(*reduced);
  if (preprocess_ && !IsConclusive()) SearchWhole();
  if (result_.mipStatus == SolveStatus::kOptimal && !IsAsGoodAsFound()) result_.mipStatus = SolveStatus::kImprecise;
  return Finish();
}

// Preprocessing can lose solutions: what was searched after it must have led to one that holds in the problem and is as
// good as it seemed. Of infeasibility there is no such proof.
bool CbcSolver::IsConclusive() const {
  bool const isOptimal = result_.mipStatus == SolveStatus::kOptimal;
  bool const isDoubtful = result_.mipStatus == SolveStatus::kInfeasible || result_.mipStatus == SolveStatus::kImprecise;
  if (!isOptimal || incumbents_.IsEmpty()) return !isOptimal && !isDoubtful;
  return IsAsGoodAsFound();
}

// Whether a solution of the problem is as good as what the search found.
bool CbcSolver::IsAsGoodAsFound() const {
  double const best = EngineValue(incumbents_.Best().objective);
  double const room = std::max(kSame, task_.parameters.Dbl(DblParam::kRelGap)) * std::max(1.0, std::abs(best));
  return best <= searchObjective_ + room;
}

void CbcSolver::SearchWhole() {
  task_.log.Line("Presolve led to no solution of the problem: searching without it");
  preprocess_.reset();
  originalCols_.clear();
  ClpInterface whole;
  Load(whole);
  Search(whole);
}

// With columns that have no bounds at all, nodes can seem infeasible that are not.
bool CbcSolver::IsDoubtful(SolveStatus outcome) const {
  if (outcome == SolveStatus::kInfeasibleOrUnbounded) return true;
  if (outcome != SolveStatus::kInfeasible || !hasSearched_) return false;
  for (int col = 0; col < mip_.linear.ColCount(); ++col) {
    if (mip_.linear.lower[col] <= -kInfinity && mip_.linear.upper[col] >= kInfinity) return true;
  }
  return false;
}

// The relaxation; false where it settles the problem.
bool CbcSolver::SolveRoot() {
  solver_.initialSolve();
  result_.simplexIterations += solver_.getIterationCount();
  if (task_.stop.Reason() != SolveStatus::kUnstarted) {
    result_.mipStatus = task_.stop.Reason();
    return false;
  }
  if (!solver_.isProvenOptimal() && !solver_.isProvenDualInfeasible()) {
    // The engine's word is no proof; where it is wrong, its other method goes on.
    auto const proved = ProvedStatus(mip_.linear, task_);
    if (proved == SolveStatus::kInfeasible) {
      result_.mipStatus = SolveStatus::kInfeasible;
      return false;
    }
    if (proved == SolveStatus::kUnbounded) return GiveUpUnboundedRoot();
    solver_.setHintParam(OsiDoDualInInitial, false, OsiHintTry);
    solver_.initialSolve();
  }
  bool const isFar = solver_.isProvenOptimal() && IsFarAway(*solver_.getModelPtr());
  if (isFar || solver_.isProvenDualInfeasible()) return GiveUpUnboundedRoot();
  if (!solver_.isProvenOptimal()) {
    result_.mipStatus = SolveStatus::kNumerical;
    return false;
  }
  progress_.Update(0, 1, solver_.getObjValue());
  task_.log.Print("Root relaxation: objective %.9e, %d iterations, %.1fs", ProblemValue(solver_.getObjValue()),
                  solver_.getIterationCount(), task_.stop.Elapsed());
  return true;
}

// What is discrete may bound what the relaxation does not: a question for another engine.
bool CbcSolver::GiveUpUnboundedRoot() {
  result_.mipStatus = SolveStatus::kInfeasibleOrUnbounded;
  return false;
}

std::string CbcSolver::TakeAsIs(MipStart const& start) {
  if (!incumbents_.KeepAsIs(start.values)) return "infeasible, " + CheckSolution(task_.data, start.values).Worst();
  return {};
}

std::string CbcSolver::TakeCompleted(MipStart const& start) {
  bool isFound = false;
  if (GivesAllDiscrete(task_.data, start.values)) {
    std::vector<double> values = start.values;
    std::ranges::replace(values, VORQ_UNDEFINED, 0.0);
    isFound = incumbents_.Complete(values, false);
  } else {
    isFound = CompletePartial(start);
  }
  if (!isFound) return kNoSolutionFound;
  return {};
}

// Fixes the integer columns that the start gives and searches the rest for a while.
bool CbcSolver::CompletePartial(MipStart const& start) {
  ClpInterface fixed(solver_);
  Control(fixed);
  for (int col = 0; col < task_.data.columns.Count(); ++col) {
    if (start.values[col] == VORQ_UNDEFINED || !mip_.isInteger[col]) continue;
    double const value = std::round(start.values[col]);
    if (value < fixed.getColLower()[col] || value > fixed.getColUpper()[col]) return false;
    fixed.setColBounds(col, value, value);
  }
  fixed.resolve();
  if (!fixed.isProvenOptimal()) return false;
  CbcModel model(fixed);
  model.passInMessageHandler(&silent_);
  model.setLogLevel(0);
  SetUpCbc(model, task_.parameters);
  int const limit = task_.parameters.Int(IntParam::kMipStartNodeLimit);
  model.setMaximumNodes(limit < 0 ? std::numeric_limits<int>::max() : limit);
  model.setUseElapsedTime(true);
  model.setMaximumSeconds(std::max(0.0, task_.stop.Remaining()));
  model.branchAndBound();
  if (model.bestSolution() == nullptr) return false;
  std::vector<double> const values(model.bestSolution(), model.bestSolution() + task_.data.columns.Count());
  return incumbents_.Complete(values, false);
}

bool CbcSolver::MayPreprocess() const {
  return task_.parameters.Int(IntParam::kPresolve) != 0;
}

// The model to search; none where this settles the problem.
std::unique_ptr<ClpInterface> CbcSolver::Preprocess() {
  if (!MayPreprocess()) return std::make_unique<ClpInterface>(solver_);
  preprocess_ = std::make_unique<CglPreProcess>();
  preprocess_->passInMessageHandler(&silent_);
  preprocess_->setTimeLimit(std::max(0.1, task_.stop.Remaining()), true);
  CglProbing probing = Probing();
  probing.setMaxProbeRoot(std::min(3000, solver_.getNumCols()));
  probing.setMaxElements(100);
  probing.setMaxElementsRoot(200);
  preprocess_->addCutGenerator(&probing);
  auto* processed = dynamic_cast<OsiClpSolverInterface*>(
      preprocess_->preProcessNonDefault(solver_, 0, 1, kOnePass + kNoDualArguments));
  if (task_.stop.Asked()) {
    result_.mipStatus = task_.stop.Reason();
    return nullptr;
  }
  if (processed == nullptr) {
    result_.mipStatus = incumbents_.IsEmpty() ? SolveStatus::kInfeasible : SolveStatus::kOptimal;
    return nullptr;
  }
  if (processed->getNumCols() == 0) {
    // All is settled, and the engine tells no way back to the columns: the model as it is gives them at once.
    preprocess_.reset();
    auto whole = std::make_unique<ClpInterface>(solver_);
    Control(*whole);
    return whole;
  }
  auto const* cols = preprocess_->originalColumns();
  originalCols_.assign(cols, cols + processed->getNumCols());
  auto reduced = std::make_unique<ClpInterface>(*processed);
  Control(*reduced);
  task_.log.Print("Presolve: %d rows, %d columns, %lld elements left", reduced->getNumRows(), reduced->getNumCols(),
                  static_cast<long long>(reduced->getNumElements()));
  reduced->resolve();
  return reduced;
}

// The best start as an incumbent of the search. Where the reduced model refuses it, it still cuts off what is worse.
void CbcSolver::OfferStart(CbcModel& model, ClpInterface const& reduced) {
  if (incumbents_.IsEmpty()) return;
  auto const& best = incumbents_.Best();
  double const objective = EngineValue(best.objective);
  int const cols = task_.data.columns.Count();
  ClpInterface fixed(reduced);
  for (int col = 0; col < fixed.getNumCols(); ++col) {
    int const original = originalCols_.empty() ? col : originalCols_[col];
    if (!fixed.isInteger(col) || original < 0 || original >= cols) continue;
    double const value = std::round(best.values[original]);
    if (value < fixed.getColLower()[col] || value > fixed.getColUpper()[col]) continue;
    fixed.setColBounds(col, value, value);
  }
  fixed.resolve();
  if (fixed.isProvenOptimal() && fixed.getObjValue() <= objective + 1e-6 * std::abs(objective)) {
    std::vector<double> const values(fixed.getColSolution(), fixed.getColSolution() + fixed.getNumCols());
    model.setBestSolution(values.data(), static_cast<int>(values.size()), fixed.getObjValue(), true);
  }
  if (model.bestSolution() == nullptr) model.setCutoff(objective);
}

void CbcSolver::Search(ClpInterface& reduced) {
  std::vector<std::vector<double>> found;
  CbcModel model(reduced);
  model.passInMessageHandler(&silent_);
  model.setLogLevel(0);
  SetUpCbc(model, task_.parameters);
  model.setUseElapsedTime(true);
  model.setMaximumSeconds(std::max(0.0, task_.stop.Remaining()));
  model.initialSolve();
  OfferStart(model, reduced);
  SearchWatch const watch(task_, progress_, found);
  model.passInEventHandler(&watch);
  tick_ = [this, &model](ClpSimplex const*) {
    progress_.Tick();
    if (task_.stop.Asked()) model.sayEventHappened();
  };
  model.branchAndBound();
  tick_ = nullptr;

  result_.nodes += std::max(model.getNodeCount(), 0);
  result_.simplexIterations += std::max(model.getIterationCount(), 0);
  Conclude(model);
  std::vector<double> best;
  searchObjective_ = std::numeric_limits<double>::infinity();
  if (model.bestSolution() != nullptr) {
    best.assign(model.bestSolution(), model.bestSolution() + reduced.getNumCols());
    searchObjective_ = model.getMinimizationObjValue();
    bool const urgent = task_.stop.Reason() != SolveStatus::kUnstarted;
    bool const isKept = KeepFinal(best, reduced, urgent ? kUrgentSeconds : kPatientSeconds);
    // Better late than to lose the only solution.
    if (!isKept && urgent && incumbents_.IsEmpty()) KeepFinal(best, reduced, kPatientSeconds);
  }
  for (auto const& values : found) CarryBack(values);
  if (result_.mipStatus == SolveStatus::kOptimal) RaiseBound();
  if (result_.mipStatus == SolveStatus::kOptimal && incumbents_.IsEmpty()) {
    // The search found a solution, and it does not hold in the problem itself.
    result_.mipStatus = best.empty() ? SolveStatus::kInfeasible : SolveStatus::kImprecise;
    if (!best.empty() && originalCols_.empty()) {
      result_.mipValues.assign(best.begin(), best.begin() + task_.data.columns.Count());
    }
  }
}

// After a search to the end nothing is better than the best solution by more than the gap that was allowed; the engine
// does not say so where that solution was a start.
void CbcSolver::RaiseBound() {
  if (incumbents_.IsEmpty()) return;
  double const best = EngineValue(incumbents_.Best().objective);
  double const gap = std::max(task_.parameters.Dbl(DblParam::kAbsGap),
                              task_.parameters.Dbl(DblParam::kRelGap) * std::abs(incumbents_.Best().objective));
  progress_.Update(result_.nodes, 0, best - gap);
}

void CbcSolver::Conclude(CbcModel const& model) {
  auto const stopped = task_.stop.Reason();
  // Stopped at the root, the engine gives the value of its solution for a bound.
  bool const hasBound = stopped == SolveStatus::kUnstarted || result_.nodes > 0;
  progress_.Update(result_.nodes, 0, hasBound ? model.getBestPossibleObjValue() : progress_.Bound());
  if (stopped != SolveStatus::kUnstarted) {
    result_.mipStatus = stopped;
  } else if (model.status() == kFinished || model.secondaryStatus() == kGapReached) {
    result_.mipStatus = SolveStatus::kOptimal;  // infeasible where no solution turns up
  } else if (model.secondaryStatus() == kNodesReached) {
    result_.mipStatus = SolveStatus::kNodeLimit;
  } else if (model.status() == kNumericalTrouble) {
    result_.mipStatus = SolveStatus::kNumerical;
  } else {
    result_.mipStatus = task_.stop.Remaining() <= 0.05 ? SolveStatus::kTimeLimit : SolveStatus::kUnfinished;
  }
}

// An incumbent met on the way: its columns that the reduced model still has, and the rest by a linear problem, which
// gives integers as a rule.
void CbcSolver::CarryBack(std::vector<double> const& reducedValues) {
  if (task_.stop.Asked()) return;
  if (originalCols_.empty()) {
    incumbents_.Complete(reducedValues, false);
    return;
  }
  ClpInterface rest(solver_);
  Control(rest);
  auto const& linear = mip_.linear;
  for (int col = 0; col < linear.ColCount(); ++col) rest.setColBounds(col, linear.lower[col], linear.upper[col]);
  for (int col = 0; col < static_cast<int>(reducedValues.size()); ++col) {
    int const original = originalCols_[col];
    if (original < 0 || original >= linear.ColCount() || !mip_.isInteger[original]) continue;
    double const value = std::round(reducedValues[col]);
    rest.setColBounds(original, value, value);
  }
  rest.resolve();
  if (!rest.isProvenOptimal()) return;
  std::vector<double> const values(rest.getColSolution(), rest.getColSolution() + task_.data.columns.Count());
  for (int col = 0; col < task_.data.columns.Count(); ++col) {
    if (mip_.isInteger[col] && std::abs(values[col] - std::round(values[col])) > 1e-5) return;
  }
  incumbents_.Complete(values, false);
}

// The best solution, by way of the preprocessing's own road back.
bool CbcSolver::KeepFinal(std::vector<double> const& reducedValues, ClpInterface const& reduced, double seconds) {
  bool const urgent = task_.stop.Reason() != SolveStatus::kUnstarted;
  if (!preprocess_) return incumbents_.Complete(reducedValues, urgent);
  static std::atomic<bool> const never = false;
  StopSignal noStop(never, Clock::now(), seconds);
  IterationWatch::Report const silence;
  IterationWatch const watch(noStop, silence);
  ClpInterface fixed(reduced);
  fixed.getModelPtr()->passInEventHandler(&watch);
  solver_.getModelPtr()->passInEventHandler(&watch);
  for (int col = 0; col < fixed.getNumCols(); ++col) {
    if (!fixed.isInteger(col)) continue;
    double const value = std::round(reducedValues[col]);
    fixed.setColBounds(col, value, value);
  }
  fixed.setColSolution(reducedValues.data());
  fixed.resolve();
  bool const isSolved = fixed.isProvenOptimal();
  if (isSolved) preprocess_->postProcess(fixed);
  Control(solver_);  // the watch over these seconds ends with them
  if (isSolved) {
    auto const* solution = solver_.getColSolution();
    std::vector<double> const values(solution, solution + task_.data.columns.Count());
    if (incumbents_.Complete(values, urgent)) return true;
  }
  CarryBack(reducedValues);
  return false;
}

SolveResult CbcSolver::Finish() {
  if (!incumbents_.IsEmpty()) {
    auto const& best = incumbents_.Best();
    auto const& lp = incumbents_.BestLp();
    result_.mipValues = best.values;
    result_.mipObjective = best.objective;
    result_.lp = lp.lp;
    result_.lpObjective = lp.lpObjective;
    result_.lpStatus = lp.lpStatus;
    result_.basis = lp.basis;
    result_.pool = incumbents_.Pool();
  } else if (!result_.mipValues.empty()) {
    result_.mipObjective = ObjectiveOf(task_.data, result_.mipValues);
  }
  bool const hasSolution = !result_.mipValues.empty();
  double bound = progress_.Bound();
  if (hasSolution) bound = std::min(bound, EngineValue(result_.mipObjective));
  bool const hasBound = std::abs(bound) < kInfinity;
  result_.bestBound = hasBound ? ProblemValue(bound) : -mip_.linear.sign * kInfinity;
  result_.bestGap = hasSolution && hasBound ? RelativeGap(result_.mipObjective, result_.bestBound) : kInfinity;
  return std::move(result_);
}

}  // namespace

std::string CbcEngine::Version() const {
  return CBC_VERSION;
}

bool CbcEngine::Supports(ProblemClass const& what) const {
  return what.IsLinear() && !what.IsDynamic();
}

SolveResult CbcEngine::Solve(SolveTask const& task) const {
  bool hasTakenStarts = false;
  try {
    CbcSolver solver(task);
    if (solver.IsFit()) {
      auto result = solver.Run();
      if (!solver.IsDoubtful(result.mipStatus)) return result;
      hasTakenStarts = solver.HasSearched();
      task.log.Line("Columns without bounds: searched by the engine Vorq");
    } else {
      task.log.Line("Sets or integer columns without bounds: searched by the engine Vorq");
    }
  } catch (CoinError const& error) {
    throw Failure(VORQ_INTERNAL, "The engine Cbc failed: " + error.message());
  }
  std::vector<MipStart> const none;
  return BranchAndCutEngine().Solve({task.data, task.parameters, task.startBasis, task.startValues,
                                     hasTakenStarts ? none : task.starts, task.stop, task.log, task.callback});
}

}  // namespace vorqsolver
