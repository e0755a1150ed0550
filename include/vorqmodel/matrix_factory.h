// IMFactory: matrix objects, cells, shapes and arrays made without a model.
//
//     std::unique_ptr<Vorq::IMFactory> factory(CreateMFactory());
//     std::unique_ptr<Vorq::INDim<2>> shape(factory->CreateNDim(2, 3));
//     Vorq::IMLinExpr<2>* ones = factory->CreateMLinExpr(shape.get(), 1.0);
//
// The operations stand in factory_families.inc; where there is one for each rank, the shape is an INDim of that rank.
// A prototype, an expression or a number is copied to each cell; an array gives one cell an element, in flat order, and
// must have the shape's size, which is not checked. Copies of a caller's elements stop at the smaller of the two sizes,
// `size` being the number of elements given; what is left is 0. A fill function is called once for each flat index, in
// ascending order; with a null one the elements are 0. Each result is new and owned by the caller; for a null object it
// has size 1 and carries the failure, as far as it can.
#ifndef VORQMODEL_MATRIX_FACTORY_H
#define VORQMODEL_MATRIX_FACTORY_H

#include <cstdint>

#include "vorqmodel/forward.h"

namespace Vorq {

// The element at a flat index.
template <class T>
using FillFunction = T (*)(std::uint64_t index);

class IMFactory {
 public:
  virtual ~IMFactory() = default;

#define VORQ_FAMILY(operation, Result, Argument)                        \
  virtual Result<0>* operation(INDim<0>* shape, Argument argument) = 0; \
  virtual Result<1>* operation(INDim<1>* shape, Argument argument) = 0; \
  virtual Result<2>* operation(INDim<2>* shape, Argument argument) = 0; \
  virtual Result<3>* operation(INDim<3>* shape, Argument argument) = 0;
#define VORQ_BUILDERS(operation, Result)             \
  virtual Result<0>* operation(INDim<0>* shape) = 0; \
  virtual Result<1>* operation(INDim<1>* shape) = 0; \
  virtual Result<2>* operation(INDim<2>* shape) = 0; \
  virtual Result<3>* operation(INDim<3>* shape) = 0;
#define VORQ_SHAPES(operation)                                         \
  virtual INDim<0>* operation() = 0;                                   \
  virtual INDim<1>* operation(std::uint64_t d0) = 0;                   \
  virtual INDim<2>* operation(std::uint64_t d0, std::uint64_t d1) = 0; \
  virtual INDim<3>* operation(std::uint64_t d0, std::uint64_t d1, std::uint64_t d2) = 0;
#define VORQ_ARRAYS(Element, Argument)                                                 \
  virtual INdArray<Element, 0>* CreateNdArray(INDim<0>* shape, Argument argument) = 0; \
  virtual INdArray<Element, 1>* CreateNdArray(INDim<1>* shape, Argument argument) = 0; \
  virtual INdArray<Element, 2>* CreateNdArray(INDim<2>* shape, Argument argument) = 0; \
  virtual INdArray<Element, 3>* CreateNdArray(INDim<3>* shape, Argument argument) = 0;
#define VORQ_COPIES(Element)                                                                                 \
  virtual INdArray<Element, 0>* CreateNdArray(INDim<0>* shape, Element const* data, std::uint64_t size) = 0; \
  virtual INdArray<Element, 1>* CreateNdArray(INDim<1>* shape, Element const* data, std::uint64_t size) = 0; \
  virtual INdArray<Element, 2>* CreateNdArray(INDim<2>* shape, Element const* data, std::uint64_t size) = 0; \
  virtual INdArray<Element, 3>* CreateNdArray(INDim<3>* shape, Element const* data, std::uint64_t size) = 0;
#define VORQ_SINGLE(operation, Result, ...) virtual Result* operation(__VA_ARGS__) = 0;
#include "vorqmodel/factory_families.inc"
};

#define VORQ_FAMILY(...) +4
#define VORQ_BUILDERS(...) +4
#define VORQ_SHAPES(...) +4
#define VORQ_ARRAYS(...) +4
#define VORQ_COPIES(...) +4
#define VORQ_SINGLE(...) +1
inline constexpr int kFactoryOperations = 0
#include "vorqmodel/factory_families.inc"
    ;
static_assert(kFactoryOperations == 121);

}  // namespace Vorq

#endif
