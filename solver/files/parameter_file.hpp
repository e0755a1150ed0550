// Parameter files (.par): one line "Name Value" a parameter; '#' starts a comment, empty lines are skipped. Names are
// found in any mix of case.
#pragma once

#include <string>

#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {

// `base` with the parameters that the file names. Fails with VORQ_FILE, file, line and cause.
ParameterSet ReadParameterFile(std::string const& path, ParameterSet const& base);

// Writes the parameters that differ from their defaults, so that they read back to the last digit.
void WriteParameterFile(std::string const& path, ParameterSet const& parameters);

}  // namespace vorqsolver
