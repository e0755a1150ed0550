// The exported factories of builders.
#include "handles/builders.hpp"

#include "handles/affine_cone_builders.hpp"
#include "vorqmodel/exports.h"

using Vorq::Wrap;

extern "C" {

Vorq::IConstrBuilder* CreateConstrBuilder() {
  return Wrap<Vorq::IConstrBuilder>();
}
Vorq::IQConstrBuilder* CreateQConstrBuilder() {
  return Wrap<Vorq::IQConstrBuilder>();
}
Vorq::IPsdConstrBuilder* CreatePsdConstrBuilder() {
  return Wrap<Vorq::IPsdConstrBuilder>();
}
Vorq::IGenConstrBuilder* CreateGenConstrBuilder() {
  return Wrap<Vorq::IGenConstrBuilder>();
}
Vorq::ISosBuilder* CreateSosBuilder() {
  return Wrap<Vorq::ISosBuilder>();
}
Vorq::IConeBuilder* CreateConeBuilder() {
  return Wrap<Vorq::IConeBuilder>();
}
Vorq::IExpConeBuilder* CreateExpConeBuilder() {
  return Wrap<Vorq::IExpConeBuilder>();
}
Vorq::IAffineConeBuilder* CreateAffineConeBuilder() {
  return Wrap<Vorq::IAffineConeBuilder>();
}

}  // extern "C"
