// Operations of the model's handle that add constraints that are not linear, semidefinite variables and symmetric
// matrices.
#pragma once

#include "handles/affine_cone_builders.hpp"
#include "handles/model_building.hpp"

class VorqModelSpecialConstraints : public VorqModelBuilding {
 public:
  using VorqModelBuilding::VorqModelBuilding;

  // SOS and indicator constraints.
  Vorq::ISos* AddSos(Vorq::ISosBuilder* builder) override { return Make<Vorq::ISos>(VORQ_CALL(AddSos, builder)); }
  Vorq::ISos* AddSos(Vorq::IVarArray* vars, double const* weights, int type) override {
    return Make<Vorq::ISos>(VORQ_CALL(AddSos, vars, weights, type));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IGenConstrBuilder* builder, char const* name) override {
    return Make<Vorq::IGenConstr>(VORQ_CALL(AddGenConstrIndicator, builder, name));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar* var, int val, Vorq::IConstrBuilder* builder, int type,
                                          char const* name) override {
    return Make<Vorq::IGenConstr>(VORQ_CALL(AddGenConstrIndicator, var, val, builder, type, name));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar* var, int val, Vorq::IExpr* expr, char sense, double rhs, int type,
                                          char const* name) override {
    return Make<Vorq::IGenConstr>(VORQ_CALL(AddGenConstrIndicator, var, val, expr, sense, rhs, type, name));
  }
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar* var, int val, Vorq::IMExpression* cell, char sense, double rhs,
                                          int type, char const* name) override {
    return Make<Vorq::IGenConstr>(VORQ_CALL(AddGenConstrIndicator, var, val, cell, sense, rhs, type, name));
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray* builders, char const* prefix) override {
    return Make<Vorq::IGenConstrArray>(VORQ_CALL(AddGenConstrIndicators, builders, prefix));
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray* builders, char const* names,
                                                std::uint64_t length) override {
    return Make<Vorq::IGenConstrArray>(VORQ_CALL(AddGenConstrIndicators, builders, names, length));
  }
#define VORQ_ADD_INDICATORS(N)                                                                                        \
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IMVar<N>* binaries, int val, Vorq::IMConstrBuilder<N>* builder, \
                                                int type, char const* prefix) override {                              \
    return Make<Vorq::IGenConstrArray>(VORQ_CALL(AddGenConstrIndicators, binaries, val, builder, type, prefix));      \
  }
  VORQ_ADD_INDICATORS(0)
  VORQ_ADD_INDICATORS(1)
  VORQ_ADD_INDICATORS(2)
  VORQ_ADD_INDICATORS(3)
#undef VORQ_ADD_INDICATORS

  // Cones.
  Vorq::ICone* AddCone(int dim, int type, char const* varTypes, char const* prefix) override {
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(dim, type, varTypes, prefix));
  }
  Vorq::ICone* AddCone(Vorq::IConeBuilder* builder) override {
    return Make<Vorq::ICone>(VORQ_CALL(AddCone, builder));
  }
  Vorq::ICone* AddCone(Vorq::IVarArray* vars, int type) override {
    return Make<Vorq::ICone>(VORQ_CALL(AddCone, vars, type));
  }
  Vorq::ICone* AddCone(Vorq::IMVar<1>* vars, int type) override {
    return Make<Vorq::ICone>(VORQ_CALL(AddCone, vars, type));
  }
  Vorq::IConeArray* AddCones(Vorq::IMVar<2>* vars, int type) override {
    return Make<Vorq::IConeArray>(VORQ_CALL(AddCones, vars, type));
  }
  Vorq::IExpCone* AddExpCone(int type, char const* varTypes, char const* prefix) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(type, varTypes, prefix));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IExpConeBuilder* builder) override {
    return Make<Vorq::IExpCone>(VORQ_CALL(AddExpCone, builder));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IVarArray* vars, int type) override {
    return Make<Vorq::IExpCone>(VORQ_CALL(AddExpCone, vars, type));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IMVar<1>* vars, int type) override {
    return Make<Vorq::IExpCone>(VORQ_CALL(AddExpCone, vars, type));
  }
  Vorq::IExpConeArray* AddExpCones(Vorq::IMVar<2>* vars, int type) override {
    return Make<Vorq::IExpConeArray>(VORQ_CALL(AddExpCones, vars, type));
  }

  // Affine cones.
  Vorq::IAffineCone* AddAffineCone(Vorq::IAffineConeBuilder* builder, char const* name) override {
    return Make<Vorq::IAffineCone>(VORQ_CALL(AddAffineCone, builder, name));
  }
  Vorq::IAffineCone* AddAffineCone(Vorq::IMLinExpr<1>* exprs, int type, char const* name) override {
    return Make<Vorq::IAffineCone>(VORQ_CALL(AddAffineCone, exprs, type, name));
  }
  Vorq::IAffineCone* AddAffineCone(std::vector<Vorq::IExpr*> exprs, int type, char const* name) override {
    return AddAffineConeOfList<Vorq::MExpression>(exprs, type, name);
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMLinExpr<2>* exprs, int type, char const* prefix) override {
    return Make<Vorq::IAffineConeArray>(VORQ_CALL(AddAffineCones, exprs, type, prefix));
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMLinExpr<2>* exprs, int type, char const* names,
                                         std::uint64_t length) override {
    return Make<Vorq::IAffineConeArray>(VORQ_CALL(AddAffineCones, exprs, type, names, length));
  }
  Vorq::IAffineCone* AddAffineCone(Vorq::IMPsdExpr<1>* exprs, int type, char const* name) override {
    return Make<Vorq::IAffineCone>(VORQ_CALL(AddAffineCone, exprs, type, name));
  }
  Vorq::IAffineCone* AddAffineCone(std::vector<Vorq::IPsdExpr*> exprs, int type, char const* name) override {
    return AddAffineConeOfList<Vorq::PsdExpr>(exprs, type, name);
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMPsdExpr<2>* exprs, int type, char const* prefix) override {
    return Make<Vorq::IAffineConeArray>(VORQ_CALL(AddAffineCones, exprs, type, prefix));
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMPsdExpr<2>* exprs, int type, char const* names,
                                         std::uint64_t length) override {
    return Make<Vorq::IAffineConeArray>(VORQ_CALL(AddAffineCones, exprs, type, names, length));
  }

  // Quadratic constraints.
  Vorq::IQConstraint* AddQConstr(Vorq::IQuadExpr* expr, char sense, double rhs, char const* name) override {
    return Make<Vorq::IQConstraint>(VORQ_CALL(AddQConstr, expr, sense, rhs, name));
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IQuadExpr* lhs, char sense, Vorq::IQuadExpr* rhs, char const* name) override {
    return Make<Vorq::IQConstraint>(VORQ_CALL(AddQConstr, lhs, sense, rhs, name));
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IQConstrBuilder* builder, char const* name) override {
    return Make<Vorq::IQConstraint>(VORQ_CALL(AddQConstr, builder, name));
  }
  Vorq::IQConstraint* AddQConstr(Vorq::IMQExpression* cell, char sense, double rhs, char const* name) override {
    return Make<Vorq::IQConstraint>(VORQ_CALL(AddQConstr, cell, sense, rhs, name));
  }
