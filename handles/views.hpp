// The handle on views.
#pragma once

#include "handles/handle.hpp"
#include "ndarray/view.hpp"
#include "vorqmodel/views.h"

class VorqView;

template <>
struct Vorq::HandleTraits<Vorq::IView> {
  using Handle = VorqView;
};

class VorqView final : public Vorq::Handle<VorqView, Vorq::IView, Vorq::View> {
 public:
  using Vorq::Handle<VorqView, Vorq::IView, Vorq::View>::Handle;

  Vorq::IView* Full() override { return Vorq::Wrap<Vorq::IView>(Impl().Full()); }
  Vorq::IView* Scalar(std::int64_t index) override { return Vorq::Wrap<Vorq::IView>(Impl().Scalar(index)); }
  Vorq::IView* Slice(std::int64_t start, std::int64_t stop, std::int64_t step, int flags) override {
    return Vorq::Wrap<Vorq::IView>(Impl().Slice(start, stop, step, flags));
  }
};
