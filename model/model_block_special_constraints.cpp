// Adding quadratic, PSD and indicator constraints from cells and blocks of them: one call of the solver library a cell.
#include <string>
#include <vector>

#include "items/normalize_name.hpp"
#include "model/cell_terms.hpp"
#include "model/model_blocks.hpp"
#include "model/model_terms.hpp"

namespace Vorq {

QConstraint Model::AddQConstr(MQExpression const& cell, char sense, double rhs, char const* name) {
  if (sense != 'E' && sense != 'G' && sense != 'L') {
    SetStatus(status, kInvalid, "Invalid quadratic constraint sense: %d", sense);
    return Invalid<QConstraint>();
  }
  Expr const& linear = cell.expr.linear;
  std::size_t const linearCount = Collect(linear);
  if (linearCount >= kMaxCount) {
    SetStatus(status, kInvalid, "Fail to add quadratic constraint of linear items of size %zu", linearCount);
    return Invalid<QConstraint>();
  }
  std::vector<int> rows, cols;
  std::vector<double> values;
  std::size_t const count = CollectQuadTerms(cell, rows, cols, values);
  if (count >= kMaxCount) {
    SetStatus(status, kInvalid, "Fail to add constraint of quadratic items of size %zu", count);
    return Invalid<QConstraint>();
  }
  std::string const normalized = NormalizeName(name);
  int const code =
      VORQ_AddQConstr(Prob(), static_cast<int>(linearCount), indices_.data(), coeffs_.data(), static_cast<int>(count),
                      rows.data(), cols.data(), values.data(), sense, rhs - linear.constant, normalized.c_str());
  return Added<QConstraint>(code, "Fail to add a quadratic constraint", normalized);
}

template <class Item, class Cell, int N, class Add>
MatrixObject<Item, N> Model::AddOneByOne(MatrixObject<Cell, N> const& block, char const* prefix, char const* sizeFailed,
                                         Add&& add) {
  NdArray<Cell, N> const& cells = block.Cells();
  NDim<N> const& shape = cells.GetShape();
  if (!IsCountable(shape)) {
    Refuse(sizeFailed);
    return {};
  }
  auto items = NdArray<Item, N>(shape.Clone(), {});
  if (!cells.HasElements()) return MatrixObject<Item, N>(std::move(items));
  items = NdArray<Item, N>::Fresh(shape);
  BlockNames const names(shape, prefix);
  Item* item = items.Store().Get();
  for (std::size_t i = 0; i < names.Pointers().size(); ++i, ++item) {
    *item = add(*cells.Find(i), names.Pointers()[i]);
    if (!item->IsLive()) return {};
  }
  return MatrixObject<Item, N>(std::move(items));
}

template <int N>
MQConstr<N> Model::AddMQConstr(MQuadExpr<N> const& expr, char sense, double rhs, char const* prefix) {
  return AddOneByOne<QConstraint>(
      expr, prefix, "Invalid size of quadratic constraint names",
      [&](MQExpression const& cell, char const* name) { return AddQConstr(cell, sense, rhs, name); });
}

template <int N>
MQConstr<N> Model::AddMQConstr(MQConstrBuilder<N> const& builder, char const* prefix) {
  return AddMQConstr(builder.expr, builder.sense, 0.0, prefix);
}

// Adding a PSD constraint merges terms in place, and so is done with a copy of the cell.
template <int N>
MPsdConstr<N> Model::AddMPsdConstr(MPsdExpr<N> const& expr, char sense, double rhs, char const* prefix) {
  return AddOneByOne<PsdConstraint>(
      expr, prefix, "Invalid size of PSD constraint names",
      [&](PsdExpr cell, char const* name) { return AddPsdConstr(cell, sense, rhs, name); });
}

template <int N>
MPsdConstr<N> Model::AddMPsdConstr(MPsdConstrBuilder<N> const& builder, char const* prefix) {
  if (builder.sense != 'R') return AddMPsdConstr(builder.expr, builder.sense, 0.0, prefix);
  return AddOneByOne<PsdConstraint>(
      builder.expr, prefix, "Invalid size of PSD constraint names",
      [&](PsdExpr cell, char const* name) { return AddPsdConstr(cell, -builder.range, 0.0, name); });
}

template <int N>
GenConstrArray Model::AddGenConstrIndicators(MVar<N> const& binaries, int value, MConstrBuilder<N> const& builder,
                                             int type, char const* prefix) {
  NdArray<MExpression, N> const& cells = builder.expr.Cells();
  std::uint64_t const count = cells.GetSize();
  if (binaries.GetSize() != count) {
    SetStatus(status, kInvalid, "Size of binaries (%zu) is different from size of builder (%zu)",
              static_cast<std::size_t>(binaries.GetSize()), static_cast<std::size_t>(count));
    return {};
  }
  GenConstrArray added;
  if (!IsCountable(cells.GetShape())) Refuse("Invalid size of general constraint names");
  if (!IsCountable(cells.GetShape()) || !cells.HasElements()) return added;
  BlockNames const names(cells.GetShape(), prefix);
  added.reserve(count);
  for (std::uint64_t i = 0; i < count; ++i) {
    GenConstr constr =
        AddGenConstrIndicator(binaries.Get(i), value, *cells.Find(i), builder.sense, 0.0, type, names.Pointers()[i]);
    if (!constr.IsLive()) break;
    added.push_back(std::move(constr));
  }
  return added;
}

#define VORQ_INSTANTIATE(N)                                                                                 \
  template MQConstr<N> Model::AddMQConstr(MQConstrBuilder<N> const&, char const*);                          \
  template MQConstr<N> Model::AddMQConstr(MQuadExpr<N> const&, char, double, char const*);                  \
  template MPsdConstr<N> Model::AddMPsdConstr(MPsdConstrBuilder<N> const&, char const*);                    \
  template MPsdConstr<N> Model::AddMPsdConstr(MPsdExpr<N> const&, char, double, char const*);               \
  template GenConstrArray Model::AddGenConstrIndicators(MVar<N> const&, int, MConstrBuilder<N> const&, int, \
                                                        char const*);
VORQ_ALL_RANKS(VORQ_INSTANTIATE)
#undef VORQ_INSTANTIATE

}  // namespace Vorq
