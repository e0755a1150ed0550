// The handles on expressions and columns.
#pragma once

#include "handles/handle.hpp"
#include "handles/item_arrays.hpp"
#include "handles/items.hpp"
#include "handles/symmetric_matrices.hpp"
#include "items/column.hpp"
#include "items/expr.hpp"
#include "items/lmi_expr.hpp"
#include "items/psd_expr.hpp"
#include "items/quad_expr.hpp"
#include "items/sym_mat_expr.hpp"
#include "vorqmodel/expressions.h"
#include "vorqmodel/symmetric_matrices.h"

namespace Vorq {

// What all expressions and columns have.
template <class Derived, class Interface, class Expression>
class TermListHandle : public Handle<Derived, Interface, Expression> {
 public:
  using Handle<Derived, Interface, Expression>::Handle;
  using Interface::Remove;

  void Remove(int i) override { this->Impl().Remove(i); }
  void Reserve(int n) override { this->Impl().Reserve(n); }
  Interface* Clone() override { return Wrap<Interface>(this->Impl()); }
};

}  // namespace Vorq

class VorqExpr;
class VorqColumn;
class VorqQuadExpr;
class VorqSymMatExpr;
class VorqPsdExpr;
class VorqLmiExpr;

namespace Vorq {

template <>
struct HandleTraits<IExpr> {
  using Handle = VorqExpr;
};
template <>
struct HandleTraits<IColumn> {
  using Handle = VorqColumn;
};
template <>
struct HandleTraits<IQuadExpr> {
  using Handle = VorqQuadExpr;
};
template <>
struct HandleTraits<ISymMatExpr> {
  using Handle = VorqSymMatExpr;
};
template <>
struct HandleTraits<IPsdExpr> {
  using Handle = VorqPsdExpr;
};
template <>
struct HandleTraits<ILmiExpr> {
  using Handle = VorqLmiExpr;
};

}  // namespace Vorq

class VorqExpr final : public Vorq::TermListHandle<VorqExpr, Vorq::IExpr, Vorq::Expr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IVar* GetVar(int i) override { return Vorq::Wrap<Vorq::IVar>(Vorq::ElementAt(Impl().vars, i)); }
  double GetCoeff(int i) override { return Vorq::ElementAt(Impl().coeffs, i); }
  double GetConstant() override { return Impl().constant; }
  void SetCoeff(int i, double c) override {
    if (double* coeff = Vorq::FindElement(Impl().coeffs, i)) *coeff = c;
  }
  void SetConstant(double c) override { Impl().constant = c; }
  void AddConstant(double c) override { Impl().AddConstant(c); }
  void AddTerm(Vorq::IVar* var, double c) override { Do(VORQ_CALL(AddTerm, var, c)); }
  int AddTerms(Vorq::IVarArray* vars, double* coeffs, int n) override {
    return Ask(-1, VORQ_CALL(AddTerms, vars, coeffs, n));
  }
  void AddExpr(Vorq::IExpr* other, double mult) override { Do(VORQ_CALL(AddExpr, other, mult)); }
  double Evaluate() override { return Impl().Evaluate(); }
  void Remove(Vorq::IVar* var) override { Do(VORQ_CALL(Remove, var)); }
  void Clear() override { Impl().Clear(); }
  void Multiply(double c) override { Impl().Multiply(c); }
};

class VorqColumn final : public Vorq::TermListHandle<VorqColumn, Vorq::IColumn, Vorq::Column> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  int GetSize() override { return static_cast<int>(Impl().Size()); }
  Vorq::IConstraint* GetConstr(int i) override {
    return Vorq::Wrap<Vorq::IConstraint>(Vorq::ElementAt(Impl().constrs, i));
  }
  double GetCoeff(int i) override { return Vorq::ElementAt(Impl().coeffs, i); }
  void AddTerm(Vorq::IConstraint* constr, double c) override { Do(VORQ_CALL(AddTerm, constr, c)); }
  int AddTerms(Vorq::IConstrArray* constrs, double* coeffs, int n) override {
    return Ask(-1, VORQ_CALL(AddTerms, constrs, coeffs, n));
  }
  void AddColumn(Vorq::IColumn* other, double mult) override { Do(VORQ_CALL(AddColumn, other, mult)); }
  int Remove(Vorq::IConstraint* constr) override { return Ask(0, VORQ_CALL(Remove, constr)); }
  void Clear() override { Impl().Clear(); }
};

