// Constraint: a linear row of a model.
#pragma once

#include "items/item.hpp"

namespace Vorq {

class Constraint : public NamedItem<kConstraintKind> {
 public:
  using NamedItem::NamedItem;

  int GetBasis();
  int GetLowerIIS();
  int GetUpperIIS();
  double Get(char const* name);
  void Set(char const* name, double value);
};

}  // namespace Vorq
