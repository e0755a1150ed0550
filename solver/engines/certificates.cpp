// Verification of points and rays against the model.
#include "solver/engines/certificates.hpp"

#include <algorithm>
#include <cmath>

namespace vorqsolver {

namespace {

constexpr double kNegligible = 1e-9;
constexpr double kCancelled = 1e-8;  // a sum below this beside its terms is taken for 0

// Scales the greatest magnitude to 1 and drops what is negligible beside it; false for a ray of nothing.
bool Normalise(std::vector<double>& ray, double sign) {
  double greatest = 0.0;
  for (double const value : ray) greatest = std::max(greatest, std::abs(value));
  if (!(greatest > 0.0) || !std::isfinite(greatest)) return false;
  for (double& value : ray) {
    value = sign * value / greatest;
    if (std::abs(value) < kNegligible) value = 0.0;
  }
  return true;
}

// What a combination of terms comes to, beside the greatest of them.
struct Sum {
  double value = 0.0;
  double greatest = 0.0;

  void Add(double term) {
    value += term;
    greatest = std::max(greatest, std::abs(term));
  }
};

Sum Activity(LinearModel const& model, int row, std::span<double const> point) {
  Sum activity;
  model.VisitRow(row, [&](int col, double value) { activity.Add(value * point[col]); });
  return activity;
}

bool ProvesInfeasible(LinearModel const& model, std::span<double const> ray) {
  std::vector<Sum> combined(model.ColCount());
  Sum asked;
  for (int row = 0; row < model.RowCount(); ++row) {
    if (ray[row] == 0.0) continue;
    double const bound = ray[row] > 0.0 ? model.rowLower[row] : model.rowUpper[row];
    if (std::abs(bound) >= kInfinity) return false;
    asked.Add(ray[row] * bound);
    model.VisitRow(row, [&](int col, double value) { combined[col].Add(ray[row] * value); });
  }
  Sum reached;
  for (int col = 0; col < model.ColCount(); ++col) {
    auto const& [value, greatest] = combined[col];
    if (std::abs(value) <= kCancelled * greatest) continue;
    double const bound = value > 0.0 ? model.upper[col] : model.lower[col];
    if (std::abs(bound) >= kInfinity) return false;
    reached.Add(value * bound);
  }
  return reached.value < asked.value - kNegligible * std::max(asked.greatest, reached.greatest);
}

bool IsRay(LinearModel const& model, std::span<double const> ray) {
  double gain = 0.0;
  for (int col = 0; col < model.ColCount(); ++col) {
    if (ray[col] > 0.0 && model.upper[col] < kInfinity) return false;
    if (ray[col] < 0.0 && model.lower[col] > -kInfinity) return false;
    gain += model.cost[col] * ray[col];
  }
  for (int row = 0; row < model.RowCount(); ++row) {
    auto const activity = Activity(model, row, ray);
    double const tolerance = 10.0 * kNegligible * activity.greatest;
    if (activity.value > tolerance && model.rowUpper[row] < kInfinity) return false;
    if (activity.value < -tolerance && model.rowLower[row] > -kInfinity) return false;
  }
  return gain < -kNegligible;
}

}  // namespace

std::vector<double> VerifiedFarkasRay(LinearModel const& model, std::span<double const> ray) {
  for (double const sign : {1.0, -1.0}) {
    std::vector<double> candidate(ray.begin(), ray.begin() + model.RowCount());
    if (Normalise(candidate, sign) && ProvesInfeasible(model, candidate)) return candidate;
  }
  return {};
}

std::vector<double> VerifiedPrimalRay(LinearModel const& model, std::span<double const> ray) {
  for (double const sign : {1.0, -1.0}) {
    std::vector<double> candidate(ray.begin(), ray.begin() + model.ColCount());
    if (!Normalise(candidate, sign)) return {};
    // A direction that a bound forbids by next to nothing is rounding.
    for (int col = 0; col < model.ColCount(); ++col) {
      bool const up = candidate[col] > 0.0;
      bool const bounded = up ? model.upper[col] < kInfinity : model.lower[col] > -kInfinity;
      if (bounded && std::abs(candidate[col]) < 1e-7) candidate[col] = 0.0;
    }
    if (IsRay(model, candidate)) return candidate;
  }
  return {};
}

bool HoldsIn(LinearModel const& model, std::span<double const> point, double tolerance) {
  auto const isInside = [&](double value, double lower, double upper, double size) {
    return value >= lower - tolerance * std::max({1.0, size, std::abs(lower)}) &&
           value <= upper + tolerance * std::max({1.0, size, std::abs(upper)});
  };
  for (int col = 0; col < model.ColCount(); ++col) {
    if (!isInside(point[col], model.lower[col], model.upper[col], 0.0)) return false;
  }
  for (int row = 0; row < model.RowCount(); ++row) {
    auto const activity = Activity(model, row, point);
    if (!isInside(activity.value, model.rowLower[row], model.rowUpper[row], activity.greatest)) return false;
  }
  return true;
}

}  // namespace vorqsolver
