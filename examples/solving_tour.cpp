// A tour of solving: limits, statuses, duals, a MIP start, the solution pool, a log sink, interruption; the passages of
// docs/solving.md.
#include <cstdio>
#include <memory>
#include <string>
#include <thread>

#include <vorq>

namespace {

// Counts the lines of the log instead of printing them.
class LineCounter final : public Vorq::ILogSink {
 public:
  void Log(char const*) override { ++lines_; }
  int Lines() const { return lines_; }

 private:
  int lines_ = 0;
};

// A knapsack of ten items.
std::unique_ptr<Vorq::IVarArray> AddKnapsack(Vorq::IModel& model) {
  constexpr int kItems = 10;
  double const value[kItems] = {12, 7, 9, 15, 4, 11, 6, 8, 13, 5};
  double weight[kItems] = {6, 3, 5, 8, 2, 6, 3, 4, 7, 3};
  std::string const types(kItems, 'B');
  std::unique_ptr<Vorq::IVarArray> items(model.AddVars(kItems, nullptr, nullptr, value, types.c_str(), "take"));
  std::unique_ptr<Vorq::IExpr> total(CreateExpr(0.0));
  total->AddTerms(items.get(), weight, kItems);
  std::unique_ptr<Vorq::IConstraint> limit(model.AddConstr(total.get(), 'L', 20.0, "limit"));
  model.SetObjSense(-1);
  return items;
}

int SolveKnapsack(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "knapsack"));
  LineCounter counter;
  model->SetIntParam("LogToConsole", 0);
  model->SetLogCallback(&counter);
  std::unique_ptr<Vorq::IVarArray> items = AddKnapsack(*model);

  model->SetDblParam("TimeLimit", 10.0);
  model->SetDblParam("RelGap", 0.0);

  // Start from a solution that is known: the first and the fourth item.
  std::unique_ptr<Vorq::IVar> first(items->Get(0));
  std::unique_ptr<Vorq::IVar> fourth(items->Get(3));
  model->SetMipStart(first.get(), 1.0);
  model->SetMipStart(fourth.get(), 1.0);
  model->LoadMipStart();

  // Interruption from another thread; here it comes too late to matter.
  model->Solve();
  std::thread([&model] { model->Interrupt(); }).join();
  if (model->GetLastError() != 0) return 1;

  constexpr int kOptimal = 1;
  if (model->GetIntAttr("MipStatus") != kOptimal) return 1;
  std::printf("value %g, gap %g, %d nodes, %d pool solutions, %d log lines\n", model->GetDblAttr("BestObj"),
              model->GetDblAttr("BestGap"), model->GetIntAttr("NodeCnt"), model->GetIntAttr("PoolSols"),
              counter.Lines());
  return counter.Lines() > 0 ? 0 : 1;
}

int SolveTransport(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "transport"));
  model->SetIntParam("Logging", 0);
  std::unique_ptr<Vorq::IVar> road(model->AddVar(0.0, 1e30, 5.0, 'C', "road"));
  std::unique_ptr<Vorq::IVar> rail(model->AddVar(0.0, 40.0, 3.0, 'C', "rail"));
  std::unique_ptr<Vorq::IExpr> both(CreateLinExpr(road.get(), 1.0));
  both->AddTerm(rail.get(), 1.0);
  std::unique_ptr<Vorq::IConstraint> demand(model->AddConstr(both.get(), 'G', 100.0, "demand"));
  model->Solve();
  if (model->GetLastError() != 0) return 1;

  // Another tonne of demand would cost 5, by road; another tonne of rail would save 2.
  std::printf("cost %g, dual %g, reduced cost %g\n", model->GetDblAttr("LpObjval"), demand->Get("Dual"),
              rail->Get("RedCost"));
  std::unique_ptr<Vorq::IVarArray> vars(model->GetVars());
  double values[2] = {};
  model->GetColInfo("Value", vars.get(), values);
  return values[0] == 60.0 && values[1] == 40.0 ? 0 : 1;
}

}  // namespace

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  if (SolveKnapsack(*envr) != 0) return 1;
  return SolveTransport(*envr);
}
