// The C functions that read the matrix back by rows and by columns.
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"

using namespace vorqsolver;

namespace {

// `view` is SparseMatrix::Row or SparseMatrix::Col.
int ReadMatrix(VORQ_Prob* prob, ItemKind const& kind, SparseMatrix::View (SparseMatrix::*view)(int) const, int count,
               int const* indices, int* begins, int* counts, int* positions, double* coefs, int capacity,
               int* required) {
  return Guard(prob, [&](Problem& problem) {
    Selection const items(count, indices, kind.Count(problem), kind.title);
    auto const& matrix = problem.data.rows.matrix;
    ReadRuns(
        items, begins, counts, {positions, coefs}, capacity, required,
        [&](int index) { return (matrix.*view)(index).indices.size(); },
        [&](int index, std::size_t begin) {
          auto const entries = (matrix.*view)(index);
          StoreAt(entries.indices, positions, begin);
          StoreAt(entries.values, coefs, begin);
        });
  });
}

}  // namespace

int VORQ_GetRows(VORQ_Prob* prob, int count, int const* indices, int* rowBeg, int* rowCnt, int* cols, double* coefs,
                 int capacity, int* required) {
  return ReadMatrix(prob, kRowKind, &SparseMatrix::Row, count, indices, rowBeg, rowCnt, cols, coefs, capacity,
                    required);
}

int VORQ_GetCols(VORQ_Prob* prob, int count, int const* indices, int* colBeg, int* colCnt, int* rows, double* coefs,
                 int capacity, int* required) {
  return ReadMatrix(prob, kColumnKind, &SparseMatrix::Col, count, indices, colBeg, colCnt, rows, coefs, capacity,
                    required);
}
