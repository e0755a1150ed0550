// Operations of the model's handle that add constraints that are not linear, semidefinite variables and symmetric
// matrices.
#pragma once

#include "handles/model_building.hpp"

class VorqModelSpecialConstraints : public VorqModelBuilding {
 public:
  using VorqModelBuilding::VorqModelBuilding;

  // SOS and indicator constraints.
  Vorq::ISos* AddSos(Vorq::ISosBuilder* builder) override {
    return Vorq::Wrap<Vorq::ISos>(Impl().AddSos(Vorq::Unwrap(builder)));
  }
  Vorq::ISos* AddSos(Vorq::IVarArray* vars, double const* weights, int type) override {
    return Vorq::Wrap<Vorq::ISos>(Impl().AddSos(Vorq::Unwrap(vars), weights, type));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IGenConstrBuilder* builder, char const* name) override {
    return Vorq::Wrap<Vorq::IGenConstr>(Impl().AddGenConstrIndicator(Vorq::Unwrap(builder), name));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar* var, int val, Vorq::IConstrBuilder* builder, int type,
                                          char const* name) override {
    return Vorq::Wrap<Vorq::IGenConstr>(
        Impl().AddGenConstrIndicator(Vorq::Unwrap(var), val, Vorq::Unwrap(builder), type, name));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar* var, int val, Vorq::IExpr* expr, char sense, double rhs, int type,
                                          char const* name) override {
    return Vorq::Wrap<Vorq::IGenConstr>(
        Impl().AddGenConstrIndicator(Vorq::Unwrap(var), val, Vorq::Unwrap(expr), sense, rhs, type, name));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar*, int, Vorq::IMExpression*, char, double, int,
                                          char const*) override {
    return NotImplemented("AddGenConstrIndicator");
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray* builders, char const* prefix) override {
    return Vorq::Wrap<Vorq::IGenConstrArray>(Impl().AddGenConstrIndicators(Vorq::Unwrap(builders), prefix));
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray* builders, char const* names,
                                                std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IGenConstrArray>(Impl().AddGenConstrIndicators(Vorq::Unwrap(builders), names, length));
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IMVar<0>*, int, Vorq::IMConstrBuilder<0>*, int,
                                                char const*) override {
    return NotImplemented("AddGenConstrIndicators");
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IMVar<1>*, int, Vorq::IMConstrBuilder<1>*, int,
                                                char const*) override {
    return NotImplemented("AddGenConstrIndicators");
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IMVar<2>*, int, Vorq::IMConstrBuilder<2>*, int,
                                                char const*) override {
    return NotImplemented("AddGenConstrIndicators");
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IMVar<3>*, int, Vorq::IMConstrBuilder<3>*, int,
                                                char const*) override {
    return NotImplemented("AddGenConstrIndicators");
  }

