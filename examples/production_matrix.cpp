// The plan of production_planning.cpp as a matrix model: the same factory, with one block of variables a decision and
// one block of constraints a rule.
//
// Rows are products, columns are months. Stock is carried over by setting the initial stock in front of all months of
// the stock block but the last: what a month finds is the block shifted by one column.
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <vector>

#include <vorq>

namespace {

template <class T>
using Owned = std::unique_ptr<T>;

template <class T>
Owned<T> Own(T* object) {
  return Owned<T>(object);
}

constexpr int kProducts = 4;
constexpr int kMonths = 6;
constexpr std::size_t kCells = std::size_t{kProducts} * kMonths;
constexpr double kNormalHours = 360.0;
constexpr double kOvertimeHours = 70.0;
constexpr double kOvertimeCost = 55.0;
constexpr double kStoreRoom = 520.0;

// Pumps, valves, motors, gearboxes.
double setupCost[] = {900.0, 350.0, 1400.0, 1100.0};
double setupHours[] = {8.0, 4.0, 12.0, 10.0};
double unitCost[] = {62.0, 18.0, 138.0, 96.0};
double unitHours[] = {0.50, 0.15, 0.90, 0.70};
double holdingCost[] = {2.6, 0.7, 5.1, 3.8};
double initialStock[] = {40.0, 150.0, 10.0, 25.0};
double finalStock[] = {40.0, 100.0, 20.0, 25.0};
double demand[] = {180, 210, 120, 260, 240, 310,  //
                   420, 380, 510, 460, 600, 520,  //
                   70,  95,  60,  140, 120, 90,   //
                   110, 60,  130, 90,  150, 170};

// Where a product and a month stand in an array of all cells.
std::size_t Place(int product, int month) {
  return static_cast<std::size_t>(product) * kMonths + static_cast<std::size_t>(month);
}

struct Plan {
  Owned<Vorq::IMVar<2>> make, stock, setup;
  Owned<Vorq::IMVar<1>> overtime;
};

class Planner {
 public:
  explicit Planner(Vorq::IModel& model) : model_(model) {}

  void AddVariables() {
    std::vector<double> leastStock(kCells, 0.0);
    for (int p = 0; p < kProducts; ++p) leastStock[Place(p, kMonths - 1)] = finalStock[p];
    plan_.make = Own(model_.AddMVar(blocks_.get(), 'C', "make"));
    plan_.stock = Own(model_.AddMVar(blocks_.get(), leastStock.data(), nullptr, nullptr, nullptr, "stock"));
    plan_.setup = Own(model_.AddMVar(blocks_.get(), 'B', "setup"));
    plan_.overtime = Own(model_.AddMVar(months_.get(), 0.0, kOvertimeHours, 0.0, 'C', "overtime"));
  }

  // What is there at the start of a month and what is made covers the demand and what is kept.
  void AddStockBalances() {
    auto allButLast = Own(factory_->CreateView());
    auto allProducts = Own(allButLast->Full());
    auto fewerMonths = Own(allButLast->Slice(0, -1, 1, 0));
    auto kept = Own(plan_.stock->View(allButLast.get()));
    auto before = Own(CreateNdArrayDbl2WithExData(initialStock, kProducts, 1));
    auto found = Own(helper_->Concat(before.get(), kept.get(), 1));
    auto available = Own(broadcast_->Add(found.get(), plan_.make.get()));
    auto sold = Own(broadcast_->Sub(available.get(), plan_.stock.get()));
    auto wanted = Own(CreateNdArrayDbl2WithExData(demand, kProducts, kMonths));
    auto builder = Own(factory_->CreateMConstrBuilder(blocks_.get()));
    builder->Set(sold.get(), 'E', wanted.get());
    auto rows = Own(model_.AddMConstr(builder.get(), "balance"));
  }

  // Nothing is made without a setup: at most what the whole line can make, or what is still to be sold.
  void AddSetups() {
    std::vector<double> most(kCells);
    for (int p = 0; p < kProducts; ++p) {
      double const lineLimit = (kNormalHours + kOvertimeHours - setupHours[p]) / unitHours[p];
      double stillToSell = finalStock[p];
      for (int t = kMonths - 1; t >= 0; --t) {
        stillToSell += demand[Place(p, t)];
        most[Place(p, t)] = std::min(stillToSell, lineLimit);
      }
    }
    auto limits = Own(CreateNdArrayDbl2WithExData(most.data(), kProducts, kMonths));
    auto allowed = Own(broadcast_->Mul(limits.get(), plan_.setup.get()));
    auto excess = Own(broadcast_->Sub(plan_.make.get(), allowed.get()));
    auto builder = Own(factory_->CreateMConstrBuilder(blocks_.get()));
    builder->Set(excess.get(), 'L', 0.0);
    auto rows = Own(model_.AddMConstr(builder.get(), "link"));
  }

