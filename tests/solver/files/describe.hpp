// Describe: a problem as lines of text, so that tests compare whole problems; the order of terms does not matter.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "solver/files/file_model.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver::test {

// The name, or the number where there is none.
inline std::string ColumnName(ProblemData const& data, int col) {
  auto const name = data.columns.names.Get(col);
  return name.empty() ? Text("#", col) : std::string(name);
}

inline std::string Terms(ProblemData const& data, std::vector<LinearTerm> const& terms) {
  std::string text;
  for (auto const& term : MergedTerms(terms)) text += Text(" ", term.value, "*", ColumnName(data, term.col));
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
    text += Text(" ", term.value, "*", ColumnName(data, term.row), "*", ColumnName(data, term.col));
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

inline std::string Matrix(ProblemData const& data, int matrix) {
  if (matrix < 0) return " none";
  SymMatrix const& found = data.symMatrices[static_cast<std::size_t>(matrix)];
  std::string text = Text(" ", found.dim, "x", found.dim);
  for (QuadTerm const& element : found.elements) text += Text(" (", element.row, ",", element.col, ")", element.value);
  return text;
}

inline std::string Terms(ProblemData const& data, std::vector<PsdTerm> const& terms) {
  std::string text;
  for (PsdTerm const& term : terms) text += Text(" X", term.psdCol, "*[", Matrix(data, term.symMat), "]");
  return text;
}

// Cones, PSD variables and constraints, LMI constraints; empty for a problem without them.
inline std::string DescribeConic(ProblemData const& data) {
  std::string text = Terms(data, data.objective.psd);
  if (!text.empty()) text = Text("psd objective", text, "\n");
  auto const members = [&](int type, auto const& cols) {
    text += Text("cone", type);
    for (int const col : cols) text += Text(" ", ColumnName(data, col));
    text += "\n";
  };
  for (Cone const& cone : data.cones) members(cone.type, cone.cols);
  for (ExpCone const& cone : data.expCones) members(cone.type, cone.cols);
  for (std::size_t k = 0; k < data.affineCones.size(); ++k) {
    text += Text("affine cone", data.affineCones[k].type, " ", data.affineConeNames.Get(static_cast<int>(k)), "\n");
    for (AffineRow const& row : data.affineCones[k].rows) {
      text += Text("  ", row.constant, Terms(data, row.linear), Terms(data, row.psd), "\n");
    }
  }
  for (std::size_t k = 0; k < data.psdDims.size(); ++k) {
    text += Text("psd ", data.psdColNames.Get(static_cast<int>(k)), " ", data.psdDims[k], "\n");
  }
  for (std::size_t k = 0; k < data.psdConstraints.size(); ++k) {
    PsdConstraint const& constraint = data.psdConstraints[k];
    text += Text("psd row ", data.psdConstraintNames.Get(static_cast<int>(k)), " [", constraint.lower, ",",
                 constraint.upper, "]", Terms(data, constraint.linear), Terms(data, constraint.psd), "\n");
  }
  for (std::size_t k = 0; k < data.lmiConstraints.size(); ++k) {
    LmiConstraint const& lmi = data.lmiConstraints[k];
    text += Text("lmi ", data.lmiConstraintNames.Get(static_cast<int>(k)), " ", lmi.dim, " constant",
                 Matrix(data, lmi.constant));
    for (std::size_t t = 0; t < lmi.cols.size(); ++t) {
      text += Text(" ", ColumnName(data, lmi.cols[t]), "*[", Matrix(data, lmi.symMats[t]), "]");
    }
    text += "\n";
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
    text += Text("indicator ", data.indicatorNames.Get(static_cast<int>(k)), " ", ColumnName(data, indicator.binCol),
                 "=", indicator.binVal, Terms(data, indicator.terms), " ", indicator.sense, " ", indicator.rhs, "\n");
  }
  for (auto const& sos : data.soss) {
    text += Text("sos", sos.type);
    for (std::size_t m = 0; m < sos.cols.size(); ++m) {
      text += Text(" ", ColumnName(data, sos.cols[m]), ":", sos.weights.empty() ? 0.0 : sos.weights[m]);
    }
    text += "\n";
  }
  return text + DescribeRows(data, data.lazyConstraints, "lazy") + DescribeRows(data, data.userCuts, "cut") +
         DescribeConic(data);
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
