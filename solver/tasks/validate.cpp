// Unfit data and plain infeasibility.
#include "solver/tasks/validate.hpp"

#include <algorithm>
#include <cmath>
#include <span>

#include "solver/engines/problem_class.hpp"
#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {

std::string Called(char const* kind, NameList const& names, int index) {
  auto const name = names.Get(index);
  return name.empty() ? Text(kind, " ", index) : Text(kind, " '", name, "'");
}

namespace {

void RequireFinite(double value, char const* what, std::string const& owner) {
  if (!std::isfinite(value) || std::abs(value) >= kInfinity) Refuse(owner, ": ", what, " is ", value);
}

void RequireUsable(double value, char const* what, std::string const& owner) {
  RequireFinite(value, what, owner);
  if (std::abs(value) >= kTooGreat) Refuse(owner, ": ", what, " is ", value, ", too great to calculate with");
}

void RequireNumber(double value, char const* what, std::string const& owner) {
  if (std::isnan(value)) Refuse(owner, ": ", what, " is not a number");
}

void ValidateRows(SparseMatrix const& matrix, std::span<double const> lower, std::span<double const> upper,
                  NameList const& names, char const* kind) {
  for (int row = 0; row < static_cast<int>(lower.size()); ++row) {
    bool isFit = !std::isnan(lower[row]) && !std::isnan(upper[row]);
    auto const view = matrix.Row(row);
    for (double const value : view.values) isFit = isFit && std::abs(value) < kTooGreat;
    if (isFit) continue;
    auto const owner = Called(kind, names, row);
    RequireNumber(lower[row], "its lower bound", owner);
    RequireNumber(upper[row], "its upper bound", owner);
    for (double const value : view.values) RequireUsable(value, "a coefficient", owner);
  }
}

void RequireColumn(int col, ProblemData const& data, std::string const& owner) {
  if (col < 0 || col >= data.columns.Count()) {
    Refuse(owner, ": column ", col, " does not exist (the problem has ", data.columns.Count(), ")");
  }
}

void ValidateDiscrete(ProblemData const& data) {
  for (std::size_t k = 0; k < data.soss.size(); ++k) {
    auto const owner = Text("SOS ", k);
    if (data.soss[k].type != 1 && data.soss[k].type != 2) Refuse(owner, ": its type is ", data.soss[k].type);
    for (int const col : data.soss[k].cols) RequireColumn(col, data, owner);
    for (double const weight : data.soss[k].weights) RequireNumber(weight, "a weight", owner);
  }
  for (int k = 0; k < static_cast<int>(data.indicators.size()); ++k) {
    auto const& indicator = data.indicators[k];
    auto const owner = Called("Indicator", data.indicatorNames, k);
    RequireColumn(indicator.binCol, data, owner);
    if (data.columns.type[indicator.binCol] != 'B') Refuse(owner, ": its column is not binary");
    if (indicator.type != 0 && indicator.type != 1) {
      throw Failure(VORQ_INTERNAL, owner + ": no engine takes other indicators than plain implications, types 0 and 1");
    }
    RequireFinite(indicator.rhs, "its right side", owner);
    for (auto const& term : indicator.terms) {
      RequireColumn(term.col, data, owner);
      RequireUsable(term.value, "a coefficient", owner);
    }
  }
}

}  // namespace

void Validate(ProblemData const& data) {
  auto const& columns = data.columns;
  RequireFinite(data.objective.constant, "the constant", "Objective");
  for (int col = 0; col < columns.Count(); ++col) {
    double const bounds = columns.lower[col] + columns.upper[col];
    if (!std::isnan(bounds) && std::abs(columns.objective[col]) < kTooGreat) continue;
    auto const owner = Called("Column", columns.names, col);
    RequireNumber(columns.lower[col], "its lower bound", owner);
    RequireNumber(columns.upper[col], "its upper bound", owner);
    RequireUsable(columns.objective[col], "its objective coefficient", owner);
  }
  ValidateRows(data.rows.matrix, data.rows.lower, data.rows.upper, data.rows.names, "Row");
  ValidateRows(data.lazyConstraints.matrix, data.lazyConstraints.lower, data.lazyConstraints.upper,
               data.lazyConstraints.names, "Lazy constraint");
  ValidateRows(data.userCuts.matrix, data.userCuts.lower, data.userCuts.upper, data.userCuts.names, "User cut");
  ValidateDiscrete(data);
}

namespace {

// A lower bound of plus infinity leaves no room either.
bool Crosses(double lower, double upper, double tolerance) {
  return lower > upper + tolerance * std::max(1.0, std::abs(upper)) || lower >= kInfinity || upper <= -kInfinity;
}

std::string CrossingRow(SparseMatrix const& matrix, std::span<double const> lower, std::span<double const> upper,
                        NameList const& names, char const* kind, double tolerance) {
  for (int row = 0; row < static_cast<int>(lower.size()); ++row) {
    if (Crosses(lower[row], upper[row], tolerance)) return Called(kind, names, row) + ": its bounds cross";
    bool const asks = lower[row] > tolerance || upper[row] < -tolerance;
    if (asks && matrix.Row(row).indices.empty())
      return Called(kind, names, row) + ": empty, and 0 is outside its bounds";
  }
  return {};
}

}  // namespace

std::string PlainInfeasibility(ProblemData const& data, ParameterSet const& parameters, bool relaxed) {
  double const tolerance = parameters.Dbl(DblParam::kFeasTol);
  double const rounding = parameters.Dbl(DblParam::kIntTol);
  auto const& columns = data.columns;
  for (int col = 0; col < columns.Count(); ++col) {
    char const type = columns.type[col];
    double const lower = type == 'B' ? std::max(columns.lower[col], 0.0) : columns.lower[col];
    double const upper = type == 'B' ? std::min(columns.upper[col], 1.0) : columns.upper[col];
    // A semicontinuous column may always be 0.
    if (type == 'S' || type == 'N') {
      if (lower > upper && !(lower <= 0.0 && upper >= 0.0))
        return Called("Column", columns.names, col) + ": its bounds cross";
      continue;
    }
    if (Crosses(lower, upper, tolerance)) return Called("Column", columns.names, col) + ": its bounds cross";
    bool const isInteger = !relaxed && (type == 'B' || type == 'I');
    if (isInteger && std::ceil(lower - rounding) > std::floor(upper + rounding)) {
      return Called("Column", columns.names, col) + ": no integer lies within its bounds";
    }
  }
  auto text = CrossingRow(data.rows.matrix, data.rows.lower, data.rows.upper, data.rows.names, "Row", tolerance);
  if (!text.empty()) return text;
  auto const sideRows = [&](SideRows const& side, char const* kind) {
    return CrossingRow(side.matrix, side.lower, side.upper, side.names, kind, tolerance);
  };
  text = sideRows(data.lazyConstraints, "Lazy constraint");
  // User cuts are cuts of MIPs only.
  bool const hasCuts = !relaxed && Classify(data).IsDiscrete();
  return text.empty() && hasCuts ? sideRows(data.userCuts, "User cut") : text;
}

}  // namespace vorqsolver
