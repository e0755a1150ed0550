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

// What a failed operation of any kind returns: no object, or the mark of a failed read.
struct NoResult {
  template <class T>
  operator T*() const {
    return nullptr;
  }
  operator int() const { return kNoInt; }
  operator double() const { return kNoDouble; }
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

  // The answer of operations that do not exist yet.
  NoResult NotImplemented(char const* operation) {
    SetStatus(Impl().status, kInternal, "%s is not implemented yet", operation);
    return {};
  }
};

}  // namespace Vorq
