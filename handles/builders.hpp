// The handles on builders.
#pragma once

#include <algorithm>

#include "handles/expressions.hpp"
#include "handles/handle.hpp"
#include "handles/item_arrays.hpp"
#include "items/builders.hpp"
#include "vorqmodel/builders.h"

namespace Vorq {

// What the builders of cones and of special ordered sets have: a type and a list of variables.
template <class Derived, class Interface, class Builder>
class VarListBuilderHandle : public Handle<Derived, Interface, Builder> {
 public:
  using Handle<Derived, Interface, Builder>::Handle;

  int GetType() override { return this->Impl().type; }
  int GetSize() override { return static_cast<int>(this->Impl().vars.size()); }
  IVar* GetVar(int i) override { return Wrap<IVar>(Vorq::ElementAt(this->Impl().vars, i)); }
  IVarArray* GetVars() override { return Wrap<IVarArray>(this->Impl().vars); }
};

template <class Derived, class Interface, class Builder>
class ConeBuilderHandle : public VarListBuilderHandle<Derived, Interface, Builder> {
 public:
  using VarListBuilderHandle<Derived, Interface, Builder>::VarListBuilderHandle;

  void Set(IVarArray* vars, int type) override { this->Do(VORQ_CALL(Set, vars, type)); }
};

}  // namespace Vorq

class VorqConstrBuilder final : public Vorq::Handle<VorqConstrBuilder, Vorq::IConstrBuilder, Vorq::ConstrBuilder> {
 public:
  using Handle::Handle;

  Vorq::IExpr* GetExpr() override { return Vorq::Wrap<Vorq::IExpr>(Impl().expr); }
  char GetSense() override { return Impl().sense; }
  double GetRange() override { return Impl().range; }
  void Set(Vorq::IExpr* expr, char sense, double rhs) override { Do(VORQ_CALL(Set, expr, sense, rhs)); }
  void SetRange(Vorq::IExpr* expr, double range) override { Do(VORQ_CALL(SetRange, expr, range)); }
};

class VorqQConstrBuilder final : public Vorq::Handle<VorqQConstrBuilder, Vorq::IQConstrBuilder, Vorq::QConstrBuilder> {
 public:
  using Handle::Handle;

  Vorq::IQuadExpr* GetQuadExpr() override { return Vorq::Wrap<Vorq::IQuadExpr>(Impl().expr); }
  char GetSense() override { return Impl().sense; }
  void Set(Vorq::IQuadExpr* quadExpr, char sense, double rhs) override { Do(VORQ_CALL(Set, quadExpr, sense, rhs)); }
};

class VorqPsdConstrBuilder final
    : public Vorq::Handle<VorqPsdConstrBuilder, Vorq::IPsdConstrBuilder, Vorq::PsdConstrBuilder> {
 public:
  using Handle::Handle;

  Vorq::IPsdExpr* GetPsdExpr() override { return Vorq::Wrap<Vorq::IPsdExpr>(Impl().expr); }
  char GetSense() override { return Impl().sense; }
  double GetRange() override { return Impl().range; }
  void Set(Vorq::IPsdExpr* psdExpr, char sense, double rhs) override { Do(VORQ_CALL(Set, psdExpr, sense, rhs)); }
  void SetRange(Vorq::IPsdExpr* psdExpr, double range) override { Do(VORQ_CALL(SetRange, psdExpr, range)); }
};

class VorqSosBuilder final : public Vorq::VarListBuilderHandle<VorqSosBuilder, Vorq::ISosBuilder, Vorq::SosBuilder> {
 public:
  using VarListBuilderHandle::VarListBuilderHandle;

  double GetWeight(int i) override { return Vorq::ElementAt(Impl().weights, i); }
  int GetWeights(double* out) override {
    if (out != nullptr) std::copy(Impl().weights.begin(), Impl().weights.end(), out);
    return static_cast<int>(Impl().weights.size());
  }
  void Set(Vorq::IVarArray* vars, double const* weights, int type) override { Do(VORQ_CALL(Set, vars, weights, type)); }
};

class VorqConeBuilder final : public Vorq::ConeBuilderHandle<VorqConeBuilder, Vorq::IConeBuilder, Vorq::ConeBuilder> {
 public:
  using ConeBuilderHandle::ConeBuilderHandle;
};

class VorqExpConeBuilder final
    : public Vorq::ConeBuilderHandle<VorqExpConeBuilder, Vorq::IExpConeBuilder, Vorq::ExpConeBuilder> {
 public:
  using ConeBuilderHandle::ConeBuilderHandle;
};

class VorqGenConstrBuilder final
    : public Vorq::Handle<VorqGenConstrBuilder, Vorq::IGenConstrBuilder, Vorq::GenConstrBuilder> {
 public:
  using Handle::Handle;

  Vorq::IVar* GetBinVar() override {
    auto const& vars = Impl().binVar.vars;
    return Vorq::Wrap<Vorq::IVar>(vars.empty() ? Vorq::Var() : vars.front());
  }
  int GetBinVal() override { return Impl().binVal; }
  Vorq::IExpr* GetExpr() override { return Vorq::Wrap<Vorq::IExpr>(Impl().expr); }
  char GetSense() override { return Impl().sense; }
  int GetType() override { return Impl().type; }
  void Set(Vorq::IVar* binVar, int binVal, Vorq::IExpr* expr, char sense, int type) override {
    Do(VORQ_CALL(Set, binVar, binVal, expr, sense, type));
  }
};

namespace Vorq {

template <>
struct HandleTraits<IConstrBuilder> {
  using Handle = VorqConstrBuilder;
};
template <>
struct HandleTraits<IQConstrBuilder> {
  using Handle = VorqQConstrBuilder;
};
template <>
struct HandleTraits<IPsdConstrBuilder> {
  using Handle = VorqPsdConstrBuilder;
};
template <>
struct HandleTraits<ISosBuilder> {
  using Handle = VorqSosBuilder;
};
template <>
struct HandleTraits<IConeBuilder> {
  using Handle = VorqConeBuilder;
};
template <>
struct HandleTraits<IExpConeBuilder> {
  using Handle = VorqExpConeBuilder;
};
template <>
struct HandleTraits<IGenConstrBuilder> {
  using Handle = VorqGenConstrBuilder;
};

}  // namespace Vorq
