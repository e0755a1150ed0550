// Envr: the environment, the root object from which models are made.
#pragma once

#include "frame/shared_ptr.hpp"
#include "frame/status.hpp"
#include "model/env_handle.hpp"
#include "model/envr_config.hpp"

namespace Vorq {

// An environment that cannot be opened is an object all the same, with the failure in its status.
class Envr {
 public:
  explicit Envr(ILogSink* sink);
  Envr(char const* path, ILogSink* sink);
  Envr(EnvrConfig const& config, ILogSink* sink);

  // Closes the solver library's environment at once, whatever models there are, and returns its code as it is.
  int Close();

  SharedPtr<EnvHandle> const& Handle() const { return handle_; }

 private:
  SharedPtr<EnvHandle> handle_;

 public:
  Status status;
};

}  // namespace Vorq
