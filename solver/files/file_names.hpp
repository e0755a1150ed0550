// FitNames: the names under which items stand in a file: as they are where the format can hold them, else made fit.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "solver/files/file_model.hpp"

namespace vorqsolver {

// What a format can hold. Of a name that is not fit, each character that is not kept becomes '_'; it gets a '_' in
// front where it may not begin so, and one behind where it is still not fit.
struct NameRules {
  bool (*isFit)(std::string_view name);
  bool (*keeps)(char c);
  bool (*begins)(char c);
};

// The items of one kind; unnamed ones get the prefix and their number from 1, such as "C7".
struct NameGroup {
  char const* kind;
  char const* prefix;
  NameList const* names;
  int count;
  bool isTold = true;  // whether changes are told
};

// The names of each group, unique over all of them: a name that several items bear stays with the first. Changes are
// told in `warnings`, the first of them one by one.
std::vector<std::vector<std::string>> FitNames(NameRules const& rules, std::span<NameGroup const> groups,
                                               Warnings& warnings);

// Names in MPS files: no blanks, no control characters, not the word that marks integer columns.
extern NameRules const kMpsNames;

// Names at the head of a line: blanks inside are fit, but not '#' or a blank in front.
extern NameRules const kLineNames;

// The names of an MPS file. A basis file has the same ones, but those of columns and rows only: it tells of no others.
struct MpsNames {
  std::vector<std::string> columns;
  std::vector<std::string> rows;
  std::vector<std::string> quadConstraints;
  std::vector<std::string> indicators;
  std::vector<std::string> lazyConstraints;
  std::vector<std::string> userCuts;
  std::string objective;
};
MpsNames FitMpsNames(ProblemData const& data, Warnings& warnings);
MpsNames FitBasisNames(ProblemData const& data, Warnings& warnings);

}  // namespace vorqsolver
