// QConstraint: a quadratic constraint of a model.
#pragma once

#include "items/item.hpp"

namespace Vorq {

class QConstraint : public NamedItem<kQConstraintKind> {
 public:
  using NamedItem::NamedItem;

  double GetRhs();
  char GetSense();
  void SetRhs(double rhs);
  void SetSense(char sense);
  double Get(char const* name);

  // There is nothing that can be set by name: always a failure.
  void Set(char const* name, double value);
};

}  // namespace Vorq
