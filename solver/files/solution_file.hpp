// Solution files (.sol) and MIP start files (.mst): one line "name value" for each column; lines that begin with '#'
// are comments.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"
#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// One value for each column, VORQ_UNDEFINED where the file has none. Fails with VORQ_FILE for a malformed line and
// with VORQ_INVALID for a name that no column has.
struct ReadValues {
  std::vector<double> values;
  int count = 0;  // of the columns that the file names
};
ReadValues ReadSolution(TextSource const& source, ProblemData const& data);

// Open values are left out; the objective value, where there is one, stands in a comment in front. Warnings tell of
// names that were changed.
WrittenFile WriteSolution(ProblemData const& data, std::span<double const> values, std::optional<double> objective);

}  // namespace vorqsolver
