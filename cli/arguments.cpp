// Reading the command lines of `vorq solve` and `vorq convert`.
#include "cli/arguments.hpp"

#include <cmath>
#include <string_view>

#include "cli/numbers.hpp"

namespace cli {
namespace {

std::pair<std::string, std::string> SplitSetting(std::string const& text) {
  std::size_t const equals = text.find('=');
  if (equals == std::string::npos || equals == 0 || equals + 1 == text.size()) {
    throw UsageError("--set needs NAME=VALUE, not '" + text + "'");
  }
  return {text.substr(0, equals), text.substr(equals + 1)};
}

double ParseTimeLimit(std::string const& text) {
  std::optional<double> const seconds = ParseDouble(text);
  if (!seconds || std::isnan(*seconds) || *seconds < 0.0) {
    throw UsageError("--time-limit needs a number of seconds, not '" + text + "'");
  }
  return *seconds;
}

}  // namespace

SolveArguments ParseSolveArguments(std::span<char const* const> arguments) {
  SolveArguments result;
  bool onlyFiles = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    std::string const argument = arguments[i];
    auto const value = [&]() -> std::string {
      if (i + 1 == arguments.size()) throw UsageError(argument + " needs a value");
      return arguments[++i];
    };
    if (onlyFiles || !argument.starts_with("-")) {
      if (!result.file.empty()) throw UsageError("more than one model file: '" + result.file + "', '" + argument + "'");
      result.file = argument;
    } else if (argument == "--") {
      onlyFiles = true;
    } else if (argument == "--time-limit") {
      result.timeLimit = ParseTimeLimit(value());
    } else if (argument == "--set") {
      result.settings.push_back(SplitSetting(value()));
    } else if (argument == "--solution") {
      result.solutionFile = value();
    } else if (argument == "--json") {
      result.json = true;
    } else if (argument == "--help" || argument == "-h") {
      result.help = true;
    } else {
      throw UsageError("unknown option '" + argument + "'");
    }
  }
  if (result.file.empty() && !result.help) throw UsageError("no model file is given");
  return result;
}

ConvertArguments ParseConvertArguments(std::span<char const* const> arguments) {
  ConvertArguments result;
  std::vector<std::string> files;
  bool onlyFiles = false;
  for (std::string const argument : arguments) {
    if (onlyFiles || !argument.starts_with("-")) {
      files.push_back(argument);
    } else if (argument == "--") {
      onlyFiles = true;
    } else if (argument == "--help" || argument == "-h") {
      result.help = true;
    } else {
      throw UsageError("unknown option '" + argument + "'");
    }
  }
  if (result.help) return result;
  if (files.size() != 2) throw UsageError("convert needs two files, not " + std::to_string(files.size()));
  result.input = files[0];
  result.output = files[1];
  return result;
}

}  // namespace cli
