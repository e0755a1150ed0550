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
  void SetObjective(Vorq::IExpr* expr, int sense) override { Impl().SetObjective(Vorq::Unwrap(expr), sense); }
  void SetObjective(Vorq::IMExpression* cell, int sense) override {
    if (Given("SetObjective", cell)) Impl().SetObjective(Vorq::Unwrap(cell), sense);
  }
  Vorq::IExpr* GetObjective() override { return Vorq::Wrap<Vorq::IExpr>(Impl().GetObjective()); }
  void SetQuadObjective(Vorq::IQuadExpr* expr, int sense) override {
    Impl().SetQuadObjective(Vorq::Unwrap(expr), sense);
  }
  void SetQuadObjective(Vorq::IMQExpression* cell, int sense) override {
    if (Given("SetQuadObjective", cell)) Impl().SetQuadObjective(Vorq::Unwrap(cell), sense);
  }
  Vorq::IQuadExpr* GetQuadObjective() override { return Vorq::Wrap<Vorq::IQuadExpr>(Impl().GetQuadObjective()); }
  void DelQuadObj() override { Impl().DelQuadObj(); }
  void SetPsdObjective(Vorq::IPsdExpr* expr, int sense) override { Impl().SetPsdObjective(Vorq::Unwrap(expr), sense); }
  Vorq::IPsdExpr* GetPsdObjective() override { return Vorq::Wrap<Vorq::IPsdExpr>(Impl().GetPsdObjective()); }
  void DelPsdObj() override { Impl().DelPsdObj(); }

  // Solving.
  void Solve() override { Impl().Solve(); }
  void SolveLp() override { Impl().SolveLp(); }
  void ComputeIIS() override { Impl().ComputeIIS(); }
  void FeasRelax(Vorq::IVarArray* vars, double const* colLowPen, double const* colUppPen, Vorq::IConstrArray* cons,
                 double const* rowBndPen, double const* rowUppPen) override {
    Impl().FeasRelax(Vorq::Unwrap(vars), colLowPen, colUppPen, Vorq::Unwrap(cons), rowBndPen, rowUppPen);
  }
  void FeasRelax(Vorq::IMVar<1>* vars, double const* colLowPen, double const* colUppPen, Vorq::IMConstr<1>* cons,
                 double const* rowBndPen, double const* rowUppPen) override {
    if (!Given("FeasRelax", vars, cons)) return;
    Impl().FeasRelax(Vorq::Unwrap(vars), colLowPen, colUppPen, Vorq::Unwrap(cons), rowBndPen, rowUppPen);
  }
  void FeasRelax(Vorq::IMVar<1>* vars, Vorq::INdArray<double, 1>* colLowPen, Vorq::INdArray<double, 1>* colUppPen,
                 Vorq::IMConstr<1>* cons, Vorq::INdArray<double, 1>* rowBndPen,
                 Vorq::INdArray<double, 1>* rowUppPen) override {
    if (!Given("FeasRelax", vars, colLowPen, colUppPen, cons, rowBndPen, rowUppPen)) return;
    Impl().FeasRelax(Vorq::Unwrap(vars), Vorq::Unwrap(colLowPen), Vorq::Unwrap(colUppPen), Vorq::Unwrap(cons),
                     Vorq::Unwrap(rowBndPen), Vorq::Unwrap(rowUppPen));
  }
  void FeasRelax(int ifRelaxVars, int ifRelaxCons) override { Impl().FeasRelax(ifRelaxVars != 0, ifRelaxCons != 0); }
  void Tune() override { Impl().Tune(); }
  void LoadTuneParam(int index) override { Impl().LoadTuneParam(index); }
  void Interrupt() override { Impl().Interrupt(); }

  // MIP starts.
  void SetMipStart(int count, double const* values) override { Impl().SetMipStart(count, values); }
  void SetMipStart(Vorq::IVar* var, double value) override { Impl().SetMipStart(Vorq::Unwrap(var), value); }
  void SetMipStart(Vorq::IVarArray* vars, double const* values) override {
    Impl().SetMipStart(Vorq::Unwrap(vars), values);
  }
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
    return Impl().GetPoolSolution(index, Vorq::Unwrap(vars), out);
  }
  int GetColLowerIIS(Vorq::IVarArray* vars, int* out) override {
    return Impl().GetColLowerIIS(Vorq::Unwrap(vars), out);
  }
  int GetColUpperIIS(Vorq::IVarArray* vars, int* out) override {
    return Impl().GetColUpperIIS(Vorq::Unwrap(vars), out);
  }
  int GetRowLowerIIS(Vorq::IConstrArray* constrs, int* out) override {
    return Impl().GetRowLowerIIS(Vorq::Unwrap(constrs), out);
  }
  int GetRowUpperIIS(Vorq::IConstrArray* constrs, int* out) override {
    return Impl().GetRowUpperIIS(Vorq::Unwrap(constrs), out);
  }
  int GetSOSIIS(Vorq::ISosArray* soss, int* out) override { return Impl().GetSOSIIS(Vorq::Unwrap(soss), out); }
  int GetIndicatorIIS(Vorq::IGenConstrArray* constrs, int* out) override {
    return Impl().GetIndicatorIIS(Vorq::Unwrap(constrs), out);
  }

  // Semidefinite solutions.
  void GetPsdSolution(double* a, double* b, double* c, double* d) override { Impl().GetPsdSolution(a, b, c, d); }
  void GetLmiSolution(double* a, double* b) override { Impl().GetLmiSolution(a, b); }

  // Information of many items at once.
  int GetColInfo(char const* name, Vorq::IVarArray* vars, double* out) override {
    return Impl().GetInfo(name, Vorq::Unwrap(vars), out);
  }
  int GetRowInfo(char const* name, Vorq::IConstrArray* constrs, double* out) override {
    return Impl().GetInfo(name, Vorq::Unwrap(constrs), out);
  }
  int GetQConstrInfo(char const* name, Vorq::IQConstrArray* constrs, double* out) override {
    return Impl().GetInfo(name, Vorq::Unwrap(constrs), out);
  }
  int GetPsdConstrInfo(char const* name, Vorq::IPsdConstrArray* constrs, double* out) override {
    return Impl().GetInfo(name, Vorq::Unwrap(constrs), out);
  }
  void SetColInfo(char const* name, Vorq::IVarArray* vars, double const* values, int len) override {
    Impl().SetInfo(name, Vorq::Unwrap(vars), values, len);
  }
  void SetRowInfo(char const* name, Vorq::IConstrArray* constrs, double const* values, int len) override {
    Impl().SetInfo(name, Vorq::Unwrap(constrs), values, len);
  }
  void SetPsdConstrInfo(char const* name, Vorq::IPsdConstrArray* constrs, double const* values, int len) override {
    Impl().SetInfo(name, Vorq::Unwrap(constrs), values, len);
  }
};
