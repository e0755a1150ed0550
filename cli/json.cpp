// Writing JSON: quoting as RFC 8259 tells, numbers in their shortest form that reads back the same.
#include "cli/json.hpp"

#include <charconv>
#include <cmath>

namespace cli {
namespace {

// The length of the valid UTF-8 sequence that starts at `text`, 0 where there is none.
std::size_t SequenceLength(std::string_view text) {
  auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  std::size_t length = 0;
  if (byte(0) >= 0xC2 && byte(0) <= 0xDF) {
    length = 2;
  } else if (byte(0) >= 0xE0 && byte(0) <= 0xEF) {
    length = 3;
  } else if (byte(0) >= 0xF0 && byte(0) <= 0xF4) {
    length = 4;
  }
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Four lead bytes narrow what may follow: overlong forms, surrogates and codes above U+10FFFF are not UTF-8.
  bool const isTooLow = (byte(0) == 0xE0 && byte(1) < 0xA0) || (byte(0) == 0xF0 && byte(1) < 0x90);
  bool const isTooHigh = (byte(0) == 0xED && byte(1) > 0x9F) || (byte(0) == 0xF4 && byte(1) > 0x8F);
  return isTooLow || isTooHigh ? 0 : length;
}

void AppendEscaped(std::string& out, unsigned char c) {
  constexpr char kDigits[] = "0123456789abcdef";
  out += "\\u00";
  out += kDigits[c >> 4];
  out += kDigits[c & 15];
}

std::string Quoted(std::string_view text) {
  std::string out = "\"";
  while (!text.empty()) {
    auto const c = static_cast<unsigned char>(text.front());
    std::size_t length = 1;
    if (c == '"' || c == '\\') {
      out += '\\';
      out += text.front();
    } else if (c < 0x20 || c == 0x7F) {
      AppendEscaped(out, c);
    } else if (c < 0x80) {
      out += text.front();
    } else if ((length = SequenceLength(text)) != 0) {
      out += text.substr(0, length);
    } else {
      length = 1;
      out += "\xEF\xBF\xBD";  // the replacement character for a byte that is not UTF-8
    }
    text.remove_prefix(length);
  }
  return out + '"';
}

}  // namespace

void JsonObject::BeginField(std::string_view name) {
  if (!fields_.empty()) fields_ += ", ";
  fields_ += Quoted(name) + ": ";
}

void JsonObject::Add(std::string_view name, std::string_view value) {
  BeginField(name);
  fields_ += Quoted(value);
}

void JsonObject::Add(std::string_view name, double value) {
  BeginField(name);
  if (!std::isfinite(value)) {
    fields_ += "null";
    return;
  }
  char buffer[32];
  auto const result = std::to_chars(buffer, buffer + sizeof buffer, value);
  fields_.append(buffer, result.ptr);
}

}  // namespace cli
