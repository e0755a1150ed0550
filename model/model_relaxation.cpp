// Feasibility relaxation: penalties go to the solver library in its order and of full length.
#include "model/model.hpp"

namespace Vorq {
namespace {

constexpr char const* kFeasRelaxFailed = "Fail to call FeasRelax";

// The penalties of the given items at their indices, `otherwise` everywhere else. Items that are not of this model's
// range are passed over.
template <class Item>
std::vector<double> Scatter(std::vector<Item> const& items, double const* penalties, int size, double otherwise) {
  std::vector<double> scattered(static_cast<std::size_t>(size), otherwise);
  for (std::size_t i = 0; i < items.size(); ++i) {
    int const index = items[i].Idx();
    if (index >= 0 && index < size) scattered[static_cast<std::size_t>(index)] = penalties[i];
  }
  return scattered;
}

}  // namespace

void Model::FeasRelax(VarArray const& vars, double const* colLowPen, double const* colUppPen, ConstrArray const& cons,
                      double const* rowBndPen, double const* rowUppPen) {
  if (!ApplyRemovals() || (vars.empty() && cons.empty())) return;
  double infinite = 0.0;
  VORQ_GetDblParam(Prob(), "InfBound", &infinite);

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

void Model::FeasRelax(bool relaxVars, bool relaxCons) {
  if (!ApplyRemovals() || (!relaxVars && !relaxCons)) return;
  std::vector<double> const cols(static_cast<std::size_t>(Count<Var>()), 1.0);
  std::vector<double> const rows(static_cast<std::size_t>(Count<Constraint>()), 1.0);
  double const* const col = relaxVars ? cols.data() : nullptr;
  double const* const row = relaxCons ? rows.data() : nullptr;
  Record(VORQ_FeasRelax(Prob(), col, col, row, nullptr), kFeasRelaxFailed);
}

}  // namespace Vorq
