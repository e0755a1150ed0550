// Templates of Model for operations that pass over items that are not live: outputs are without gaps.
#pragma once

#include "model/model.hpp"

namespace Vorq {

template <class Item, class Builder, class Fill>
std::vector<Builder> Model::BuildersOfLive(Fill fill) {
  std::vector<Builder> builders;
  for (int i = 0; i < Count<Item>(); ++i) {
    Item item = Get<Item>(i);
    if (status.Failed()) return builders;
    if (!item.IsLive()) continue;
    Builder builder;
    if (!fill(item, builder)) return builders;
    builders.push_back(std::move(builder));
  }
  return builders;
}

template <class Item>
std::vector<int> Model::LiveIndices(std::vector<Item> const& items) {
  std::vector<int> indices;
  // Never null, also when it stays empty: a null list would stand for all items.
  indices.reserve(items.size() + 1);
  for (Item const& item : items) {
    if (item.IsLive()) indices.push_back(item.Idx());
  }
  return indices;
}

template <class Item, class T>
int Model::ReadLive(ItemReader<T> read, std::vector<Item> const& items, T* out, char const* text) {
  std::vector<int> const indices = LiveIndices(items);
  int const count = static_cast<int>(indices.size());
  Record(read(Prob(), count, indices.data(), out), text);
  return count;
}

}  // namespace Vorq
