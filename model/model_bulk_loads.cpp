// Loading whole problems and pieces of them from arrays in the solver library's layout.
#include <numeric>

#include "model/model.hpp"

namespace Vorq {

void Model::LoadMatrix(int nCols, int nRows, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                       double const* coefs, double const* lowers, double const* uppers, double const* lbs,
                       double const* ubs, char const* types) {
  int const code = VORQ_LoadProb(Prob(), nCols, nRows, VORQ_MINIMIZE, 0.0, objs, colBeg, colCnt, rows, coefs, types,
                                 lbs, ubs, nullptr, lowers, uppers, nullptr, nullptr);
  if (Record(code, "Fail to load matrix")) ReloadItems();
}

void Model::LoadConeMatrix(ConeProblem const& p) {
  int const code = VORQ_LoadConeProb(
      Prob(), p.nCols, p.nRows, p.nCones, p.nExpCones, p.nPsdCols, p.nSymMats, p.nSymElems, p.nQuad, p.symDims,
      p.symBeg, p.symRows, p.symCols, p.symVals, VORQ_MINIMIZE, 0.0, p.objs, p.colBeg, p.colCnt, p.rows, p.coefs,
      p.types, p.lbs, p.ubs, p.lowers, p.uppers, p.quadRows, p.quadCols, p.quadVals, p.coneTypes, p.coneDims,
      p.coneCols, p.expConeTypes, p.expConeCols, p.psdDims, nullptr, nullptr, nullptr, p.psdObjMats);
  if (Record(code, "Fail to load cone problem by matrix")) ReloadItems();
}

void Model::LoadQ(int count, int const* rows, int const* cols, double const* values) {
  if (count < 1 || rows == nullptr || cols == nullptr || values == nullptr) return;
  FlushAndCall("Fail to load Q objective", VORQ_SetQuadObj, count, rows, cols, values);
}

// No items are made for the cones, here and below, which is meant.
void Model::LoadCone(int count, int const* types, int const* dims, int const* cols) {
  if (count < 1 || dims == nullptr || cols == nullptr) return;
  std::vector<int> begins(static_cast<std::size_t>(count));
  std::exclusive_scan(dims, dims + count, begins.begin(), 0);
  FlushAndCall("Fail to load cone data", VORQ_AddCones, count, types, begins.data(), dims, cols);
}

void Model::LoadExpCone(int count, int const* types, int const* cols) {
  if (count < 1 || cols == nullptr) return;
  FlushAndCall("Fail to load exponential cone data", VORQ_AddExpCones, count, types, cols);
}

}  // namespace Vorq
