// The handles on shapes, instantiated once.
#include "handles/shapes.hpp"

template class VorqNDim<0>;
template class VorqNDim<1>;
template class VorqNDim<2>;
template class VorqNDim<3>;
