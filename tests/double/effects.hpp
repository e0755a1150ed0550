// What unscripted calls do to the store of their problem and give out: the effects that many functions share.
#pragma once

#include <string>

#include "tests/double/backstage.hpp"

namespace vorqtest {

inline std::string NameOf(char const* name) {
  return name == nullptr ? "" : name;
}

// One new item.
inline Effect AddsOne(Kind kind, char const* name = nullptr, int type = 'C', int dim = 0) {
  return [=](Store& store, Outputs&) {
    store.items[kind].push_back({.name = NameOf(name), .type = static_cast<char>(type), .dim = dim});
    return VORQ_OK;
  };
}

// New items; each array may be null.
inline Effect AddsMany(Kind kind, int count, char const* const* names = nullptr, char const* types = nullptr,
                       int const* dims = nullptr) {
  return [=](Store& store, Outputs&) {
    for (int i = 0; i < count; ++i) {
      store.items[kind].push_back({.name = names == nullptr ? "" : NameOf(names[i]),
                                   .type = types == nullptr ? 'C' : types[i],
                                   .dim = dims == nullptr ? 0 : dims[i]});
    }
    return VORQ_OK;
  };
}

inline Effect Deletes(Kind kind, int count, int const* indices) {
  return [=](Store& store, Outputs&) {
    store.Delete(kind, count, indices);
    return VORQ_OK;
  };
}

// Per item, by position: the scripted values of the function and the name.
inline Effect ReadsItems(char const* function, char const* name, int count, int const* indices, char const* output) {
  return [=](Store&, Outputs& outputs) {
    auto const* scripted = Backstage::Scripted(function, NameOf(name));
    if (scripted == nullptr) return VORQ_OK;
    std::vector<double> values;
    for (int k = 0; k < count; ++k) {
      auto const position = static_cast<std::size_t>(indices == nullptr ? k : indices[k]);
      values.push_back(position < scripted->size() ? (*scripted)[position] : kGarbage<double>);
    }
    outputs.emplace(output, std::move(values));
    return VORQ_OK;
  };
}

// One number: the scripted value of the function and the name.
inline Effect ReadsNamed(char const* function, char const* name) {
  return [=](Store&, Outputs& outputs) {
    if (auto const* scripted = Backstage::Scripted(function, NameOf(name))) {
      outputs.emplace("value", scripted->front());
    }
    return VORQ_OK;
  };
}

// A list as it was scripted for the function and the name.
inline Effect ReadsList(char const* function, char const* name, char const* output) {
  return [=](Store&, Outputs& outputs) {
    if (auto const* scripted = Backstage::Scripted(function, NameOf(name))) outputs.emplace(output, *scripted);
    return VORQ_OK;
  };
}

}  // namespace vorqtest
