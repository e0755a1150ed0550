// The C functions on environments and their settings, the banner, and the texts of return codes.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

#include "frame/vorq_solver.h"
#include "solver/api/guard.hpp"
#include "solver/files/parameter_file.hpp"
#include "solver/parameters/name_index.hpp"
#include "solver/problem/environment.hpp"
#include "solver/tasks/solve.hpp"

using namespace vorqsolver;

// Callers read the leading word: when it is not 0, they show no banner.
struct VORQ_EnvConfig {
  std::int32_t silent = 0;
  ParameterSet parameters;
};
static_assert(std::is_standard_layout_v<VORQ_EnvConfig>);

namespace {

constexpr char const* kSettingsFile = "vorq.par";

std::string Banner() {
  std::string engines;
  for (auto const& engine : Engines())
    engines += Text(engines.empty() ? "" : ", ", engine->Name(), ' ', engine->Version());
  return Text("Vorq 7.2.5, optimisation solver library (engines: ", engines, ")");
}

std::string_view RetcodeText(int code) {
  switch (code) {
    case VORQ_OK: return "Success";
    case VORQ_MEMORY: return "Out of memory";
    case VORQ_FILE: return "File cannot be opened, read or written";
    case VORQ_INVALID: return "Invalid argument or operation";
    case VORQ_INTERNAL: return "Internal failure";
    case VORQ_THREAD: return "Failure of a thread";
    case VORQ_SERVER: return "Failure of a server";
    case VORQ_NONCONVEX: return "Problem is not convex";
    default: return "Unknown return code";
  }
}

// A text that is longer than the buffer is cut to fit.
void CopyText(std::string_view text, char* buffer, int capacity) {
  Need(buffer, "buffer");
  if (capacity < 1) Refuse("The buffer has no room");
  std::size_t const length = std::min(text.size(), static_cast<std::size_t>(capacity) - 1);
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
}

// `base` with what the settings file at `path` says. A directory need not have one.
ParameterSet LoadSettings(std::string const& path, ParameterSet const& base) {
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) return ReadParameterFile(path, base);
  std::filesystem::path const file = std::filesystem::path(path) / kSettingsFile;
  return std::filesystem::exists(file, error) ? ReadParameterFile(file.string(), base) : base;
}

// `make()` gives the environment as a unique_ptr; on failure the caller's pointer becomes null.
template <class Handle, class Make>
int Create(Handle** handle, Make make) {
  return Guard([&] {
    Need(handle, "handle");
    *handle = nullptr;
    *handle = reinterpret_cast<Handle*>(make().release());
  });
}

// Frees the `Object` behind the caller's pointer and makes the pointer null; one that is null already is left.
template <class Object, class Handle>
int Delete(Handle** handle) {
  if (handle == nullptr) return VORQ_INVALID;
  delete reinterpret_cast<Object*>(std::exchange(*handle, nullptr));
  return VORQ_OK;
}

std::unique_ptr<Environment> MakeEnvironment(ParameterSet const& parameters) {
  return std::make_unique<Environment>(Environment{.open = true, .parameters = parameters});
}

// The later setting wins.
void ApplySetting(VORQ_EnvConfig& config, std::string_view name, std::string_view value) {
  if (EqualIgnoringCase(name, "Banner")) {
    if (value != "0" && value != "1") Refuse("Value '", value, "' of setting Banner is neither 0 nor 1");
    config.silent = value == "0" ? 1 : 0;
  } else if (EqualIgnoringCase(name, "Path")) {
    config.parameters = LoadSettings(std::string(value), config.parameters);
  } else {
    config.parameters.SetText(name, value);
  }
}

}  // namespace

int VORQ_GetBanner(char* buffer, int capacity) {
  return Guard([&] { CopyText(Banner(), buffer, capacity); });
}

int VORQ_GetRetcodeMsg(int code, char* buffer, int capacity) {
  return Guard([&] { CopyText(RetcodeText(code), buffer, capacity); });
}

int VORQ_CreateEnvWithPath(char const* path, VORQ_Env** env) {
  return Create(
      env, [path] { return MakeEnvironment(path == nullptr ? ParameterSet() : LoadSettings(path, ParameterSet())); });
}

int VORQ_CreateEnvWithConfig(VORQ_EnvConfig* config, VORQ_Env** env) {
  return Create(env, [config] {
    Need(config, "config");
    return MakeEnvironment(config->parameters);
  });
}

int VORQ_CloseEnv(VORQ_Env** env) {
  return Guard([&] {
    Need(env, "env");
    OpenEnvironment(*env).open = false;
  });
}

int VORQ_DeleteEnv(VORQ_Env** env) {
  return Delete<Environment>(env);
}

int VORQ_CreateEnvConfig(VORQ_EnvConfig** config) {
  return Create(config, [] { return std::make_unique<VORQ_EnvConfig>(); });
}

int VORQ_DeleteEnvConfig(VORQ_EnvConfig** config) {
  return Delete<VORQ_EnvConfig>(config);
}

int VORQ_SetEnvConfig(VORQ_EnvConfig* config, char const* name, char const* value) {
  return Guard([&] {
    Need(config, "config");
    Need(name, "name");
    Need(value, "value");
    ApplySetting(*config, name, value);
  });
}
