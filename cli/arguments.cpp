// Reading the command lines of the commands.
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

namespace {

// Walks through the words of a command line.
class Words {
 public:
  explicit Words(std::span<char const* const> words) : words_(words) {}

  bool Next() {
    if (next_ == words_.size()) return false;
    word_ = words_[next_++];
    return true;
  }
  std::string const& Word() const { return word_; }

  // The word behind an option.
  std::string Value() {
    std::string const option = word_;
    if (!Next()) throw UsageError(option + " needs a value");
    return word_;
  }

 private:
  std::span<char const* const> words_;
  std::size_t next_ = 0;
  std::string word_;
};

// Reads the options that all commands on one model share; `more(option, words)` reads those of the command, and tells
// whether it knows the option.
template <typename More>
void ParseModelArguments(std::span<char const* const> arguments, SolveArguments& result, More more) {
  Words words(arguments);
  bool onlyFiles = false;
  while (words.Next()) {
    std::string const argument = words.Word();
    if (onlyFiles || !argument.starts_with("-")) {
      if (!result.file.empty()) throw UsageError("more than one model file: '" + result.file + "', '" + argument + "'");
      result.file = argument;
    } else if (argument == "--") {
      onlyFiles = true;
    } else if (argument == "--time-limit") {
      result.timeLimit = ParseTimeLimit(words.Value());
    } else if (argument == "--set") {
      result.settings.push_back(SplitSetting(words.Value()));
    } else if (argument == "--json") {
      result.json = true;
    } else if (argument == "--help" || argument == "-h") {
      result.help = true;
    } else if (!more(argument, words)) {
      throw UsageError("unknown option '" + argument + "'");
    }
  }
  if (result.file.empty() && !result.help) throw UsageError("no model file is given");
}

}  // namespace

SolveArguments ParseSolveArguments(std::span<char const* const> arguments) {
  SolveArguments result;
  ParseModelArguments(arguments, result, [&](std::string const& option, Words& words) {
    if (option != "--solution") return false;
    result.solutionFile = words.Value();
    return true;
  });
  return result;
}

DiagnoseArguments ParseIisArguments(std::span<char const* const> arguments) {
  DiagnoseArguments result;
  ParseModelArguments(arguments, result, [&](std::string const& option, Words& words) {
    if (option != "--output") return false;
    result.outputFile = words.Value();
    return true;
  });
  return result;
}

DiagnoseArguments ParseRelaxArguments(std::span<char const* const> arguments) {
  DiagnoseArguments result;
  ParseModelArguments(arguments, result, [&](std::string const& option, Words& words) {
    if (option == "--output") {
      result.outputFile = words.Value();
    } else if (option == "--solution") {
      result.solutionFile = words.Value();
    } else if (option == "--rows-only") {
      result.bounds = false;
    } else if (option == "--bounds-only") {
      result.rows = false;
    } else {
      return false;
    }
    return true;
  });
  if (!result.rows && !result.bounds) throw UsageError("--rows-only and --bounds-only leave nothing to relax");
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
