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

 protected:
  // False, with the failure recorded, if an object is null.
  template <class... Objects>
  bool Given(char const* operation, Objects const*... objects) {
    if (((objects != nullptr) && ...)) return true;
    SetStatus(Impl().status, kInvalid, "%s is given a null object", operation);
    return false;
  }
};

}  // namespace Vorq
