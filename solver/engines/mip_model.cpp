// Bridges from semicontinuous columns, indicators and general SOS to integer columns and SOS of nonnegative columns.
#include "solver/engines/mip_model.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "solver/engines/implied_bounds.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {

namespace {

// Above this a coefficient that switches a row off would let the row be violated within the integrality tolerance.
constexpr double kGreatestSwitch = 1e4;

bool IsIntegerType(char type) {
  return type == 'B' || type == 'I' || type == 'N';
}

std::vector<LinearTerm> Negated(std::vector<LinearTerm> terms) {
  for (auto& term : terms) term.value = -term.value;
  return terms;
}

}  // namespace

std::vector<int> OrderedMembers(Sos const& sos) {
  std::vector<int> order(sos.cols.size());
  std::iota(order.begin(), order.end(), 0);
  if (!sos.weights.empty()) {
    std::ranges::stable_sort(order, {}, [&](int member) { return sos.weights[member]; });
  }
  std::vector<int> cols;
  cols.reserve(order.size());
  for (int const member : order) cols.push_back(sos.cols[member]);
  return cols;
}

Side SideOf(Indicator const& indicator) {
  switch (indicator.sense) {
    case 'L': return {-kInfinity, indicator.rhs};
    case 'G': return {indicator.rhs, kInfinity};
    case 'E': return {indicator.rhs, indicator.rhs};
    default: return {-kInfinity, kInfinity};
  }
}

MipModel::MipModel(ProblemData const& data, ParameterSet const& parameters)
    : MipModel(data, parameters, LinearModel(data, true)) {}

MipModel::MipModel(ProblemData const& data, ParameterSet const& parameters, LinearModel start)
    : linear(std::move(start)) {
  double const tolerance = parameters.Dbl(DblParam::kIntTol);
  auto const& columns = data.columns;
  for (int col = 0; col < columns.Count(); ++col) {
    isInteger.push_back(IsIntegerType(columns.type[col]) ? 1 : 0);
    if (!isInteger[col]) continue;
    linear.lower[col] = std::ceil(linear.lower[col] - tolerance);
    linear.upper[col] = std::floor(linear.upper[col] + tolerance);
  }
  for (int col = 0; col < columns.Count(); ++col) {
    bool const isSemi = columns.type[col] == 'S' || columns.type[col] == 'N';
    bool const hasGap = columns.lower[col] > 0.0 || columns.upper[col] < 0.0;
    if (isSemi && hasGap) AddSemicontinuous(col, columns.lower[col], columns.upper[col]);
  }
  for (auto const& sos : data.soss) AddSos(sos);
  impliedLower_.assign(linear.lower.begin(), linear.lower.begin() + columns.Count());
  impliedUpper_.assign(linear.upper.begin(), linear.upper.begin() + columns.Count());
  TightenByRows(data.rows, impliedLower_, impliedUpper_);
  TightenIntegers();
  for (auto const& indicator : data.indicators) AddIndicator(indicator);
}

// Gives the integer columns the bounds that the rows imply. Where these cross, the linear engine is to find out.
void MipModel::TightenIntegers() {
  for (std::size_t col = 0; col < impliedLower_.size(); ++col) {
    if (isInteger[col] == 0) continue;
    double const lower = std::max(linear.lower[col], std::ceil(impliedLower_[col]));
    double const upper = std::min(linear.upper[col], std::floor(impliedUpper_[col]));
    if (lower > upper) continue;
    linear.lower[col] = lower;
    linear.upper[col] = upper;
  }
}

bool MipModel::HasOpenIntegers() const {
  for (std::size_t col = 0; col < isInteger.size(); ++col) {
    bool const isOpen = linear.lower[col] <= -kInfinity || linear.upper[col] >= kInfinity;
    if (isInteger[col] != 0 && isOpen) return true;
  }
  return false;
}

int MipModel::AddBinary() {
  isInteger.push_back(1);
  return linear.AddCol(0.0, 1.0, 0.0);
}

// A column that is 1 minus `binary`.
int MipModel::Complement(int binary) {
  isInteger.push_back(0);
  int const col = linear.AddCol(0.0, 1.0, 0.0);
  linear.AddRow(std::vector<LinearTerm>{{binary, 1.0}, {col, 1.0}}, 1.0, 1.0);
  return col;
}

// A nonnegative column that is 0 only where `col` is 0: the column itself, or a bound on its magnitude.
int MipModel::AsSetMember(int col) {
  if (linear.lower[col] == 0.0) return col;
  isInteger.push_back(0);
  int const magnitude = linear.AddCol(0.0, std::max(std::abs(linear.lower[col]), std::abs(linear.upper[col])), 0.0);
  linear.AddRow(std::vector<LinearTerm>{{col, 1.0}, {magnitude, -1.0}}, -kInfinity, 0.0);
  linear.AddRow(std::vector<LinearTerm>{{col, 1.0}, {magnitude, 1.0}}, 0.0, kInfinity);
  return magnitude;
}

