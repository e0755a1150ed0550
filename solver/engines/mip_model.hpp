// MipModel: a mixed-integer problem in what the MIP engine knows: linear rows, integer columns and SOS over nonnegative
// columns. Semicontinuous columns and indicators become such by further rows and columns, behind those of the problem.
#pragma once

#include <span>
#include <vector>

#include "solver/engines/linear_model.hpp"
#include "solver/parameters/parameter_set.hpp"

namespace vorqsolver {

class MipModel {
 public:
  struct Set {
    int type;
    std::vector<int> cols;  // in the order of their weights
  };

  MipModel(ProblemData const& data, ParameterSet const& parameters);

  // Starts from rows and columns that stem from `data`, such as those without lazy constraints and user cuts.
  MipModel(ProblemData const& data, ParameterSet const& parameters, LinearModel start);

  // Whether an integer column has no lower or no upper bound, not even by the rows. Cbc's and Cgl's code goes wrong on
  // such columns: cuts and preprocessing lose solutions, and assertions end the process.
  bool HasOpenIntegers() const;

  LinearModel linear;
  std::vector<char> isInteger;  // one for each column of `linear`
  std::vector<Set> sets;

 private:
  void TightenIntegers();
  int AddBinary();
  int Complement(int binary);
  int AsSetMember(int col);
  void AddSemicontinuous(int col, double lower, double upper);
  void AddSos(Sos const& sos);
  void AddIndicator(Indicator const& indicator);
  void AddImplication(int binary, bool whenOne, std::span<LinearTerm const> terms, double rhs);
  double GreatestActivity(std::span<LinearTerm const> terms) const;

  // Bounds of the problem's columns that hold at every point that satisfies the rows.
  std::vector<double> impliedLower_;
  std::vector<double> impliedUpper_;
};

// The columns of an SOS in the order of their weights, or as given where there are none.
std::vector<int> OrderedMembers(Sos const& sos);

// The rows `lower <= terms <= upper` that the sense and right side of an indicator stand for.
struct Side {
  double lower;
  double upper;
};
Side SideOf(Indicator const& indicator);

// The linear problem that remains once all that is discrete stands as in `values`: integer columns fixed, columns that
// are 0 in semicontinuity or SOS fixed, the active indicators' rows added.
LinearModel FixDiscrete(ProblemData const& data, std::span<double const> values, double tolerance);

}  // namespace vorqsolver
