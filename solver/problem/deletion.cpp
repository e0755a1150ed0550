// What takes memory comes first, so that a deletion either happens whole or not at all.
#include "solver/problem/deletion.hpp"

#include <algorithm>
#include <vector>

#include "solver/problem/failure.hpp"
#include "solver/problem/remaining.hpp"

namespace vorqsolver {

namespace {

using Positions = std::vector<int>;

int At(Positions const& positions, int old) {
  return old < 0 ? old : positions[static_cast<std::size_t>(old)];
}

void MoveTerms(std::vector<LinearTerm>& terms, Positions const& positions) {
  for (auto& term : terms) term.col = At(positions, term.col);
  std::erase_if(terms, [](LinearTerm const& term) { return term.col < 0; });
}

void MoveTerms(std::vector<QuadTerm>& terms, Positions const& positions) {
  for (auto& term : terms) {
    term.row = At(positions, term.row);
    term.col = At(positions, term.col);
  }
  std::erase_if(terms, [](QuadTerm const& term) { return term.row < 0 || term.col < 0; });
}

void MoveTerms(std::vector<PsdTerm>& terms, Positions const& positions) {
  for (auto& term : terms) term.psdCol = At(positions, term.psdCol);
  std::erase_if(terms, [](PsdTerm const& term) { return term.psdCol < 0; });
}

// The lists of one value for each member go along with the members.
template <typename Companion>
void MoveMembers(std::vector<int>& members, std::vector<Companion>& companions, Positions const& positions) {
  std::size_t kept = 0;
  for (std::size_t k = 0; k < members.size(); ++k) {
    auto const position = At(positions, members[k]);
    if (position < 0) continue;
    members[kept] = position;
    if (!companions.empty()) companions[kept] = companions[k];
    ++kept;
  }
  members.resize(kept);
  if (!companions.empty()) companions.resize(kept);
}

bool HasLost(std::span<int const> cols) {
  return std::ranges::find(cols, kLostColumn) != cols.end();
}

[[noreturn]] void RefuseLost(char const* kind, std::size_t place) {
  Refuse(kind, " ", place, " lacks a column that was deleted; delete the ", kind, " too");
}

}  // namespace

void DeleteColumns(ProblemData& data, std::span<int const> deleted) {
  auto const positions = NewPositions(data.columns.Count(), deleted);
  auto const remaining = data.columns.Count() - static_cast<int>(deleted.size());
  SparseMatrix* const matrices[] = {&data.rows.matrix, &data.lazyConstraints.matrix, &data.userCuts.matrix};
  for (auto const* matrix : matrices) matrix->Pack();

  for (auto* matrix : matrices) matrix->MoveCols(positions, remaining);
  KeepRemaining(data.columns.lower, deleted);
  KeepRemaining(data.columns.upper, deleted);
  KeepRemaining(data.columns.objective, deleted);
  KeepRemaining(data.columns.type, deleted);
  data.columns.names.Delete(deleted);

  MoveTerms(data.objective.quadratic, positions);
  for (auto& sos : data.soss) MoveMembers(sos.cols, sos.weights, positions);
  for (auto& cone : data.cones) {
    for (auto& col : cone.cols) col = At(positions, col);
  }
  for (auto& cone : data.expCones) {
    for (auto& col : cone.cols) col = At(positions, col);
  }
  for (auto& indicator : data.indicators) {
    indicator.binCol = At(positions, indicator.binCol);
    MoveTerms(indicator.terms, positions);
  }
  for (auto& cone : data.affineCones) {
    for (auto& row : cone.rows) MoveTerms(row.linear, positions);
  }
  for (auto& constraint : data.quadConstraints) {
    MoveTerms(constraint.linear, positions);
    MoveTerms(constraint.quadratic, positions);
  }
  for (auto& constraint : data.psdConstraints) MoveTerms(constraint.linear, positions);
  for (auto& constraint : data.lmiConstraints) MoveMembers(constraint.cols, constraint.symMats, positions);
}

void DeleteRows(ProblemData& data, std::span<int const> deleted) {
  data.rows.matrix.DeleteRows(deleted);
  KeepRemaining(data.rows.lower, deleted);
  KeepRemaining(data.rows.upper, deleted);
  data.rows.names.Delete(deleted);
}

void DeletePsdColumns(ProblemData& data, std::span<int const> deleted) {
  auto const positions = NewPositions(static_cast<int>(data.psdDims.size()), deleted);
  KeepRemaining(data.psdDims, deleted);
  data.psdColNames.Delete(deleted);
  MoveTerms(data.objective.psd, positions);
  for (auto& constraint : data.psdConstraints) MoveTerms(constraint.psd, positions);
  for (auto& cone : data.affineCones) {
    for (auto& row : cone.rows) MoveTerms(row.psd, positions);
  }
}

void CheckNoLostColumns(ProblemData const& data) {
  for (std::size_t place = 0; place < data.cones.size(); ++place) {
    if (HasLost(data.cones[place].cols)) RefuseLost("cone", place);
  }
  for (std::size_t place = 0; place < data.expCones.size(); ++place) {
    if (HasLost(data.expCones[place].cols)) RefuseLost("exponential cone", place);
  }
  for (std::size_t place = 0; place < data.indicators.size(); ++place) {
    if (data.indicators[place].binCol == kLostColumn) RefuseLost("indicator constraint", place);
  }
}

}  // namespace vorqsolver
