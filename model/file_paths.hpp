// What the file operations need to know of paths: endings, and where a path that the caller gave leads to.
#pragma once

#include <string>
#include <string_view>

namespace Vorq {

std::string_view TrimWhiteSpace(std::string_view text);

// Whether `path` ends or starts with the other text, in any case and with white space around either passed over. False
// when one of them is empty.
bool EndsWith(std::string_view path, std::string_view ending);
bool StartsWith(std::string_view text, std::string_view prefix);

// The working directory as it was at the first call in the life of the process; empty if it cannot be told.
std::string const& WorkingDirectory();

// `path` without white space around it, with the home directory in place of a leading "~", made absolute with `base`,
// and canonical if the file exists. An empty path gives `base`.
std::string ResolvePath(std::string_view base, std::string_view path);

}  // namespace Vorq
