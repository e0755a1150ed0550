// How arguments stand in the log, and the outputs that are not plain arrays.
#include "tests/double/arguments.hpp"

#include <array>
#include <cctype>
#include <charconv>

namespace vorqtest {

std::string Render(int number) {
  return std::to_string(number);
}

std::string Render(double number) {
  std::array<char, 40> buffer;
  auto const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
  return std::string(buffer.data(), end);
}

std::string Render(char character) {
  if (!std::isprint(static_cast<unsigned char>(character))) return std::to_string(static_cast<int>(character));
  return std::string("'") + character + "'";
}

std::string Render(char const* text) {
  if (text == nullptr) return "null";
  std::string quoted = "\"";
  for (; *text != '\0'; ++text) {
    if (*text == '\n') {
      quoted += "\\n";
      continue;
    }
    if (*text == '"' || *text == '\\') quoted += '\\';
    quoted += *text;
  }
  return quoted + '"';
}

Argument::Argument(int number) : Argument(Render(number)) {}
Argument::Argument(double number) : Argument(Render(number)) {}

Argument Char(int character) {
  bool const isCharacter = character >= 0 && character < 128;
  return Argument(isCharacter ? Render(static_cast<char>(character)) : Render(character));
}

Argument Text(char const* text) {
  return Argument(Render(text));
}

int Ragged::Used() const {
  if (begins == nullptr || count <= 0) return 0;
  if (lengths == nullptr) return begins[count];
  int used = 0;
  for (int i = 0; i < count; ++i) used = std::max(used, begins[i] + lengths[i]);
  return used;
}

Argument SizeOf(char const* name, int* size, std::vector<char const*> arrays) {
  if (size == nullptr) return Argument("null");
  Argument argument("out");
  argument.write = [=](Outputs const& outputs) {
    if (auto const own = outputs.find(name); own != outputs.end() && !own->second.numbers.empty()) {
      *size = static_cast<int>(own->second.numbers.front());
      return VORQ_OK;
    }
    *size = 0;
    for (char const* array : arrays) {
      auto const found = outputs.find(array);
      if (found != outputs.end()) *size = std::max(*size, static_cast<int>(found->second.numbers.size()));
    }
    return VORQ_OK;
  };
  argument.spoil = [=] { *size = kGarbage<int>; };
  return argument;
}

Argument TextBuffer(char* buffer, int capacity) {
  if (buffer == nullptr) return Argument("null");
  Argument argument("out");
  if (capacity < 0) argument.violation = "negative capacity";
  argument.write = [=](Outputs const& outputs) {
    auto const found = outputs.find("buffer");
    std::string const text = found == outputs.end() ? "" : found->second.text;
    if (static_cast<int>(text.size()) >= capacity) return VORQ_INVALID;
    std::fill_n(buffer, capacity, kGarbage<char>);
    std::copy_n(text.c_str(), text.size() + 1, buffer);
    return VORQ_OK;
  };
  argument.spoil = [=] {
    std::fill_n(buffer, std::max(capacity, 0), kGarbage<char>);
    if (capacity > 0) buffer[capacity - 1] = '\0';
  };
  return argument;
}

Argument TextSize(int* required) {
  Argument argument = SizeOf("required", required, {});
  if (required == nullptr) return argument;
  argument.write = [required, scripted = argument.write](Outputs const& outputs) -> int {
    auto const found = outputs.find("buffer");
    if (outputs.contains("required")) return scripted(outputs);
    *required = 1 + (found == outputs.end() ? 0 : static_cast<int>(found->second.text.size()));
    return VORQ_OK;
  };
  return argument;
}

}  // namespace vorqtest
