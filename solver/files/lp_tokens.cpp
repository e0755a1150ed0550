// Cutting LP files into tokens.
#include "solver/files/lp_tokens.hpp"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace vorqsolver {
namespace {

struct SectionWords {
  std::string_view words[3];  // of three tokens the second is '-'
  LpSection section;
};

// Longer forms come before shorter ones that they begin with.
constexpr SectionWords kSectionWords[] = {
    {{"minimize"}, LpSection::kMinimize},
    {{"minimise"}, LpSection::kMinimize},
    {{"minimum"}, LpSection::kMinimize},
    {{"min"}, LpSection::kMinimize},
    {{"maximize"}, LpSection::kMaximize},
    {{"maximise"}, LpSection::kMaximize},
    {{"maximum"}, LpSection::kMaximize},
    {{"max"}, LpSection::kMaximize},
    {{"subject", "to"}, LpSection::kConstraints},
    {{"such", "that"}, LpSection::kConstraints},
    {{"st"}, LpSection::kConstraints},
    {{"s.t."}, LpSection::kConstraints},
    {{"st."}, LpSection::kConstraints},
    {{"lazy", "constraints"}, LpSection::kLazyConstraints},
    {{"user", "cuts"}, LpSection::kUserCuts},
    {{"bounds"}, LpSection::kBounds},
    {{"bound"}, LpSection::kBounds},
    {{"generals"}, LpSection::kGenerals},
    {{"general"}, LpSection::kGenerals},
    {{"gens"}, LpSection::kGenerals},
    {{"gen"}, LpSection::kGenerals},
    {{"integers"}, LpSection::kGenerals},
    {{"integer"}, LpSection::kGenerals},
    {{"ints"}, LpSection::kGenerals},
    {{"int"}, LpSection::kGenerals},
    {{"binaries"}, LpSection::kBinaries},
    {{"binary"}, LpSection::kBinaries},
    {{"bins"}, LpSection::kBinaries},
    {{"bin"}, LpSection::kBinaries},
    {{"semi", "-", "continuous"}, LpSection::kSemiContinuous},
    {{"semis"}, LpSection::kSemiContinuous},
    {{"semi"}, LpSection::kSemiContinuous},
    {{"sos1"}, LpSection::kSos},
    {{"sos2"}, LpSection::kSos},
    {{"sos"}, LpSection::kSos},
    {{"end"}, LpSection::kEnd},
};

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) > 127;
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

struct Symbol {
  std::string_view text;
  LpTokenKind kind;
};

constexpr Symbol kSymbols[] = {
    {"->", LpTokenKind::kArrow},  {"<=", LpTokenKind::kLess},    {"=<", LpTokenKind::kLess},
    {"<", LpTokenKind::kLess},    {">=", LpTokenKind::kGreater}, {"=>", LpTokenKind::kGreater},
    {">", LpTokenKind::kGreater}, {"=", LpTokenKind::kEqual},    {"+", LpTokenKind::kPlus},
    {"-", LpTokenKind::kMinus},   {"*", LpTokenKind::kStar},     {"/", LpTokenKind::kSlash},
    {"^", LpTokenKind::kCaret},   {"[", LpTokenKind::kOpen},     {"]", LpTokenKind::kClose},
    {":", LpTokenKind::kColon},
};

}  // namespace

bool IsLpNameStart(char c) {
  return IsLetter(c) || std::string_view("!\"#$%&(),;?@_'`{}~|").find(c) != std::string_view::npos;
}

bool IsLpNameCharacter(char c) {
  return IsLpNameStart(c) || IsDigit(c) || c == '.';
}

bool IsInfinityWord(std::string_view word) {
  return EqualsNoCase(word, "inf") || EqualsNoCase(word, "infinity");
}

bool IsLpKeyword(std::string_view word) {
  for (auto const& row : kSectionWords) {
    if (EqualsNoCase(word, row.words[0])) return true;
  }
  return IsInfinityWord(word) || EqualsNoCase(word, "free");
}

LpTokens::LpTokens(TextSource const& source) : source_(source), text_(CheckedText(source)) {}

LpToken const& LpTokens::Peek(std::size_t ahead) {
  while (count_ <= ahead) {
    buffer_[(first_ + count_) % kAhead] = Read();
    ++count_;
  }
  return buffer_[(first_ + ahead) % kAhead];
}

LpToken LpTokens::Take() {
  LpToken const token = Peek();
  first_ = (first_ + 1) % kAhead;
  --count_;
  return token;
}

