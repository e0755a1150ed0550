// The handles on an environment and on its settings.
#pragma once

#include "handles/model.hpp"
#include "model/envr.hpp"
#include "vorqmodel/environment.h"

class VorqEnvr final : public Vorq::Handle<VorqEnvr, Vorq::IEnvr, Vorq::Envr> {
 public:
  using Handle::Handle;

  Vorq::IModel* CreateModel(char const* name) override { return Vorq::Wrap<Vorq::IModel>(Impl(), name); }
  int Close() override { return Impl().Close(); }
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }
};

class VorqEnvrConfig final : public Vorq::Handle<VorqEnvrConfig, Vorq::IEnvrConfig, Vorq::EnvrConfig> {
 public:
  using Handle::Handle;

  void Set(char const* name, char const* value) override { Impl().Set(name, value); }
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }
};

namespace Vorq {

template <>
struct HandleTraits<IEnvr> {
  using Handle = VorqEnvr;
};
template <>
struct HandleTraits<IEnvrConfig> {
  using Handle = VorqEnvrConfig;
};

}  // namespace Vorq
