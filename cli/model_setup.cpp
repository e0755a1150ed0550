// Reading the model and applying the settings of a command line.
#include "cli/model_setup.hpp"

#include <string>

#include <vorq>

#include "cli/numbers.hpp"

namespace cli {
namespace {

void ApplySetting(Session& session, std::string const& name, std::string const& value) {
  constexpr int kDoubleParameter = 0;
  constexpr int kIntParameter = 1;
  Vorq::IModel& model = session.Model();
  std::string const culprit = "--set " + name + "=" + value;
  switch (model.SearchParamAttr(name.c_str())) {
    case kDoubleParameter: {
      auto const number = ParseDouble(value);
      if (!number) throw CommandFailure(culprit + ": the value is not a number");
      model.SetDblParam(name.c_str(), *number);
      break;
    }
    case kIntParameter: {
      auto const number = ParseInt(value);
      if (!number) throw CommandFailure(culprit + ": the value is not a whole number");
      model.SetIntParam(name.c_str(), *number);
      break;
    }
    default: throw CommandFailure(culprit + ": there is no such parameter");
  }
  session.Check(model, culprit);
}

}  // namespace

void SetUpModel(Session& session, SolveArguments const& arguments) {
  Vorq::IModel& model = session.Model();
  model.Read(arguments.file.c_str());
  session.Check(model, arguments.file);
  for (auto const& [name, value] : arguments.settings) ApplySetting(session, name, value);
  if (!arguments.timeLimit) return;
  model.SetDblParam("TimeLimit", *arguments.timeLimit);
  session.Check(model, "--time-limit");
}

}  // namespace cli
