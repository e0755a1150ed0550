// The handles on builders of affine cones and their array.
#pragma once

#include <algorithm>
#include <vector>

#include "handles/builders.hpp"
#include "handles/matrix_expressions.hpp"
#include "matrix/affine_cone_builder.hpp"
#include "matrix/block_rows.hpp"
#include "vorqmodel/arrays.h"

namespace Vorq {

// A list of handles as a block with a copy of each object. No handle may be null.
template <class Cell, class Interface>
MatrixObject<Cell, 1> CopiesOf(std::vector<Interface*> const& handles) {
  return MatrixObject<Cell, 1>(NdArray<Cell, 1>::Generated(
      NDim<1>({handles.size()}), [&handles](std::uint64_t i) { return Cell(Unwrap(handles[i])); }));
}

template <class Interface>
bool HasNull(std::vector<Interface*> const& handles) {
  return std::find(handles.begin(), handles.end(), nullptr) != handles.end();
}

}  // namespace Vorq

// Builders have no status: what is null leaves them as they are.
class VorqAffineConeBuilder final
    : public Vorq::Handle<VorqAffineConeBuilder, Vorq::IAffineConeBuilder, Vorq::AffineConeBuilder> {
 public:
  using Handle::Handle;

  int GetDim() override { return Impl().dim; }
  int GetType() override { return Impl().type; }
  bool GetFlag() override { return Impl().flag; }
  Vorq::IExpr* GetExpr(int i) override { return Vorq::Wrap<Vorq::IExpr>(Row(i).linear); }
  Vorq::IPsdExpr* GetPsdExpr(int i) override { return Vorq::Wrap<Vorq::IPsdExpr>(Row(i)); }
  Vorq::IMLinExpr<1>* GetMLinExpr() override { return Vorq::WrapBlock(Impl().LinearRows()); }
  Vorq::IMPsdExpr<1>* GetMPsdExpr() override { return Vorq::WrapBlock(Vorq::MPsdExpr<1>(Impl().rows)); }
  void Set(Vorq::IMPsdExpr<1>* exprs, int type) override {
    if (exprs != nullptr) Impl().Set(Vorq::Unwrap(exprs), type);
  }
  void Set(std::vector<Vorq::IPsdExpr*> exprs, int type) override {
    if (!Vorq::HasNull(exprs)) Impl().Take(Vorq::CopiesOf<Vorq::PsdExpr>(exprs), type);
  }
  void Set(Vorq::IMLinExpr<1>* exprs, int type) override {
    if (exprs != nullptr) Impl().Set(Vorq::Unwrap(exprs), type);
  }
  void Set(std::vector<Vorq::IVar*> vars, int type) override {
    if (!Vorq::HasNull(vars)) Impl().Set(Vorq::CellList(Vorq::CopiesOf<Vorq::Var>(vars)), type);
  }

 private:
  Vorq::PsdExpr Row(int i) { return i < 0 || i >= Impl().dim ? Vorq::PsdExpr() : Impl().rows.Get(i); }
};

template <>
struct Vorq::HandleTraits<Vorq::IAffineConeBuilder> {
  using Handle = VorqAffineConeBuilder;
};

// Behind the others, for it defines a macro.
#include "handles/array_macro.inc"

VORQ_ARRAY(AffineConeBuilderArray, AffineConeBuilder)

#undef VORQ_ARRAY
