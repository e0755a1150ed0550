// Cones on blocks and on expressions: rows of a block of variables, affine cones from linear and PSD expressions, their
// builders, the entries of a PSD variable; passages of docs/quadratic-and-conic.md.
#include <cstdio>
#include <memory>
#include <vector>

#include <vorq>

namespace {

// Which points are within a distance of 2 from the point (1, 3)? The vector (2, x - 1, y - 3) lies in a quadratic cone.
int StateDistance(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "distance"));
  std::unique_ptr<Vorq::IVar> x(model->AddVar(0.0, 10.0, 1.0, 'C', "x"));
  std::unique_ptr<Vorq::IVar> y(model->AddVar(0.0, 10.0, 1.0, 'C', "y"));

  // The head of the cone is a constant; the other rows are x - 1 and y - 3.
  std::unique_ptr<Vorq::IExpr> radius(CreateExpr(2.0));
  std::unique_ptr<Vorq::IExpr> across(CreateLinExpr(x.get(), 1.0));
  across->AddConstant(-1.0);
  std::unique_ptr<Vorq::IExpr> up(CreateLinExpr(y.get(), 1.0));
  up->AddConstant(-3.0);
  std::unique_ptr<Vorq::IAffineCone> disc(
      model->AddAffineCone(std::vector<Vorq::IExpr*>{radius.get(), across.get(), up.get()}, 1, "disc"));

  // It comes back as a builder, whose rows are expressions again.
  std::unique_ptr<Vorq::IAffineConeBuilder> builder(model->GetAffineConeBuilder(disc.get()));
  for (int i = 0; i < builder->GetDim(); ++i) {
    std::unique_ptr<Vorq::IExpr> row(builder->GetExpr(i));
    std::printf("row %d: constant %g, %d terms\n", i, row->GetConstant(), static_cast<int>(row->GetSize()));
  }
  return model->GetLastError();
}

int StateRows(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "rows"));
  std::unique_ptr<Vorq::IMFactory> factory(CreateMFactory());

  // Two cones of three variables: the rows of a block.
  std::unique_ptr<Vorq::INDim<2>> shape(factory->CreateNDim(2, 3));
  std::unique_ptr<Vorq::IMVar<2>> block(model->AddMVar(shape.get(), 'C', "v"));
  std::unique_ptr<Vorq::IConeArray> cones(model->AddCones(block.get(), 2));

  // Two affine cones, named shifted(0) and shifted(1): the same rows with a constant in each cell.
  std::unique_ptr<Vorq::IMLinExpr<2>> shifted(factory->CreateMLinExpr(shape.get(), 0.5));
  shifted->AddTerm(block.get(), 1.0);
  std::unique_ptr<Vorq::IAffineConeArray> affine(model->AddAffineCones(shifted.get(), 1, "shifted"));
  std::unique_ptr<Vorq::IAffineCone> last(affine->Get(1));
  std::printf("%d cones, the last affine one is %s\n", cones->Size() + affine->Size(), last->GetName());

  // All variables of the block go at once, and the cones that held them.
  model->Remove(cones.get());
  model->Remove(affine.get());
  model->Remove(block.get());
  std::printf("%d variables are left\n", model->GetIntAttr("Cols"));
  return model->GetLastError();
}

int StateEntries(Vorq::IEnvr& envr) {
  std::unique_ptr<Vorq::IModel> model(CreateModel(&envr, "entries"));
  std::unique_ptr<Vorq::IVar> t(model->AddVar(0.0, 10.0, 1.0, 'C', "t"));
  std::unique_ptr<Vorq::IPsdVar> matrix(model->AddPsdVar(2, "X"));

  // t is at least the norm of the diagonal of X: one row for t, one for each entry.
  std::unique_ptr<Vorq::IMPsdExpr<1>> diagonal(matrix->Diagonal(0));
  std::unique_ptr<Vorq::IPsdExpr> head(CreatePsdExpr2(t.get(), 1.0));
  std::unique_ptr<Vorq::IPsdExpr> first(diagonal->Get(0));
  std::unique_ptr<Vorq::IPsdExpr> second(diagonal->Get(1));
  std::unique_ptr<Vorq::IAffineConeBuilder> builder(CreateAffineConeBuilder());
  builder->Set(std::vector<Vorq::IPsdExpr*>{head.get(), first.get(), second.get()}, 1);
  std::unique_ptr<Vorq::IAffineCone> cone(model->AddAffineCone(builder.get(), "diagonal"));

  // The sum of all entries of X is 1.
  std::unique_ptr<Vorq::IPsdExpr> sum(matrix->Sum());
  std::unique_ptr<Vorq::IPsdConstraint> total(model->AddPsdConstr(sum.get(), 'E', 1.0, "total"));

  std::printf("cone of %d rows, %d matrices in the model\n", builder->GetDim(), model->GetIntAttr("SymMats"));
  return model->GetLastError();
}

}  // namespace

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  for (auto* tour : {StateDistance, StateRows, StateEntries}) {
    if (tour(*envr) != 0) return 1;
  }
  return 0;
}
