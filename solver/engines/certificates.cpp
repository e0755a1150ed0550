// Verification of rays against the problem.
#include "solver/engines/certificates.hpp"

#include <algorithm>
#include <cmath>

#include "solver/engines/linear_model.hpp"

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

bool ProvesInfeasible(ProblemData const& data, LinearModel const& model, std::span<double const> ray) {
  std::vector<double> combined(data.columns.Count(), 0.0);
  std::vector<double> magnitude(data.columns.Count(), 0.0);
  double asked = 0.0;
  double scale = 0.0;
  for (int row = 0; row < data.rows.Count(); ++row) {
    if (ray[row] == 0.0) continue;
    double const bound = ray[row] > 0.0 ? data.rows.lower[row] : data.rows.upper[row];
    if (std::abs(bound) >= kInfinity) return false;
    asked += ray[row] * bound;
    scale = std::max(scale, std::abs(ray[row] * bound));
    auto const view = data.rows.matrix.Row(row);
    for (std::size_t k = 0; k < view.indices.size(); ++k) {
      combined[view.indices[k]] += ray[row] * view.values[k];
      magnitude[view.indices[k]] = std::max(magnitude[view.indices[k]], std::abs(ray[row] * view.values[k]));
    }
  }
  double reached = 0.0;
  for (int col = 0; col < data.columns.Count(); ++col) {
    if (std::abs(combined[col]) <= kCancelled * magnitude[col]) continue;
    double const bound = combined[col] > 0.0 ? model.upper[col] : model.lower[col];
    if (std::abs(bound) >= kInfinity) return false;
    reached += combined[col] * bound;
    scale = std::max(scale, std::abs(combined[col] * bound));
  }
  return reached < asked - kNegligible * scale;
}

bool IsRay(ProblemData const& data, LinearModel const& model, std::span<double const> ray) {
  double gain = 0.0;
  for (int col = 0; col < data.columns.Count(); ++col) {
    if (ray[col] > 0.0 && model.upper[col] < kInfinity) return false;
    if (ray[col] < 0.0 && model.lower[col] > -kInfinity) return false;
    gain += model.cost[col] * ray[col];
  }
  for (int row = 0; row < data.rows.Count(); ++row) {
    auto const view = data.rows.matrix.Row(row);
    double activity = 0.0;
    double magnitude = 0.0;
    for (std::size_t k = 0; k < view.indices.size(); ++k) {
      double const term = view.values[k] * ray[view.indices[k]];
      activity += term;
      magnitude = std::max(magnitude, std::abs(term));
    }
    double const tolerance = 10.0 * kNegligible * magnitude;
    if (activity > tolerance && data.rows.upper[row] < kInfinity) return false;
    if (activity < -tolerance && data.rows.lower[row] > -kInfinity) return false;
  }
  return gain < -kNegligible;
}

}  // namespace

std::vector<double> VerifiedFarkasRay(ProblemData const& data, std::span<double const> ray) {
  LinearModel const model(data, false);
  for (double const sign : {1.0, -1.0}) {
    std::vector<double> candidate(ray.begin(), ray.begin() + data.rows.Count());
    if (Normalise(candidate, sign) && ProvesInfeasible(data, model, candidate)) return candidate;
  }
  return {};
}

std::vector<double> VerifiedPrimalRay(ProblemData const& data, std::span<double const> ray) {
  LinearModel const model(data, false);
  for (double const sign : {1.0, -1.0}) {
    std::vector<double> candidate(ray.begin(), ray.begin() + data.columns.Count());
    if (!Normalise(candidate, sign)) return {};
    // A direction that a bound forbids by next to nothing is rounding.
    for (int col = 0; col < data.columns.Count(); ++col) {
      bool const up = candidate[col] > 0.0;
      bool const bounded = up ? model.upper[col] < kInfinity : model.lower[col] > -kInfinity;
      if (bounded && std::abs(candidate[col]) < 1e-7) candidate[col] = 0.0;
    }
    if (IsRay(data, model, candidate)) return candidate;
  }
  return {};
}

}  // namespace vorqsolver
