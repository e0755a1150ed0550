// The course of a tuning: what there is, the sets to try, the trials, the better ones.
#include "solver/tasks/tune.hpp"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "solver/parameters/name_index.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"
#include "solver/tasks/running.hpp"
#include "solver/tasks/solve_report.hpp"
#include "solver/tasks/subproblem.hpp"
#include "solver/tasks/tune_trials.hpp"
#include "solver/tasks/validate.hpp"
#include "solver/tasks/watchdog.hpp"

namespace vorqsolver {

namespace {

enum TuneMethod { kFast = 0, kAggressive = 1 };
enum OutputLevel { kOnlyBest = 1, kEachSet = 2, kEachSolve = 3 };

constexpr double kFirstSeconds = 60.0;  // for the solves with the parameters as they are, where no limit is set
constexpr double kQuick = 5.0;          // seconds below which a second order of the problem is affordable
constexpr std::size_t kMostSets = 300;  // of all combinations
constexpr double kNotablyFaster = 0.9;  // less of a gain in time may be noise
constexpr double kLeastGain = 0.002;    // seconds

// What the engines for the kind of problem listen to.
std::vector<TuneChoice> StandardChoices(ProblemClass const& what) {
  if (what.IsDiscrete()) {
    return {{"CutLevel", {"-1", "0"}},
            {"HeurLevel", {"-1", "0"}},
            {"StrongBranching", {"-1", "0"}},
            {"Presolve", {"-1", "0"}}};
  }
  return {{"LpMethod", {"0", "1"}}, {"Presolve", {"-1", "0"}}, {"Scaling", {"-1", "0"}}};
}

std::string TextOf(Settings const& settings) {
  std::string text;
  for (auto const& [name, value] : settings) text += Text(text.empty() ? "" : ", ", name, " ", value);
  return text;
}

// Whether the setting changes anything.
bool IsChange(ParameterSet const& parameters, std::string const& name, std::string const& value) {
  ParameterSet changed = parameters;
  changed.SetText(name, value);
  return !(changed == parameters);
}

class Tuner {
 public:
  Tuner(Problem& problem, Clock::time_point begin)
      : problem_(problem), trials_(problem, begin), level_(problem.parameters.Int(IntParam::kTuneOutputLevel)) {}

  void Run();

 private:
  struct Candidate {
    Settings settings;
    TrialOutcome outcome;
  };

  void MeasureFirst();
  bool IsOnTarget(double measure) const;
  bool IsBetter(double measure) const;
  std::vector<Candidate> SingleChanges() const;
  std::vector<Candidate> AllCombinations() const;
  std::vector<Candidate> CombinationOfBest() const;
  void TryAll(std::vector<Candidate> candidates);
  void TryInThreads(std::vector<Candidate>& candidates, int threads);
  void Settle(Candidate const& candidate);
  void LogEnd() const;
  std::string MeasureText(double measure) const;

