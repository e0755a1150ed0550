// How builders take over what they are given.
#include "items/builders.hpp"

namespace Vorq {

void SosBuilder::Set(std::vector<Var> const& variables, double const* newWeights, int newType) {
  type = newType;
  MakeRoomForMore(variables.size(), vars, weights);
  for (std::size_t i = 0; i < variables.size(); ++i) {
    vars.push_back(variables[i]);
    weights.push_back(newWeights == nullptr ? static_cast<double>(vars.size()) : newWeights[i]);
  }
}

void ConeBuilder::Set(std::vector<Var> const& variables, int newType) {
  type = newType;
  vars.insert(vars.end(), variables.begin(), variables.end());
}

void GenConstrBuilder::Set(Var const& variable, int value, Expr const& expression, char newSense, int newType) {
  binVar = Expr(variable, 1.0);
  binVal = value;
  expr = expression;
  sense = newSense;
  type = newType;
}

}  // namespace Vorq
