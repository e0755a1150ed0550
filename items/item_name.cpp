// Where names stand.
#include "items/item_name.hpp"

#include <algorithm>
#include <cstring>

namespace Vorq {

char* ItemName::LongText() const {
  char* text = nullptr;
  std::memcpy(&text, bytes_, sizeof text);
  return text;
}

void ItemName::Assign(std::string_view text) {
  if (text.size() < kSize) {
    char bytes[kSize] = {};
    std::copy(text.begin(), text.end(), bytes);
    Clear();
    std::memcpy(bytes_, bytes, kSize);
    return;
  }
  char* const copy = new char[text.size() + 1];
  *std::copy(text.begin(), text.end(), copy) = '\0';
  Clear();
  std::memcpy(bytes_, &copy, sizeof copy);
  bytes_[kSize - 1] = 1;
}

}  // namespace Vorq
