// The conic items. A cone and an exponential cone have neither name nor status.
#pragma once

#include "items/item.hpp"

namespace Vorq {

class Cone : public Item {
 public:
  using Item::Item;
};

class ExpCone : public Item {
 public:
  using Item::Item;
};

class AffineCone : public NamedItem<kAffineConeKind> {
 public:
  using NamedItem::NamedItem;
};

}  // namespace Vorq
