// The C functions that add and read affine cones.
#include "solver/api/append_items.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/reading.hpp"
#include "solver/api/symmetric_matrices.hpp"

using namespace vorqsolver;

namespace {

// The types of cones and of exponential cones hold for affine cones, too.
void CheckShape(int type, int rows) {
  if (type < 1 || type > 4) Refuse("Unknown type ", type, " of an affine cone");
  bool const fits = type <= 2 ? rows >= type : rows == 3;
  if (!fits) Refuse("An affine cone of type ", type, " cannot have ", rows, " rows");
}

void ReadPsdTerms(AffineCone const& cone, int* begins, int* counts, int* psdCols, int* psdMats, int capacity,
                  int* required) {
  Selection const rows(static_cast<int>(cone.rows.size()), nullptr, static_cast<int>(cone.rows.size()), "Cone row");
  auto const terms = [&](int row) -> auto const& {
    return cone.rows[static_cast<std::size_t>(row)].psd;
  };
  ReadRuns(
      rows, begins, counts, {psdCols, psdMats}, capacity, required, [&](int row) { return terms(row).size(); },
      [&](int row, std::size_t begin) {
        StoreMembers(terms(row), &PsdTerm::psdCol, psdCols, begin);
        StoreMembers(terms(row), &PsdTerm::symMat, psdMats, begin);
      });
}

void ReadLinearTerms(AffineCone const& cone, int* begins, int* counts, int* cols, double* coefs, double* constants,
                     int capacity, int* required) {
  Selection const rows(static_cast<int>(cone.rows.size()), nullptr, static_cast<int>(cone.rows.size()), "Cone row");
  auto const row = [&](int place) -> AffineRow const& { return cone.rows[static_cast<std::size_t>(place)]; };
  ReadRuns(
      rows, begins, counts, {cols, coefs}, capacity, required, [&](int place) { return row(place).linear.size(); },
      [&](int place, std::size_t begin) {
        StoreMembers(row(place).linear, &LinearTerm::col, cols, begin);
        StoreMembers(row(place).linear, &LinearTerm::value, coefs, begin);
      });
  StoreEach(rows, constants, [&](int place) { return row(place).constant; });
}

}  // namespace

int VORQ_AddAffineCone(VORQ_Prob* prob, int type, int nExprs, int /*reserved1*/, int /*reserved2*/, int const* psdBeg,
                       int const* psdCnt, int const* psdCols, int const* psdMats, int const* rowBeg, int const* rowCnt,
                       int const* cols, double const* coefs, double const* constants, char const* name) {
  return Edit(prob, [&](Problem& problem) {
    CheckShape(type, nExprs);
    Batch const linear(nExprs, rowBeg, rowCnt, cols != nullptr);
    Batch const psd(nExprs, psdBeg, psdCnt, psdCols != nullptr);
    if (linear.ElementCount() > 0) Need(coefs, "coefs");
    if (psd.ElementCount() > 0) Need(psdMats, "psdMats");
    if (constants != nullptr) CheckCoefficients(List(nExprs, constants, "constants"), "constants");
    AffineCone cone;
    cone.type = type;
    for (int place = 0; place < nExprs; ++place) {
      cone.rows.push_back({LinearTerms(linear.Of(place, cols), linear.Of(place, coefs), problem.data.columns.Count()),
                           PsdTerms(problem.data, psd.Of(place, psdCols), psd.Of(place, psdMats)),
                           constants == nullptr ? 0.0 : constants[place]});
    }
    AppendItem(problem.data.affineCones, problem.data.affineConeNames, std::move(cone), name);
  });
}

int VORQ_GetAffineCone(VORQ_Prob* prob, int index, int* type, int* nExprs, int /*reserved1*/, int /*reserved2*/,
                       int* psdBeg, int* psdCnt, int* psdCols, int* psdMats, int psdCapacity, int* psdRequired,
                       int* rowBeg, int* rowCnt, int* cols, double* coefs, double* constants, int capacity,
                       int* required) {
  return Guard(prob, [&](Problem& problem) {
    CheckIndex(index, kAffineConeKind.Count(problem), kAffineConeKind.title);
    auto const& cone = problem.data.affineCones[static_cast<std::size_t>(index)];
    Store(type, cone.type);
    Store(nExprs, static_cast<int>(cone.rows.size()));
    ReadPsdTerms(cone, psdBeg, psdCnt, psdCols, psdMats, psdCapacity, psdRequired);
    ReadLinearTerms(cone, rowBeg, rowCnt, cols, coefs, constants, capacity, required);
  });
}
