// VorqCallbackProxy: the handle on a callback proxy.
#pragma once

#include "handles/builder_arrays.hpp"
#include "handles/matrix_builders.hpp"
#include "model/callback_proxy.hpp"
#include "vorqmodel/callback.h"

class VorqCallbackProxy final : public Vorq::Handle<VorqCallbackProxy, Vorq::ICallbackProxy, Vorq::CallbackProxy> {
 public:
  using Handle::Handle;

  void Interrupt() override { Impl().Interrupt(); }

  void AddUserCut(Vorq::IExpr* lhs, char sense, double rhs) override { AddOne(kUserCut, lhs, sense, rhs); }
  void AddUserCut(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs) override { AddOne(kUserCut, lhs, sense, rhs); }
  void AddUserCut(Vorq::IConstrBuilder* builder) override { Impl().AddCut(kUserCut, Vorq::Unwrap(builder)); }
  void AddUserCuts(Vorq::IConstrBuilderArray* builders) override { Impl().AddCuts(kUserCut, Vorq::Unwrap(builders)); }
  void AddUserCuts(Vorq::IMConstrBuilder<0>* builder) override { AddBlock(kUserCut, builder); }
  void AddUserCuts(Vorq::IMConstrBuilder<1>* builder) override { AddBlock(kUserCut, builder); }
  void AddUserCuts(Vorq::IMConstrBuilder<2>* builder) override { AddBlock(kUserCut, builder); }
  void AddUserCuts(Vorq::IMConstrBuilder<3>* builder) override { AddBlock(kUserCut, builder); }

  void AddLazyConstr(Vorq::IExpr* lhs, char sense, double rhs) override { AddOne(kLazyConstr, lhs, sense, rhs); }
  void AddLazyConstr(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs) override { AddOne(kLazyConstr, lhs, sense, rhs); }
  void AddLazyConstr(Vorq::IConstrBuilder* builder) override { Impl().AddCut(kLazyConstr, Vorq::Unwrap(builder)); }
  void AddLazyConstrs(Vorq::IConstrBuilderArray* builders) override {
    Impl().AddCuts(kLazyConstr, Vorq::Unwrap(builders));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<0>* builder) override { AddBlock(kLazyConstr, builder); }
  void AddLazyConstrs(Vorq::IMConstrBuilder<1>* builder) override { AddBlock(kLazyConstr, builder); }
  void AddLazyConstrs(Vorq::IMConstrBuilder<2>* builder) override { AddBlock(kLazyConstr, builder); }
  void AddLazyConstrs(Vorq::IMConstrBuilder<3>* builder) override { AddBlock(kLazyConstr, builder); }

  int GetIntInfo(char const* name) override { return Impl().GetIntInfo(name); }
  double GetDblInfo(char const* name) override { return Impl().GetDblInfo(name); }

  double GetIncumbent(Vorq::IVar* var) override { return Impl().GetValue(Vector::kIncumbent, Vorq::Unwrap(var)); }
  int GetIncumbent(Vorq::IVarArray* vars, double* out, int) override {
    return Impl().GetValues(Vector::kIncumbent, Vorq::Unwrap(vars), out);
  }
  int GetIncumbent(double* out, int len) override { return Impl().GetAllValues(Vector::kIncumbent, out, len); }
  double GetRelaxSolution(Vorq::IVar* var) override { return Impl().GetValue(Vector::kRelaxation, Vorq::Unwrap(var)); }
  int GetRelaxSolution(Vorq::IVarArray* vars, double* out, int) override {
    return Impl().GetValues(Vector::kRelaxation, Vorq::Unwrap(vars), out);
  }
  int GetRelaxSolution(double* out, int len) override { return Impl().GetAllValues(Vector::kRelaxation, out, len); }
  double GetSolution(Vorq::IVar* var) override { return Impl().GetValue(Vector::kCandidate, Vorq::Unwrap(var)); }
  int GetSolution(Vorq::IVarArray* vars, double* out, int) override {
    return Impl().GetValues(Vector::kCandidate, Vorq::Unwrap(vars), out);
  }
  int GetSolution(double* out, int len) override { return Impl().GetAllValues(Vector::kCandidate, out, len); }

  void SetSolution(Vorq::IVar* var, double value) override { Impl().SetSolution(Vorq::Unwrap(var), value); }
  void SetSolution(Vorq::IVarArray* vars, double const* values, int len) override {
    Impl().SetSolution(Vorq::Unwrap(vars), values, len);
  }
  double LoadSolution() override { return Impl().LoadSolution(); }

  int GetContext() override { return Impl().Context(); }
  int SearchInfo(char const* name) override { return Impl().SearchInfo(name); }
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }

 private:
  using Kind = Vorq::CallbackCutKind;
  using Vector = Vorq::CallbackVector;
  static constexpr Kind const& kUserCut = Vorq::kCallbackUserCut;
  static constexpr Kind const& kLazyConstr = Vorq::kCallbackLazyConstr;

  void AddOne(Kind const& kind, Vorq::IExpr* lhs, char sense, double rhs) {
    Impl().AddCut(kind, Vorq::Unwrap(lhs), sense, rhs);
  }
  void AddOne(Kind const& kind, Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs) {
    Impl().AddCut(kind, Vorq::Unwrap(lhs), sense, Vorq::Unwrap(rhs));
  }
  template <int N>
  void AddBlock(Kind const& kind, Vorq::IMConstrBuilder<N>* builder) {
    Vorq::ConstrBuilderArray builders = Vorq::ToConstrBuilderArray(Vorq::Unwrap(builder));
    Impl().AddCuts(kind, builders);
  }
};

namespace Vorq {

template <>
struct HandleTraits<ICallbackProxy> {
  using Handle = VorqCallbackProxy;
};

}  // namespace Vorq
