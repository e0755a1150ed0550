// RowBatch: many rows in flat arrays, as the batch functions of the solver library take them.
#pragma once

#include <string>
#include <vector>

#include "model/model.hpp"

namespace Vorq {

// The terms of many lines behind each other.
struct Model::TermBatch {
  std::vector<int> begins;
  std::vector<int> counts;
  std::vector<int> indices;
  std::vector<double> coeffs;

  void Reserve(std::size_t lines, std::size_t terms) {
    begins.reserve(lines);
    counts.reserve(lines);
    indices.reserve(terms);
    coeffs.reserve(terms);
  }
};

struct Model::RowBatch : TermBatch {
  std::string senses;
  std::vector<double> lowers;
  std::vector<double> uppers;
  std::vector<char const*> names;

  // Hands the rows to one of the batch functions.
  template <class Function>
  int Add(Function add, VORQ_Prob* prob) const {
    return add(prob, static_cast<int>(begins.size()), begins.data(), counts.data(), indices.data(), coeffs.data(),
               senses.data(), lowers.data(), uppers.data(), names.data());
  }
};

template <class Terms>
void Model::Flatten(Terms& terms, int size, TermBatch& batch) {
  batch.begins.push_back(static_cast<int>(batch.indices.size()));
  Compact(terms, size, batch.indices);
  batch.coeffs.insert(batch.coeffs.end(), terms.coeffs.begin(), terms.coeffs.end());
  batch.counts.push_back(static_cast<int>(terms.Size()));
}

}  // namespace Vorq
