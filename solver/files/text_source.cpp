// Reading whole files, plain or packed, and the small pieces that all text formats share.
#include "solver/files/text_source.hpp"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <memory>
#include <new>

#include "solver/problem/problem_data.hpp"

namespace vorqsolver {
namespace {

struct CloseGzip {
  void operator()(gzFile file) const { gzclose(file); }
};
using GzipFile = std::unique_ptr<gzFile_s, CloseGzip>;

std::string GzipError(gzFile file) {
  int code = Z_OK;
  std::string_view text = gzerror(file, &code);
  if (code == Z_ERRNO) return std::strerror(errno);
  if (code == Z_BUF_ERROR) return "the packed file is cut off";
  // The path stands in front.
  if (auto const cause = text.rfind(": "); cause != std::string_view::npos) text.remove_prefix(cause + 2);
  return Text("the packed file is damaged (", text, ")");
}

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr std::size_t kMostBytes = std::size_t{4} << 30;
constexpr std::size_t kAlwaysUnpacked = std::size_t{64} << 20;
constexpr std::size_t kMostPacking = 200;

void CheckSize(TextSource const& source, gzFile file) {
  auto const size = source.text.size();
  if (size > kMostBytes)
    throw Failure(VORQ_FILE, Text(source.name, ": the text is larger than ", kMostBytes, " bytes"));
  if (size <= kAlwaysUnpacked || gzdirect(file) == 1) return;
  auto const packed = static_cast<std::size_t>(gzoffset(file));
  if (size > kMostPacking * packed) {
    throw Failure(VORQ_FILE,
                  Text(source.name, ": the packed file unpacks to more than ", kMostPacking, " times its size"));
  }
}

}  // namespace

TextSource LoadText(std::string const& path) {
  errno = 0;
  GzipFile const file(gzopen(path.c_str(), "rb"));
  if (!file) {
    if (errno == 0) throw std::bad_alloc();
    throw Failure(VORQ_FILE, Text(path, ": ", std::strerror(errno)));
  }
  TextSource source{path, {}};
  std::array<char, 1 << 16> block;
  for (;;) {
    int const count = gzread(file.get(), block.data(), static_cast<unsigned>(block.size()));
    if (count < 0) throw Failure(VORQ_FILE, Text(path, ": ", GzipError(file.get())));
    if (count == 0) break;
    source.text.append(block.data(), static_cast<std::size_t>(count));
    CheckSize(source, file.get());
  }
  // A packed file that is cut off reads to its end without an error; only the state tells.
  int code = Z_OK;
  gzerror(file.get(), &code);
  if (code != Z_OK) throw Failure(VORQ_FILE, Text(path, ": ", GzipError(file.get())));
  return source;
}

std::string Shown(std::string_view text) {
  constexpr std::size_t kMostShown = 100;
  std::size_t length = std::min(text.size(), kMostShown);
  // A character of several bytes is not cut.
  while (length > 0 && length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
  std::string shown(text.substr(0, length));
  std::ranges::replace_if(
      shown, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, '?');
  if (length < text.size()) shown += "...";
  return shown;
}

std::string_view CheckedText(TextSource const& source) {
  std::string_view text = source.text;
  if (auto const zero = text.find('\0'); zero != std::string_view::npos) {
    auto const line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(zero), '\n');
    RefuseText(source, static_cast<std::size_t>(line), "zero byte in a text file");
  }
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  return text;
}

bool LineReader::Next() {
  if (rest_.empty()) return false;
  auto const end = rest_.find('\n');
  line_ = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  if (line_.ends_with('\r')) line_.remove_suffix(1);
  ++number_;
  return true;
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Lower(x) == Lower(y); });
}

std::string_view NextWord(std::string_view& text) {
  std::size_t begin = 0;
  while (begin < text.size() && IsBlank(text[begin])) ++begin;
  std::size_t end = begin;
  while (end < text.size() && !IsBlank(text[end])) ++end;
  auto const word = text.substr(begin, end - begin);
  text.remove_prefix(end);
  return word;
}

NumberForm ParseNumber(std::string_view text, double& value) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return NumberForm::kNone;
  }
  auto const end = text.data() + text.size();
  auto const [stop, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc::invalid_argument || stop != end) return NumberForm::kNone;
  if (error == std::errc::result_out_of_range) return NumberForm::kOutOfRange;
  return std::isnan(value) ? NumberForm::kNone : NumberForm::kNumber;
}

double NumberAt(TextSource const& source, std::size_t line, std::string_view text) {
  double value = 0.0;
  switch (ParseNumber(text, value)) {
    case NumberForm::kNone: RefuseText(source, line, "'", text, "' is not a number");
    case NumberForm::kOutOfRange: RefuseText(source, line, "number '", text, "' is out of range");
    case NumberForm::kNumber: break;
  }
  return std::isinf(value) ? std::copysign(kInfinity, value) : value;
}

double FiniteNumberAt(TextSource const& source, std::size_t line, std::string_view text) {
  double const value = NumberAt(source, line, text);
  if (std::abs(value) >= kInfinity) RefuseText(source, line, "value '", text, "' is not finite");
  return value;
}

int IntegerAt(TextSource const& source, std::size_t line, std::string_view text) {
  auto const digits = text.starts_with('+') && !text.starts_with("+-") ? text.substr(1) : text;
  int value = 0;
  auto const end = digits.data() + digits.size();
  auto const [stop, error] = std::from_chars(digits.data(), end, value);
  if (error == std::errc::result_out_of_range) RefuseText(source, line, "number '", text, "' is out of range");
  if (error != std::errc() || stop != end) RefuseText(source, line, "'", text, "' is not a whole number");
  return value;
}

std::size_t MostClaimedItems(TextSource const& source) {
  return 1'000'000 + source.text.size();
}

}  // namespace vorqsolver
