// What other expressions take over from the cells of blocks.
#include "handles/m_expressions.hpp"

#include "matrix/psd_cell.hpp"
#include "vorqmodel/exports.h"

void VorqPsdExpr::AddMExpression(Vorq::IMExpression* cell, double mult) {
  if (cell != nullptr) Vorq::AddMExpression(Impl(), Vorq::Unwrap(cell), mult);
}

extern "C" {

Vorq::IPsdExpr* CreatePsdExpr6(Vorq::IMExpression* cell) {
  return Vorq::Wrap<Vorq::IPsdExpr>(Vorq::PsdExprOf(Vorq::Unwrap(cell)));
}

}  // extern "C"
