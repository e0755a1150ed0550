// Judging, completing and keeping the solutions of a branch and cut.
#include "solver/engines/search_solutions.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "solver/engines/clp_engine.hpp"
#include "solver/engines/mip_starts.hpp"
#include "solver/engines/sub_search.hpp"
#include "solver/tasks/check.hpp"

namespace vorqsolver {

namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();
constexpr std::size_t kRemembered = 4;
constexpr double kObjection = 1e-9;  // what a callback may take for a violation
constexpr double kSame = 1e-5;
constexpr double kUrgentSeconds = 0.5;  // for the last linear problem, once the search was stopped
constexpr double kPatientSeconds = 10.0;
constexpr int kRounds = 50;  // of solving a completed candidate again with the rows that cut it off

std::optional<std::vector<double>> Solution(SolveResult solved) {
  if (solved.lpStatus != SolveStatus::kOptimal) return std::nullopt;
  return std::move(solved.lp.values);
}

}  // namespace

SearchSolutions::SearchSolutions(SolveTask const& task, MipModel const& mip, CutPool& pool, MipProgress& progress)
    : task_(task),
      mip_(mip),
      pool_(pool),
      progress_(progress),
      incumbents_(task),
      sign_(mip.linear.sign),
      step_(ObjectiveStep()),
      cutoff_(kNone) {
  state_.bestObjective = sign_ * kInfinity;
  state_.bestBound = -sign_ * kInfinity;
  state_.bestGap = kInfinity;
}

// Where all costs are integer and on integer columns, their greatest common divisor.
double SearchSolutions::ObjectiveStep() const {
  constexpr double kGreatest = 1e9;
  long long divisor = 0;
  for (int col = 0; col < mip_.linear.ColCount(); ++col) {
    double const cost = mip_.linear.cost[col];
    if (cost == 0.0) continue;
    if (!mip_.isInteger[col] || cost != std::round(cost) || std::abs(cost) > kGreatest) return 0.0;
    divisor = std::gcd(divisor, static_cast<long long>(cost));
  }
  return static_cast<double>(divisor);
}

void SearchSolutions::SetCounts(int nodes, int openNodes, double bound) {
  state_.nodes = nodes;
  state_.openNodes = openNodes;
  if (std::abs(bound) < kInfinity) state_.bestBound = sign_ * bound + task_.data.objective.constant;
}

void SearchSolutions::Call(int context) {
  // Who ended the search hears no more of it.
  if (task_.callback == nullptr || !task_.callback->Wants(context) || IsOver()) return;
  state_.seconds = task_.stop.Elapsed();
  state_.solutions = static_cast<int>(incumbents_.Pool().size());
  CountRows();
  if (!incumbents_.IsEmpty()) {
    state_.incumbent = incumbents_.Best().values;
    state_.bestObjective = incumbents_.Best().objective;
    bool const hasBound = std::abs(state_.bestBound) < kInfinity;
    state_.bestGap = hasBound ? RelativeGap(state_.bestObjective, state_.bestBound) : kInfinity;
  }
  if (!task_.callback->Call(context, *this)) task_.stop.Stop();
}

void SearchSolutions::ShowRelaxation(std::span<double const> values, double objective) {
  auto const cols = static_cast<std::size_t>(task_.data.columns.Count());
  state_.relaxation = values.first(cols);
  state_.relaxationObjective = sign_ * objective + task_.data.objective.constant;
  Call(VORQ_CONTEXT_RELAXATION);
  state_.relaxation = {};
}

std::vector<double> SearchSolutions::Rounded(std::span<double const> values) const {
  std::vector<double> rounded(values.begin(), values.begin() + task_.data.columns.Count());
  for (std::size_t col = 0; col < rounded.size(); ++col) {
    if (mip_.isInteger[col]) rounded[col] = std::round(rounded[col]);
    rounded[col] += 0.0;
  }
  return rounded;
}

bool SearchSolutions::IsFeasible(std::span<double const> values) const {
  return CheckSolution(task_.data, values).Holds(task_.parameters) && pool_.Accepts(values);
}

Verdict SearchSolutions::Judge(std::span<double const> values, char mark, bool isExact) {
  auto const candidate = Rounded(values);
  if (!pool_.Accepts(candidate)) return Verdict::kCutOff;
  if (!CheckSolution(task_.data, candidate).Holds(task_.parameters)) return Verdict::kRefused;
  double const objective = ObjectiveOf(task_.data, candidate);
  if (EngineValue(objective) >= cutoff_) return Verdict::kRefused;
  bool const asks = task_.callback != nullptr && task_.callback->Wants(VORQ_CONTEXT_CANDIDATE);
  if (asks && IsOver()) return Verdict::kRefused;
  state_.candidate = candidate;
  state_.candidateObjective = objective;
  isObjected_ = false;
  Call(VORQ_CONTEXT_CANDIDATE);
  state_.candidate = {};
  if (!pool_.Accepts(candidate)) return Verdict::kCutOff;
  if (isObjected_ && !isExact) return Verdict::kImprecise;
  Install(candidate, objective, mark);
  return Verdict::kAccepted;
}

