// Adding blocks of variables.
#include <string>
#include <vector>

#include "model/model_blocks.hpp"

namespace Vorq {
namespace {

// What the solver library assumes when it gets no types.
constexpr char kContinuous = 'C';

// One type for all columns; null for what goes without saying.
class RepeatedType {
 public:
  RepeatedType(std::size_t count, char type) {
    if (type != kContinuous) types_.assign(count, type);
  }

  char const* OrNull() const { return types_.empty() ? nullptr : types_.data(); }

 private:
  std::string types_;
};

}  // namespace

template <int N>
MVar<N> Model::AddMVar(NDim<N> const& shape, double const* lbs, double const* ubs, double const* objs,
                       char const* types, char const* prefix) {
  if (!IsCountable(shape)) Refuse("Invalid size of input names");
  if (!IsCountable(shape) || shape.GetSize() == 0) return MVar<N>::WithoutCells(shape);
  BlockNames const names(shape, prefix);
  int const code = VORQ_AddCols(Prob(), static_cast<int>(shape.GetSize()), objs, nullptr, nullptr, nullptr, nullptr,
                                types, lbs, ubs, names.Pointers().data());
  return Record(code, "Fail to add vars") ? AppendBlock<Var>(names, shape) : MVar<N>::WithoutCells(shape);
}

template <int N>
MVar<N> Model::AddMVar(NDim<N> const& shape, char type, char const* prefix) {
  RepeatedType const types(IsCountable(shape) ? shape.GetSize() : 0, type);
  return AddMVar(shape, nullptr, nullptr, nullptr, types.OrNull(), prefix);
}

template <int N>
MVar<N> Model::AddMVar(NDim<N> const& shape, double lb, double ub, double obj, char type, char const* prefix) {
  std::size_t const count = IsCountable(shape) ? shape.GetSize() : 0;
  std::vector<double> const lbs = Repeated(lb, count);
  std::vector<double> const ubs = Repeated(ub, count);
  std::vector<double> const objs = Repeated(obj, count);
  RepeatedType const types(count, type);
  return AddMVar(shape, lbs.data(), ubs.data(), objs.data(), types.OrNull(), prefix);
}

#define VORQ_INSTANTIATE(N)                                                                                 \
  template MVar<N> Model::AddMVar(NDim<N> const&, char, char const*);                                       \
  template MVar<N> Model::AddMVar(NDim<N> const&, double, double, double, char, char const*);               \
  template MVar<N> Model::AddMVar(NDim<N> const&, double const*, double const*, double const*, char const*, \
                                  char const*);
VORQ_ALL_RANKS(VORQ_INSTANTIATE)
#undef VORQ_INSTANTIATE

}  // namespace Vorq
