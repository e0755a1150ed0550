// The exported factories of arrays.
#include "handles/affine_cone_builders.hpp"
#include "handles/builder_arrays.hpp"
#include "handles/item_arrays.hpp"
#include "vorqmodel/exports.h"

using Vorq::Wrap;

extern "C" {

Vorq::IVarArray* CreateVarArray() {
  return Wrap<Vorq::IVarArray>();
}
Vorq::IConstrArray* CreateConstrArray() {
  return Wrap<Vorq::IConstrArray>();
}
Vorq::IColumnArray* CreateColumnArray() {
  return Wrap<Vorq::IColumnArray>();
}
Vorq::IConstrBuilderArray* CreateConstrBuilderArray() {
  return Wrap<Vorq::IConstrBuilderArray>();
}
Vorq::ISosArray* CreateSosArray() {
  return Wrap<Vorq::ISosArray>();
}
Vorq::ISosBuilderArray* CreateSosBuilderArray() {
  return Wrap<Vorq::ISosBuilderArray>();
}
Vorq::IGenConstrArray* CreateGenConstrArray() {
  return Wrap<Vorq::IGenConstrArray>();
}
Vorq::IGenConstrBuilderArray* CreateGenConstrBuilderArray() {
  return Wrap<Vorq::IGenConstrBuilderArray>();
}
Vorq::IConeArray* CreateConeArray() {
  return Wrap<Vorq::IConeArray>();
}
Vorq::IConeBuilderArray* CreateConeBuilderArray() {
  return Wrap<Vorq::IConeBuilderArray>();
}
Vorq::IExpConeArray* CreateExpConeArray() {
  return Wrap<Vorq::IExpConeArray>();
}
Vorq::IExpConeBuilderArray* CreateExpConeBuilderArray() {
  return Wrap<Vorq::IExpConeBuilderArray>();
}
Vorq::IAffineConeArray* CreateAffineConeArray() {
  return Wrap<Vorq::IAffineConeArray>();
}
Vorq::IAffineConeBuilderArray* CreateAffineConeBuilderArray() {
  return Wrap<Vorq::IAffineConeBuilderArray>();
}
Vorq::IQConstrArray* CreateQConstrArray() {
  return Wrap<Vorq::IQConstrArray>();
}
Vorq::IQConstrBuilderArray* CreateQConstrBuilderArray() {
  return Wrap<Vorq::IQConstrBuilderArray>();
}
Vorq::IPsdVarArray* CreatePsdVarArray() {
  return Wrap<Vorq::IPsdVarArray>();
}
Vorq::IPsdConstrArray* CreatePsdConstrArray() {
  return Wrap<Vorq::IPsdConstrArray>();
}
Vorq::IPsdConstrBuilderArray* CreatePsdConstrBuilderArray() {
  return Wrap<Vorq::IPsdConstrBuilderArray>();
}
Vorq::ILmiConstrArray* CreateLmiConstrArray() {
  return Wrap<Vorq::ILmiConstrArray>();
}
Vorq::ISymMatrixArray* CreateSymMatrixArray() {
  return Wrap<Vorq::ISymMatrixArray>();
}

}  // extern "C"
