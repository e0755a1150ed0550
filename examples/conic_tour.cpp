// A tour of models beyond the linear: special ordered sets and indicators, which are solved; quadratic, conic and
// semidefinite parts, which are stated, read back and written; the passages of docs/quadratic-and-conic.md.
#include <cstdio>
#include <memory>

#include <vorq>

namespace {

// Three plants, of which one may run; running the second costs a fee, which an indicator puts into the cost.
int SolvePlants(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "plants"));
  model->SetIntParam("LogToConsole", 0);
  double const limits[] = {4.0, 6.0, 5.0};
  double const profits[] = {3.0, 2.5, 2.0};
  std::unique_ptr<Vorq::IVarArray> plants(model->AddVars(3, nullptr, limits, profits, nullptr, "plant"));

  // At most one of the plants runs: a set of type 1.
  double const weights[] = {1.0, 2.0, 3.0};
  std::unique_ptr<Vorq::ISos> one(model->AddSos(plants.get(), weights, 1));

  // Where idle is 1, the second plant makes nothing. Otherwise there is a fee of 4.
  std::unique_ptr<Vorq::IVar> second(plants->Get(1));
  std::unique_ptr<Vorq::IVar> idle(model->AddVar(0.0, 1.0, 4.0, 'B', "idle"));
  std::unique_ptr<Vorq::IExpr> output(CreateLinExpr(second.get(), 1.0));
  std::unique_ptr<Vorq::IGenConstr> rule(
      model->AddGenConstrIndicator(idle.get(), 1, output.get(), 'L', 0.0, 0, "second_idle"));

  model->SetObjSense(-1);
  model->Solve();
  if (model->GetLastError() != 0) return 1;
  std::unique_ptr<Vorq::IVar> first(plants->Get(0));
  std::printf("profit %g, first plant %g, second plant idle: %g\n", model->GetDblAttr("BestObj"), first->Get("Value"),
              idle->Get("Value"));
  return 0;
}

// Returns within a budget of risk: a quadratic constraint and a quadratic objective.
int StatePortfolio(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "portfolio"));
  model->SetIntParam("LogToConsole", 0);
  std::unique_ptr<Vorq::IVar> x(model->AddVar(0.0, 1.0, 0.0, 'C', "x"));
  std::unique_ptr<Vorq::IVar> y(model->AddVar(0.0, 1.0, 0.0, 'C', "y"));

  // x x + 0.5 x y + 2 y y + x at most 3. Products count as they are stated; nothing is halved.
  std::unique_ptr<Vorq::IQuadExpr> risk(CreateQuadExpr2(x.get(), 1.0));
  risk->AddTerm(x.get(), x.get(), 1.0);
  risk->AddTerm(x.get(), y.get(), 0.5);
  risk->AddTerm(y.get(), y.get(), 2.0);
  std::unique_ptr<Vorq::IQConstraint> limit(model->AddQConstr(risk.get(), 'L', 3.0, "risk"));
  model->SetQuadObjective(risk.get(), 1);

  // The builder that comes back has the right side in its constant.
  std::unique_ptr<Vorq::IQConstrBuilder> builder(model->GetQConstrBuilder(limit.get()));
  std::unique_ptr<Vorq::IQuadExpr> row(builder->GetQuadExpr());
  std::printf("risk: %d products, constant %g, sense %c\n", static_cast<int>(row->GetSize()), row->GetConstant(),
              builder->GetSense());

  // No engine of this version takes the quadratic parts, and the solve says so.
  model->Solve();
  if (model->GetLastError() == 0) return 1;
  std::printf("%s\n", model->GetErrorMessage());
  return 0;
}

int StateCones(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "cones"));

  // A new quadratic cone of three new variables: t_0 at least the norm of t_1 and t_2.
  std::unique_ptr<Vorq::ICone> norm(model->AddCone(3, 1, nullptr, "t"));

  // A rotated cone and an exponential cone on variables that are there.
  std::unique_ptr<Vorq::IVarArray> vars(model->AddVars(3, 'C', "v"));
  std::unique_ptr<Vorq::ICone> rotated(model->AddCone(vars.get(), 2));
  std::unique_ptr<Vorq::IExpCone> exponential(model->AddExpCone(vars.get(), 3));

  std::unique_ptr<Vorq::IConeBuilderArray> builders(model->GetConeBuilders());
  for (int i = 0; i < builders->Size(); ++i) {
    std::unique_ptr<Vorq::IConeBuilder> builder(builders->Get(i));
    std::unique_ptr<Vorq::IVar> head(builder->GetVar(0));
    std::printf("cone of type %d and size %d, led by %s\n", builder->GetType(), builder->GetSize(), head->GetName());
  }
  return model->GetLastError();
}

int StateSemidefinite(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "semidefinite"));
  std::unique_ptr<Vorq::IVar> x(model->AddVar(0.0, 1.0, 0.0, 'C', "x"));

  // A matrix variable of dimension 2, and matrices of the model: the lower triangle by columns, the unit matrix.
  std::unique_ptr<Vorq::IPsdVar> matrix(model->AddPsdVar(2, "X"));
  double const triangle[] = {1.0, 0.5, 2.0};
  std::unique_ptr<Vorq::ISymMatrix> cost(model->AddDenseMat(2, triangle, 3));
  std::unique_ptr<Vorq::ISymMatrix> unit(model->AddEyeMat(2));

  // The trace of X plus x is 1; the objective is the inner product of the cost and X.
  std::unique_ptr<Vorq::IPsdExpr> trace(CreatePsdExpr4(matrix.get(), unit.get()));
  trace->AddTerm(x.get(), 1.0);
  std::unique_ptr<Vorq::IPsdConstraint> total(model->AddPsdConstr(trace.get(), 'E', 1.0, "trace"));
  std::unique_ptr<Vorq::IPsdExpr> objective(CreatePsdExpr4(matrix.get(), cost.get()));
  model->SetPsdObjective(objective.get(), 1);

  // x times the unit matrix plus the cost matrix is positive semidefinite.
  std::unique_ptr<Vorq::ILmiExpr> sum(CreateLmiExpr4(x.get(), unit.get()));
  std::unique_ptr<Vorq::ISymMatExpr> constant(CreateSymMatExpr2(cost.get(), 1.0));
  sum->AddConstant(constant.get());
  std::unique_ptr<Vorq::ILmiConstraint> inequality(model->AddLmiConstr(sum.get(), "inequality"));

  std::printf("%d matrices in the model, the inequality has dimension %d\n", model->GetIntAttr("SymMats"),
              inequality->GetDim());
  return model->GetLastError();
}

}  // namespace

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  for (auto* tour : {SolvePlants, StatePortfolio, StateCones, StateSemidefinite}) {
    if (tour(*envr) != 0) return 1;
  }
  return 0;
}
