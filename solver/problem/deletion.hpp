// Deleting items of each kind from the data of a problem. `deleted` is ascending, without duplicates and in range.
#pragma once

#include <span>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {

// The position of a member whose column was deleted, in a cone, exponential cone or indicator.
inline constexpr int kLostColumn = -1;

// Terms of deleted columns vanish from rows, quadratic terms, SOS, LMI constraints and affine cones. A cone, an
// exponential cone and an indicator cannot be without their columns: they keep their place with kLostColumn in it, so
// that whoever deletes both kinds of items can delete them one after the other.
void DeleteColumns(ProblemData& data, std::span<int const> deleted);

void DeleteRows(ProblemData& data, std::span<int const> deleted);

// Their terms vanish from PSD constraints, affine cones and the objective.
void DeletePsdColumns(ProblemData& data, std::span<int const> deleted);

// Fails with VORQ_INVALID where an item lost a column. Whoever solves or writes a problem asks this first.
void CheckNoLostColumns(ProblemData const& data);

}  // namespace vorqsolver
