// Reading back constraints that are lists of variables: SOS, cones and exponential cones.
#pragma once

#include "model/model_live_items.hpp"

namespace Vorq {

// How one of these kinds is read. Kinds without weights leave `weights` alone.
struct VarListReader {
  int (*read)(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts, int* cols,
              double* weights, int capacity, int* required);
  char const* sizeFailed;
  char const* dataFailed;
};

inline void AddMember(SosBuilder& builder, Var const& var, double weight) {
  builder.vars.push_back(var);
  builder.weights.push_back(weight);
}
inline void AddMember(ConeBuilder& builder, Var const& var, double) {
  builder.vars.push_back(var);
}

template <class Builder, class Item>
std::vector<Builder> Model::GetVarListBuilders(VarListReader const& reader, std::vector<Item> const& items) {
  std::vector<int> chosen;
  chosen.reserve(items.size());
  for (Item const& item : items) chosen.push_back(item.Idx());
  int const count = chosen.empty() ? Count<Item>() : static_cast<int>(chosen.size());
  int const* const indices = chosen.empty() ? nullptr : chosen.data();

  SparseLines lines;
  std::vector<int> types(static_cast<std::size_t>(count));
  bool const hasRead = ReadTwice(
      [&](int* required) {
        return reader.read(Prob(), count, indices, nullptr, nullptr, nullptr, nullptr, nullptr, 0, required);
      },
      reader.sizeFailed,
      [&](int capacity) {
        lines.begin.resize(types.size());
        lines.count.resize(types.size());
        lines.index.resize(static_cast<std::size_t>(capacity));
        lines.value.resize(static_cast<std::size_t>(capacity));
        return reader.read(Prob(), count, indices, types.data(), lines.begin.data(), lines.count.data(),
                           lines.index.data(), lines.value.data(), capacity, nullptr);
      },
      reader.dataFailed);
  if (!hasRead) return {};

  auto const fill = [&](std::size_t line, Builder& builder) {
    builder.type = types[line];
    for (int k = lines.begin[line]; k < lines.begin[line] + lines.count[line]; ++k) {
      auto const position = static_cast<std::size_t>(k);
      Var const var = Get<Var>(lines.index[position]);
      if (status.Failed()) return false;
      AddMember(builder, var, lines.value[position]);
    }
    return true;
  };
  if (chosen.empty()) {
    return BuildersOfLive<Item, Builder>(
        [&](Item const& item, Builder& builder) { return fill(static_cast<std::size_t>(item.Idx()), builder); });
  }
  std::vector<Builder> builders(chosen.size());
  for (std::size_t line = 0; line < chosen.size(); ++line) {
    if (fill(line, builders[line])) continue;
    builders.resize(line);
    break;
  }
  return builders;
}

}  // namespace Vorq
