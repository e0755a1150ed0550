// The search tree, its nodes and what is done at each of them.
#include "solver/engines/branch_and_cut.hpp"

#include <ClpConfig.h>

#include <CglTreeInfo.hpp>
#include <CoinError.hpp>
#include <OsiCuts.hpp>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "solver/engines/branching.hpp"
#include "solver/engines/cbc_setup.hpp"
#include "solver/engines/clp_engine.hpp"
#include "solver/engines/mip_starts.hpp"
#include "solver/engines/search_solutions.hpp"
#include "solver/engines/search_tree.hpp"
#include "solver/engines/sub_search.hpp"
#include "solver/problem/failure.hpp"
#include "solver/tasks/check.hpp"

namespace vorqsolver {

namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();
constexpr std::size_t kRowsARound = 100;  // of the pool
constexpr int kRootRounds = 50;           // of rows for points that are not integer
constexpr int kTreeRounds = 5;
constexpr int kCutPasses = 20;
constexpr std::size_t kCutsARound = 200;
constexpr double kLeastGain = 1e-4;  // of the objective by a pass of cuts
constexpr int kFirstNeighbourhood = 50;
constexpr double kDistances[] = {1e7, 1e10};  // of points that stand for where a relaxation without an end leads

using Outcome = TreeRelaxation::Outcome;

// What a verdict on a feasible start says against it.
std::string CauseOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::kAccepted: return {};
    case Verdict::kRefused: return "no better than the best solution so far";
    case Verdict::kUnsolved: return "not solved with its integers";
    case Verdict::kCutOff:
    case Verdict::kImprecise: break;
  }
  return "cut off by the callback";
}

class BranchAndCut : private StartTaker {
 public:
  explicit BranchAndCut(SolveTask const& task)
      : BranchAndCut(task, MipModel(task.data, task.parameters, LinearModel(task.data, LinearModel::NoSideRows())),
                     task.parameters.Int(IntParam::kNodeLimit)) {}

  BranchAndCut(SolveTask const& task, MipModel mip, int nodeLimit)
      : task_(task),
        mip_(std::move(mip)),
        nodeLimit_(nodeLimit),
        pool_(task.parameters.Dbl(DblParam::kFeasTol)),
        progress_(task),
        tick_([this](ClpSimplex const*) { progress_.Tick(); }),
        relaxation_(task, mip_, pool_, tick_),
        branching_(mip_, task.parameters),
        solutions_(task, mip_, pool_, progress_),
        hasOpenIntegers_(mip_.HasOpenIntegers()),
        hasCosts_(std::ranges::any_of(mip_.linear.cost, [](double cost) { return cost != 0.0; })) {
    AddToPool(task.data.lazyConstraints, CutPool::Kind::kLazyConstraint);
    AddToPool(task.data.userCuts, CutPool::Kind::kUserCut);
    result_.engine = "Vorq";
    result_.isMip = true;
  }

  SolveResult Run();

 private:
  enum class NodeEnd { kDone, kStopped };

  void AddToPool(SideRows const& rows, CutPool::Kind kind);
  Outcome SolveProved(LinearModel const& model);
  bool SolveRoot();
  std::string TakeAsIs(MipStart const& start) override;
  std::string TakeCompleted(MipStart const& start) override;
  double TakenObjective() const override { return solutions_.Incumbents().Best().objective; }
  void RunTree();
  bool IsAtLimit();
  Outcome SolveNode();
  NodeEnd Process(SearchNode& node);
  std::optional<NodeEnd> TakeIntegral(SearchNode& node);
  std::optional<NodeEnd> Explore(SearchNode const& node);
  LinearModel NodeModel() const;
  SolveResult SearchForAny();
  Verdict ShowFarAway(SearchNode const& node, std::vector<double> const& solution);
  NodeEnd Lose(SearchNode const& node);
  bool AddViolated();
  bool Separate();
  bool AddCuts();
  NodeEnd Split(SearchNode const& node, BranchChoice const& choice);
  bool HasHeuristics() const {
    return task_.parameters.Int(IntParam::kHeurLevel) != 0 && mip_.sets.empty() && !hasOpenIntegers_;
  }
  bool IsTimeToDive();
  void Dive(SearchNode const& node);
  void SearchNeighbourhood();
  double LowerBound() const;
  int OpenNodes() const { return tree_.Size() + (next_ ? 1 : 0); }
  void Conclude();
  SolveResult Finish();

