// Pseudo-costs, made reliable by trials of a few simplex iterations.
#include "solver/engines/branching.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vorqsolver {

namespace {

constexpr int kTrialIterations = 40;
constexpr int kFreeIterations = 2000;  // for all trials; beyond, they may be half of all
constexpr std::size_t kTrials = 8;     // columns tried at a node
constexpr int kReliable = 4;           // branches after which no more trials are made
constexpr double kLeastScore = 1e-6;

double Product(double down, double up) {
  return std::max(down, kLeastScore) * std::max(up, kLeastScore);
}

}  // namespace

Branching::Branching(MipModel const& mip, ParameterSet const& parameters)
    : mip_(mip),
      tolerance_(parameters.Dbl(DblParam::kIntTol)),
      setTolerance_(0.5 * parameters.Dbl(DblParam::kFeasTol)),
      tries_(parameters.Int(IntParam::kStrongBranching) != 0) {
  for (auto& each : experience_) each.resize(mip.isInteger.size());
}

double Branching::Distance(double value) {
  return std::abs(value - std::round(value));
}

bool Branching::IsIntegral(std::span<double const> values) const {
  for (std::size_t col = 0; col < values.size(); ++col) {
    if (mip_.isInteger[col] && !IsInteger(values[col])) return false;
  }
  return true;
}

int Branching::FirstNonzero(MipModel::Set const& set, std::span<double const> values) const {
  auto const found = std::ranges::find_if(set.cols, [&](int col) { return values[col] > setTolerance_; });
  return static_cast<int>(found - set.cols.begin());
}

int Branching::LastNonzero(MipModel::Set const& set, std::span<double const> values) const {
  int last = static_cast<int>(set.cols.size()) - 1;
  while (last >= 0 && values[set.cols[last]] <= setTolerance_) --last;
  return last;
}

bool Branching::SetsHold(std::span<double const> values) const {
  return std::ranges::all_of(mip_.sets, [&](MipModel::Set const& set) {
    return LastNonzero(set, values) - FirstNonzero(set, values) < set.type;
  });
}

double Branching::Estimate(int col, bool isUp) const {
  auto const& own = experience_[isUp][col];
  if (own.count > 0) return own.gain / own.count;
  auto const& all = average_[isUp];
  return all.count > 0 ? all.gain / all.count : 1.0;
}

double Branching::Score(int col, double value) const {
  double const fraction = value - std::floor(value);
  return Product(Estimate(col, false) * fraction, Estimate(col, true) * (1.0 - fraction));
}

bool Branching::IsReliable(int col) const {
  return !tries_ || (experience_[0][col].count >= kReliable && experience_[1][col].count >= kReliable);
}

void Branching::Learn(BranchOrigin const& origin, double gain) {
  if (origin.col < 0 || origin.distance < 1e-9) return;
  double const each = std::max(gain, 0.0) / origin.distance;
  auto& own = experience_[origin.isUp][origin.col];
  own.gain += each;
  ++own.count;
  average_[origin.isUp].gain += each;
  ++average_[origin.isUp].count;
}

std::vector<Branching::Candidate> Branching::Candidates(std::span<double const> values) const {
  std::vector<Candidate> candidates;
  for (int col = 0; col < static_cast<int>(values.size()); ++col) {
    if (!mip_.isInteger[col] || IsInteger(values[col])) continue;
    candidates.push_back({col, values[col], Score(col, values[col])});
  }
  std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::score);
  return candidates;
}

BranchChoice Branching::SplitColumn(TreeRelaxation const& relaxation, int col, double value) const {
  double const below = std::floor(value);
  BranchChoice choice;
  choice.col = col;
  choice.down = {{col, relaxation.Lower(col), below}};
  choice.up = {{col, below + 1.0, relaxation.Upper(col)}};
  choice.downDistance = value - below;
  choice.upDistance = 1.0 - choice.downDistance;
  choice.upFirst = choice.upDistance < choice.downDistance;
  return choice;
}

// Of a set with nonzeros from `first` to `last` one side keeps what lies up to a place between, the other what follows.
BranchChoice Branching::SplitAt(MipModel::Set const& set, int first, int place, int last) {
  BranchChoice choice;
  // A set of type 2 keeps the place itself on both sides.
  int const shared = set.type == 2 ? 1 : 0;
  place = std::clamp(place, first + shared, last - 1);
  for (int k = place + 1; k < static_cast<int>(set.cols.size()); ++k) choice.down.push_back({set.cols[k], 0.0, 0.0});
  for (int k = 0; k < place + 1 - shared; ++k) choice.up.push_back({set.cols[k], 0.0, 0.0});
  return choice;
}

