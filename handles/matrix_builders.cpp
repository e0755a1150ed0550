// The handles on builders of blocks of constraints, instantiated once.
#include "handles/matrix_builders.hpp"

template class VorqMConstrBuilder<0>;
template class VorqMConstrBuilder<1>;
template class VorqMConstrBuilder<2>;
template class VorqMConstrBuilder<3>;

template class VorqMQConstrBuilder<0>;
template class VorqMQConstrBuilder<1>;
template class VorqMQConstrBuilder<2>;
template class VorqMQConstrBuilder<3>;

template class VorqMPsdConstrBuilder<0>;
template class VorqMPsdConstrBuilder<1>;
template class VorqMPsdConstrBuilder<2>;
template class VorqMPsdConstrBuilder<3>;