  double ProblemValue(double engineValue) const {
    return mip_.linear.sign * engineValue + task_.data.objective.constant + 0.0;
  }
  double EngineValue(double objective) const { return mip_.linear.sign * (objective - task_.data.objective.constant); }

  SolveTask const& task_;
  MipModel mip_;
  int nodeLimit_;  // negative for none
  CutPool pool_;
  MipProgress progress_;
  IterationWatch::Report tick_;
  TreeRelaxation relaxation_;
  Branching branching_;
  SearchSolutions solutions_;
  SearchTree tree_;
  std::optional<SearchNode> next_;  // the child to go on with
  double current_ = kNone;          // the bound of the node at work
  double lost_ = kNone;             // the best bound of nodes that the engine could not solve
  bool hasOpenIntegers_;
  bool hasCosts_;
  bool isAtNodeLimit_ = false;
  bool isUnbounded_ = false;
  int nodes_ = 0;
  int nextDive_ = 0;
  int nextNeighbourhood_ = kFirstNeighbourhood;

  std::vector<NamedGenerator> generators_;
  int cutPass_ = 0;
  double lastCutObjective_ = 0.0;
  SolveResult result_;
};

void BranchAndCut::AddToPool(SideRows const& rows, CutPool::Kind kind) {
  for (int row = 0; row < rows.Count(); ++row) {
    auto const view = rows.matrix.Row(row);
    LinearRow added{{}, rows.lower[row], rows.upper[row]};
    for (std::size_t k = 0; k < view.indices.size(); ++k) added.terms.push_back({view.indices[k], view.values[k]});
    pool_.Add(std::move(added), kind, CutPool::Source::kProblem);
  }
}

SolveResult BranchAndCut::Run() {
  bool const goesOn = SolveRoot();
  // A complete start counts also where a limit was met.
  if (goesOn || task_.stop.Asked()) {
    TakeStarts(task_, *this);
  } else {
    PassOverStarts(task_.starts, task_.log, "the relaxation settles the problem");
  }
  if (!goesOn) return Finish();
  tree_.Push(SearchNode());
  RunTree();
  Conclude();
  return Finish();
}

// Solves the relaxation, of which `model` has the same solutions. The engine's word that there are none is no proof.
TreeRelaxation::Outcome BranchAndCut::SolveProved(LinearModel const& model) {
  auto const outcome = relaxation_.Solve();
  if (outcome != Outcome::kInfeasible && outcome != Outcome::kFailed) return outcome;
  switch (ProvedStatus(model, task_)) {
    case SolveStatus::kInfeasible: return Outcome::kInfeasible;
    case SolveStatus::kUnbounded: return Outcome::kUnbounded;
    default: return task_.stop.Asked() ? Outcome::kStopped : Outcome::kFailed;
  }
}

// The first relaxation; false where it settles the problem.
bool BranchAndCut::SolveRoot() {
  auto outcome = SolveProved(mip_.linear);
  if (outcome == Outcome::kUnbounded && relaxation_.AddWholePool()) {
    // Lazy constraints may bound it.
    LinearModel whole = mip_.linear;
    solutions_.AddRequiredRows(whole);
    outcome = SolveProved(whole);
  }
  switch (outcome) {
    case Outcome::kStopped: result_.mipStatus = task_.stop.Reason(); return false;
    case Outcome::kInfeasible: result_.mipStatus = SolveStatus::kInfeasible; return false;
    case Outcome::kUnbounded: task_.log.Line("The relaxation is unbounded or infeasible"); return true;
    case Outcome::kFailed: result_.mipStatus = SolveStatus::kNumerical; return false;
    case Outcome::kOptimal: break;
  }
  progress_.Update(0, 1, relaxation_.Objective());
  task_.log.Print("Root relaxation: objective %.9e, %d iterations, %.1fs", ProblemValue(relaxation_.Objective()),
                  relaxation_.Iterations(), task_.stop.Elapsed());
  return true;
}

