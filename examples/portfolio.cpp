// A portfolio of bounded risk, stated as a matrix model with a second-order cone, written to a file and read back.
//
// Maximise the expected return m'w over w >= 0 with sum of w = 1, such that the standard deviation |F w| stays within a
// limit; F'F is the covariance of the returns. The limit and the vector F w are the rows of one affine cone.
//
//     portfolio FILE
//
// FILE ends in .cbf. No engine of this version solves conic models; a solver that reads the format does.
#include <cstdio>

#include "examples/model_file.hpp"

namespace {

constexpr int kAssets = 4;
double expectedReturn[] = {0.11, 0.09, 0.06, 0.03};
double factor[] = {0.20, 0.08, 0.03, 0.00,  //
                   0.00, 0.15, 0.04, 0.01,  //
                   0.00, 0.00, 0.10, 0.01,  //
                   0.00, 0.00, 0.00, 0.02};
double riskLimit[] = {0.12};

void StatePortfolio(Vorq::IModel& model) {
  auto factory = Own(CreateMFactory());
  auto helper = Own(CreateMHelper());
  auto shape = Own(factory->CreateNDim(kAssets));
  auto weights = Own(model.AddMVar(shape.get(), 'C', "w"));

  auto sum = Own(weights->Sum());
  auto budget = Own(factory->CreateMConstrBuilder(Own(factory->CreateNDim()).get()));
  budget->Set(sum.get(), 'E', 1.0);
  auto total = Own(model.AddMConstr(budget.get(), "budget"));

  // limit >= |F w|: the rows of the cone are the limit and, below it, F w.
  auto f = Own(CreateNdArrayDbl2WithExData(factor, kAssets, kAssets));
  auto deviation = Own(helper->MatMult(f.get(), weights.get()));
  auto limit = Own(CreateNdArrayDbl1WithExData(riskLimit, 1));
  auto rows = Own(helper->Concat(limit.get(), deviation.get(), 0));
  constexpr int kQuadraticCone = 1;
  auto cone = Own(model.AddAffineCone(rows.get(), kQuadraticCone, "risk"));

  auto m = Own(CreateNdArrayDbl1WithExData(expectedReturn, kAssets));
  auto expected = Own(helper->MatMult(m.get(), weights.get()));
  constexpr int kMaximise = -1;
  model.SetObjective(Own(expected->Get(0)).get(), kMaximise);
}

void Print(char const* what, Vorq::IModel& model) {
  std::printf("%s: %d columns, %d rows, %d affine cones\n", what, model.GetIntAttr("Cols"), model.GetIntAttr("Rows"),
              model.GetIntAttr("AffineCones"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: portfolio FILE\n");
    return 2;
  }
  auto model = StateAndReadBack(argv[1], StatePortfolio, Print);
  if (model == nullptr) return 1;

  auto cone = Own(model->GetAffineCone(0));
  auto builder = Own(model->GetAffineConeBuilder(cone.get()));
  std::printf("the cone has type %d and %d rows, the first of them is %g\n", builder->GetType(), builder->GetDim(),
              Own(builder->GetExpr(0))->GetConstant());
  return Failed(*model, "reading the cone") ? 1 : 0;
}
