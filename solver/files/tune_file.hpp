// Tuning files (.tune): one line "Name Value [Value]..." for each parameter that tuning shall try, with the values to
// try; '#' starts a comment. A tuned set is written in the same form, which is that of a parameter file, too.
#pragma once

#include <string>
#include <vector>

#include "solver/problem/tuning.hpp"

namespace vorqsolver {

// Fails with VORQ_FILE, file, line and cause, also for values that the parameter cannot have.
std::vector<TuneChoice> ReadTuneFile(std::string const& path);

void WriteTunedSet(std::string const& path, TunedSet const& set);

}  // namespace vorqsolver
