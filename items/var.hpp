// Var: a variable of a model.
#pragma once

#include "items/item.hpp"

namespace Vorq {

class Var : public NamedItem<kVarKind> {
 public:
  using NamedItem::NamedItem;

  char GetType() const;
  void SetType(char type);
  int GetBasis();
  int GetLowerIIS();
  int GetUpperIIS();
  double Get(char const* name);
  void Set(char const* name, double value);

  // The value at the solution; NaN, and the failure in the status, where it cannot be fetched.
  double Value();
};

}  // namespace Vorq