  Problem& problem_;
  Trials trials_;
  int level_;
  std::vector<TuneChoice> choices_;
  TrialOutcome first_;
  double seconds_ = 0.0;  // of each solve
  std::vector<TunedSet> better_;
  bool isDone_ = false;
};

std::string Tuner::MeasureText(double measure) const {
  char text[64];
  double const sense = problem_.data.objective.sense < 0 ? -1.0 : 1.0;
  switch (trials_.mode) {
    case TuneMode::kGap: std::snprintf(text, sizeof text, "gap %.4f%%", 100.0 * measure); break;
    case TuneMode::kObjective: std::snprintf(text, sizeof text, "objective %.8g", sense * measure); break;
    case TuneMode::kBound: std::snprintf(text, sizeof text, "bound %.8g", -sense * measure); break;
    default: std::snprintf(text, sizeof text, "time %.3fs", measure);
  }
  return text;
}

bool Tuner::IsOnTarget(double measure) const {
  auto const& parameters = problem_.parameters;
  if (trials_.mode == TuneMode::kTime) return first_.isSolved && measure <= parameters.Dbl(DblParam::kTuneTargetTime);
  return trials_.mode == TuneMode::kGap && measure <= parameters.Dbl(DblParam::kTuneTargetRelGap);
}

bool Tuner::IsBetter(double measure) const {
  if (trials_.mode == TuneMode::kTime) {
    return measure < kNotablyFaster * first_.measure && measure < first_.measure - kLeastGain;
  }
  return measure < first_.measure - 1e-9 * std::max(1.0, std::abs(first_.measure));
}

// The parameters as they are; they also tell what to measure and how long a solve may take.
void Tuner::MeasureFirst() {
  auto const& parameters = problem_.parameters;
  double const limit = parameters.Dbl(DblParam::kTimeLimit);
  bool const isLimited = limit < 1e20;
  int const permutes = parameters.Int(IntParam::kTunePermutes);
  auto const wanted = static_cast<TuneMode>(parameters.Int(IntParam::kTuneMode));
  seconds_ = isLimited ? limit : std::min(kFirstSeconds, 0.5 * trials_.Remaining());
  bool const mayPermute = Classify(problem_.data).IsLinear();
  trials_.Prepare(mayPermute ? std::max(1, permutes) : 1);
  trials_.mode = wanted == TuneMode::kAutomatic ? TuneMode::kTime : wanted;
  first_ = trials_.Try({}, seconds_);
  if (wanted == TuneMode::kAutomatic && !first_.isSolved && Classify(problem_.data).IsDiscrete()) {
    trials_.mode = TuneMode::kGap;
    if (!trials_.MustStop()) first_ = trials_.Try({}, seconds_);
  } else if (permutes == 0 && mayPermute && first_.seconds < kQuick && !IsOnTarget(first_.measure)) {
    trials_.Prepare(2);
    first_ = trials_.Try({}, seconds_);
  }
  // What takes longer than now cannot be faster.
  if (trials_.mode == TuneMode::kTime && first_.isSolved) seconds_ = std::min(seconds_, 1.1 * first_.seconds + 0.01);
}

std::vector<Tuner::Candidate> Tuner::SingleChanges() const {
  std::vector<Candidate> candidates;
  for (auto const& choice : choices_) {
    for (auto const& value : choice.values) {
      if (IsChange(problem_.parameters, choice.name, value)) candidates.push_back({{{choice.name, value}}, {}});
    }
  }
  return candidates;
}

std::vector<Tuner::Candidate> Tuner::AllCombinations() const {
  std::vector<Candidate> candidates = {{}};
  for (auto const& choice : choices_) {
    auto const count = candidates.size();
    for (auto const& value : choice.values) {
      if (!IsChange(problem_.parameters, choice.name, value)) continue;
      for (std::size_t k = 0; k < count && candidates.size() <= kMostSets; ++k) {
        candidates.push_back(candidates[k]);
        candidates.back().settings.emplace_back(choice.name, value);
      }
    }
  }
  candidates.erase(candidates.begin());
  std::ranges::stable_sort(candidates, {}, [](Candidate const& candidate) { return candidate.settings.size(); });
  return candidates;
}

// The best value of each parameter that helped, where several did.
std::vector<Tuner::Candidate> Tuner::CombinationOfBest() const {
  Candidate all;
  for (auto const& set : better_) {
    auto const& setting = set.settings.front();
    bool const isThere =
        std::ranges::any_of(all.settings, [&](auto const& other) { return other.first == setting.first; });
    if (!isThere) all.settings.push_back(setting);
  }
  if (all.settings.size() < 2) return {};
  return {all};
}

void Tuner::Settle(Candidate const& candidate) {
  bool const isBetter = IsBetter(candidate.outcome.measure);
  if (level_ >= kEachSet) {
    problem_.log.Line(Text("  ", TextOf(candidate.settings), ": ", MeasureText(candidate.outcome.measure),
                           isBetter ? ", better" : ""));
  }
  if (level_ >= kEachSolve) problem_.log.Line(Text("   ", candidate.outcome.detail));
  if (!isBetter) return;
  auto const place = std::ranges::upper_bound(better_, candidate.outcome.measure, {}, &TunedSet::measure);
  better_.insert(place, {candidate.settings, candidate.outcome.measure});
  isDone_ = isDone_ || IsOnTarget(candidate.outcome.measure);
}

void Tuner::TryAll(std::vector<Candidate> candidates) {
  int const cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  int const threads =
      std::min({problem_.parameters.Int(IntParam::kThreads), cores, static_cast<int>(candidates.size())});
  if (threads > 1) {
    TryInThreads(candidates, threads);
    return;
  }
  for (auto& candidate : candidates) {
    if (isDone_ || trials_.MustStop()) return;
    candidate.outcome = trials_.Try(candidate.settings, seconds_);
    // A trial that was cut short tells nothing.
    if (!trials_.MustStop()) Settle(candidate);
  }
}

// Workers solve; this thread alone writes to the log.
void Tuner::TryInThreads(std::vector<Candidate>& candidates, int threads) {
  std::mutex mutex;
  std::condition_variable changed;
  std::vector<std::size_t> finished;
  std::size_t next = 0;
  int working = threads;
  bool isOver = false;
  auto const work = [&] {
    std::unique_lock lock(mutex);
    while (!isOver && next < candidates.size() && !trials_.MustStop()) {
      std::size_t const mine = next++;
      lock.unlock();
      auto outcome = trials_.Try(candidates[mine].settings, seconds_);
      lock.lock();
      candidates[mine].outcome = std::move(outcome);
      if (!trials_.MustStop()) finished.push_back(mine);
      changed.notify_one();
    }
    --working;
    changed.notify_one();
  };
  std::vector<std::jthread> workers;
  workers.reserve(static_cast<std::size_t>(threads));
  for (int k = 0; k < threads; ++k) workers.emplace_back(work);
  std::unique_lock lock(mutex);
  for (std::size_t settled = 0; working > 0 || settled < finished.size();) {
    changed.wait(lock, [&] { return settled < finished.size() || working == 0; });
    while (settled < finished.size()) {
      Candidate const candidate = candidates[finished[settled++]];
      lock.unlock();
      Settle(candidate);
      lock.lock();
      isOver = isDone_;
    }
  }
}

void Tuner::LogEnd() const {
  if (level_ < kOnlyBest) return;
  if (better_.empty()) {
    problem_.log.Line("Tuning: nothing was better than the parameters as they are");
  } else {
    problem_.log.Line(Text("Tuning: best of ", better_.size(), " better sets: ", TextOf(better_.front().settings), ", ",
                           MeasureText(better_.front().measure), " instead of ", MeasureText(first_.measure)));
  }
  problem_.log.Print("  Time         %.2fs", trials_.Elapsed());
}

void Tuner::Run() {
  auto const& parameters = problem_.parameters;
  choices_ = problem_.tuning.choices.empty() ? StandardChoices(Classify(problem_.data)) : problem_.tuning.choices;
  problem_.tuning.sets.clear();
  MeasureFirst();
  if (level_ >= kEachSet) {
    problem_.log.Line(Text("  the parameters as they are: ", MeasureText(first_.measure), " over ", trials_.CopyCount(),
                           trials_.CopyCount() == 1 ? " solve" : " orders of columns and rows"));
  }
  isDone_ = IsOnTarget(first_.measure);
  if (isDone_ && level_ >= kOnlyBest) problem_.log.Line("The target is met already");
  if (!isDone_ && !trials_.MustStop()) {
    bool const isAggressive = parameters.Int(IntParam::kTuneMethod) == kAggressive;
    TryAll(isAggressive ? AllCombinations() : SingleChanges());
    if (!isAggressive && !isDone_) TryAll(CombinationOfBest());
  }
  problem_.tuning.sets = better_;
  problem_.tuning.seconds = trials_.Elapsed();
  LogEnd();
}

}  // namespace

void Tune(Problem& problem) {
  Running const running(problem);
  auto const begin = Clock::now();
  CheckNoLostColumns(problem.data);
  auto const what = Classify(problem.data);
  if (FindEngine(what) == nullptr) {
    throw Failure(VORQ_INTERNAL, "No engine of this version solves a problem with " + what.Describe());
  }
  Validate(problem.data);
  bool const isLogged = problem.parameters.Int(IntParam::kTuneOutputLevel) >= kOnlyBest;
  if (isLogged) LogTitle(problem, "Tuning for");
  std::unique_ptr<Watchdog> const watchdog = isLogged ? std::make_unique<Watchdog>(problem.log) : nullptr;
  Tuner(problem, begin).Run();
}

}  // namespace vorqsolver
