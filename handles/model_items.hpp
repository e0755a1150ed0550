// Operations of the model's handle that find items and read the problem back.
#pragma once

#include "handles/model_special_constraints.hpp"

class VorqModelItems : public VorqModelSpecialConstraints {
 public:
  using VorqModelSpecialConstraints::VorqModelSpecialConstraints;

  // Items by index and name, and reading them back.
  Vorq::IVar* GetVar(int index) override { return Vorq::Wrap<Vorq::IVar>(Impl().Get<Vorq::Var>(index)); }
  Vorq::IVar* GetVarByName(char const* name) override {
    return Vorq::Wrap<Vorq::IVar>(Impl().GetByName<Vorq::Var>(name));
  }
  Vorq::IVarArray* GetVars() override { return Vorq::Wrap<Vorq::IVarArray>(Impl().Collect<Vorq::Var>()); }
  void SetNames(Vorq::IVarArray* vars, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, vars, names, length));
  }
  Vorq::IColumn* GetCol(Vorq::IVar* var) override { return Make<Vorq::IColumn>(VORQ_CALL(GetCol, var)); }
  Vorq::IConstraint* GetConstr(int index) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().Get<Vorq::Constraint>(index));
  }
  Vorq::IConstraint* GetConstrByName(char const* name) override {
    return Vorq::Wrap<Vorq::IConstraint>(Impl().GetByName<Vorq::Constraint>(name));
  }
  Vorq::IConstrArray* GetConstrs() override {
    return Vorq::Wrap<Vorq::IConstrArray>(Impl().Collect<Vorq::Constraint>());
  }
  void SetNames(Vorq::IConstrArray* constrs, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, constrs, names, length));
  }
  Vorq::IConstrBuilderArray* GetConstrBuilders() override {
    return Vorq::Wrap<Vorq::IConstrBuilderArray>(Impl().GetConstrBuilders());
  }
  Vorq::IConstrBuilder* GetConstrBuilder(Vorq::IConstraint* constr) override {
    return Make<Vorq::IConstrBuilder>(VORQ_CALL(GetConstrBuilder, constr));
  }
  Vorq::IExpr* GetRow(Vorq::IConstraint* constr) override { return Make<Vorq::IExpr>(VORQ_CALL(GetRow, constr)); }
  Vorq::ISos* GetSos(int index) override { return Vorq::Wrap<Vorq::ISos>(Impl().Get<Vorq::Sos>(index)); }
  Vorq::ISosArray* GetSoss() override { return Vorq::Wrap<Vorq::ISosArray>(Impl().Collect<Vorq::Sos>()); }
  Vorq::ISosBuilderArray* GetSosBuilders() override {
    return Vorq::Wrap<Vorq::ISosBuilderArray>(Impl().GetSosBuilders({}));
  }
  Vorq::ISosBuilderArray* GetSosBuilders(Vorq::ISosArray* soss) override {
    return Make<Vorq::ISosBuilderArray>(VORQ_CALL(GetSosBuilders, soss));
  }
  Vorq::IGenConstr* GetGenConstr(int index) override {
    return Vorq::Wrap<Vorq::IGenConstr>(Impl().Get<Vorq::GenConstr>(index));
  }
  Vorq::IGenConstr* GetGenConstrByName(char const* name) override {
    return Vorq::Wrap<Vorq::IGenConstr>(Impl().GetByName<Vorq::GenConstr>(name));
  }
  Vorq::IGenConstrArray* GetGenConstrs() override {
    return Vorq::Wrap<Vorq::IGenConstrArray>(Impl().Collect<Vorq::GenConstr>());
  }
  void SetNames(Vorq::IGenConstrArray* constrs, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, constrs, names, length));
  }
  Vorq::IGenConstrBuilderArray* GetGenConstrBuilders() override {
    return Vorq::Wrap<Vorq::IGenConstrBuilderArray>(Impl().GetGenConstrBuilders());
  }
  Vorq::IGenConstrBuilder* GetGenConstrBuilder(Vorq::IGenConstr* constr) override {
    return Make<Vorq::IGenConstrBuilder>(VORQ_CALL(GetGenConstrBuilder, constr));
  }
  Vorq::ICone* GetCone(int index) override { return Vorq::Wrap<Vorq::ICone>(Impl().Get<Vorq::Cone>(index)); }
  Vorq::IConeArray* GetCones() override { return Vorq::Wrap<Vorq::IConeArray>(Impl().Collect<Vorq::Cone>()); }
  Vorq::IConeBuilderArray* GetConeBuilders() override {
    return Vorq::Wrap<Vorq::IConeBuilderArray>(Impl().GetConeBuilders({}));
  }
  Vorq::IConeBuilderArray* GetConeBuilders(Vorq::IConeArray* cones) override {
    return Make<Vorq::IConeBuilderArray>(VORQ_CALL(GetConeBuilders, cones));
  }
  Vorq::IExpCone* GetExpCone(int index) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().Get<Vorq::ExpCone>(index));
  }
  Vorq::IExpConeArray* GetExpCones() override {
    return Vorq::Wrap<Vorq::IExpConeArray>(Impl().Collect<Vorq::ExpCone>());
  }
  Vorq::IExpConeBuilderArray* GetExpConeBuilders() override {
    return Vorq::Wrap<Vorq::IExpConeBuilderArray>(Impl().GetExpConeBuilders({}));
  }
  Vorq::IExpConeBuilderArray* GetExpConeBuilders(Vorq::IExpConeArray* cones) override {
    return Make<Vorq::IExpConeBuilderArray>(VORQ_CALL(GetExpConeBuilders, cones));
  }
  Vorq::IAffineCone* GetAffineCone(int index) override {
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().Get<Vorq::AffineCone>(index));
  }
  Vorq::IAffineCone* GetAffineConeByName(char const* name) override {
    return Vorq::Wrap<Vorq::IAffineCone>(Impl().GetByName<Vorq::AffineCone>(name));
  }
  Vorq::IAffineConeArray* GetAffineCones() override {
    return Vorq::Wrap<Vorq::IAffineConeArray>(Impl().Collect<Vorq::AffineCone>());
  }
  void SetNames(Vorq::IAffineConeArray* cones, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, cones, names, length));
  }
  Vorq::IAffineConeBuilder* GetAffineConeBuilder(Vorq::IAffineCone* cone) override {
    return Make<Vorq::IAffineConeBuilder>(VORQ_CALL(GetAffineConeBuilder, cone));
  }
  Vorq::IAffineConeBuilderArray* GetAffineConeBuilders() override {
    return Vorq::Wrap<Vorq::IAffineConeBuilderArray>(Impl().GetAffineConeBuilders({}));
  }
  Vorq::IAffineConeBuilderArray* GetAffineConeBuilders(Vorq::IAffineConeArray* cones) override {
    return Make<Vorq::IAffineConeBuilderArray>(VORQ_CALL(GetAffineConeBuilders, cones));
  }
  Vorq::IQConstraint* GetQConstr(int index) override {
    return Vorq::Wrap<Vorq::IQConstraint>(Impl().Get<Vorq::QConstraint>(index));
  }
  Vorq::IQConstraint* GetQConstrByName(char const* name) override {
    return Vorq::Wrap<Vorq::IQConstraint>(Impl().GetByName<Vorq::QConstraint>(name));
  }
  Vorq::IQConstrArray* GetQConstrs() override {
    return Vorq::Wrap<Vorq::IQConstrArray>(Impl().Collect<Vorq::QConstraint>());
  }
  void SetNames(Vorq::IQConstrArray* constrs, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, constrs, names, length));
  }
  Vorq::IQConstrBuilderArray* GetQConstrBuilders() override {
    return Vorq::Wrap<Vorq::IQConstrBuilderArray>(Impl().GetQConstrBuilders());
  }
  Vorq::IQConstrBuilder* GetQConstrBuilder(Vorq::IQConstraint* constr) override {
    return Make<Vorq::IQConstrBuilder>(VORQ_CALL(GetQConstrBuilder, constr));
  }
  Vorq::IQuadExpr* GetQuadRow(Vorq::IQConstraint* constr) override {
    return Make<Vorq::IQuadExpr>(VORQ_CALL(GetQuadRow, constr));
  }
  Vorq::IPsdVar* GetPsdVar(int index) override { return Vorq::Wrap<Vorq::IPsdVar>(Impl().Get<Vorq::PsdVar>(index)); }
  Vorq::IPsdVar* GetPsdVarByName(char const* name) override {
    return Vorq::Wrap<Vorq::IPsdVar>(Impl().GetByName<Vorq::PsdVar>(name));
  }
  Vorq::IPsdVarArray* GetPsdVars() override { return Vorq::Wrap<Vorq::IPsdVarArray>(Impl().Collect<Vorq::PsdVar>()); }
  void SetNames(Vorq::IPsdVarArray* vars, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, vars, names, length));
  }
  Vorq::IPsdConstraint* GetPsdConstr(int index) override {
    return Vorq::Wrap<Vorq::IPsdConstraint>(Impl().Get<Vorq::PsdConstraint>(index));
  }
  Vorq::IPsdConstraint* GetPsdConstrByName(char const* name) override {
    return Vorq::Wrap<Vorq::IPsdConstraint>(Impl().GetByName<Vorq::PsdConstraint>(name));
  }
  Vorq::IPsdConstrArray* GetPsdConstrs() override {
    return Vorq::Wrap<Vorq::IPsdConstrArray>(Impl().Collect<Vorq::PsdConstraint>());
  }
  void SetNames(Vorq::IPsdConstrArray* constrs, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, constrs, names, length));
  }
  Vorq::IPsdConstrBuilder* GetPsdConstrBuilder(Vorq::IPsdConstraint* constr) override {
    return Make<Vorq::IPsdConstrBuilder>(VORQ_CALL(GetPsdConstrBuilder, constr));
  }
  Vorq::IPsdConstrBuilderArray* GetPsdConstrBuilders() override {
    return Vorq::Wrap<Vorq::IPsdConstrBuilderArray>(Impl().GetPsdConstrBuilders());
  }
  Vorq::IPsdExpr* GetPsdRow(Vorq::IPsdConstraint* constr) override {
    return Make<Vorq::IPsdExpr>(VORQ_CALL(GetPsdRow, constr));
  }
  Vorq::ILmiConstraint* GetLmiConstr(int index) override {
    return Vorq::Wrap<Vorq::ILmiConstraint>(Impl().Get<Vorq::LmiConstraint>(index));
  }
  Vorq::ILmiConstraint* GetLmiConstrByName(char const* name) override {
    return Vorq::Wrap<Vorq::ILmiConstraint>(Impl().GetByName<Vorq::LmiConstraint>(name));
  }
  Vorq::ILmiConstrArray* GetLmiConstrs() override {
    return Vorq::Wrap<Vorq::ILmiConstrArray>(Impl().Collect<Vorq::LmiConstraint>());
  }
  void SetNames(Vorq::ILmiConstrArray* constrs, char const* names, std::uint64_t length) override {
    Do(VORQ_CALL(SetNames, constrs, names, length));
  }
  Vorq::ILmiExpr* GetLmiRow(Vorq::ILmiConstraint* constr) override {
    return Make<Vorq::ILmiExpr>(VORQ_CALL(GetLmiRow, constr));
  }

  // Coefficients and bulk loads.
  double GetCoeff(Vorq::IConstraint* constr, Vorq::IVar* var) override {
    return Ask(0.0, VORQ_CALL(GetCoeff, constr, var));
  }
  void SetCoeff(Vorq::IConstraint* constr, Vorq::IVar* var, double value) override {
    Do(VORQ_CALL(SetCoeff, constr, var, value));
  }
  void SetCoeffs(Vorq::IConstrArray* constrs, Vorq::IVarArray* vars, double const* values, int len) override {
    Do(VORQ_CALL(SetCoeffs, constrs, vars, values, len));
  }
  Vorq::ISymMatrix* GetPsdCoeff(Vorq::IPsdConstraint* constr, Vorq::IPsdVar* var) override {
    return Make<Vorq::ISymMatrix>(VORQ_CALL(GetPsdCoeff, constr, var));
  }
  void SetPsdCoeff(Vorq::IPsdConstraint* constr, Vorq::IPsdVar* var, Vorq::ISymMatrix* mat) override {
    Do(VORQ_CALL(SetPsdCoeff, constr, var, mat));
  }
  Vorq::ISymMatrix* GetLmiCoeff(Vorq::ILmiConstraint* constr, Vorq::IVar* var) override {
    return Make<Vorq::ISymMatrix>(VORQ_CALL(GetLmiCoeff, constr, var));
  }
  void SetLmiCoeff(Vorq::ILmiConstraint* constr, Vorq::IVar* var, Vorq::ISymMatrix* mat) override {
    Do(VORQ_CALL(SetLmiCoeff, constr, var, mat));
  }
  Vorq::ISymMatrix* GetLmiRhs(Vorq::ILmiConstraint* constr) override {
    return Make<Vorq::ISymMatrix>(VORQ_CALL(GetLmiRhs, constr));
  }
  void SetLmiRhs(Vorq::ILmiConstraint* constr, Vorq::ISymMatrix* mat) override {
    Do(VORQ_CALL(SetLmiRhs, constr, mat));
  }
  void GetCols(int* begin, int* count, int* index, double* value) override {
    Impl().GetCols(begin, count, index, value);
  }
  void LoadMatrix(int nCols, int nRows, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                  double const* coefs, double const* lowers, double const* uppers, double const* lbs, double const* ubs,
                  char const* types) override {
    Impl().LoadMatrix(nCols, nRows, objs, colBeg, colCnt, rows, coefs, lowers, uppers, lbs, ubs, types);
  }
  void LoadQ(int n, int const* rows, int const* cols, double const* values) override {
    Impl().LoadQ(n, rows, cols, values);
  }
  void LoadCone(int n, int const* types, int const* dims, int const* indices) override {
    Impl().LoadCone(n, types, dims, indices);
  }
  void LoadExpCone(int n, int const* types, int const* indices) override { Impl().LoadExpCone(n, types, indices); }
  void LoadConeMatrix(int nCols, int nRows, int nCones, int nExpCones, int nPsdCols, int nSymMats, int nSymElems,
                      int nQuad, int const* symDims, int const* symBeg, int const* symRows, int const* symCols,
                      double const* symVals, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                      double const* coefs, char const* types, double const* lbs, double const* ubs,
                      double const* lowers, double const* uppers, int const* quadRows, int const* quadCols,
                      double const* quadVals, int const* coneTypes, int const* coneDims, int const* coneCols,
                      int const* expConeTypes, int const* expConeCols, int const* psdDims,
                      int const* psdObjMats) override {
    Impl().LoadConeMatrix({.nCols = nCols,
                           .nRows = nRows,
                           .nCones = nCones,
                           .nExpCones = nExpCones,
                           .nPsdCols = nPsdCols,
                           .nSymMats = nSymMats,
                           .nSymElems = nSymElems,
                           .nQuad = nQuad,
                           .symDims = symDims,
                           .symBeg = symBeg,
                           .symRows = symRows,
                           .symCols = symCols,
                           .symVals = symVals,
                           .objs = objs,
                           .colBeg = colBeg,
                           .colCnt = colCnt,
                           .rows = rows,
                           .coefs = coefs,
                           .types = types,
                           .lbs = lbs,
                           .ubs = ubs,
                           .lowers = lowers,
                           .uppers = uppers,
                           .quadRows = quadRows,
                           .quadCols = quadCols,
                           .quadVals = quadVals,
                           .coneTypes = coneTypes,
                           .coneDims = coneDims,
                           .coneCols = coneCols,
                           .expConeTypes = expConeTypes,
                           .expConeCols = expConeCols,
                           .psdDims = psdDims,
                           .psdObjMats = psdObjMats});
  }
};
