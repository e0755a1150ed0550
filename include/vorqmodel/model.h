// The model: building, solving and reading back one problem.
//
//     Vorq::IModel* model = envr->CreateModel("diet");
//     Vorq::IVar* x = model->AddVar(0.0, 1e30, 1.5, 'C', "bread");
//     Vorq::IExpr* expr = CreateLinExpr(x, 2.0);
//     Vorq::IConstraint* energy = model->AddConstr(expr, 'G', 4.0, "energy");
//     model->SetObjSense(1);
//     model->Solve();
//     if (model->GetLastError() == 0) { ... x->Get("Value") ... }
//     ... delete each object ...
//
// Failures are recorded in the model, not thrown: look at GetLastError after each operation. Codes are those of the
// solver library (1 memory, 2 file, 3 invalid argument, 5 internal, 6 thread, 7 server, 8 non-convex, others as it
// says); where a comment names no code, a failure is one of the solver library's. A success clears the code and keeps
// the last text. A failed operation returns an item of index -2, an empty array or expression, -2147483648 for a
// number, or nothing.
//
// Every object that an operation returns belongs to the caller, who deletes it. Arguments are read and never kept or
// owned, except for log sinks and callbacks, which the caller keeps alive. Interface pointers must come from this
// library; one that is null is code 3, and nothing is changed. Expressions, columns and builders that are given lose
// duplicate, zero and removed terms.
//
// Names are trimmed, and blanks within become '_'; a null name is empty. A prefix names a batch prefix_i, i being the
// position of the item. A names buffer holds zero-terminated names behind each other in `length` bytes, which are taken
// as they are; one that is too short is refused with code 3, surplus names are ignored.
//
// Types of variables: 'C' continuous, 'B' binary, 'I' integer. Senses of constraints: 'E' equal, 'G' at least, 'L' at
// most, 'N' free, 'R' range. Infinity is 1e30 and -1e30.
#ifndef VORQMODEL_MODEL_H
#define VORQMODEL_MODEL_H

#include <cstdint>
#include <vector>

#include "vorqmodel/forward.h"

namespace Vorq {

class IModel {
 public:
  virtual ~IModel() = default;

  // ---- Files, by extension or by format.

  // By the ending: .mps, .lp, .bin, .dat-s, .cbf (all also with .gz), .sol, .bas, .mst, .par, .tune. Another ending
  // is code 3. A leading ~ is the home directory. Problem files replace all items: earlier handles become strangers.
  virtual void Read(char const* path) = 0;

  // In a given format, whatever the ending. A null or empty path is code 3, one that cannot be resolved code 2. After a
  // failure the items are as before.
  virtual void ReadMps(char const* path) = 0;
  virtual void ReadLp(char const* path) = 0;
  virtual void ReadSdpa(char const* path) = 0;
  virtual void ReadCbf(char const* path) = 0;
  virtual void ReadBin(char const* path) = 0;
  virtual void ReadSol(char const* path) = 0;
  virtual void ReadBasis(char const* path) = 0;
  virtual void ReadMst(char const* path) = 0;
  virtual void ReadParam(char const* path) = 0;
  virtual void ReadTune(char const* path) = 0;

  // ---- Parameters by name, in any case.

  // Current value, default, minimum and maximum, in this order up to the first failure. A name that is unknown or of
  // the other type is code 3. Throws Vorq::Exception if the solver library's search for a name fails, as do all
  // operations that take the name of a parameter or attribute.
  virtual void GetParamInfo(char const* name, int* current, int* def, int* min, int* max) = 0;
  virtual void GetParamInfo(char const* name, double* current, double* def, double* min, double* max) = 0;

  // A name that is unknown or of the other type is code 3.
  virtual int GetIntParam(char const* name) = 0;
  virtual double GetDblParam(char const* name) = 0;
  virtual void SetIntParam(char const* name, int value) = 0;
  virtual void SetDblParam(char const* name, double value) = 0;

  // ---- Writing files.

  // By the ending: .mps, .lp, .cbf, .bin, .nl, .iis, .relax, .sol, .bas, .mst, .par. Another ending does nothing and
  // reports nothing.
  virtual void Write(char const* path) = 0;

  // In a given format, whatever the ending. A null or empty path is code 3, one that cannot be resolved code 2.
  virtual void WriteMps(char const* path) = 0;

  // The problem as MPS text; one zero byte after a failure. A text of 2 GB or more is code 5.
  virtual IProbBuffer* WriteMpsStr() = 0;
  virtual void WriteLp(char const* path) = 0;
  virtual void WriteCbf(char const* path) = 0;
  virtual void WriteBin(char const* path) = 0;
  virtual void WriteNL(char const* path) = 0;
  virtual void WriteIIS(char const* path) = 0;
  virtual void WriteRelax(char const* path) = 0;
  virtual void WriteSol(char const* path) = 0;

  // Solution `index` of the pool. An empty path leads to the working directory; a null one throws std::logic_error.
  virtual void WritePoolSol(int index, char const* path) = 0;
  virtual void WriteBasis(char const* path) = 0;
  virtual void WriteMst(char const* path) = 0;
  virtual void WriteParam(char const* path) = 0;

  // The parameters that tuning found, `index` 0 being the best. Paths as in WritePoolSol.
  virtual void WriteTuneParam(int index, char const* path) = 0;

  // ---- Attributes by name, in any case.

