// vorq solve: reads a model, solves it, reports.
#pragma once

#include "cli/arguments.hpp"
#include "cli/outcome.hpp"

namespace cli {

inline constexpr char kSolveUsage[] =
    "usage: vorq solve FILE [--time-limit S] [--set NAME=VALUE]... [--solution OUT] [--json]\n"
    "\n"
    "  FILE                a model: .mps, .lp, .bin, .dat-s or .cbf, also with .gz\n"
    "  --time-limit S      stop after S seconds with the best solution found\n"
    "  --set NAME=VALUE    set a parameter, such as RelGap=0.01\n"
    "  --solution OUT      write the solution to OUT\n"
    "  --json              print one JSON object instead of the log\n";

// Runs the command and prints its report on standard output, a failure on standard error.
Outcome RunSolve(SolveArguments const& arguments);

}  // namespace cli
