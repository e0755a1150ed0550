// Describe: a problem as lines of text, so that tests compare whole problems; the order of terms does not matter.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "solver/files/file_model.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver::test {

inline std::string Terms(ProblemData const& data, std::vector<LinearTerm> const& terms) {
  std::string text;
  for (auto const& term : MergedTerms(terms)) text += Text(" ", term.value, "*", data.columns.names.Get(term.col));
  return text;
}

inline std::string Terms(ProblemData const& data, SparseMatrix::View row) {
  std::vector<LinearTerm> terms;
  for (std::size_t k = 0; k < row.indices.size(); ++k) terms.push_back({row.indices[k], row.values[k]});
  return Terms(data, terms);
}

inline std::string Products(ProblemData const& data, std::vector<QuadTerm> const& terms) {
  std::string text;
  for (auto const& term : MergedTerms(terms)) {
    text += Text(" ", term.value, "*", data.columns.names.Get(term.row), "*", data.columns.names.Get(term.col));
  }
  return text;
}

template <typename AnyRows>
std::string DescribeRows(ProblemData const& data, AnyRows const& rows, char const* kind) {
  std::string text;
  for (int i = 0; i < rows.Count(); ++i) {
    auto const k = static_cast<std::size_t>(i);
    text += Text(kind, " ", rows.names.Get(i), " [", rows.lower[k], ",", rows.upper[k], "]",
                 Terms(data, rows.matrix.Row(i)), "\n");
  }
  return text;
}

// Lines: sense and constant of the objective; columns with type, bounds, objective; rows; the other kinds.
inline std::string Describe(ProblemData const& data) {
  std::string text = Text(data.objective.sense > 0 ? "min " : "max ", data.objective.constant,
                          Products(data, data.objective.quadratic), "\n");
  for (int j = 0; j < data.columns.Count(); ++j) {
    auto const k = static_cast<std::size_t>(j);
    text += Text("col ", data.columns.names.Get(j), " ", data.columns.type[k], " [", data.columns.lower[k], ",",
                 data.columns.upper[k], "] ", data.columns.objective[k], "\n");
  }
  text += DescribeRows(data, data.rows, "row");
  for (std::size_t k = 0; k < data.quadConstraints.size(); ++k) {
    auto const& constraint = data.quadConstraints[k];
    text += Text("quad ", data.quadConstraintNames.Get(static_cast<int>(k)), Terms(data, constraint.linear), " |",
                 Products(data, constraint.quadratic), " ", constraint.sense, " ", constraint.rhs, "\n");
  }
  for (std::size_t k = 0; k < data.indicators.size(); ++k) {
    auto const& indicator = data.indicators[k];
    text +=
        Text("indicator ", data.indicatorNames.Get(static_cast<int>(k)), " ", data.columns.names.Get(indicator.binCol),
             "=", indicator.binVal, Terms(data, indicator.terms), " ", indicator.sense, " ", indicator.rhs, "\n");
  }
  for (auto const& sos : data.soss) {
    text += Text("sos", sos.type);
    for (std::size_t m = 0; m < sos.cols.size(); ++m) {
      text += Text(" ", data.columns.names.Get(sos.cols[m]), ":", sos.weights.empty() ? 0.0 : sos.weights[m]);
    }
    text += "\n";
  }
  return text + DescribeRows(data, data.lazyConstraints, "lazy") + DescribeRows(data, data.userCuts, "cut");
}

// The text of the failure of `body`; empty if it does not fail.
template <typename Body>
std::string FailureOf(Body body) {
  try {
    body();
    return {};
  } catch (Failure const& failure) {
    return failure.what();
  }
}

}  // namespace vorqsolver::test