class VorqQuadExpr final : public Vorq::TermListHandle<VorqQuadExpr, Vorq::IQuadExpr, Vorq::QuadExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IVar* GetVar1(int i) override { return Vorq::Wrap<Vorq::IVar>(Vorq::ElementAt(Impl().vars1, i)); }
  Vorq::IVar* GetVar2(int i) override { return Vorq::Wrap<Vorq::IVar>(Vorq::ElementAt(Impl().vars2, i)); }
  double GetCoeff(int i) override { return Vorq::ElementAt(Impl().coeffs, i); }
  double GetConstant() override { return Impl().linear.constant; }
  Vorq::IExpr* GetLinExpr() override { return Vorq::Wrap<Vorq::IExpr>(Impl().linear); }
  void SetCoeff(int i, double c) override {
    if (double* coeff = Vorq::FindElement(Impl().coeffs, i)) *coeff = c;
  }
  void SetConstant(double c) override { Impl().linear.constant = c; }
  void AddConstant(double c) override { Impl().linear.AddConstant(c); }
  void AddTerm(Vorq::IVar* var, double c) override { Do(VORQ_CALL(AddTerm, var, c)); }
  void AddTerm(Vorq::IVar* var1, Vorq::IVar* var2, double c) override { Do(VORQ_CALL(AddTerm, var1, var2, c)); }
  int AddTerms(Vorq::IVarArray* vars, double* coeffs, int n) override {
    return Ask(-1, VORQ_CALL(AddTerms, vars, coeffs, n));
  }
  int AddTerms(Vorq::IVarArray* vars1, Vorq::IVarArray* vars2, double* coeffs, int n) override {
    return Ask(-1, VORQ_CALL(AddTerms, vars1, vars2, coeffs, n));
  }
  void AddLinExpr(Vorq::IExpr* expr, double mult) override { Do(VORQ_CALL_AS(AddLinExpr, linear.AddExpr, expr, mult)); }
  void AddQuadExpr(Vorq::IQuadExpr* other, double mult) override { Do(VORQ_CALL(AddQuadExpr, other, mult)); }
  void AddProduct(Vorq::IExpr* a, Vorq::IExpr* b) override { Do(VORQ_CALL(AddProduct, a, b)); }
  void AddProduct(Vorq::IExpr* expr, Vorq::IVar* var) override { Do(VORQ_CALL(AddProduct, expr, var)); }
  double Evaluate() override { return Impl().Evaluate(); }
  void Remove(Vorq::IVar* var) override { Do(VORQ_CALL(Remove, var)); }
  void Clear() override { Impl().Clear(); }
  void Multiply(double c) override { Impl().Multiply(c); }
};

class VorqSymMatExpr final : public Vorq::TermListHandle<VorqSymMatExpr, Vorq::ISymMatExpr, Vorq::SymMatExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  int GetDim() override { return Impl().GetDim(); }
  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::ISymMatrix* GetSymMat(int i) override { return Vorq::Wrap<Vorq::ISymMatrix>(Vorq::ElementAt(Impl().mats, i)); }
  double GetCoeff(int i) override { return Vorq::ElementAt(Impl().coeffs, i); }
  void SetCoeff(int i, double c) override {
    if (double* coeff = Vorq::FindElement(Impl().coeffs, i)) *coeff = c;
  }
  bool AddTerm(Vorq::ISymMatrix* mat, double c) override { return Ask(false, VORQ_CALL(AddTerm, mat, c)); }
  int AddTerms(Vorq::ISymMatrixArray* mats, double* coeffs, int n) override {
    return Ask(-1, VORQ_CALL(AddTerms, mats, coeffs, n));
  }
  void AddSymMatExpr(Vorq::ISymMatExpr* other, double mult) override { Do(VORQ_CALL(AddSymMatExpr, other, mult)); }
  void Remove(Vorq::ISymMatrix* mat) override { Do(VORQ_CALL(Remove, mat)); }
  void Multiply(double c) override { Impl().Multiply(c); }
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }
};

