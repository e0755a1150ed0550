// Exact solutions from integer parts, and the pool.
#include "solver/engines/mip_incumbents.hpp"

#include <algorithm>
#include <atomic>
#include <cmath>

#include "solver/engines/clp_engine.hpp"
#include "solver/engines/mip_model.hpp"
#include "solver/tasks/check.hpp"

namespace vorqsolver {

namespace {

constexpr double kUrgentSeconds = 0.5;
constexpr std::size_t kPoolSize = 100;

// The same in all that is discrete and, within rounding, in the rest.
bool IsSame(std::span<double const> left, std::span<double const> right) {
  return std::ranges::equal(left, right, [](double a, double b) {
    return std::abs(a - b) <= 1e-6 * std::max({1.0, std::abs(a), std::abs(b)});
  });
}

}  // namespace

bool MipIncumbents::Complete(std::span<double const> values, bool urgent) {
  auto const& data = task_.data;
  LinearModel const rest = FixDiscrete(data, values, task_.parameters.Dbl(DblParam::kIntTol));
  static std::atomic<bool> const never = false;
  StopSignal grace(never, Clock::now(), kUrgentSeconds);
  Basis const noBasis;
  std::vector<double> const noValues;
  Log quiet;
  SolveTask const task{data, task_.parameters, noBasis, noValues, task_.starts, urgent ? grace : task_.stop, quiet};
  for (int col = 0; col < data.columns.Count(); ++col) {
    if (rest.lower[col] > rest.upper[col]) return false;
  }
  auto solved = SolveLinearModel(rest, task);
  if (solved.lpStatus != SolveStatus::kOptimal) return urgent && KeepAsIs(Rounded(values));
  auto point = solved.lp.values;
  if (!Insert(std::move(point))) return false;
  if (IsSame(Best().values, solved.lp.values)) bestLp_ = std::move(solved);
  return true;
}

// The columns of the problem, with the integer ones exactly so.
std::vector<double> MipIncumbents::Rounded(std::span<double const> values) const {
  auto const& types = task_.data.columns.type;
  std::vector<double> rounded(values.begin(), values.begin() + std::ssize(types));
  for (std::size_t col = 0; col < rounded.size(); ++col) {
    if (types[col] != 'C' && types[col] != 'S') rounded[col] = std::round(rounded[col]);
  }
  return rounded;
}

bool MipIncumbents::KeepAsIs(std::span<double const> values) {
  bool const wasEmpty = IsEmpty();
  double const former = wasEmpty ? 0.0 : Best().objective;
  if (!Insert({values.begin(), values.end()})) return false;
  if (wasEmpty || Best().objective != former) bestLp_ = {};
  return true;
}

bool MipIncumbents::Insert(std::vector<double> values) {
  auto const& data = task_.data;
  if (!CheckSolution(data, values).Holds(task_.parameters)) return false;
  lastObjective_ = ObjectiveOf(data, values);
  for (auto const& known : pool_) {
    if (IsSame(known.values, values)) return true;
  }
  PoolSolution solution{lastObjective_, std::move(values)};
  double const sign = data.objective.sense < 0 ? -1.0 : 1.0;
  auto const place = std::ranges::upper_bound(pool_, sign * solution.objective, {},
                                              [&](PoolSolution const& known) { return sign * known.objective; });
  pool_.insert(place, std::move(solution));
  if (pool_.size() > kPoolSize) pool_.pop_back();
  return true;
}

}  // namespace vorqsolver
