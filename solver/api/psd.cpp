// The C functions on PSD columns and PSD constraints.
#include "solver/api/append_items.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"
#include "solver/api/symmetric_matrices.hpp"
#include "solver/problem/largest_dimension.hpp"

namespace vorqsolver {

void AppendPsdColumns(ProblemData& data, std::span<int const> dims, char const* const* names) {
  for (auto const dim : dims) {
    if (dim < 1 || dim > kLargestDimension) Refuse("A PSD column cannot have the dimension ", dim);
  }
  AppendItems(data.psdDims, data.psdColNames, std::vector<int>(dims.begin(), dims.end()), names);
}

}  // namespace vorqsolver

using namespace vorqsolver;

namespace {

int SetBounds(VORQ_Prob* prob, int count, int const* indices, double const* values, double PsdConstraint::*bound) {
  return Edit(prob, [&](Problem& problem) {
    Selection const items(count, indices, kPsdConstraintKind.Count(problem), kPsdConstraintKind.title);
    CheckBounds(List(count, values, "values"), "values");
    for (int place = 0; place < count; ++place) {
      problem.data.psdConstraints[static_cast<std::size_t>(items[place])].*bound = ToBound(values[place]);
    }
  });
}

PsdConstraint& CheckedConstraint(Problem& problem, int psdCol, int constr) {
  CheckIndex(psdCol, kPsdColumnKind.Count(problem), kPsdColumnKind.title);
  CheckIndex(constr, kPsdConstraintKind.Count(problem), kPsdConstraintKind.title);
  return problem.data.psdConstraints[static_cast<std::size_t>(constr)];
}

}  // namespace

int VORQ_AddPSDCol(VORQ_Prob* prob, int dim, char const* name) {
  return VORQ_AddPSDCols(prob, 1, &dim, &name);
}

int VORQ_AddPSDCols(VORQ_Prob* prob, int count, int const* dims, char const* const* names) {
  return Edit(prob, [&](Problem& problem) { AppendPsdColumns(problem.data, List(count, dims, "dims"), names); });
}

int VORQ_GetPSDCols(VORQ_Prob* prob, int count, int const* indices, int* dims, int* lens) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kPsdColumnKind.Count(problem), kPsdColumnKind.title);
    auto const dim = [&](int index) { return problem.data.psdDims[static_cast<std::size_t>(index)]; };
    StoreEach(items, dims, dim);
    StoreEach(items, lens, [&](int index) { return dim(index) * dim(index); });
  });
}

int VORQ_AddPSDConstr(VORQ_Prob* prob, int nLin, int const* linIdx, double const* linCoef, int nPsd, int const* psdCols,
                      int const* symMats, int sense, double bound, double upper, char const* name) {
  return Edit(prob, [&](Problem& problem) {
    auto const range = ToRange(sense, bound, upper);
    AppendItem(problem.data.psdConstraints, problem.data.psdConstraintNames,
               PsdConstraint{LinearTerms(nLin, linIdx, linCoef, problem.data.columns.Count()),
                             PsdTerms(problem.data, List(nPsd, psdCols, "psdCols"), List(nPsd, symMats, "symMats")),
                             range.lower, range.upper},
               name);
  });
}

// The capacity and the required size are those of each array, so the larger of the two counts.
int VORQ_GetPSDConstr(VORQ_Prob* prob, int index, int* nLin, int* linIdx, double* linCoef, int* nPsd, int* psdCols,
                      int* symMats, double* lower, double* upper, int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) {
    CheckIndex(index, kPsdConstraintKind.Count(problem), kPsdConstraintKind.title);
    auto const& constraint = problem.data.psdConstraints[static_cast<std::size_t>(index)];
    auto const size = std::max(constraint.linear.size(), constraint.psd.size());
    WantsTerms(size, {linIdx, linCoef, psdCols, symMats}, capacity, required);
    Store(nLin, static_cast<int>(constraint.linear.size()));
    Store(nPsd, static_cast<int>(constraint.psd.size()));
    StoreMembers(constraint.linear, &LinearTerm::col, linIdx);
    StoreMembers(constraint.linear, &LinearTerm::value, linCoef);
    StoreMembers(constraint.psd, &PsdTerm::psdCol, psdCols);
    StoreMembers(constraint.psd, &PsdTerm::symMat, symMats);
    Store(lower, constraint.lower);
    Store(upper, constraint.upper);
  });
}

int VORQ_SetPSDConstrLower(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return SetBounds(prob, count, indices, values, &PsdConstraint::lower);
}

int VORQ_SetPSDConstrUpper(VORQ_Prob* prob, int count, int const* indices, double const* values) {
  return SetBounds(prob, count, indices, values, &PsdConstraint::upper);
}

// -1 where the constraint has no term of the PSD column.
int VORQ_GetPSDElem(VORQ_Prob* prob, int psdCol, int constr, int* symMat) {
  return Guard(prob, [&](Problem& problem) {
    Need(symMat, "symMat");
    auto const& terms = CheckedConstraint(problem, psdCol, constr).psd;
    auto const found = std::ranges::find(terms, psdCol, &PsdTerm::psdCol);
    *symMat = found == terms.end() ? -1 : found->symMat;
  });
}

// Replaces all terms of the PSD column by one; the matrix -1 removes them.
int VORQ_SetPSDElem(VORQ_Prob* prob, int psdCol, int constr, int symMat) {
  return Edit(prob, [&](Problem& problem) {
    auto& terms = CheckedConstraint(problem, psdCol, constr).psd;
    if (symMat != -1) {
      CheckSymMatrix(problem.data, symMat, problem.data.psdDims[static_cast<std::size_t>(psdCol)]);
    }
    ReplaceTerm(terms, {psdCol, symMat});
  });
}