void SearchSolutions::Install(std::vector<double> const& values, double objective, char mark) {
  incumbents_.KeepAsIs(values);
  double const value = EngineValue(objective);
  double const least = 1e-9 * std::max(1.0, std::abs(value));
  cutoff_ = value - std::max(least, step_ - 1e-5 * std::max(1.0, step_));
  progress_.Incumbent(value, mark);
  Call(VORQ_CONTEXT_INCUMBENT);
}

void SearchSolutions::AddRequiredRows(LinearModel& model) const {
  for (int entry = 0; entry < pool_.Size(); ++entry) {
    if (!pool_[entry].IsRequired()) continue;
    auto const& row = pool_[entry].row;
    model.AddRow(row.terms, row.lower, row.upper);
  }
}

// The linear problem with all that is discrete as in `values`.
LinearModel SearchSolutions::Rest(std::span<double const> values) const {
  LinearModel rest = FixDiscrete(task_.data, values, task_.parameters.Dbl(DblParam::kIntTol));
  for (int entry = 0; entry < pool_.Size(); ++entry) {
    auto const& [row, kind, source, isActive] = pool_[entry];
    bool const isThere = kind == CutPool::Kind::kLazyConstraint && source == CutPool::Source::kProblem;
    if (!isThere && pool_[entry].IsRequired()) rest.AddRow(row.terms, row.lower, row.upper);
  }
  return rest;
}

SolveResult SearchSolutions::SolveRest(LinearModel const& rest) const {
  for (int col = 0; col < rest.ColCount(); ++col) {
    if (rest.lower[col] <= rest.upper[col]) continue;
    SolveResult result;
    result.lpStatus = SolveStatus::kInfeasible;
    return result;
  }
  Basis const noBasis;
  std::vector<double> const noValues;
  Log quiet;
  SolveTask const task{task_.data, task_.parameters, noBasis, noValues, task_.starts, task_.stop, quiet};
  return SolveLinearModel(rest, task);
}

Verdict SearchSolutions::JudgeCompleted(std::span<double const> values, char mark) {
  auto const fixed = Rounded(values);
  for (int round = 0; round < kRounds && !task_.stop.Asked(); ++round) {
    auto const solved = SolveRest(Rest(fixed));
    if (solved.lpStatus == SolveStatus::kInfeasible) return Verdict::kRefused;
    if (solved.lpStatus != SolveStatus::kOptimal) return Verdict::kUnsolved;
    auto const& point = solved.lp.values;
    if (EngineValue(ObjectiveOf(task_.data, point)) >= cutoff_) return Verdict::kRefused;
    int const known = pool_.Size();
    auto const verdict = Judge(point, mark, true);
    if (verdict != Verdict::kCutOff) return verdict;
    if (pool_.Size() == known) return Verdict::kRefused;
  }
  return Verdict::kCutOff;
}

// Fixes the given values in the whole model and searches the rest.
std::optional<std::vector<double>> SearchSolutions::SearchRest(std::span<double const> given, bool fixContinuous,
                                                               int nodeLimit) const {
  LinearModel linear = mip_.linear;
  AddRequiredRows(linear);
  for (int col = 0; col < task_.data.columns.Count(); ++col) {
    if (given[col] == VORQ_UNDEFINED || (!mip_.isInteger[col] && !fixContinuous)) continue;
    double const value = mip_.isInteger[col] ? std::round(given[col]) : given[col];
    if (value < linear.lower[col] || value > linear.upper[col]) return std::nullopt;
    linear.lower[col] = linear.upper[col] = value;
  }
  return SearchModel(linear, mip_, task_, {.nodes = nodeLimit});
}

