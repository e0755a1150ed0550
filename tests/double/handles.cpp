// The making and the bookkeeping of handles.
#include "tests/double/handles.hpp"

#include <algorithm>

namespace vorqtest {
namespace {

constexpr std::size_t kConfigWords = 4;

// Odd addresses outside of what a process can map: whoever looks behind the handle crashes.
void* AwkwardAddress(HandleKind kind, int number) {
  auto const family = static_cast<std::uintptr_t>(kind) + 0xA1;
  return reinterpret_cast<void*>((family << 56) + static_cast<std::uintptr_t>(number) * 0x1000003 + 0x5D0B1E000000);
}

char const* KindName(HandleKind kind) {
  switch (kind) {
    case HandleKind::kEnv: return "env";
    case HandleKind::kProb: return "prob";
    case HandleKind::kConfig: return "config";
    case HandleKind::kData: return "data";
  }
  return "handle";
}

}  // namespace

void* Handles::Make(HandleKind kind, void const* parent, std::int32_t leadingWord) {
  int const number = ++made_[kind];
  void* address;
  if (kind == HandleKind::kConfig) {
    configRecords_.push_back(std::make_unique<std::int32_t[]>(kConfigWords));
    configRecords_.back()[0] = leadingWord;
    std::fill_n(configRecords_.back().get() + 1, kConfigWords - 1, -77777);
    address = configRecords_.back().get();
  } else {
    address = AwkwardAddress(kind, number);
  }
  handles_.insert_or_assign(address, Handle{kind, number, true, false, parent});
  return address;
}

Handle* Handles::Find(void const* handle) {
  auto const found = handles_.find(handle);
  return found == handles_.end() ? nullptr : &found->second;
}

std::string Handles::Label(void const* handle) const {
  if (handle == nullptr) return "null";
  auto const found = handles_.find(handle);
  if (found == handles_.end()) return "stranger";
  return std::string(KindName(found->second.kind)) + "#" + std::to_string(found->second.number);
}

int Handles::Live(HandleKind kind) const {
  return static_cast<int>(std::count_if(handles_.begin(), handles_.end(), [kind](auto const& entry) {
    return entry.second.kind == kind && entry.second.live;
  }));
}

std::vector<std::string> Handles::LiveChildren(void const* parent) const {
  std::vector<std::string> labels;
  for (auto const& [address, handle] : handles_) {
    if (handle.live && handle.parent == parent) labels.push_back(Label(address));
  }
  return labels;
}

}  // namespace vorqtest
