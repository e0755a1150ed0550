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
  Vorq::IVar* GetVar(int i) override { return Vorq::Wrap<Vorq::IVar>(Impl().vars[static_cast<std::size_t>(i)]); }
  double GetCoeff(int i) override { return Impl().coeffs[static_cast<std::size_t>(i)]; }
  double GetConstant() override { return Impl().constant; }
  void SetCoeff(int i, double c) override { Impl().coeffs[static_cast<std::size_t>(i)] = c; }
  void SetConstant(double c) override { Impl().constant = c; }
  void AddConstant(double c) override { Impl().AddConstant(c); }
  void AddTerm(Vorq::IVar* var, double c) override { Impl().AddTerm(Vorq::Unwrap(var), c); }
  int AddTerms(Vorq::IVarArray* vars, double* coeffs, int n) override {
    return Impl().AddTerms(Vorq::Unwrap(vars), coeffs, n);
  }
  void AddExpr(Vorq::IExpr* other, double mult) override { Impl().AddExpr(Vorq::Unwrap(other), mult); }
  double Evaluate() override { return Impl().Evaluate(); }
  void Remove(Vorq::IVar* var) override { Impl().Remove(Vorq::Unwrap(var)); }
  void Clear() override { Impl().Clear(); }
  void Multiply(double c) override { Impl().Multiply(c); }
};

class VorqColumn final : public Vorq::TermListHandle<VorqColumn, Vorq::IColumn, Vorq::Column> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  int GetSize() override { return static_cast<int>(Impl().Size()); }
  Vorq::IConstraint* GetConstr(int i) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().constrs[static_cast<std::size_t>(i)]);
  }
  double GetCoeff(int i) override { return Impl().coeffs[static_cast<std::size_t>(i)]; }
  void AddTerm(Vorq::IConstraint* constr, double c) override { Impl().AddTerm(Vorq::Unwrap(constr), c); }
  int AddTerms(Vorq::IConstrArray* constrs, double* coeffs, int n) override {
    return Impl().AddTerms(Vorq::Unwrap(constrs), coeffs, n);
  }
  void AddColumn(Vorq::IColumn* other, double mult) override { Impl().AddColumn(Vorq::Unwrap(other), mult); }
  int Remove(Vorq::IConstraint* constr) override { return Impl().Remove(Vorq::Unwrap(constr)); }
  void Clear() override { Impl().Clear(); }
};

class VorqQuadExpr final : public Vorq::TermListHandle<VorqQuadExpr, Vorq::IQuadExpr, Vorq::QuadExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IVar* GetVar1(int i) override { return Vorq::Wrap<Vorq::IVar>(Impl().vars1[static_cast<std::size_t>(i)]); }
  Vorq::IVar* GetVar2(int i) override { return Vorq::Wrap<Vorq::IVar>(Impl().vars2[static_cast<std::size_t>(i)]); }
  double GetCoeff(int i) override { return Impl().coeffs[static_cast<std::size_t>(i)]; }
  double GetConstant() override { return Impl().linear.constant; }
  Vorq::IExpr* GetLinExpr() override { return Vorq::Wrap<Vorq::IExpr>(Impl().linear); }
  void SetCoeff(int i, double c) override { Impl().coeffs[static_cast<std::size_t>(i)] = c; }
  void SetConstant(double c) override { Impl().linear.constant = c; }
  void AddConstant(double c) override { Impl().linear.AddConstant(c); }
  void AddTerm(Vorq::IVar* var, double c) override { Impl().AddTerm(Vorq::Unwrap(var), c); }
  void AddTerm(Vorq::IVar* var1, Vorq::IVar* var2, double c) override {
    Impl().AddTerm(Vorq::Unwrap(var1), Vorq::Unwrap(var2), c);
  }
  int AddTerms(Vorq::IVarArray* vars, double* coeffs, int n) override {
    return Impl().AddTerms(Vorq::Unwrap(vars), coeffs, n);
  }
  int AddTerms(Vorq::IVarArray* vars1, Vorq::IVarArray* vars2, double* coeffs, int n) override {
    return Impl().AddTerms(Vorq::Unwrap(vars1), Vorq::Unwrap(vars2), coeffs, n);
  }
  void AddLinExpr(Vorq::IExpr* expr, double mult) override { Impl().linear.AddExpr(Vorq::Unwrap(expr), mult); }
  void AddQuadExpr(Vorq::IQuadExpr* other, double mult) override { Impl().AddQuadExpr(Vorq::Unwrap(other), mult); }
  void AddProduct(Vorq::IExpr* a, Vorq::IExpr* b) override { Impl().AddProduct(Vorq::Unwrap(a), Vorq::Unwrap(b)); }
  void AddProduct(Vorq::IExpr* expr, Vorq::IVar* var) override {
    Impl().AddProduct(Vorq::Unwrap(expr), Vorq::Unwrap(var));
  }
  double Evaluate() override { return Impl().Evaluate(); }
  void Remove(Vorq::IVar* var) override { Impl().Remove(Vorq::Unwrap(var)); }
  void Clear() override { Impl().Clear(); }
  void Multiply(double c) override { Impl().Multiply(c); }
};