bool LpTokens::TakeIf(LpTokenKind kind) {
  if (Peek().kind != kind) return false;
  Take();
  return true;
}

std::optional<LpTokens::Found> LpTokens::SectionHere() {
  if (Peek().kind != LpTokenKind::kName || !Peek().firstOnLine) return std::nullopt;
  for (auto const& row : kSectionWords) {
    std::size_t words = 0;
    while (words < 3 && !row.words[words].empty() && EqualsNoCase(Peek(words).text, row.words[words])) ++words;
    if (words < 3 && !row.words[words].empty()) continue;
    // A label may look like a section.
    auto const behind = Peek(words).kind;
    if (words == 1 && (behind == LpTokenKind::kColon || behind == LpTokenKind::kDoubleColon)) return std::nullopt;
    return Found{row.section, words};
  }
  return std::nullopt;
}

std::optional<LpSection> LpTokens::TakeSection() {
  auto const found = SectionHere();
  if (!found) return std::nullopt;
  for (std::size_t k = 0; k < found->words; ++k) Take();
  return found->section;
}

void LpTokens::RefuseToken(LpToken const& found, char const* expected) const {
  if (found.kind == LpTokenKind::kEnd) Refuse(found, "expected ", expected, ", found the end of the file");
  Refuse(found, "expected ", expected, ", found '", found.text, "'");
}

void LpTokens::SkipBlanks() {
  for (; position_ < text_.size(); ++position_) {
    char const c = text_[position_];
    if (c == '\n') {
      ++line_;
      lineBegins_ = true;
    } else if (c == '\\') {
      ReadComment();
      --position_;
    } else if (!IsBlank(c)) {
      return;
    }
  }
}

// Goes to the end of the line.
void LpTokens::ReadComment() {
  auto const end = std::min(text_.find('\n', position_), text_.size());
  auto comment = text_.substr(position_ + 1, end - position_ - 1);
  position_ = end;
  constexpr std::string_view kLabel = "Problem name:";
  if (comment.starts_with(kLabel)) problemName_ = Trim(comment.substr(kLabel.size()));
}

LpToken LpTokens::Make(LpTokenKind kind, std::size_t length) {
  LpToken token{kind, text_.substr(position_, length), 0.0, line_, lineBegins_};
  position_ += length;
  lineBegins_ = false;
  return token;
}

LpToken LpTokens::Read() {
  SkipBlanks();
  auto const rest = text_.substr(position_);
  if (rest.empty()) return Make(LpTokenKind::kEnd, 0);
  if (IsDigit(rest[0]) || (rest[0] == '.' && rest.size() > 1 && IsDigit(rest[1]))) return ReadNumber();
  if (IsLpNameStart(rest[0])) return ReadName();
  if (rest.starts_with("::")) return Make(LpTokenKind::kDoubleColon, 2);
  for (auto const& [text, kind] : kSymbols) {
    if (rest.starts_with(text)) return Make(kind, text.size());
  }
  auto const token = Make(LpTokenKind::kEnd, 1);
  Refuse(token, "unexpected character '", token.text, "'");
}

LpToken LpTokens::ReadNumber() {
  double value = 0.0;
  auto const begin = text_.data() + position_;
  auto const [end, error] = std::from_chars(begin, text_.data() + text_.size(), value);
  auto token = Make(LpTokenKind::kNumber, static_cast<std::size_t>(end - begin));
  if (error != std::errc()) Refuse(token, "number '", token.text, "' is out of range");
  token.value = value;
  return token;
}

LpToken LpTokens::ReadName() {
  std::size_t end = position_;
  while (end < text_.size()) {
    if (IsLpNameCharacter(text_[end])) {
      ++end;
    } else if (auto const close = text_[end] == '[' ? SubscriptEnd(end) : end; close > end) {
      end = close;
    } else {
      break;
    }
  }
  return Make(LpTokenKind::kName, end - position_);
}

// Brackets without a blank are part of a name, such as in "x[1,2]": the place behind the closing one, or `open`.
std::size_t LpTokens::SubscriptEnd(std::size_t open) {
  if (stop_ <= open) {
    stop_ = open + 1;
    while (stop_ < text_.size() && text_[stop_] != ']' && text_[stop_] != '\n' && !IsBlank(text_[stop_])) ++stop_;
  }
  return stop_ < text_.size() && text_[stop_] == ']' ? stop_ + 1 : open;
}

}  // namespace vorqsolver
