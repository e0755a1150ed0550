// Opening an environment: the solver library's banner is fetched first, and shown once the environment was asked for.
#include "model/envr.hpp"

#include <cstdint>
#include <cstring>
#include <iostream>

namespace Vorq {
namespace {

constexpr int kBannerSize = 1024;
constexpr int kBannerCapacity = 1020;

// A config whose leading word is set asks for silence.
bool WantsBanner(VORQ_EnvConfig const* config) {
  if (config == nullptr) return true;
  std::int32_t word = 0;
  std::memcpy(&word, static_cast<void const*>(config), sizeof word);
  return word == 0;
}

int Open(EnvHandle& handle, VORQ_EnvConfig* config, char const* path) {
  char banner[kBannerSize] = {};
  if (WantsBanner(config)) {
    int const code = VORQ_GetBanner(banner, kBannerCapacity);
    if (code != kOk) return code;
  }
  int const code =
      config == nullptr ? VORQ_CreateEnvWithPath(path, &handle.env) : VORQ_CreateEnvWithConfig(config, &handle.env);
  if (banner[0] == '\0') return code;
  if (handle.sink != nullptr) {
    handle.sink->Log(banner);
  } else {
    std::cout << banner << std::endl;
  }
  return code;
}

}  // namespace

Envr::Envr(ILogSink* sink) : handle_(MakeShared<EnvHandle>(sink)) {
  SetStatus(status, Open(*handle_, nullptr, nullptr), "Fail to create VORQ environment");
}

Envr::Envr(char const* path, ILogSink* sink) : handle_(MakeShared<EnvHandle>(sink)) {
  SetStatus(status, Open(*handle_, nullptr, path), "Fail to create VORQ environment with path");
}

Envr::Envr(EnvrConfig const& config, ILogSink* sink) : handle_(MakeShared<EnvHandle>(sink)) {
  SetStatus(status, Open(*handle_, config.Config(), nullptr), "Fail to create VORQ environment with config");
}

int Envr::Close() {
  return VORQ_CloseEnv(&handle_->env);
}

}  // namespace Vorq
