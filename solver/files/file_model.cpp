// Terms, numbers and limits that the formats of problem files share.
#include "solver/files/file_model.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

// Adds up neighbours with equal keys; `terms` is sorted by key.
template <typename Term, typename Key>
void SumEqual(std::vector<Term>& terms, Key key) {
  std::size_t kept = 0;
  for (std::size_t k = 0; k < terms.size(); ++k) {
    if (kept > 0 && key(terms[kept - 1]) == key(terms[k])) {
      terms[kept - 1].value += terms[k].value;
    } else {
      terms[kept++] = terms[k];
    }
  }
  terms.resize(kept);
}

template <typename Term, typename Key>
std::vector<Term> Merged(std::vector<Term> terms, Key key) {
  std::stable_sort(terms.begin(), terms.end(), [&](Term const& a, Term const& b) { return key(a) < key(b); });
  SumEqual(terms, key);
  return terms;
}

}  // namespace

std::vector<LinearTerm> MergedTerms(std::vector<LinearTerm> const& terms) {
  return Merged(terms, [](LinearTerm const& term) { return term.col; });
}

std::vector<QuadTerm> MergedTerms(std::vector<QuadTerm> const& terms) {
  std::vector<QuadTerm> upper = terms;
  for (QuadTerm& term : upper) {
    if (term.row > term.col) std::swap(term.row, term.col);
  }
  return Merged(std::move(upper), [](QuadTerm const& term) { return std::pair(term.row, term.col); });
}

std::string NumberText(double value) {
  if (std::isnan(value)) Refuse("The problem has a value that is not a number");
  return ToText(std::clamp(value, -kInfinity, kInfinity));
}

std::string CoefficientText(double value) {
  if (std::abs(value) >= kInfinity) Refuse("The coefficient ", value, " is too large for a file");
  return NumberText(value);
}

void RefuseConicKinds(ProblemData const& data, char const* format) {
  std::pair<bool, char const*> const kinds[] = {
      {!data.cones.empty(), "cones"},
      {!data.expCones.empty(), "exponential cones"},
      {!data.affineCones.empty(), "affine cones"},
      {!data.psdDims.empty(), "PSD variables"},
      {!data.psdConstraints.empty(), "PSD constraints"},
      {!data.lmiConstraints.empty(), "LMI constraints"},
  };
  for (auto const& [present, kind] : kinds) {
    if (present) Refuse("An ", format, " file cannot hold ", kind);
  }
}

bool MakeBinary(Columns& columns, int col) {
  auto const j = static_cast<std::size_t>(col);
  char& type = columns.type[j];
  if (type == 'I' && columns.lower[j] >= 0.0 && columns.upper[j] <= 1.0) type = 'B';
  return type == 'B';
}

}  // namespace vorqsolver
