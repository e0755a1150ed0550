// Views: which positions of each axis to look at. The first operation is for axis 0, the next for axis 1, and so on;
// axes without an operation are seen whole.
//
//     view->Scalar(1);                       // the second row, ...
//     view->Slice(0, 0, -1, 4 + 2);          // ... backwards
//     Vorq::INdArray<double, 2>* row = array->View(view);
#ifndef VORQMODEL_VIEWS_H
#define VORQMODEL_VIEWS_H

#include <cstdint>

#include "vorqmodel/forward.h"

namespace Vorq {

// Each operation is appended to the view on which it is called, and a copy of that view is returned: both hold it.
class IView {
 public:
  virtual ~IView() = default;

  virtual IView* Full() = 0;
  // One position, as an axis of size 1. Negative ones count from the end. Not checked.
  virtual IView* Scalar(std::int64_t index) = 0;
  // Every step-th position from start up to stop, which is not reached. `flags` marks what is left out: 1 the step,
  // 2 stop, 4 start.
  virtual IView* Slice(std::int64_t start, std::int64_t stop, std::int64_t step, int flags) = 0;
};

}  // namespace Vorq

#endif
