// The writer of NL files, the text form that solvers of the AMPL language read.
#pragma once

#include "solver/files/file_model.hpp"

namespace vorqsolver {

// Fails with VORQ_INVALID where the problem has more than linear and quadratic parts over continuous, binary and
// integer columns.
WrittenFile WriteNl(ProblemData const& data);

}  // namespace vorqsolver
