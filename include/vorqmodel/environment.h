// The environment, its settings and the log sink.
//
//     Vorq::IEnvr* envr = CreateEnvr(nullptr);
//     if (envr->GetLastError() == 0) { ... envr->CreateModel("production") ... }
//     delete envr;
#ifndef VORQMODEL_ENVIRONMENT_H
#define VORQMODEL_ENVIRONMENT_H

#include "vorqmodel/forward.h"

namespace Vorq {

// Receives log lines. Implemented by the caller, who keeps it alive as long as the environment or a model of it
// can log. Lines come without a line end.
class ILogSink {
 public:
  virtual ~ILogSink() = default;

  // One line, valid during the call.
  virtual void Log(char const* text) = 0;
};

// The root object: one environment of the solver library, and the only way to a model. An environment that could
// not be opened is an object all the same: look at GetLastError before using it.
class IEnvr {
 public:
  virtual ~IEnvr() = default;

  // A new, empty model, owned by the caller; it keeps the environment open. A null name is code 3 of the model,
  // and counts as empty; a problem that cannot be made is code 1. The model is returned all the same.
  virtual IModel* CreateModel(char const* name) = 0;

  // Closes the environment at once, whatever models there are. Returns the solver library's code, and leaves
  // GetLastError alone.
  virtual int Close() = 0;

  // The code of the failure to open, 0 if there was none, and its text, null if there was none.
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

// Named settings for an environment that is about to be opened by CreateEnvrWithConfig. They may be deleted once it is.
class IEnvrConfig {
 public:
  virtual ~IEnvrConfig() = default;

  // One setting. The solver library alone knows the names, and refuses with its own code.
  virtual void Set(char const* name, char const* value) = 0;

  // The code of the last Set, and the text of the last failure, valid until the next one.
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
