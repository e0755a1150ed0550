// Operations of the model's handle that add constraints that are not linear, semidefinite variables and symmetric
// matrices.
#pragma once

#include "handles/affine_cone_builders.hpp"
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
  Vorq::IGenConstr* AddGenConstrIndicator(Vorq::IVar* var, int val, Vorq::IMExpression* cell, char sense, double rhs,
                                          int type, char const* name) override {
    if (!Given("AddGenConstrIndicator", var, cell)) {
      return Vorq::Wrap<Vorq::IGenConstr>(Impl().Invalid<Vorq::GenConstr>());
    }
    return Vorq::Wrap<Vorq::IGenConstr>(
        Impl().AddGenConstrIndicator(Vorq::Unwrap(var), val, Vorq::Unwrap(cell), sense, rhs, type, name));
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray* builders, char const* prefix) override {
    return Vorq::Wrap<Vorq::IGenConstrArray>(Impl().AddGenConstrIndicators(Vorq::Unwrap(builders), prefix));
  }
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IGenConstrBuilderArray* builders, char const* names,
                                                std::uint64_t length) override {
    return Vorq::Wrap<Vorq::IGenConstrArray>(Impl().AddGenConstrIndicators(Vorq::Unwrap(builders), names, length));
  }
#define VORQ_ADD_INDICATORS(N)                                                                                        \
  Vorq::IGenConstrArray* AddGenConstrIndicators(Vorq::IMVar<N>* binaries, int val, Vorq::IMConstrBuilder<N>* builder, \
                                                int type, char const* prefix) override {                              \
    if (!Given("AddGenConstrIndicators", binaries, builder)) return Vorq::Wrap<Vorq::IGenConstrArray>();              \
    return Vorq::Wrap<Vorq::IGenConstrArray>(                                                                         \
        Impl().AddGenConstrIndicators(Vorq::Unwrap(binaries), val, Vorq::Unwrap(builder), type, prefix));             \
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
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(Vorq::Unwrap(builder)));
  }
  Vorq::ICone* AddCone(Vorq::IVarArray* vars, int type) override {
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(Vorq::Unwrap(vars), type));
  }
  Vorq::ICone* AddCone(Vorq::IMVar<1>* vars, int type) override {
    if (!Given("AddCone", vars)) return Vorq::Wrap<Vorq::ICone>(Impl().Invalid<Vorq::Cone>());
    return Vorq::Wrap<Vorq::ICone>(Impl().AddCone(Vorq::Unwrap(vars), type));
  }
  Vorq::IConeArray* AddCones(Vorq::IMVar<2>* vars, int type) override {
    if (!Given("AddCones", vars)) return Vorq::Wrap<Vorq::IConeArray>();
    return Vorq::Wrap<Vorq::IConeArray>(Impl().AddCones(Vorq::Unwrap(vars), type));
  }
  Vorq::IExpCone* AddExpCone(int type, char const* varTypes, char const* prefix) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(type, varTypes, prefix));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IExpConeBuilder* builder) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(Vorq::Unwrap(builder)));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IVarArray* vars, int type) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(Vorq::Unwrap(vars), type));
  }
  Vorq::IExpCone* AddExpCone(Vorq::IMVar<1>* vars, int type) override {
    if (!Given("AddExpCone", vars)) return Vorq::Wrap<Vorq::IExpCone>(Impl().Invalid<Vorq::ExpCone>());
    return Vorq::Wrap<Vorq::IExpCone>(Impl().AddExpCone(Vorq::Unwrap(vars), type));
  }
  Vorq::IExpConeArray* AddExpCones(Vorq::IMVar<2>* vars, int type) override {
    if (!Given("AddExpCones", vars)) return Vorq::Wrap<Vorq::IExpConeArray>();
    return Vorq::Wrap<Vorq::IExpConeArray>(Impl().AddExpCones(Vorq::Unwrap(vars), type));
  }

  // Affine cones.
  Vorq::IAffineCone* AddAffineCone(Vorq::IAffineConeBuilder* builder, char const* name) override {
    if (!Given("AddAffineCone", builder)) return NoAffineCone();
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().AddAffineCone(Vorq::Unwrap(builder), name));
  }
  Vorq::IAffineCone* AddAffineCone(Vorq::IMLinExpr<1>* exprs, int type, char const* name) override {
    return AddAffineConeOf(exprs, type, name);
  }
  Vorq::IAffineCone* AddAffineCone(std::vector<Vorq::IExpr*> exprs, int type, char const* name) override {
    return AddAffineConeOfList<Vorq::MExpression>(exprs, type, name);
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMLinExpr<2>* exprs, int type, char const* prefix) override {
    return AddAffineConesOf(exprs, type, prefix);
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMLinExpr<2>* exprs, int type, char const* names,
                                         std::uint64_t length) override {
    return AddAffineConesOf(exprs, type, names, length);
  }
  Vorq::IAffineCone* AddAffineCone(Vorq::IMPsdExpr<1>* exprs, int type, char const* name) override {
    return AddAffineConeOf(exprs, type, name);
  }
  Vorq::IAffineCone* AddAffineCone(std::vector<Vorq::IPsdExpr*> exprs, int type, char const* name) override {
    return AddAffineConeOfList<Vorq::PsdExpr>(exprs, type, name);
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMPsdExpr<2>* exprs, int type, char const* prefix) override {
    return AddAffineConesOf(exprs, type, prefix);
  }
  Vorq::IAffineConeArray* AddAffineCones(Vorq::IMPsdExpr<2>* exprs, int type, char const* names,
                                         std::uint64_t length) override {
    return AddAffineConesOf(exprs, type, names, length);
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
  Vorq::IQConstraint* AddQConstr(Vorq::IMQExpression* cell, char sense, double rhs, char const* name) override {
    if (!Given("AddQConstr", cell)) return Vorq::Wrap<Vorq::IQConstraint>(Impl().Invalid<Vorq::QConstraint>());
    return Vorq::Wrap<Vorq::IQConstraint>(Impl().AddQConstr(Vorq::Unwrap(cell), sense, rhs, name));
  }
#define VORQ_ADD_M_Q_CONSTR(N)                                                                                      \
  Vorq::IMQConstr<N>* AddMQConstr(Vorq::IMQConstrBuilder<N>* builder, char const* prefix) override {                \
    if (!Given("AddMQConstr", builder)) return Vorq::WrapBlock(Vorq::MQConstr<N>());                                \
    return Vorq::WrapBlock(Impl().AddMQConstr(Vorq::Unwrap(builder), prefix));                                      \
  }                                                                                                                 \
  Vorq::IMQConstr<N>* AddMQConstr(Vorq::IMQuadExpr<N>* expr, char sense, double rhs, char const* prefix) override { \
    if (!Given("AddMQConstr", expr)) return Vorq::WrapBlock(Vorq::MQConstr<N>());                                   \
    return Vorq::WrapBlock(Impl().AddMQConstr(Vorq::Unwrap(expr), sense, rhs, prefix));                             \
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
#define VORQ_ADD_M_PSD_CONSTR(N)                                                                                       \
  Vorq::IMPsdConstr<N>* AddMPsdConstr(Vorq::IMPsdConstrBuilder<N>* builder, char const* prefix) override {             \
    if (!Given("AddMPsdConstr", builder)) return Vorq::WrapBlock(Vorq::MPsdConstr<N>());                               \
    return Vorq::WrapBlock(Impl().AddMPsdConstr(Vorq::Unwrap(builder), prefix));                                       \
  }                                                                                                                    \
  Vorq::IMPsdConstr<N>* AddMPsdConstr(Vorq::IMPsdExpr<N>* expr, char sense, double rhs, char const* prefix) override { \
    if (!Given("AddMPsdConstr", expr)) return Vorq::WrapBlock(Vorq::MPsdConstr<N>());                                  \
    return Vorq::WrapBlock(Impl().AddMPsdConstr(Vorq::Unwrap(expr), sense, rhs, prefix));                              \
  }
  VORQ_ADD_M_PSD_CONSTR(0)
  VORQ_ADD_M_PSD_CONSTR(1)
  VORQ_ADD_M_PSD_CONSTR(2)
  VORQ_ADD_M_PSD_CONSTR(3)
#undef VORQ_ADD_M_PSD_CONSTR
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
  Vorq::ISymMatrix* AddOnesMat(int dim) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDenseMat(dim, 1.0));
  }
  Vorq::ISymMatrix* AddEyeMat(int dim) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddDiagMat(dim, 1.0));
  }
  Vorq::ISymMatrix* AddSymMat(Vorq::ISymMatExpr* expr) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().AddSymMat(Vorq::Unwrap(expr)));
  }
  Vorq::ISymMatrix* GetSymMat(int index) override {
    return Vorq::Wrap<Vorq::ISymMatrix>(Impl().Get<Vorq::SymMatrix>(index));
  }

 private:
  Vorq::IAffineCone* NoAffineCone() {
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().Invalid<Vorq::AffineCone>());
  }

  template <class IBlock>
  Vorq::IAffineCone* AddAffineConeOf(IBlock* exprs, int type, char const* name) {
    if (!Given("AddAffineCone", exprs)) return NoAffineCone();
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().AddAffineCone(Vorq::Unwrap(exprs), type, name));
  }
  template <class Cell, class IExpression>
  Vorq::IAffineCone* AddAffineConeOfList(std::vector<IExpression*> const& exprs, int type, char const* name) {
    for (IExpression const* expr : exprs) {
      if (!Given("AddAffineCone", expr)) return NoAffineCone();
    }
    auto rows = Vorq::CopiesOf<Cell>(exprs);
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().AddAffineCone(rows, type, name));
  }
  template <class IBlock, class... Names>
  Vorq::IAffineConeArray* AddAffineConesOf(IBlock* exprs, int type, Names... names) {
    if (!Given("AddAffineCones", exprs)) return Vorq::Wrap<Vorq::IAffineConeArray>();
    return Vorq::Wrap<Vorq::IAffineConeArray>(Impl().AddAffineCones(Vorq::Unwrap(exprs), type, names...));
  }
};
