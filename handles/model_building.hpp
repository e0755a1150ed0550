// Operations of the model's handle that add variables, linear constraints, cuts and lazy constraints.
#pragma once

#include "handles/builder_arrays.hpp"
#include "handles/expressions.hpp"
#include "handles/item_arrays.hpp"
#include "handles/model_files.hpp"

class VorqModelBuilding : public VorqModelFiles {
 public:
  using VorqModelFiles::VorqModelFiles;

  // Variables.
  Vorq::IVar* AddVar(double lb, double ub, double obj, char type, char const* name) override {
    return Vorq::Wrap<Vorq::IVar>(Impl().AddVar(lb, ub, obj, type, name));
  }
  Vorq::IVar* AddVar(double lb, double ub, double obj, char type, Vorq::IColumn* col, char const* name) override {
    return Vorq::Wrap<Vorq::IVar>(Impl().AddVar(lb, ub, obj, type, Vorq::Unwrap(col), name));
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
    return Vorq::Wrap<Vorq::IVarArray>(Impl().AddVars(count, lbs, ubs, objs, types, Vorq::Unwrap(cols), prefix));
  }

  // Blocks of variables.
  Vorq::IMVar<0>* AddMVar(Vorq::INDim<0>*, char, char const*) override { return NotImplemented("AddMVar"); }
  Vorq::IMVar<1>* AddMVar(Vorq::INDim<1>*, char, char const*) override { return NotImplemented("AddMVar"); }
  Vorq::IMVar<2>* AddMVar(Vorq::INDim<2>*, char, char const*) override { return NotImplemented("AddMVar"); }
  Vorq::IMVar<3>* AddMVar(Vorq::INDim<3>*, char, char const*) override { return NotImplemented("AddMVar"); }
  Vorq::IMVar<0>* AddMVar(Vorq::INDim<0>*, double, double, double, char, char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<1>* AddMVar(Vorq::INDim<1>*, double, double, double, char, char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<2>* AddMVar(Vorq::INDim<2>*, double, double, double, char, char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<3>* AddMVar(Vorq::INDim<3>*, double, double, double, char, char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<0>* AddMVar(Vorq::INDim<0>*, double const*, double const*, double const*, char const*,
                          char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<1>* AddMVar(Vorq::INDim<1>*, double const*, double const*, double const*, char const*,
                          char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<2>* AddMVar(Vorq::INDim<2>*, double const*, double const*, double const*, char const*,
                          char const*) override {
    return NotImplemented("AddMVar");
  }
  Vorq::IMVar<3>* AddMVar(Vorq::INDim<3>*, double const*, double const*, double const*, char const*,
                          char const*) override {
    return NotImplemented("AddMVar");
  }

  // Linear constraints.
  Vorq::IConstraint* AddConstr(Vorq::IExpr* expr, char sense, double rhs, char const* name) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().AddConstr(Vorq::Unwrap(expr), sense, rhs, name));
  }
  Vorq::IConstraint* AddConstr(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs, char const* name) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().AddConstr(Vorq::Unwrap(lhs), sense, Vorq::Unwrap(rhs), name));
  }
  Vorq::IConstraint* AddConstr(Vorq::IExpr* expr, double lower, double upper, char const* name) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().AddConstr(Vorq::Unwrap(expr), lower, upper, name));
  }
  Vorq::IConstraint* AddConstr(Vorq::IConstrBuilder* builder, char const* name) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().AddConstr(Vorq::Unwrap(builder), name));
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
    return Vorq::Wrap<Vorq::IConstrArray>(Impl().AddConstrs(Vorq::Unwrap(builders), prefix));
  }
  Vorq::IConstrArray* AddConstrs(Vorq::IConstrBuilderArray* builders, char const* names,
                                 std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IConstrArray>(Impl().AddConstrs(Vorq::Unwrap(builders), names, length));
  }

  // Linear constraints from matrix cells and blocks.
  Vorq::IConstraint* AddConstr(Vorq::IMExpression*, char, double, char const*) override {
    return NotImplemented("AddConstr");
  }
  Vorq::IMConstr<0>* AddMConstr(Vorq::IMConstrBuilder<0>*, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<1>* AddMConstr(Vorq::IMConstrBuilder<1>*, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<2>* AddMConstr(Vorq::IMConstrBuilder<2>*, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<3>* AddMConstr(Vorq::IMConstrBuilder<3>*, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<0>* AddMConstr(Vorq::IMLinExpr<0>*, char, double, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<1>* AddMConstr(Vorq::IMLinExpr<1>*, char, double, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<2>* AddMConstr(Vorq::IMLinExpr<2>*, char, double, char const*) override {
    return NotImplemented("AddMConstr");
  }
  Vorq::IMConstr<3>* AddMConstr(Vorq::IMLinExpr<3>*, char, double, char const*) override {
    return NotImplemented("AddMConstr");
  }

  // User cuts and lazy constraints.
  void AddUserCut(Vorq::IExpr* expr, char sense, double rhs, char const* name) override {
    Impl().AddCut(Vorq::kUserCut, Vorq::Unwrap(expr), sense, rhs, name);
  }
  void AddUserCut(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs, char const* name) override {
    Impl().AddCut(Vorq::kUserCut, Vorq::Unwrap(lhs), sense, Vorq::Unwrap(rhs), name);
  }
  void AddUserCut(Vorq::IConstrBuilder* builder, char const* name) override {
    Impl().AddCut(Vorq::kUserCut, Vorq::Unwrap(builder), name);
  }
  void AddUserCuts(Vorq::IConstrBuilderArray* builders, char const* prefix) override {
    Impl().AddCuts(Vorq::kUserCut, Vorq::Unwrap(builders), prefix);
  }
  void AddUserCuts(Vorq::IConstrBuilderArray* builders, char const* names, std::uint64_t length) override {
    Impl().AddCuts(Vorq::kUserCut, Vorq::Unwrap(builders), names, length);
  }
  void AddUserCuts(Vorq::IMConstrBuilder<0>*, char const*) override { NotImplemented("AddUserCuts"); }
  void AddUserCuts(Vorq::IMConstrBuilder<1>*, char const*) override { NotImplemented("AddUserCuts"); }
  void AddUserCuts(Vorq::IMConstrBuilder<2>*, char const*) override { NotImplemented("AddUserCuts"); }
  void AddUserCuts(Vorq::IMConstrBuilder<3>*, char const*) override { NotImplemented("AddUserCuts"); }
  void AddLazyConstr(Vorq::IExpr* expr, char sense, double rhs, char const* name) override {
    Impl().AddCut(Vorq::kLazyConstr, Vorq::Unwrap(expr), sense, rhs, name);
  }
  void AddLazyConstr(Vorq::IExpr* lhs, char sense, Vorq::IExpr* rhs, char const* name) override {
    Impl().AddCut(Vorq::kLazyConstr, Vorq::Unwrap(lhs), sense, Vorq::Unwrap(rhs), name);
  }
  void AddLazyConstr(Vorq::IConstrBuilder* builder, char const* name) override {
    Impl().AddCut(Vorq::kLazyConstr, Vorq::Unwrap(builder), name);
  }
  void AddLazyConstrs(Vorq::IConstrBuilderArray* builders, char const* prefix) override {
    Impl().AddCuts(Vorq::kLazyConstr, Vorq::Unwrap(builders), prefix);
  }
  void AddLazyConstrs(Vorq::IConstrBuilderArray* builders, char const* names, std::uint64_t length) override {
    Impl().AddCuts(Vorq::kLazyConstr, Vorq::Unwrap(builders), names, length);
  }
  void AddLazyConstrs(Vorq::IMConstrBuilder<0>*, char const*) override { NotImplemented("AddLazyConstrs"); }
  void AddLazyConstrs(Vorq::IMConstrBuilder<1>*, char const*) override { NotImplemented("AddLazyConstrs"); }
  void AddLazyConstrs(Vorq::IMConstrBuilder<2>*, char const*) override { NotImplemented("AddLazyConstrs"); }
  void AddLazyConstrs(Vorq::IMConstrBuilder<3>*, char const*) override { NotImplemented("AddLazyConstrs"); }
};
