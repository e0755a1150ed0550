// Setting up the environment and the model of a command.
#include "cli/session.hpp"

namespace cli {

Session::Session(bool printLog) : listener_(printLog), envr_(CreateEnvr(&listener_)) {
  Check(*envr_, "");
  model_.reset(::CreateModel(envr_.get(), "vorq"));
  Check(*model_, "");
  model_->SetIntParam("LogToConsole", 0);
  model_->SetLogCallback(&listener_);
}

}  // namespace cli
