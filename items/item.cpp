// The operations that all kinds of items share.
#include "items/item.hpp"

#include <vector>

#include "items/equals_no_case.hpp"
#include "items/normalize_name.hpp"

namespace Vorq {
namespace {

// What the solver library calls the item now; the empty name where it cannot tell.
std::string ReadName(NameReader read, VORQ_Prob* prob, int idx) {
  std::vector<char> buffer(128);
  int required = 0;
  int const code = read(prob, idx, buffer.data(), static_cast<int>(buffer.size()), &required);
  if (code == kInvalid && required > 0) {
    buffer.resize(static_cast<std::size_t>(required));
    read(prob, idx, buffer.data(), required, nullptr);
  }
  buffer.push_back('\0');
  return buffer.data();
}

}  // namespace

void Item::MarkRemoved() {
  if (!IsLive()) return;
  ItemRec& record = *record_;
  record.idx = RemovedIndex(record.idx);
  record.prob->dirty = true;
}

bool FallibleItem::CheckLive(char const* invalid) {
  if (IsLive()) return true;
  SetStatus(status, kInvalid, "%s", invalid);
  return false;
}

double FallibleItem::QueryInfo(ItemKind const& kind, InfoReader read, char const* name, char const* failure) {
  double value = kNoDouble;
  if (CheckLive(kind.invalid)) SetStatus(status, read(Prob(), name, 1, &Record().idx, &value), "%s", failure);
  return value;
}

void FallibleItem::AssignInfo(ItemKind const& kind, InfoSetterTable const& table, char const* name, double value) {
  if (name == nullptr || *name == '\0') {
    SetStatus(status, kInvalid, "%s", table.missingName);
    return;
  }
  if (!CheckLive(kind.invalid)) return;
  for (InfoSetter const& setter : table.setters) {
    if (!EqualsNoCase(name, setter.name)) continue;
    SetStatus(status, setter.write(Prob(), 1, &Record().idx, &value), "%s", setter.failure);
    return;
  }
  SetStatus(status, kInvalid, "%s", table.unknownName);
}

void FallibleItem::AssignName(ItemKind const& kind, char const* name) {
  if (!CheckLive(kind.invalidForSetName) || name == nullptr) return;
  Record().name = NormalizeName(name);
  SetStatus(status, kind.setNames(Prob(), 1, &Record().idx, &name), "%s", kind.setNameFailure);
}

char const* FallibleItem::FetchName(ItemKind const& kind) const {
  if (!HasRecord()) return "";
  ItemRec& record = Record();
  if (record.idx >= 0 && record.name.empty()) record.name = ReadName(kind.getName, Prob(), record.idx);
  return record.name.c_str();
}

}  // namespace Vorq
