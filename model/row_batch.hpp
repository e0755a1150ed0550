// RowBatch: many rows in flat arrays, as the batch functions of the solver library take them.
#pragma once

#include <string>
#include <vector>

#include "model/model.hpp"

namespace Vorq {

struct Model::RowBatch {
  std::vector<int> begins;
  std::vector<int> counts;
  std::vector<int> indices;
  std::vector<double> coeffs;
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

}  // namespace Vorq
