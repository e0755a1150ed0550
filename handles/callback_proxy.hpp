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

  void AddUserCut(Vorq::IExpr* lhs, char sense, double rhs) override {
    Do(VORQ_CALL_AS(AddUserCut, AddCut, kUserCut, lhs, sense, rhs));
  }
  void AddUserCut(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs) override {
    Do(VORQ_CALL_AS(AddUserCut, AddCut, kUserCut, lhs, sense, rhs));
  }
  void AddUserCut(Vorq::IConstrBuilder* builder) override { Do(VORQ_CALL_AS(AddUserCut, AddCut, kUserCut, builder)); }
  void AddUserCuts(Vorq::IConstrBuilderArray* builders) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, kUserCut, builders));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<0>* builder) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, kUserCut, builder));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<1>* builder) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, kUserCut, builder));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<2>* builder) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, kUserCut, builder));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<3>* builder) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, kUserCut, builder));
  }

  void AddLazyConstr(Vorq::IExpr* lhs, char sense, double rhs) override {
    Do(VORQ_CALL_AS(AddLazyConstr, AddCut, kLazyConstr, lhs, sense, rhs));
  }
  void AddLazyConstr(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs) override {
    Do(VORQ_CALL_AS(AddLazyConstr, AddCut, kLazyConstr, lhs, sense, rhs));
  }
  void AddLazyConstr(Vorq::IConstrBuilder* builder) override {
    Do(VORQ_CALL_AS(AddLazyConstr, AddCut, kLazyConstr, builder));
  }
  void AddLazyConstrs(Vorq::IConstrBuilderArray* builders) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, kLazyConstr, builders));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<0>* builder) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, kLazyConstr, builder));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<1>* builder) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, kLazyConstr, builder));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<2>* builder) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, kLazyConstr, builder));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<3>* builder) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, kLazyConstr, builder));
  }

  int GetIntInfo(char const* name) override { return Impl().GetIntInfo(name); }
  double GetDblInfo(char const* name) override { return Impl().GetDblInfo(name); }

  double GetIncumbent(Vorq::IVar* var) override {
    return Ask(0.0, VORQ_CALL_AS(GetIncumbent, GetValue, Vector::kIncumbent, var));
  }
  int GetIncumbent(Vorq::IVarArray* vars, double* out, int) override {
    return Ask(-1, VORQ_CALL_AS(GetIncumbent, GetValues, Vector::kIncumbent, vars, out));
  }
  int GetIncumbent(double* out, int len) override { return Impl().GetAllValues(Vector::kIncumbent, out, len); }
  double GetRelaxSolution(Vorq::IVar* var) override {
    return Ask(0.0, VORQ_CALL_AS(GetRelaxSolution, GetValue, Vector::kRelaxation, var));
  }
  int GetRelaxSolution(Vorq::IVarArray* vars, double* out, int) override {
    return Ask(-1, VORQ_CALL_AS(GetRelaxSolution, GetValues, Vector::kRelaxation, vars, out));
  }
  int GetRelaxSolution(double* out, int len) override { return Impl().GetAllValues(Vector::kRelaxation, out, len); }
  double GetSolution(Vorq::IVar* var) override {
    return Ask(0.0, VORQ_CALL_AS(GetSolution, GetValue, Vector::kCandidate, var));
  }
  int GetSolution(Vorq::IVarArray* vars, double* out, int) override {
    return Ask(-1, VORQ_CALL_AS(GetSolution, GetValues, Vector::kCandidate, vars, out));
  }
  int GetSolution(double* out, int len) override { return Impl().GetAllValues(Vector::kCandidate, out, len); }

  void SetSolution(Vorq::IVar* var, double value) override { Do(VORQ_CALL(SetSolution, var, value)); }
  void SetSolution(Vorq::IVarArray* vars, double const* values, int len) override {
    Do(VORQ_CALL(SetSolution, vars, values, len));
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
};

namespace Vorq {

template <>
struct HandleTraits<ICallbackProxy> {
  using Handle = VorqCallbackProxy;
};

}  // namespace Vorq
