// Feasibility relaxation: penalties go to the solver library in its order and of full length.
#include "matrix/block_rows.hpp"
#include "model/solve_scope.hpp"

namespace Vorq {
namespace {

constexpr char const* kFeasRelaxFailed = "Fail to call FeasRelax";

// The penalties of the given items at their indices, `otherwise` everywhere else, and for all items without penalties.
// Items that are not of this model's range are passed over. The result is never null, also without entries.
template <class Item>
std::vector<double> Scatter(std::vector<Item> const& items, double const* penalties, int size, double otherwise) {
  auto const entries = static_cast<std::size_t>(size);
  std::vector<double> scattered;
  scattered.reserve(entries + 1);
  scattered.assign(entries, otherwise);
  for (std::size_t i = 0; i < items.size() && penalties != nullptr; ++i) {
    int const index = items[i].Idx();
    if (index >= 0 && index < size) scattered[static_cast<std::size_t>(index)] = penalties[i];
  }
  return scattered;
}

double const* DataOrNull(std::vector<double> const& values) {
  return values.empty() ? nullptr : values.data();
}

// Never null, also without any: a null array would stand for none to relax.
std::vector<double> Ones(int count) {
  std::vector<double> ones;
  ones.reserve(static_cast<std::size_t>(count) + 1);
  ones.assign(static_cast<std::size_t>(count), 1.0);
  return ones;
}

}  // namespace

bool Model::BeginFeasRelax(std::size_t varCount, std::size_t constrCount, double& infinite) {
  if (!ApplyRemovals() || (varCount == 0 && constrCount == 0)) return false;
  infinite = 0.0;
  VORQ_GetDblParam(Prob(), "InfBound", &infinite);
  return true;
}

void Model::FeasRelax(VarArray const& vars, double const* colLowPen, double const* colUppPen, ConstrArray const& cons,
                      double const* rowBndPen, double const* rowUppPen) {
  SolveScope const scope(*this);
  double infinite = 0.0;
  if (!BeginFeasRelax(vars.size(), cons.size(), infinite)) return;

  std::vector<double> storage[4];
  auto const fill = [&](std::size_t slot, auto const& items, double const* penalties, int size) -> double const* {
    if (items.empty() || penalties == nullptr) return nullptr;
    storage[slot] = Scatter(items, penalties, size, infinite);
    return storage[slot].data();
  };
  double const* const colLow = fill(0, vars, colLowPen, Count<Var>());
  double const* const colUpp = fill(1, vars, colUppPen, Count<Var>());
  double const* const rowBnd = fill(2, cons, rowBndPen, Count<Constraint>());
  double const* const rowUpp = fill(3, cons, rowUppPen, Count<Constraint>());
  Record(VORQ_FeasRelax(Prob(), colLow, colUpp, rowBnd, rowUpp), kFeasRelaxFailed);
}

// Unlike the form with arrays of items, the forms with blocks hand over all four arrays, which is meant.
void Model::RelaxAll(VarArray const& vars, ConstrArray const& cons, double const* const (&penalties)[4],
                     double infinite) {
  std::vector<double> const colLow = Scatter(vars, penalties[0], Count<Var>(), infinite);
  std::vector<double> const colUpp = Scatter(vars, penalties[1], Count<Var>(), infinite);
  std::vector<double> const rowBnd = Scatter(cons, penalties[2], Count<Constraint>(), infinite);
  std::vector<double> const rowUpp = Scatter(cons, penalties[3], Count<Constraint>(), infinite);
  Record(VORQ_FeasRelax(Prob(), colLow.data(), colUpp.data(), rowBnd.data(), rowUpp.data()), kFeasRelaxFailed);
}

void Model::FeasRelax(MVar<1> const& vars, double const* colLowPen, double const* colUppPen, MConstr<1> const& cons,
                      double const* rowBndPen, double const* rowUppPen) {
  SolveScope const scope(*this);
  double infinite = 0.0;
  if (!BeginFeasRelax(vars.GetSize(), cons.GetSize(), infinite)) return;
  RelaxAll(CellList(vars), CellList(cons), {colLowPen, colUppPen, rowBndPen, rowUppPen}, infinite);
}

void Model::FeasRelax(MVar<1> const& vars, NdArray<double, 1> const& colLowPen, NdArray<double, 1> const& colUppPen,
                      MConstr<1> const& cons, NdArray<double, 1> const& rowBndPen,
                      NdArray<double, 1> const& rowUppPen) {
  SolveScope const scope(*this);
  double infinite = 0.0;
  if (!BeginFeasRelax(vars.GetSize(), cons.GetSize(), infinite)) return;

  // One penalty for each item, or none at all.
  auto const take = [this](NdArray<double, 1> const& given, std::uint64_t count, char const* invalidSize,
                           std::vector<double>& penalties) {
    std::uint64_t const size = given.GetSize();
    if (size != 0 && size != 1 && size != count) return Refuse(invalidSize);
    penalties.reserve(count);
    for (std::uint64_t i = 0; i < count && size != 0; ++i) penalties.push_back(given.Get(size == 1 ? 0 : i));
    return true;
  };
  std::vector<double> colLow, colUpp, rowBnd, rowUpp;
  if (take(colLowPen, vars.GetSize(), "colLowPen has invalid size", colLow) &&
      take(colUppPen, vars.GetSize(), "colUppPen has invalid size", colUpp) &&
      take(rowBndPen, cons.GetSize(), "rowBndPen has invalid size", rowBnd) &&
      take(rowUppPen, cons.GetSize(), "rowUppPen has invalid size", rowUpp)) {
    RelaxAll(CellList(vars), CellList(cons),
             {DataOrNull(colLow), DataOrNull(colUpp), DataOrNull(rowBnd), DataOrNull(rowUpp)}, infinite);
  }
}

void Model::FeasRelax(bool relaxVars, bool relaxCons) {
  SolveScope const scope(*this);
  if (!ApplyRemovals() || (!relaxVars && !relaxCons)) return;
  std::vector<double> const cols = Ones(Count<Var>());
  std::vector<double> const rows = Ones(Count<Constraint>());
  double const* const col = relaxVars ? cols.data() : nullptr;
  double const* const row = relaxCons ? rows.data() : nullptr;
  Record(VORQ_FeasRelax(Prob(), col, col, row, nullptr), kFeasRelaxFailed);
}

}  // namespace Vorq
