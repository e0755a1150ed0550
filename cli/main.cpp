// The command-line tool: picks the command.
#include <cstdio>
#include <exception>
#include <span>
#include <string>

#include "cli/arguments.hpp"
#include "cli/convert_command.hpp"
#include "cli/iis_command.hpp"
#include "cli/outcome.hpp"
#include "cli/relax_command.hpp"
#include "cli/solve_command.hpp"

#include <vorq>

namespace {

constexpr char kUsage[] =
    "usage: vorq COMMAND [ARGUMENT]...\n"
    "\n"
    "  vorq solve FILE        read a model, solve it and print the result\n"
    "  vorq iis FILE          read an infeasible model and print an irreducible infeasible set\n"
    "  vorq relax FILE        read a model and find the point that violates it the least\n"
    "  vorq convert IN OUT    read a model and write it in another format\n"
    "  vorq --version         print the version\n"
    "  vorq --help            print this text; vorq COMMAND --help tells of a command\n";

// Prints the usage where the arguments ask for help.
template <class Arguments>
cli::Outcome Run(Arguments const& arguments, char const* usage, cli::Outcome (*run)(Arguments const&)) {
  if (!arguments.help) return run(arguments);
  std::fputs(usage, stdout);
  return cli::Outcome::kOptimal;
}

cli::Outcome RunCommand(std::span<char const* const> arguments) {
  if (arguments.empty()) throw cli::UsageError("no command is given");
  std::string const command = arguments[0];
  if (command == "--help" || command == "-h") {
    std::fputs(kUsage, stdout);
    return cli::Outcome::kOptimal;
  }
  if (command == "--version") {
    std::printf("vorq %d.%d.%d\n", GetVorqVersion(0), GetVorqVersion(1), GetVorqVersion(2));
    return cli::Outcome::kOptimal;
  }
  auto const rest = arguments.subspan(1);
  if (command == "solve") return Run(cli::ParseSolveArguments(rest), cli::kSolveUsage, cli::RunSolve);
  if (command == "iis") return Run(cli::ParseIisArguments(rest), cli::kIisUsage, cli::RunIis);
  if (command == "relax") return Run(cli::ParseRelaxArguments(rest), cli::kRelaxUsage, cli::RunRelax);
  if (command == "convert") return Run(cli::ParseConvertArguments(rest), cli::kConvertUsage, cli::RunConvert);
  throw cli::UsageError("unknown command '" + command + "'");
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return ExitCode(RunCommand({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)}));
  } catch (cli::UsageError const& error) {
    std::fprintf(stderr, "vorq: %s\n%s", error.what(), kUsage);
    return ExitCode(cli::Outcome::kUsageError);
  } catch (std::exception const& error) {
    std::fprintf(stderr, "vorq: %s\n", error.what());
    return ExitCode(cli::Outcome::kFailed);
  }
}
