// Model: one problem of the solver library, with tables of items that follow its numbering.
//
//     Vorq::Model model(envr, "diet");
//     Vorq::Var x = model.AddVar(0.0, 10.0, 1.5, 'C', "bread");
//     Vorq::Expr expr(x, 2.0);
//     model.AddConstr(expr, 'G', 4.0, "energy");
//     model.Solve();
//     if (model.status.Failed()) { ... model.status.Text() ... }
//
// Every operation records its outcome in `status`. Operations that make items call the solver library first, and take
// an index only when it has accepted. Removal is lazy: Remove marks, ApplyRemovals carries out. The operations stand in
// one source file a topic.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <functional>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/status.hpp"
#include "items/item_arrays.hpp"
#include "items/lmi_expr.hpp"
#include "matrix/affine_cone_builder.hpp"
#include "matrix/matrix_object.hpp"
#include "model/cone_problem.hpp"
#include "model/cut_kinds.hpp"
#include "model/envr.hpp"
#include "model/file_formats.hpp"
#include "model/model_core.hpp"
#include "model/prob_buffer.hpp"

namespace Vorq {

inline constexpr double kInfinity = VORQ_INFINITY;

// What the solver library counts with.
inline constexpr std::size_t kMaxCount = std::numeric_limits<int>::max();

// Rows or columns as the solver library hands them out: line i has count[i] elements from position begin[i].
struct SparseLines {
  std::vector<int> begin;
  std::vector<int> count;
  std::vector<int> index;
  std::vector<double> value;
};

// A read of a number by name, and where it goes.
template <class T>
struct NamedRead {
  int (*read)(VORQ_Prob* prob, char const* name, T* value);
  T* out;
};

struct NameRule;
struct VarListReader;
class BlockNames;
template <class Cell, int N>
class MatrixConstrBuilder;

class Model {
 public:
  // A null name is a failure, and counts as empty.
  Model(Envr const& envr, char const* name);
  // A model on a core that is complete: the result of Clone.
  explicit Model(SharedPtr<ModelCore> core) : core_(std::move(core)) {}

  Status status;

  ModelCore& Core() const { return *core_; }
  template <class Item>
  int Count() const {
    return core_->Table<Item>().count;
  }

  // ---- The frame of all operations (model.cpp, model_removal.cpp, model_tables.cpp)

  // Deletes marked items in the solver library and renumbers the others. False after a failure, with items of the
  // failed kind and those behind it still marked.
  bool ApplyRemovals();
  // Rebuilds all tables from the solver library.
  void ReloadItems();
  // Makes the scratch arrays hold at least `size` entries.
  void EnsureDense(int size);
  // What a callback needs to know: told the number of columns whenever it shrinks or is read anew, and before a solve,
  // which false refuses. Set with the callback; Clear forgets it.
  using ColumnCountListener = std::function<bool(int columnCount)>;

  SharedPtr<ModelCore> Clone();
  void Clear();
  void Reset();
  void ResetAll();
  void ResetParam();

  // ---- Items of any kind (model_items.cpp)

  template <class Item>
  Item Get(int index);
  template <class Item>
  Item GetByName(char const* name);
  // All live items. An earlier failure that is still in the status stops the walk before it begins.
  template <class Item>
  std::vector<Item> Collect();
  template <class Item>
  void SetNames(std::vector<Item> const& items, char const* names, std::size_t length);
  template <class Item>
  void Remove(std::vector<Item>& items) {
    for (Item& item : items) item.MarkRemoved();
  }
  template <class Item, int N>
  void Remove(MatrixObject<Item, N> const& block) {
    block.Cells().ForEach([](Item& item) { item.MarkRemoved(); });
  }
  // An item that stands for nothing: the result of a failed operation.
  template <class Item>
  Item Invalid() const {
    return Item(core_->prob, std::string(), kInvalidIndex);
  }

  // ---- Variables (model_variables.cpp)