class VorqSymMatExpr final : public Vorq::TermListHandle<VorqSymMatExpr, Vorq::ISymMatExpr, Vorq::SymMatExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  int GetDim() override { return Impl().GetDim(); }
  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::ISymMatrix* GetSymMat(int i) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().mats[static_cast<std::size_t>(i)]);
  }
  double GetCoeff(int i) override { return Impl().coeffs[static_cast<std::size_t>(i)]; }
  void SetCoeff(int i, double c) override { Impl().coeffs[static_cast<std::size_t>(i)] = c; }
  bool AddTerm(Vorq::ISymMatrix* mat, double c) override { return Impl().AddTerm(Vorq::Unwrap(mat), c); }
  int AddTerms(Vorq::ISymMatrixArray* mats, double* coeffs, int n) override {
    return Impl().AddTerms(Vorq::Unwrap(mats), coeffs, n);
  }
  void AddSymMatExpr(Vorq::ISymMatExpr* other, double mult) override {
    Impl().AddSymMatExpr(Vorq::Unwrap(other), mult);
  }
  void Remove(Vorq::ISymMatrix* mat) override { Impl().Remove(Vorq::Unwrap(mat)); }
  void Multiply(double c) override { Impl().Multiply(c); }
  int GetLastError() override { return Impl().status.Code(); }
  char const* GetErrorMessage() override { return Impl().status.Text(); }
};