std::string BranchAndCut::TakeAsIs(MipStart const& start) {
  auto const values = solutions_.Rounded(start.values);
  auto const found = CheckSolution(task_.data, values);
  if (!found.Holds(task_.parameters)) return "infeasible, " + found.Worst();
  auto const verdict = solutions_.Judge(values, 'S');
  solutions_.TakeOffers();
  return CauseOf(verdict);
}

std::string BranchAndCut::TakeCompleted(MipStart const& start) {
  auto const values = solutions_.Complete(start.values, task_.parameters.Int(IntParam::kMipStartNodeLimit));
  if (!values) return kNoSolutionFound;
  auto verdict = solutions_.Judge(*values, 'S');
  if (verdict != Verdict::kAccepted) verdict = solutions_.JudgeCompleted(*values, 'S');
  solutions_.TakeOffers();
  return CauseOf(verdict);
}

double BranchAndCut::LowerBound() const {
  // Nodes that can lead to nothing better than the incumbent are gone.
  double bound = std::min(current_, lost_);
  if (!solutions_.Incumbents().IsEmpty()) {
    bound = std::min(bound, EngineValue(solutions_.Incumbents().Best().objective));
  }
  if (next_) bound = std::min(bound, next_->bound);
  if (!tree_.IsEmpty()) bound = std::min(bound, tree_.BestBound());
  return bound;
}

// Whether the gap is closed or a limit is met.
bool BranchAndCut::IsAtLimit() {
  if (task_.stop.Asked()) return true;
  if (!solutions_.Incumbents().IsEmpty()) {
    double const best = EngineValue(solutions_.Incumbents().Best().objective);
    double const gap = best - LowerBound();
    double const objective = std::abs(solutions_.Incumbents().Best().objective);
    if (gap <= task_.parameters.Dbl(DblParam::kAbsGap)) return true;
    if (gap <= task_.parameters.Dbl(DblParam::kRelGap) * objective) return true;
  }
  isAtNodeLimit_ = nodeLimit_ >= 0 && nodes_ >= nodeLimit_ && nodes_ > 0;
  return isAtNodeLimit_;
}

void BranchAndCut::RunTree() {
  while ((next_ || !tree_.IsEmpty()) && !isUnbounded_ && !IsAtLimit()) {
    SearchNode node = next_ ? std::move(*next_) : tree_.Pop();
    bool const goesOn = next_.has_value();
    next_.reset();
    if (node.bound >= solutions_.Cutoff()) continue;
    current_ = node.bound;
    relaxation_.MoveTo(node.changes);
    if (!goesOn && node.basis) relaxation_.SetBasis(*node.basis);
    if (node.depth > 0) ++nodes_;
    if (Process(node) == NodeEnd::kStopped) tree_.Push(std::move(node));
    current_ = kNone;
    tree_.Prune(solutions_.Cutoff());
    progress_.Update(nodes_, OpenNodes(), LowerBound());
    progress_.Tick();
  }
}

// Puts in rows of the pool that the relaxation violates.
bool BranchAndCut::AddViolated() {
  auto const violated = pool_.Violated(relaxation_.Values(), kRowsARound);
  relaxation_.AddFromPool(violated);
  return !violated.empty();
}

// Shows the point to the callback and puts in what it adds, or what the pool has.
bool BranchAndCut::Separate() {
  if (AddViolated()) return true;
  solutions_.SetCounts(nodes_, OpenNodes(), LowerBound());
  solutions_.ShowRelaxation(relaxation_.Values(), relaxation_.Objective());
  solutions_.TakeOffers();
  return AddViolated();
}

// Without costs no relaxation is unbounded, and any point is a best one: where the engine went astray, one not too far.
TreeRelaxation::Outcome BranchAndCut::SolveNode() {
  auto const outcome = relaxation_.Solve();
  if (outcome != Outcome::kUnbounded || hasCosts_) return outcome;
  auto const within = relaxation_.SolveWithin(kDistances[0]);
  return within == Outcome::kOptimal || within == Outcome::kStopped ? within : Outcome::kFailed;
}

