// The handle on a problem buffer.
#pragma once

#include "handles/handle.hpp"
#include "model/prob_buffer.hpp"
#include "vorqmodel/problem_buffer.h"

class VorqProbBuffer final : public Vorq::Handle<VorqProbBuffer, Vorq::IProbBuffer, Vorq::ProbBuffer> {
 public:
  using Handle::Handle;

  char* GetData() override { return Impl().Data(); }
  int GetSize() override { return Impl().Size(); }
  void Resize(int n) override { Impl().Resize(n); }
};

template <>
struct Vorq::HandleTraits<Vorq::IProbBuffer> {
  using Handle = VorqProbBuffer;
};
