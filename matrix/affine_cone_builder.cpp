// How the builder of an affine cone takes over its rows.
#include "matrix/affine_cone_builder.hpp"

#include <utility>

namespace Vorq {
namespace {

template <class RowAt>
MPsdExpr<1> MakeRows(std::uint64_t count, RowAt rowAt) {
  return MPsdExpr<1>(NdArray<PsdExpr, 1>::Generated(NDim<1>({count}), rowAt));
}

}  // namespace

void AffineConeBuilder::Take(MPsdExpr<1> newRows, int newType) {
  type = newType;
  dim = static_cast<int>(newRows.GetSize());
  rows = std::move(newRows);
}

void AffineConeBuilder::Set(MPsdExpr<1> const& exprs, int newType) {
  Take(MakeRows(exprs.GetSize(), [&](std::uint64_t i) { return exprs.Get(i); }), newType);
  rows.GetStatus() = exprs.GetStatus();
}

void AffineConeBuilder::Set(MLinExpr<1> const& exprs, int newType) {
  Take(MakeRows(exprs.GetSize(), [&](std::uint64_t i) { return PsdExprOf(exprs.Get(i)); }), newType);
  rows.GetStatus() = exprs.GetStatus();
}

void AffineConeBuilder::Set(std::vector<Var> const& vars, int newType) {
  Take(MakeRows(vars.size(), [&](std::uint64_t i) { return PsdExpr(vars[i], 1.0); }), newType);
}

MLinExpr<1> AffineConeBuilder::LinearRows() const {
  return MLinExpr<1>(NdArray<MExpression, 1>::Generated(
      NDim<1>({rows.GetSize()}), [this](std::uint64_t i) { return MExpression(rows.Get(i).linear); }));
}

}  // namespace Vorq
