// Comparison of texts that ignores case.
#pragma once

#include <string_view>

namespace Vorq {

// Equal lengths, and each pair of characters equal as tolower tells.
bool EqualsNoCase(std::string_view a, std::string_view b);

}  // namespace Vorq
