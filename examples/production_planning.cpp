// Production planning: which products to make in which month, how much to store, when to pay for overtime.
//
// A factory makes four products on one line. Demand is known for six months. Making a product in a month takes a setup,
// which costs money and line hours; stock is held over at a cost; the line has normal hours and dearer overtime. The
// model is a mixed-integer one (capacitated lot sizing), built and solved through the interfaces.
#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <vorq>

namespace {

constexpr int kMonths = 6;

struct Product {
  char const* name;
  double setupCost;    // euro
  double setupHours;   // line hours
  double unitCost;     // euro a unit
  double unitHours;    // line hours a unit
  double holdingCost;  // euro a unit and month
  double initialStock;
  double finalStock;
  std::array<double, kMonths> demand;
};

constexpr std::array<Product, 4> kProducts = {{
    {"pump", 900.0, 8.0, 62.0, 0.50, 2.6, 40.0, 40.0, {180, 210, 120, 260, 240, 310}},
    {"valve", 350.0, 4.0, 18.0, 0.15, 0.7, 150.0, 100.0, {420, 380, 510, 460, 600, 520}},
    {"motor", 1400.0, 12.0, 138.0, 0.90, 5.1, 10.0, 20.0, {70, 95, 60, 140, 120, 90}},
    {"gearbox", 1100.0, 10.0, 96.0, 0.70, 3.8, 25.0, 25.0, {110, 60, 130, 90, 150, 170}},
}};

constexpr double kNormalHours = 360.0;   // a month
constexpr double kOvertimeHours = 70.0;  // a month, at most
constexpr double kOvertimeCost = 55.0;   // euro an hour
constexpr double kStoreRoom = 520.0;     // units, all products together

template <class T>
using Owned = std::unique_ptr<T>;

std::string Name(char const* what, char const* product, int month) {
  return std::string(what) + "_" + product + "_" + std::to_string(month + 1);
}

struct Plan {
  std::array<std::array<Owned<Vorq::IVar>, kMonths>, kProducts.size()> make, stock, setup;
  std::array<Owned<Vorq::IVar>, kMonths> overtime;
  std::array<Owned<Vorq::IConstraint>, kMonths> hours, room;
};

void AddVariables(Vorq::IModel& model, Plan& plan) {
  for (std::size_t p = 0; p < kProducts.size(); ++p) {
    Product const& product = kProducts[p];
    for (int t = 0; t < kMonths; ++t) {
      double const leastStock = t == kMonths - 1 ? product.finalStock : 0.0;
      plan.make[p][t].reset(model.AddVar(0.0, 1e30, 0.0, 'C', Name("make", product.name, t).c_str()));
      plan.stock[p][t].reset(model.AddVar(leastStock, 1e30, 0.0, 'C', Name("stock", product.name, t).c_str()));
      plan.setup[p][t].reset(model.AddVar(0.0, 1.0, 0.0, 'B', Name("setup", product.name, t).c_str()));
    }
  }
  for (int t = 0; t < kMonths; ++t) {
    plan.overtime[t].reset(model.AddVar(0.0, kOvertimeHours, 0.0, 'C', Name("overtime", "line", t).c_str()));
  }
}

// What is there at the start of a month and what is made covers the demand and what is kept.
void AddStockBalances(Vorq::IModel& model, Plan const& plan) {
  for (std::size_t p = 0; p < kProducts.size(); ++p) {
    Product const& product = kProducts[p];
    for (int t = 0; t < kMonths; ++t) {
      Owned<Vorq::IExpr> balance(CreateLinExpr(plan.make[p][t].get(), 1.0));
      if (t == 0) {
        balance->AddConstant(product.initialStock);
      } else {
        balance->AddTerm(plan.stock[p][t - 1].get(), 1.0);
      }
      balance->AddTerm(plan.stock[p][t].get(), -1.0);
      Owned<Vorq::IConstraint> row(
          model.AddConstr(balance.get(), 'E', product.demand[t], Name("balance", product.name, t).c_str()));
    }
  }
}

// Nothing is made without a setup: at most what the whole line can make, or what is still to be sold.
void AddSetups(Vorq::IModel& model, Plan const& plan) {
  for (std::size_t p = 0; p < kProducts.size(); ++p) {
    Product const& product = kProducts[p];
    double stillToSell = product.finalStock;
    for (int t = kMonths - 1; t >= 0; --t) {
      stillToSell += product.demand[t];
      double const lineLimit = (kNormalHours + kOvertimeHours - product.setupHours) / product.unitHours;
      Owned<Vorq::IExpr> link(CreateLinExpr(plan.make[p][t].get(), 1.0));
      link->AddTerm(plan.setup[p][t].get(), -std::min(stillToSell, lineLimit));
      Owned<Vorq::IConstraint> row(model.AddConstr(link.get(), 'L', 0.0, Name("link", product.name, t).c_str()));
    }
  }
}

void AddCapacities(Vorq::IModel& model, Plan& plan) {
  for (int t = 0; t < kMonths; ++t) {
    Owned<Vorq::IExpr> hours(CreateLinExpr(plan.overtime[t].get(), -1.0));
    Owned<Vorq::IExpr> room(CreateExpr(0.0));
    for (std::size_t p = 0; p < kProducts.size(); ++p) {
      hours->AddTerm(plan.make[p][t].get(), kProducts[p].unitHours);
      hours->AddTerm(plan.setup[p][t].get(), kProducts[p].setupHours);
      room->AddTerm(plan.stock[p][t].get(), 1.0);
    }
    plan.hours[t].reset(model.AddConstr(hours.get(), 'L', kNormalHours, Name("hours", "line", t).c_str()));
    plan.room[t].reset(model.AddConstr(room.get(), 'L', kStoreRoom, Name("room", "store", t).c_str()));
  }
}

void SetCost(Vorq::IModel& model, Plan const& plan) {
  Owned<Vorq::IExpr> cost(CreateExpr(0.0));
  for (int t = 0; t < kMonths; ++t) {
    for (std::size_t p = 0; p < kProducts.size(); ++p) {
      cost->AddTerm(plan.make[p][t].get(), kProducts[p].unitCost);
      cost->AddTerm(plan.stock[p][t].get(), kProducts[p].holdingCost);
      cost->AddTerm(plan.setup[p][t].get(), kProducts[p].setupCost);
    }
    cost->AddTerm(plan.overtime[t].get(), kOvertimeCost);
  }
  constexpr int kMinimise = 1;
  model.SetObjective(cost.get(), kMinimise);
}

void PrintPlan(Plan const& plan) {
  for (std::size_t p = 0; p < kProducts.size(); ++p) {
    std::printf("%-8s make ", kProducts[p].name);
    for (auto const& var : plan.make[p]) std::printf("%8.1f", var->Get("Value"));
    std::printf("\n%-8s stock", "");
    for (auto const& var : plan.stock[p]) std::printf("%8.1f", var->Get("Value"));
    std::printf("\n");
  }
  std::printf("overtime hours");
  for (auto const& var : plan.overtime) std::printf("%8.1f", var->Get("Value"));
  std::printf("\nslack of hours");
  for (auto const& row : plan.hours) std::printf("%8.1f", row->Get("Slack"));
  std::printf("\nslack of room ");
  for (auto const& row : plan.room) std::printf("%8.1f", row->Get("Slack"));
  std::printf("\n");
}

bool Failed(Vorq::IModel& model, char const* step) {
  if (model.GetLastError() == 0) return false;
  std::fprintf(stderr, "production_planning: %s: %s\n", step, model.GetErrorMessage());
  return true;
}

}  // namespace

int main() {
  Owned<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  if (envr->GetLastError() != 0) {
    std::fprintf(stderr, "production_planning: %s\n", envr->GetErrorMessage());
    return 1;
  }
  Owned<Vorq::IModel> model(CreateModel(envr.get(), "production_planning"));
  Plan plan;
  AddVariables(*model, plan);
  AddStockBalances(*model, plan);
  AddSetups(*model, plan);
  AddCapacities(*model, plan);
  SetCost(*model, plan);
  if (Failed(*model, "building the model")) return 1;

  model->SetDblParam("RelGap", 1e-6);
  model->SetDblParam("TimeLimit", 60.0);
  model->Solve();
  if (Failed(*model, "solving")) return 1;
  if (model->GetIntAttr("HasMipSol") == 0) {
    std::fprintf(stderr, "production_planning: no plan was found\n");
    return 1;
  }
  std::printf("\ntotal cost %.2f, proven to be at least %.2f\n\n", model->GetDblAttr("BestObj"),
              model->GetDblAttr("BestBnd"));
  PrintPlan(plan);
  return Failed(*model, "reading the plan") ? 1 : 0;
}
