// The members that an irreducible infeasible set is made of, and the problem that a set of them states.
//
// Types of columns are no members: they belong to what a column is, and hold in every set. So do the bounds 0 and 1 of
// a binary column, the possible 0 of a semicontinuous one, lazy constraints, and whatever is not linear.
#pragma once

#include <span>
#include <vector>

#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/problem_data.hpp"
#include "solver/problem/solution.hpp"

namespace vorqsolver {

enum class MemberKind { kRowLower, kRowUpper, kIndicator, kSos, kColLower, kColUpper };

struct Member {
  MemberKind kind;
  int index;

  bool operator==(Member const&) const = default;
};

using Members = std::vector<Member>;

// The interval that contains all values that a column may have, and what is left of it without one of its bounds.
struct Interval {
  double lower;
  double upper;
};
Interval HullOf(Columns const& columns, int col);
double WithoutLower(char type, double lower);
double WithoutUpper(char type, double upper);

// Everything in the problem that a set may do without: rows, indicators, SOS, then bounds of columns.
Members AllMembers(ProblemData const& data);

// What the members say, and what holds in every set, without an objective. Columns that nothing speaks of are left out
// where all is linear.
struct MemberProblem {
  ProblemData data;
  std::vector<int> cols;  // of the whole problem, by column of `data`
  std::vector<int> rows;  // likewise; -1 for a lazy constraint that became a row
};
MemberProblem StateMembers(ProblemData const& data, Members const& members, bool lazyAsRows);

// The members that the Farkas ray of a stated problem rests upon; together they are infeasible, too.
Members MembersOfRay(ProblemData const& data, MemberProblem const& stated, std::span<double const> ray);

// One flag for each member: whether the point violates it by more than the tolerance, which is absolute. Relative to
// the size of a row's terms, points would pass that a solve does not accept.
std::vector<char> Violated(ProblemData const& data, Members const& members, std::span<double const> values,
                           double tolerance);

// From and to the flags of a problem.
Iis ToIis(ProblemData const& data, Members const& members);
Members ToMembers(Iis const& iis);

}  // namespace vorqsolver
