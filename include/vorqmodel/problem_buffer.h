// A growable text buffer, the result of IModel::WriteMpsStr.
#ifndef VORQMODEL_PROBLEM_BUFFER_H
#define VORQMODEL_PROBLEM_BUFFER_H

#include "vorqmodel/forward.h"

namespace Vorq {

// A byte array whose last byte is a terminating zero.
class IProbBuffer {
 public:
  virtual ~IProbBuffer() = default;

  // The bytes, valid until the next Resize.
  virtual char* GetData() = 0;

  // The number of bytes, the terminating zero included.
  virtual int GetSize() = 0;

  // Makes room for `n` characters and the terminating zero; keeps what fits, fills up with zeros. Below 0 counts as 0.
  virtual void Resize(int n) = 0;
};

}  // namespace Vorq

#endif
