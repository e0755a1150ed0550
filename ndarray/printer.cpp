// The recursive printer of arrays.
#include "ndarray/printer.hpp"

#include <locale>
#include <sstream>

namespace Vorq {
namespace {

class Printer {
 public:
  using WriteElement = std::function<void(std::ostream&, std::int64_t)>;

  Printer(std::uint64_t limit, WriteElement const& writeElement) : limit_(limit), writeElement_(writeElement) {
    stream_.imbue(std::locale::classic());
  }

  // Prints one level, a later one of its block indented. False when the limit was met.
  bool PrintLevel(std::span<Axis const> axes, std::int64_t position, std::string const& indentation, bool first) {
    if (!first) stream_ << indentation;
    stream_ << '[';
    bool const innermost = axes.size() == 1;
    if (!(innermost ? PrintElements(axes.front(), position) : PrintRows(axes, position, indentation))) return false;
    // The bracket of an outer level stands on a line of its own, below its rows.
    if (!innermost && axes.front().size != 0) stream_ << indentation;
    stream_ << "]\n";
    return true;
  }

  void PrintElement(std::int64_t position) { writeElement_(stream_, position); }

  std::string Text() const { return stream_.str(); }

 private:
  bool PrintElements(Axis const& axis, std::int64_t position) {
    for (std::uint64_t i = 0; i < axis.size; ++i) {
      if (static_cast<std::uint64_t>(stream_.tellp()) >= limit_) {
        stream_ << "...";
        return false;
      }
      PrintElement(position);
      if (i + 1 < axis.size) stream_ << ", ";
      position = AddWrapped(position, axis.stride);
    }
    return true;
  }

  bool PrintRows(std::span<Axis const> axes, std::int64_t position, std::string const& indentation) {
    for (std::uint64_t i = 0; i < axes.front().size; ++i) {
      if (!PrintLevel(axes.subspan(1), position, indentation + " ", i == 0)) return false;
      position = AddWrapped(position, axes.front().stride);
    }
    return true;
  }

  std::uint64_t limit_;
  WriteElement const& writeElement_;
  std::ostringstream stream_;
};

}  // namespace

std::string PrintAxes(std::span<Axis const> axes, std::int64_t start, std::uint64_t limit,
                      std::function<void(std::ostream&, std::int64_t)> const& writeElement) {
  Printer printer(limit, writeElement);
  if (axes.empty()) {
    printer.PrintElement(start);
  } else {
    printer.PrintLevel(axes, start, "", true);
  }
  return printer.Text();
}

}  // namespace Vorq
