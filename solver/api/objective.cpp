// The C functions on the objective: sense, constant, linear, quadratic and PSD terms.
#include <algorithm>

#include "solver/api/item_kinds.hpp"
#include "solver/api/quadratic_terms.hpp"
#include "solver/api/reading.hpp"
#include "solver/api/symmetric_matrices.hpp"

using namespace vorqsolver;

namespace {

// One matrix a PSD column is all that can be read back.
void CheckOnceEach(std::vector<PsdTerm> const& terms) {
  std::vector<int> psdCols;
  psdCols.reserve(terms.size());
  for (auto const& term : terms) psdCols.push_back(term.psdCol);
  std::ranges::sort(psdCols);
  auto const twice = std::ranges::adjacent_find(psdCols);
  if (twice != psdCols.end()) Refuse(kPsdColumnKind.title, " ", *twice, " stands in the objective twice");
}

}  // namespace

int VORQ_SetObjSense(VORQ_Prob* prob, int sense) {
  return Edit(prob, [&](Problem& problem) {
    if (sense != VORQ_MINIMIZE && sense != VORQ_MAXIMIZE) Refuse("Unknown sense ", sense, " of the objective");
    problem.data.objective.sense = sense;
  });
}

int VORQ_SetObjConst(VORQ_Prob* prob, double constant) {
  return Edit(prob, [&](Problem& problem) {
    CheckCoefficient(constant, "constant");
    problem.data.objective.constant = constant;
  });
}

// Columns that are not mentioned get the coefficient 0; what is stated twice adds up.
int VORQ_ReplaceColObj(VORQ_Prob* prob, int count, int const* cols, double const* values) {
  return Edit(prob, [&](Problem& problem) {
    auto& objective = problem.data.columns.objective;
    auto const indices = List(count, cols, "cols");
    CheckIndices(indices, problem.data.columns.Count(), kColumnKind.title);
    CheckCoefficients(List(count, values, "values"), "values");
    std::ranges::fill(objective, 0.0);
    for (std::size_t k = 0; k < indices.size(); ++k) objective[static_cast<std::size_t>(indices[k])] += values[k];
  });
}

int VORQ_SetQuadObj(VORQ_Prob* prob, int count, int const* rows, int const* cols, double const* values) {
  return Edit(prob, [&](Problem& problem) {
    problem.data.objective.quadratic = QuadTerms(List(count, rows, "rows"), List(count, cols, "cols"),
                                                 List(count, values, "values"), problem.data.columns.Count());
  });
}

int VORQ_GetQuadObj(VORQ_Prob* prob, int* count, int* rows, int* cols, double* values) {
  return Guard(prob, [&](Problem& problem) {
    auto const& terms = problem.data.objective.quadratic;
    Store(count, static_cast<int>(terms.size()));
    StoreMembers(terms, &QuadTerm::row, rows);
    StoreMembers(terms, &QuadTerm::col, cols);
    StoreMembers(terms, &QuadTerm::value, values);
  });
}

int VORQ_DelQuadObj(VORQ_Prob* prob) {
  return Edit(prob, [](Problem& problem) { problem.data.objective.quadratic.clear(); });
}

int VORQ_ReplacePSDObj(VORQ_Prob* prob, int count, int const* psdCols, int const* symMats) {
  return Edit(prob, [&](Problem& problem) {
    auto terms = PsdTerms(problem.data, List(count, psdCols, "psdCols"), List(count, symMats, "symMats"));
    CheckOnceEach(terms);
    problem.data.objective.psd = std::move(terms);
  });
}

int VORQ_GetPSDObj(VORQ_Prob* prob, int psdCol, int* symMat) {
  return Guard(prob, [&](Problem& problem) {
    Need(symMat, "symMat");
    CheckIndex(psdCol, kPsdColumnKind.Count(problem), kPsdColumnKind.title);
    auto const& terms = problem.data.objective.psd;
    auto const found = std::ranges::find(terms, psdCol, &PsdTerm::psdCol);
    *symMat = found == terms.end() ? -1 : found->symMat;
  });
}

int VORQ_DelPSDObj(VORQ_Prob* prob) {
  return Edit(prob, [](Problem& problem) { problem.data.objective.psd.clear(); });
}