// Solves the node until no more rows come; then it is done, or split.
BranchAndCut::NodeEnd BranchAndCut::Process(SearchNode& node) {
  bool const isRoot = node.depth == 0;
  int rounds = isRoot ? kRootRounds : kTreeRounds;
  bool const hasCuts = isRoot && task_.parameters.Int(IntParam::kCutLevel) != 0 && !hasOpenIntegers_;
  int cutPasses = hasCuts ? kCutPasses : 0;
  bool dives = IsTimeToDive();
  double const inherited = node.bound;
  for (bool isFirst = true;; isFirst = false) {
    auto const outcome = SolveNode();
    if (outcome == Outcome::kStopped) return NodeEnd::kStopped;
    if (outcome == Outcome::kInfeasible) return NodeEnd::kDone;
    if (outcome == Outcome::kUnbounded) {
      if (relaxation_.AddWholePool()) continue;
      if (auto const end = Explore(node)) return *end;
      continue;
    }
    if (outcome != Outcome::kOptimal) return Lose(node);
    if (isFirst && std::isfinite(inherited)) branching_.Learn(node.origin, relaxation_.Objective() - inherited);
    node.bound = current_ = std::max(node.bound, relaxation_.Objective());
    if (node.bound >= solutions_.Cutoff()) return NodeEnd::kDone;
    bool const isIntegral = branching_.IsIntegral(relaxation_.Values()) && branching_.SetsHold(relaxation_.Values());
    if (isIntegral || rounds-- > 0) {
      bool const isCut = Separate();
      if (task_.stop.Asked()) return NodeEnd::kStopped;
      if (isCut) continue;
      if (node.bound >= solutions_.Cutoff()) return NodeEnd::kDone;
    }
    if (isIntegral) {
      if (auto const end = TakeIntegral(node)) return *end;
      continue;
    }
    if (cutPasses-- > 0 && AddCuts()) continue;
    if (std::exchange(dives, false)) {
      Dive(node);
      relaxation_.MoveTo(node.changes);
      continue;
    }
    if (nodes_ >= nextNeighbourhood_ && HasHeuristics()) {
      nextNeighbourhood_ *= 2;
      SearchNeighbourhood();
      if (task_.stop.Asked()) return NodeEnd::kStopped;
    }
    return Split(node, branching_.Choose(relaxation_, solutions_.Cutoff()));
  }
}

// Judges an integral point; nothing where rows cut it off, so that the node is to be solved again.
std::optional<BranchAndCut::NodeEnd> BranchAndCut::TakeIntegral(SearchNode& node) {
  auto verdict = solutions_.Judge(relaxation_.Values(), '*');
  solutions_.TakeOffers();
  if (verdict == Verdict::kAccepted) return NodeEnd::kDone;
  if (verdict == Verdict::kCutOff && AddViolated()) return std::nullopt;
  if (task_.stop.Asked()) return NodeEnd::kStopped;
  if (node.bound >= solutions_.Cutoff()) return NodeEnd::kDone;
  // Within the tolerances of the engine it is a solution, and not within those of the problem or of the callback.
  verdict = solutions_.JudgeCompleted(relaxation_.Values(), '*');
  solutions_.TakeOffers();
  if (AddViolated()) return std::nullopt;
  if (task_.stop.Asked()) return NodeEnd::kStopped;
  constexpr double kRounding = 1e-7;
  if (node.bound >= solutions_.Cutoff() - kRounding * std::max(1.0, std::abs(node.bound))) return NodeEnd::kDone;
  if (auto const choice = branching_.ChooseAmongIntegral(relaxation_)) return Split(node, *choice);
  // With all integers fixed, the linear rest has the last word; but it knows only one way to satisfy the sets.
  bool const isOpen = verdict == Verdict::kUnsolved || (verdict != Verdict::kAccepted && !mip_.sets.empty());
  return isOpen ? Lose(node) : NodeEnd::kDone;
}

// A node that cannot be solved: the search cannot end better than it.
BranchAndCut::NodeEnd BranchAndCut::Lose(SearchNode const& node) {
  lost_ = std::min(lost_, node.bound);
  return NodeEnd::kDone;
}

