// The building of the name index, and the lookup of names.
#include "vocabulary/param_attr_index.hpp"

#include <algorithm>
#include <cctype>

#include "frame/status.hpp"
#include "frame/vorq_solver.h"
#include "vocabulary/param_attr_rows.hpp"

namespace Vorq {
namespace {

char Lower(char c) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

std::string Lower(std::string name) {
  std::ranges::transform(name, name.begin(), [](char c) { return Lower(c); });
  return name;
}

}  // namespace

ParamAttrIndex const& ParamAttrIndex::Instance() {
  static ParamAttrIndex const index;
  return index;
}

ParamAttrIndex::ParamAttrIndex() {
  for (ParamAttrRow const& row : ParamAttrRows) {
    if (row.hidden != 0) continue;
    std::string const lower = Lower(row.name);
    canonicalNames[lower] = row.name;
    Node* node = &root;
    for (char const c : lower) {
      std::unique_ptr<Node>& child = node->children[c];
      if (!child) child = std::make_unique<Node>();
      node = child.get();
    }
    node->terminal = true;
    node->type = row.type;
  }
}

int ParamAttrIndex::Find(char const* name, std::string& canonical) const {
  Node const* node = &root;
  for (char const* c = name; *c != '\0'; ++c) {
    auto const child = node->children.find(Lower(*c));
    if (child == node->children.end()) return -1;
    node = child->second.get();
  }
  if (!node->terminal) return -1;
  canonical = canonicalNames.at(Lower(std::string(name)));
  return node->type;
}

int SearchParamAttrName(char const* name, std::string& canonical) {
  if (name == nullptr || *name == '\0') return -1;
  canonical = name;
  int const found = ParamAttrIndex::Instance().Find(name, canonical);
  if (found >= 0) return found;
  int kind = -1;
  CheckRetcode(VORQ_SearchParamAttr(nullptr, name, &kind));
  return kind;
}

}  // namespace Vorq
