// Copying and deleting the problem behind a handle.
#include "items/prob_handle.hpp"

namespace Vorq {

ProbHandle::ProbHandle(ProbHandle const& other) : dirty(other.dirty) {
  VORQ_CreateCopy(other.prob, &prob);
}

ProbHandle& ProbHandle::operator=(ProbHandle const& other) {
  if (this == &other) return *this;
  Delete();
  dirty = other.dirty;
  VORQ_CreateCopy(other.prob, &prob);
  return *this;
}

void ProbHandle::Delete() noexcept {
  if (prob != nullptr) VORQ_DeleteProb(&prob);
  prob = nullptr;
}

}  // namespace Vorq
