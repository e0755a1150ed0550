// The formatting of failure texts, and the exception for a failed name search.
#include "frame/status.hpp"

#include <algorithm>
#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>

#include "frame/vorq_solver.h"
#include "vorqmodel/exception.h"

namespace Vorq {
namespace {

char const* CodeName(std::uint32_t code) {
  switch (code) {
    case 0: return "OK";
    case 1: return "MEMORY";
    case 2: return "FILE";
    case 3: return "INVALID";
    case 5: return "INTERNAL";
    case 6: return "THREAD";
    case 7: return "SERVER";
    case 8: return "NONCONVEX";
    default: return "UNKNOWN";
  }
}

// A width or precision of more than three digits is cut to three: the text is cut before that.
void CutNumbers(std::string& spec) {
  std::size_t digits = 0;
  for (std::size_t i = 0; i < spec.size(); ++i) {
    digits = std::isdigit(static_cast<unsigned char>(spec[i])) ? digits + 1 : 0;
    if (digits > 3) {
      spec.erase(i--, 1);
      --digits;
    }
  }
}

// Renders one conversion, from its percent sign up to and with its letter, for an argument of zero: a copied text has
// no arguments to give.
std::string RenderZero(std::string spec) {
  std::replace(spec.begin(), spec.end(), '*', '0');
  std::erase_if(spec, [](char c) { return std::strchr("hlLqjzt", c) != nullptr; });
  CutNumbers(spec);
  char buffer[Status::kMessageRoom] = {};
  char const* format = spec.c_str();
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  switch (spec.back()) {
    case 'd':
    case 'i':
    case 'u':
    case 'o':
    case 'x':
    case 'X':
    case 'c': std::snprintf(buffer, sizeof buffer, format, 0); break;
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A': std::snprintf(buffer, sizeof buffer, format, 0.0); break;
    case 's': std::snprintf(buffer, sizeof buffer, format, ""); break;
    case 'p': std::snprintf(buffer, sizeof buffer, format, nullptr); break;
    default: break;
  }
#pragma GCC diagnostic pop
  return buffer;
}

// `text` read as a format whose conversions all meet zero.
std::string RenderWithoutArguments(char const* text) {
  std::string result;
  while (*text != '\0') {
    if (*text != '%') {
      result += *text++;
      continue;
    }
    std::size_t const length = 1 + std::strspn(text + 1, "-+ #0123456789.*'hlLqjzt");
    if (text[length] == '\0') return result + text;
    if (text[length] == '%') {
      result += '%';
    } else if (std::strchr("diuoxXceEfFgGaAspn", text[length]) != nullptr) {
      result += RenderZero(std::string(text, length + 1));
    } else {
      result.append(text, length + 1);
    }
    text += length + 1;
  }
  return result;
}

}  // namespace

Status::Status(Status const& other) {
  CopyFailure(other);
}

Status& Status::operator=(Status const& other) {
  if (this != &other) CopyFailure(other);
  return *this;
}

Status& Status::operator=(Status&& other) noexcept {
  std::swap(failure_, other.failure_);
  return *this;
}

char* Status::BeginMessage(int code) {
  if (failure_ == nullptr) failure_ = new Failure;
  failure_->code = static_cast<std::uint32_t>(code);
  std::snprintf(failure_->text, kPrefixRoom, "(%s) ", CodeName(failure_->code));
  return failure_->text + std::strlen(failure_->text);
}

// A copied text is taken as a format, which is meant: the copy's text has the prefix twice.
void Status::CopyFailure(Status const& other) {
  if (!other.Failed()) return Clear();
  std::string const message = RenderWithoutArguments(other.Text());
  std::snprintf(BeginMessage(other.Code()), kMessageRoom, "%s", message.c_str());
}

void SetStatus(Status& status, int code, char const* format, ...) {
  if (code == 0) return status.Clear();
  char* message = status.BeginMessage(code);
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(message, Status::kMessageRoom, format, arguments);
  va_end(arguments);
}

void CheckRetcode(int code) {
  if (code == 0) return;
  char buffer[1024] = {};
  VORQ_GetRetcodeMsg(code, buffer, 1020);
  throw Exception(buffer, code);
}

}  // namespace Vorq
