// Operations of the model's handle that add variables, linear constraints, cuts and lazy constraints.
#pragma once

#include "handles/builder_arrays.hpp"
#include "handles/expressions.hpp"
#include "handles/item_arrays.hpp"
#include "handles/matrix_builders.hpp"
#include "handles/matrix_items.hpp"
#include "handles/model_files.hpp"

class VorqModelBuilding : public VorqModelFiles {
 public:
  using VorqModelFiles::VorqModelFiles;

  // Variables.
  Vorq::IVar* AddVar(double lb, double ub, double obj, char type, char const* name) override {
    return Vorq::Wrap<Vorq::IVar>(Impl().AddVar(lb, ub, obj, type, name));
  }
  Vorq::IVar* AddVar(double lb, double ub, double obj, char type, Vorq::IColumn* col, char const* name) override {
    return Make<Vorq::IVar>(VORQ_CALL(AddVar, lb, ub, obj, type, col, name));
  }
  Vorq::IVarArray* AddVars(int count, char type, char const* prefix) override {
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, type, prefix));
  }
  Vorq::IVarArray* AddVars(int count, char type, char const* names, std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, type, names, length));
  }
  Vorq::IVarArray* AddVars(int count, double lb, double ub, double obj, char type, char const* prefix) override {
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, lb, ub, obj, type, prefix));
  }
  Vorq::IVarArray* AddVars(int count, double lb, double ub, double obj, char type, char const* names,
                           std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, lb, ub, obj, type, names, length));
  }
  Vorq::IVarArray* AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                           char const* prefix) override {
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, lbs, ubs, objs, types, prefix));
  }
  Vorq::IVarArray* AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                           char const* names, std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, lbs, ubs, objs, types, names, length));
  }
  Vorq::IVarArray* AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                           Vorq::IColumnArray* cols, char const* prefix) override {
    return Make<Vorq::IVarArray>(VORQ_CALL(AddVars, count, lbs, ubs, objs, types, cols, prefix));
  }

  // Blocks of variables.
#define VORQ_ADD_MVAR(N)                                                                                          \
  Vorq::IMVar<N>* AddMVar(Vorq::INDim<N>* shape, char type, char const* prefix) override {                        \
    return Make<Vorq::IMVar<N>>(VORQ_CALL(AddMVar, shape, type, prefix));                                         \
  }                                                                                                               \
  Vorq::IMVar<N>* AddMVar(Vorq::INDim<N>* shape, double lb, double ub, double obj, char type, char const* prefix) \
      override {                                                                                                  \
    return Make<Vorq::IMVar<N>>(VORQ_CALL(AddMVar, shape, lb, ub, obj, type, prefix));                            \
  }                                                                                                               \
  Vorq::IMVar<N>* AddMVar(Vorq::INDim<N>* shape, double const* lbs, double const* ubs, double const* objs,        \
                          char const* types, char const* prefix) override {                                       \
    return Make<Vorq::IMVar<N>>(VORQ_CALL(AddMVar, shape, lbs, ubs, objs, types, prefix));                        \
  }
  VORQ_ADD_MVAR(0)
  VORQ_ADD_MVAR(1)
  VORQ_ADD_MVAR(2)
  VORQ_ADD_MVAR(3)
#undef VORQ_ADD_MVAR

  // Linear constraints.
  Vorq::IConstraint* AddConstr(Vorq::IExpr* expr, char sense, double rhs, char const* name) override {
    return Make<Vorq::IConstraint>(VORQ_CALL(AddConstr, expr, sense, rhs, name));
  }
  Vorq::IConstraint* AddConstr(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs, char const* name) override {
    return Make<Vorq::IConstraint>(VORQ_CALL(AddConstr, lhs, sense, rhs, name));
  }
  Vorq::IConstraint* AddConstr(Vorq::IExpr* expr, double lower, double upper, char const* name) override {
    return Make<Vorq::IConstraint>(VORQ_CALL(AddConstr, expr, lower, upper, name));
  }
  Vorq::IConstraint* AddConstr(Vorq::IConstrBuilder* builder, char const* name) override {
    return Make<Vorq::IConstraint>(VORQ_CALL(AddConstr, builder, name));
  }
  Vorq::IConstrArray* AddConstrs(int count, char const* senses, double const* rhss, char const* prefix) override {
    return Vorq::Wrap<Vorq::IConstrArray>(Impl().AddConstrs(count, senses, rhss, prefix));
  }
  Vorq::IConstrArray* AddConstrs(int count, double const* lowers, double const* uppers, char const* prefix) override {
    return Vorq::Wrap<Vorq::IConstrArray>(Impl().AddConstrs(count, lowers, uppers, prefix));
  }
  Vorq::IConstrArray* AddConstrs(int count, double const* lowers, double const* uppers, char const* names,
                                 std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IConstrArray>(Impl().AddConstrs(count, lowers, uppers, names, length));
  }
  Vorq::IConstrArray* AddConstrs(Vorq::IConstrBuilderArray* builders, char const* prefix) override {
    return Make<Vorq::IConstrArray>(VORQ_CALL(AddConstrs, builders, prefix));
  }
  Vorq::IConstrArray* AddConstrs(Vorq::IConstrBuilderArray* builders, char const* names,
                                 std::uint64_t length) override {
    return Make<Vorq::IConstrArray>(VORQ_CALL(AddConstrs, builders, names, length));
  }

  // Linear constraints from matrix cells and blocks.
  Vorq::IConstraint* AddConstr(Vorq::IMExpression* cell, char sense, double rhs, char const* name) override {
    return Make<Vorq::IConstraint>(VORQ_CALL(AddConstr, cell, sense, rhs, name));
  }
