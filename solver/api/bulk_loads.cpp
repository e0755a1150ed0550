// The C functions that replace the whole problem by one that is stated in flat arrays. The new data are made aside, so
// that a bad argument leaves the problem as it was.
#include <vector>

#include "solver/api/append_items.hpp"
#include "solver/api/columns.hpp"
#include "solver/api/cones.hpp"
#include "solver/api/item_kinds.hpp"
#include "solver/api/quadratic_terms.hpp"
#include "solver/api/rows.hpp"
#include "solver/api/symmetric_matrices.hpp"

using namespace vorqsolver;

namespace {

struct LinearPart {
  int nCols;
  int nRows;
  int sense;
  double objConst;
  double const* objs;
  int const* colBeg;
  int const* colCnt;
  int const* rows;
  double const* coefs;
  char const* types;
  double const* lbs;
  double const* ubs;
  char const* senses;
  double const* lowers;
  double const* uppers;
  char const* const* colNames;
  char const* const* rowNames;
};

ProblemData MakeData(LinearPart const& part) {
  if (part.sense != VORQ_MINIMIZE && part.sense != VORQ_MAXIMIZE) {
    Refuse("Unknown sense ", part.sense, " of the objective");
  }
  CheckCoefficient(part.objConst, "objConst");
  ProblemData data;
  data.objective.sense = part.sense;
  data.objective.constant = part.objConst;
  AppendRows(data.rows, {.terms = Batch(part.nRows, nullptr, nullptr, false),
                         .senses = part.senses,
                         .lowers = part.lowers,
                         .uppers = part.uppers,
                         .names = part.rowNames});
  AppendColumns(data, {.terms = Batch(part.nCols, part.colBeg, part.colCnt, part.rows != nullptr),
                       .rows = part.rows,
                       .coefs = part.coefs,
                       .objs = part.objs,
                       .types = part.types,
                       .lowers = part.lbs,
                       .uppers = part.ubs,
                       .names = part.colNames});
  return data;
}

void Replace(Problem& problem, ProblemData&& data) {
  problem.data = std::move(data);
  problem.ResetResults(true);
}

// Matrix k has its elements at symBeg[k] to symBeg[k + 1] - 1.
void AddSymMatrices(ProblemData& data, int count, int elementCount, int const* dims, int const* begins, int const* rows,
                    int const* cols, double const* values) {
  CheckCount(count, "nSymMats");
  CheckCount(elementCount, "nSymElems");
  if (count == 0) return;
  Need(dims, "symDims");
  Need(begins, "symBeg");
  for (int place = 0; place < count; ++place) {
    auto const begin = begins[place];
    auto const end = begins[place + 1];
    if (begin < 0 || end < begin || end > elementCount) {
      Refuse("Argument 'symBeg' does not give elements of ", kSymMatrixTitle, " ", place);
    }
    auto const at = static_cast<std::size_t>(begin);
    auto const size = static_cast<std::size_t>(end - begin);
    data.symMatrices.push_back(MakeSymMatrix(dims[place], List(elementCount, rows, "symRows").subspan(at, size),
                                             List(elementCount, cols, "symCols").subspan(at, size),
                                             List(elementCount, values, "symVals").subspan(at, size)));
  }
}

// Cones lie behind each other in `cols` by their dimensions.
void AddCones(ProblemData& data, int count, int const* types, int const* dims, int const* cols) {
  CheckCount(count, "nCones");
  if (count == 0) return;
  Need(dims, "coneDims");
  Batch const batch(count, nullptr, dims, true);
  if (batch.ElementCount() > 0) Need(cols, "coneCols");
  for (int place = 0; place < count; ++place) {
    auto const type = types == nullptr ? 1 : types[place];
    data.cones.push_back(MakeCone(type, batch.Of(place, cols), data.columns.Count()));
  }
}

void AddExpCones(ProblemData& data, int count, int const* types, int const* cols) {
  CheckCount(count, "nExpCones");
  if (count > 0) Need(cols, "expConeCols");
  for (int place = 0; place < count; ++place) {
    std::span<int const, 3> const members(cols + 3 * static_cast<std::size_t>(place), 3);
    data.expCones.push_back(MakeExpCone(types == nullptr ? 3 : types[place], members, data.columns.Count()));
  }
}

}  // namespace

int VORQ_LoadProb(VORQ_Prob* prob, int nCols, int nRows, int sense, double objConst, double const* objs,
                  int const* colBeg, int const* colCnt, int const* rows, double const* coefs, char const* types,
                  double const* lbs, double const* ubs, char const* senses, double const* lowers, double const* uppers,
                  char const* const* colNames, char const* const* rowNames) {
  return Edit(prob, [&](Problem& problem) {
    Replace(problem, MakeData({nCols, nRows, sense, objConst, objs, colBeg, colCnt, rows, coefs, types, lbs, ubs,
                               senses, lowers, uppers, colNames, rowNames}));
  });
}

int VORQ_LoadConeProb(VORQ_Prob* prob, int nCols, int nRows, int nCones, int nExpCones, int nPsdCols, int nSymMats,
                      int nSymElems, int nQuad, int const* symDims, int const* symBeg, int const* symRows,
                      int const* symCols, double const* symVals, int sense, double objConst, double const* objs,
                      int const* colBeg, int const* colCnt, int const* rows, double const* coefs, char const* types,
                      double const* lbs, double const* ubs, double const* lowers, double const* uppers,
                      int const* quadRows, int const* quadCols, double const* quadVals, int const* coneTypes,
                      int const* coneDims, int const* coneCols, int const* expConeTypes, int const* expConeCols,
                      int const* psdDims, char const* const* colNames, char const* const* rowNames,
                      char const* const* psdColNames, int const* psdObjMats) {
  return Edit(prob, [&](Problem& problem) {
    auto data = MakeData({nCols, nRows, sense, objConst, objs, colBeg, colCnt, rows, coefs, types, lbs, ubs, nullptr,
                          lowers, uppers, colNames, rowNames});
    AddSymMatrices(data, nSymMats, nSymElems, symDims, symBeg, symRows, symCols, symVals);
    data.objective.quadratic = QuadTerms(List(nQuad, quadRows, "quadRows"), List(nQuad, quadCols, "quadCols"),
                                         List(nQuad, quadVals, "quadVals"), nCols);
    AddCones(data, nCones, coneTypes, coneDims, coneCols);
    AddExpCones(data, nExpCones, expConeTypes, expConeCols);
    AppendPsdColumns(data, List(nPsdCols, psdDims, "psdDims"), psdColNames);
    for (int psdCol = 0; psdObjMats != nullptr && psdCol < nPsdCols; ++psdCol) {
      if (psdObjMats[psdCol] == -1) continue;
      CheckSymMatrix(data, psdObjMats[psdCol], psdDims[psdCol]);
      data.objective.psd.push_back({psdCol, psdObjMats[psdCol]});
    }
    Replace(problem, std::move(data));
  });
}
