// The deletion filter and its questions to the engines.
#include "solver/tasks/iis_filter.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/engines/problem_class.hpp"
#include "solver/tasks/subproblem.hpp"

namespace vorqsolver {

namespace {

constexpr double kSecondsBetweenLines = 3.0;

// A trial may take many times as long as the proofs so far; one that takes longer stays open, as a search without
// bounds on its integer columns may never end.
constexpr double kLeastTrialSeconds = 1.0;
constexpr double kTrialSecondsFactor = 20.0;

constexpr std::size_t kMostPoints = 500;
constexpr std::size_t kMostPointValues = 20'000'000;  // of all points together
constexpr double kClearly = 100.0;
constexpr double kPointTolerance = 0.1;    // of FeasTol, as the engines work with
constexpr double kMostRotationWork = 2e8;  // elements looked at for one point

bool IsAllInteger(ProblemData const& data) {
  return std::ranges::all_of(data.columns.type, [](char type) { return type == 'B' || type == 'I'; });
}

// All members but those at `first` to `last` - 1.
Members Without(Members const& members, std::size_t first, std::size_t last) {
  Members rest(members.begin(), members.begin() + static_cast<std::ptrdiff_t>(first));
  rest.insert(rest.end(), members.begin() + static_cast<std::ptrdiff_t>(last), members.end());
  return rest;
}

// `members` in their order, as far as they are in `kept`, and the first `needed` in any case.
Members Kept(Members const& members, Members const& kept, std::size_t needed) {
  auto const key = [](Member member) { return std::pair(member.kind, member.index); };
  std::vector<std::pair<MemberKind, int>> keys;
  keys.reserve(kept.size());
  for (auto const& member : kept) keys.push_back(key(member));
  std::ranges::sort(keys);
  Members result(members.begin(), members.begin() + static_cast<std::ptrdiff_t>(needed));
  for (std::size_t k = needed; k < members.size(); ++k) {
    if (std::ranges::binary_search(keys, key(members[k]))) result.push_back(members[k]);
  }
  return result;
}

}  // namespace

DeletionFilter::DeletionFilter(ProblemData const& data, Problem& problem, StopSignal& stop)
    : data_(data), parameters_(problem.parameters), interrupted_(problem.interrupted), stop_(stop), log_(problem.log) {
  // Nothing is known of the objective; what is asked is a point, or a proof that there is none.
  parameters_.Set(IntParam::kReqFarkasRay, 1);
  parameters_.Set(IntParam::kLpMethod, 1);
  parameters_.Set(IntParam::kNodeLimit, -1);
  parameters_.Set(DblParam::kSolTimeLimit, 1e20);
  mostPoints_ =
      std::clamp<std::size_t>(kMostPointValues / std::max<std::size_t>(1, data.columns.type.size()), 1, kMostPoints);
  mayRotate_ = IsAllInteger(data) && Classify(data).IsLinear() && data.lazyConstraints.Count() == 0;
}

DeletionFilter::Verdict DeletionFilter::Judge(Members& members, std::optional<double> seconds) {
  if (stop_.Asked()) return Verdict::kUnknown;
  ++trials_;
  if (!Classify(data_).IsLinear()) return JudgeDiscrete(members, seconds);
  MemberProblem const stated = StateMembers(data_, members, true);
  auto const relaxed = SolveSubproblem({stated.data, parameters_, stop_, quiet_, true});
  if (relaxed.lpStatus == SolveStatus::kInfeasible) {
    if (!relaxed.farkasRay.empty()) {
      auto const core = MembersOfRay(data_, stated, relaxed.farkasRay);
      members = Kept(members, core, 0);
    }
    return Verdict::kInfeasible;
  }
  if (relaxed.lpStatus != SolveStatus::kOptimal) return Verdict::kUnknown;
  if (Classify(stated.data).IsDiscrete()) return JudgeDiscrete(members, seconds);
  KeepPoint(stated, relaxed.lp.values);
  return Verdict::kFeasible;
}

DeletionFilter::Verdict DeletionFilter::JudgeDiscrete(Members const& members, std::optional<double> seconds) {
  MemberProblem const stated = StateMembers(data_, members, false);
  auto const begin = Clock::now();
  StopSignal trial(interrupted_, begin, std::min(stop_.Remaining(), seconds.value_or(1e20)));
  auto const result = SolveSubproblem({stated.data, parameters_, trial, quiet_, false});
  auto const& values = ValuesOf(result);
  switch (StatusOf(result)) {
    case SolveStatus::kInfeasible:
      longestProof_ = std::max(longestProof_, std::chrono::duration<double>(Clock::now() - begin).count());
      return Verdict::kInfeasible;
    case SolveStatus::kImprecise: return Verdict::kUnknown;
    case SolveStatus::kOptimal: break;
    default:
      if (values.empty()) return Verdict::kUnknown;
  }
  if (!values.empty()) KeepPoint(stated, values);
  return Verdict::kFeasible;
}

void DeletionFilter::KeepPoint(MemberProblem const& stated, std::vector<double> const& values) {
  std::vector<double> point(data_.columns.type.size(), 0.0);
  for (std::size_t k = 0; k < values.size(); ++k) point[static_cast<std::size_t>(stated.cols[k])] = values[k];
  if (points_.size() == mostPoints_) points_.erase(points_.begin());
  points_.push_back(std::move(point));
}

// A point that violates nothing at all is within the tolerances of what was proved infeasible, and tells nothing.
bool DeletionFilter::IsKnownFeasible(Members const& members, Members const& left) {
  double const tolerance = kPointTolerance * parameters_.Dbl(DblParam::kFeasTol);
  return std::ranges::any_of(points_, [&](std::vector<double> const& point) {
    return std::ranges::count(Violated(data_, members, point, tolerance), 1) == 0 &&
           std::ranges::count(Violated(data_, left, point, kClearly * tolerance), 1) > 0;
  });
}

// The last point violates `only` of all members. Points that differ from it by 1 in a column may violate only another
// member: then that one is needed, too, and goes on in the same way.
void DeletionFilter::Rotate(Members const& members, Member only) {
  if (!mayRotate_ || points_.empty()) return;
  double const tolerance = kPointTolerance * parameters_.Dbl(DblParam::kFeasTol);
  double const work = static_cast<double>(data_.rows.matrix.ElementCount());
  if (work * static_cast<double>(data_.columns.type.size()) > kMostRotationWork) return;
  std::vector<std::vector<double>> open = {points_.back()};
  std::vector<Member> known = {only};
  while (!open.empty() && !stop_.Asked()) {
    auto point = std::move(open.back());
    open.pop_back();
    for (std::size_t col = 0; col < point.size(); ++col) {
      double const value = point[col];
      for (double const step : {1.0, -1.0}) {
        point[col] = value + step;
        if (data_.columns.type[col] == 'B' && std::abs(point[col] - 0.5) > 0.6) continue;
        auto const violated = Violated(data_, members, point, tolerance);
        auto const first = std::ranges::find(violated, 1);
        if (std::ranges::count(violated, 1) != 1) continue;
        Member const other = members[static_cast<std::size_t>(first - violated.begin())];
        if (std::ranges::find(known, other) != known.end()) continue;
        known.push_back(other);
        open.push_back(point);
        if (points_.size() < mostPoints_) points_.push_back(point);
      }
      point[col] = value;
    }
  }
}

void DeletionFilter::Run(Members& members) {
  std::size_t needed = 0;  // so many of the first members are known to be needed
  std::size_t lot = std::max<std::size_t>(1, members.size() / 4);
  while (needed < members.size() && !stop_.Asked()) {
    Tick(members.size(), needed);
    std::size_t const end = std::min(needed + lot, members.size());
    Members fewer = Without(members, needed, end);
    Members const left(members.begin() + static_cast<std::ptrdiff_t>(needed),
                       members.begin() + static_cast<std::ptrdiff_t>(end));
    bool const wasKnown = IsKnownFeasible(fewer, left);
    auto const verdict =
        wasKnown ? Verdict::kFeasible : Judge(fewer, std::max(kLeastTrialSeconds, kTrialSecondsFactor * longestProof_));
    if (verdict == Verdict::kInfeasible) {
      members = Kept(members, fewer, needed);
      lot *= 2;
    } else if (end - needed > 1) {
      lot = std::max<std::size_t>(1, (end - needed) / 2);
    } else {
      // An open question keeps the member, and costs the proof.
      if (verdict == Verdict::kUnknown) isIrreducible_ = false;
      if (verdict == Verdict::kFeasible && !wasKnown) Rotate(members, members[needed]);
      ++needed;
    }
  }
  if (needed < members.size()) isIrreducible_ = false;
}

void DeletionFilter::Tick(std::size_t left, std::size_t needed) {
  double const now = stop_.Elapsed();
  if (now < lastLine_ + kSecondsBetweenLines) return;
  lastLine_ = now;
  log_.Print("  %zu members left, %zu of them needed, %d trials, %.1fs", left, needed, trials_, now);
}

}  // namespace vorqsolver
