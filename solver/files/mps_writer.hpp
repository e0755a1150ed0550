// The writer of MPS files (free format).
#pragma once

#include "solver/files/file_model.hpp"

namespace vorqsolver {

// Fails with VORQ_INVALID where the problem has what an MPS file cannot hold.
WrittenFile WriteMps(ProblemData const& data);

}  // namespace vorqsolver