// Either 0 or within the bounds, these not including 0: a binary column says which.
void MipModel::AddSemicontinuous(int col, double lower, double upper) {
  int const on = AddBinary();
  auto const limit = [&](double bound, bool isUpper) {
    if (std::abs(bound) >= kInfinity) return;
    auto const terms = std::vector<LinearTerm>{{col, 1.0}, {on, -bound}};
    linear.AddRow(terms, isUpper ? -kInfinity : 0.0, isUpper ? 0.0 : kInfinity);
  };
  limit(lower, false);
  limit(upper, true);
  double const far = std::max(std::abs(lower), std::abs(upper));
  if (far > kGreatestSwitch) sets.push_back({1, {AsSetMember(col), Complement(on)}});
}

void MipModel::AddSos(Sos const& sos) {
  Set set{sos.type, OrderedMembers(sos)};
  for (int& col : set.cols) col = AsSetMember(col);
  if (static_cast<int>(set.cols.size()) > sos.type) sets.push_back(std::move(set));
}

void MipModel::AddIndicator(Indicator const& indicator) {
  auto const [lower, upper] = SideOf(indicator);
  bool const whenOne = indicator.binVal != 0;
  if (upper < kInfinity) AddImplication(indicator.binCol, whenOne, indicator.terms, upper);
  if (lower > -kInfinity) AddImplication(indicator.binCol, whenOne, Negated(indicator.terms), -lower);
}

// Where the binary column has the value: terms <= rhs.
void MipModel::AddImplication(int binary, bool whenOne, std::span<LinearTerm const> terms, double rhs) {
  double const excess = GreatestActivity(terms) - rhs;
  if (excess <= 0.0) return;
  std::vector<LinearTerm> row(terms.begin(), terms.end());
  if (excess <= kGreatestSwitch) {
    row.push_back({binary, whenOne ? excess : -excess});
    linear.AddRow(row, -kInfinity, whenOne ? rhs + excess : rhs);
    return;
  }
  isInteger.push_back(0);
  int const slack = linear.AddCol(0.0, kInfinity, 0.0);
  row.push_back({slack, -1.0});
  linear.AddRow(row, -kInfinity, rhs);
  sets.push_back({1, {slack, AsSetMember(whenOne ? binary : Complement(binary))}});
}

double MipModel::GreatestActivity(std::span<LinearTerm const> terms) const {
  double activity = 0.0;
  for (auto const& term : terms) {
    if (term.value == 0.0) continue;
    double const bound = term.value > 0.0 ? impliedUpper_[term.col] : impliedLower_[term.col];
    if (std::abs(bound) >= kInfinity) return kInfinity;
    activity += term.value * bound;
  }
  return activity;
}

namespace {

// Fixes at 0 all members of the set but those that carry its value.
void FixSet(Sos const& sos, std::span<double const> values, LinearModel& model) {
  auto const cols = OrderedMembers(sos);
  auto const size = static_cast<int>(cols.size());
  int const width = std::min(sos.type, size);
  int best = 0;
  double greatest = -1.0;
  for (int first = 0; first + width <= size; ++first) {
    double sum = 0.0;
    for (int k = 0; k < width; ++k) sum += std::abs(values[cols[first + k]]);
    if (sum > greatest) {
      greatest = sum;
      best = first;
    }
  }
  for (int k = 0; k < size; ++k) {
    if (k < best || k >= best + width) model.lower[cols[k]] = model.upper[cols[k]] = 0.0;
  }
}

}  // namespace

LinearModel FixDiscrete(ProblemData const& data, std::span<double const> values, double tolerance) {
  LinearModel model(data, false);
  auto const& columns = data.columns;
  for (int col = 0; col < columns.Count(); ++col) {
    char const type = columns.type[col];
    if (type == 'S' && std::abs(values[col]) > tolerance) {
      model.lower[col] = ToEngine(columns.lower[col]);
      model.upper[col] = ToEngine(columns.upper[col]);
    } else if (type == 'S') {
      bool const mayBeFree = columns.lower[col] <= 0.0 && columns.upper[col] >= 0.0;
      if (!mayBeFree) model.lower[col] = model.upper[col] = 0.0;
    } else if (IsIntegerType(type)) {
      model.lower[col] = model.upper[col] = std::round(values[col]);
    }
  }
  for (auto const& sos : data.soss) FixSet(sos, values, model);
  for (auto const& indicator : data.indicators) {
    if ((values[indicator.binCol] > 0.5) != (indicator.binVal != 0)) continue;
    auto const [lower, upper] = SideOf(indicator);
    model.AddRow(indicator.terms, lower, upper);
  }
  return model;
}

}  // namespace vorqsolver
