// How the name of an item is written down.
#include "items/normalize_name.hpp"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace Vorq {

std::string NormalizeName(char const* name) {
  if (name == nullptr) return {};
  auto const isSpace = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
  std::string_view text = name;
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
  std::string result(text);
  std::replace(result.begin(), result.end(), ' ', '_');
  return result;
}

}  // namespace Vorq
