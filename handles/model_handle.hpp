// What the topics of the model's handle stand on.
#pragma once

#include "handles/handle.hpp"
#include "model/model.hpp"
#include "vorqmodel/model.h"

class VorqModel;

namespace Vorq {

template <>
struct HandleTraits<IModel> {
  using Handle = VorqModel;
};

class ModelHandle : public Handle<VorqModel, IModel, Model> {
 public:
  using Handle::Handle;
};

}  // namespace Vorq
