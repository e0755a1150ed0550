// The baseline of the benchmarks: a model written straight into arrays of exact size, merged by hand through a stamp
// array where a column stands twice in a row, and handed over once with a copy.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "bench/generators.hpp"

namespace bench {

struct RawView;

struct RawArrays {
  std::unique_ptr<double[]> colLower, colUpper, objective, rowLower, rowUpper, values;
  std::unique_ptr<char[]> types;
  std::unique_ptr<int[]> begins, indices;
  std::int64_t cols = 0, rows = 0, elements = 0;

  void Allocate(std::int64_t colCount, std::int64_t rowCount, std::int64_t elementCount) {
    colLower.reset(new double[colCount]);
    colUpper.reset(new double[colCount]);
    objective.reset(new double[colCount]);
    types.reset(new char[colCount]);
    rowLower.reset(new double[rowCount]);
    rowUpper.reset(new double[rowCount]);
    begins.reset(new int[rowCount + 1]);
    indices.reset(new int[elementCount]);
    values.reset(new double[elementCount]);
  }

  RawView View() const;
};

// Finished arrays of a model, wherever they lie.
struct RawView {
  double const *colLower, *colUpper, *objective, *rowLower, *rowUpper, *values;
  char const* types;
  int const *begins, *indices;
  std::int64_t cols, rows, elements;

  // The hand-over: one copy of everything.
  RawArrays Copy() const {
    RawArrays copy;
    copy.Allocate(cols, rows, elements);
    copy.cols = cols;
    copy.rows = rows;
    copy.elements = elements;
    std::memcpy(copy.colLower.get(), colLower, sizeof(double) * cols);
    std::memcpy(copy.colUpper.get(), colUpper, sizeof(double) * cols);
    std::memcpy(copy.objective.get(), objective, sizeof(double) * cols);
    std::memcpy(copy.types.get(), types, cols);
    std::memcpy(copy.rowLower.get(), rowLower, sizeof(double) * rows);
    std::memcpy(copy.rowUpper.get(), rowUpper, sizeof(double) * rows);
    std::memcpy(copy.begins.get(), begins, sizeof(int) * (rows + 1));
    std::memcpy(copy.indices.get(), indices, sizeof(int) * elements);
    std::memcpy(copy.values.get(), values, sizeof(double) * elements);
    return copy;
  }
};

inline RawView RawArrays::View() const {
  return {.colLower = colLower.get(),
          .colUpper = colUpper.get(),
          .objective = objective.get(),
          .rowLower = rowLower.get(),
          .rowUpper = rowUpper.get(),
          .values = values.get(),
          .types = types.get(),
          .begins = begins.get(),
          .indices = indices.get(),
          .cols = cols,
          .rows = rows,
          .elements = elements};
}

class RawSink {
 public:
  void Reserve(std::int64_t cols, std::int64_t rows, std::int64_t terms) {
    arrays_.Allocate(cols, rows, terms);
    arrays_.begins[0] = 0;
  }
  void Col(double lower, double upper, double objective, bool isInteger) {
    arrays_.colLower[arrays_.cols] = lower;
    arrays_.colUpper[arrays_.cols] = upper;
    arrays_.objective[arrays_.cols] = objective;
    arrays_.types[arrays_.cols++] = isInteger ? 'B' : 'C';
  }
  void EndCols() {}
  void Row(double lower, double upper, int count, int const* cols, double const* coefs) {
    int* indices = arrays_.indices.get() + arrays_.elements;
    double* values = arrays_.values.get() + arrays_.elements;
    int kept = 0;
    for (int k = 0; k < count; ++k) {
      int at = 0;
      while (at < kept && count <= 8 && indices[at] != cols[k]) ++at;
      if (count > 8) at = kept;
      if (at == kept) {
        indices[kept] = cols[k];
        values[kept++] = coefs[k];
      } else {
        values[at] += coefs[k];
      }
    }
    arrays_.elements += kept;
    arrays_.rowLower[arrays_.rows] = lower;
    arrays_.rowUpper[arrays_.rows] = upper;
    arrays_.begins[++arrays_.rows] = static_cast<int>(arrays_.elements);
  }

  RawArrays const& Arrays() const { return arrays_; }

 private:
  RawArrays arrays_;
};

}  // namespace bench
