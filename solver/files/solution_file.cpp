// Reading and writing the values of columns.
#include "solver/files/solution_file.hpp"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "frame/vorq_solver.h"
#include "solver/files/file_names.hpp"

namespace vorqsolver {
namespace {

std::vector<std::string> ColumnNames(ProblemData const& data, Warnings& warnings) {
  NameGroup const columns[] = {{"column", "C", &data.columns.names, data.columns.Count()}};
  return std::move(FitNames(kLineNames, columns, warnings)[0]);
}

}  // namespace

ReadValues ReadSolution(TextSource const& source, ProblemData const& data) {
  Warnings ignored;  // the writer told of these names
  std::vector<std::string> const names = ColumnNames(data, ignored);
  std::unordered_map<std::string_view, std::size_t> index;
  for (std::size_t j = 0; j < names.size(); ++j) index.emplace(names[j], j);

  ReadValues read{std::vector<double>(names.size(), VORQ_UNDEFINED)};
  for (LineReader lines(source); lines.Next();) {
    auto const line = Trim(lines.Line());
    if (line.empty() || line.starts_with('#')) continue;
    // The value is the last word: names may have blanks.
    auto const blank = line.find_last_of(" \t");
    if (blank == std::string_view::npos) lines.Refuse("a line needs a name and a value");
    auto const name = Trim(line.substr(0, blank));
    double const value = FiniteNumberAt(source, lines.Number(), line.substr(blank + 1));
    auto const found = index.find(name);
    if (found == index.end()) RefuseContent(source, lines.Number(), "unknown column '", name, "'");
    if (read.values[found->second] != VORQ_UNDEFINED) lines.Refuse("column '", name, "' has two values");
    read.values[found->second] = value;
    ++read.count;
  }
  return read;
}

WrittenFile WriteSolution(ProblemData const& data, std::span<double const> values, std::optional<double> objective) {
  WrittenFile written;
  if (objective) written.text += Text("# Objective value = ", NumberText(*objective), "\n");
  std::vector<std::string> const names = ColumnNames(data, written.warnings);
  for (std::size_t j = 0; j < names.size(); ++j) {
    if (values[j] != VORQ_UNDEFINED) written.text += Text(names[j], " ", NumberText(values[j]), "\n");
  }
  return written;
}

}  // namespace vorqsolver
