// Operations of the model's handle on the objective, on solving and on what a solve has found.
#pragma once

#include "handles/matrix_items.hpp"
#include "handles/model_items.hpp"

class VorqModelSolving : public VorqModelItems {
 public:
  using VorqModelItems::VorqModelItems;

  // Objective.
  void SetObjSense(int sense) override { Impl().SetObjSense(sense); }
  void SetObjConst(double constant) override { Impl().SetObjConst(constant); }
  void SetObjective(Vorq::IExpr* expr, int sense) override { Do(VORQ_CALL(SetObjective, expr, sense)); }
  void SetObjective(Vorq::IMExpression* cell, int sense) override { Do(VORQ_CALL(SetObjective, cell, sense)); }
  Vorq::IExpr* GetObjective() override { return Vorq::Wrap<Vorq::IExpr>(Impl().GetObjective()); }
  void SetQuadObjective(Vorq::IQuadExpr* expr, int sense) override { Do(VORQ_CALL(SetQuadObjective, expr, sense)); }
  void SetQuadObjective(Vorq::IMQExpression* cell, int sense) override { Do(VORQ_CALL(SetQuadObjective, cell, sense)); }
  Vorq::IQuadExpr* GetQuadObjective() override { return Vorq::Wrap<Vorq::IQuadExpr>(Impl().GetQuadObjective()); }
  void DelQuadObj() override { Impl().DelQuadObj(); }
  void SetPsdObjective(Vorq::IPsdExpr* expr, int sense) override { Do(VORQ_CALL(SetPsdObjective, expr, sense)); }
  Vorq::IPsdExpr* GetPsdObjective() override { return Vorq::Wrap<Vorq::IPsdExpr>(Impl().GetPsdObjective()); }
  void DelPsdObj() override { Impl().DelPsdObj(); }

  // Solving.
  void Solve() override { Impl().Solve(); }
  void SolveLp() override { Impl().SolveLp(); }
  void ComputeIIS() override { Impl().ComputeIIS(); }
  void FeasRelax(Vorq::IVarArray* vars, double const* colLowPen, double const* colUppPen, Vorq::IConstrArray* cons,
                 double const* rowBndPen, double const* rowUppPen) override {
    Do(VORQ_CALL(FeasRelax, vars, colLowPen, colUppPen, cons, rowBndPen, rowUppPen));
  }
  void FeasRelax(Vorq::IMVar<1>* vars, double const* colLowPen, double const* colUppPen, Vorq::IMConstr<1>* cons,
                 double const* rowBndPen, double const* rowUppPen) override {
    Do(VORQ_CALL(FeasRelax, vars, colLowPen, colUppPen, cons, rowBndPen, rowUppPen));
  }
  void FeasRelax(Vorq::IMVar<1>* vars, Vorq::INdArray<double, 1>* colLowPen, Vorq::INdArray<double, 1>* colUppPen,
                 Vorq::IMConstr<1>* cons, Vorq::INdArray<double, 1>* rowBndPen,
                 Vorq::INdArray<double, 1>* rowUppPen) override {
    Do(VORQ_CALL(FeasRelax, vars, colLowPen, colUppPen, cons, rowBndPen, rowUppPen));
  }
  void FeasRelax(int ifRelaxVars, int ifRelaxCons) override { Impl().FeasRelax(ifRelaxVars != 0, ifRelaxCons != 0); }
  void Tune() override { Impl().Tune(); }
  void LoadTuneParam(int index) override { Impl().LoadTuneParam(index); }
  void Interrupt() override { Impl().Interrupt(); }

  // MIP starts.
  void SetMipStart(int count, double const* values) override { Impl().SetMipStart(count, values); }
  void SetMipStart(Vorq::IVar* var, double value) override { Do(VORQ_CALL(SetMipStart, var, value)); }
  void SetMipStart(Vorq::IVarArray* vars, double const* values) override { Do(VORQ_CALL(SetMipStart, vars, values)); }
  void LoadMipStart() override { Impl().LoadMipStart(); }

