// LpTokens: the tokens of an LP file, with a look ahead, and the words that begin its sections.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "solver/files/text_source.hpp"

namespace vorqsolver {

enum class LpTokenKind {
  kName,
  kNumber,
  kPlus,
  kMinus,
  kStar,
  kSlash,
  kCaret,
  kOpen,   // [
  kClose,  // ]
  kColon,
  kDoubleColon,
  kLess,     // <, <=, =<
  kGreater,  // >, >=, =>
  kEqual,
  kArrow,  // ->
  kEnd,    // of the text
};

struct LpToken {
  LpTokenKind kind = LpTokenKind::kEnd;
  std::string_view text;
  double value = 0.0;
  std::size_t line = 0;
  bool firstOnLine = false;
};

enum class LpSection {
  kMinimize,
  kMaximize,
  kConstraints,
  kLazyConstraints,
  kUserCuts,
  kBounds,
  kGenerals,
  kBinaries,
  kSemiContinuous,
  kSos,
  kEnd,
};

// What a name may be made of, for the reader and the writer.
bool IsLpNameCharacter(char c);
bool IsLpNameStart(char c);

// Whether the word has a meaning of its own in an LP file: a section, "free", "inf" or "infinity".
bool IsLpKeyword(std::string_view word);
bool IsInfinityWord(std::string_view word);

class LpTokens {
 public:
  explicit LpTokens(TextSource const& source);

  // The token `ahead` places on, at most 3.
  LpToken const& Peek(std::size_t ahead = 0);
  LpToken Take();
  bool TakeIf(LpTokenKind kind);

  // The section that begins here, whose words are taken; they stand first on a line.
  std::optional<LpSection> TakeSection();
  bool AtSection() { return SectionHere().has_value(); }

  // The name that a comment "\Problem name: x" gives.
  std::string const& ProblemName() const { return problemName_; }

  template <typename... Pieces>
  [[noreturn]] void Refuse(LpToken const& at, Pieces const&... pieces) const {
    RefuseText(source_, at.line, pieces...);
  }

  // "expected a number, found 'x'"
  [[noreturn]] void RefuseToken(LpToken const& found, char const* expected) const;

 private:
  struct Found {
    LpSection section;
    std::size_t words;  // tokens
  };

  std::optional<Found> SectionHere();
  LpToken Read();
  void SkipBlanks();
  void ReadComment();
  LpToken Make(LpTokenKind kind, std::size_t length);
  LpToken ReadNumber();
  LpToken ReadName();
  std::size_t SubscriptEnd(std::size_t open);

  TextSource const& source_;
  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t line_ = 1;
  bool lineBegins_ = true;
  std::size_t stop_ = 0;  // the first ']' or blank behind the last '[' looked at
  std::string problemName_;

  static constexpr std::size_t kAhead = 4;
  std::array<LpToken, kAhead> buffer_;
  std::size_t first_ = 0;
  std::size_t count_ = 0;
};

}  // namespace vorqsolver
