// The handles on model items. The operations that several kinds have stand in data-less bases.
#pragma once

#include "handles/handle.hpp"
#include "handles/nd_array.hpp"
#include "handles/symmetric_matrices.hpp"
#include "items/cones.hpp"
#include "items/constraint.hpp"
#include "items/logical_items.hpp"
#include "items/psd_items.hpp"
#include "items/q_constraint.hpp"
#include "items/var.hpp"
#include "vorqmodel/items.h"

namespace Vorq {

template <class Derived, class Interface, class Item>
class ItemHandle : public Handle<Derived, Interface, Item> {
 public:
  using Handle<Derived, Interface, Item>::Handle;

  int GetIdx() override { return this->Impl().Idx(); }
  void Remove() override { this->Impl().MarkRemoved(); }
};

template <class Derived, class Interface, class Item>
class FallibleItemHandle : public ItemHandle<Derived, Interface, Item> {
 public:
  using ItemHandle<Derived, Interface, Item>::ItemHandle;

  int GetLastError() override { return this->Impl().status.Code(); }
  char const* GetErrorMessage() override { return this->Impl().status.Text(); }
};

template <class Derived, class Interface, class Item>
class NamedItemHandle : public FallibleItemHandle<Derived, Interface, Item> {
 public:
  using FallibleItemHandle<Derived, Interface, Item>::FallibleItemHandle;

  char const* GetName() override { return this->Impl().GetName(); }
  void SetName(char const* name) override { this->Impl().SetName(name); }
};

// Single numbers by name.
template <class Derived, class Interface, class Item>
class InfoItemHandle : public NamedItemHandle<Derived, Interface, Item> {
 public:
  using NamedItemHandle<Derived, Interface, Item>::NamedItemHandle;

  double Get(char const* name) override { return this->Impl().Get(name); }
  void Set(char const* name, double value) override { this->Impl().Set(name, value); }
};

// What the columns and the rows of a linear problem have.
template <class Derived, class Interface, class Item>
class LinearItemHandle : public InfoItemHandle<Derived, Interface, Item> {
 public:
  using InfoItemHandle<Derived, Interface, Item>::InfoItemHandle;

  int GetBasis() override { return this->Impl().GetBasis(); }
  int GetLowerIIS() override { return this->Impl().GetLowerIIS(); }
  int GetUpperIIS() override { return this->Impl().GetUpperIIS(); }
};

// Square matrices by name.
template <class Derived, class Interface, class Item>
class MatrixItemHandle : public NamedItemHandle<Derived, Interface, Item> {
 public:
  using NamedItemHandle<Derived, Interface, Item>::NamedItemHandle;

  int GetDim() override { return this->Impl().dim; }
  int GetLen() override { return this->Impl().len; }
  void GetInfo(char const* name, double* out, int size) override { this->Impl().GetInfo(name, out, size); }
};

}  // namespace Vorq

class VorqVar final : public Vorq::LinearItemHandle<VorqVar, Vorq::IVar, Vorq::Var> {
 public:
  using LinearItemHandle::LinearItemHandle;

  char GetType() override { return Impl().GetType(); }
  void SetType(char type) override { Impl().SetType(type); }
};

class VorqConstraint final : public Vorq::LinearItemHandle<VorqConstraint, Vorq::IConstraint, Vorq::Constraint> {
 public:
  using LinearItemHandle::LinearItemHandle;
};

class VorqQConstraint final : public Vorq::InfoItemHandle<VorqQConstraint, Vorq::IQConstraint, Vorq::QConstraint> {
 public:
  using InfoItemHandle::InfoItemHandle;

  double GetRhs() override { return Impl().GetRhs(); }
  char GetSense() override { return Impl().GetSense(); }
  void SetRhs(double rhs) override { Impl().SetRhs(rhs); }
  void SetSense(char sense) override { Impl().SetSense(sense); }
};

class VorqPsdVar final : public Vorq::MatrixItemHandle<VorqPsdVar, Vorq::IPsdVar, Vorq::PsdVar> {
 public:
  using MatrixItemHandle::MatrixItemHandle;

  int GetSize() override { return Impl().len; }
  Vorq::INdArray<double, 2>* Get(char const* name) override { return Vorq::WrapArray(Impl().Get(name)); }
  // Entries as expressions (psd_var_matrix.cpp).
  Vorq::IMPsdExpr<1>* Diagonal(int offset) override;
  Vorq::IMPsdExpr<2>* Pick(Vorq::IView* view) override;
  Vorq::IMPsdExpr<1>* Pick(Vorq::INdArray<int, 1>* indices) override;
  Vorq::IMPsdExpr<1>* Pick(Vorq::INdArray<int, 2>* coords) override;
  Vorq::IPsdExpr* Sum() override;
  Vorq::IMPsdExpr<2>* ToMPsdExpr() override;
};

class VorqPsdConstraint final
    : public Vorq::InfoItemHandle<VorqPsdConstraint, Vorq::IPsdConstraint, Vorq::PsdConstraint> {
 public:
  using InfoItemHandle::InfoItemHandle;
};

class VorqLmiConstraint final
    : public Vorq::MatrixItemHandle<VorqLmiConstraint, Vorq::ILmiConstraint, Vorq::LmiConstraint> {
 public:
  using MatrixItemHandle::MatrixItemHandle;

  void SetRhs(Vorq::ISymMatrix* matrix) override { Do(VORQ_CALL(SetRhs, matrix)); }
};

class VorqGenConstr final : public Vorq::NamedItemHandle<VorqGenConstr, Vorq::IGenConstr, Vorq::GenConstr> {
 public:
  using NamedItemHandle::NamedItemHandle;

  int GetIIS() override { return Impl().GetIIS(); }
};

class VorqSos final : public Vorq::FallibleItemHandle<VorqSos, Vorq::ISos, Vorq::Sos> {
 public:
  using FallibleItemHandle::FallibleItemHandle;

  int GetIIS() override { return Impl().GetIIS(); }
};

class VorqCone final : public Vorq::ItemHandle<VorqCone, Vorq::ICone, Vorq::Cone> {
 public:
  using ItemHandle::ItemHandle;
};

class VorqExpCone final : public Vorq::ItemHandle<VorqExpCone, Vorq::IExpCone, Vorq::ExpCone> {
 public:
  using ItemHandle::ItemHandle;
};

class VorqAffineCone final : public Vorq::NamedItemHandle<VorqAffineCone, Vorq::IAffineCone, Vorq::AffineCone> {
 public:
  using NamedItemHandle::NamedItemHandle;
};

namespace Vorq {

template <>
struct HandleTraits<IVar> {
  using Handle = VorqVar;
};
template <>
struct HandleTraits<IConstraint> {
  using Handle = VorqConstraint;
};
template <>
struct HandleTraits<IQConstraint> {
  using Handle = VorqQConstraint;
};
template <>
struct HandleTraits<IPsdVar> {
  using Handle = VorqPsdVar;
};
template <>
struct HandleTraits<IPsdConstraint> {
  using Handle = VorqPsdConstraint;
};
template <>
struct HandleTraits<ILmiConstraint> {
  using Handle = VorqLmiConstraint;
};
template <>
struct HandleTraits<IGenConstr> {
  using Handle = VorqGenConstr;
};
template <>
struct HandleTraits<ISos> {
  using Handle = VorqSos;
};
template <>
struct HandleTraits<ICone> {
  using Handle = VorqCone;
};
template <>
struct HandleTraits<IExpCone> {
  using Handle = VorqExpCone;
};
template <>
struct HandleTraits<IAffineCone> {
  using Handle = VorqAffineCone;
};

}  // namespace Vorq
