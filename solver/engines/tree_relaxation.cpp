// The relaxation of a search tree over Clp.
#include "solver/engines/tree_relaxation.hpp"

#include <ClpSimplex.hpp>
#include <CoinPackedVector.hpp>
#include <OsiCuts.hpp>
#include <algorithm>
#include <utility>

#include "solver/engines/osi_setup.hpp"

namespace vorqsolver {

namespace {

// A row that was slack in so many solves in a row may go, once there are more than a few.
constexpr int kIdleSolves = 40;
constexpr std::size_t kFewRows = 50;

}  // namespace

TreeRelaxation::TreeRelaxation(SolveTask const& task, MipModel const& mip, CutPool& pool,
                               IterationWatch::Report const& tick)
    : task_(task), pool_(pool), tick_(tick), rootLower_(mip.linear.lower), rootUpper_(mip.linear.upper) {
  Control(solver_, silent_, IterationWatch(task_.stop, tick_));
  LoadRelaxation(solver_, mip.linear, mip.isInteger, task.parameters);
  baseRows_ = solver_.getNumRows();
}

TreeRelaxation::Outcome TreeRelaxation::Read() {
  iterations_ += solver_.getIterationCount();
  if (task_.stop.Reason() != SolveStatus::kUnstarted) return Outcome::kStopped;
  if (solver_.isProvenOptimal()) return IsFarAway(*solver_.getModelPtr()) ? Outcome::kUnbounded : Outcome::kOptimal;
  if (solver_.isProvenDualInfeasible()) return Outcome::kUnbounded;
  return solver_.isProvenPrimalInfeasible() ? Outcome::kInfeasible : Outcome::kFailed;
}

TreeRelaxation::Outcome TreeRelaxation::Solve() {
  bool const isWarm = isSolved_;
  if (isWarm) solver_.resolve();
  auto outcome = isWarm ? Read() : SolveAfresh();
  auto const isLost = [&] { return outcome == Outcome::kFailed || outcome == Outcome::kUnbounded; };
  if (isWarm && isLost()) outcome = SolveAfresh();
  if (isLost()) isSolved_ = false;
  if (outcome != Outcome::kOptimal) return outcome;
  isSolved_ = true;
  TakePoint();
  return outcome;
}

TreeRelaxation::Outcome TreeRelaxation::SolveWithin(double size) {
  auto const count = static_cast<std::size_t>(solver_.getNumCols());
  std::vector<double> const lower(solver_.getColLower(), solver_.getColLower() + count);
  std::vector<double> const upper(solver_.getColUpper(), solver_.getColUpper() + count);
  for (int col = 0; col < solver_.getNumCols(); ++col) {
    solver_.setColBounds(col, std::max(lower[col], std::min(-size, upper[col])),
                         std::min(upper[col], std::max(size, lower[col])));
  }
  auto const outcome = SolveAfresh();
  if (outcome == Outcome::kOptimal) TakePoint();
  solver_.setColLower(lower.data());
  solver_.setColUpper(upper.data());
  isSolved_ = false;
  return outcome;
}

void TreeRelaxation::TakePoint() {
  objective_ = solver_.getObjValue();
  values_.assign(solver_.getColSolution(), solver_.getColSolution() + solver_.getNumCols());
}

// From the slack basis. From where an unbounded or failed solve ended, the engine can call feasible models infeasible
// and points optimal that are not.
TreeRelaxation::Outcome TreeRelaxation::SolveAfresh() {
  CoinWarmStartBasis slack;
  slack.setSize(solver_.getNumCols(), solver_.getNumRows());
  for (int col = 0; col < solver_.getNumCols(); ++col) {
    bool const hasLower = Lower(col) > -kInfinity;
    bool const hasUpper = Upper(col) < kInfinity;
    auto const atBound = hasLower ? CoinWarmStartBasis::atLowerBound : CoinWarmStartBasis::atUpperBound;
    slack.setStructStatus(col, hasLower || hasUpper ? atBound : CoinWarmStartBasis::isFree);
  }
  solver_.setWarmStart(&slack);
  solver_.initialSolve();
  auto const outcome = Read();
  if (outcome != Outcome::kInfeasible) return outcome;
  // Of some models with infinite bounds that is wrong; the plain primal method says what they are.
  ClpSimplex second(*solver_.getModelPtr());
  second.createStatus();
  second.primal();
  iterations_ += second.numberIterations();
  if (second.isProvenDualInfeasible()) return Outcome::kUnbounded;
  if (!second.isProvenOptimal()) return outcome;
  std::unique_ptr<CoinWarmStartBasis> const basis(second.getBasis());
  solver_.setWarmStart(basis.get());
  solver_.resolve();
  return Read();
}

void TreeRelaxation::BeginTrials(int iterations) {
  trialBasis_.reset(solver_.getWarmStart());
  solver_.setIntParam(OsiMaxNumIterationHotStart, iterations);
  solver_.markHotStart();
}

TreeRelaxation::Trial TreeRelaxation::Try(std::span<BoundChange const> changes) {
  std::vector<BoundChange> back;
  back.reserve(changes.size());
  for (auto const& change : changes) back.push_back({change.col, Lower(change.col), Upper(change.col)});
  Change(changes);
  solver_.solveFromHotStart();
  trialIterations_ += solver_.getIterationCount();
  Trial const trial{Read(), solver_.getObjValue()};
  Change(back);
  return trial;
}

void TreeRelaxation::EndTrials() {
  solver_.unmarkHotStart();
  solver_.setWarmStart(trialBasis_.get());
}

void TreeRelaxation::SetRootBounds(int col, double lower, double upper) {
  rootLower_[col] = lower;
  rootUpper_[col] = upper;
  solver_.setColBounds(col, lower, upper);
}

void TreeRelaxation::MoveTo(std::span<BoundChange const> changes) {
  solver_.setColLower(rootLower_.data());
  solver_.setColUpper(rootUpper_.data());
  Change(changes);
}

void TreeRelaxation::Change(std::span<BoundChange const> changes) {
  for (auto const& [col, lower, upper] : changes) {
    solver_.setColBounds(col, std::max(lower, rootLower_[col]), std::min(upper, rootUpper_[col]));
  }
}

std::shared_ptr<CoinWarmStartBasis> TreeRelaxation::Basis() const {
  std::shared_ptr<CoinWarmStart> const start(solver_.getWarmStart());
  return std::dynamic_pointer_cast<CoinWarmStartBasis>(start);
}

void TreeRelaxation::SetBasis(CoinWarmStartBasis const& basis) {
  int const known = basis.getNumArtificial();
  if (known == solver_.getNumRows()) {
    solver_.setWarmStart(&basis);
    return;
  }
  CoinWarmStartBasis extended(basis);
  extended.resize(solver_.getNumRows(), solver_.getNumCols());
  for (int row = known; row < solver_.getNumRows(); ++row) extended.setArtifStatus(row, CoinWarmStartBasis::basic);
  solver_.setWarmStart(&extended);
}

void TreeRelaxation::AddFromPool(std::span<int const> entries) {
  for (int const entry : entries) {
    auto const& row = pool_[entry].row;
    CoinPackedVector packed;
    for (auto const& [col, value] : row.terms) packed.insert(col, value);
    solver_.addRow(packed, ToEngine(row.lower), ToEngine(row.upper));
    pool_.SetActive(entry, true);
    added_.push_back({entry});
  }
}

bool TreeRelaxation::AddWholePool() {
  std::vector<int> missing;
  for (int entry = 0; entry < pool_.Size(); ++entry) {
    if (!pool_[entry].isActive) missing.push_back(entry);
  }
  AddFromPool(missing);
  return !missing.empty();
}

bool TreeRelaxation::AddCuts(OsiCuts const& cuts, std::size_t limit) {
  constexpr double kLeastViolation = 1e-4;
  bool hasNew = false;
  for (int k = 0; k < cuts.sizeColCuts(); ++k) {
    auto const* bounds = cuts.colCutPtr(k);
    auto const tighten = [&](CoinPackedVector const& given, bool isUpper) {
      for (int place = 0; place < given.getNumElements(); ++place) {
        int const col = given.getIndices()[place];
        double const value = given.getElements()[place];
        double const lower = isUpper ? rootLower_[col] : std::max(rootLower_[col], value);
        double const upper = isUpper ? std::min(rootUpper_[col], value) : rootUpper_[col];
        if (lower == rootLower_[col] && upper == rootUpper_[col]) continue;
        SetRootBounds(col, lower, upper);
        hasNew = true;
      }
    };
    tighten(bounds->lbs(), false);
    tighten(bounds->ubs(), true);
  }
  std::vector<std::pair<double, int>> violated;
  for (int k = 0; k < cuts.sizeRowCuts(); ++k) {
    auto const* cut = cuts.rowCutPtr(k);
    double const norm = cut->row().twoNorm();
    double const violation = norm > 0.0 ? cut->violated(values_.data()) / norm : 0.0;
    if (violation > kLeastViolation) violated.emplace_back(-violation, k);
  }
  std::ranges::sort(violated);
  if (violated.size() > limit) violated.resize(limit);
  for (auto const& [violation, k] : violated) {
    auto const* cut = cuts.rowCutPtr(k);
    solver_.addRow(cut->row(), cut->lb(), cut->ub());
    added_.push_back({-1});
  }
  return hasNew || !violated.empty();
}

std::vector<int> TreeRelaxation::IdleRows() {
  auto const* simplex = solver_.getModelPtr();
  std::vector<int> idle;
  for (std::size_t k = 0; k < added_.size(); ++k) {
    int const row = baseRows_ + static_cast<int>(k);
    bool const isSlack = simplex->getRowStatus(row) == ClpSimplex::basic;
    added_[k].idle = isSlack ? added_[k].idle + 1 : 0;
    if (added_[k].idle > kIdleSolves) idle.push_back(row);
  }
  if (idle.size() < kFewRows || 3 * idle.size() < added_.size()) idle.clear();
  return idle;
}

void TreeRelaxation::DeleteRows(std::vector<int> const& rows) {
  if (rows.empty()) return;
  solver_.deleteRows(static_cast<int>(rows.size()), rows.data());
  std::size_t next = 0;
  std::size_t kept = 0;
  for (std::size_t k = 0; k < added_.size(); ++k) {
    if (next < rows.size() && rows[next] == baseRows_ + static_cast<int>(k)) {
      if (added_[k].poolEntry >= 0) pool_.SetActive(added_[k].poolEntry, false);
      ++next;
    } else {
      added_[kept++] = added_[k];
    }
  }
  added_.resize(kept);
}

}  // namespace vorqsolver