  // Cones.
  Vorq::ICone* AddCone(int dim, int type, char const* varTypes, char const* prefix) override {
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(dim, type, varTypes, prefix));
  }
  Vorq::ICone* AddCone(Vorq::IConeBuilder* builder) override {
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(Vorq::Unwrap(builder)));
  }
  Vorq::ICone* AddCone(Vorq::IVarArray* vars, int type) override {
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(Vorq::Unwrap(vars), type));
  }
  Vorq::ICone* AddCone(Vorq::IMVar<1>*, int) override { return NotImplemented("AddCone"); }
  Vorq::IConeArray* AddCones(Vorq::IMVar<2>*, int) override { return NotImplemented("AddCones"); }
  Vorq::IExpCone* AddExpCone(int type, char const* varTypes, char const* prefix) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(type, varTypes, prefix));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IExpConeBuilder* builder) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(Vorq::Unwrap(builder)));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IVarArray* vars, int type) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(Vorq::Unwrap(vars), type));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IMVar<1>*, int) override { return NotImplemented("AddExpCone"); }
  Vorq::IExpConeArray* AddExpCones(Vorq::IMVar<2>*, int) override { return NotImplemented("AddExpCones"); }
  Vorq::IAffineCone* AddAffineCone(Vorq::IAffineConeBuilder*, char const*) override {
    return NotImplemented("AddAffineCone");
  }
  Vorq::IAffineCone* AddAffineCone(Vorq::IMLinExpr<1>*, int, char const*) override {
    return NotImplemented("AddAffineCone");
  }
  Vorq::IAffineCone* AddAffineCone(std::vector<Vorq::IExpr*>, int, char const*) override {
    return NotImplemented("AddAffineCone");
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMLinExpr<2>*, int, char const*) override {
    return NotImplemented("AddAffineCones");
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMLinExpr<2>*, int, char const*, std::uint64_t) override {
    return NotImplemented("AddAffineCones");
  }
  Vorq::IAffineCone* AddAffineCone(Vorq::IMPsdExpr<1>*, int, char const*) override {
    return NotImplemented("AddAffineCone");
  }
  Vorq::IAffineCone* AddAffineCone(std::vector<Vorq::IPsdExpr*>, int, char const*) override {
    return NotImplemented("AddAffineCone");
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMPsdExpr<2>*, int, char const*) override {
    return NotImplemented("AddAffineCones");
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMPsdExpr<2>*, int, char const*, std::uint64_t) override {
    return NotImplemented("AddAffineCones");
  }

  // Quadratic constraints.
  Vorq::IQConstraint* AddQConstr(Vorq::IQuadExpr* expr, char sense, double rhs, char const* name) override {
    return Vorq::Wrap<Vorq::IQConstraint>(Impl().AddQConstr(Vorq::Unwrap(expr), sense, rhs, name));
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IQuadExpr* lhs, char sense, Vorq::IQuadExpr* rhs, char const* name) override {
    return Vorq::Wrap<Vorq::IQConstraint>(Impl().AddQConstr(Vorq::Unwrap(lhs), sense, Vorq::Unwrap(rhs), name));
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IQConstrBuilder* builder, char const* name) override {
    return Vorq::Wrap<Vorq::IQConstraint>(Impl().AddQConstr(Vorq::Unwrap(builder), name));
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IMQExpression*, char, double, char const*) override {
    return NotImplemented("AddQConstr");
  }
  Vorq::IMQConstr<0>* AddMQConstr(Vorq::IMQConstrBuilder<0>*, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<1>* AddMQConstr(Vorq::IMQConstrBuilder<1>*, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<2>* AddMQConstr(Vorq::IMQConstrBuilder<2>*, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<3>* AddMQConstr(Vorq::IMQConstrBuilder<3>*, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<0>* AddMQConstr(Vorq::IMQuadExpr<0>*, char, double, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<1>* AddMQConstr(Vorq::IMQuadExpr<1>*, char, double, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<2>* AddMQConstr(Vorq::IMQuadExpr<2>*, char, double, char const*) override {
    return NotImplemented("AddMQConstr");
  }
  Vorq::IMQConstr<3>* AddMQConstr(Vorq::IMQuadExpr<3>*, char, double, char const*) override {
    return NotImplemented("AddMQConstr");
  }

  // Semidefinite variables and constraints.
  Vorq::IPsdVar* AddPsdVar(int dim, char const* name) override {
    return Vorq::Wrap<Vorq::IPsdVar>(Impl().AddPsdVar(dim, name));
  }
  Vorq::IPsdVarArray* AddPsdVars(int count, int const* dims, char const* prefix) override {
    return Vorq::Wrap<Vorq::IPsdVarArray>(Impl().AddPsdVars(count, dims, prefix));
  }
  Vorq::IPsdVarArray* AddPsdVars(int count, int const* dims, char const* names, std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IPsdVarArray>(Impl().AddPsdVars(count, dims, names, length));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr* expr, char sense, double rhs, char const* name) override {
    return Vorq::Wrap<Vorq::IPsdConstraint>(Impl().AddPsdConstr(Vorq::Unwrap(expr), sense, rhs, name));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr* lhs, char sense, Vorq::IPsdExpr* rhs, char const* name) override {
    return Vorq::Wrap<Vorq::IPsdConstraint>(Impl().AddPsdConstr(Vorq::Unwrap(lhs), sense, Vorq::Unwrap(rhs), name));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr* expr, double lower, double upper, char const* name) override {
    return Vorq::Wrap<Vorq::IPsdConstraint>(Impl().AddPsdConstr(Vorq::Unwrap(expr), lower, upper, name));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdConstrBuilder* builder, char const* name) override {
    return Vorq::Wrap<Vorq::IPsdConstraint>(Impl().AddPsdConstr(Vorq::Unwrap(builder), name));
  }
  Vorq::IMPsdConstr<0>* AddMPsdConstr(Vorq::IMPsdConstrBuilder<0>*, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<1>* AddMPsdConstr(Vorq::IMPsdConstrBuilder<1>*, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<2>* AddMPsdConstr(Vorq::IMPsdConstrBuilder<2>*, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<3>* AddMPsdConstr(Vorq::IMPsdConstrBuilder<3>*, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<0>* AddMPsdConstr(Vorq::IMPsdExpr<0>*, char, double, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<1>* AddMPsdConstr(Vorq::IMPsdExpr<1>*, char, double, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<2>* AddMPsdConstr(Vorq::IMPsdExpr<2>*, char, double, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::IMPsdConstr<3>* AddMPsdConstr(Vorq::IMPsdExpr<3>*, char, double, char const*) override {
    return NotImplemented("AddMPsdConstr");
  }
  Vorq::ILmiConstraint* AddLmiConstr(Vorq::ILmiExpr* expr, char const* name) override {
    return Vorq::Wrap<Vorq::ILmiConstraint>(Impl().AddLmiConstr(Vorq::Unwrap(expr), name));
  }

  // Symmetric matrices.
  Vorq::ISymMatrix* AddSparseMat(int dim, int nElems, int const* rows, int const* cols, double const* values) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddSparseMat(dim, nElems, rows, cols, values));
  }
  Vorq::ISymMatrix* AddDenseMat(int dim, double const* values, int length) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDenseMat(dim, values, length));
  }
  Vorq::ISymMatrix* AddDenseMat(int dim, double value) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDenseMat(dim, value));
  }
  Vorq::ISymMatrix* AddDiagMat(int dim, double const* values, int length) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, values, length));
  }
  Vorq::ISymMatrix* AddDiagMat(int dim, double value) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, value));
  }
  Vorq::ISymMatrix* AddDiagMat(int dim, double const* values, int length, int offset) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, values, length, offset));
  }
  Vorq::ISymMatrix* AddDiagMat(int dim, double value, int offset) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, value, offset));
  }
  Vorq::ISymMatrix* AddOnesMat(int dim) override { return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDenseMat(dim, 1.0)); }
  Vorq::ISymMatrix* AddEyeMat(int dim) override { return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, 1.0)); }
  Vorq::ISymMatrix* AddSymMat(Vorq::ISymMatExpr* expr) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddSymMat(Vorq::Unwrap(expr)));
  }
  Vorq::ISymMatrix* GetSymMat(int index) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().Get<Vorq::SymMatrix>(index));
  }
};
