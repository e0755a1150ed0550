// Giving a caller's callback object to a model.
#pragma once

#include "vorqmodel/forward.h"

namespace Vorq {

class Model;

// Null takes the callback away. An object without a proxy, or one that is inside of a callback of another model, is
// refused with code 3 and changes nothing.
void SetCallback(Model& model, ICallback* callback, int contextMask);

}  // namespace Vorq
