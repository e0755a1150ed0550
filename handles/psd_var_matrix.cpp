// The handle on a PSD variable: its entries as expressions.
#include "matrix/psd_var_matrix.hpp"

#include "handles/matrix_expressions.hpp"

namespace {

// The answer to an argument that is null.
template <int N>
Vorq::IMPsdExpr<N>* RefuseNull(Vorq::PsdVar& var, char const* argument) {
  std::string const text = Vorq::NullText("Pick", argument, 1);
  SetStatus(var.status, Vorq::kInvalid, "%s", text.c_str());
  return Vorq::WrapBlock(Vorq::MPsdExpr<N>::Failed(text.c_str()));
}

}  // namespace

Vorq::IMPsdExpr<1>* VorqPsdVar::Diagonal(int offset) {
  return Vorq::WrapBlock(Vorq::Diagonal(Impl(), offset));
}
Vorq::IMPsdExpr<2>* VorqPsdVar::Pick(Vorq::IView* view) {
  if (view == nullptr) return RefuseNull<2>(Impl(), "view");
  return Vorq::WrapBlock(Vorq::Pick(Impl(), Vorq::Unwrap(view)));
}
Vorq::IMPsdExpr<1>* VorqPsdVar::Pick(Vorq::INdArray<int, 1>* indices) {
  if (indices == nullptr) return RefuseNull<1>(Impl(), "indices");
  return Vorq::WrapBlock(Vorq::Pick(Impl(), Vorq::Unwrap(indices)));
}
Vorq::IMPsdExpr<1>* VorqPsdVar::Pick(Vorq::INdArray<int, 2>* coords) {
  if (coords == nullptr) return RefuseNull<1>(Impl(), "coords");
  return Vorq::WrapBlock(Vorq::PickAt(Impl(), Vorq::Unwrap(coords)));
}
Vorq::IPsdExpr* VorqPsdVar::Sum() {
  return Vorq::Wrap<Vorq::IPsdExpr>(Vorq::Sum(Impl()));
}
Vorq::IMPsdExpr<2>* VorqPsdVar::ToMPsdExpr() {
  return Vorq::WrapBlock(Vorq::ToMPsdExpr(Impl()));
}
