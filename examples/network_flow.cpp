// The cheapest flow through a network: a sparse node-arc matrix times a block of flows.
//
// Each arc is a column of the matrix, with 1 at the node that it leaves and -1 at the node that it enters, so that the
// product is what each node sends out in all. The solution is checked by its duals: an arc whose price is above the
// difference of its nodes' potentials carries nothing, one below it carries all that it can.
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <vorq>

namespace {

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

struct Arc {
  int from;
  int to;
  double capacity;
  double cost;
};

constexpr Arc kArcs[] = {{0, 1, 4.0, 2.0}, {0, 2, 2.0, 2.0}, {1, 2, 2.0, 1.0}, {1, 3, 3.0, 3.0}, {2, 3, 5.0, 1.0}};
constexpr int kArcCount = static_cast<int>(std::size(kArcs));
double supplies[] = {4.0, 0.0, 0.0, -4.0};
constexpr int kNodes = static_cast<int>(std::size(supplies));

// Sums of flows that leave each node, less those that enter it.
std::unique_ptr<Vorq::IMLinExpr<1>> NetOutflow(Vorq::IMVar<1>& flow) {
  std::vector<int> starts = {0}, nodes;
  std::vector<double> signs;
  for (Arc const& arc : kArcs) {
    nodes.insert(nodes.end(), {arc.from, arc.to});
    signs.insert(signs.end(), {1.0, -1.0});
    starts.push_back(static_cast<int>(nodes.size()));
  }
  int const entries = static_cast<int>(nodes.size());
  return Own(
      CscMatMultMVar1(kNodes, starts.data(), kArcCount + 1, nodes.data(), entries, signs.data(), entries, &flow));
}

// Whether flows and potentials fit together, which proves that no flow is cheaper.
bool IsProven(Vorq::INdArray<double, 1>& flow, Vorq::INdArray<double, 1>& potential) {
  constexpr double kTolerance = 1e-6;
  for (int k = 0; k < kArcCount; ++k) {
    Arc const& arc = kArcs[k];
    auto const index = static_cast<std::uint64_t>(k);
    auto const at = [&potential](int node) { return potential.Get(static_cast<std::uint64_t>(node)); };
    double const reducedCost = arc.cost - (at(arc.from) - at(arc.to));
    if (reducedCost > kTolerance && flow.Get(index) > kTolerance) return false;
    if (reducedCost < -kTolerance && flow.Get(index) < arc.capacity - kTolerance) return false;
  }
  return true;
}

}  // namespace

int main() {
  auto envr = Own(CreateEnvr(nullptr));
  auto model = Own(CreateModel(envr.get(), "network"));
  model->SetIntParam("LogToConsole", 0);
  auto factory = Own(CreateMFactory());

  std::vector<double> zeros(kArcCount, 0.0), capacities, costs;
  for (Arc const& arc : kArcs) {
    capacities.push_back(arc.capacity);
    costs.push_back(arc.cost);
  }
  auto arcs = Own(factory->CreateNDim(kArcCount));
  auto flow = Own(model->AddMVar(arcs.get(), zeros.data(), capacities.data(), costs.data(), nullptr, "flow"));

  auto nodeShape = Own(factory->CreateNDim(kNodes));
  auto balance = Own(factory->CreateMConstrBuilder(nodeShape.get()));
  auto supply = Own(CreateNdArrayDbl1WithExData(supplies, kNodes));
  balance->Set(NetOutflow(*flow).get(), 'E', supply.get());
  auto nodes = Own(model->AddMConstr(balance.get(), "node"));

  model->Solve();
  if (model->GetLastError() != 0) {
    std::fprintf(stderr, "network_flow: %s\n", model->GetErrorMessage());
    return 1;
  }
  auto values = Own(flow->Get("Value"));
  auto potentials = Own(nodes->Get("Dual"));
  std::printf("cost %g\n", model->GetDblAttr("LpObjval"));
  for (int k = 0; k < kArcCount; ++k) {
    std::printf("from %d to %d: %g of %g\n", kArcs[k].from, kArcs[k].to, values->Get(static_cast<std::uint64_t>(k)),
                kArcs[k].capacity);
  }
  bool const proven = IsProven(*values, *potentials);
  std::printf("proven by its duals: %s\n", proven ? "yes" : "no");
  return proven ? 0 : 1;
}