std::optional<std::vector<double>> SearchSolutions::Complete(std::span<double const> values, int nodeLimit) {
  bool const isFull = std::ranges::find(values, VORQ_UNDEFINED) == values.end();
  if (isFull) {
    auto rounded = Rounded(values);
    if (IsFeasible(rounded)) return rounded;
  }
  bool const hasDiscrete = GivesAllDiscrete(task_.data, values);
  for (bool const fixContinuous : {true, false}) {
    if (task_.stop.Asked()) return std::nullopt;
    std::optional<std::vector<double>> found;
    if (hasDiscrete) {
      std::vector<double> filled(values.begin(), values.end());
      std::ranges::replace(filled, VORQ_UNDEFINED, 0.0);
      auto rest = Rest(Rounded(filled));
      for (int col = 0; fixContinuous && col < task_.data.columns.Count(); ++col) {
        bool const isGiven = task_.data.columns.type[col] == 'C' && values[col] != VORQ_UNDEFINED;
        if (isGiven) rest.lower[col] = std::max(rest.lower[col], values[col]);
        if (isGiven) rest.upper[col] = std::min(rest.upper[col], values[col]);
      }
      found = Solution(SolveRest(rest));
    } else {
      found = SearchRest(values, fixContinuous, nodeLimit);
    }
    if (!found) continue;
    auto rounded = Rounded(*found);
    if (IsFeasible(rounded)) return rounded;
    auto exact = Solution(SolveRest(Rest(rounded)));
    if (exact && IsFeasible(*exact)) return exact;
  }
  return std::nullopt;
}

void SearchSolutions::CountRows() {
  state_.lazyConstraints = pool_.Count(CutPool::Kind::kLazyConstraint);
  state_.userCuts = pool_.Count(CutPool::Kind::kUserCut);
}

void SearchSolutions::TakeLazyConstraints(std::vector<LinearRow> rows) {
  for (auto& row : rows) {
    isObjected_ |= !state_.candidate.empty() && Violation(row, state_.candidate) > kObjection;
    pool_.Add(std::move(row), CutPool::Kind::kLazyConstraint, CutPool::Source::kCallback);
  }
  CountRows();
}

void SearchSolutions::TakeUserCuts(std::vector<LinearRow> rows) {
  for (auto& row : rows) pool_.Add(std::move(row), CutPool::Kind::kUserCut, CutPool::Source::kCallback);
  CountRows();
}

std::optional<double> SearchSolutions::OfferSolution(std::span<double const> values) {
  int const lazyConstraints = pool_.Count(CutPool::Kind::kLazyConstraint);
  for (auto& offer : offers_) {
    if (!std::ranges::equal(offer.given, values)) continue;
    // More lazy constraints may have made it infeasible, or its completion another one.
    if (offer.lazyConstraints == lazyConstraints) return offer.objective;
    std::erase_if(offers_, [&](Offer const& each) { return &each == &offer; });
    break;
  }
  auto completed = Complete(values, task_.parameters.Int(IntParam::kMipStartNodeLimit));
  Offer offer{{values.begin(), values.end()}, lazyConstraints, std::nullopt};
  if (completed) {
    offer.objective = ObjectiveOf(task_.data, *completed);
    queue_.push_back(std::move(*completed));
  }
  if (offers_.size() >= kRemembered) offers_.erase(offers_.begin());
  auto const objective = offer.objective;
  offers_.push_back(std::move(offer));
  return objective;
}

void SearchSolutions::TakeOffers() {
  // Callbacks in here may offer more.
  bool const asks = task_.callback != nullptr && task_.callback->Wants(VORQ_CONTEXT_CANDIDATE);
  if (task_.stop.Asked() && asks) queue_.clear();
  while (!queue_.empty()) {
    auto const values = std::move(queue_.front());
    queue_.pop_front();
    auto const verdict = Judge(values, 'C');
    if (verdict == Verdict::kCutOff || verdict == Verdict::kImprecise) JudgeCompleted(values, 'C');
  }
}

SolveResult SearchSolutions::FinalLp() const {
  auto const& best = incumbents_.Best();
  static std::atomic<bool> const never = false;
  bool const urgent = task_.stop.Reason() != SolveStatus::kUnstarted;
  StopSignal grace(never, Clock::now(), urgent ? kUrgentSeconds : kPatientSeconds);
  Basis const noBasis;
  std::vector<double> const noValues;
  Log quiet;
  SolveTask const task{task_.data, task_.parameters, noBasis, noValues, task_.starts, grace, quiet};
  auto solved = SolveLinearModel(Rest(best.values), task);
  double const difference = std::abs(solved.lpObjective - best.objective);
  if (solved.lpStatus != SolveStatus::kOptimal || difference > kSame * std::max(1.0, std::abs(best.objective))) {
    // The incumbent is not the best one for its integers, so there are no duals that belong to it.
    solved = SolveResult();
    solved.lpStatus = SolveStatus::kUnfinished;
  }
  // Where it is the same point but for rounding, it is the more precise one.
  bool const isSame = std::ranges::equal(solved.lp.values, best.values, [](double a, double b) {
    return std::abs(a - b) <= kSame * std::max({1.0, std::abs(a), std::abs(b)});
  });
  if (!isSame || !IsFeasible(solved.lp.values)) solved.lp.values = best.values;
  solved.lp.slacks = Slacks(task_.data, solved.lp.values);
  solved.lpObjective = ObjectiveOf(task_.data, solved.lp.values);
  return solved;
}

}  // namespace vorqsolver
