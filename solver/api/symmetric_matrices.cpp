// The C functions on symmetric matrices. The lower triangle is kept, by columns, without duplicates.
#include <algorithm>

#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"
#include "solver/api/symmetric_matrices.hpp"

namespace vorqsolver {

SymMatrix MakeSymMatrix(int dim, std::span<int const> rows, std::span<int const> cols, std::span<double const> values) {
  if (dim < 1) Refuse("A symmetric matrix cannot have the dimension ", dim);
  CheckIndices(rows, dim, "Matrix row");
  CheckIndices(cols, dim, "Matrix column");
  CheckCoefficients(values, "values");
  SymMatrix matrix;
  matrix.dim = dim;
  matrix.elements.resize(rows.size());
  for (std::size_t k = 0; k < rows.size(); ++k) {
    matrix.elements[k] = {std::max(rows[k], cols[k]), std::min(rows[k], cols[k]), values[k]};
  }
  auto const place = [](QuadTerm const& element) { return std::pair(element.col, element.row); };
  std::ranges::stable_sort(matrix.elements, {}, place);
  std::size_t kept = 0;
  for (auto const& element : matrix.elements) {
    if (kept > 0 && place(matrix.elements[kept - 1]) == place(element)) {
      matrix.elements[kept - 1].value += element.value;
    } else {
      matrix.elements[kept++] = element;
    }
  }
  matrix.elements.resize(kept);
  return matrix;
}

void CheckSymMatrix(ProblemData const& data, int symMat, int dim) {
  CheckIndex(symMat, static_cast<int>(data.symMatrices.size()), kSymMatrixTitle);
  auto const found = data.symMatrices[static_cast<std::size_t>(symMat)].dim;
  if (found != dim) Refuse(kSymMatrixTitle, " ", symMat, " has the dimension ", found, ", but ", dim, " is needed");
}

std::vector<PsdTerm> PsdTerms(ProblemData const& data, std::span<int const> psdCols, std::span<int const> symMats) {
  CheckIndices(psdCols, static_cast<int>(data.psdDims.size()), kPsdColumnKind.title);
  std::vector<PsdTerm> terms(psdCols.size());
  for (std::size_t k = 0; k < psdCols.size(); ++k) {
    CheckSymMatrix(data, symMats[k], data.psdDims[static_cast<std::size_t>(psdCols[k])]);
    terms[k] = {psdCols[k], symMats[k]};
  }
  return terms;
}

void ReplaceTerm(std::vector<PsdTerm>& terms, PsdTerm term) {
  auto const found = std::ranges::find(terms, term.psdCol, &PsdTerm::psdCol);
  if (found == terms.end()) {
    if (term.symMat != -1) terms.push_back(term);
    return;
  }
  found->symMat = term.symMat;
  auto const others =
      std::remove_if(found + 1, terms.end(), [&](PsdTerm const& other) { return other.psdCol == term.psdCol; });
  terms.erase(others, terms.end());
  if (term.symMat == -1) terms.erase(found);
}

}  // namespace vorqsolver

using namespace vorqsolver;

int VORQ_AddSymMat(VORQ_Prob* prob, int dim, int n, int const* rows, int const* cols, double const* values) {
  return Edit(prob, [&](Problem& problem) {
    problem.data.symMatrices.push_back(
        MakeSymMatrix(dim, List(n, rows, "rows"), List(n, cols, "cols"), List(n, values, "values")));
  });
}

int VORQ_GetSymMat(VORQ_Prob* prob, int index, int* dim, int* n, int* rows, int* cols, double* values) {
  return Guard(prob, [&](Problem& problem) {
    auto const& matrices = problem.data.symMatrices;
    CheckIndex(index, static_cast<int>(matrices.size()), kSymMatrixTitle);
    auto const& matrix = matrices[static_cast<std::size_t>(index)];
    Store(dim, matrix.dim);
    Store(n, static_cast<int>(matrix.elements.size()));
    StoreMembers(matrix.elements, &QuadTerm::row, rows);
    StoreMembers(matrix.elements, &QuadTerm::col, cols);
    StoreMembers(matrix.elements, &QuadTerm::value, values);
  });
}