  // Solutions, basis, solution pool, IIS.
  void GetSolution(double* values) override { Impl().GetSolution(values); }
  void GetLpSolution(double* value, double* slack, double* dual, double* redcost) override {
    Impl().GetLpSolution(value, slack, dual, redcost);
  }
  void SetLpSolution(double const* value, double const* slack, double const* dual, double const* redcost) override {
    Impl().SetLpSolution(value, slack, dual, redcost);
  }
  int GetColBasis(int* basis) override { return Impl().GetColBasis(basis); }
  int GetRowBasis(int* basis) override { return Impl().GetRowBasis(basis); }
  void SetBasis(int const* colBasis, int const* rowBasis) override { Impl().SetBasis(colBasis, rowBasis); }
  void SetSlackBasis() override { Impl().SetSlackBasis(); }
  double GetPoolObjVal(int index) override { return Impl().GetPoolObjVal(index); }
  int GetPoolSolution(int index, Vorq::IVarArray* vars, double* out) override {
    return Ask(-1, VORQ_CALL(GetPoolSolution, index, vars, out));
  }
  int GetColLowerIIS(Vorq::IVarArray* vars, int* out) override { return Ask(-1, VORQ_CALL(GetColLowerIIS, vars, out)); }
  int GetColUpperIIS(Vorq::IVarArray* vars, int* out) override { return Ask(-1, VORQ_CALL(GetColUpperIIS, vars, out)); }
  int GetRowLowerIIS(Vorq::IConstrArray* constrs, int* out) override {
    return Ask(-1, VORQ_CALL(GetRowLowerIIS, constrs, out));
  }
  int GetRowUpperIIS(Vorq::IConstrArray* constrs, int* out) override {
    return Ask(-1, VORQ_CALL(GetRowUpperIIS, constrs, out));
  }
  int GetSOSIIS(Vorq::ISosArray* soss, int* out) override { return Ask(-1, VORQ_CALL(GetSOSIIS, soss, out)); }
  int GetIndicatorIIS(Vorq::IGenConstrArray* constrs, int* out) override {
    return Ask(-1, VORQ_CALL(GetIndicatorIIS, constrs, out));
  }

  // Semidefinite solutions.
  void GetPsdSolution(double* a, double* b, double* c, double* d) override { Impl().GetPsdSolution(a, b, c, d); }
  void GetLmiSolution(double* a, double* b) override { Impl().GetLmiSolution(a, b); }

  // Information of many items at once.
  int GetColInfo(char const* name, Vorq::IVarArray* vars, double* out) override {
    return Ask(-1, VORQ_CALL_AS(GetColInfo, GetInfo, name, vars, out));
  }
  int GetRowInfo(char const* name, Vorq::IConstrArray* constrs, double* out) override {
    return Ask(-1, VORQ_CALL_AS(GetRowInfo, GetInfo, name, constrs, out));
  }
  int GetQConstrInfo(char const* name, Vorq::IQConstrArray* constrs, double* out) override {
    return Ask(-1, VORQ_CALL_AS(GetQConstrInfo, GetInfo, name, constrs, out));
  }
  int GetPsdConstrInfo(char const* name, Vorq::IPsdConstrArray* constrs, double* out) override {
    return Ask(-1, VORQ_CALL_AS(GetPsdConstrInfo, GetInfo, name, constrs, out));
  }
  void SetColInfo(char const* name, Vorq::IVarArray* vars, double const* values, int len) override {
    Do(VORQ_CALL_AS(SetColInfo, SetInfo, name, vars, values, len));
  }
  void SetRowInfo(char const* name, Vorq::IConstrArray* constrs, double const* values, int len) override {
    Do(VORQ_CALL_AS(SetRowInfo, SetInfo, name, constrs, values, len));
  }
  void SetPsdConstrInfo(char const* name, Vorq::IPsdConstrArray* constrs, double const* values, int len) override {
    Do(VORQ_CALL_AS(SetPsdConstrInfo, SetInfo, name, constrs, values, len));
  }
};
