// Filling the tables with fresh items: after a problem was loaded, and in a clone.
#include "model/model.hpp"

namespace Vorq {
namespace {

template <class Item>
concept HasDimension = requires(Item item) {
  item.dim;
};

}  // namespace

// `dims` is empty for kinds without dimensions.
template <class Item>
bool Model::ReloadTable(ModelCore& target, std::vector<int> const& dims) {
  ItemTable<Item>& table = target.Table<Item>();
  table.items.clear();
  table.items.reserve(static_cast<std::size_t>(std::max(table.count, 0)));
  for (int i = 0; i < table.count; ++i) {
    if constexpr (HasDimension<Item>) {
      table.items.emplace_back(target.prob, std::string(), i, dims[static_cast<std::size_t>(i)]);
    } else {
      table.items.emplace_back(target.prob, std::string(), i);
    }
  }
  return true;
}

void Model::ReloadItems() {
  core_->prob->dirty = false;
  bool const counted = ForEachKind(AllKinds(), [this]<class Item>() {
    int const count = GetIntAttr(kModelKind<Item>.countAttribute);
    if (!status.Failed()) core_->Table<Item>().count = count;
    return !status.Failed();
  });
  if (!counted) return;
  core_->mipStart.clear();
  ForEachKind(AllKinds(), [this]<class Item>() {
    ModelKind const& kind = kModelKind<Item>;
    std::vector<int> dims;
    if (kind.loadDims != nullptr && Count<Item>() > 0) {
      core_->Table<Item>().items.clear();
      dims.resize(static_cast<std::size_t>(Count<Item>()));
      if (!Record(kind.loadDims(Prob(), dims), kind.reloadDimsFailed)) return false;
    }
    ReloadTable<Item>(*core_, dims);
    if constexpr (std::is_same_v<Item, Var>) TellColumnCount();
    return true;
  });
}

template <class Item>
bool Model::CloneTable(ModelCore& copy) {
  [[maybe_unused]] ModelKind const& kind = kModelKind<Item>;
  ItemTable<Item> const& source = core_->Table<Item>();
  std::vector<int> dims;
  if constexpr (HasDimension<Item>) {
    dims.resize(static_cast<std::size_t>(std::max(source.count, 0)));
    if (kind.cloneDimsFailed == nullptr) {
      // The table can differ from its counter after a reload that broke off.
      for (std::size_t i = 0; i < std::min(dims.size(), source.items.size()); ++i) dims[i] = source.items[i].dim;
    } else if (!dims.empty() && !Record(kind.loadDims(copy.prob->prob, dims), kind.cloneDimsFailed)) {
      return false;
    }
  }
  copy.Table<Item>().count = source.count;
  return ReloadTable<Item>(copy, dims);
}

SharedPtr<ModelCore> Model::Clone() {
  bool const flushed = ApplyRemovals();
  auto copy = MakeShared<ModelCore>();
  copy->env = core_->env;
  copy->prob = MakeShared<ProbHandle>(*core_->prob);
  copy->name = core_->name + "_copy";
  if (copy->prob->prob == nullptr) {
    Record(kMemory, "Critical: fail to clone problem");
  } else if (flushed) {
    ForEachKind(AllKinds(), [&]<class Item>() { return CloneTable<Item>(*copy); });
  }
  return copy;
}

}  // namespace Vorq
