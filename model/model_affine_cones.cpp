// Affine cones: adding them from linear and PSD expressions, and reading them back as builders.
#include <utility>

#include "items/normalize_name.hpp"
#include "matrix/nda_from_array.hpp"
#include "model/block_cones.hpp"
#include "model/cell_terms.hpp"
#include "model/matrix_coefficients.hpp"
#include "model/model_live_items.hpp"
#include "model/model_terms.hpp"
#include "model/names.hpp"
#include "model/row_batch.hpp"

namespace Vorq {

// The rows of an affine cone in flat arrays, as the solver library takes them and gives them.
struct Model::AffineConeData {
  int type = 0;
  TermBatch linear;
  std::vector<double> constants;
  // PSD terms: which variable, which matrix.
  SparseLines psd;
  std::vector<int> matrices;
  // Parts that no row has are left out of the call.
  bool hasLinear = true;
  bool hasPsd = false;
};

namespace {

// Calls visit(cell) for each row; one that the store does not have is an empty expression.
template <class Cell, class Visit>
void ForEachRow(MatrixObject<Cell, 1> const& exprs, Visit visit) {
  Cell none;
  for (std::uint64_t i = 0; i < exprs.GetSize(); ++i) {
    Cell* const cell = exprs.Cells().Find(i);
    visit(cell == nullptr ? none : *cell);
  }
}

template <class T>
T const* DataIf(bool isWanted, std::vector<T> const& values) {
  return isWanted ? values.data() : nullptr;
}

}  // namespace

AffineCone Model::AddAffineConeData(AffineConeData const& data, std::string const& name) {
  TermBatch const& linear = data.linear;
  int const code = VORQ_AddAffineCone(Prob(), data.type, static_cast<int>(data.constants.size()), 0, 0,
                                      DataIf(data.hasPsd, data.psd.begin), DataIf(data.hasPsd, data.psd.count),
                                      DataIf(data.hasPsd, data.psd.index), DataIf(data.hasPsd, data.matrices),
                                      DataIf(data.hasLinear, linear.begins), DataIf(data.hasLinear, linear.counts),
                                      DataIf(data.hasLinear, linear.indices), DataIf(data.hasLinear, linear.coeffs),
                                      data.constants.data(), name.c_str());
  return Added<AffineCone>(code, "Fail to add an affine cone", name);
}

AffineCone Model::AddAffineCone(MLinExpr<1> const& exprs, int type, char const* name) {
  AffineConeData data;
  data.type = type;
  data.linear.Reserve(exprs.GetSize(), exprs.GetSize());
  data.constants.reserve(exprs.GetSize());
  EnsureDense(Count<Var>());
  ForEachRow(exprs, [&](MExpression const& cell) {
    TermBatch& linear = data.linear;
    linear.begins.push_back(static_cast<int>(linear.indices.size()));
    linear.counts.push_back(static_cast<int>(CollectTerms(cell, denseIdx_, linear.indices, linear.coeffs)));
    data.constants.push_back(cell.GetConstant());
  });
  return AddAffineConeData(data, NormalizeName(name));
}

// A failure that stands stops the walk before its first step, which is meant.
bool Model::FlattenPsdTerms(MPsdExpr<1> const& exprs, AffineConeData& data) {
  SparseLines& psd = data.psd;
  ForEachRow(exprs, [&](PsdExpr& row) {
    if (status.Failed()) return;
    row.MergeTerms();
    psd.begin.push_back(static_cast<int>(psd.index.size()));
    psd.count.push_back(static_cast<int>(row.Size()));
    for (PsdVar const& var : row.vars) psd.index.push_back(var.Idx());
    AddMatrices(row.coeffs, data.matrices);
  });
  return !status.Failed();
}

AffineCone Model::AddAffineCone(MPsdExpr<1>& exprs, int type, char const* name) {
  std::size_t const rows = exprs.GetSize();
  std::size_t linearTerms = 0;
  std::size_t psdTerms = 0;
  ForEachRow(exprs, [&](PsdExpr const& row) {
    linearTerms += row.linear.Size();
    psdTerms += row.Size();
  });
  AffineConeData data;
  data.type = type;
  data.hasLinear = linearTerms > 0;
  data.hasPsd = psdTerms > 0;
  data.linear.Reserve(rows, linearTerms);
  data.constants.reserve(rows);
  data.psd.index.reserve(psdTerms);
  data.matrices.reserve(psdTerms);
  ForEachRow(exprs, [&](PsdExpr& row) {
    Flatten(row.linear, Count<Var>(), data.linear);
    data.constants.push_back(row.linear.constant);
  });
  if (data.hasPsd) FlattenPsdTerms(exprs, data);
  if (status.Failed()) return Invalid<AffineCone>();
  return AddAffineConeData(data, NormalizeName(name));
}

AffineCone Model::AddAffineCone(AffineConeBuilder& builder, char const* name) {
  return AddAffineCone(builder.rows, builder.type, name);
}

// Unlike the names of other batches, these have no '_', and begin at 0 each time.
template <class Cell>
AffineConeArray Model::AddAffineCones(MatrixObject<Cell, 2> const& exprs, int type, char const* prefix) {
  std::string const head = NormalizeName(prefix);
  return AddEachRow<AffineCone>(exprs, [&](MatrixObject<Cell, 1>& row, std::uint64_t i) {
    return AddAffineCone(row, type, (head + '(' + std::to_string(i) + ')').c_str());
  });
}

template <class Cell>
AffineConeArray Model::AddAffineCones(MatrixObject<Cell, 2> const& exprs, int type, char const* names,
                                      std::size_t length) {
  std::vector<char const*> split;
  if (!SplitNames(names, length, static_cast<int>(exprs.GetDim(0)), split)) {
    Refuse("Invalid size of affine cone names");
    return {};
  }
  return AddEachRow<AffineCone>(
      exprs, [&](MatrixObject<Cell, 1>& row, std::uint64_t i) { return AddAffineCone(row, type, split[i]); });
}

template AffineConeArray Model::AddAffineCones(MLinExpr<2> const&, int, char const*);
template AffineConeArray Model::AddAffineCones(MPsdExpr<2> const&, int, char const*);
template AffineConeArray Model::AddAffineCones(MLinExpr<2> const&, int, char const*, std::size_t);
template AffineConeArray Model::AddAffineCones(MPsdExpr<2> const&, int, char const*, std::size_t);

bool Model::ReadAffineCone(int index, AffineConeData& data) {
  int rows = 0;
  int psdTerms = 0;
  int linearTerms = 0;
  int const asked = VORQ_GetAffineCone(Prob(), index, &data.type, &rows, 0, 0, nullptr, nullptr, nullptr, nullptr, 0,
                                       &psdTerms, nullptr, nullptr, nullptr, nullptr, nullptr, 0, &linearTerms);
  if (!Record(asked, "Fail to get required row buffer size of affine cone constraint")) return false;

  TermBatch& linear = data.linear;
  auto const size = [](int count) { return static_cast<std::size_t>(std::max(count, 0)); };
  for (auto* list : {&data.psd.begin, &data.psd.count, &linear.begins, &linear.counts}) list->resize(size(rows));
  for (auto* list : {&data.psd.index, &data.matrices}) list->resize(size(psdTerms));
  linear.indices.resize(size(linearTerms));
  linear.coeffs.resize(size(linearTerms));
  data.constants.resize(size(rows));
  return Record(VORQ_GetAffineCone(Prob(), index, &data.type, &rows, 0, 0, data.psd.begin.data(), data.psd.count.data(),
                                   data.psd.index.data(), data.matrices.data(), psdTerms, nullptr, linear.begins.data(),
                                   linear.counts.data(), linear.indices.data(), linear.coeffs.data(),
                                   data.constants.data(), linearTerms, nullptr),
                "Fail to get row data of affine cone constraint");
}

bool Model::MakeAffineRow(AffineConeData const& data, std::size_t place, PsdExpr& row) {
  row.linear.constant = data.constants[place];
  auto const begin = static_cast<std::size_t>(data.linear.begins[place]);
  auto const count = static_cast<std::size_t>(data.linear.counts[place]);
  AddTerms<Var>(std::span(data.linear.indices).subspan(begin, count),
                std::span(data.linear.coeffs).subspan(begin, count), row.linear);
  int const end = data.psd.begin[place] + data.psd.count[place];
  for (int k = data.psd.begin[place]; k < end && !status.Failed(); ++k) {
    auto const term = static_cast<std::size_t>(k);
    AddMatrixTerm<PsdVar>(data.psd.index[term], data.matrices[term], row);
  }
  return !status.Failed();
}

AffineConeBuilder Model::GetAffineConeBuilder(AffineCone const& cone) {
  if (!cone.IsLive()) return {};
  AffineConeData data;
  if (!ReadAffineCone(cone.Idx(), data)) return {};
  std::vector<PsdExpr> rows(data.constants.size());
  for (std::size_t place = 0; place < rows.size(); ++place) {
    if (!MakeAffineRow(data, place, rows[place])) return {};
  }
  AffineConeBuilder builder;
  builder.Take(MPsdExpr<1>(NdaFromArray<PsdExpr>(rows)), data.type);
  return builder;
}

// A cone that cannot be read does not end the walk: its builder is empty, and the status is that of the last read.
AffineConeBuilderArray Model::GetAffineConeBuilders(AffineConeArray const& cones) {
  AffineConeBuilderArray builders;
  if (cones.empty()) {
    for (int i = 0; i < Count<AffineCone>(); ++i) {
      auto const cone = Get<AffineCone>(i);
      if (cone.IsLive()) builders.push_back(GetAffineConeBuilder(cone));
    }
    return builders;
  }
  builders.reserve(cones.size());
  for (AffineCone const& cone : cones) builders.push_back(GetAffineConeBuilder(cone));
  return builders;
}

}  // namespace Vorq
