// VorqModel: the handle on a model. Its operations stand in a chain of data-less bases, one a topic; removal,
// resetting, callbacks and the status are here.
#pragma once

#include "handles/matrix_items.hpp"
#include "handles/model_solving.hpp"
#include "handles/set_callback.hpp"

class VorqModel final : public VorqModelSolving {
 public:
  using VorqModelSolving::VorqModelSolving;

  // Removal: lazy, carried out by the next operation that needs the solver library's numbering.
  void Remove(Vorq::IMVar<0>* vars) override { Do(VORQ_CALL(Remove, vars)); }
  void Remove(Vorq::IMVar<1>* vars) override { Do(VORQ_CALL(Remove, vars)); }
  void Remove(Vorq::IMVar<2>* vars) override { Do(VORQ_CALL(Remove, vars)); }
  void Remove(Vorq::IMVar<3>* vars) override { Do(VORQ_CALL(Remove, vars)); }
  void Remove(Vorq::IMConstr<0>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMConstr<1>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMConstr<2>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMConstr<3>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMQConstr<0>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMQConstr<1>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMQConstr<2>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMQConstr<3>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMPsdConstr<0>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMPsdConstr<1>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMPsdConstr<2>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IMPsdConstr<3>* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IVarArray* vars) override { Do(VORQ_CALL(Remove, vars)); }
  void Remove(Vorq::IConstrArray* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::ISosArray* soss) override { Do(VORQ_CALL(Remove, soss)); }
  void Remove(Vorq::IConeArray* cones) override { Do(VORQ_CALL(Remove, cones)); }
  void Remove(Vorq::IExpConeArray* cones) override { Do(VORQ_CALL(Remove, cones)); }
  void Remove(Vorq::IAffineConeArray* cones) override { Do(VORQ_CALL(Remove, cones)); }
  void Remove(Vorq::IGenConstrArray* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IQConstrArray* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::IPsdVarArray* vars) override { Do(VORQ_CALL(Remove, vars)); }
  void Remove(Vorq::IPsdConstrArray* constrs) override { Do(VORQ_CALL(Remove, constrs)); }
  void Remove(Vorq::ILmiConstrArray* constrs) override { Do(VORQ_CALL(Remove, constrs)); }

  // Reset, clear, copy.
  void ResetParam() override { Impl().ResetParam(); }
  void ResetAll() override { Impl().ResetAll(); }
  void Reset() override { Impl().Reset(); }
  void Clear() override { Impl().Clear(); }
  Vorq::IModel* Clone() override { return Vorq::Wrap<Vorq::IModel>(Impl().Clone()); }

  // Callbacks and logging.
  void SetCallback(Vorq::ICallback* callback, int contextMask) override {
    Vorq::SetCallback(Impl(), callback, contextMask);
  }
  int SetLogFile(char const* path) override { return Impl().SetLogFile(path); }
  int SetLogCallback(Vorq::ILogSink* logger) override { return Impl().SetLogCallback(logger); }

  // The last failure; the text is valid until the next one.
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }
};
