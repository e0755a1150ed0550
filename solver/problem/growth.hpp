// Growing a flat list of a problem.
#pragma once

#include "frame/growth.hpp"

namespace vorqsolver {

using Vorq::ReserveMore;

}  // namespace vorqsolver
