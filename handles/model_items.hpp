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
    Impl().SetNames(Vorq::Unwrap(vars), names, length);
  }
  Vorq::IColumn* GetCol(Vorq::IVar* var) override {
    return Vorq::Wrap<Vorq::IColumn>(Impl().GetCol(Vorq::Unwrap(var)));
  }
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
    Impl().SetNames(Vorq::Unwrap(constrs), names, length);
  }
  Vorq::IConstrBuilderArray* GetConstrBuilders() override {
    return Vorq::Wrap<Vorq::IConstrBuilderArray>(Impl().GetConstrBuilders());
  }
  Vorq::IConstrBuilder* GetConstrBuilder(Vorq::IConstraint* constr) override {
    return Vorq::Wrap<Vorq::IConstrBuilder>(Impl().GetConstrBuilder(Vorq::Unwrap(constr)));
  }
  Vorq::IExpr* GetRow(Vorq::IConstraint* constr) override {
    return Vorq::Wrap<Vorq::IExpr>(Impl().GetRow(Vorq::Unwrap(constr)));
  }
  Vorq::ISos* GetSos(int index) override { return Vorq::Wrap<Vorq::ISos>(Impl().Get<Vorq::Sos>(index)); }
  Vorq::ISosArray* GetSoss() override { return Vorq::Wrap<Vorq::ISosArray>(Impl().Collect<Vorq::Sos>()); }
  Vorq::ISosBuilderArray* GetSosBuilders() override { return NotImplemented("GetSosBuilders"); }
  Vorq::ISosBuilderArray* GetSosBuilders(Vorq::ISosArray*) override { return NotImplemented("GetSosBuilders"); }
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
    Impl().SetNames(Vorq::Unwrap(constrs), names, length);
  }
  Vorq::IGenConstrBuilderArray* GetGenConstrBuilders() override { return NotImplemented("GetGenConstrBuilders"); }
  Vorq::IGenConstrBuilder* GetGenConstrBuilder(Vorq::IGenConstr*) override {
    return NotImplemented("GetGenConstrBuilder");
  }
  Vorq::ICone* GetCone(int index) override { return Vorq::Wrap<Vorq::ICone>(Impl().Get<Vorq::Cone>(index)); }
  Vorq::IConeArray* GetCones() override { return Vorq::Wrap<Vorq::IConeArray>(Impl().Collect<Vorq::Cone>()); }
  Vorq::IConeBuilderArray* GetConeBuilders() override { return NotImplemented("GetConeBuilders"); }
  Vorq::IConeBuilderArray* GetConeBuilders(Vorq::IConeArray*) override { return NotImplemented("GetConeBuilders"); }
  Vorq::IExpCone* GetExpCone(int index) override {
    return Vorq::Wrap<Vorq::IExpCone>(Impl().Get<Vorq::ExpCone>(index));
  }
  Vorq::IExpConeArray* GetExpCones() override {
    return Vorq::Wrap<Vorq::IExpConeArray>(Impl().Collect<Vorq::ExpCone>());
  }
  Vorq::IExpConeBuilderArray* GetExpConeBuilders() override { return NotImplemented("GetExpConeBuilders"); }
  Vorq::IExpConeBuilderArray* GetExpConeBuilders(Vorq::IExpConeArray*) override {
    return NotImplemented("GetExpConeBuilders");
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
    Impl().SetNames(Vorq::Unwrap(cones), names, length);
  }
  Vorq::IAffineConeBuilder* GetAffineConeBuilder(Vorq::IAffineCone*) override {
    return NotImplemented("GetAffineConeBuilder");
  }
  Vorq::IAffineConeBuilderArray* GetAffineConeBuilders() override { return NotImplemented("GetAffineConeBuilders"); }
  Vorq::IAffineConeBuilderArray* GetAffineConeBuilders(Vorq::IAffineConeArray*) override {
    return NotImplemented("GetAffineConeBuilders");
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
    Impl().SetNames(Vorq::Unwrap(constrs), names, length);
  }
  Vorq::IQConstrBuilderArray* GetQConstrBuilders() override { return NotImplemented("GetQConstrBuilders"); }
  Vorq::IQConstrBuilder* GetQConstrBuilder(Vorq::IQConstraint*) override { return NotImplemented("GetQConstrBuilder"); }
  Vorq::IQuadExpr* GetQuadRow(Vorq::IQConstraint*) override { return NotImplemented("GetQuadRow"); }
  Vorq::IPsdVar* GetPsdVar(int index) override { return Vorq::Wrap<Vorq::IPsdVar>(Impl().Get<Vorq::PsdVar>(index)); }
  Vorq::IPsdVar* GetPsdVarByName(char const* name) override {
    return Vorq::Wrap<Vorq::IPsdVar>(Impl().GetByName<Vorq::PsdVar>(name));
  }
  Vorq::IPsdVarArray* GetPsdVars() override { return Vorq::Wrap<Vorq::IPsdVarArray>(Impl().Collect<Vorq::PsdVar>()); }
  void SetNames(Vorq::IPsdVarArray* vars, char const* names, std::uint64_t length) override {
    Impl().SetNames(Vorq::Unwrap(vars), names, length);
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
    Impl().SetNames(Vorq::Unwrap(constrs), names, length);
  }
  Vorq::IPsdConstrBuilder* GetPsdConstrBuilder(Vorq::IPsdConstraint*) override {
    return NotImplemented("GetPsdConstrBuilder");
  }
  Vorq::IPsdConstrBuilderArray* GetPsdConstrBuilders() override { return NotImplemented("GetPsdConstrBuilders"); }
  Vorq::IPsdExpr* GetPsdRow(Vorq::IPsdConstraint*) override { return NotImplemented("GetPsdRow"); }
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
    Impl().SetNames(Vorq::Unwrap(constrs), names, length);
  }
  Vorq::ILmiExpr* GetLmiRow(Vorq::ILmiConstraint*) override { return NotImplemented("GetLmiRow"); }

  // Coefficients and bulk loads.
  double GetCoeff(Vorq::IConstraint* constr, Vorq::IVar* var) override {
    return Impl().GetCoeff(Vorq::Unwrap(constr), Vorq::Unwrap(var));
  }
  void SetCoeff(Vorq::IConstraint* constr, Vorq::IVar* var, double value) override {
    Impl().SetCoeff(Vorq::Unwrap(constr), Vorq::Unwrap(var), value);
  }
  void SetCoeffs(Vorq::IConstrArray* constrs, Vorq::IVarArray* vars, double const* values, int len) override {
    Impl().SetCoeffs(Vorq::Unwrap(constrs), Vorq::Unwrap(vars), values, len);
  }
  Vorq::ISymMatrix* GetPsdCoeff(Vorq::IPsdConstraint*, Vorq::IPsdVar*) override {
    return NotImplemented("GetPsdCoeff");
  }
  void SetPsdCoeff(Vorq::IPsdConstraint*, Vorq::IPsdVar*, Vorq::ISymMatrix*) override { NotImplemented("SetPsdCoeff"); }
  Vorq::ISymMatrix* GetLmiCoeff(Vorq::ILmiConstraint*, Vorq::IVar*) override { return NotImplemented("GetLmiCoeff"); }
  void SetLmiCoeff(Vorq::ILmiConstraint*, Vorq::IVar*, Vorq::ISymMatrix*) override { NotImplemented("SetLmiCoeff"); }
  Vorq::ISymMatrix* GetLmiRhs(Vorq::ILmiConstraint*) override { return NotImplemented("GetLmiRhs"); }
  void SetLmiRhs(Vorq::ILmiConstraint*, Vorq::ISymMatrix*) override { NotImplemented("SetLmiRhs"); }
  void GetCols(int* begin, int* count, int* index, double* value) override {
    Impl().GetCols(begin, count, index, value);
  }
  void LoadMatrix(int nCols, int nRows, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                  double const* coefs, double const* lowers, double const* uppers, double const* lbs, double const* ubs,
                  char const* types) override {
    Impl().LoadMatrix(nCols, nRows, objs, colBeg, colCnt, rows, coefs, lowers, uppers, lbs, ubs, types);
  }
  void LoadQ(int, int const*, int const*, double const*) override { NotImplemented("LoadQ"); }
  void LoadCone(int, int const*, int const*, int const*) override { NotImplemented("LoadCone"); }
  void LoadExpCone(int, int const*, int const*) override { NotImplemented("LoadExpCone"); }
  void LoadConeMatrix(int, int, int, int, int, int, int, int, int const*, int const*, int const*, int const*,
                      double const*, double const*, int const*, int const*, int const*, double const*, char const*,
                      double const*, double const*, double const*, double const*, int const*, int const*, double const*,
                      int const*, int const*, int const*, int const*, int const*, int const*, int const*) override {
    NotImplemented("LoadConeMatrix");
  }
};
