// A first matrix model: three products share three machines. A block of variables, a coefficient array, their product
// and one block of constraints take the place of loops over scalar items.
//
// Maximise p'x over x >= 0 subject to A x <= b; the best profit is 10.5.
#include <cstdio>
#include <memory>

#include <vorq>

namespace {

// All objects that the library returns belong to the caller.
template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

}  // namespace

int main() {
  auto envr = Own(CreateEnvr(nullptr));
  auto model = Own(CreateModel(envr.get(), "products"));
  auto factory = Own(CreateMFactory());
  auto helper = Own(CreateMHelper());

  // One call adds the three columns x(0), x(1) and x(2).
  auto shape = Own(factory->CreateNDim(3));
  auto x = Own(model->AddMVar(shape.get(), 'C', "x"));

  // Hours of each machine (row) for a unit of each product (column), and the hours that there are.
  double hours[] = {1.0, 1.0, 2.0,  //
                    2.0, 0.0, 3.0,  //
                    2.0, 1.0, 3.0};
  double limits[] = {4.0, 5.0, 7.0};
  auto a = Own(CreateNdArrayDbl2WithExData(hours, 3, 3));
  auto b = Own(CreateNdArrayDbl1WithExData(limits, 3));

  // The product keeps rows of A and the block x; no term is made before the rows go to the solver, in one call.
  auto use = Own(helper->MatMult(a.get(), x.get()));
  auto builder = Own(factory->CreateMConstrBuilder(shape.get()));
  builder->Set(use.get(), 'L', b.get());
  auto machines = Own(model->AddMConstr(builder.get(), "machine"));

  double profits[] = {3.0, 2.0, 4.0};
  auto p = Own(CreateNdArrayDbl1WithExData(profits, 3));
  auto profit = Own(helper->MatMult(p.get(), x.get()));
  auto total = Own(profit->Get(0));
  constexpr int kMaximise = -1;
  model->SetObjective(total.get(), kMaximise);

  model->Solve();
  if (model->GetLastError() != 0) {
    std::fprintf(stderr, "matrix_model: %s\n", model->GetErrorMessage());
    return 1;
  }
  auto values = Own(x->Get("Value"));
  auto prices = Own(machines->Get("Dual"));
  std::printf("profit %g\n", model->GetDblAttr("LpObjval"));
  std::printf("products %s", values->ToString(200).c_str());
  std::printf("prices of machine hours %s", prices->ToString(200).c_str());
  return 0;
}