class VorqPsdExpr final : public Vorq::TermListHandle<VorqPsdExpr, Vorq::IPsdExpr, Vorq::PsdExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IPsdVar* GetPsdVar(int i) override {
    return Vorq::Wrap<Vorq::IPsdVar>(Impl().vars[static_cast<std::size_t>(i)]);
  }
  Vorq::ISymMatExpr* GetCoeff(int i) override {
    return Vorq::Wrap<Vorq::ISymMatExpr>(Impl().coeffs[static_cast<std::size_t>(i)]);
  }
  double GetConstant() override { return Impl().linear.constant; }
  Vorq::IExpr* GetLinExpr() override { return Vorq::Wrap<Vorq::IExpr>(Impl().linear); }
  void SetCoeff(int i, Vorq::ISymMatrix* mat) override {
    Impl().coeffs[static_cast<std::size_t>(i)] = Vorq::SymMatExpr(Vorq::Unwrap(mat));
  }
  void SetConstant(double c) override { Impl().linear.constant = c; }
  void AddConstant(double c) override { Impl().linear.AddConstant(c); }
  void AddTerm(Vorq::IVar* var, double c) override { Impl().linear.AddTerm(Vorq::Unwrap(var), c); }
  void AddTerm(Vorq::IPsdVar* var, Vorq::ISymMatrix* mat) override {
    Impl().AddTerm(Vorq::Unwrap(var), Vorq::Unwrap(mat));
  }
  void AddTerm(Vorq::IPsdVar* var, Vorq::ISymMatExpr* expr) override {
    Impl().AddTerm(Vorq::Unwrap(var), Vorq::Unwrap(expr));
  }
  int AddTerms(Vorq::IVarArray* vars, double* coeffs, int n) override {
    return Impl().linear.AddTerms(Vorq::Unwrap(vars), coeffs, n);
  }
  int AddTerms(Vorq::IPsdVarArray* vars, Vorq::ISymMatrixArray* mats) override {
    return Impl().AddTerms(Vorq::Unwrap(vars), Vorq::Unwrap(mats));
  }
  void AddLinExpr(Vorq::IExpr* expr, double mult) override { Impl().linear.AddExpr(Vorq::Unwrap(expr), mult); }
  void AddPsdExpr(Vorq::IPsdExpr* other, double mult) override { Impl().AddPsdExpr(Vorq::Unwrap(other), mult); }
  void AddMExpression(Vorq::IMExpression* cell, double mult) override;  // defined with the handles on cells
  double Evaluate() override { return Impl().Evaluate(); }
  void Remove(Vorq::IVar* var) override { Impl().linear.Remove(Vorq::Unwrap(var)); }
  void Remove(Vorq::IPsdVar* var) override { Impl().Remove(Vorq::Unwrap(var)); }
  void Multiply(double c) override { Impl().Multiply(c); }
};

class VorqLmiExpr final : public Vorq::TermListHandle<VorqLmiExpr, Vorq::ILmiExpr, Vorq::LmiExpr> {
 public:
  using TermListHandle::Remove;
  using TermListHandle::TermListHandle;

  std::uint64_t GetSize() override { return Impl().Size(); }
  Vorq::IVar* GetVar(int i) override { return Vorq::Wrap<Vorq::IVar>(Impl().vars[static_cast<std::size_t>(i)]); }
  Vorq::ISymMatExpr* GetCoeff(int i) override {
    return Vorq::Wrap<Vorq::ISymMatExpr>(Impl().coeffs[static_cast<std::size_t>(i)]);
  }
  Vorq::ISymMatExpr* GetConstant() override { return Vorq::Wrap<Vorq::ISymMatExpr>(Impl().constant); }
  void SetCoeff(int i, Vorq::ISymMatrix* mat) override {
    Impl().coeffs[static_cast<std::size_t>(i)] = Vorq::SymMatExpr(Vorq::Unwrap(mat));
  }
  void SetConstant(Vorq::ISymMatrix* mat) override { Impl().constant = Vorq::SymMatExpr(Vorq::Unwrap(mat)); }
  void AddConstant(Vorq::ISymMatExpr* expr) override { Impl().AddConstant(Vorq::Unwrap(expr)); }
  void AddTerm(Vorq::IVar* var, Vorq::ISymMatrix* mat) override {
    Impl().AddTerm(Vorq::Unwrap(var), Vorq::Unwrap(mat));
  }
  void AddTerm(Vorq::IVar* var, Vorq::ISymMatExpr* expr) override {
    Impl().AddTerm(Vorq::Unwrap(var), Vorq::Unwrap(expr));
  }
  int AddTerms(Vorq::IVarArray* vars, Vorq::ISymMatrixArray* mats) override {
    return Impl().AddTerms(Vorq::Unwrap(vars), Vorq::Unwrap(mats));
  }
  void AddLmiExpr(Vorq::ILmiExpr* other, double mult) override { Impl().AddLmiExpr(Vorq::Unwrap(other), mult); }
  void Remove(Vorq::IVar* var) override { Impl().Remove(Vorq::Unwrap(var)); }
  void Multiply(double c) override { Impl().Multiply(c); }
};