// A node whose relaxation has no end. Once the sets are settled, a mixed-integer problem is left, which is unbounded if
// it has any solution at all, the data being rational (Meyer, "On the existence of optimal solutions to integer and
// mixed-integer programming problems", Mathematical Programming 7, 1974); unless the callback has rows that bound it.
// Nothing where the node is to be solved again.
std::optional<BranchAndCut::NodeEnd> BranchAndCut::Explore(SearchNode const& node) {
  // The engine's word is no proof.
  auto const proved = ProvedStatus(NodeModel(), task_);
  if (task_.stop.Asked()) return NodeEnd::kStopped;
  if (proved == SolveStatus::kInfeasible) return NodeEnd::kDone;
  if (proved != SolveStatus::kUnbounded) return Lose(node);
  if (auto const choice = branching_.ChooseOpenSet(relaxation_)) return Split(node, *choice);
  for (double const size : kDistances) {
    if (task_.callback == nullptr || relaxation_.SolveWithin(size) != Outcome::kOptimal) continue;
    if (Separate()) return std::nullopt;
  }
  auto const found = SearchForAny();
  if (task_.stop.Asked()) return NodeEnd::kStopped;
  if (found.mipStatus == SolveStatus::kInfeasible) return NodeEnd::kDone;
  if (found.mipValues.empty()) return Lose(node);
  if (task_.callback != nullptr) {
    auto const verdict = ShowFarAway(node, found.mipValues);
    if (task_.stop.Asked()) return NodeEnd::kStopped;
    if (AddViolated()) return std::nullopt;
    if (verdict != Verdict::kAccepted) return Lose(node);
  }
  isUnbounded_ = true;
  return NodeEnd::kDone;
}

// The linear relaxation of the node at hand, without cuts.
LinearModel BranchAndCut::NodeModel() const {
  LinearModel model = mip_.linear;
  solutions_.AddRequiredRows(model);
  for (int col = 0; col < model.ColCount(); ++col) {
    model.lower[col] = relaxation_.Lower(col);
    model.upper[col] = relaxation_.Upper(col);
  }
  return model;
}

// Looks for a solution of the node at hand, whatever it costs.
SolveResult BranchAndCut::SearchForAny() {
  task_.log.Line("No end in sight: looking for any solution");
  ProblemData withoutCosts = task_.data;
  withoutCosts.objective = {};
  std::ranges::fill(withoutCosts.columns.objective, 0.0);
  MipModel model = mip_;
  model.linear = NodeModel();
  std::ranges::fill(model.linear.cost, 0.0);
  Basis const noBasis;
  std::vector<double> const noValues;
  std::vector<MipStart> const noStarts;
  SolveTask const sub{withoutCosts, task_.parameters, noBasis, noValues, noStarts, task_.stop, task_.log};
  auto found = BranchAndCut(sub, std::move(model), nodeLimit_).Run();
  nodes_ += found.nodes;
  isAtNodeLimit_ = found.mipStatus == SolveStatus::kNodeLimit;
  return found;
}

// Judges the solution and, with its integers, points far away on the endless side. Accepted where the callback has seen
// them and has nothing against them.
Verdict BranchAndCut::ShowFarAway(SearchNode const& node, std::vector<double> const& solution) {
  auto const refuses = [&](Verdict verdict) {
    solutions_.TakeOffers();
    return verdict == Verdict::kCutOff || verdict == Verdict::kImprecise || task_.stop.Asked();
  };
  auto verdict = solutions_.Judge(solution, '*');
  if (refuses(verdict)) return verdict;
  verdict = Verdict::kAccepted;
  auto changes = node.changes;
  for (int col = 0; col < task_.data.columns.Count(); ++col) {
    if (mip_.isInteger[col]) changes.push_back({col, solution[col], solution[col]});
  }
  relaxation_.MoveTo(changes);
  for (double const size : kDistances) {
    if (relaxation_.SolveWithin(size) != Outcome::kOptimal) continue;
    verdict = solutions_.Judge(relaxation_.Values(), '*');
    if (refuses(verdict)) break;
    verdict = Verdict::kAccepted;
  }
  relaxation_.MoveTo(node.changes);
  return verdict;
}

bool BranchAndCut::AddCuts() {
  double const before = relaxation_.Objective();
  if (cutPass_ > 0 && before - lastCutObjective_ < kLeastGain * std::max(1.0, std::abs(before))) return false;
  lastCutObjective_ = before;
  if (generators_.empty()) generators_ = CutGenerators();
  CglTreeInfo info;
  info.pass = cutPass_++;
  info.formulation_rows = mip_.linear.RowCount();
  info.options = 4;
  OsiCuts cuts;
  for (auto& [name, generator] : generators_) {
    if (task_.stop.Asked()) return false;
    generator->generateCuts(relaxation_.Solver(), cuts, info);
  }
  return relaxation_.AddCuts(cuts, kCutsARound);
}