#define VORQ_ADD_M_Q_CONSTR(N)                                                                                      \
  Vorq::IMQConstr<N>* AddMQConstr(Vorq::IMQConstrBuilder<N>* builder, char const* prefix) override {                \
    return Make<Vorq::IMQConstr<N>>(VORQ_CALL(AddMQConstr, builder, prefix));                                       \
  }                                                                                                                 \
  Vorq::IMQConstr<N>* AddMQConstr(Vorq::IMQuadExpr<N>* expr, char sense, double rhs, char const* prefix) override { \
    return Make<Vorq::IMQConstr<N>>(VORQ_CALL(AddMQConstr, expr, sense, rhs, prefix));                              \
  }
  VORQ_ADD_M_Q_CONSTR(0)
  VORQ_ADD_M_Q_CONSTR(1)
  VORQ_ADD_M_Q_CONSTR(2)
  VORQ_ADD_M_Q_CONSTR(3)
#undef VORQ_ADD_M_Q_CONSTR

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
    return Make<Vorq::IPsdConstraint>(VORQ_CALL(AddPsdConstr, expr, sense, rhs, name));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr* lhs, char sense, Vorq::IPsdExpr* rhs, char const* name) override {
    return Make<Vorq::IPsdConstraint>(VORQ_CALL(AddPsdConstr, lhs, sense, rhs, name));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdExpr* expr, double lower, double upper, char const* name) override {
    return Make<Vorq::IPsdConstraint>(VORQ_CALL(AddPsdConstr, expr, lower, upper, name));
  }
  Vorq::IPsdConstraint* AddPsdConstr(Vorq::IPsdConstrBuilder* builder, char const* name) override {
    return Make<Vorq::IPsdConstraint>(VORQ_CALL(AddPsdConstr, builder, name));
  }
#define VORQ_ADD_M_PSD_CONSTR(N)                                                                                       \
  Vorq::IMPsdConstr<N>* AddMPsdConstr(Vorq::IMPsdConstrBuilder<N>* builder, char const* prefix) override {             \
    return Make<Vorq::IMPsdConstr<N>>(VORQ_CALL(AddMPsdConstr, builder, prefix));                                      \
  }                                                                                                                    \
  Vorq::IMPsdConstr<N>* AddMPsdConstr(Vorq::IMPsdExpr<N>* expr, char sense, double rhs, char const* prefix) override { \
    return Make<Vorq::IMPsdConstr<N>>(VORQ_CALL(AddMPsdConstr, expr, sense, rhs, prefix));                             \
  }
  VORQ_ADD_M_PSD_CONSTR(0)
  VORQ_ADD_M_PSD_CONSTR(1)
  VORQ_ADD_M_PSD_CONSTR(2)
  VORQ_ADD_M_PSD_CONSTR(3)
#undef VORQ_ADD_M_PSD_CONSTR
  Vorq::ILmiConstraint* AddLmiConstr(Vorq::ILmiExpr* expr, char const* name) override {
    return Make<Vorq::ILmiConstraint>(VORQ_CALL(AddLmiConstr, expr, name));
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
  Vorq::ISymMatrix* AddOnesMat(int dim) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDenseMat(dim, 1.0));
  }
  Vorq::ISymMatrix* AddEyeMat(int dim) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, 1.0));
  }
  Vorq::ISymMatrix* AddSymMat(Vorq::ISymMatExpr* expr) override {
    return Make<Vorq::ISymMatrix>(VORQ_CALL(AddSymMat, expr));
  }
  Vorq::ISymMatrix* GetSymMat(int index) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().Get<Vorq::SymMatrix>(index));
  }

 private:
  template <class Cell, class IExpression>
  Vorq::IAffineCone* AddAffineConeOfList(std::vector<IExpression*> const& exprs, int type, char const* name) {
    if (Vorq::HasNull(exprs)) {
      SetStatus(Impl().status, Vorq::kInvalid, "Argument 'exprs' of AddAffineCone holds a null");
      return Vorq::Wrap<Vorq::IAffineCone>();
    }
    auto rows = Vorq::CopiesOf<Cell>(exprs);
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().AddAffineCone(rows, type, name));
  }
};
