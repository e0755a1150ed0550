// Reading the lines of the log that the tool reports: "Engine NAME for PURPOSE", "Warning: TEXT" and "Error: TEXT".
#include "cli/log_listener.hpp"

#include <cstdio>
#include <string_view>

namespace cli {

void LogListener::Log(char const* text) {
  constexpr std::string_view kEngine = "Engine ";
  constexpr std::string_view kPurpose = " for ";
  constexpr std::string_view kError = "Error: ";
  constexpr std::string_view kWarning = "Warning: ";
  std::string_view const line = text;
  if (line.starts_with(kEngine)) engine_ = line.substr(kEngine.size(), line.find(kPurpose) - kEngine.size());
  if (line.starts_with(kWarning)) warnings_.emplace_back(line.substr(kWarning.size()));
  if (line.starts_with(kError)) error_ = line.substr(kError.size());
  if (print_) {
    std::puts(text);
    std::fflush(stdout);
  }
}

}  // namespace cli
