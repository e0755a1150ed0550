// The table of a MIP solve in the log.
#include "solver/engines/mip_progress.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace vorqsolver {

namespace {

constexpr double kSecondsBetweenLines = 3.0;

template <class... Values>
std::string Cell(char const* format, Values... values) {
  char text[40];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

}  // namespace

double RelativeGap(double objective, double bound) {
  double const difference = std::abs(objective - bound);
  if (difference == 0.0) return 0.0;
  double const gap = difference / std::max(std::abs(objective), 1e-10);
  return std::min(gap, kInfinity);
}

void MipProgress::Update(int nodes, int open, double bound) {
  nodes_ = std::max(nodes_, nodes);
  open_ = open;
  if (std::abs(bound) < kInfinity) bound_ = std::max(bound_, bound);
}

void MipProgress::Incumbent(double objective, char mark) {
  if (objective >= incumbent_) return;
  incumbent_ = objective;
  task_.stop.Tighten(task_.parameters.Dbl(DblParam::kSolTimeLimit));
  Line(mark);
}

void MipProgress::Tick() {
  if (task_.stop.Elapsed() >= lastLine_ + kSecondsBetweenLines) Line(' ');
}

void MipProgress::Line(char mark) {
  lastLine_ = task_.stop.Elapsed();
  if (!hasHeader_) task_.log.Line("       Nodes      Open         Incumbent             Bound       Gap     Time");
  hasHeader_ = true;
  double const sign = task_.data.objective.sense < 0 ? -1.0 : 1.0;
  double const constant = task_.data.objective.constant;
  auto const value = [&](double engineValue) {
    return std::abs(engineValue) < kInfinity ? Cell("%.9e", sign * engineValue + constant) : std::string("--");
  };
  bool const hasGap = std::abs(incumbent_) < kInfinity && std::abs(bound_) < kInfinity;
  double const gap =
      hasGap ? 100.0 * RelativeGap(sign * incumbent_ + constant, sign * std::min(bound_, incumbent_) + constant) : 0.0;
  std::string const gapText = !hasGap ? "--" : gap < 1e4 ? Cell("%.2f%%", gap) : ">9999%";
  task_.log.Print("%c %10d %9d %17s %17s %9s %7.1fs", mark, nodes_, open_, value(incumbent_).c_str(),
                  value(bound_).c_str(), gapText.c_str(), lastLine_);
}

}  // namespace vorqsolver