  Var AddVar(double lb, double ub, double obj, char type, char const* name);
  Var AddVar(double lb, double ub, double obj, char type, Column& column, char const* name);
  VarArray AddVars(int count, char type, char const* prefix);
  VarArray AddVars(int count, char type, char const* names, std::size_t length);
  VarArray AddVars(int count, double lb, double ub, double obj, char type, char const* prefix);
  VarArray AddVars(int count, double lb, double ub, double obj, char type, char const* names, std::size_t length);
  // Null arrays leave the attribute to the solver library.
  VarArray AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                   char const* prefix);
  VarArray AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                   char const* names, std::size_t length);
  VarArray AddVars(int count, double const* lbs, double const* ubs, double const* objs, char const* types,
                   ColumnArray& columns, char const* prefix);
  Column GetCol(Var const& var);

  // ---- Linear constraints (model_constraints.cpp), cuts and lazy constraints (model_cuts.cpp)

  Constraint AddConstr(Expr& expr, char sense, double rhs, char const* name);
  Constraint AddConstr(Expr const& lhs, char sense, Expr const& rhs, char const* name);
  Constraint AddConstr(Expr& expr, double lower, double upper, char const* name);
  Constraint AddConstr(ConstrBuilder& builder, char const* name);
  ConstrArray AddConstrs(int count, char const* senses, double const* rhss, char const* prefix);
  ConstrArray AddConstrs(int count, double const* lowers, double const* uppers, char const* prefix);
  ConstrArray AddConstrs(int count, double const* lowers, double const* uppers, char const* names, std::size_t length);
  ConstrArray AddConstrs(ConstrBuilderArray& builders, char const* prefix);
  ConstrArray AddConstrs(ConstrBuilderArray& builders, char const* names, std::size_t length);
  Expr GetRow(Constraint const& constr);
  ConstrBuilder GetConstrBuilder(Constraint& constr);
  ConstrBuilderArray GetConstrBuilders();

  void AddCut(CutKind const& kind, Expr& expr, char sense, double rhs, char const* name);
  void AddCut(CutKind const& kind, Expr const& lhs, char sense, Expr const& rhs, char const* name);
  void AddCut(CutKind const& kind, ConstrBuilder& builder, char const* name);
  void AddCuts(CutKind const& kind, ConstrBuilderArray& builders, char const* prefix);
  void AddCuts(CutKind const& kind, ConstrBuilderArray& builders, char const* names, std::size_t length);

  // ---- SOS (model_sos.cpp), indicator constraints (model_indicators.cpp), cones (model_cones.cpp)

  Sos AddSos(SosBuilder const& builder);
  // Null weights leave the order of the variables to count.
  Sos AddSos(VarArray const& vars, double const* weights, int type);
  // An empty array stands for all live items.
  SosBuilderArray GetSosBuilders(SosArray const& soss);

  GenConstr AddGenConstrIndicator(GenConstrBuilder& builder, char const* name);
  GenConstr AddGenConstrIndicator(Var const& var, int value, ConstrBuilder& builder, int type, char const* name);
  GenConstr AddGenConstrIndicator(Var const& var, int value, Expr& expr, char sense, double rhs, int type,
                                  char const* name);
  GenConstrArray AddGenConstrIndicators(GenConstrBuilderArray& builders, char const* prefix);
  GenConstrArray AddGenConstrIndicators(GenConstrBuilderArray& builders, char const* names, std::size_t length);
  GenConstrBuilder GetGenConstrBuilder(GenConstr const& constr);
  GenConstrBuilderArray GetGenConstrBuilders();

  // The forms with `types` make the variables; null types make continuous ones.
  Cone AddCone(int dim, int type, char const* types, char const* prefix);
  Cone AddCone(ConeBuilder const& builder);
  Cone AddCone(VarArray const& vars, int type);
  Cone AddCone(MVar<1> const& vars, int type);
  // One cone for each row, up to the first that fails; a failure that stands stops the walk before it begins.
  ConeArray AddCones(MVar<2> const& vars, int type);
  ConeBuilderArray GetConeBuilders(ConeArray const& cones);
  ExpCone AddExpCone(int type, char const* types, char const* prefix);
  ExpCone AddExpCone(ExpConeBuilder const& builder);
  ExpCone AddExpCone(VarArray const& vars, int type);
  ExpCone AddExpCone(MVar<1> const& vars, int type);
  ExpConeArray AddExpCones(MVar<2> const& vars, int type);
  ExpConeBuilderArray GetExpConeBuilders(ExpConeArray const& cones);

  // ---- Affine cones (model_affine_cones.cpp): one expression for each row of the vector that lies in the cone

  // Linear rows stay as they are. Rows with PSD terms are merged in place, also where they turn out to be linear.
  AffineCone AddAffineCone(MLinExpr<1> const& exprs, int type, char const* name);
  AffineCone AddAffineCone(MPsdExpr<1>& exprs, int type, char const* name);
  AffineCone AddAffineCone(AffineConeBuilder& builder, char const* name);
  // One cone for each row of the block, up to the first that fails. The cones of a prefix are numbered from 0.
  template <class Cell>
  AffineConeArray AddAffineCones(MatrixObject<Cell, 2> const& exprs, int type, char const* prefix);
  template <class Cell>
  AffineConeArray AddAffineCones(MatrixObject<Cell, 2> const& exprs, int type, char const* names, std::size_t length);
  // Empty for a cone that is not live.
  AffineConeBuilder GetAffineConeBuilder(AffineCone const& cone);
  AffineConeBuilderArray GetAffineConeBuilders(AffineConeArray const& cones);

  // ---- Quadratic constraints (model_quadratic_constraints.cpp)

  QConstraint AddQConstr(QuadExpr& expr, char sense, double rhs, char const* name);
  QConstraint AddQConstr(QuadExpr const& lhs, char sense, QuadExpr const& rhs, char const* name);
  QConstraint AddQConstr(QConstrBuilder& builder, char const* name);
  QuadExpr GetQuadRow(QConstraint const& constr);
  QConstrBuilder GetQConstrBuilder(QConstraint const& constr);
  QConstrBuilderArray GetQConstrBuilders();

  // ---- Symmetric matrices (model_symmetric_matrices.cpp): each call makes a new one

  SymMatrix AddSparseMat(int dim, int count, int const* rows, int const* cols, double const* values);
  // The lower triangle by columns, as far as the values reach.
  SymMatrix AddDenseMat(int dim, double const* values, int length);
  SymMatrix AddDenseMat(int dim, double value);
  SymMatrix AddDiagMat(int dim, double const* values, int length);
  SymMatrix AddDiagMat(int dim, double value);
  SymMatrix AddDiagMat(int dim, double const* values, int length, int offset);
  SymMatrix AddDiagMat(int dim, double value, int offset);
  SymMatrix AddSymMat(SymMatExpr const& expr);

  // ---- PSD variables and constraints (model_psd.cpp), LMI constraints (model_lmi.cpp)

  PsdVar AddPsdVar(int dim, char const* name);
  PsdVarArray AddPsdVars(int count, int const* dims, char const* prefix);
  PsdVarArray AddPsdVars(int count, int const* dims, char const* names, std::size_t length);

  PsdConstraint AddPsdConstr(PsdExpr& expr, char sense, double rhs, char const* name);
  PsdConstraint AddPsdConstr(PsdExpr const& lhs, char sense, PsdExpr const& rhs, char const* name);
  PsdConstraint AddPsdConstr(PsdExpr& expr, double lower, double upper, char const* name);
  PsdConstraint AddPsdConstr(PsdConstrBuilder& builder, char const* name);
  PsdExpr GetPsdRow(PsdConstraint const& constr);
  PsdConstrBuilder GetPsdConstrBuilder(PsdConstraint& constr);
  PsdConstrBuilderArray GetPsdConstrBuilders();
  SymMatrix GetPsdCoeff(PsdConstraint const& constr, PsdVar const& var);
  void SetPsdCoeff(PsdConstraint const& constr, PsdVar const& var, SymMatrix const& mat);

  LmiConstraint AddLmiConstr(LmiExpr& expr, char const* name);
  LmiExpr GetLmiRow(LmiConstraint const& constr);
  SymMatrix GetLmiCoeff(LmiConstraint const& constr, Var const& var);
  void SetLmiCoeff(LmiConstraint const& constr, Var const& var, SymMatrix const& mat);
  SymMatrix GetLmiRhs(LmiConstraint const& constr);
  void SetLmiRhs(LmiConstraint const& constr, SymMatrix const& mat);

  // ---- Blocks of variables (model_block_vars.cpp): one column a cell, in flat order, named by prefix and index. A
  // block that failed has the sizes asked for, but no cells.

  template <int N>
  MVar<N> AddMVar(NDim<N> const& shape, char type, char const* prefix);
  template <int N>
  MVar<N> AddMVar(NDim<N> const& shape, double lb, double ub, double obj, char type, char const* prefix);
  // Null arrays leave the attribute to the solver library.
  template <int N>
  MVar<N> AddMVar(NDim<N> const& shape, double const* lbs, double const* ubs, double const* objs, char const* types,
                  char const* prefix);

  // ---- Constraints from cells, and blocks of them (model_block_constraints.cpp, model_block_special_constraints.cpp).
  // Cells and builders are only read. A block that failed is empty.

  Constraint AddConstr(MExpression const& cell, char sense, double rhs, char const* name);
  template <int N>
  MConstr<N> AddMConstr(MatrixConstrBuilder<MExpression, N> const& builder, char const* prefix);
  // The rows are compared with 0: `rhs` is not applied, which is meant.
  template <int N>
  MConstr<N> AddMConstr(MLinExpr<N> const& expr, char sense, double rhs, char const* prefix);
  // Named like the cuts and lazy constraints of an array of builders.
  template <int N>
  void AddCuts(CutKind const& kind, MatrixConstrBuilder<MExpression, N> const& builder, char const* prefix);

  // The right side is taken less the constant of the explicit part.
  QConstraint AddQConstr(MQExpression const& cell, char sense, double rhs, char const* name);
  template <int N>
  MQConstr<N> AddMQConstr(MatrixConstrBuilder<MQExpression, N> const& builder, char const* prefix);
  template <int N>
  MQConstr<N> AddMQConstr(MQuadExpr<N> const& expr, char sense, double rhs, char const* prefix);

  template <int N>
  MPsdConstr<N> AddMPsdConstr(MatrixConstrBuilder<PsdExpr, N> const& builder, char const* prefix);
  template <int N>
  MPsdConstr<N> AddMPsdConstr(MPsdExpr<N> const& expr, char sense, double rhs, char const* prefix);

  GenConstr AddGenConstrIndicator(Var const& var, int value, MExpression const& cell, char sense, double rhs, int type,
                                  char const* name);
  // One constraint a cell; those before one that fails stay, and are what is returned.
  template <int N>
  GenConstrArray AddGenConstrIndicators(MVar<N> const& binaries, int value,
                                        MatrixConstrBuilder<MExpression, N> const& builder, int type,
                                        char const* prefix);

  // ---- Coefficients (model_coefficients.cpp), bulk loads (model_bulk_loads.cpp)

  double GetCoeff(Constraint const& constr, Var const& var);
  void SetCoeff(Constraint const& constr, Var const& var, double value);
  void SetCoeffs(ConstrArray const& constrs, VarArray const& vars, double const* values, int len);
  void GetCols(int* begin, int* count, int* index, double* value);
  void LoadMatrix(int nCols, int nRows, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                  double const* coefs, double const* lowers, double const* uppers, double const* lbs, double const* ubs,
                  char const* types);
  // The pieces make no items; null arrays that are needed do nothing.
  void LoadQ(int count, int const* rows, int const* cols, double const* values);
  void LoadCone(int count, int const* types, int const* dims, int const* cols);
  void LoadExpCone(int count, int const* types, int const* cols);
  void LoadConeMatrix(ConeProblem const& problem);

  // ---- Objective (model_objective.cpp), its quadratic and PSD parts (model_quadratic_objective.cpp, model_psd.cpp)

  void SetObjSense(int sense);
  void SetObjConst(double constant);
  // A sense of 0 leaves the sense as it is.
  void SetObjective(Expr& expr, int sense);
  void SetObjective(Var const& var, int sense);
  void SetObjective(MExpression const& cell, int sense);
  Expr GetObjective();
  void SetQuadObjective(QuadExpr& expr, int sense);
  void SetQuadObjective(MQExpression const& cell, int sense);
  QuadExpr GetQuadObjective();
  void DelQuadObj();
  void SetPsdObjective(PsdExpr& expr, int sense);
  PsdExpr GetPsdObjective();
  void DelPsdObj();

  // ---- Solving (model_solving.cpp), solutions (model_solutions.cpp), relaxation and MIP starts (files of that name)

  void Solve();
  void SolveLp();
  void ComputeIIS();
  void Tune();
  void LoadTuneParam(int index);
  // May be called by another thread while one of the operations above runs.
  void Interrupt();
  // `function` is called with `user` at the places that the mask chooses; a null one takes the callback away. The
  // listener takes the place of the one from before, whatever the solver library says. True for success.
  bool SetCallback(VORQ_CallbackFunction function, int contextMask, void* user, ColumnCountListener listener);
  int SetLogFile(char const* path);
  int SetLogCallback(ILogSink* logger);

  void GetSolution(double* values);
  void GetLpSolution(double* value, double* slack, double* dual, double* redcost);
  void SetLpSolution(double const* value, double const* slack, double const* dual, double const* redcost);
  void GetPsdSolution(double* values, double* slacks, double* duals, double* redcosts);
  void GetLmiSolution(double* slacks, double* duals);
  int GetColBasis(int* basis);
  int GetRowBasis(int* basis);
  void SetBasis(int const* colBasis, int const* rowBasis);
  void SetSlackBasis();
  double GetPoolObjVal(int index);
  int GetPoolSolution(int index, VarArray const& vars, double* out);
  int GetColLowerIIS(VarArray const& vars, int* out);
  int GetColUpperIIS(VarArray const& vars, int* out);
  int GetRowLowerIIS(ConstrArray const& constrs, int* out);
  int GetRowUpperIIS(ConstrArray const& constrs, int* out);
  int GetSOSIIS(SosArray const& soss, int* out);
  int GetIndicatorIIS(GenConstrArray const& constrs, int* out);

  void FeasRelax(VarArray const& vars, double const* colLowPen, double const* colUppPen, ConstrArray const& cons,
                 double const* rowBndPen, double const* rowUppPen);
  // Penalties that are null, or arrays of size 0, leave the bounds hard; an array of size 1 holds for all items.
  void FeasRelax(MVar<1> const& vars, double const* colLowPen, double const* colUppPen, MConstr<1> const& cons,
                 double const* rowBndPen, double const* rowUppPen);
  void FeasRelax(MVar<1> const& vars, NdArray<double, 1> const& colLowPen, NdArray<double, 1> const& colUppPen,
                 MConstr<1> const& cons, NdArray<double, 1> const& rowBndPen, NdArray<double, 1> const& rowUppPen);
  void FeasRelax(bool relaxVars, bool relaxCons);

  void SetMipStart(int count, double const* values);
  void SetMipStart(Var const& var, double value);
  void SetMipStart(VarArray const& vars, double const* values);
  void LoadMipStart();

  // ---- Files (model_files.cpp)

  // By the ending of the path. Write passes over an unknown ending in silence, which is meant.
  void Read(char const* path);
  void Write(char const* path);
  // In the given format, whatever the ending.
  void Transfer(FileFormat const& format, char const* path);
  // Throws std::logic_error for a null path.
  void Transfer(IndexedFileFormat const& format, int index, char const* path);
  ProbBuffer WriteMpsStr();

  // ---- Parameters and attributes (model_parameters.cpp), information of items (model_information.cpp)

  void GetParamInfo(char const* name, int* current, int* def, int* min, int* max);
  void GetParamInfo(char const* name, double* current, double* def, double* min, double* max);
  int GetIntParam(char const* name);
  double GetDblParam(char const* name);
  void SetIntParam(char const* name, int value);
  void SetDblParam(char const* name, double value);
  int GetIntAttr(char const* name);
  double GetDblAttr(char const* name);
  // The kind of a name, -1 for an unknown one.
  int SearchParamAttr(char const* name);

  // Of variables, constraints, quadratic and PSD constraints. `out` takes the live items' values without gaps; the
  // result is their number, -1 on failure.
  template <class Item>
  int GetInfo(char const* name, std::vector<Item> const& items, double* out);
  // Of variables, constraints and PSD constraints.
  template <class Item>
  void SetInfo(char const* name, std::vector<Item> const& items, double const* values, int len);

 private:
  using SparseGetter = int (*)(VORQ_Prob* prob, int count, int const* indices, int* begin, int* counts, int* index,
                               double* value, int capacity, int* required);
  struct TermBatch;
  struct RowBatch;
  struct IndicatorLines;
  class SolveScope;

  VORQ_Prob* Prob() const { return core_->prob->prob; }

  // Records a solver library's code; true for success.
  bool Record(int code, char const* text) {
    if (code == kOk) {
      status.Clear();
      return true;
    }
    SetStatus(status, code, "%s", text);
    return false;
  }
  bool Refuse(char const* text) { return Record(kInvalid, text); }
  // Takes over the failure of another object.
  bool HandOn(Status const& other) { return Record(kInvalid, other.Text()); }

  // ---- Adding: after the solver library's call, with its code.

  // Appends the item that the solver library has just numbered.
  template <class Item, class... Dimension>
  Item& Append(std::string_view name, Dimension... dimension) {
    ItemTable<Item>& table = core_->Table<Item>();
    Item& item = table.items.emplace_back(core_->prob, name, table.count, dimension...);
    ++table.count;
    return item;
  }
  template <class Item, class... Dimension>
  Item Added(int code, char const* text, std::string_view name, Dimension... dimension) {
    if (!Record(code, text)) return Invalid<Item>();
    return Append<Item>(name, dimension...);
  }
  // `dimensions` have one entry for each name.
  template <class Item, class... Dimensions>
  std::vector<Item> AddedAll(int code, char const* text, std::vector<char const*> const& names,
                             Dimensions const*... dimensions) {
    std::vector<Item> added;
    if (!Record(code, text)) return added;
    core_->Table<Item>().items.reserve_more(names.size());
    added.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) added.push_back(Append<Item>(names[i], dimensions[i]...));
    return added;
  }
  // Appends one item a cell of a block.
  template <class Item, int N>
  MatrixObject<Item, N> AppendBlock(BlockNames const& names, NDim<N> const& shape);
  // False, with the failure recorded, for a buffer that is too short.
  bool TakeNames(char const* names, std::size_t length, int count, std::vector<char const*>& result);

  // ---- Terms

  // Makes only the marks of the scratch arrays hold at least `size` entries, which is all that terms need of which none
  // are merged.
  void EnsureMarks(int size);
  // Merges the terms of an expression or a column in place and leaves their indices in `indices_`; the result is their
  // number. `size` bounds the indices of this model's items; those of another model's are made room for, and left to
  // the solver library to judge.
  template <class Terms>
  int Compact(Terms& terms, int size);
  // The same, the indices being appended to a list.
  template <class Terms>
  void Compact(Terms& terms, int size, std::vector<int>& indices);
  // The same to the end of a batch, with the coefficients.
  template <class Terms>
  void Flatten(Terms& terms, int size, TermBatch& batch);
  // The merged terms of a cell, or of an expression that is not to be changed, into `indices_` and `coeffs_`; the
  // result is their number.
  template <class Terms>
  std::size_t Collect(Terms const& terms);
  // The columns of the variables; false, with the failure recorded, at one that is not live.
  bool LiveColumns(VarArray const& vars, std::vector<int>& cols);

  // ---- Reading back

  // The required-size protocol: `ask(int* required)`, then `fetch(int capacity)`, each giving a code.
  template <class Ask, class Fetch>
  bool ReadTwice(Ask ask, char const* sizeFailed, Fetch fetch, char const* dataFailed) {
    int required = 0;
    return Record(ask(&required), sizeFailed) && Record(fetch(std::max(required, 0)), dataFailed);
  }
  // Reads `count` rows or columns; null `indices` means all in order.
  bool ReadLines(SparseGetter get, int count, int const* indices, char const* sizeFailed, char const* dataFailed,
                 SparseLines& lines);
  // Adds terms to an expression or a column, up to an index that this model does not know.
  template <class Item, class Terms>
  void AddTerms(std::span<int const> indices, std::span<double const> coeffs, Terms& terms);
  // The same with the elements of one line.
  template <class Item, class Terms>
  void AddLine(SparseLines const& lines, std::size_t line, Terms& terms);
  // Builders of constraints that are lists of variables; an empty array stands for all live items.
  template <class Builder, class Item>
  std::vector<Builder> GetVarListBuilders(VarListReader const& reader, std::vector<Item> const& items);
  // Completes the builder of a row whose terms are in place, `linear` being the part with the constant. A failure of
  // the item becomes the model's.
  template <class Builder, class Item>
  bool AddBounds(Builder& builder, Expr& linear, Item& constr);

  // ---- Calls on live items only

  // One builder for each live item, in order, until a lookup fails or fill(item, builder) gives false.
  template <class Item, class Builder, class Fill>
  std::vector<Builder> BuildersOfLive(Fill fill);

  template <class Item>
  static std::vector<int> LiveIndices(std::vector<Item> const& items);
  // Reads one value an item without gaps; the result is the number of live items, whatever the outcome.
  template <class Item, class T>
  int ReadLive(ItemReader<T> read, std::vector<Item> const& items, T* out, char const* text);
  // False, with the failure recorded, if an item is not live.
  template <class Item>
  bool CheckLive(Item const& item);

  // ---- Helpers of single topics

  // Carries out removals, then calls `function` with the problem and `arguments`.
  template <class Function, class... Arguments>
  bool FlushAndCall(char const* text, Function function, Arguments... arguments) {
    return ApplyRemovals() && Record(function(Prob(), arguments...), text);
  }
  template <class Item>
  bool RemoveMarked();
  template <class Item>
  bool ReloadTable(ModelCore& target, std::vector<int> const& dims);
  template <class Item>
  bool CloneTable(ModelCore& copy);
  bool TellColumnCount();
  Constraint AddRow(Expr& expr, int sense, double bound, double upper, std::string const& name);
  int FlattenBuilders(ConstrBuilderArray& builders, RowBatch& batch);
  // The rows of a block in one call. `upper` counts for ranges.
  template <int N>
  MConstr<N> AddRowBlock(MLinExpr<N> const& expr, char sense, double upper, char const* prefix);
  // One item a cell by add(cell, name), up to the first that is refused.
  template <class Item, class Cell, int N, class Add>
  MatrixObject<Item, N> AddOneByOne(MatrixObject<Cell, N> const& block, char const* prefix, char const* sizeFailed,
                                    Add&& add);
  bool CheckIndicator(Var const& var, char sense);
  GenConstr AddIndicator(Var const& var, int value, double const* coeffs, char sense, double rhs, int type,
                         char const* name);
  void ReplaceObjective(double const* coeffs, double constant, int sense);
  PsdConstraint AddPsdRow(PsdExpr& expr, int sense, double bound, double upper, std::string const& name);
  // Makes a matrix of each coefficient; false at one that fails, those before it staying.
  bool AddMatrices(std::vector<SymMatExpr> const& coeffs, std::vector<int>& matrices, int* dim = nullptr);
  // Carries out removals and reads what an infinite bound is. False if there is nothing to relax.
  bool BeginFeasRelax(std::size_t varCount, std::size_t constrCount, double& infinite);
  void RelaxAll(VarArray const& vars, ConstrArray const& cons, double const* const (&penalties)[4], double infinite);
  template <class Item, class Cell, class Step>
  std::vector<Item> AddEachRow(MatrixObject<Cell, 2> const& block, Step addCone);
  struct AffineConeData;
  bool FlattenPsdTerms(MPsdExpr<1> const& exprs, AffineConeData& data);
  AffineCone AddAffineConeData(AffineConeData const& data, std::string const& name);
  bool ReadAffineCone(int index, AffineConeData& data);
  bool MakeAffineRow(AffineConeData const& data, std::size_t place, PsdExpr& row);
  template <class Reader>
  SymMatrix GetMatrix(Reader read, char const* failed);
  // Adds the term of an item and a matrix, both found by index. False after a failure.
  template <class Item, class Expression>
  bool AddMatrixTerm(int item, int matrix, Expression& expr);
  bool CheckMatrix(SymMatrix const& mat);
  bool CheckPsdTerms(PsdExpr const& expr);
  bool CheckLmiConstraint(LmiConstraint const& constr);
  // Checks a matrix that is to become a coefficient of an LMI constraint, or its constant.
  bool CheckLmiMatrix(LmiConstraint const& constr, SymMatrix const& mat);
  double ReadQuadRow(QConstraint const& constr, QConstrBuilder& builder);
  void AddQuadraticTerms(std::span<int const> rows, std::span<int const> cols, std::span<double const> coeffs,
                         QuadExpr& expr);
  bool ReadIndicators(int count, int const* indices, char const* sizeFailed, char const* dataFailed,
                      IndicatorLines& lines);
  bool MakeBuilder(IndicatorLines const& lines, std::size_t line, GenConstrBuilder& builder);
  bool ResolveName(char const* name, NameRule const& rule, std::string& canonical);
  // A number by its name, `otherwise` on failure.
  template <class T>
  T ReadNamed(char const* name, NameRule const& rule, int (*read)(VORQ_Prob*, char const*, T*), char const* text,
              T otherwise);
  // Reads in order up to the first failure.
  template <class T>
  void ReadAllNamed(char const* name, NameRule const& rule, NamedRead<T> const (&reads)[4], char const* text);

  SharedPtr<ModelCore> core_;
  ColumnCountListener columnCountListener_;
  // Scratch, one entry for each column or row. Between operations the marks and positions are all zero.
  std::vector<double> denseVal_;
  std::vector<unsigned char> denseFlag_;
  std::vector<int> denseIdx_;
  std::vector<int> indices_;
  std::vector<double> coeffs_;
  // Set while an operation runs that another thread may interrupt.
  std::atomic<bool> solving_{false};
};

}  // namespace Vorq
