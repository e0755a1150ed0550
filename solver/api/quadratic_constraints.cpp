// The C functions on quadratic constraints.
#include "solver/api/append_items.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/quadratic_terms.hpp"
#include "solver/api/reading.hpp"

namespace vorqsolver {

std::vector<QuadTerm> QuadTerms(std::span<int const> rows, std::span<int const> cols, std::span<double const> values,
                                int colCount) {
  CheckIndices(rows, colCount, kColumnKind.title);
  CheckIndices(cols, colCount, kColumnKind.title);
  CheckCoefficients(values, "values");
  std::vector<QuadTerm> terms(rows.size());
  for (std::size_t k = 0; k < rows.size(); ++k) terms[k] = {rows[k], cols[k], values[k]};
  return terms;
}

}  // namespace vorqsolver

using namespace vorqsolver;

namespace {

// `give(constraint, place)` reads or writes one value of a constraint.
template <typename Frame, typename Give>
int ForEach(Frame frame, VORQ_Prob* prob, int count, int const* indices, void const* values, Give give) {
  return frame(prob, [&](Problem& problem) {
    Selection const items(count, indices, kQuadConstraintKind.Count(problem), kQuadConstraintKind.title);
    if (count > 0) Need(values, "values");
    for (int place = 0; place < count; ++place) {
      give(problem.data.quadConstraints[static_cast<std::size_t>(items[place])], place);
    }
  });
}

constexpr auto kReading = [](VORQ_Prob* prob, auto&& body) { return Guard(prob, body); };
constexpr auto kEditing = [](VORQ_Prob* prob, auto&& body) { return Edit(prob, body); };

}  // namespace

int VORQ_AddQConstr(VORQ_Prob* prob, int nLin, int const* linIdx, double const* linCoef, int nQuad, int const* qRow,
                    int const* qCol, double const* qCoef, int sense, double bound, char const* name) {
  return Edit(prob, [&](Problem& problem) {
    auto const cols = problem.data.columns.Count();
    CheckCoefficient(bound, "bound");
    AppendItem(problem.data.quadConstraints, problem.data.quadConstraintNames,
               QuadConstraint{
                   LinearTerms(nLin, linIdx, linCoef, cols),
                   QuadTerms(List(nQuad, qRow, "qRow"), List(nQuad, qCol, "qCol"), List(nQuad, qCoef, "qCoef"), cols),
                   ToComparison(sense), bound},
               name);
  });
}

// The capacity and the required size are those of each array, so the larger of the two counts.
int VORQ_GetQConstr(VORQ_Prob* prob, int index, int* nLin, int* linIdx, double* linCoef, int* nQuad, int* qRow,
                    int* qCol, double* qCoef, char* sense, double* bound, int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) {
    CheckIndex(index, kQuadConstraintKind.Count(problem), kQuadConstraintKind.title);
    auto const& constraint = problem.data.quadConstraints[static_cast<std::size_t>(index)];
    auto const size = std::max(constraint.linear.size(), constraint.quadratic.size());
    WantsTerms(size, {linIdx, linCoef, qRow, qCol, qCoef}, capacity, required);
    Store(nLin, static_cast<int>(constraint.linear.size()));
    Store(nQuad, static_cast<int>(constraint.quadratic.size()));
    StoreMembers(constraint.linear, &LinearTerm::col, linIdx);
    StoreMembers(constraint.linear, &LinearTerm::value, linCoef);
    StoreMembers(constraint.quadratic, &QuadTerm::row, qRow);
    StoreMembers(constraint.quadratic, &QuadTerm::col, qCol);
    StoreMembers(constraint.quadratic, &QuadTerm::value, qCoef);
    Store(sense, constraint.sense);
    Store(bound, constraint.rhs);
  });
}

int VORQ_GetQConstrSense(VORQ_Prob* prob, int count, int const* indices, char* senses) {
  return ForEach(kReading, prob, count, indices, senses,
                 [&](QuadConstraint const& constraint, int place) { senses[place] = constraint.sense; });
}

int VORQ_GetQConstrRhs(VORQ_Prob* prob, int count, int const* indices, double* rhss) {
  return ForEach(kReading, prob, count, indices, rhss,
                 [&](QuadConstraint const& constraint, int place) { rhss[place] = constraint.rhs; });
}

int VORQ_SetQConstrSense(VORQ_Prob* prob, int count, int const* indices, char const* senses) {
  auto const code = Guard(prob, [&] {
    for (auto const sense : List(count, senses, "senses")) ToComparison(sense);
  });
  if (code != VORQ_OK) return code;
  return ForEach(kEditing, prob, count, indices, senses,
                 [&](QuadConstraint& constraint, int place) { constraint.sense = senses[place]; });
}

int VORQ_SetQConstrRhs(VORQ_Prob* prob, int count, int const* indices, double const* rhss) {
  auto const code = Guard(prob, [&] { CheckCoefficients(List(count, rhss, "rhss"), "rhss"); });
  if (code != VORQ_OK) return code;
  return ForEach(kEditing, prob, count, indices, rhss,
                 [&](QuadConstraint& constraint, int place) { constraint.rhs = rhss[place]; });
}