  // Hours of the line and room of the store, one row a month.
  void AddCapacities() {
    auto making = Own(Product(unitHours, *plan_.make));
    auto settingUp = Own(Product(setupHours, *plan_.setup));
    auto work = Own(broadcast_->Add(making.get(), settingUp.get()));
    auto normal = Own(broadcast_->Sub(work.get(), plan_.overtime.get()));
    auto hours = Own(factory_->CreateMConstrBuilder(months_.get()));
    hours->Set(normal.get(), 'L', kNormalHours);
    auto hourRows = Own(model_.AddMConstr(hours.get(), "hours"));

    auto stored = Own(helper_->SumAxis(plan_.stock.get(), 0));
    auto room = Own(factory_->CreateMConstrBuilder(months_.get()));
    room->Set(stored.get(), 'L', kStoreRoom);
    auto roomRows = Own(model_.AddMConstr(room.get(), "room"));
  }

  void SetCost() {
    auto making = Own(Product(unitCost, *plan_.make));
    auto storing = Own(Product(holdingCost, *plan_.stock));
    auto settingUp = Own(Product(setupCost, *plan_.setup));
    auto rate = Own(factory_->CreateNdArray(months_.get(), kOvertimeCost));
    auto overtime = Own(broadcast_->Mul(rate.get(), plan_.overtime.get()));
    making->AddMLinExpr(storing.get(), 1.0);
    making->AddMLinExpr(settingUp.get(), 1.0);
    making->AddMLinExpr(overtime.get(), 1.0);
    auto total = Own(making->Sum());
    auto cost = Own(total->Get(0));
    constexpr int kMinimise = 1;
    model_.SetObjective(cost.get(), kMinimise);
  }

  void Print() {
    for (auto* block : {plan_.make.get(), plan_.stock.get(), plan_.setup.get()}) {
      std::printf("%s", Own(block->Get("Value"))->ToString(1000).c_str());
    }
    std::printf("%s", Own(plan_.overtime->Get("Value"))->ToString(1000).c_str());
  }

 private:
  // A number a product times a block: one expression a month.
  Vorq::IMLinExpr<1>* Product(double* numbers, Vorq::IMVar<2>& block) {
    return helper_->MatMult(Own(CreateNdArrayDbl1WithExData(numbers, kProducts)).get(), &block);
  }

  Vorq::IModel& model_;
  Owned<Vorq::IMFactory> factory_ = Own(CreateMFactory());
  Owned<Vorq::IMHelper> helper_ = Own(CreateMHelper());
  Owned<Vorq::IBroadCastHelper> broadcast_ = Own(CreateBroadCastHelper());
  Owned<Vorq::INDim<2>> blocks_ = Own(factory_->CreateNDim(kProducts, kMonths));
  Owned<Vorq::INDim<1>> months_ = Own(factory_->CreateNDim(kMonths));
  Plan plan_;
};

bool Failed(Vorq::IModel& model, char const* step) {
  if (model.GetLastError() == 0) return false;
  std::fprintf(stderr, "production_matrix: %s: %s\n", step, model.GetErrorMessage());
  return true;
}

}  // namespace

int main() {
  auto envr = Own(CreateEnvr(nullptr));
  auto model = Own(CreateModel(envr.get(), "production_matrix"));
  model->SetIntParam("LogToConsole", 0);
  Planner planner(*model);
  planner.AddVariables();
  planner.AddStockBalances();
  planner.AddSetups();
  planner.AddCapacities();
  planner.SetCost();
  if (Failed(*model, "building the model")) return 1;

  model->SetDblParam("RelGap", 1e-6);
  model->SetDblParam("TimeLimit", 60.0);
  model->Solve();
  if (Failed(*model, "solving")) return 1;
  std::printf("total cost %.2f\n", model->GetDblAttr("BestObj"));
  planner.Print();
  return 0;
}
