// Sums over all elements of a matrix that do not depend on their order: two models with one sum are taken to be equal.
#pragma once

#include <cstdint>
#include <vector>

#include "bench/raw_model.hpp"

namespace bench {

inline double Fingerprint(std::int64_t row, std::int64_t col, double value) {
  return value * (1.0 + static_cast<double>((row * 31 + col * 17) % 1009));
}

inline double Fingerprint(RawArrays const& arrays) {
  double sum = 0.0;
  for (std::int64_t i = 0; i < arrays.rows; ++i) {
    for (int k = arrays.begins[i]; k < arrays.begins[i + 1]; ++k) {
      sum += Fingerprint(i, arrays.indices[k], arrays.values[k]);
    }
  }
  return sum;
}

// Of a model through its interface or its implementation.
template <class Model>
requires requires(Model& model) {
  model.GetIntAttr("Elems");
}
double Fingerprint(Model& model) {
  int const cols = model.GetIntAttr("Cols");
  int const elements = model.GetIntAttr("Elems");
  std::vector<int> begin(cols), count(cols), index(elements);
  std::vector<double> value(elements);
  model.GetCols(begin.data(), count.data(), index.data(), value.data());
  double sum = 0.0;
  for (int j = 0; j < cols; ++j) {
    for (int k = begin[j]; k < begin[j] + count[j]; ++k) sum += Fingerprint(index[k], j, value[k]);
  }
  return sum;
}

}  // namespace bench