// Two nodes for one; the search goes on with one of them.
BranchAndCut::NodeEnd BranchAndCut::Split(SearchNode const& node, BranchChoice const& choice) {
  if (task_.stop.Asked()) return NodeEnd::kStopped;
  auto const idle = relaxation_.IdleRows();
  relaxation_.DeleteRows(idle);
  tree_.DeleteRows(idle);
  auto const basis = relaxation_.Basis();
  auto const child = [&](bool isUp) {
    auto const& changes = isUp ? choice.up : choice.down;
    SearchNode made{node.bound,
                    node.depth + 1,
                    node.changes,
                    basis,
                    {choice.col, isUp, isUp ? choice.upDistance : choice.downDistance}};
    made.changes.insert(made.changes.end(), changes.begin(), changes.end());
    return made;
  };
  if (choice.upIsEmpty && choice.downIsEmpty) return NodeEnd::kDone;
  bool const upFirst = choice.downIsEmpty || (choice.upFirst && !choice.upIsEmpty);
  next_ = child(upFirst);
  if (!choice.upIsEmpty && !choice.downIsEmpty) tree_.Push(child(!upFirst));
  return NodeEnd::kDone;
}

bool BranchAndCut::IsTimeToDive() {
  constexpr int kSeldom = 200;
  constexpr int kOften = 30;
  if (!HasHeuristics()) return false;
  if (nodes_ > 0 && nodes_ < nextDive_) return false;
  nextDive_ = nodes_ + (solutions_.Incumbents().IsEmpty() ? kOften : kSeldom);
  return true;
}

// Rounds the columns that are closest to an integer, a share at a time, and solves again.
void BranchAndCut::Dive(SearchNode const& node) {
  constexpr int kSteps = 100;
  constexpr double kShare = 0.2;
  auto changes = node.changes;
  for (int step = 0; step < kSteps && !task_.stop.Asked(); ++step) {
    if (AddViolated()) {
      if (relaxation_.Solve() != Outcome::kOptimal || relaxation_.Objective() >= solutions_.Cutoff()) return;
      continue;
    }
    auto const values = relaxation_.Values();
    std::vector<std::pair<double, int>> fractional;
    for (int col = 0; col < mip_.linear.ColCount(); ++col) {
      double const distance = branching_.Distance(values[col]);
      if (mip_.isInteger[col] && !branching_.IsInteger(values[col])) fractional.emplace_back(distance, col);
    }
    if (fractional.empty()) {
      auto const verdict = solutions_.Judge(values, 'H');
      if (verdict == Verdict::kRefused || verdict == Verdict::kImprecise) solutions_.JudgeCompleted(values, 'H');
      solutions_.TakeOffers();
      if (verdict == Verdict::kCutOff) continue;
      return;
    }
    std::ranges::sort(fractional);
    auto const share = static_cast<std::size_t>(std::ceil(kShare * static_cast<double>(fractional.size())));
    for (std::size_t k = 0; k < share; ++k) {
      double const value = std::round(values[fractional[k].second]);
      changes.push_back({fractional[k].second, value, value});
    }
    relaxation_.MoveTo(changes);
    if (relaxation_.Solve() != Outcome::kOptimal || relaxation_.Objective() >= solutions_.Cutoff()) return;
  }
}

// A search among the points that agree with the relaxation, and the incumbent if there is one, in many columns.
void BranchAndCut::SearchNeighbourhood() {
  constexpr double kLeastShare = 0.4;
  constexpr int kNodes = 50;
  auto const values = relaxation_.Values();
  LinearModel linear = mip_.linear;
  solutions_.AddRequiredRows(linear);
  int integers = 0;
  int fixed = 0;
  for (int col = 0; col < task_.data.columns.Count(); ++col) {
    if (!mip_.isInteger[col]) continue;
    ++integers;
    double const value = std::round(values[col]);
    bool const agrees = solutions_.Incumbents().IsEmpty()
                            ? branching_.IsInteger(values[col])
                            : std::abs(solutions_.Incumbents().Best().values[col] - values[col]) < 0.1;
    if (!agrees || value < linear.lower[col] || value > linear.upper[col]) continue;
    linear.lower[col] = linear.upper[col] = value;
    ++fixed;
  }
  if (fixed < kLeastShare * integers || fixed == integers) return;
  double const spare = 0.1 * (task_.stop.Elapsed() + 1.0);
  auto const found =
      SearchModel(linear, mip_, task_, {.nodes = kNodes, .cutoff = solutions_.Cutoff(), .seconds = spare});
  if (found) solutions_.JudgeCompleted(*found, 'H');
  solutions_.TakeOffers();
}

