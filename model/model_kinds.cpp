// How the dimensions of the kinds that have one are read.
#include "model/model_kinds.hpp"

#include "frame/status.hpp"

namespace Vorq {
namespace {

// One call for each thing, up to the first that fails.
template <class Read>
int LoadOneByOne(std::vector<int>& dims, Read read) {
  for (int i = 0; i < static_cast<int>(dims.size()); ++i) {
    int const code = read(i, &dims[static_cast<std::size_t>(i)]);
    if (code != kOk) return code;
  }
  return kOk;
}

}  // namespace

int LoadPsdVarDims(VORQ_Prob* prob, std::vector<int>& dims) {
  return VORQ_GetPSDCols(prob, static_cast<int>(dims.size()), nullptr, dims.data(), nullptr);
}

int LoadLmiConstraintDims(VORQ_Prob* prob, std::vector<int>& dims) {
  return LoadOneByOne(dims, [prob](int i, int* dim) {
    return VORQ_GetLMIConstr(prob, i, dim, nullptr, nullptr, nullptr, nullptr, 0, nullptr);
  });
}

int LoadSymMatrixDims(VORQ_Prob* prob, std::vector<int>& dims) {
  return LoadOneByOne(
      dims, [prob](int i, int* dim) { return VORQ_GetSymMat(prob, i, dim, nullptr, nullptr, nullptr, nullptr); });
}

}  // namespace Vorq
