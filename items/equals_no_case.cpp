// Comparison of texts that ignores case.
#include "items/equals_no_case.hpp"

#include <algorithm>
#include <cctype>

namespace Vorq {

bool EqualsNoCase(std::string_view a, std::string_view b) {
  auto const lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace Vorq