void BranchAndCut::Conclude() {
  auto const& incumbents = solutions_.Incumbents();
  bool const isDone = tree_.IsEmpty() && !next_;
  if (isUnbounded_) {
    result_.mipStatus = SolveStatus::kUnbounded;
  } else if (task_.stop.Reason() != SolveStatus::kUnstarted) {
    result_.mipStatus = task_.stop.Reason();
  } else if (isDone && lost_ >= solutions_.Cutoff()) {
    result_.mipStatus = incumbents.IsEmpty() ? SolveStatus::kInfeasible : SolveStatus::kOptimal;
  } else if (isAtNodeLimit_) {
    result_.mipStatus = SolveStatus::kNodeLimit;
  } else {
    result_.mipStatus = isDone ? SolveStatus::kNumerical : SolveStatus::kOptimal;
  }
}

SolveResult BranchAndCut::Finish() {
  result_.nodes = nodes_;
  result_.simplexIterations = relaxation_.Iterations();
  if (isUnbounded_) return std::move(result_);
  auto const& incumbents = solutions_.Incumbents();
  if (!incumbents.IsEmpty()) {
    auto lp = solutions_.FinalLp();
    result_.mipValues = lp.lp.values;
    result_.mipObjective = lp.lpObjective;
    result_.lp = std::move(lp.lp);
    result_.lpObjective = lp.lpObjective;
    result_.lpStatus = lp.lpStatus;
    result_.basis = std::move(lp.basis);
    result_.pool = incumbents.Pool();
    result_.pool.front() = {result_.mipObjective, result_.mipValues};
  }
  double bound = progress_.Bound();
  if (!incumbents.IsEmpty()) bound = std::min(bound, EngineValue(result_.mipObjective));
  bool const hasBound = std::abs(bound) < kInfinity;
  result_.bestBound = hasBound ? ProblemValue(bound) : -mip_.linear.sign * kInfinity;
  result_.bestGap =
      !incumbents.IsEmpty() && hasBound ? RelativeGap(result_.mipObjective, result_.bestBound) : kInfinity;
  if (pool_.Size() > 0) {
    task_.log.Print("Rows beside the model: %d lazy constraints, %d user cuts",
                    pool_.Count(CutPool::Kind::kLazyConstraint), pool_.Count(CutPool::Kind::kUserCut));
  }
  return std::move(result_);
}

}  // namespace

std::optional<std::vector<double>> SearchWithSets(LinearModel const& linear, MipModel const& mip, SolveTask const& task,
                                                  int nodeLimit) {
  Basis const noBasis;
  std::vector<double> const noValues;
  std::vector<MipStart> const noStarts;
  StopSignal stop = task.stop;
  Log quiet;
  SolveTask const sub{task.data, task.parameters, noBasis, noValues, noStarts, stop, quiet};
  MipModel model = mip;
  model.linear = linear;
  auto result = BranchAndCut(sub, std::move(model), nodeLimit).Run();
  if (result.mipValues.empty()) return std::nullopt;
  return std::move(result.mipValues);
}

std::string BranchAndCutEngine::Version() const {
  return Text("over Clp ", CLP_VERSION);
}

bool BranchAndCutEngine::Supports(ProblemClass const& what) const {
  return what.IsLinear() && what.IsDynamic();
}

SolveResult BranchAndCutEngine::Solve(SolveTask const& task) const {
  try {
    return BranchAndCut(task).Run();
  } catch (CoinError const& error) {
    throw Failure(VORQ_INTERNAL, "The engine Clp failed: " + error.message());
  }
}

}  // namespace vorqsolver
