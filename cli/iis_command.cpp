// The steps of `vorq iis`.
#include "cli/iis_command.hpp"

#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include <vorq>

#include "cli/interrupt_watcher.hpp"
#include "cli/json.hpp"
#include "cli/model_setup.hpp"
#include "cli/session.hpp"

namespace cli {
namespace {

// "row c1 >= 5": one line for each side of the item that is in the set.
template <class Item>
void PrintSides(char const* kind, Item& item) {
  std::string const name = item.GetName();
  std::string const called = name.empty() ? std::to_string(item.GetIdx()) : name;
  if (item.GetLowerIIS() != 0) std::printf("%s %s >= %.10g\n", kind, called.c_str(), item.Get("LB"));
  if (item.GetUpperIIS() != 0) std::printf("%s %s <= %.10g\n", kind, called.c_str(), item.Get("UB"));
}

void PrintMembers(Vorq::IModel& model) {
  std::unique_ptr<Vorq::IConstrArray> const rows(model.GetConstrs());
  for (int k = 0; k < rows->Size(); ++k) PrintSides("row", *std::unique_ptr<Vorq::IConstraint>(rows->Get(k)));
  std::unique_ptr<Vorq::IVarArray> const columns(model.GetVars());
  for (int k = 0; k < columns->Size(); ++k) PrintSides("column", *std::unique_ptr<Vorq::IVar>(columns->Get(k)));
  std::unique_ptr<Vorq::ISosArray> const soss(model.GetSoss());
  for (int k = 0; k < soss->Size(); ++k) {
    std::unique_ptr<Vorq::ISos> const sos(soss->Get(k));
    if (sos->GetIIS() != 0) std::printf("SOS %d\n", k);
  }
  std::unique_ptr<Vorq::IGenConstrArray> const indicators(model.GetGenConstrs());
  for (int k = 0; k < indicators->Size(); ++k) {
    std::unique_ptr<Vorq::IGenConstr> const indicator(indicators->Get(k));
    if (indicator->GetIIS() != 0) std::printf("indicator %d %s\n", k, indicator->GetName());
  }
}

void PrintJson(Vorq::IModel& model) {
  JsonObject object;
  object.Add("status", "infeasible");
  object.Add("irreducible", model.GetIntAttr("IsMinIIS"));
  object.Add("rows", model.GetIntAttr("IISRows"));
  object.Add("columns", model.GetIntAttr("IISCols"));
  object.Add("sos", model.GetIntAttr("IISSOSs"));
  object.Add("indicators", model.GetIntAttr("IISIndicators"));
  object.Add("time", model.GetDblAttr("IISTime"));
  object.Add("message", "");
  std::puts(object.Text().c_str());
}

void FindSet(Session& session, DiagnoseArguments const& arguments) {
  SetUpModel(session, arguments);
  Vorq::IModel& model = session.Model();
  {
    InterruptWatcher const watcher(model);
    model.ComputeIIS();
  }
  session.Check(model, arguments.file);
  if (!arguments.outputFile.empty()) {
    model.WriteIIS(arguments.outputFile.c_str());
    session.Check(model, arguments.outputFile);
  }
  if (arguments.json) {
    PrintJson(model);
    return;
  }
  std::printf("status: infeasible\nirreducible: %s\n", model.GetIntAttr("IsMinIIS") != 0 ? "yes" : "not proved");
  PrintMembers(model);
}

}  // namespace

Outcome RunIis(DiagnoseArguments const& arguments) {
  Session session(!arguments.json);
  try {
    FindSet(session, arguments);
    return Outcome::kOptimal;
  } catch (std::exception const& failure) {
    if (arguments.json) {
      JsonObject object;
      object.Add("status", "failed");
      object.Add("message", failure.what());
      std::puts(object.Text().c_str());
    }
    std::fprintf(stderr, "vorq: %s\n", failure.what());
    return Outcome::kFailed;
  }
}

}  // namespace cli
