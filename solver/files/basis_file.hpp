// Basis files (.bas) in the MPS form: XU, XL, UL and LL lines; what is not named is a basic row or a column at its
// lower bound.
#pragma once

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"
#include "solver/problem/problem_data.hpp"
#include "solver/problem/solution.hpp"

namespace vorqsolver {

// Nonbasic items with equal bounds come back as kFixed, free ones as kSuperBasic. Fails with VORQ_FILE for a malformed
// file and with VORQ_INVALID for a name that the problem does not have.
Basis ReadBasisFile(TextSource const& source, ProblemData const& data);

// Fails with VORQ_INVALID where the basis does not fit the problem or has another number of basic items than rows.
// Warnings tell of names that were changed.
WrittenFile WriteBasisFile(ProblemData const& data, Basis const& basis);

}  // namespace vorqsolver
