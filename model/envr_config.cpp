// The settings go to the solver library one by one, which alone knows their names.
#include "model/envr_config.hpp"

namespace Vorq {

EnvrConfig::EnvrConfig() : cell_(MakeShared<Cell>()) {}

void EnvrConfig::Set(char const* name, char const* value) {
  SetStatus(status, VORQ_SetEnvConfig(Config(), name, value), "Fail to set VORQ environment config");
}

}  // namespace Vorq
