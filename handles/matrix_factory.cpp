// The handle on the matrix factory, and its exported factory.
#include "vorqmodel/matrix_factory.h"

#include "handles/item_arrays.hpp"
#include "handles/m_expressions.hpp"
#include "handles/matrix_builders.hpp"
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "handles/nd_array.hpp"
#include "handles/null_operand.hpp"
#include "handles/shapes.hpp"
#include "handles/views.hpp"
#include "matrix/factory.hpp"
#include "vorqmodel/exports.h"

using namespace Vorq;

namespace {

template <class Result, int N, class Argument>
Result* CreateBlock(INDim<N>* shape, Argument argument) {
  using Cell = typename HandleTraits<Result>::Handle::Impl_t::Cell;
  if (int const place = NullPlace(shape, argument)) return NullOperand<Result>(place);
  return WrapBlock(MakeBlock<Cell>(Unwrap(shape), UnwrapArgument(argument)));
}

template <class T, int N, class... Arguments>
INdArray<T, N>* CreateArray(INDim<N>* shape, Arguments... arguments) {
  if (shape == nullptr) return NullOperand<INdArray<T, N>>(1);
  return WrapArray(MakeArray(Unwrap(shape), arguments...));
}

template <int N>
INDim<N>* CreateShape(typename NDim<N>::Sizes const& sizes) {
  return Wrap<INDim<N>>(sizes);
}

template <class Result, class... Arguments>
Result* CreateSingle(Arguments const&... arguments) {
  if (int const place = NullPlace(arguments...)) {
    Result* const failed = NullOperand<Result>(place);
    // Builders carry the failure; cells have no status.
    if (Status* status = StatusOf(Unwrap(failed))) SetStatus(*status, kInvalid, "Operand %d is null", place);
    return failed;
  }
  return Wrap<Result>(UnwrapArgument(arguments)...);
}

}  // namespace

// It has no state, and so no object behind it.
class VorqMFactory final : public IMFactory {
 public:
#define VORQ_RANKS(ENTRY, ...) ENTRY(0, __VA_ARGS__) ENTRY(1, __VA_ARGS__) ENTRY(2, __VA_ARGS__) ENTRY(3, __VA_ARGS__)
#define VORQ_FAMILY_ENTRY(N, operation, Result, Argument)             \
  Result<N>* operation(INDim<N>* shape, Argument argument) override { \
    return CreateBlock<Result<N>>(shape, argument);                   \
  }
#define VORQ_BUILDERS_ENTRY(N, operation, Result)  \
  Result<N>* operation(INDim<N>* shape) override { \
    return CreateSingle<Result<N>>(shape);         \
  }
#define VORQ_ARRAYS_ENTRY(N, Element, Argument)                                      \
  INdArray<Element, N>* CreateNdArray(INDim<N>* shape, Argument argument) override { \
    return CreateArray<Element>(shape, argument);                                    \
  }
#define VORQ_COPIES_ENTRY(N, Element)                                                                      \
  INdArray<Element, N>* CreateNdArray(INDim<N>* shape, Element const* data, std::uint64_t size) override { \
    return CreateArray<Element>(shape, data, size);                                                        \
  }

#define VORQ_FAMILY(...) VORQ_RANKS(VORQ_FAMILY_ENTRY, __VA_ARGS__)
#define VORQ_BUILDERS(...) VORQ_RANKS(VORQ_BUILDERS_ENTRY, __VA_ARGS__)
#define VORQ_ARRAYS(...) VORQ_RANKS(VORQ_ARRAYS_ENTRY, __VA_ARGS__)
#define VORQ_COPIES(...) VORQ_RANKS(VORQ_COPIES_ENTRY, __VA_ARGS__)
#define VORQ_SHAPES(operation)                                                         \
  INDim<0>* operation() override {                                                     \
    return CreateShape<0>({});                                                         \
  }                                                                                    \
  INDim<1>* operation(std::uint64_t d0) override {                                     \
    return CreateShape<1>({d0});                                                       \
  }                                                                                    \
  INDim<2>* operation(std::uint64_t d0, std::uint64_t d1) override {                   \
    return CreateShape<2>({d0, d1});                                                   \
  }                                                                                    \
  INDim<3>* operation(std::uint64_t d0, std::uint64_t d1, std::uint64_t d2) override { \
    return CreateShape<3>({d0, d1, d2});                                               \
  }
#define VORQ_SINGLE(operation, Result, ...)                      \
  Result* operation(__VA_OPT__(__VA_ARGS__ argument)) override { \
    return CreateSingle<Result>(__VA_OPT__(argument));           \
  }
#include "vorqmodel/factory_families.inc"

#undef VORQ_RANKS
#undef VORQ_FAMILY_ENTRY
#undef VORQ_BUILDERS_ENTRY
#undef VORQ_ARRAYS_ENTRY
#undef VORQ_COPIES_ENTRY
};

extern "C" IMFactory* CreateMFactory() {
  return new VorqMFactory();
}
