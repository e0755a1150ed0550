// TextSource: the text of a file with its name, for failures that tell file, line and cause; LineReader walks its
// lines. Plain and gzip files are read alike.
#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

#include "solver/problem/failure.hpp"

namespace vorqsolver {

struct TextSource {
  std::string name;
  std::string text;
};

// Reads the whole file. Fails with VORQ_FILE where it cannot be opened, read or unpacked, and for more than 4 GiB of
// text. A packed file may unpack to 64 MiB, beyond that to 200 times its own size: more is no problem but an attack.
TextSource LoadText(std::string const& path);

// The text without a byte order mark. Fails with VORQ_FILE for a text with zero bytes.
std::string_view CheckedText(TextSource const& source);

// A piece of a file as a message shows it: its beginning, if it is long, and '?' for control characters.
std::string Shown(std::string_view text);

template <typename Piece>
auto ShownPiece(Piece const& piece) {
  if constexpr (std::same_as<Piece, std::string_view> || std::same_as<Piece, std::string>) {
    return Shown(piece);
  } else if constexpr (std::convertible_to<Piece const&, std::string_view>) {
    return std::string_view(piece);
  } else {
    return piece;
  }
}

// Throws Failure(VORQ_FILE) with the text "name:line: pieces".
template <typename... Pieces>
[[noreturn]] void RefuseText(TextSource const& source, std::size_t line, Pieces const&... pieces) {
  throw Failure(VORQ_FILE, Text(source.name, ":", line, ": ", ShownPiece(pieces)...));
}

// As RefuseText, for a cause that lies in the problem and not in the file.
template <typename... Pieces>
[[noreturn]] void RefuseContent(TextSource const& source, std::size_t line, Pieces const&... pieces) {
  throw Failure(VORQ_INVALID, Text(source.name, ":", line, ": ", ShownPiece(pieces)...));
}

class LineReader {
 public:
  explicit LineReader(TextSource const& source) : source_(source), rest_(CheckedText(source)) {}

  // Goes to the next line; false at the end of the text.
  bool Next();

  std::string_view Line() const { return line_; }  // without the line end
  std::size_t Number() const { return number_; }
  TextSource const& Source() const { return source_; }

  template <typename... Pieces>
  [[noreturn]] void Refuse(Pieces const&... pieces) const {
    RefuseText(source_, number_ == 0 ? 1 : number_, pieces...);
  }

 private:
  TextSource const& source_;
  std::string_view rest_;
  std::string_view line_;
  std::size_t number_ = 0;
};

inline bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}
std::string_view Trim(std::string_view text);
bool EqualsNoCase(std::string_view a, std::string_view b);

// The next word of `text`, which is cut off from it; the empty text where there is none.
std::string_view NextWord(std::string_view& text);

enum class NumberForm { kNone, kNumber, kOutOfRange };

// Independent of the locale. The whole of `text` must be a number, with a sign or without; "inf" and "infinity" in any
// mix of case give an infinite value.
NumberForm ParseNumber(std::string_view text, double& value);

// The number, or a failure that tells the line. Infinite values come back as kInfinity and its negative.
double NumberAt(TextSource const& source, std::size_t line, std::string_view text);

// As NumberAt, but infinite values are refused.
double FiniteNumberAt(TextSource const& source, std::size_t line, std::string_view text);

// A whole number in the range of an int.
int IntegerAt(TextSource const& source, std::size_t line, std::string_view text);

// How many items a file may claim without stating them one by one, such as free columns: a million, and beyond that as
// many as the file has bytes. So a short file cannot ask for all memory.
std::size_t MostClaimedItems(TextSource const& source);

}  // namespace vorqsolver
