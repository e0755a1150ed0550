// The index by name is made on the first lookup, so that loading a problem that nobody searches costs nothing for it.
#include "solver/problem/name_list.hpp"

#include <algorithm>

#include "solver/problem/remaining.hpp"

namespace vorqsolver {

std::string_view NameList::Get(int position) const {
  auto const place = static_cast<std::size_t>(position);
  return place < names_.size() ? std::string_view(names_[place]) : std::string_view();
}

std::optional<int> NameList::Find(std::string_view name) const {
  if (name.empty()) return std::nullopt;
  if (!indexed_) {
    index_.reserve(names_.size());
    for (std::size_t place = 0; place < names_.size(); ++place) {
      if (!names_[place].empty()) index_.try_emplace(names_[place], static_cast<int>(place));
    }
    indexed_ = true;
  }
  auto const found = index_.find(std::string(name));
  if (found == index_.end()) return std::nullopt;
  return found->second;
}

int NameList::End() const {
  auto end = names_.size();
  while (end > 0 && names_[end - 1].empty()) --end;
  return static_cast<int>(end);
}

void NameList::Store(int position, std::string_view name) {
  auto const place = static_cast<std::size_t>(position);
  if (place >= names_.size()) names_.resize(place + 1);
  if (names_[place] == name) return;
  if (indexed_ && names_[place].empty()) {
    auto const [entry, added] = index_.try_emplace(std::string(name), position);
    if (!added) entry->second = std::min(entry->second, position);
  } else {
    DropIndex();
  }
  names_[place] = name;
}

void NameList::Clear() {
  names_.clear();
  DropIndex();
}

void NameList::Truncate(int count) {
  if (static_cast<std::size_t>(count) >= names_.size()) return;
  names_.resize(static_cast<std::size_t>(count));
  DropIndex();
}

void NameList::Delete(std::span<int const> deleted) {
  KeepRemaining(names_, deleted);
  DropIndex();
}

void NameList::DropIndex() {
  index_.clear();
  indexed_ = false;
}

}  // namespace vorqsolver
