// The logical items: GenConstr, an indicator constraint; Sos, a special ordered set.
#pragma once

#include "items/item.hpp"

namespace Vorq {

class GenConstr : public NamedItem<kGenConstrKind> {
 public:
  using NamedItem::NamedItem;

  int GetIIS();
};

class Sos : public FallibleItem {
 public:
  using FallibleItem::FallibleItem;

  int GetIIS();
};

}  // namespace Vorq
