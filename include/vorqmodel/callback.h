// The callback object that the caller implements, and the proxy through which it talks to a running solve.
#ifndef VORQMODEL_CALLBACK_H
#define VORQMODEL_CALLBACK_H

#include "vorqmodel/forward.h"

namespace Vorq {

// Implemented by the caller and given to IModel::SetCallback, which does not own it.
class ICallback {
 public:
  virtual ~ICallback() = default;

  // Called by the solver at the places that the context mask of SetCallback chose, on a thread of the solver's choice.
  // What it throws comes out of the solve.
  virtual void Callback() = 0;

  // The proxy of this object, the same one each time. Not owned by who asks.
  virtual ICallbackProxy* GetCallbackProxy() = 0;
};

// Acts for the model inside a callback. Made by CreateCallbackProxy and owned by the callback object. What concerns the
// running solve may be called during Callback only. Failures are recorded here, not in the model, among them null
// objects with code 3; expressions and builders that are given lose duplicate, zero and removed terms.
class ICallbackProxy {
 public:
  virtual ~ICallbackProxy() = default;

  // Ends the solve soon. The one operation that other threads may call during a solve; what they are answered is not
  // recorded.
  virtual void Interrupt() = 0;

  // Cuts off points that are not integral. The batch forms refuse senses 'N' and 'R' with code 3 and add none.
  virtual void AddUserCut(IExpr* lhs, char sense, double rhs) = 0;
  virtual void AddUserCut(IExpr* lhs, char sense, IExpr* rhs) = 0;
  virtual void AddUserCut(IConstrBuilder* builder) = 0;
  virtual void AddUserCuts(IConstrBuilderArray* builders) = 0;
  virtual void AddUserCuts(IMConstrBuilder<0>* builder) = 0;
  virtual void AddUserCuts(IMConstrBuilder<1>* builder) = 0;
  virtual void AddUserCuts(IMConstrBuilder<2>* builder) = 0;
  virtual void AddUserCuts(IMConstrBuilder<3>* builder) = 0;

  // Cuts off integral points that break a constraint unknown to the solver so far. Forms as in AddUserCut.
  virtual void AddLazyConstr(IExpr* lhs, char sense, double rhs) = 0;
  virtual void AddLazyConstr(IExpr* lhs, char sense, IExpr* rhs) = 0;
  virtual void AddLazyConstr(IConstrBuilder* builder) = 0;
  virtual void AddLazyConstrs(IConstrBuilderArray* builders) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<0>* builder) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<1>* builder) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<2>* builder) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<3>* builder) = 0;

  // A number of the running solve, 0 on failure. A name that is unknown or of the other type is code 3.
  virtual int GetIntInfo(char const* name) = 0;
  virtual double GetDblInfo(char const* name) = 0;

  // The best solution, the relaxation's solution and the candidate: one variable's value, 0.0 for one that is not in
  // the model (code 3); those of an array without gaps, with the number written as result, -1 on failure; all columns,
  // at most `len` of them, with their number as result. Each vector is fetched once in a callback; where that failed,
  // it is 1e40 throughout from then on.
  virtual double GetIncumbent(IVar* var) = 0;
  virtual int GetIncumbent(IVarArray* vars, double* out, int len) = 0;
  virtual int GetIncumbent(double* out, int len) = 0;
  virtual double GetRelaxSolution(IVar* var) = 0;
  virtual int GetRelaxSolution(IVarArray* vars, double* out, int len) = 0;
  virtual int GetRelaxSolution(double* out, int len) = 0;
  virtual double GetSolution(IVar* var) = 0;
  virtual int GetSolution(IVarArray* vars, double* out, int len) = 0;
  virtual int GetSolution(double* out, int len) = 0;

  // Builds a solution to offer. It is kept, and offered again after each later callback. A variable that is not in the
  // model, null values and an array of another size than `len` are code 3.
  virtual void SetSolution(IVar* var, double value) = 0;
  virtual void SetSolution(IVarArray* vars, double const* values, int len) = 0;

  // Offers the solution. Returns its objective value, 1e30 if there is none.
  virtual double LoadSolution() = 0;

  // The place from which the solver calls.
  virtual int GetContext() = 0;

  // The type of a piece of information plus 8 times its dimension, -1 for an unknown one.
  virtual int SearchInfo(char const* name) = 0;

  // The last code, and the text of the last failure, valid until the next one.
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
