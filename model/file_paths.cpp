// Path rules on POSIX systems: the home directory is HOME, the separator is a slash.
#include "model/file_paths.hpp"

#include <limits.h>
#include <unistd.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>

#include "items/equals_no_case.hpp"

namespace Vorq {
namespace {

constexpr char kSeparator = '/';

bool IsSpace(char c) {
  return std::isspace(static_cast<unsigned char>(c)) != 0;
}

std::string JoinPaths(std::string_view base, std::string_view path) {
  std::string joined(base);
  bool const hasSeparator = (!base.empty() && base.back() == kSeparator) || path.front() == kSeparator;
  if (!base.empty() && !hasSeparator) joined += kSeparator;
  return joined.append(path);
}

}  // namespace

std::string_view TrimWhiteSpace(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

bool EndsWith(std::string_view path, std::string_view ending) {
  path = TrimWhiteSpace(path);
  ending = TrimWhiteSpace(ending);
  return !ending.empty() && path.size() >= ending.size() &&
         EqualsNoCase(path.substr(path.size() - ending.size()), ending);
}

bool StartsWith(std::string_view text, std::string_view prefix) {
  text = TrimWhiteSpace(text);
  prefix = TrimWhiteSpace(prefix);
  return !prefix.empty() && text.size() >= prefix.size() && EqualsNoCase(text.substr(0, prefix.size()), prefix);
}

std::string const& WorkingDirectory() {
  static std::string const directory = [] {
    char buffer[PATH_MAX];
    return std::string(::getcwd(buffer, sizeof buffer) == nullptr ? "" : buffer);
  }();
  return directory;
}

std::string ResolvePath(std::string_view base, std::string_view path) {
  std::string result(TrimWhiteSpace(path));
  try {
    if (StartsWith(result, "~")) {
      char const* const home = std::getenv("HOME");
      result.replace(0, 1, home == nullptr ? "" : home);
    }
    std::filesystem::path const given(result.empty() ? base : result);
    result = given.is_absolute() || given.empty() ? given.string() : JoinPaths(base, given.string());
    if (std::filesystem::exists(result)) result = std::filesystem::canonical(result).string();
  } catch (std::filesystem::filesystem_error const&) {
    // What was found so far serves: whether the file can be opened shows when it is.
  }
  return result;
}

}  // namespace Vorq
