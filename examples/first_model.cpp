// A first model: two variables, one constraint, the program of the README.
#include <cstdio>
#include <memory>

#include <vorq>

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  std::unique_ptr<Vorq::IModel> model(CreateModel(envr.get(), "blend"));

  // At most 4 tonnes of x and 3 of y; x and y together at most 5; profit 3 and 2 a tonne.
  std::unique_ptr<Vorq::IVar> x(model->AddVar(0.0, 4.0, 3.0, 'C', "x"));
  std::unique_ptr<Vorq::IVar> y(model->AddVar(0.0, 3.0, 2.0, 'C', "y"));
  std::unique_ptr<Vorq::IExpr> total(CreateLinExpr(x.get(), 1.0));
  total->AddTerm(y.get(), 1.0);
  std::unique_ptr<Vorq::IConstraint> room(model->AddConstr(total.get(), 'L', 5.0, "room"));
  model->SetObjSense(-1);

  model->Solve();
  if (model->GetLastError() != 0) {
    std::fprintf(stderr, "%s\n", model->GetErrorMessage());
    return 1;
  }
  std::printf("profit %g with x = %g, y = %g\n", model->GetDblAttr("LpObjval"), x->Get("Value"), y->Get("Value"));
}
