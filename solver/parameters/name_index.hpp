// NameIndex: finds a row of a table by its name, in any mix of case.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace vorqsolver {

inline char AsciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool LessIgnoringCase(std::string_view left, std::string_view right) {
  return std::ranges::lexicographical_compare(left, right, {}, AsciiLower, AsciiLower);
}

inline bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, AsciiLower, AsciiLower);
}

class NameIndex {
 public:
  // `rows` have a member `name` that outlives the index.
  template <class Rows>
  explicit NameIndex(Rows const& rows) {
    for (auto const& row : rows) entries_.push_back({row.name, entries_.size()});
    std::ranges::sort(entries_, LessIgnoringCase, &Entry::name);
  }

  // The position of the row that bears `name`.
  std::optional<std::size_t> Find(std::string_view name) const {
    auto const found = std::ranges::lower_bound(entries_, name, LessIgnoringCase, &Entry::name);
    if (found == entries_.end() || !EqualIgnoringCase(found->name, name)) return std::nullopt;
    return found->position;
  }

 private:
  struct Entry {
    std::string_view name;
    std::size_t position;
  };
  std::vector<Entry> entries_;
};

}  // namespace vorqsolver
