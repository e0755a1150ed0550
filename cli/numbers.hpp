// Numbers from text: the whole text or nothing, whatever the locale.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace cli {

template <class Number>
std::optional<Number> ParseNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  Number number{};
  auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

inline std::optional<int> ParseInt(std::string_view text) {
  return ParseNumber<int>(text);
}
inline std::optional<double> ParseDouble(std::string_view text) {
  return ParseNumber<double>(text);
}

}  // namespace cli
