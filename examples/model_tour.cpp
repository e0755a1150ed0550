// A tour of a model: adding, changing, removing and reading back; the passages of docs/getting-started.md.
#include <cstdio>
#include <memory>

#include <vorq>

namespace {

int Fail(char const* step, char const* message) {
  std::fprintf(stderr, "model_tour: %s: %s\n", step, message);
  return 1;
}

}  // namespace

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  if (envr->GetLastError() != 0) return Fail("environment", envr->GetErrorMessage());
  std::unique_ptr<Vorq::IModel> model(CreateModel(envr.get(), "tour"));

  // Three products at once: names are the prefix and the column number, made_0, made_1, made_2.
  double const profit[] = {4.0, 3.0, 7.0};
  double const most[] = {30.0, 40.0, 12.0};
  std::unique_ptr<Vorq::IVarArray> made(model->AddVars(3, nullptr, most, profit, nullptr, "made"));

  // Hours of work: 1, 2 and 3 an item, at most 80.
  double hoursPerItem[] = {1.0, 2.0, 3.0};
  std::unique_ptr<Vorq::IExpr> hours(CreateExpr(0.0));
  hours->AddTerms(made.get(), hoursPerItem, 3);
  std::unique_ptr<Vorq::IConstraint> work(model->AddConstr(hours.get(), 'L', 80.0, "work"));

  // A whole number of the third product only.
  std::unique_ptr<Vorq::IVar> third(made->Get(2));
  third->SetType('I');

  model->SetObjSense(-1);
  model->Solve();
  if (model->GetLastError() != 0) return Fail("solve", model->GetErrorMessage());
  std::printf("profit %g, %g of the third product\n", model->GetDblAttr("BestObj"), third->Get("Value"));

  // Change a bound and a coefficient, remove a variable, solve again.
  work->Set("UB", 60.0);
  model->SetCoeff(work.get(), third.get(), 4.0);
  std::unique_ptr<Vorq::IVar> first(made->Get(0));
  first->Remove();
  model->Solve();
  if (model->GetLastError() != 0) return Fail("second solve", model->GetErrorMessage());
  std::printf("profit %g, %g of the third product\n", model->GetDblAttr("BestObj"), third->Get("Value"));

  // A removed item says so in its own status.
  double const gone = first->Get("Value");
  if (first->GetLastError() != 0) std::printf("%s\n", first->GetErrorMessage());

  // Read the row back: the remaining two terms.
  std::unique_ptr<Vorq::IExpr> row(model->GetRow(work.get()));
  std::printf("the row has %d terms, the bound is %g\n", static_cast<int>(row->GetSize()), work->Get("UB"));
  return gone < -1e9 && row->GetSize() == 2 ? 0 : 1;
}
