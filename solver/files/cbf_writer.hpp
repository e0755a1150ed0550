// The writer of CBF files.
#pragma once

#include "solver/files/file_model.hpp"

namespace vorqsolver {

// Fails with VORQ_INVALID where the problem has what a CBF file cannot hold. Bounds and ranges for which the format has
// no domain become constraints behind the others.
WrittenFile WriteCbf(ProblemData const& data);

}  // namespace vorqsolver
