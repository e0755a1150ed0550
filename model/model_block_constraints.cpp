// Adding linear constraints, cuts and lazy constraints from cells and blocks of them.
#include <string>
#include <vector>

#include "items/normalize_name.hpp"
#include "model/cell_rows.hpp"
#include "model/model_blocks.hpp"
#include "model/model_terms.hpp"

namespace Vorq {
namespace {

constexpr char const* kInvalidSense = "Invalid constraint sense";

bool IsPlainSense(char sense) {
  return sense == 'E' || sense == 'G' || sense == 'L';
}

}  // namespace

Constraint Model::AddConstr(MExpression const& cell, char sense, double rhs, char const* name) {
  if (!IsPlainSense(sense)) Refuse(kInvalidSense);
  // A failure that an earlier operation left stops this one too, which is meant.
  if (status.Failed()) return Invalid<Constraint>();
  std::string const normalized = NormalizeName(name);
  int const count = static_cast<int>(Collect(cell));
  int const code = VORQ_AddRow(Prob(), count, indices_.data(), coeffs_.data(), sense, rhs - cell.GetConstant(),
                               kInfinity, normalized.c_str());
  return Added<Constraint>(code, "Fail to add a constraint", normalized);
}

template <int N>
MConstr<N> Model::AddRowBlock(MLinExpr<N> const& expr, char sense, double upper, char const* prefix) {
  NdArray<MExpression, N> const& cells = expr.Cells();
  NDim<N> const& shape = cells.GetShape();
  if (!IsCountable(shape)) {
    Refuse("Invalid size of constraint names");
    return {};
  }
  if (!cells.HasElements()) return MConstr<N>(NdArray<Constraint, N>(shape.Clone(), {}));
  BlockNames const names(shape, prefix);

  {
    // What is handed over goes before the items come.
    std::size_t const count = shape.GetSize();
    std::size_t terms = 0;
    cells.ForEach([&terms](MExpression const& cell) { terms += cell.ExplicitSize() + cell.LazySize(); });
    EnsureDense(Count<Var>());
    CellRows rows(denseIdx_, count, terms);
    std::vector<double> lowers;
    ReserveMore(lowers, count);
    cells.ForEach([&](MExpression const& cell) {
      rows.Add(cell);
      lowers.push_back(sense == 'N' ? -kInfinity : 0.0 - cell.GetConstant());
    });
    rows.Finish();
    if (rows.EntryCount() > kMaxCount) {
      SetStatus(status, kInvalid, "Fail to add constraints of %zu linear items", rows.EntryCount());
      return {};
    }
    std::string const senses(count, sense);
    std::vector<double> const uppers = Repeated(upper, count);
    int const code =
        VORQ_AddRows(Prob(), static_cast<int>(count), rows.Begins(), rows.Counts(), rows.Indices(), rows.Coefficients(),
                     senses.data(), lowers.data(), uppers.data(), names.Pointers().data());
    if (!Record(code, "Fail to add constraints")) return {};
  }
  return AppendBlock<Constraint>(names, shape);
}

template <int N>
MConstr<N> Model::AddMConstr(MConstrBuilder<N> const& builder, char const* prefix) {
  char const sense = builder.sense;
  bool const isKnown = IsPlainSense(sense) || sense == 'N' || sense == 'R';
  // The sense is looked at with the first cell.
  if (!isKnown && builder.expr.GetSize() > 0) {
    Refuse(kInvalidSense);
    return {};
  }
  return AddRowBlock(builder.expr, sense, sense == 'R' ? builder.range : kInfinity, prefix);
}

template <int N>
MConstr<N> Model::AddMConstr(MLinExpr<N> const& expr, char sense, double, char const* prefix) {
  if (!IsPlainSense(sense)) {
    Refuse(kInvalidSense);
    return {};
  }
  return AddRowBlock(expr, sense, kInfinity, prefix);
}

template <int N>
void Model::AddCuts(CutKind const& kind, MConstrBuilder<N> const& builder, char const* prefix) {
  ConstrBuilderArray builders = ToConstrBuilderArray(builder);
  AddCuts(kind, builders, prefix);
}

#define VORQ_INSTANTIATE(N)                                                             \
  template MConstr<N> Model::AddMConstr(MConstrBuilder<N> const&, char const*);         \
  template MConstr<N> Model::AddMConstr(MLinExpr<N> const&, char, double, char const*); \
  template void Model::AddCuts(CutKind const&, MConstrBuilder<N> const&, char const*);
VORQ_ALL_RANKS(VORQ_INSTANTIATE)
#undef VORQ_INSTANTIATE

}  // namespace Vorq