#define VORQ_ADD_M_CONSTR(N)                                                                                     \
  Vorq::IMConstr<N>* AddMConstr(Vorq::IMConstrBuilder<N>* builder, char const* prefix) override {                \
    return Make<Vorq::IMConstr<N>>(VORQ_CALL(AddMConstr, builder, prefix));                                      \
  }                                                                                                              \
  Vorq::IMConstr<N>* AddMConstr(Vorq::IMLinExpr<N>* expr, char sense, double rhs, char const* prefix) override { \
    return Make<Vorq::IMConstr<N>>(VORQ_CALL(AddMConstr, expr, sense, rhs, prefix));                             \
  }
  VORQ_ADD_M_CONSTR(0)
  VORQ_ADD_M_CONSTR(1)
  VORQ_ADD_M_CONSTR(2)
  VORQ_ADD_M_CONSTR(3)
#undef VORQ_ADD_M_CONSTR

  // User cuts and lazy constraints.
  void AddUserCut(Vorq::IExpr* expr, char sense, double rhs, char const* name) override {
    Do(VORQ_CALL_AS(AddUserCut, AddCut, Vorq::kUserCut, expr, sense, rhs, name));
  }
  void AddUserCut(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs, char const* name) override {
    Do(VORQ_CALL_AS(AddUserCut, AddCut, Vorq::kUserCut, lhs, sense, rhs, name));
  }
  void AddUserCut(Vorq::IConstrBuilder* builder, char const* name) override {
    Do(VORQ_CALL_AS(AddUserCut, AddCut, Vorq::kUserCut, builder, name));
  }
  void AddUserCuts(Vorq::IConstrBuilderArray* builders, char const* prefix) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, Vorq::kUserCut, builders, prefix));
  }
  void AddUserCuts(Vorq::IConstrBuilderArray* builders, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, Vorq::kUserCut, builders, names, length));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<0>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, Vorq::kUserCut, builder, prefix));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<1>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, Vorq::kUserCut, builder, prefix));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<2>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, Vorq::kUserCut, builder, prefix));
  }
  void AddUserCuts(Vorq::IMConstrBuilder<3>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddUserCuts, AddCuts, Vorq::kUserCut, builder, prefix));
  }
  void AddLazyConstr(Vorq::IExpr* expr, char sense, double rhs, char const* name) override {
    Do(VORQ_CALL_AS(AddLazyConstr, AddCut, Vorq::kLazyConstr, expr, sense, rhs, name));
  }
  void AddLazyConstr(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs, char const* name) override {
    Do(VORQ_CALL_AS(AddLazyConstr, AddCut, Vorq::kLazyConstr, lhs, sense, rhs, name));
  }
  void AddLazyConstr(Vorq::IConstrBuilder* builder, char const* name) override {
    Do(VORQ_CALL_AS(AddLazyConstr, AddCut, Vorq::kLazyConstr, builder, name));
  }
  void AddLazyConstrs(Vorq::IConstrBuilderArray* builders, char const* prefix) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, Vorq::kLazyConstr, builders, prefix));
  }
  void AddLazyConstrs(Vorq::IConstrBuilderArray* builders, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, Vorq::kLazyConstr, builders, names, length));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<0>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, Vorq::kLazyConstr, builder, prefix));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<1>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, Vorq::kLazyConstr, builder, prefix));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<2>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, Vorq::kLazyConstr, builder, prefix));
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<3>* builder, char const* prefix) override {
    Do(VORQ_CALL_AS(AddLazyConstrs, AddCuts, Vorq::kLazyConstr, builder, prefix));
  }
};
