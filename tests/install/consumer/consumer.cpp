// Solves a model of one variable through the installed modelling library.
#include <memory>

#include <vorq>

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  std::unique_ptr<Vorq::IModel> model(CreateModel(envr.get(), "consumer"));
  std::unique_ptr<Vorq::IVar> x(model->AddVar(1.0, 2.0, 1.0, 'C', "x"));
  model->Solve();
  return model->GetLastError() == 0 && x->Get("Value") == 1.0 ? 0 : 1;
}
