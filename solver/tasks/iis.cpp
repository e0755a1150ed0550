// The way from a problem to its irreducible infeasible set: plain causes first, then the deletion filter.
#include "solver/tasks/iis.hpp"

#include <algorithm>
#include <string>

#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"
#include "solver/tasks/iis_filter.hpp"
#include "solver/tasks/iis_plain.hpp"
#include "solver/tasks/running.hpp"
#include "solver/tasks/solve_report.hpp"
#include "solver/tasks/subproblem.hpp"
#include "solver/tasks/validate.hpp"
#include "solver/tasks/watchdog.hpp"

namespace vorqsolver {

namespace {

constexpr int kBothEnds = 1;            // the value of IISMethod that looks for a smaller set
constexpr std::size_t kMostLines = 40;  // of members in the log

struct Found {
  Members members;
  bool irreducible = true;
};

// The members of a part of the problem, in the numbers of the whole problem. Both lists are in the order of kinds and
// positions, so that they correspond one by one.
Members ToWhole(Members const& chosen, Members const& ofPart, Members const& ofWhole) {
  Members whole;
  for (auto const& member : chosen) {
    auto const place = std::ranges::find(ofPart, member) - ofPart.begin();
    whole.push_back(ofWhole[static_cast<std::size_t>(place)]);
  }
  return whole;
}

Found Filter(ProblemData const& data, Members members, Problem& problem, StopSignal& stop) {
  DeletionFilter filter(data, problem, stop);
  filter.Run(members);
  return {std::move(members), filter.IsIrreducible()};
}

// Filters the members within the part of the problem that they state, which may be much smaller.
Found FilterPart(Problem& problem, Members members, StopSignal& stop) {
  members = ToMembers(ToIis(problem.data, members));
  MemberProblem const part = StateMembers(problem.data, members, false);
  Members const ofPart = AllMembers(part.data);
  Found found = Filter(part.data, ofPart, problem, stop);
  if (problem.parameters.Int(IntParam::kIISMethod) == kBothEnds && !stop.Asked()) {
    Found other = Filter(part.data, {ofPart.rbegin(), ofPart.rend()}, problem, stop);
    if (other.irreducible && other.members.size() < found.members.size()) found = std::move(other);
  }
  found.members = ToWhole(found.members, ofPart, members);
  return found;
}

[[noreturn]] void RefuseUnproved(StopSignal& stop) {
  stop.Asked();
  char const* const cause = stop.Reason() == SolveStatus::kInterrupted ? "the computation was interrupted"
                            : stop.Reason() == SolveStatus::kTimeLimit ? "the time limit came"
                                                                       : "the search gave up";
  Refuse("There is no IIS: ", cause, " before the problem was proved infeasible");
}

Found FindSet(Problem& problem, StopSignal& stop) {
  auto const cause = FindPlainCause(problem.data, problem.parameters);
  if (!cause.members.empty()) {
    problem.log.Line("A plain cause: " + cause.text);
    // Lazy constraints are members of no set, and beside them fewer members may do.
    if (problem.data.lazyConstraints.Count() > 0) return FilterPart(problem, cause.members, stop);
    return {cause.members, true};
  }
  Members members = AllMembers(problem.data);
  auto const all = members.size();
  DeletionFilter judge(problem.data, problem, stop);
  // A search that took long need not be done again, unless rows took part that no set has.
  auto const& result = problem.result;
  bool const isProved = result.isMip && result.mipStatus == SolveStatus::kInfeasible &&
                        !problem.callbackSession.Wants(-1) && problem.data.userCuts.Count() == 0;
  switch (isProved ? DeletionFilter::Verdict::kInfeasible : judge.Judge(members)) {
    case DeletionFilter::Verdict::kFeasible: Refuse("There is no IIS: the problem is feasible");
    case DeletionFilter::Verdict::kUnknown: RefuseUnproved(stop);
    case DeletionFilter::Verdict::kInfeasible: break;
  }
  problem.log.Print("Proved infeasible by %zu of %zu bounds and constraints, %.2fs", members.size(), all,
                    stop.Elapsed());
  return FilterPart(problem, std::move(members), stop);
}

std::string TextOf(ProblemData const& data, Member member) {
  switch (member.kind) {
    case MemberKind::kRowLower:
      return Text(Called("row", data.rows.names, member.index), " >= ", data.rows.lower[member.index]);
    case MemberKind::kRowUpper:
      return Text(Called("row", data.rows.names, member.index), " <= ", data.rows.upper[member.index]);
    case MemberKind::kColLower:
      return Text(Called("column", data.columns.names, member.index), " >= ", data.columns.lower[member.index]);
    case MemberKind::kColUpper:
      return Text(Called("column", data.columns.names, member.index), " <= ", data.columns.upper[member.index]);
    case MemberKind::kIndicator: return Called("indicator", data.indicatorNames, member.index);
    case MemberKind::kSos: return Text("SOS ", member.index);
  }
  return {};
}

void LogSet(Problem& problem, Found const& found) {
  auto& log = problem.log;
  auto const count = [&](MemberKind first, MemberKind second) {
    return std::ranges::count_if(found.members, [&](Member m) { return m.kind == first || m.kind == second; });
  };
  auto const others = count(MemberKind::kIndicator, MemberKind::kSos);
  log.Line(Text("IIS: ", count(MemberKind::kRowLower, MemberKind::kRowUpper), " row sides, ",
                count(MemberKind::kColLower, MemberKind::kColUpper), " column bounds",
                others > 0 ? Text(", ", others, " SOS and indicators") : std::string(),
                found.irreducible ? ", irreducible" : ", not proved irreducible"));
  for (std::size_t k = 0; k < found.members.size() && k < kMostLines; ++k) {
    log.Line("  " + TextOf(problem.data, found.members[k]));
  }
  if (found.members.size() > kMostLines) log.Line(Text("  and ", found.members.size() - kMostLines, " more"));
  if (found.members.empty()) log.Line("  What an IIS has no members for is infeasible by itself");
}

}  // namespace

void ComputeIis(Problem& problem) {
  Running const running(problem);
  auto const begin = Clock::now();
  CheckNoLostColumns(problem.data);
  auto const what = Classify(problem.data);
  if (FindEngine(what) == nullptr) {
    throw Failure(VORQ_INTERNAL, "No engine of this version proves a problem infeasible with " + what.Describe());
  }
  Validate(problem.data);
  problem.result.iis = Iis();
  LogTitle(problem, "Computing an IIS of");
  Watchdog const watchdog(problem.log);
  StopSignal stop(problem.interrupted, begin, problem.parameters.Dbl(DblParam::kTimeLimit));
  Found const found = FindSet(problem, stop);
  Iis iis = ToIis(problem.data, found.members);
  iis.available = true;
  iis.irreducible = found.irreducible;
  iis.seconds = stop.Elapsed();
  problem.result.iis = std::move(iis);
  LogSet(problem, found);
  problem.log.Print("  Time         %.2fs", problem.result.iis.seconds);
}

ProblemData IisProblem(ProblemData const& data, Iis const& iis) {
  return StateMembers(data, ToMembers(iis), false).data;
}

}  // namespace vorqsolver
