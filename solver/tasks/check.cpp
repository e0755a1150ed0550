// Violations of a point.
#include "solver/tasks/check.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "solver/engines/mip_model.hpp"
#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {

namespace {

struct Violation {
  double absolute = 0.0;
  double relative = 0.0;
};

// Distance to an interval; an infinite side never binds.
Violation Outside(double value, double lower, double upper, double size) {
  double distance = 0.0;
  double bound = 0.0;
  if (lower > -kInfinity && value < lower) {
    distance = lower - value;
    bound = lower;
  }
  if (upper < kInfinity && value - upper > distance) {
    distance = value - upper;
    bound = upper;
  }
  return {distance, distance / std::max({1.0, size, std::abs(bound)})};
}

void Raise(double& absolute, double& relative, Violation const& violation) {
  absolute = std::max(absolute, violation.absolute);
  relative = std::max(relative, violation.relative);
}

class Checker {
 public:
  Checker(ProblemData const& data, std::span<double const> values) : data_(data), values_(values) {}

  void CheckColumns(bool relaxed);
  void CheckRows();
  void CheckSide(SideRows const& side);
  void CheckSos(Sos const& sos);
  void CheckIndicator(Indicator const& indicator);

  Violations const& Result() const { return result_; }

 private:
  Violation RowViolation(SparseMatrix::View const& row, double lower, double upper) const;
  void CheckSemicontinuous(int col, double lower, double upper);

  ProblemData const& data_;
  std::span<double const> values_;
  Violations result_;
};

void Checker::CheckColumns(bool relaxed) {
  auto const& columns = data_.columns;
  for (int col = 0; col < columns.Count(); ++col) {
    char const type = columns.type[col];
    double lower = columns.lower[col];
    double upper = columns.upper[col];
    if (type == 'B') {
      lower = std::max(lower, 0.0);
      upper = std::min(upper, 1.0);
    }
    if (type == 'S' || type == 'N') {
      if (!relaxed) CheckSemicontinuous(col, lower, upper);
      lower = std::min(lower, 0.0);
      upper = std::max(upper, 0.0);
    }
    Raise(result_.bounds, result_.relativeBounds, Outside(values_[col], lower, upper, 0.0));
    if (!relaxed && type != 'C' && type != 'S') {
      result_.integrality = std::max(result_.integrality, std::abs(values_[col] - std::round(values_[col])));
    }
  }
}

void Checker::CheckSemicontinuous(int col, double lower, double upper) {
  auto const inside = Outside(values_[col], lower, upper, 0.0);
  double const distance = std::min(inside.absolute, std::abs(values_[col]));
  Raise(result_.discrete, result_.relativeDiscrete, {distance, std::min(inside.relative, distance)});
}

Violation Checker::RowViolation(SparseMatrix::View const& row, double lower, double upper) const {
  double activity = 0.0;
  double size = 0.0;
  for (std::size_t k = 0; k < row.indices.size(); ++k) {
    double const term = row.values[k] * values_[row.indices[k]];
    activity += term;
    size = std::max(size, std::abs(term));
  }
  return Outside(activity, lower, upper, size);
}

void Checker::CheckRows() {
  for (int row = 0; row < data_.rows.Count(); ++row) {
    Raise(result_.rows, result_.relativeRows,
          RowViolation(data_.rows.matrix.Row(row), data_.rows.lower[row], data_.rows.upper[row]));
  }
  CheckSide(data_.lazyConstraints);
}

void Checker::CheckSide(SideRows const& side) {
  for (int row = 0; row < side.Count(); ++row) {
    Raise(result_.rows, result_.relativeRows, RowViolation(side.matrix.Row(row), side.lower[row], side.upper[row]));
  }
}

// What lies outside of the best window of neighbours ought to be 0.
void Checker::CheckSos(Sos const& sos) {
  auto const cols = OrderedMembers(sos);
  auto const size = static_cast<int>(cols.size());
  double least = kInfinity;
  for (int first = 0; first == 0 || first + sos.type <= size; ++first) {
    double greatest = 0.0;
    for (int k = 0; k < size; ++k) {
      if (k < first || k >= first + sos.type) greatest = std::max(greatest, std::abs(values_[cols[k]]));
    }
    least = std::min(least, greatest);
  }
  if (size > 0) Raise(result_.discrete, result_.relativeDiscrete, {least, least});
}

void Checker::CheckIndicator(Indicator const& indicator) {
  if ((values_[indicator.binCol] > 0.5) != (indicator.binVal != 0)) return;
  std::vector<int> cols;
  std::vector<double> coefficients;
  for (auto const& term : indicator.terms) {
    cols.push_back(term.col);
    coefficients.push_back(term.value);
  }
  auto const [lower, upper] = SideOf(indicator);
  Raise(result_.discrete, result_.relativeDiscrete, RowViolation({cols, coefficients}, lower, upper));
}

}  // namespace

bool Violations::Holds(ParameterSet const& parameters) const {
  double const tolerance = parameters.Dbl(DblParam::kFeasTol);
  return relativeBounds <= tolerance && relativeRows <= tolerance && relativeDiscrete <= tolerance &&
         integrality <= parameters.Dbl(DblParam::kIntTol);
}

std::string Violations::Worst() const {
  std::pair<double, char const*> const kinds[] = {{bounds, "a bound"},
                                                  {rows, "a row"},
                                                  {integrality, "integrality"},
                                                  {discrete, "an SOS, indicator or semicontinuity"}};
  auto const& [amount, kind] = *std::ranges::max_element(kinds, {}, &std::pair<double, char const*>::first);
  char text[40];
  std::snprintf(text, sizeof text, " violated by %.3g", amount);
  return std::string(kind) + text;
}

Violations CheckSolution(ProblemData const& data, std::span<double const> values, bool relaxed) {
  // Comparisons would let a value pass that is not a number.
  if (!std::ranges::all_of(values, [](double value) { return std::isfinite(value); })) {
    Violations none;
    none.bounds = none.relativeBounds = kInfinity;
    return none;
  }
  Checker checker(data, values);
  checker.CheckColumns(relaxed);
  checker.CheckRows();
  if (!relaxed) {
    checker.CheckSide(data.userCuts);
    for (auto const& sos : data.soss) checker.CheckSos(sos);
    for (auto const& indicator : data.indicators) checker.CheckIndicator(indicator);
  }
  return checker.Result();
}

}  // namespace vorqsolver
