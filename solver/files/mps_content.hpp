// MpsContent: what the sections of an MPS file state, with lines for failures, until the whole file has been read; and
// the step that makes a problem of it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

// Where a row of the ROWS section goes.
enum class MpsRowUse { kLinear, kObjective, kDropped, kLazy, kCut, kQuadratic, kIndicator };

// Names are views of the text that is read.
struct MpsRow {
  std::string_view name;
  char sense = 'N';
  MpsRowUse use = MpsRowUse::kLinear;
  std::size_t line = 0;
  bool hasRhs = false;
  double rhs = 0.0;
  bool hasRange = false;
  double range = 0.0;
  int lastCol = -1;  // the column that last had an entry here
  int indicatorCol = -1;
  int indicatorVal = 1;
};

struct MpsColumn {
  std::string_view name;
  bool integer = false;  // between integer markers
  char type = 'C';
  double lower = 0.0;
  double upper = kInfinity;
  double objective = 0.0;
  unsigned statedBounds = 0;  // one bit for each kind of bound
  bool lowerStated = false;
  int lastSos = -1;  // the set that last named it
};

struct MpsEntry {
  int row;
  int col;
  double value;
};

// An entry of a section of quadratic terms. `constraint` is a row, or -1 for the objective.
struct MpsQuadEntry {
  int constraint;
  int first;
  int second;
  double value;
  std::size_t line;
};

// Both triangles are stated, or one stands for both.
enum class MpsTriangles { kBoth, kOne };

struct MpsQuadSection {
  MpsTriangles triangles;
  double scale;  // of the quadratic form: 0.5 where the section states the Hessian matrix, else 1
  std::vector<MpsQuadEntry> entries;
};

struct MpsContent {
  std::string problemName;
  int sense = 1;
  double objectiveConstant = 0.0;
  std::vector<MpsRow> rows;
  std::vector<MpsColumn> columns;
  std::vector<MpsEntry> entries;  // by columns
  std::vector<MpsQuadSection> quadSections;
  std::vector<Sos> soss;
  Warnings warnings;
};

// Fails where statements do not fit together, such as a range of a quadratic constraint.
ProblemData ToProblemData(MpsContent& content, TextSource const& source);

}  // namespace vorqsolver
