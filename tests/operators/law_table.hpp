// All operations of the operators' interface as data.
#pragma once

#include <string>
#include <vector>

#include "tests/operators/operand_fixture.hpp"
#include "vorqmodel/broadcast_helper.h"

namespace vorqtest {

enum class Kind { Var, Lin, Quad, Psd, Dbl, Lng, Int };

// One operation. The operands are passed as pointers to their interfaces.
struct LawEntry {
  int leftRank;
  int rightRank;
  int resultRank;
  Outcome (*call)(Vorq::IBroadCastHelper& helper, void* left, void* right);
};

struct LawGroup {
  std::string operation;
  Kind left;
  Kind right;
  std::string name;  // "Add_Var_Quad"
  std::vector<LawEntry> entries;

  friend std::ostream& operator<<(std::ostream& out, LawGroup const& group) { return out << group.name; }
};

std::vector<LawGroup> const& LawGroups();

}  // namespace vorqtest
