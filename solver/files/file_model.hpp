// What readers and writers of files give back, and what they share on terms and numbers.
#pragma once

#include <string>
#include <vector>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// Lines for the log: what was read otherwise than one may think, and names that were changed.
using Warnings = std::vector<std::string>;

struct ReadModel {
  ProblemData data;
  Warnings warnings;
};

struct WrittenFile {
  std::string text;
  Warnings warnings;
};

// One term for each column or pair of columns, in ascending order; pairs come with row <= col.
std::vector<LinearTerm> MergedTerms(std::vector<LinearTerm> const& terms);
std::vector<QuadTerm> MergedTerms(std::vector<QuadTerm> const& terms);

// As short as it can be and still read back the same. Fails with VORQ_INVALID for a value that is not a number.
std::string NumberText(double value);

// As NumberText, but also fails for what a reader would take as infinite, such as a sum of terms that are just finite.
std::string CoefficientText(double value);

// Fails with VORQ_INVALID where the problem has kinds of items that `format` cannot hold.
void RefuseConicKinds(ProblemData const& data, char const* format);

// Whether the column can switch an indicator: a binary one, or an integer one within 0 and 1, which becomes binary.
bool MakeBinary(Columns& columns, int col);

}  // namespace vorqsolver
