// The exported functions around the environment: environments, their settings, models, problem buffers, the version.
#include "handles/environment.hpp"

#include <iterator>

#include "handles/problem_buffer.hpp"
#include "vorqmodel/exports.h"

using Vorq::Unwrap;
using Vorq::Wrap;

extern "C" {

Vorq::IEnvr* CreateEnvr(Vorq::ILogSink* sink) {
  return Wrap<Vorq::IEnvr>(sink);
}
Vorq::IEnvr* CreateEnvrWithPath(char const* path, Vorq::ILogSink* sink) {
  return Wrap<Vorq::IEnvr>(path, sink);
}
Vorq::IEnvr* CreateEnvrWithConfig(Vorq::IEnvrConfig* config, Vorq::ILogSink* sink) {
  return Wrap<Vorq::IEnvr>(Unwrap(config), sink);
}
Vorq::IEnvrConfig* CreateEnvrConfig() {
  return Wrap<Vorq::IEnvrConfig>();
}
Vorq::IModel* CreateModel(Vorq::IEnvr* envr, char const* name) {
  return envr->CreateModel(name);
}
Vorq::IProbBuffer* CreateProbBuffer(int size) {
  return Wrap<Vorq::IProbBuffer>(size);
}

int GetVorqVersion(int selector) {
  static constexpr int kVersion[] = {7, 2, 5};
  return selector >= 0 && selector < std::ssize(kVersion) ? kVersion[selector] : -1;
}

}  // extern "C"
