// The writer of LP files.
#pragma once

#include "solver/files/file_model.hpp"

namespace vorqsolver {

// Fails with VORQ_INVALID where the problem has what an LP file cannot hold.
WrittenFile WriteLp(ProblemData const& data);

}  // namespace vorqsolver
