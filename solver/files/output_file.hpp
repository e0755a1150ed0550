// Writing a whole file: it appears under its name only when all of it has been written.
#pragma once

#include <string>
#include <string_view>

namespace vorqsolver {

// Writes a temporary file beside `path` and renames it; a failure, VORQ_FILE with path and cause, leaves the former
// file as it was. The text is packed where `path` ends in ".gz". Devices and pipes are written to directly.
void WriteTextFile(std::string const& path, std::string_view text);

}  // namespace vorqsolver
