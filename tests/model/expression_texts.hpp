// Linear expressions as texts, "1 + 2 x + 3 y".
#pragma once

#include <sstream>
#include <string>

#include "tests/support/objects.hpp"

namespace vorqtest {

inline std::string Text(Vorq::IExpr* expr) {
  std::ostringstream out;
  out << expr->GetConstant();
  for (int i = 0; i < static_cast<int>(expr->GetSize()); ++i) {
    out << " + " << expr->GetCoeff(i) << ' ' << Own(expr->GetVar(i))->GetName();
  }
  return out.str();
}

}  // namespace vorqtest
