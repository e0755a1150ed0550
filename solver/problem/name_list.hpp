// NameList: the names of the items of one kind, by position and by name.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vorqsolver {

// Names are empty until set. Nothing is stored while all names are empty; the index by name is built when first asked
// for, kept up while unnamed items get names, and dropped by any other change. Where several items bear one name, the
// lookup gives the first.
class NameList {
 public:
  // The name at `position`, the empty one where none was set.
  std::string_view Get(int position) const;

  // The first position that bears `name`; none for the empty name.
  std::optional<int> Find(std::string_view name) const;

  // One behind the last position that bears a name.
  int End() const;

  void Set(int position, std::string_view name) {
    if (!name.empty() || static_cast<std::size_t>(position) < names_.size()) Store(position, name);
  }
  void Clear();

  // Forgets the names at `count` and behind; takes no memory.
  void Truncate(int count);

  // Closes the gaps: `deleted` is ascending and without duplicates.
  void Delete(std::span<int const> deleted);

 private:
  void Store(int position, std::string_view name);
  void DropIndex();

  std::vector<std::string> names_;
  mutable std::unordered_map<std::string, int> index_;
  mutable bool indexed_ = false;
};

}  // namespace vorqsolver
