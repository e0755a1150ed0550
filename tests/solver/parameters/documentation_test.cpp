// What is said of the parameters against what is so: the effect that the table states against the sources that read
// them, and docs/parameters.md against the tables.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "solver/parameters/parameter_table.hpp"
#include "solver/problem/attributes.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

std::string Content(std::filesystem::path const& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The words that stand behind `mark` in `text`.
void CollectBehind(std::string const& text, std::string_view mark, std::set<std::string>& words) {
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at)) {
    at += mark.size();
    std::size_t end = at;
    while (end < text.size() && std::isalnum(static_cast<unsigned char>(text[end])) != 0) ++end;
    words.insert(text.substr(at, end - at));
  }
}

// The parameters that the solver library reads, by enumerator or by name.
std::set<std::string> ReadParameters() {
  std::set<std::string> names;
  std::filesystem::path const root = std::filesystem::path(VORQ_SOURCE_DIR) / "solver";
  for (auto const& entry : std::filesystem::recursive_directory_iterator(root)) {
    std::filesystem::path const& path = entry.path();
    bool const isSource = path.extension() == ".cpp" || path.extension() == ".hpp";
    if (!isSource || path.parent_path() == root / "parameters" || path.filename() == "attributes.cpp") continue;
    std::string const text = Content(path);
    for (char const* mark : {"DblParam::k", "IntParam::k", "GetDbl(\"", "GetInt(\""}) CollectBehind(text, mark, names);
  }
  return names;
}

TEST(ParameterTable, ExactlyTheParametersThatTheSourcesReadHaveAnEffect) {
  std::set<std::string> const read = ReadParameters();
  auto const check = [&read](auto const& row) {
    EXPECT_EQ(row.effect == ParamEffect::kUsed, read.contains(row.name))
        << row.name << ": correct its row in solver/parameters and in docs/parameters.md";
  };
  for (auto const& row : DblParamRows()) check(row);
  for (auto const& row : IntParamRows()) check(row);
}

std::string Trimmed(std::string const& text) {
  std::size_t const begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

// The cells of the table rows of the page, by the name in the first cell.
std::map<std::string, std::vector<std::string>> PageRows() {
  std::map<std::string, std::vector<std::string>> rows;
  std::istringstream page(Content(std::filesystem::path(VORQ_SOURCE_DIR) / "docs" / "parameters.md"));
  for (std::string line; std::getline(page, line);) {
    if (!line.starts_with("| `")) continue;
    std::vector<std::string> cells;
    std::istringstream text(line.substr(1));
    for (std::string cell; std::getline(text, cell, '|');) cells.push_back(Trimmed(cell));
    std::string const name = cells.front().substr(1, cells.front().size() - 2);
    EXPECT_TRUE(rows.emplace(name, cells).second) << name << " stands twice";
  }
  return rows;
}

template <class T>
void ExpectParameterRow(std::map<std::string, std::vector<std::string>> const& page, ParamRow<T> const& row) {
  ASSERT_TRUE(page.contains(row.name)) << row.name;
  std::vector<std::string> const& cells = page.at(row.name);
  ASSERT_EQ(cells.size(), 4u) << row.name;
  EXPECT_EQ(cells[1], ToText(row.range.standard)) << row.name;
  EXPECT_EQ(cells[2], Text(row.range.minimum, " to ", row.range.maximum)) << row.name;
  EXPECT_EQ(cells[3].starts_with("No effect"), row.effect == ParamEffect::kNone) << row.name;
}

TEST(ParameterPage, TellsDefaultRangeAndEffectOfEveryPublicParameter) {
  auto const page = PageRows();
  for (auto const& row : DblParamRows().first(kPublicDblParams)) ExpectParameterRow(page, row);
  for (auto const& row : IntParamRows().first(kPublicIntParams)) ExpectParameterRow(page, row);
}

TEST(ParameterPage, TellsEveryAttribute) {
  auto const page = PageRows();
  for (auto const& row : DblAttrRows()) EXPECT_TRUE(page.contains(row.name)) << row.name;
  for (auto const& row : IntAttrRows()) EXPECT_TRUE(page.contains(row.name)) << row.name;
}

}  // namespace
}  // namespace vorqsolver
