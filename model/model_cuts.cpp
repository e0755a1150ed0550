// Adding user cuts and lazy constraints: the same path, told apart by a record of functions and texts.
#include "items/normalize_name.hpp"
#include "model/model_terms.hpp"
#include "model/names.hpp"
#include "model/row_batch.hpp"

namespace Vorq {

void Model::AddCut(CutKind const& kind, Expr& expr, char sense, double rhs, char const* name) {
  double bound = rhs - expr.constant;
  double upper = kInfinity;
  switch (sense) {
    case 'E':
    case 'G':
    case 'L': break;
    case 'N': bound = -kInfinity; break;
    case 'R':
      bound = -expr.constant;
      upper = rhs;  // not shifted by the constant, which is meant
      break;
    default: Refuse(kind.addOneFailed); return;
  }
  std::string const normalized = NormalizeName(name);
  int const n = Compact(expr, Count<Var>());
  Record(kind.addOne(Prob(), n, indices_.data(), expr.coeffs.data(), sense, bound, upper, normalized.c_str()),
         kind.addOneFailed);
}

void Model::AddCut(CutKind const& kind, Expr const& lhs, char sense, Expr const& rhs, char const* name) {
  Expr difference(lhs);
  difference -= rhs;
  AddCut(kind, difference, sense, 0.0, name);
}

void Model::AddCut(CutKind const& kind, ConstrBuilder& builder, char const* name) {
  AddCut(kind, builder.expr, builder.sense, 0.0, name);
}

void Model::AddCuts(CutKind const& kind, ConstrBuilderArray& builders, char const* prefix) {
  // Numbered from 0 in each call, which is meant.
  std::string const names = NumberedNames(prefix, 0, static_cast<int>(builders.size()));
  AddCuts(kind, builders, names.data(), names.size());
}

void Model::AddCuts(CutKind const& kind, ConstrBuilderArray& builders, char const* names, std::size_t length) {
  if (builders.empty()) return;
  RowBatch batch;
  bool const named = SplitNames(names, length, static_cast<int>(builders.size()), batch.names);
  // What is wrong with names or senses is replaced by the text of the operation, which is meant.
  int const code = named && FlattenBuilders(builders, batch) == kOk ? batch.Add(kind.addMany, Prob()) : kInvalid;
  Record(code, kind.addManyFailed);
}

}  // namespace Vorq
