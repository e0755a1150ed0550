// The index of the public names of the name table, which makes case irrelevant and spares a call of the solver library.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace Vorq {

class ParamAttrIndex {
 public:
  // The one index of the library, built on first use.
  static ParamAttrIndex const& Instance();

  // The kind of `name` and its spelling in the table, -1 for a name that is not in the index.
  int Find(char const* name, std::string& canonical) const;

 private:
  struct Node {
    std::int32_t type = -1;
    bool terminal = false;
    std::map<char, std::unique_ptr<Node>> children;
  };

  ParamAttrIndex();

  std::map<std::string, std::string> canonicalNames;
  Node root;
};

// The kind of `name` (ParamAttrRow::type), -1 for an unknown name, and its spelling for the solver library. Names that
// are not in the index go to the solver library as they are; if its search fails, this throws Vorq::Exception.
int SearchParamAttrName(char const* name, std::string& canonical);

}  // namespace Vorq
