// Session: one environment and one model, whose log goes to a listener.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include <vorq>

#include "cli/log_listener.hpp"

namespace cli {

// Ends the command with the outcome kFailed.
class CommandFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Session {
 public:
  explicit Session(bool printLog);

  Vorq::IModel& Model() { return *model_; }
  LogListener const& Listener() const { return listener_; }

  // Fails with what the log tells of the cause, which says more than the text of a return code.
  template <class Object>
  void Check(Object& object, std::string const& culprit) const {
    if (object.GetLastError() == 0) return;
    std::string const cause = listener_.Error().empty() ? object.GetErrorMessage() : listener_.Error();
    // The cause of a bad file begins with its path.
    throw CommandFailure(culprit.empty() || cause.starts_with(culprit) ? cause : culprit + ": " + cause);
  }

 private:
  LogListener listener_;
  std::unique_ptr<Vorq::IEnvr> envr_;
  std::unique_ptr<Vorq::IModel> model_;
};

}  // namespace cli
