// Splitting names buffers, and making them from a prefix.
#include "model/names.hpp"

#include <charconv>
#include <cstring>
#include <iterator>

#include "items/normalize_name.hpp"

namespace Vorq {

bool SplitNames(char const* names, std::size_t length, int count, std::vector<char const*>& result) {
  result.clear();
  if (count > 0 && names == nullptr) return false;
  result.reserve(static_cast<std::size_t>(count));
  char const* const end = names + length;
  for (int i = 0; i < count; ++i) {
    auto const* const zero =
        names == end ? nullptr
                     : static_cast<char const*>(std::memchr(names, '\0', static_cast<std::size_t>(end - names)));
    if (zero == nullptr) return false;
    result.push_back(names);
    names = zero + 1;
  }
  return true;
}

std::string NumberedNames(char const* prefix, int first, int count) {
  std::string const head = NormalizeName(prefix) + '_';
  char number[20];
  std::string names;
  names.reserve(static_cast<std::size_t>(count) * (head.size() + 9));
  for (int i = 0; i < count; ++i) {
    auto const written = std::to_chars(std::begin(number), std::end(number), first + i);
    names.append(head).append(number, written.ptr).push_back('\0');
  }
  return names;
}

}  // namespace Vorq
