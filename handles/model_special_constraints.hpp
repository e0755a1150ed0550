// Operations of the model's handle that add constraints that are not linear, semidefinite variables and symmetric
// matrices.
#pragma once

#include "handles/model_building.hpp"

class VorqModelSpecialConstraints : public VorqModelBuilding {
 public:
  using VorqModelBuilding::VorqModelBuilding;

  // SOS and indicator constraints.
  Vorq::ISos* AddSos(Vorq::ISosBuilder*) override { return NotImplemented("AddSos"); }
  Vorq::ISos* AddSos(Vorq::IVarArray*, double const*, int) override { return NotImplemented("AddSos"); }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IGenConstrBuilder*, char const*) override {
    return NotImplemented("AddGenConstrIndicator");
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar*, int, Vorq::IConstrBuilder*, int, char const*) override {
    return NotImplemented("AddGenConstrIndicator");
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar*, int, Vorq::IExpr*, char, double, int, char const*) override {
    return NotImplemented("AddGenConstrIndicator");
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar*, int, Vorq::IMExpression*, char, double, int,
                                          char const*) override {
    return NotImplemented("AddGenConstrIndicator");
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray*, char const*) override {
    return NotImplemented("AddGenConstrIndicators");
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray*, char const*, std::uint64_t) override {
    return NotImplemented("AddGenConstrIndicators");
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
  Vorq::ICone* AddCone(int, int, char const*, char const*) override { return NotImplemented("AddCone"); }
  Vorq::ICone* AddCone(Vorq::IConeBuilder*) override { return NotImplemented("AddCone"); }
  Vorq::ICone* AddCone(Vorq::IVarArray*, int) override { return NotImplemented("AddCone"); }
  Vorq::ICone* AddCone(Vorq::IMVar<1>*, int) override { return NotImplemented("AddCone"); }
  Vorq::IConeArray* AddCones(Vorq::IMVar<2>*, int) override { return NotImplemented("AddCones"); }
  Vorq::IExpCone* AddExpCone(int, char const*, char const*) override { return NotImplemented("AddExpCone"); }
  Vorq::IExpCone* AddExpCone(Vorq::IExpConeBuilder*) override { return NotImplemented("AddExpCone"); }
  Vorq::IExpCone* AddExpCone(Vorq::IVarArray*, int) override { return NotImplemented("AddExpCone"); }
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
  Vorq::IQConstraint* AddQConstr(Vorq::IQuadExpr*, char, double, char const*) override {
    return NotImplemented("AddQConstr");
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IQuadExpr*, char, Vorq::IQuadExpr*, char const*) override {
    return NotImplemented("AddQConstr");
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IQConstrBuilder*, char const*) override { return NotImplemented("AddQConstr"); }
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
  Vorq::IPsdVar* AddPsdVar(int, char const*) override { return NotImplemented("AddPsdVar"); }
  Vorq::IPsdVarArray* AddPsdVars(int, int const*, char const*) override { return NotImplemented("AddPsdVars"); }
  Vorq::IPsdVarArray* AddPsdVars(int, int const*, char const*, std::uint64_t) override {
    return NotImplemented("AddPsdVars");
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr*, char, double, char const*) override {
    return NotImplemented("AddPsdConstr");
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr*, char, Vorq::IPsdExpr*, char const*) override {
    return NotImplemented("AddPsdConstr");
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr*, double, double, char const*) override {
    return NotImplemented("AddPsdConstr");
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdConstrBuilder*, char const*) override {
    return NotImplemented("AddPsdConstr");
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
  Vorq::ILmiConstraint* AddLmiConstr(Vorq::ILmiExpr*, char const*) override { return NotImplemented("AddLmiConstr"); }

  // Symmetric matrices.
  Vorq::ISymMatrix* AddSparseMat(int, int, int const*, int const*, double const*) override {
    return NotImplemented("AddSparseMat");
  }
  Vorq::ISymMatrix* AddDenseMat(int, double const*, int) override { return NotImplemented("AddDenseMat"); }
  Vorq::ISymMatrix* AddDenseMat(int, double) override { return NotImplemented("AddDenseMat"); }
  Vorq::ISymMatrix* AddDiagMat(int, double const*, int) override { return NotImplemented("AddDiagMat"); }
  Vorq::ISymMatrix* AddDiagMat(int, double) override { return NotImplemented("AddDiagMat"); }
  Vorq::ISymMatrix* AddDiagMat(int, double const*, int, int) override { return NotImplemented("AddDiagMat"); }
  Vorq::ISymMatrix* AddDiagMat(int, double, int) override { return NotImplemented("AddDiagMat"); }
  Vorq::ISymMatrix* AddOnesMat(int) override { return NotImplemented("AddOnesMat"); }
  Vorq::ISymMatrix* AddEyeMat(int) override { return NotImplemented("AddEyeMat"); }
  Vorq::ISymMatrix* AddSymMat(Vorq::ISymMatExpr*) override { return NotImplemented("AddSymMat"); }
  Vorq::ISymMatrix* GetSymMat(int index) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().Get<Vorq::SymMatrix>(index));
  }
};
