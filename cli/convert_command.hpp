// vorq convert: reads a model and writes it in another format.
#pragma once

#include "cli/arguments.hpp"
#include "cli/outcome.hpp"

namespace cli {

inline constexpr char kConvertUsage[] =
    "usage: vorq convert IN OUT\n"
    "\n"
    "  IN     a model: .mps, .lp, .bin, .dat-s or .cbf, also with .gz\n"
    "  OUT    the file to write: .mps, .lp, .bin, .cbf or .nl, packed with .gz\n";

// Runs the command; prints what could not be kept, such as names, and a failure on standard error.
Outcome RunConvert(ConvertArguments const& arguments);

}  // namespace cli
