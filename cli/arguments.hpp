// The command line, read into a record; every mistake is told by a message that names it.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace cli {

// A mistake on the command line; the tool prints its text and ends with kUsageError.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct SolveArguments {
  std::string file;
  std::optional<double> timeLimit;                            // seconds
  std::vector<std::pair<std::string, std::string>> settings;  // parameter name, value
  std::string solutionFile;                                   // empty: none is written
  bool json = false;
  bool help = false;
};

// Reads what follows `vorq solve`.
SolveArguments ParseSolveArguments(std::span<char const* const> arguments);

// Of `vorq iis` and `vorq relax`.
struct DiagnoseArguments : SolveArguments {
  std::string outputFile;  // the infeasible set, or the relaxed problem; empty: none is written
  bool rows = true;        // whether a relaxation may violate rows
  bool bounds = true;      // and bounds of columns
};

DiagnoseArguments ParseIisArguments(std::span<char const* const> arguments);
DiagnoseArguments ParseRelaxArguments(std::span<char const* const> arguments);

struct ConvertArguments {
  std::string input;
  std::string output;
  bool help = false;
};

// Reads what follows `vorq convert`.
ConvertArguments ParseConvertArguments(std::span<char const* const> arguments);

}  // namespace cli
