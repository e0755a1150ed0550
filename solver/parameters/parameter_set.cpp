// The lookup of parameters by name, and the setting of their values within their ranges.
#include "solver/parameters/parameter_set.hpp"

#include <charconv>
#include <cstddef>
#include <span>
#include <system_error>

#include "solver/parameters/name_index.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

NameIndex const& DblNames() {
  static NameIndex const index(DblParamRows());
  return index;
}

NameIndex const& IntNames() {
  static NameIndex const index(IntParamRows());
  return index;
}

char const* ValueNoun(double) {
  return "a number";
}
char const* ValueNoun(int) {
  return "a 32-bit integer";
}

template <class T>
std::vector<T> Defaults(std::span<ParamRow<T> const> rows) {
  std::vector<T> values;
  values.reserve(rows.size());
  for (ParamRow<T> const& row : rows) values.push_back(row.range.standard);
  return values;
}

// The comparison is written so that not-a-number fails it.
template <class T>
void CheckRange(ParamRow<T> const& row, T value) {
  if (value >= row.range.minimum && value <= row.range.maximum) return;
  Refuse("Value ", value, " of parameter ", row.name, " is out of its range, ", row.range.minimum, " to ",
         row.range.maximum);
}

template <class T>
T Parse(ParamRow<T> const& row, std::string_view text) {
  T value = {};
  char const* const end = text.data() + text.size();
  auto const [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end) {
    Refuse("Value '", text, "' of parameter ", row.name, " is not ", ValueNoun(value));
  }
  return value;
}

ParamId FindAny(std::string_view name) {
  std::optional<ParamId> const id = ParameterSet::Find(name);
  if (!id) Refuse("Unknown parameter '", name, "'");
  return *id;
}

template <class Id>
Id FindKind(std::string_view name, char const* kind) {
  ParamId const id = FindAny(name);
  if (!std::holds_alternative<Id>(id)) Refuse("Parameter '", name, "' is not ", kind);
  return std::get<Id>(id);
}

}  // namespace

ParameterSet::ParameterSet() : doubles_(Defaults(DblParamRows())), integers_(Defaults(IntParamRows())) {}

std::optional<ParamId> ParameterSet::Find(std::string_view name) {
  if (auto const position = DblNames().Find(name)) return static_cast<DblParam>(*position);
  if (auto const position = IntNames().Find(name)) return static_cast<IntParam>(*position);
  return std::nullopt;
}

DblParam ParameterSet::FindDbl(std::string_view name) {
  return FindKind<DblParam>(name, "a double parameter");
}
IntParam ParameterSet::FindInt(std::string_view name) {
  return FindKind<IntParam>(name, "an integer parameter");
}

void ParameterSet::Set(DblParam id, double value) {
  CheckRange(Row(id), value);
  doubles_[static_cast<std::size_t>(id)] = value;
}

void ParameterSet::Set(IntParam id, int value) {
  CheckRange(Row(id), value);
  integers_[static_cast<std::size_t>(id)] = value;
}

void ParameterSet::SetText(std::string_view name, std::string_view value) {
  std::visit([&](auto id) { Set(id, Parse(Row(id), value)); }, FindAny(name));
}

std::vector<std::pair<char const*, std::string>> ParameterSet::Changed() const {
  std::vector<std::pair<char const*, std::string>> changed;
  auto const collect = [&changed](auto rows, auto const& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (values[i] != rows[i].range.standard) changed.emplace_back(rows[i].name, ToText(values[i]));
    }
  };
  collect(DblParamRows(), doubles_);
  collect(IntParamRows(), integers_);
  return changed;
}

void ParameterSet::Reset() {
  *this = ParameterSet();
}

}  // namespace vorqsolver
