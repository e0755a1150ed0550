// What a change of the data does to results and starts.
#include "solver/problem/problem.hpp"

#include <algorithm>

#include "solver/problem/remaining.hpp"

namespace vorqsolver {

namespace {

int NonbasicStatus(double lower, double upper) {
  if (lower > -kInfinity) return static_cast<int>(lower == upper ? BasisStatus::kFixed : BasisStatus::kLower);
  return static_cast<int>(upper < kInfinity ? BasisStatus::kUpper : BasisStatus::kSuperBasic);
}

bool IsSized(Basis const& basis, ProblemData const& data) {
  return basis.cols.size() == data.columns.type.size() && basis.rows.size() == data.rows.lower.size();
}

// A problem without columns has a solution of length 0, which only the status tells from none.
bool IsSolution(ProblemData const& data, std::vector<double> const& values, SolveStatus status) {
  return std::ssize(values) == data.columns.Count() && (!values.empty() || status == SolveStatus::kOptimal);
}

}  // namespace

bool Problem::HasLpSolution() const {
  return IsSolution(data, result.lp.values, result.lpStatus);
}

bool Problem::HasMipSolution() const {
  return IsSolution(data, result.mipValues, result.mipStatus);
}

Basis const& Problem::CurrentBasis() const {
  return startBasis.IsEmpty() ? result.basis : startBasis;
}

bool Problem::HasBasis() const {
  Basis const& basis = CurrentBasis();
  return !basis.IsEmpty() && IsSized(basis, data);
}

void Problem::UpdateStarts() {
  bool const hadStart = !startBasis.IsEmpty();
  if (!result.IsEmpty()) {
    if (!hadStart && !result.isMip) startBasis = std::move(result.basis);
    result = SolveResult();
  }
  if (!startBasis.IsEmpty()) {
    while (startBasis.cols.size() < data.columns.type.size()) {
      auto const col = startBasis.cols.size();
      startBasis.cols.push_back(NonbasicStatus(data.columns.lower[col], data.columns.upper[col]));
    }
    startBasis.rows.resize(std::max(startBasis.rows.size(), data.rows.lower.size()),
                           static_cast<int>(BasisStatus::kBasic));
    if (!IsSized(startBasis, data)) startBasis = Basis();
  }
  for (auto& start : starts) start.values.resize(data.columns.type.size(), VORQ_UNDEFINED);
}

void Problem::ColumnsDeleted(std::span<int const> deleted) {
  for (auto& start : starts) KeepRemaining(start.values, deleted);
  RowsDeleted();
}

void Problem::RowsDeleted() {
  startBasis = Basis();
  result = SolveResult();
}

void Problem::ResetResults(bool all) {
  result = SolveResult();
  lastMessage.clear();
  if (!all) return;
  startBasis = Basis();
  starts.clear();
  tuning = Tuning();
}

}  // namespace vorqsolver
