// A tour of what to do with a model that has no solution, and of what helps a solve: an infeasible set, a feasibility
// relaxation, tuning, MIP starts; the passages of docs/infeasibility.md and docs/tuning-and-starts.md.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include <vorq>

namespace {

// A mixture of two goods that must be heavy enough, light enough and cheap at once.
std::unique_ptr<Vorq::IModel> MixtureModel(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "mixture"));
  model->SetIntParam("Logging", 0);
  std::unique_ptr<Vorq::IVar> oats(model->AddVar(0.0, 8.0, 2.0, 'C', "oats"));
  std::unique_ptr<Vorq::IVar> nuts(model->AddVar(0.0, 3.0, 5.0, 'C', "nuts"));
  std::unique_ptr<Vorq::IExpr> weight(CreateLinExpr(oats.get(), 1.0));
  weight->AddTerm(nuts.get(), 1.0);
  std::unique_ptr<Vorq::IConstraint> weightRow(model->AddConstr(weight.get(), 'G', 10.0, "weight"));
  std::unique_ptr<Vorq::IExpr> energy(CreateLinExpr(oats.get(), 4.0));
  energy->AddTerm(nuts.get(), 6.0);
  std::unique_ptr<Vorq::IConstraint> energyRow(model->AddConstr(energy.get(), 'L', 36.0, "energy"));
  std::unique_ptr<Vorq::IExpr> share(CreateLinExpr(oats.get(), 1.0));
  share->AddTerm(nuts.get(), -4.0);
  std::unique_ptr<Vorq::IConstraint> shareRow(model->AddConstr(share.get(), 'L', 2.0, "share"));
  return model;
}

int Diagnose(Vorq::IModel& model, std::string const& file) {
  model.ComputeIIS();
  if (model.GetLastError() != 0) return 1;  // feasible, or not proved infeasible in time
  std::printf("%d rows and %d columns contradict each other\n", model.GetIntAttr("IISRows"),
              model.GetIntAttr("IISCols"));
  std::unique_ptr<Vorq::IConstrArray> constrs(model.GetConstrs());
  for (int k = 0; k < constrs->Size(); ++k) {
    std::unique_ptr<Vorq::IConstraint> constr(constrs->Get(k));
    if (constr->GetLowerIIS() != 0) std::printf("  %s is at least %g\n", constr->GetName(), constr->Get("LB"));
    if (constr->GetUpperIIS() != 0) std::printf("  %s is at most %g\n", constr->GetName(), constr->Get("UB"));
  }
  model.WriteIIS(file.c_str());
  return model.GetLastError();
}

int Relax(Vorq::IModel& model) {
  // Give way in the weight at a price of 1, in the energy at a price of 5 for each unit; the rest holds.
  std::unique_ptr<Vorq::IConstrArray> constrs(model.GetConstrs());
  double const penalties[3] = {1.0, 5.0, 1e30};
  std::unique_ptr<Vorq::IVarArray> none(CreateVarArray());
  model.FeasRelax(none.get(), nullptr, nullptr, constrs.get(), penalties, nullptr);
  if (model.GetLastError() != 0 || model.GetIntAttr("HasFeasRelaxSol") == 0) return 1;
  std::unique_ptr<Vorq::IVarArray> vars(model.GetVars());
  double values[2] = {};
  model.GetColInfo("Value", vars.get(), values);
  std::printf("for %.4g of penalties: %.4g oats, %.4g nuts\n", model.GetDblAttr("FeasRelaxObj"), values[0], values[1]);
  return 0;
}

// Items in a ring: the most valuable ones, no two of them neighbours.
std::unique_ptr<Vorq::IVarArray> AddSelection(Vorq::IModel& model) {
  constexpr int kItems = 12;
  std::string const types(kItems, 'B');
  std::unique_ptr<Vorq::IVarArray> items(model.AddVars(kItems, nullptr, nullptr, nullptr, types.c_str(), "take"));
  for (int k = 0; k < kItems; ++k) {
    std::unique_ptr<Vorq::IVar> one(items->Get(k));
    std::unique_ptr<Vorq::IVar> next(items->Get((k + 1) % kItems));
    one->Set("Obj", 1.0 + k % 3);
    std::unique_ptr<Vorq::IExpr> pair(CreateLinExpr(one.get(), 1.0));
    pair->AddTerm(next.get(), 1.0);
    std::unique_ptr<Vorq::IConstraint>(model.AddConstr(pair.get(), 'L', 1.0, "neighbours"));
  }
  model.SetObjSense(-1);
  return items;
}

int Tune(Vorq::IModel& model, std::string const& file) {
  model.SetDblParam("TuneTimeLimit", 10.0);
  model.SetIntParam("Threads", 2);  // two trials side by side
  model.Tune();
  if (model.GetLastError() != 0) return 1;
  if (model.GetIntAttr("TuneResults") > 0) {
    model.WriteTuneParam(0, file.c_str());  // to be read as a parameter file later
    model.LoadTuneParam(0);                 // for this model now
  }
  return model.GetLastError();
}

int Start(Vorq::IModel& model, Vorq::IVarArray& items, std::string const& file) {
  // A part of a solution: the solver finds the rest.
  std::unique_ptr<Vorq::IVar> third(items.Get(2));
  model.SetMipStart(third.get(), 1.0);
  model.LoadMipStart();
  // Another one: all of it.
  double const nothing[12] = {};
  model.SetMipStart(12, nothing);
  model.LoadMipStart();
  model.Solve();
  if (model.GetLastError() != 0) return 1;
  // The best solution as the start of another day.
  model.WriteMst(file.c_str());
  model.ReadMst(file.c_str());
  std::printf("best %g, %d solutions in the pool\n", model.GetDblAttr("BestObj"), model.GetIntAttr("PoolSols"));
  return model.GetLastError();
}

int Run(std::filesystem::path const& folder) {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  std::unique_ptr<Vorq::IModel> mixture = MixtureModel(*envr);
  if (Diagnose(*mixture, (folder / "mixture.iis").string()) != 0) return 1;
  if (Relax(*mixture) != 0) return 1;
  std::unique_ptr<Vorq::IModel> selection(CreateModel(envr.get(), "selection"));
  selection->SetIntParam("Logging", 0);
  std::unique_ptr<Vorq::IVarArray> items = AddSelection(*selection);
  if (Tune(*selection, (folder / "selection.par").string()) != 0) return 1;
  return Start(*selection, *items, (folder / "selection.mst").string());
}

}  // namespace

int main() {
  std::string name = (std::filesystem::temp_directory_path() / "vorq-tour-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) return 1;
  int const result = Run(name);
  std::filesystem::remove_all(name);
  return result;
}
