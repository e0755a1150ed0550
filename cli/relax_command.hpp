// vorq relax: reads a model and finds the point that violates it the least.
#pragma once

#include "cli/arguments.hpp"
#include "cli/outcome.hpp"

namespace cli {

inline constexpr char kRelaxUsage[] =
    "usage: vorq relax FILE [--rows-only | --bounds-only] [--time-limit S] [--set NAME=VALUE]...\n"
    "                       [--solution OUT] [--output OUT] [--json]\n"
    "\n"
    "  FILE                a model: .mps, .lp, .bin, .dat-s or .cbf, also with .gz\n"
    "  --rows-only         keep the bounds of the columns\n"
    "  --bounds-only       keep the rows\n"
    "  --time-limit S      stop after S seconds with the best point found\n"
    "  --set NAME=VALUE    set a parameter, such as FeasRelaxMode=2\n"
    "  --solution OUT      write the point to OUT\n"
    "  --output OUT        write the relaxed problem to OUT, in LP format\n"
    "  --json              print one JSON object instead of the log\n";

// Runs the command and prints its report on standard output, a failure on standard error.
Outcome RunRelax(DiagnoseArguments const& arguments);

}  // namespace cli
