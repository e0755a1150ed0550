// ItemName: the name of an item. There is one for each column and row, and most are short or empty, so a short name
// stands in the object, and a longer one in memory of its own.
#pragma once

#include <cstddef>
#include <string_view>

namespace Vorq {

class ItemName {
 public:
  ItemName() = default;
  explicit ItemName(std::string_view text) {
    if (!text.empty()) Assign(text);
  }
  ItemName(ItemName const&) = delete;
  ItemName& operator=(ItemName const&) = delete;
  ItemName& operator=(std::string_view text) {
    Assign(text);
    return *this;
  }
  ~ItemName() { Clear(); }

  bool empty() const { return bytes_[0] == '\0' && !IsLong(); }
  // Closed by a zero byte; valid until the name changes.
  char const* c_str() const { return IsLong() ? LongText() : bytes_; }

  friend bool operator==(ItemName const& name, std::string_view text) { return name.c_str() == text; }

 private:
  static constexpr std::size_t kSize = 12;

  // The last byte closes a short name, or tells that the first ones are the address of a long one.
  bool IsLong() const { return bytes_[kSize - 1] != '\0'; }
  char* LongText() const;
  void Assign(std::string_view text);
  void Clear() {
    if (IsLong()) delete[] LongText();
  }

  char bytes_[kSize] = {};
};

}  // namespace Vorq
