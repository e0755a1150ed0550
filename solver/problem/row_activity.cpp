// Activities and slacks of linear rows.
#include "solver/problem/row_activity.hpp"

namespace vorqsolver {

double RowActivity(Rows const& rows, int row, std::span<double const> values) {
  auto const [cols, coefs] = rows.matrix.Row(row);
  double activity = 0.0;
  for (std::size_t k = 0; k < cols.size(); ++k) activity += coefs[k] * values[static_cast<std::size_t>(cols[k])];
  return activity;
}

double RowSlack(Rows const& rows, int row, std::span<double const> values) {
  auto const place = static_cast<std::size_t>(row);
  if (rows.upper[place] < kInfinity) return rows.upper[place] - RowActivity(rows, row, values);
  return rows.lower[place] > -kInfinity ? RowActivity(rows, row, values) - rows.lower[place] : kInfinity;
}

}  // namespace vorqsolver
