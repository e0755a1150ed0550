// Item: an object that stands for one thing in a solver problem. Copies share one ItemRec, and each copy has a Status
// of its own. All kinds are made from the templates below and one record of texts and functions (item_kinds.hpp).
#pragma once

#include <concepts>
#include <span>
#include <string_view>

#include "frame/flat_list.hpp"
#include "frame/shared_ptr.hpp"
#include "frame/status.hpp"
#include "items/item_kinds.hpp"
#include "items/item_rec.hpp"

namespace Vorq {

// What every kind has. A default-made item holds no record, and reads as one that stands for nothing.
class Item {
 public:
  Item() = default;
  Item(SharedPtr<ProbHandle> const& prob, std::string_view name, int idx)
      : record_(MakeShared<ItemRec>(prob, name, idx)) {}

  bool HasRecord() const { return static_cast<bool>(record_); }
  // Only with a record.
  ItemRec& Record() const { return *record_; }
  int Idx() const { return record_ ? record_->idx : kInvalidIndex; }
  bool IsLive() const { return Idx() >= 0; }

  // Marks a live item as removed, for the model's next flush to carry out. Any other item stays as it is.
  void MarkRemoved();

  // Asks for the memory that a copy, or the end of one, counts in. Worth it ahead of many that lie apart.
  void Prefetch() const { __builtin_prefetch(record_.Block(), 1); }

 protected:
  VORQ_Prob* Prob() const { return record_->prob->prob; }

 private:
  SharedPtr<ItemRec> record_;
};

// A read of one value: a failed one leaves `otherwise`, unless the solver library wrote something.
template <class T>
struct ItemQuery {
  ItemReader<T> read;
  char const* failure;
  T otherwise;
};

// A named piece of information that can be set, and the texts of a Set operation.
struct InfoSetter {
  char const* name;
  ItemWriter<double> write;
  char const* failure;
};
struct InfoSetterTable {
  char const* missingName;
  char const* unknownName;
  std::span<InfoSetter const> setters;
};

// An item whose operations report their failures.
class FallibleItem : public Item {
 public:
  FallibleItem() = default;
  using Item::Item;

  // Copying happens for every term of every expression: a clear status costs one test.
  FallibleItem(FallibleItem const& other) : Item(other) {
    if (other.status.Failed()) [[unlikely]]
      status = other.status;
  }
  FallibleItem(FallibleItem&&) noexcept = default;
  FallibleItem& operator=(FallibleItem const&) = default;
  FallibleItem& operator=(FallibleItem&&) noexcept = default;
  ~FallibleItem() = default;

  Status status;

 protected:
  // False, with the text recorded, for an item that is not live.
  bool CheckLive(char const* invalid);

  template <class T>
  T Query(ItemKind const& kind, ItemQuery<T> const& query) {
    T value = query.otherwise;
    if (CheckLive(kind.invalid)) SetStatus(status, query.read(Prob(), 1, &Record().idx, &value), "%s", query.failure);
    return value;
  }

  template <class T>
  void Assign(ItemKind const& kind, ItemWriter<T> write, T value, char const* failure) {
    if (CheckLive(kind.invalid)) SetStatus(status, write(Prob(), 1, &Record().idx, &value), "%s", failure);
  }

  double QueryInfo(ItemKind const& kind, InfoReader read, char const* name, char const* failure);
  void AssignInfo(ItemKind const& kind, InfoSetterTable const& table, char const* name, double value);
  void AssignName(ItemKind const& kind, char const* name);
  char const* FetchName(ItemKind const& kind) const;
};

// An item with a name.
template <ItemKind const& kKind>
class NamedItem : public FallibleItem {
 public:
  using FallibleItem::FallibleItem;

  // The solver takes the name as written, the cache takes it normalised.
  void SetName(char const* name) { AssignName(kKind, name); }

  // The cached name, fetched first where a live item has none. Never sets the status.
  char const* GetName() const { return FetchName(kKind); }
};

// A named item whose information is a square matrix: `len` is the number of its entries.
template <ItemKind const& kKind>
class MatrixItem : public NamedItem<kKind> {
 public:
  MatrixItem() = default;
  MatrixItem(SharedPtr<ProbHandle> const& prob, std::string_view name, int idx, int dimension = 0)
      : NamedItem<kKind>(prob, name, idx), dim(dimension), len(dimension * dimension) {}

  int dim = 0;
  int len = 0;

 protected:
  void ReadMatrix(InfoReader read, char const* failure, char const* name, double* out, int size) {
    if (!this->CheckLive(kKind.invalid)) return;
    if (len > size) {
      SetStatus(this->status, kInvalid, "Insufficient output buffer");
      return;
    }
    SetStatus(this->status, read(this->Prob(), name, 1, &this->Record().idx, out), "%s", failure);
  }
};

// An item is two addresses, of its record and of its failure, and neither knows where the item is.
template <std::derived_from<Item> T>
struct IsRelocatable<T> : std::true_type {};

}  // namespace Vorq
