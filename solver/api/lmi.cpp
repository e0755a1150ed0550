// The C functions on LMI constraints.
#include "solver/api/append_items.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"
#include "solver/api/symmetric_matrices.hpp"

using namespace vorqsolver;

namespace {

LmiConstraint& CheckedConstraint(Problem& problem, int index) {
  CheckIndex(index, kLmiConstraintKind.Count(problem), kLmiConstraintKind.title);
  return problem.data.lmiConstraints[static_cast<std::size_t>(index)];
}

// -1 stands for no matrix.
void CheckMatrixOrNone(ProblemData const& data, int symMat, int dim) {
  if (symMat != -1) CheckSymMatrix(data, symMat, dim);
}

// Drops the terms of `col` from `begin` on.
void DropTerms(LmiConstraint& constraint, int col, std::size_t begin) {
  auto kept = begin;
  for (auto k = begin; k < constraint.cols.size(); ++k) {
    if (constraint.cols[k] == col) continue;
    constraint.cols[kept] = constraint.cols[k];
    constraint.symMats[kept++] = constraint.symMats[k];
  }
  constraint.cols.resize(kept);
  constraint.symMats.resize(kept);
}

}  // namespace

int VORQ_AddLMIConstr(VORQ_Prob* prob, int dim, int n, int const* cols, int const* symMats, int constant,
                      char const* name) {
  return Edit(prob, [&](Problem& problem) {
    if (dim < 1) Refuse("An LMI constraint cannot have the dimension ", dim);
    auto const members = List(n, cols, "cols");
    auto const matrices = List(n, symMats, "symMats");
    CheckIndices(members, problem.data.columns.Count(), kColumnKind.title);
    for (auto const matrix : matrices) CheckSymMatrix(problem.data, matrix, dim);
    CheckMatrixOrNone(problem.data, constant, dim);
    AppendItem(problem.data.lmiConstraints, problem.data.lmiConstraintNames,
               LmiConstraint{dim, {members.begin(), members.end()}, {matrices.begin(), matrices.end()}, constant},
               name);
  });
}

int VORQ_GetLMIConstr(VORQ_Prob* prob, int index, int* dim, int* n, int* cols, int* symMats, int* constant,
                      int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) {
    auto const& constraint = CheckedConstraint(problem, index);
    WantsTerms(constraint.cols.size(), {cols, symMats}, capacity, required);
    Store(dim, constraint.dim);
    Store(n, static_cast<int>(constraint.cols.size()));
    StoreAt(constraint.cols, cols, 0);
    StoreAt(constraint.symMats, symMats, 0);
    Store(constant, constraint.constant);
  });
}

// -1 where the constraint has no term of the column.
int VORQ_GetLMIElem(VORQ_Prob* prob, int col, int constr, int* symMat) {
  return Guard(prob, [&](Problem& problem) {
    Need(symMat, "symMat");
    CheckIndex(col, problem.data.columns.Count(), kColumnKind.title);
    auto const& constraint = CheckedConstraint(problem, constr);
    auto const found = std::ranges::find(constraint.cols, col) - constraint.cols.begin();
    auto const place = static_cast<std::size_t>(found);
    *symMat = place == constraint.cols.size() ? -1 : constraint.symMats[place];
  });
}

// Replaces all terms of the column by one; the matrix -1 removes them.
int VORQ_SetLMIElem(VORQ_Prob* prob, int col, int constr, int symMat) {
  return Edit(prob, [&](Problem& problem) {
    CheckIndex(col, problem.data.columns.Count(), kColumnKind.title);
    auto& constraint = CheckedConstraint(problem, constr);
    CheckMatrixOrNone(problem.data, symMat, constraint.dim);
    auto const place = static_cast<std::size_t>(std::ranges::find(constraint.cols, col) - constraint.cols.begin());
    if (symMat == -1) {
      DropTerms(constraint, col, place);
    } else if (place < constraint.cols.size()) {
      constraint.symMats[place] = symMat;
      DropTerms(constraint, col, place + 1);
    } else {
      ReserveMore(constraint.cols, 1);
      constraint.symMats.push_back(symMat);
      constraint.cols.push_back(col);
    }
  });
}

int VORQ_GetLMIConstrRhs(VORQ_Prob* prob, int count, int const* indices, int* symMats) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kLmiConstraintKind.Count(problem), kLmiConstraintKind.title);
    if (count > 0) Need(symMats, "symMats");
    StoreEach(items, symMats,
              [&](int index) { return problem.data.lmiConstraints[static_cast<std::size_t>(index)].constant; });
  });
}

int VORQ_SetLMIConstrRhs(VORQ_Prob* prob, int count, int const* indices, int const* symMats) {
  return Edit(prob, [&](Problem& problem) {
    Selection const items(count, indices, kLmiConstraintKind.Count(problem), kLmiConstraintKind.title);
    List(count, symMats, "symMats");
    auto const constraint = [&](int place) -> LmiConstraint& {
      return problem.data.lmiConstraints[static_cast<std::size_t>(items[place])];
    };
    for (int place = 0; place < count; ++place) {
      CheckMatrixOrNone(problem.data, symMats[place], constraint(place).dim);
    }
    for (int place = 0; place < count; ++place) constraint(place).constant = symMats[place];
  });
}