class VorqPsdExpr final : public Vorq::TermListHandle<VorqPsdExpr, Vorq::IPsdExpr, Vorq::PsdExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IPsdVar* GetPsdVar(int i) override { return Vorq::Wrap<Vorq::IPsdVar>(Vorq::ElementAt(Impl().vars, i)); }
  Vorq::ISymMatExpr* GetCoeff(int i) override {
    return Vorq::Wrap<Vorq::ISymMatExpr>(Vorq::ElementAt(Impl().coeffs, i));
  }
  double GetConstant() override { return Impl().linear.constant; }
  Vorq::IExpr* GetLinExpr() override { return Vorq::Wrap<Vorq::IExpr>(Impl().linear); }
  void SetCoeff(int i, Vorq::ISymMatrix* mat) override {
    Vorq::SymMatExpr* const coeff = Vorq::FindElement(Impl().coeffs, i);
    if (coeff != nullptr && mat != nullptr) *coeff = Vorq::SymMatExpr(Vorq::Unwrap(mat));
  }
  void SetConstant(double c) override { Impl().linear.constant = c; }
  void AddConstant(double c) override { Impl().linear.AddConstant(c); }
  void AddTerm(Vorq::IVar* var, double c) override { Do(VORQ_CALL_AS(AddTerm, linear.AddTerm, var, c)); }
  void AddTerm(Vorq::IPsdVar* var, Vorq::ISymMatrix* mat) override { Do(VORQ_CALL(AddTerm, var, mat)); }
  void AddTerm(Vorq::IPsdVar* var, Vorq::ISymMatExpr* expr) override { Do(VORQ_CALL(AddTerm, var, expr)); }
  int AddTerms(Vorq::IVarArray* vars, double* coeffs, int n) override {
    return Ask(-1, VORQ_CALL_AS(AddTerms, linear.AddTerms, vars, coeffs, n));
  }
  int AddTerms(Vorq::IPsdVarArray* vars, Vorq::ISymMatrixArray* mats) override {
    return Ask(-1, VORQ_CALL(AddTerms, vars, mats));
  }
  void AddLinExpr(Vorq::IExpr* expr, double mult) override { Do(VORQ_CALL_AS(AddLinExpr, linear.AddExpr, expr, mult)); }
  void AddPsdExpr(Vorq::IPsdExpr* other, double mult) override { Do(VORQ_CALL(AddPsdExpr, other, mult)); }
  void AddMExpression(Vorq::IMExpression* cell, double mult) override;  // defined with the handles on cells
  double Evaluate() override { return Impl().Evaluate(); }
  void Remove(Vorq::IVar* var) override { Do(VORQ_CALL_AS(Remove, linear.Remove, var)); }
  void Remove(Vorq::IPsdVar* var) override { Do(VORQ_CALL(Remove, var)); }
  void Multiply(double c) override { Impl().Multiply(c); }
};

class VorqLmiExpr final : public Vorq::TermListHandle<VorqLmiExpr, Vorq::ILmiExpr, Vorq::LmiExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IVar* GetVar(int i) override { return Vorq::Wrap<Vorq::IVar>(Vorq::ElementAt(Impl().vars, i)); }
  Vorq::ISymMatExpr* GetCoeff(int i) override {
    return Vorq::Wrap<Vorq::ISymMatExpr>(Vorq::ElementAt(Impl().coeffs, i));
  }
  Vorq::ISymMatExpr* GetConstant() override { return Vorq::Wrap<Vorq::ISymMatExpr>(Impl().constant); }
  void SetCoeff(int i, Vorq::ISymMatrix* mat) override {
    Vorq::SymMatExpr* const coeff = Vorq::FindElement(Impl().coeffs, i);
    if (coeff != nullptr && mat != nullptr) *coeff = Vorq::SymMatExpr(Vorq::Unwrap(mat));
  }
  void SetConstant(Vorq::ISymMatrix* mat) override {
    if (mat != nullptr) Impl().constant = Vorq::SymMatExpr(Vorq::Unwrap(mat));
  }
  void AddConstant(Vorq::ISymMatExpr* expr) override { Do(VORQ_CALL(AddConstant, expr)); }
  void AddTerm(Vorq::IVar* var, Vorq::ISymMatrix* mat) override { Do(VORQ_CALL(AddTerm, var, mat)); }
  void AddTerm(Vorq::IVar* var, Vorq::ISymMatExpr* expr) override { Do(VORQ_CALL(AddTerm, var, expr)); }
  int AddTerms(Vorq::IVarArray* vars, Vorq::ISymMatrixArray* mats) override {
    return Ask(-1, VORQ_CALL(AddTerms, vars, mats));
  }
  void AddLmiExpr(Vorq::ILmiExpr* other, double mult) override { Do(VORQ_CALL(AddLmiExpr, other, mult)); }
  void Remove(Vorq::IVar* var) override { Do(VORQ_CALL(Remove, var)); }
  void Multiply(double c) override { Impl().Multiply(c); }
};
