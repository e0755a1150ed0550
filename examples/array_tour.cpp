// A tour of arrays and blocks: shapes, views, stretched operands, products, stacks and sums; the passages of
// docs/arrays.md.
#include <cstdio>
#include <memory>
#include <string>

#include <vorq>

namespace {

void Print(char const* title, std::string const& text) {
  std::printf("%s:\n%s%s", title, text.c_str(), text.empty() || text.back() != '\n' ? "\n" : "");
}

int ShowArrays(Vorq::IMFactory& factory) {
  // A table over memory of yours, which must stay while the array or a view of it is in use. Nothing is copied.
  double prices[] = {4.0, 3.0, 7.0, 5.0, 2.0, 6.0};
  std::unique_ptr<Vorq::INdArray<double, 2>> table(CreateNdArrayDbl2WithExData(prices, 2, 3));

  // Arrays with elements of their own: one value for all, or a copy of yours.
  std::unique_ptr<Vorq::INDim<2>> shape(factory.CreateNDim(2, 3));
  std::unique_ptr<Vorq::INdArray<double, 2>> zeros(factory.CreateNdArray(shape.get(), 0.0));
  std::unique_ptr<Vorq::INdArray<double, 2>> copy(factory.CreateNdArray(shape.get(), prices, 6));

  // The second row from its end: the rank stays, and what is written to the view is written to the table.
  std::unique_ptr<Vorq::IView> view(factory.CreateView());
  delete view->Scalar(1);
  delete view->Slice(0, 0, -1, 4 + 2);
  std::unique_ptr<Vorq::INdArray<double, 2>> row(table->View(view.get()));
  row->Set(0, 9.0);
  std::unique_ptr<Vorq::INdArray<double, 2>> columns(table->Transpose());

  Print("row", row->ToString(200));
  Print("columns", columns->ToString(200));
  Print("copy", copy->ToString(200));
  return zeros->GetSize() == 6 && prices[5] == 9.0 ? 0 : 1;
}

int ShowStretching() {
  double prices[] = {4.0, 3.0, 7.0, 5.0, 2.0, 6.0};
  double fees[] = {10.0, 20.0, 30.0};
  std::unique_ptr<Vorq::INdArray<double, 2>> table(CreateNdArrayDbl2WithExData(prices, 2, 3));
  std::unique_ptr<Vorq::INdArray<double, 1>> fee(CreateNdArrayDbl1WithExData(fees, 3));

  // A row added to each row of the table.
  std::unique_ptr<Vorq::IBroadCastHelper> operators(CreateBroadCastHelper());
  std::unique_ptr<Vorq::INdArray<double, 2>> total(operators->Add(table.get(), fee.get()));

  // Two numbers, one for each row, need an axis of size 1 behind them: shape (2, 1) is stretched along the columns.
  std::unique_ptr<Vorq::IMHelper> helper(CreateMHelper());
  double rates[] = {2.0, 0.5};
  std::unique_ptr<Vorq::INdArray<double, 1>> rate(CreateNdArrayDbl1WithExData(rates, 2));
  std::unique_ptr<Vorq::INdArray<double, 2>> column(helper->ExpandDims(rate.get(), 1));
  std::unique_ptr<Vorq::INdArray<double, 2>> scaled(operators->Mul(table.get(), column.get()));

  // Shapes that do not fit give a result of size 1 that tells why.
  std::unique_ptr<Vorq::INdArray<double, 2>> failed(operators->Add(table.get(), rate.get()));
  if (failed->GetLastError() == 0) return 1;
  std::printf("%s\n", failed->GetErrorMessage());

  Print("total", total->ToString(200));
  Print("scaled", scaled->ToString(200));
  return total->GetLastError() + scaled->GetLastError();
}

int ShowBlocks(Vorq::IModel& model, Vorq::IMFactory& factory) {
  // How much to send from two plants to three shops: six variables as a block of shape (2, 3).
  std::unique_ptr<Vorq::IVarArray> vars(model.AddVars(6, 'C', "send"));
  std::unique_ptr<Vorq::INDim<2>> shape(factory.CreateNDim(2, 3));
  std::unique_ptr<Vorq::IMVar<2>> send(factory.CreateMVar(shape.get(), vars.get()));
  std::unique_ptr<Vorq::IMHelper> helper(CreateMHelper());

  // What leaves each plant, and what arrives at each shop: sums along an axis.
  std::unique_ptr<Vorq::IMLinExpr<1>> leaves(helper->SumAxis(send.get(), 1));
  std::unique_ptr<Vorq::IMLinExpr<1>> arrives(helper->SumAxis(send.get(), 0));

  // The load of each plant: a matrix of numbers times a vector of variables. No term is made; a cell keeps its row.
  double hours[] = {1.0, 2.0, 0.5};
  std::unique_ptr<Vorq::INdArray<double, 1>> perUnit(CreateNdArrayDbl1WithExData(hours, 3));
  std::unique_ptr<Vorq::IMLinExpr<1>> load(helper->MatMult(send.get(), perUnit.get()));

  // One behind the other: a block of variables and a block of constants give a block of expressions.
  std::unique_ptr<Vorq::IMVar<1>> diagonal(helper->Diagonal(send.get(), 1, 0, 1));
  std::unique_ptr<Vorq::INdArray<double, 1>> ones(helper->Repeat1d(1.0, 2));
  std::unique_ptr<Vorq::IMLinExpr<1>> padded(helper->Concat(diagonal.get(), ones.get(), 0));

  Print("leaves", leaves->ToString(500));
  Print("arrives", arrives->ToString(500));
  Print("load", load->ToString(500));
  Print("padded", padded->ToString(500));
  return leaves->GetLastError() + arrives->GetLastError() + load->GetLastError() + padded->GetLastError();
}

}  // namespace

int main() {
  std::unique_ptr<Vorq::IEnvr> envr(CreateEnvr(nullptr));
  std::unique_ptr<Vorq::IModel> model(CreateModel(envr.get(), "arrays"));
  std::unique_ptr<Vorq::IMFactory> factory(CreateMFactory());
  if (ShowArrays(*factory) != 0 || ShowStretching() != 0) return 1;
  return ShowBlocks(*model, *factory);
}