  // A name that is unknown or of the other type is code 3.
  virtual int GetIntAttr(char const* name) = 0;
  virtual double GetDblAttr(char const* name) = 0;

  // The kind of a name: 0 double parameter, 1 integer parameter, 2 double attribute, 3 integer attribute, -1 unknown.
  virtual int SearchParamAttr(char const* name) = 0;

  // ---- Variables.

  // The form with a column also enters the variable into existing constraints.
  virtual IVar* AddVar(double lb, double ub, double obj, char type, char const* name) = 0;
  virtual IVar* AddVar(double lb, double ub, double obj, char type, IColumn* col, char const* name) = 0;

  // `count` variables; below 1 nothing happens. Null arrays leave the attribute at its default: bounds 0 and 1e30,
  // objective 0, continuous. `cols` with fewer than `count` columns is code 3. A failed batch adds none.
  virtual IVarArray* AddVars(int count, char type, char const* prefix) = 0;
  virtual IVarArray* AddVars(int count, char type, char const* names, std::uint64_t length) = 0;
  virtual IVarArray* AddVars(int count, double lb, double ub, double obj, char type, char const* prefix) = 0;
  virtual IVarArray* AddVars(int count, double lb, double ub, double obj, char type, char const* names,
                             std::uint64_t length) = 0;
  virtual IVarArray* AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                             char const* prefix) = 0;
  virtual IVarArray* AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                             char const* names, std::uint64_t length) = 0;
  virtual IVarArray* AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                             IColumnArray* cols, char const* prefix) = 0;

  // ---- Blocks of variables.

  // A block of the given shape. The forms with arrays take one entry for each cell, in logical order.
  virtual IMVar<0>* AddMVar(INDim<0>* shape, char type, char const* prefix) = 0;
  virtual IMVar<1>* AddMVar(INDim<1>* shape, char type, char const* prefix) = 0;
  virtual IMVar<2>* AddMVar(INDim<2>* shape, char type, char const* prefix) = 0;
  virtual IMVar<3>* AddMVar(INDim<3>* shape, char type, char const* prefix) = 0;
  virtual IMVar<0>* AddMVar(INDim<0>* shape, double lb, double ub, double obj, char type, char const* prefix) = 0;
  virtual IMVar<1>* AddMVar(INDim<1>* shape, double lb, double ub, double obj, char type, char const* prefix) = 0;
  virtual IMVar<2>* AddMVar(INDim<2>* shape, double lb, double ub, double obj, char type, char const* prefix) = 0;
  virtual IMVar<3>* AddMVar(INDim<3>* shape, double lb, double ub, double obj, char type, char const* prefix) = 0;
  virtual IMVar<0>* AddMVar(INDim<0>* shape, double const* lbs, double const* ubs, double const* objs,
                            char const* types, char const* prefix) = 0;
  virtual IMVar<1>* AddMVar(INDim<1>* shape, double const* lbs, double const* ubs, double const* objs,
                            char const* types, char const* prefix) = 0;
  virtual IMVar<2>* AddMVar(INDim<2>* shape, double const* lbs, double const* ubs, double const* objs,
                            char const* types, char const* prefix) = 0;
  virtual IMVar<3>* AddMVar(INDim<3>* shape, double const* lbs, double const* ubs, double const* objs,
                            char const* types, char const* prefix) = 0;

  // ---- Linear constraints.

  // expr sense rhs, lhs sense rhs, lower <= expr <= upper, or what a builder says. The forms with a sense take 'E', 'G'
  // and 'L', others are code 3; they add nothing while an earlier failure stands. A builder with range r and constant c
  // gives -r - c <= terms <= -c.
  virtual IConstraint* AddConstr(IExpr* expr, char sense, double rhs, char const* name) = 0;
  virtual IConstraint* AddConstr(IExpr* lhs, char sense, IExpr* rhs, char const* name) = 0;
  virtual IConstraint* AddConstr(IExpr* expr, double lower, double upper, char const* name) = 0;
  virtual IConstraint* AddConstr(IConstrBuilder* builder, char const* name) = 0;

  // Without builders: rows without terms, for SetCoeffs or columns to fill. Null arrays, a count below 1 and an empty
  // array do nothing. With `senses`, rows from a sense on that is not 'E', 'G', 'L' or 'N' get bounds 0. A builder with
  // range r and constant c gives -c <= terms <= r, which differs from the single form; an unknown sense is code 3 and
  // adds none.
  virtual IConstrArray* AddConstrs(int count, char const* senses, double const* rhss, char const* prefix) = 0;
  virtual IConstrArray* AddConstrs(int count, double const* lowers, double const* uppers, char const* prefix) = 0;
  virtual IConstrArray* AddConstrs(int count, double const* lowers, double const* uppers, char const* names,
                                   std::uint64_t length) = 0;
  virtual IConstrArray* AddConstrs(IConstrBuilderArray* builders, char const* prefix) = 0;
  virtual IConstrArray* AddConstrs(IConstrBuilderArray* builders, char const* names, std::uint64_t length) = 0;

  // Linear constraints from matrix cells and blocks.
  virtual IConstraint* AddConstr(IMExpression* cell, char sense, double rhs, char const* name) = 0;

  // A block of constraints of the shape of its expression.
  virtual IMConstr<0>* AddMConstr(IMConstrBuilder<0>* builder, char const* prefix) = 0;
  virtual IMConstr<1>* AddMConstr(IMConstrBuilder<1>* builder, char const* prefix) = 0;
  virtual IMConstr<2>* AddMConstr(IMConstrBuilder<2>* builder, char const* prefix) = 0;
  virtual IMConstr<3>* AddMConstr(IMConstrBuilder<3>* builder, char const* prefix) = 0;
  virtual IMConstr<0>* AddMConstr(IMLinExpr<0>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMConstr<1>* AddMConstr(IMLinExpr<1>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMConstr<2>* AddMConstr(IMLinExpr<2>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMConstr<3>* AddMConstr(IMLinExpr<3>* expr, char sense, double rhs, char const* prefix) = 0;

  // ---- SOS and indicator constraints.

  // Type 1 or 2; `weights` has one entry for each variable, null leaves the order of the variables to count. A removed
  // variable is code 3.
  virtual ISos* AddSos(ISosBuilder* builder) = 0;
  virtual ISos* AddSos(IVarArray* vars, double const* weights, int type) = 0;

  // The constraint holds where the binary variable has the value `val` (type 0). A variable that is removed or not
  // binary, and a sense other than 'E', 'G', 'L', is code 3.
  virtual IGenConstr* AddGenConstrIndicator(IGenConstrBuilder* builder, char const* name) = 0;
  virtual IGenConstr* AddGenConstrIndicator(IVar* var, int val, IConstrBuilder* builder, int type,
                                            char const* name) = 0;
  virtual IGenConstr* AddGenConstrIndicator(IVar* var, int val, IExpr* expr, char sense, double rhs, int type,
                                            char const* name) = 0;
  virtual IGenConstr* AddGenConstrIndicator(IVar* var, int val, IMExpression* cell, char sense, double rhs, int type,
                                            char const* name) = 0;

  // A batch in one call of the solver library.
  virtual IGenConstrArray* AddGenConstrIndicators(IGenConstrBuilderArray* builders, char const* prefix) = 0;
  virtual IGenConstrArray* AddGenConstrIndicators(IGenConstrBuilderArray* builders, char const* names,
                                                  std::uint64_t length) = 0;
  virtual IGenConstrArray* AddGenConstrIndicators(IMVar<0>* binaries, int val, IMConstrBuilder<0>* builder, int type,
                                                  char const* prefix) = 0;
  virtual IGenConstrArray* AddGenConstrIndicators(IMVar<1>* binaries, int val, IMConstrBuilder<1>* builder, int type,
                                                  char const* prefix) = 0;
  virtual IGenConstrArray* AddGenConstrIndicators(IMVar<2>* binaries, int val, IMConstrBuilder<2>* builder, int type,
                                                  char const* prefix) = 0;
  virtual IGenConstrArray* AddGenConstrIndicators(IMVar<3>* binaries, int val, IMConstrBuilder<3>* builder, int type,
                                                  char const* prefix) = 0;

  // ---- Cones.

  // Type 1 quadratic (x0 at least the norm of the others), 2 rotated (2 x0 x1 at least the square of the norm of the
  // others). The form with `varTypes` (null: all continuous) makes `dim` new variables without lower bounds; binary
  // ones and x0 of type 1 have lower bound 0. Too small a dimension, and a removed variable, is code 3.
  virtual ICone* AddCone(int dim, int type, char const* varTypes, char const* prefix) = 0;
  virtual ICone* AddCone(IConeBuilder* builder) = 0;
  virtual ICone* AddCone(IVarArray* vars, int type) = 0;
  virtual ICone* AddCone(IMVar<1>* vars, int type) = 0;

  // One cone for each row. A row that fails is the last, with an invalid item at the end of the array; an earlier
  // failure that stands stops the operation.
  virtual IConeArray* AddCones(IMVar<2>* vars, int type) = 0;

  // Type 3 primal (x0 at least x1 exp(x2 / x1)), 4 dual, on three variables. The form with `varTypes` makes them, with
  // x0 at least 0 (type 3) or x2 at most 0 (type 4). Another number of variables is code 3.
  virtual IExpCone* AddExpCone(int type, char const* varTypes, char const* prefix) = 0;
  virtual IExpCone* AddExpCone(IExpConeBuilder* builder) = 0;
  virtual IExpCone* AddExpCone(IVarArray* vars, int type) = 0;
  virtual IExpCone* AddExpCone(IMVar<1>* vars, int type) = 0;

  // As AddCones.
  virtual IExpConeArray* AddExpCones(IMVar<2>* vars, int type) = 0;

  // The values of the expressions lie in the cone, one expression a row. PSD expressions, those of a builder included,
  // are merged in place, each of their terms makes a matrix, and an earlier failure that stands stops the operation;
  // those of a list are copied.
  virtual IAffineCone* AddAffineCone(IAffineConeBuilder* builder, char const* name) = 0;
  virtual IAffineCone* AddAffineCone(IMLinExpr<1>* exprs, int type, char const* name) = 0;
  virtual IAffineCone* AddAffineCone(std::vector<IExpr*> exprs, int type, char const* name) = 0;

  // One cone for each row, up to the first that fails, whose invalid item ends the array. The names of a prefix are
  // prefix(0), prefix(1) and so on in each call; too short a names buffer is code 3, and adds nothing.
  virtual IAffineConeArray* AddAffineCones(IMLinExpr<2>* exprs, int type, char const* prefix) = 0;
  virtual IAffineConeArray* AddAffineCones(IMLinExpr<2>* exprs, int type, char const* names, std::uint64_t length) = 0;
  virtual IAffineCone* AddAffineCone(IMPsdExpr<1>* exprs, int type, char const* name) = 0;
  virtual IAffineCone* AddAffineCone(std::vector<IPsdExpr*> exprs, int type, char const* name) = 0;
  virtual IAffineConeArray* AddAffineCones(IMPsdExpr<2>* exprs, int type, char const* prefix) = 0;
  virtual IAffineConeArray* AddAffineCones(IMPsdExpr<2>* exprs, int type, char const* names, std::uint64_t length) = 0;

  // ---- Quadratic constraints.

  // expr sense rhs. An expression without quadratic terms, and a sense other than 'E', 'G', 'L', is code 3; an earlier
  // failure that stands stops the operation.
  virtual IQConstraint* AddQConstr(IQuadExpr* expr, char sense, double rhs, char const* name) = 0;
  virtual IQConstraint* AddQConstr(IQuadExpr* lhs, char sense, IQuadExpr* rhs, char const* name) = 0;
  virtual IQConstraint* AddQConstr(IQConstrBuilder* builder, char const* name) = 0;
  virtual IQConstraint* AddQConstr(IMQExpression* cell, char sense, double rhs, char const* name) = 0;

  // A block of quadratic constraints of the shape of its expression.
  virtual IMQConstr<0>* AddMQConstr(IMQConstrBuilder<0>* builder, char const* prefix) = 0;
  virtual IMQConstr<1>* AddMQConstr(IMQConstrBuilder<1>* builder, char const* prefix) = 0;
  virtual IMQConstr<2>* AddMQConstr(IMQConstrBuilder<2>* builder, char const* prefix) = 0;
  virtual IMQConstr<3>* AddMQConstr(IMQConstrBuilder<3>* builder, char const* prefix) = 0;
  virtual IMQConstr<0>* AddMQConstr(IMQuadExpr<0>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMQConstr<1>* AddMQConstr(IMQuadExpr<1>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMQConstr<2>* AddMQConstr(IMQuadExpr<2>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMQConstr<3>* AddMQConstr(IMQuadExpr<3>* expr, char sense, double rhs, char const* prefix) = 0;

  // ---- Semidefinite variables and constraints.

  // A symmetric matrix variable of dimension `dim`.
  virtual IPsdVar* AddPsdVar(int dim, char const* name) = 0;

  // `dims` has one dimension for each. Names with a prefix are numbered from the number of ordinary variables. Null
  // arrays and a count below 1 give an empty array.
  virtual IPsdVarArray* AddPsdVars(int count, int const* dims, char const* prefix) = 0;
  virtual IPsdVarArray* AddPsdVars(int count, int const* dims, char const* names, std::uint64_t length) = 0;

  // Forms as in AddConstr. An expression without semidefinite terms is code 3.
  virtual IPsdConstraint* AddPsdConstr(IPsdExpr* expr, char sense, double rhs, char const* name) = 0;
  virtual IPsdConstraint* AddPsdConstr(IPsdExpr* lhs, char sense, IPsdExpr* rhs, char const* name) = 0;
  virtual IPsdConstraint* AddPsdConstr(IPsdExpr* expr, double lower, double upper, char const* name) = 0;
  virtual IPsdConstraint* AddPsdConstr(IPsdConstrBuilder* builder, char const* name) = 0;

  // A block of semidefinite constraints of the shape of its expression.
  virtual IMPsdConstr<0>* AddMPsdConstr(IMPsdConstrBuilder<0>* builder, char const* prefix) = 0;
  virtual IMPsdConstr<1>* AddMPsdConstr(IMPsdConstrBuilder<1>* builder, char const* prefix) = 0;
  virtual IMPsdConstr<2>* AddMPsdConstr(IMPsdConstrBuilder<2>* builder, char const* prefix) = 0;
  virtual IMPsdConstr<3>* AddMPsdConstr(IMPsdConstrBuilder<3>* builder, char const* prefix) = 0;
  virtual IMPsdConstr<0>* AddMPsdConstr(IMPsdExpr<0>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMPsdConstr<1>* AddMPsdConstr(IMPsdExpr<1>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMPsdConstr<2>* AddMPsdConstr(IMPsdExpr<2>* expr, char sense, double rhs, char const* prefix) = 0;
  virtual IMPsdConstr<3>* AddMPsdConstr(IMPsdExpr<3>* expr, char sense, double rhs, char const* prefix) = 0;

  // The expression is a positive semidefinite matrix. An empty one is code 3.
  virtual ILmiConstraint* AddLmiConstr(ILmiExpr* expr, char const* name) = 0;

  // ---- User cuts and lazy constraints.

  // Kept apart from the rows: no item is made. Senses as in constraints, with 'N' and 'R'; an unknown one is code 3.
  virtual void AddUserCut(IExpr* expr, char sense, double rhs, char const* name) = 0;
  virtual void AddUserCut(IExpr* lhs, char sense, IExpr* rhs, char const* name) = 0;
  virtual void AddUserCut(IConstrBuilder* builder, char const* name) = 0;

  // Names with a prefix are numbered from 0 in each call.
  virtual void AddUserCuts(IConstrBuilderArray* builders, char const* prefix) = 0;
  virtual void AddUserCuts(IConstrBuilderArray* builders, char const* names, std::uint64_t length) = 0;
  virtual void AddUserCuts(IMConstrBuilder<0>* builder, char const* prefix) = 0;
  virtual void AddUserCuts(IMConstrBuilder<1>* builder, char const* prefix) = 0;
  virtual void AddUserCuts(IMConstrBuilder<2>* builder, char const* prefix) = 0;
  virtual void AddUserCuts(IMConstrBuilder<3>* builder, char const* prefix) = 0;

  // As AddUserCut.
  virtual void AddLazyConstr(IExpr* expr, char sense, double rhs, char const* name) = 0;
  virtual void AddLazyConstr(IExpr* lhs, char sense, IExpr* rhs, char const* name) = 0;
  virtual void AddLazyConstr(IConstrBuilder* builder, char const* name) = 0;

  // As AddUserCuts.
  virtual void AddLazyConstrs(IConstrBuilderArray* builders, char const* prefix) = 0;
  virtual void AddLazyConstrs(IConstrBuilderArray* builders, char const* names, std::uint64_t length) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<0>* builder, char const* prefix) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<1>* builder, char const* prefix) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<2>* builder, char const* prefix) = 0;
  virtual void AddLazyConstrs(IMConstrBuilder<3>* builder, char const* prefix) = 0;

  // ---- Symmetric matrices.

  // Entries of the lower triangle, one above the diagonal being its mirror image; duplicates add up. Matrices are never
  // shared, and cannot be removed.
  virtual ISymMatrix* AddSparseMat(int dim, int nElems, int const* rows, int const* cols, double const* values) = 0;

  // The lower triangle column by column, as far as the values reach, or all entries equal. A dimension or length below
  // 1 is code 3, here and below.
  virtual ISymMatrix* AddDenseMat(int dim, double const* values, int length) = 0;
  virtual ISymMatrix* AddDenseMat(int dim, double value) = 0;

  // The main diagonal, or the one at `offset`, which must be smaller than the dimension; its sign does not matter.
  virtual ISymMatrix* AddDiagMat(int dim, double const* values, int length) = 0;
  virtual ISymMatrix* AddDiagMat(int dim, double value) = 0;
  virtual ISymMatrix* AddDiagMat(int dim, double const* values, int length, int offset) = 0;
  virtual ISymMatrix* AddDiagMat(int dim, double value, int offset) = 0;

  // All entries 1.
  virtual ISymMatrix* AddOnesMat(int dim) = 0;

  // The unit matrix.
  virtual ISymMatrix* AddEyeMat(int dim) = 0;

  // The sum of an expression as one matrix.
  virtual ISymMatrix* AddSymMat(ISymMatExpr* expr) = 0;

  // A matrix by its index; one outside of 0 to the number of matrices is code 3.
  virtual ISymMatrix* GetSymMat(int index) = 0;

  // ---- Solutions, basis, solution pool, IIS.

  // One value for each column. A null buffer does nothing.
  virtual void GetSolution(double* values) = 0;

  // Values and reduced costs by column, slacks and duals by row; null buffers are left out, four null ones do nothing.
  virtual void GetLpSolution(double* value, double* slack, double* dual, double* redcost) = 0;

  // Arrays as in GetLpSolution; a null one makes the call do nothing.
  virtual void SetLpSolution(double const* value, double const* slack, double const* dual, double const* redcost) = 0;

  // The number of columns or rows, -1 if a failure stands. A null buffer is not filled.
  virtual int GetColBasis(int* basis) = 0;
  virtual int GetRowBasis(int* basis) = 0;

  // One basis code for each column and row.
  virtual void SetBasis(int const* colBasis, int const* rowBasis) = 0;

  // The basis of all slacks.
  virtual void SetSlackBasis() = 0;

  // The objective of solution `index` of the pool, 1e30 before it could be asked for.
  virtual double GetPoolObjVal(int index) = 0;

  // Values of the live variables without gaps. Returns their number, also after a failure.
  virtual int GetPoolSolution(int index, IVarArray* vars, double* out) = 0;

  // 1 for each bound that is part of the irreducible infeasible subsystem, 0 otherwise; for live items without gaps.
  // Returns their number, also after a failure.
  virtual int GetColLowerIIS(IVarArray* vars, int* out) = 0;
  virtual int GetColUpperIIS(IVarArray* vars, int* out) = 0;
  virtual int GetRowLowerIIS(IConstrArray* constrs, int* out) = 0;
  virtual int GetRowUpperIIS(IConstrArray* constrs, int* out) = 0;
  virtual int GetSOSIIS(ISosArray* soss, int* out) = 0;
  virtual int GetIndicatorIIS(IGenConstrArray* constrs, int* out) = 0;

  // ---- Coefficients and bulk loads.

  // 0.0 where there is no such coefficient. Items are not checked: a removed one is the solver library's to refuse.
  virtual double GetCoeff(IConstraint* constr, IVar* var) = 0;
  virtual void SetCoeff(IConstraint* constr, IVar* var, double value) = 0;

  // One coefficient for each pair of constraint and variable. Arrays of different sizes, `len` below them and removed
  // items are code 3. Null `values` or `len` below 1 do nothing.
  virtual void SetCoeffs(IConstrArray* constrs, IVarArray* vars, double const* values, int len) = 0;

  // The matrix of a semidefinite variable in a constraint; where there is none, code 3.
  virtual ISymMatrix* GetPsdCoeff(IPsdConstraint* constr, IPsdVar* var) = 0;

  // A matrix of another dimension than the variable's, or an invalid one, is code 3.
  virtual void SetPsdCoeff(IPsdConstraint* constr, IPsdVar* var, ISymMatrix* mat) = 0;

  // The matrix of a variable in a linear matrix inequality; where there is none, code 3. A removed constraint is
  // code 3.
  virtual ISymMatrix* GetLmiCoeff(ILmiConstraint* constr, IVar* var) = 0;

  // A removed constraint, a matrix of another dimension than the constraint's, or an invalid one is code 3.
  virtual void SetLmiCoeff(ILmiConstraint* constr, IVar* var, ISymMatrix* mat) = 0;

  // The constant matrix; where there is none, code 3. A removed constraint is code 3.
  virtual ISymMatrix* GetLmiRhs(ILmiConstraint* constr) = 0;

  // Checks as in SetLmiCoeff.
  virtual void SetLmiRhs(ILmiConstraint* constr, ISymMatrix* mat) = 0;

  // The whole matrix by columns: `begin` and `count` have "Cols" entries, `index` and `value` have "Elems".
  virtual void GetCols(int* begin, int* count, int* index, double* value) = 0;

  // Replaces the whole problem, and all items. The matrix lies by columns; null arrays leave defaults.
  virtual void LoadMatrix(int nCols, int nRows, double const* objs, int const* colBeg, int const* colCnt,
                          int const* rows, double const* coefs, double const* lowers, double const* uppers,
                          double const* lbs, double const* ubs, char const* types) = 0;

  // The quadratic objective: coefficients of products of two columns. Null arrays do nothing, here and below.
  virtual void LoadQ(int n, int const* rows, int const* cols, double const* values) = 0;

  // `n` cones, their columns behind each other. No items are made: use AddCone where the model is to know the cone.
  virtual void LoadCone(int n, int const* types, int const* dims, int const* indices) = 0;

  // `n` exponential cones of three columns each. No items are made.
  virtual void LoadExpCone(int n, int const* types, int const* indices) = 0;

  // Replaces the whole problem, and all items. Matrix k has its elements at symBeg[k] to symBeg[k + 1] - 1; cones lie
  // behind each other in coneCols by their dimensions, exponential cones in expConeCols by threes; psdObjMats has the
  // matrix of each semidefinite variable in the objective, -1 for none. Null arrays leave defaults.
  virtual void LoadConeMatrix(int nCols, int nRows, int nCones, int nExpCones, int nPsdCols, int nSymMats,
                              int nSymElems, int nQuad, int const* symDims, int const* symBeg, int const* symRows,
                              int const* symCols, double const* symVals, double const* objs, int const* colBeg,
                              int const* colCnt, int const* rows, double const* coefs, char const* types,
                              double const* lbs, double const* ubs, double const* lowers, double const* uppers,
                              int const* quadRows, int const* quadCols, double const* quadVals, int const* coneTypes,
                              int const* coneDims, int const* coneCols, int const* expConeTypes, int const* expConeCols,
                              int const* psdDims, int const* psdObjMats) = 0;

  // ---- Semidefinite solutions.

  // Values, slacks, duals and reduced costs, matrices behind each other; null buffers are left out, four null ones do
  // nothing.
  virtual void GetPsdSolution(double* a, double* b, double* c, double* d) = 0;

  // Slacks and duals, matrices behind each other; null buffers are left out, two null ones do nothing.
  virtual void GetLmiSolution(double* a, double* b) = 0;

  // ---- Items by index and name, and reading them back.

  // By index: one that no item has is code 3; an item that is marked for removal is still found. By name: normalised
  // first; an unknown one has the solver library's code. All at once: live items in order, none while a failure
  // stands. Like operations of the other kinds are the same.
  virtual IVar* GetVar(int index) = 0;
  virtual IVar* GetVarByName(char const* name) = 0;
  virtual IVarArray* GetVars() = 0;

  // One name for each item. A removed item is code 3 and changes nothing.
  virtual void SetNames(IVarArray* vars, char const* names, std::uint64_t length) = 0;

  // The terms of a variable; empty, without a failure, for one that is not live.
  virtual IColumn* GetCol(IVar* var) = 0;
  virtual IConstraint* GetConstr(int index) = 0;
  virtual IConstraint* GetConstrByName(char const* name) = 0;
  virtual IConstrArray* GetConstrs() = 0;
  virtual void SetNames(IConstrArray* constrs, char const* names, std::uint64_t length) = 0;

  // Rows as builders that would make them again. One builder: a removed constraint is code 3.
  virtual IConstrBuilderArray* GetConstrBuilders() = 0;
  virtual IConstrBuilder* GetConstrBuilder(IConstraint* constr) = 0;

  // The terms of a constraint, with constant 0. A removed constraint is code 3.
  virtual IExpr* GetRow(IConstraint* constr) = 0;

  // Builders of special ordered sets and cones: of all live ones (no array, or an empty one), or of those given.
  virtual ISos* GetSos(int index) = 0;
  virtual ISosArray* GetSoss() = 0;
  virtual ISosBuilderArray* GetSosBuilders() = 0;
  virtual ISosBuilderArray* GetSosBuilders(ISosArray* soss) = 0;
  virtual IGenConstr* GetGenConstr(int index) = 0;
  virtual IGenConstr* GetGenConstrByName(char const* name) = 0;
  virtual IGenConstrArray* GetGenConstrs() = 0;
  virtual void SetNames(IGenConstrArray* constrs, char const* names, std::uint64_t length) = 0;
  virtual IGenConstrBuilderArray* GetGenConstrBuilders() = 0;
  virtual IGenConstrBuilder* GetGenConstrBuilder(IGenConstr* constr) = 0;
  virtual ICone* GetCone(int index) = 0;
  virtual IConeArray* GetCones() = 0;
  virtual IConeBuilderArray* GetConeBuilders() = 0;
  virtual IConeBuilderArray* GetConeBuilders(IConeArray* cones) = 0;
  virtual IExpCone* GetExpCone(int index) = 0;
  virtual IExpConeArray* GetExpCones() = 0;
  virtual IExpConeBuilderArray* GetExpConeBuilders() = 0;
  virtual IExpConeBuilderArray* GetExpConeBuilders(IExpConeArray* cones) = 0;
  virtual IAffineCone* GetAffineCone(int index) = 0;
  virtual IAffineCone* GetAffineConeByName(char const* name) = 0;
  virtual IAffineConeArray* GetAffineCones() = 0;
  virtual void SetNames(IAffineConeArray* cones, char const* names, std::uint64_t length) = 0;
  // Empty for a cone that is not live, without a failure.
  virtual IAffineConeBuilder* GetAffineConeBuilder(IAffineCone* cone) = 0;
  virtual IAffineConeBuilderArray* GetAffineConeBuilders() = 0;
  virtual IAffineConeBuilderArray* GetAffineConeBuilders(IAffineConeArray* cones) = 0;
  virtual IQConstraint* GetQConstr(int index) = 0;
  virtual IQConstraint* GetQConstrByName(char const* name) = 0;
  virtual IQConstrArray* GetQConstrs() = 0;
  virtual void SetNames(IQConstrArray* constrs, char const* names, std::uint64_t length) = 0;
  virtual IQConstrBuilderArray* GetQConstrBuilders() = 0;
  virtual IQConstrBuilder* GetQConstrBuilder(IQConstraint* constr) = 0;
  virtual IQuadExpr* GetQuadRow(IQConstraint* constr) = 0;
  virtual IPsdVar* GetPsdVar(int index) = 0;
  virtual IPsdVar* GetPsdVarByName(char const* name) = 0;
  virtual IPsdVarArray* GetPsdVars() = 0;
  virtual void SetNames(IPsdVarArray* vars, char const* names, std::uint64_t length) = 0;
  virtual IPsdConstraint* GetPsdConstr(int index) = 0;
  virtual IPsdConstraint* GetPsdConstrByName(char const* name) = 0;
  virtual IPsdConstrArray* GetPsdConstrs() = 0;
  virtual void SetNames(IPsdConstrArray* constrs, char const* names, std::uint64_t length) = 0;
  virtual IPsdConstrBuilder* GetPsdConstrBuilder(IPsdConstraint* constr) = 0;
  virtual IPsdConstrBuilderArray* GetPsdConstrBuilders() = 0;
  virtual IPsdExpr* GetPsdRow(IPsdConstraint* constr) = 0;
  virtual ILmiConstraint* GetLmiConstr(int index) = 0;
  virtual ILmiConstraint* GetLmiConstrByName(char const* name) = 0;
  virtual ILmiConstrArray* GetLmiConstrs() = 0;
  virtual void SetNames(ILmiConstrArray* constrs, char const* names, std::uint64_t length) = 0;
  virtual ILmiExpr* GetLmiRow(ILmiConstraint* constr) = 0;

  // ---- Objective.

  // 1 minimises, -1 maximises.
  virtual void SetObjSense(int sense) = 0;
  virtual void SetObjConst(double constant) = 0;

  // Replaces all linear coefficients and the constant. A sense of 0 leaves the sense as it is. A failure half way
  // leaves the earlier pieces in place.
  virtual void SetObjective(IExpr* expr, int sense) = 0;
  virtual void SetObjective(IMExpression* cell, int sense) = 0;

  // The linear part and the constant; what there is so far after a failure.
  virtual IExpr* GetObjective() = 0;

  // The quadratic part first, then as SetObjective.
  virtual void SetQuadObjective(IQuadExpr* expr, int sense) = 0;
  virtual void SetQuadObjective(IMQExpression* cell, int sense) = 0;
  virtual IQuadExpr* GetQuadObjective() = 0;
  virtual void DelQuadObj() = 0;

  // The semidefinite part first, then as SetObjective. Each call makes new matrices; an earlier failure that stands
  // stops it.
  virtual void SetPsdObjective(IPsdExpr* expr, int sense) = 0;
  virtual IPsdExpr* GetPsdObjective() = 0;
  virtual void DelPsdObj() = 0;

  // ---- MIP starts.

  // Collects start values; a later value replaces an earlier one of the same variable. The form with `count` fills the
  // live variables in order.
  virtual void SetMipStart(int count, double const* values) = 0;
  virtual void SetMipStart(IVar* var, double value) = 0;
  virtual void SetMipStart(IVarArray* vars, double const* values) = 0;

  // Hands the collected values to the solver library, and forgets them whatever it says.
  virtual void LoadMipStart() = 0;

  // ---- Information of many items at once.

  // Values of the live items without gaps. Returns their number, -1 on failure.
  virtual int GetColInfo(char const* name, IVarArray* vars, double* out) = 0;
  virtual int GetRowInfo(char const* name, IConstrArray* constrs, double* out) = 0;
  virtual int GetQConstrInfo(char const* name, IQConstrArray* constrs, double* out) = 0;
  virtual int GetPsdConstrInfo(char const* name, IPsdConstrArray* constrs, double* out) = 0;

  // "LB", "UB", and for variables "Obj", in any case. A missing or unknown name, null `values` and `len` below the size
  // of the array are code 3. Values of items that are not live are dropped; if none is live, nothing happens.
  virtual void SetColInfo(char const* name, IVarArray* vars, double const* values, int len) = 0;
  virtual void SetRowInfo(char const* name, IConstrArray* constrs, double const* values, int len) = 0;
  virtual void SetPsdConstrInfo(char const* name, IPsdConstrArray* constrs, double const* values, int len) = 0;

  // ---- Solving.

  // Solves with all integrality.
  virtual void Solve() = 0;

  // Solves the continuous relaxation.
  virtual void SolveLp() = 0;

  // An irreducible infeasible subsystem, to be read with the IIS getters.
  virtual void ComputeIIS() = 0;

  // Penalties for relaxing bounds: one for each item of the array, null for bounds that stay hard. The form with flags
  // relaxes all variables' bounds, all constraints, or both, with penalty 1.
  virtual void FeasRelax(IVarArray* vars, double const* colLowPen, double const* colUppPen, IConstrArray* cons,
                         double const* rowBndPen, double const* rowUppPen) = 0;
  // Of arrays of numbers, one of size 0 leaves its bounds hard, and one of size 1 holds for all items; any other size
  // than that of the block is code 3.
  virtual void FeasRelax(IMVar<1>* vars, double const* colLowPen, double const* colUppPen, IMConstr<1>* cons,
                         double const* rowBndPen, double const* rowUppPen) = 0;
  virtual void FeasRelax(IMVar<1>* vars, INdArray<double, 1>* colLowPen, INdArray<double, 1>* colUppPen,
                         IMConstr<1>* cons, INdArray<double, 1>* rowBndPen, INdArray<double, 1>* rowUppPen) = 0;
  virtual void FeasRelax(int ifRelaxVars, int ifRelaxCons) = 0;

  // Searches better parameters.
  virtual void Tune() = 0;

  // Takes over a result of tuning, 0 being the best.
  virtual void LoadTuneParam(int index) = 0;

  // Ends a running solve soon. The one operation that another thread may call meanwhile.
  virtual void Interrupt() = 0;

  // ---- Removal: lazy, carried out by the next operation that needs the solver library's numbering.

  // Items that are removed already are passed over.
  virtual void Remove(IMVar<0>* vars) = 0;
  virtual void Remove(IMVar<1>* vars) = 0;
  virtual void Remove(IMVar<2>* vars) = 0;
  virtual void Remove(IMVar<3>* vars) = 0;
  virtual void Remove(IMConstr<0>* constrs) = 0;
  virtual void Remove(IMConstr<1>* constrs) = 0;
  virtual void Remove(IMConstr<2>* constrs) = 0;
  virtual void Remove(IMConstr<3>* constrs) = 0;
  virtual void Remove(IMQConstr<0>* constrs) = 0;
  virtual void Remove(IMQConstr<1>* constrs) = 0;
  virtual void Remove(IMQConstr<2>* constrs) = 0;
  virtual void Remove(IMQConstr<3>* constrs) = 0;
  virtual void Remove(IMPsdConstr<0>* constrs) = 0;
  virtual void Remove(IMPsdConstr<1>* constrs) = 0;
  virtual void Remove(IMPsdConstr<2>* constrs) = 0;
  virtual void Remove(IMPsdConstr<3>* constrs) = 0;
  virtual void Remove(IVarArray* vars) = 0;
  virtual void Remove(IConstrArray* constrs) = 0;
  virtual void Remove(ISosArray* soss) = 0;
  virtual void Remove(IConeArray* cones) = 0;
  virtual void Remove(IExpConeArray* cones) = 0;
  virtual void Remove(IAffineConeArray* cones) = 0;
  virtual void Remove(IGenConstrArray* constrs) = 0;
  virtual void Remove(IQConstrArray* constrs) = 0;
  virtual void Remove(IPsdVarArray* vars) = 0;
  virtual void Remove(IPsdConstrArray* constrs) = 0;
  virtual void Remove(ILmiConstrArray* constrs) = 0;

  // ---- Reset, clear, copy.

  // All parameters back to their defaults.
  virtual void ResetParam() = 0;

  // Forgets the solution and additional information, such as starts.
  virtual void ResetAll() = 0;

  // Forgets the solution.
  virtual void Reset() = 0;

  // Back to an empty model. Items from before become strangers.
  virtual void Clear() = 0;

  // A copy of the problem with new items, called NAME_copy. It shares nothing but the environment.
  virtual IModel* Clone() = 0;

  // ---- Callbacks and logging.

  // The object is called during a mixed-integer solve at the places of the mask: 1 the relaxation of a node was solved,
  // 2 a solution was found, 4 a solution was accepted, -1 everywhere. Null takes the callback away. The model does not
  // own it. An exception that leaves the callback comes out of Solve. An object without a proxy is code 3.
  virtual void SetCallback(ICallback* callback, int contextMask) = 0;

  // Returns the solver library's code; the model's own is left alone.
  virtual int SetLogFile(char const* path) = 0;

  // As SetLogFile; null takes the sink away. The model does not own it.
  virtual int SetLogCallback(ILogSink* logger) = 0;

  // The last failure; the text is valid until the next one.
  virtual int GetLastError() = 0;
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
