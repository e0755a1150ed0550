// The steps of `vorq solve`, each of which ends the command when it fails.
#include "cli/solve_command.hpp"

#include <cmath>
#include <cstdio>
#include <exception>
#include <string>

#include <vorq>

#include "cli/interrupt_watcher.hpp"
#include "cli/json.hpp"
#include "cli/model_setup.hpp"
#include "cli/session.hpp"

namespace cli {
namespace {

void ReadReport(Session& session, SolveReport& report) {
  Vorq::IModel& model = session.Model();
  bool const isMip = model.GetIntAttr("IsMIP") != 0;
  report.outcome = OutcomeOfStatus(model.GetIntAttr(isMip ? "MipStatus" : "LpStatus"));
  if (model.GetIntAttr(isMip ? "HasMipSol" : "HasLpSol") != 0) {
    report.objective = model.GetDblAttr(isMip ? "BestObj" : "LpObjval");
  }
  if (isMip) {
    double const bound = model.GetDblAttr("BestBnd");
    if (std::abs(bound) < 1e30) report.bound = bound;
  } else if (report.outcome == Outcome::kOptimal) {
    report.bound = report.objective;
  }
  report.seconds = model.GetDblAttr("SolvingTime");
}

SolveReport Solve(SolveArguments const& arguments) {
  SolveReport report;
  Session session(!arguments.json);
  Vorq::IModel& model = session.Model();
  try {
    SetUpModel(session, arguments);
    {
      InterruptWatcher const watcher(model);
      model.Solve();
    }
    session.Check(model, arguments.file);
    ReadReport(session, report);
    if (!arguments.solutionFile.empty()) {
      if (std::isnan(report.objective)) throw CommandFailure("there is no solution to write");
      model.WriteSol(arguments.solutionFile.c_str());
      session.Check(model, arguments.solutionFile);
    }
  } catch (std::exception const& failure) {
    report.outcome = Outcome::kFailed;
    report.message = failure.what();
  }
  report.engine = session.Listener().Engine();
  return report;
}

void PrintJson(SolveReport const& report) {
  JsonObject object;
  object.Add("status", OutcomeText(report.outcome));
  object.Add("objective", report.objective);
  object.Add("bound", report.bound);
  object.Add("time", report.seconds);
  object.Add("engine", report.engine);
  object.Add("message", report.message);
  std::puts(object.Text().c_str());
}

}  // namespace

Outcome RunSolve(SolveArguments const& arguments) {
  SolveReport const report = Solve(arguments);
  if (arguments.json) {
    PrintJson(report);
  } else if (report.message.empty()) {
    std::printf("status: %s\n", OutcomeText(report.outcome));
    if (!std::isnan(report.objective)) std::printf("objective: %.10g\n", report.objective);
    if (!std::isnan(report.bound)) std::printf("bound: %.10g\n", report.bound);
  }
  if (!report.message.empty()) std::fprintf(stderr, "vorq: %s\n", report.message.c_str());
  return report.outcome;
}

}  // namespace cli
