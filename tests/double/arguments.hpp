// Descriptors of arguments: each says how an argument stands in the log, what would be wrong with it, and, for outputs,
// what to write where. A function of the double is one line made of these.
#pragma once

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "tests/double/control.hpp"

namespace vorqtest {

// What stands where nobody may look.
template <class T>
inline constexpr T kGarbage = static_cast<T>(-1234567);
template <>
inline constexpr double kGarbage<double> = -9.87e299;
template <>
inline constexpr char kGarbage<char> = '?';

struct Argument {
  Argument(int number);
  Argument(double number);
  explicit Argument(std::string logged, std::string wrong = "")
      : text(std::move(logged)), violation(std::move(wrong)) {}

  std::string text;
  std::string violation;                          // empty when all is well
  std::function<int(Outputs const&)> write = {};  // outputs: gives the return code
  std::function<void()> spoil = {};               // outputs: fills all that may be written with garbage
};

std::string Render(int number);
std::string Render(double number);
std::string Render(char character);
std::string Render(char const* text);

Argument Char(int character);
Argument Text(char const* text);

// What the caller hands over to be called, and with what.
template <class T>
Argument Pointer(T pointer, char const* what) {
  return Argument(pointer == nullptr ? "null" : what);
}

// ---- Input arrays

// May be null whatever the count is.
template <class T>
Argument Optional(T const* array, int count) {
  if (count < 0) return Argument("[]", "negative count");
  if (array == nullptr) return Argument("null");
  std::string text = "[";
  for (int i = 0; i < count; ++i) text.append(i > 0 ? "," : "").append(Render(array[i]));
  return Argument(text + "]");
}

// Null only when the count is 0.
template <class T>
Argument Array(T const* array, int count) {
  Argument argument = Optional(array, count);
  if (array == nullptr && count > 0) argument.violation = "null array";
  return argument;
}

inline Argument Names(char const* const* names, int count) {
  return Optional(names, count);
}

// Rows behind each other: `count` of them, row i from begins[i] on, lengths[i] elements long, or up to begins[i + 1]
// where there are no lengths.
struct Ragged {
  int count;
  int const* begins;
  int const* lengths;

  int Used() const;
  Argument Begins() const { return Optional(begins, begins != nullptr && lengths == nullptr ? count + 1 : count); }
  Argument Lengths() const { return Optional(lengths, count); }

  template <class T>
  Argument Elements(T const* array) const {
    return Array(array, Used());
  }
};

// ---- Outputs, by the name under which they are scripted

inline constexpr int kAsScripted = -1;

// `count` elements, or exactly those scripted. What is not scripted is `otherwise`, behind a script that is too short
// stands garbage.
template <class T>
Argument Out(char const* name, T* array, int count = 1, int otherwise = 0) {
  if (array == nullptr) return Argument("null");
  Argument argument("out");
  if (count < kAsScripted) argument.violation = "negative count";
  argument.write = [=](Outputs const& outputs) {
    auto const found = outputs.find(name);
    if (found == outputs.end()) {
      std::fill_n(array, std::max(count, 0), static_cast<T>(otherwise));
      return VORQ_OK;
    }
    std::vector<double> const& values = found->second.numbers;
    int const size = static_cast<int>(values.size());
    for (int i = 0; i < (count == kAsScripted ? size : count); ++i) {
      array[i] = i < size ? static_cast<T>(values[static_cast<std::size_t>(i)]) : kGarbage<T>;
    }
    return VORQ_OK;
  };
  argument.spoil = [=] { std::fill_n(array, std::max(count, 0), kGarbage<T>); };
  return argument;
}

// An array of the required-size protocol: refused when it has no room for all.
template <class T>
Argument Data(char const* name, T* array, int capacity) {
  if (array == nullptr) return Argument("null");
  Argument argument("out");
  if (capacity < 0) argument.violation = "negative capacity";
  argument.write = [=](Outputs const& outputs) {
    auto const found = outputs.find(name);
    std::size_t const size = found == outputs.end() ? 0 : found->second.numbers.size();
    if (size > static_cast<std::size_t>(capacity)) return VORQ_INVALID;
    for (std::size_t i = 0; i < static_cast<std::size_t>(capacity); ++i) {
      array[i] = i < size ? static_cast<T>(found->second.numbers[i]) : kGarbage<T>;
    }
    return VORQ_OK;
  };
  argument.spoil = [=] { std::fill_n(array, std::max(capacity, 0), kGarbage<T>); };
  return argument;
}

// The number of elements: the longest of the named arrays when it is not scripted by its own name.
Argument SizeOf(char const* name, int* size, std::vector<char const*> arrays);

// A text buffer and its required size, the terminating zero included.
Argument TextBuffer(char* buffer, int capacity);
Argument TextSize(int* required);

}  // namespace vorqtest
