// Rows as the C functions state them: one at a time, in batches and in bulk loads.
#pragma once

#include "solver/api/arguments.hpp"

namespace vorqsolver {

// Without senses a row lies between its bounds, infinite where their list is null. With senses, `lowers` are the
// right-hand sides, 0 where the list is null, and `uppers` the upper bounds of rows of sense 'R'.
struct RowBatch {
  Batch terms;
  int const* cols = nullptr;
  double const* coefs = nullptr;
  char const* senses = nullptr;
  double const* lowers = nullptr;
  double const* uppers = nullptr;
  char const* const* names = nullptr;
};

// The bounds of a row of the batch.
Range RangeOf(RowBatch const& batch, int place);

// Appends all rows, or fails and leaves the data as they were.
void AppendRows(Rows& rows, RowBatch const& batch);
void AppendRows(SideRows& rows, RowBatch const& batch);

}  // namespace vorqsolver
