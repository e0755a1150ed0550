// CbfContent: what the sections of a CBF file state, with lines for failures, until the whole file has been read; the
// step that makes a problem of it; and the names of the domains, which reader and writer share.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "solver/files/file_model.hpp"
#include "solver/files/matrix_entries.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

enum class CbfDomain { kFree, kPositive, kNegative, kZero, kQuadratic, kRotated, kExponential, kDualExponential };

struct CbfDomainName {
  std::string_view name;
  CbfDomain domain;
  int coneType;  // that of a problem's cone, 0 for a domain of single entries
  int version;   // of the format that first had it
};

inline constexpr CbfDomainName kCbfDomains[] = {
    {"F", CbfDomain::kFree, 0, 1},          {"L+", CbfDomain::kPositive, 0, 1},
    {"L-", CbfDomain::kNegative, 0, 1},     {"L=", CbfDomain::kZero, 0, 1},
    {"Q", CbfDomain::kQuadratic, 1, 1},     {"QR", CbfDomain::kRotated, 2, 1},
    {"EXP", CbfDomain::kExponential, 3, 2}, {"EXP*", CbfDomain::kDualExponential, 4, 3},
};

// So many entries in a row, of columns or of constraints, lie in one domain.
struct CbfCone {
  CbfDomainName const* domain;
  int size;
};

struct CbfScalarEntry {
  int row;
  int col;
  double value;
  std::size_t line;
};

struct CbfContent {
  int sense = 1;
  double objectiveConstant = 0.0;
  int columnCount = 0;
  int constraintCount = 0;
  std::vector<CbfCone> columnCones;
  std::vector<CbfCone> constraintCones;
  std::vector<int> integers;
  std::vector<int> psdDims;
  std::vector<int> lmiDims;
  std::vector<CbfScalarEntry> objective;     // col, value
  std::vector<CbfScalarEntry> coefficients;  // row, col, value
  std::vector<CbfScalarEntry> constants;     // row, value
  std::vector<MatrixEntry> psdObjective;     // member is a PSD variable
  std::vector<MatrixEntry> psdCoefficients;  // owner is a constraint, member a PSD variable
  std::vector<MatrixEntry> lmiEntries;       // owner is an LMI constraint, member a column, -1 for the constant
};

// Fails where an entry is stated twice.
ProblemData ToProblemData(CbfContent& content, TextSource const& source);

}  // namespace vorqsolver
