// Failure: what the solver library throws inside; the C functions turn it into its return code. The text names the
// culprit and the cause, without a full stop, such as "Row 7 does not exist (the problem has 5)".
#pragma once

#include <concepts>
#include <stdexcept>
#include <string>
#include <string_view>

#include "frame/vorq_solver.h"

namespace vorqsolver {

struct Failure : std::runtime_error {
  int code;

  Failure(int returnCode, std::string const& text) : std::runtime_error(text), code(returnCode) {}
};

std::string ToText(double value);  // as short as it can be and still read back the same

template <std::integral T>
requires(!std::same_as<T, char>) std::string ToText(T value) {
  return std::to_string(value);
}

inline std::string ToText(char value) {
  return std::string(1, value);
}
inline std::string_view ToText(std::string_view value) {
  return value;
}
inline std::string_view ToText(std::string const& value) {
  return value;
}
inline std::string_view ToText(char const* value) {
  return value;
}

// Joins texts and numbers: Text("Row ", 7, " does not exist").
template <typename... Pieces>
std::string Text(Pieces const&... pieces) {
  std::string text;
  (text.append(ToText(pieces)), ...);
  return text;
}

template <typename... Pieces>
[[noreturn]] void Refuse(Pieces const&... pieces) {
  throw Failure(VORQ_INVALID, Text(pieces...));
}

}  // namespace vorqsolver