BranchChoice Branching::SplitSet(std::span<double const> values) const {
  auto const broken = std::ranges::find_if(mip_.sets, [&](MipModel::Set const& set) {
    return LastNonzero(set, values) - FirstNonzero(set, values) >= set.type;
  });
  auto const& cols = broken->cols;
  int const first = FirstNonzero(*broken, values);
  int const last = LastNonzero(*broken, values);
  double weight = 0.0;
  double sum = 0.0;
  for (int place = first; place <= last; ++place) {
    weight += values[cols[place]] * place;
    sum += values[cols[place]];
  }
  return SplitAt(*broken, first, static_cast<int>(weight / sum), last);
}

std::optional<BranchChoice> Branching::ChooseOpenSet(TreeRelaxation const& relaxation) const {
  auto const isOpen = [&](int col) { return relaxation.Upper(col) > 0.0; };
  for (auto const& set : mip_.sets) {
    auto const first = std::ranges::find_if(set.cols, isOpen);
    auto const last = std::find_if(set.cols.rbegin(), set.cols.rend(), isOpen);
    auto const from = static_cast<int>(first - set.cols.begin());
    auto const to = static_cast<int>(set.cols.rend() - last) - 1;
    if (to - from >= set.type) return SplitAt(set, from, (from + to) / 2, to);
  }
  return std::nullopt;
}

// Looks at both sides for some iterations; gives the score.
double Branching::Try(TreeRelaxation& relaxation, BranchChoice& choice, double cutoff) {
  double const before = relaxation.Objective();
  double gains[2] = {};
  for (bool const isUp : {false, true}) {
    auto const trial = relaxation.Try(isUp ? choice.up : choice.down);
    bool const isSolved = trial.outcome == TreeRelaxation::Outcome::kOptimal;
    bool const isEmpty =
        trial.outcome == TreeRelaxation::Outcome::kInfeasible || (isSolved && trial.objective >= cutoff);
    (isUp ? choice.upIsEmpty : choice.downIsEmpty) = isEmpty;
    gains[isUp] = std::max(0.0, trial.objective - before);
    if (isEmpty) gains[isUp] = std::max(gains[isUp], 1e3 * (1.0 + std::abs(before)));
    if (isSolved && !isEmpty) {
      Learn({choice.col, isUp, isUp ? choice.upDistance : choice.downDistance}, gains[isUp]);
    }
  }
  return Product(gains[0], gains[1]);
}

BranchChoice Branching::Choose(TreeRelaxation& relaxation, double cutoff) {
  auto const values = relaxation.Values();
  auto const candidates = Candidates(values);
  if (candidates.empty()) return SplitSet(values);
  auto best = SplitColumn(relaxation, candidates.front().col, candidates.front().value);
  bool const pays = relaxation.TrialIterations() < kFreeIterations + relaxation.Iterations() / 2;
  if (!pays || IsReliable(best.col)) return best;
  relaxation.BeginTrials(kTrialIterations);
  double bestScore = -1.0;
  std::size_t trials = 0;
  for (auto const& candidate : candidates) {
    if (trials >= kTrials) break;
    auto choice = SplitColumn(relaxation, candidate.col, candidate.value);
    double score = candidate.score;
    if (!IsReliable(candidate.col)) {
      ++trials;
      score = Try(relaxation, choice, cutoff);
    }
    bool const isSettled = choice.downIsEmpty || choice.upIsEmpty;
    if (!isSettled && score <= bestScore) continue;
    bestScore = score;
    best = std::move(choice);
    if (isSettled) break;
  }
  relaxation.EndTrials();
  return best;
}

std::optional<BranchChoice> Branching::ChooseAmongIntegral(TreeRelaxation const& relaxation) const {
  auto const values = relaxation.Values();
  int best = -1;
  double farthest = -1.0;
  for (int col = 0; col < static_cast<int>(values.size()); ++col) {
    if (!mip_.isInteger[col] || relaxation.Lower(col) >= relaxation.Upper(col)) continue;
    if (Distance(values[col]) <= farthest) continue;
    farthest = Distance(values[col]);
    best = col;
  }
  if (best < 0) return std::nullopt;
  double const value = std::round(values[best]);
  // The value itself goes to one side, all that lies beyond to the other.
  bool const hasAbove = value + 0.5 < relaxation.Upper(best);
  return SplitColumn(relaxation, best, hasAbove ? value + 0.5 : value - 0.5);
}

}  // namespace vorqsolver
