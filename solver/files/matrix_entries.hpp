// MatrixEntries: entries of symmetric matrices as formats state them, one by one in any order, until they become the
// matrices of a problem.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "solver/files/text_source.hpp"
#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// An entry of the matrix that a member has in an owner, such as a column in an LMI constraint.
struct MatrixEntry {
  int owner;
  int member;
  int row;
  int col;
  double value;
  std::size_t line;
};

// Adds one matrix for each owner and member, in this order, and tells each to `use`. An entry and its mirror image are
// the same; one that is stated twice is refused with its line.
void AppendMatrices(std::vector<SymMatrix>& matrices, std::vector<MatrixEntry> entries, TextSource const& source,
                    std::function<int(MatrixEntry const&)> const& dimension,
                    std::function<void(MatrixEntry const& first, int matrix)> const& use);

}  // namespace vorqsolver
