// What a problem holds, and its description in words.
#include "solver/engines/problem_class.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace vorqsolver {

ProblemClass ProblemClass::Relaxed() const {
  ProblemClass relaxed = *this;
  relaxed.integers = relaxed.semicontinuous = relaxed.sos = relaxed.indicators = false;
  relaxed.sideRows = relaxed.callback = false;
  return relaxed;
}

std::string ProblemClass::Describe() const {
  std::pair<bool, char const*> const parts[] = {
      {integers, "integer columns"},
      {semicontinuous, "semicontinuous columns"},
      {sos, "SOS constraints"},
      {indicators, "indicator constraints"},
      {quadraticObjective, "a quadratic objective"},
      {quadraticRows, "quadratic constraints"},
      {cones, "second-order cones"},
      {expCones, "exponential cones"},
      {affineCones, "affine cones"},
      {psd, "PSD columns"},
      {lmi, "LMI constraints"},
      {sideRows, "lazy constraints or user cuts"},
      {callback, "a callback"},
  };
  std::vector<char const*> present;
  for (auto const& [is, name] : parts) {
    if (is) present.push_back(name);
  }
  if (present.empty()) return "linear rows";
  std::string text = present.front();
  for (std::size_t i = 1; i < present.size(); ++i) {
    text += i + 1 < present.size() ? ", " : " and ";
    text += present[i];
  }
  return text;
}

ProblemClass Classify(ProblemData const& data) {
  ProblemClass result;
  for (char const type : data.columns.type) {
    result.integers |= type == 'B' || type == 'I';
    result.semicontinuous |= type == 'S' || type == 'N';
  }
  result.sos = !data.soss.empty();
  result.indicators = !data.indicators.empty();
  result.quadraticObjective = !data.objective.quadratic.empty();
  result.quadraticRows = !data.quadConstraints.empty();
  result.cones = !data.cones.empty();
  result.expCones = !data.expCones.empty();
  result.affineCones = !data.affineCones.empty();
  result.psd = !data.psdDims.empty() || !data.psdConstraints.empty();
  result.lmi = !data.lmiConstraints.empty();
  result.sideRows = result.IsDiscrete() && (data.lazyConstraints.Count() > 0 || data.userCuts.Count() > 0);
  return result;
}

}  // namespace vorqsolver
