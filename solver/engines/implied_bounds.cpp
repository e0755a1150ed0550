// Propagation of row activities.
#include "solver/engines/implied_bounds.hpp"

#include <algorithm>
#include <cmath>

namespace vorqsolver {

namespace {

constexpr int kRounds = 5;
constexpr double kRoom = 1e-6;       // relative, for the tolerance within which rows hold
constexpr double kGreatest = 1e9;    // beyond this a term counts as unbounded: sums would lose their digits
constexpr double kLeastGain = 1e-3;  // relative; smaller steps could go on for ever

bool IsUnbounded(double term) {
  return std::abs(term) >= kGreatest;
}

// The least value of a sum of terms: a finite part, and how many terms have no least value.
struct LeastSum {
  double finite = 0.0;
  int unbounded = 0;

  void Add(double term) {
    if (IsUnbounded(term)) {
      ++unbounded;
    } else {
      finite += term;
    }
  }

  // Without one of its terms; infinite where others are unbounded.
  double Without(double term) const {
    if (unbounded > (IsUnbounded(term) ? 1 : 0)) return -kInfinity;
    return IsUnbounded(term) ? finite : finite - term;
  }
};

double LeastTerm(double coef, double lower, double upper) {
  double const bound = coef > 0.0 ? lower : upper;
  return IsUnbounded(bound) ? -kInfinity : coef * bound;
}

class Propagation {
 public:
  Propagation(std::vector<double>& lower, std::vector<double>& upper) : lower_(lower), upper_(upper) {}

  // The side sign * row <= right; true if a bound moved.
  bool Apply(SparseMatrix::View const& row, double sign, double right);

 private:
  bool Tighten(std::size_t col, double coef, double room);

  std::vector<double>& lower_;
  std::vector<double>& upper_;
};

bool Propagation::Apply(SparseMatrix::View const& row, double sign, double right) {
  if (std::abs(right) >= kInfinity) return false;
  LeastSum least;
  for (std::size_t k = 0; k < row.indices.size(); ++k) {
    auto const col = static_cast<std::size_t>(row.indices[k]);
    if (row.values[k] != 0.0) least.Add(LeastTerm(sign * row.values[k], lower_[col], upper_[col]));
  }
  if (least.unbounded > 1) return false;
  bool moved = false;
  // A term of the sum rests on one bound of its column, and what moves below is the other one.
  for (std::size_t k = 0; k < row.indices.size(); ++k) {
    auto const col = static_cast<std::size_t>(row.indices[k]);
    double const coef = sign * row.values[k];
    if (coef == 0.0) continue;
    double const rest = least.Without(LeastTerm(coef, lower_[col], upper_[col]));
    if (rest > -kInfinity) moved |= Tighten(col, coef, right - rest);
  }
  return moved;
}

// coef * column <= room.
bool Propagation::Tighten(std::size_t col, double coef, double room) {
  double bound = room / coef;
  double const slack = kRoom * std::max(1.0, std::abs(bound));
  bound += coef > 0.0 ? slack : -slack;
  if (!(std::abs(bound) < kGreatest)) return false;
  double& old = coef > 0.0 ? upper_[col] : lower_[col];
  double const gain = coef > 0.0 ? old - bound : bound - old;
  if (!(gain > kLeastGain * std::max(1.0, std::abs(bound)))) return false;
  old = bound;
  return true;
}

}  // namespace

void TightenByRows(Rows const& rows, std::vector<double>& lower, std::vector<double>& upper) {
  Propagation propagation(lower, upper);
  for (int round = 0; round < kRounds; ++round) {
    bool moved = false;
    for (int row = 0; row < rows.Count(); ++row) {
      auto const view = rows.matrix.Row(row);
      auto const place = static_cast<std::size_t>(row);
      moved |= propagation.Apply(view, 1.0, rows.upper[place]);
      moved |= propagation.Apply(view, -1.0, -rows.lower[place]);
    }
    if (!moved) return;
  }
}

}  // namespace vorqsolver
