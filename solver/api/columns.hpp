// Columns as the C functions state them: one at a time, in batches and in bulk loads.
#pragma once

#include "solver/api/arguments.hpp"

namespace vorqsolver {

// Any list may be null: bounds are then 0 and infinite, objective coefficients 0, types 'C', names empty.
struct ColumnBatch {
  Batch terms;
  int const* rows = nullptr;
  double const* coefs = nullptr;
  double const* objs = nullptr;
  char const* types = nullptr;
  double const* lowers = nullptr;
  double const* uppers = nullptr;
  char const* const* names = nullptr;
};

// Appends all columns, or fails and leaves the data as they were.
void AppendColumns(ProblemData& data, ColumnBatch const& batch);

// Fails with "An SOS constraint has column 7 twice" and the like; `item` is what has the columns.
void CheckDistinct(std::span<int const> cols, char const* item);

}  // namespace vorqsolver
