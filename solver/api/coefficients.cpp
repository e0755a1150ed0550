// The C functions on single coefficients of the linear rows.
#include "solver/api/arguments.hpp"
#include "solver/api/item_kinds.hpp"

using namespace vorqsolver;

int VORQ_GetElem(VORQ_Prob* prob, int col, int row, double* value) {
  return Guard(prob, [&](Problem& problem) {
    Need(value, "value");
    CheckIndex(col, problem.data.columns.Count(), kColumnKind.title);
    CheckIndex(row, problem.data.rows.Count(), kRowKind.title);
    *value = problem.data.rows.matrix.Get(row, col);
  });
}

int VORQ_SetElem(VORQ_Prob* prob, int col, int row, double value) {
  return VORQ_SetElems(prob, 1, &col, &row, &value);
}

// In the order stated, so that the last value of a coefficient holds; 0 removes it.
int VORQ_SetElems(VORQ_Prob* prob, int count, int const* cols, int const* rows, double const* values) {
  return Edit(prob, [&](Problem& problem) {
    CheckIndices(List(count, cols, "cols"), problem.data.columns.Count(), kColumnKind.title);
    CheckIndices(List(count, rows, "rows"), problem.data.rows.Count(), kRowKind.title);
    CheckCoefficients(List(count, values, "values"), "values");
    for (int place = 0; place < count; ++place) problem.data.rows.matrix.Set(rows[place], cols[place], values[place]);
  });
}
