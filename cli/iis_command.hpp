// vorq iis: reads an infeasible model and prints an irreducible infeasible set of it.
#pragma once

#include "cli/arguments.hpp"
#include "cli/outcome.hpp"

namespace cli {

inline constexpr char kIisUsage[] =
    "usage: vorq iis FILE [--time-limit S] [--set NAME=VALUE]... [--output OUT] [--json]\n"
    "\n"
    "  FILE                a model: .mps, .lp, .bin, .dat-s or .cbf, also with .gz\n"
    "  --time-limit S      stop after S seconds with the smallest set so far\n"
    "  --set NAME=VALUE    set a parameter, such as IISMethod=1\n"
    "  --output OUT        write the set to OUT, as a problem in LP format\n"
    "  --json              print one JSON object instead of the log\n";

// kOptimal where a set was found. Reports on standard output, a failure on standard error.
Outcome RunIis(DiagnoseArguments const& arguments);

}  // namespace cli
