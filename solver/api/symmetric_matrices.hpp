// PSD columns, symmetric matrices, and the terms that join them, checked.
#pragma once

#include <span>
#include <vector>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// An entry above the diagonal is its mirror image; duplicates add up. Elements come out by columns.
SymMatrix MakeSymMatrix(int dim, std::span<int const> rows, std::span<int const> cols, std::span<double const> values);

// Fails unless there is such a matrix of that dimension.
void CheckSymMatrix(ProblemData const& data, int symMat, int dim);

// Appends all of them, or fails and leaves the data as they were.
void AppendPsdColumns(ProblemData& data, std::span<int const> dims, char const* const* names);

// Inner products of PSD columns with matrices of their dimensions.
std::vector<PsdTerm> PsdTerms(ProblemData const& data, std::span<int const> psdCols, std::span<int const> symMats);

// The one term of a PSD column takes the place of all its terms; the matrix -1 removes them.
void ReplaceTerm(std::vector<PsdTerm>& terms, PsdTerm term);

}  // namespace vorqsolver
