// The steps of `vorq relax`.
#include "cli/relax_command.hpp"

#include <cmath>
#include <cstdio>
#include <exception>
#include <limits>
#include <string>

#include <vorq>

#include "cli/interrupt_watcher.hpp"
#include "cli/json.hpp"
#include "cli/model_setup.hpp"
#include "cli/session.hpp"

namespace cli {
namespace {

struct RelaxReport {
  Outcome outcome = Outcome::kFailed;
  double penalty = std::numeric_limits<double>::quiet_NaN();  // of the violations, if there is a point
  double seconds = 0.0;
  std::string message;
};

void Relax(Session& session, DiagnoseArguments const& arguments, RelaxReport& report) {
  SetUpModel(session, arguments);
  Vorq::IModel& model = session.Model();
  {
    InterruptWatcher const watcher(model);
    model.FeasRelax(arguments.bounds ? 1 : 0, arguments.rows ? 1 : 0);
  }
  session.Check(model, arguments.file);
  report.outcome = OutcomeOfStatus(model.GetIntAttr(model.GetIntAttr("IsMIP") != 0 ? "MipStatus" : "LpStatus"));
  if (model.GetIntAttr("HasFeasRelaxSol") != 0) report.penalty = model.GetDblAttr("FeasRelaxObj");
  report.seconds = model.GetDblAttr("FeasRelaxTime");
  if (!arguments.solutionFile.empty()) {
    if (std::isnan(report.penalty)) throw CommandFailure("there is no solution to write");
    model.WriteSol(arguments.solutionFile.c_str());
    session.Check(model, arguments.solutionFile);
  }
  if (!arguments.outputFile.empty()) {
    model.WriteRelax(arguments.outputFile.c_str());
    session.Check(model, arguments.outputFile);
  }
}

}  // namespace

Outcome RunRelax(DiagnoseArguments const& arguments) {
  RelaxReport report;
  Session session(!arguments.json);
  try {
    Relax(session, arguments, report);
  } catch (std::exception const& failure) {
    report.outcome = Outcome::kFailed;
    report.message = failure.what();
  }
  if (arguments.json) {
    JsonObject object;
    object.Add("status", OutcomeText(report.outcome));
    object.Add("penalty", report.penalty);
    object.Add("time", report.seconds);
    object.Add("message", report.message);
    std::puts(object.Text().c_str());
  } else if (report.message.empty()) {
    std::printf("status: %s\n", OutcomeText(report.outcome));
    if (!std::isnan(report.penalty)) std::printf("penalty: %.10g\n", report.penalty);
  }
  if (!report.message.empty()) std::fprintf(stderr, "vorq: %s\n", report.message.c_str());
  return report.outcome;
}

}  // namespace cli
