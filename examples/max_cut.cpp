// The largest cut of a graph, relaxed to a semidefinite model with one matrix variable, written to a file and read
// back.
//
// Maximise a quarter of the inner product of the graph's Laplacian and X, over positive semidefinite X whose diagonal
// is 1 (Goemans and Williamson, "Improved approximation algorithms for maximum cut and satisfiability problems using
// semidefinite programming", Journal of the ACM 42, 1995).
//
//     max_cut FILE
//
// FILE ends in .cbf. No engine of this version solves semidefinite models; a solver that reads the format does.
#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

#include "examples/model_file.hpp"

namespace {

// A cycle of five nodes: no cut has more than four of its edges.
constexpr int kNodes = 5;
constexpr std::pair<int, int> kEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 0}};

// A quarter of the Laplacian: degrees on the diagonal, minus the edges beside it.
Vorq::ISymMatrix* AddQuarterLaplacian(Vorq::IModel& model) {
  std::vector<int> rows, cols;
  std::vector<double> values;
  auto add = [&](int row, int col, double value) {
    rows.push_back(row);
    cols.push_back(col);
    values.push_back(value);
  };
  for (int node = 0; node < kNodes; ++node) {
    double degree = 0.0;
    for (auto const& [from, to] : kEdges) degree += from == node || to == node ? 1.0 : 0.0;
    add(node, node, 0.25 * degree);
  }
  for (auto const& [from, to] : kEdges) add(std::max(from, to), std::min(from, to), -0.25);
  return model.AddSparseMat(kNodes, static_cast<int>(rows.size()), rows.data(), cols.data(), values.data());
}

void StateMaxCut(Vorq::IModel& model) {
  auto factory = Own(CreateMFactory());
  auto x = Own(model.AddPsdVar(kNodes, "X"));

  auto diagonal = Own(x->Diagonal(0));
  auto unit = Own(factory->CreateMPsdConstrBuilder(Own(factory->CreateNDim(kNodes)).get()));
  unit->Set(diagonal.get(), 'E', 1.0);
  auto rows = Own(model.AddMPsdConstr(unit.get(), "unit"));

  auto laplacian = Own(AddQuarterLaplacian(model));
  auto cut = Own(CreatePsdExpr4(x.get(), laplacian.get()));
  constexpr int kMaximise = -1;
  model.SetPsdObjective(cut.get(), kMaximise);
}

void Print(char const* what, Vorq::IModel& model) {
  std::printf("%s: %d matrix variables, %d semidefinite rows\n", what, model.GetIntAttr("PSDCols"),
              model.GetIntAttr("PSDConstrs"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: max_cut FILE\n");
    return 2;
  }
  return StateAndReadBack(argv[1], StateMaxCut, Print) == nullptr ? 1 : 0;
}
