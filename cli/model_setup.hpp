// SetUpModel: the first steps of each command on one model: read it, set the parameters.
#pragma once

#include "cli/arguments.hpp"
#include "cli/session.hpp"

namespace cli {

// Fails with CommandFailure, which names the file or the setting.
void SetUpModel(Session& session, SolveArguments const& arguments);

}  // namespace cli
