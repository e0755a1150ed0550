// The reader and the writer of parameter files.
#include "solver/files/parameter_file.hpp"

#include <string_view>

#include "solver/files/output_file.hpp"
#include "solver/files/text_source.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

void ReadLine(std::string_view line, ParameterSet& parameters) {
  std::string_view rest = line.substr(0, line.find('#'));
  std::string_view const name = NextWord(rest);
  if (name.empty()) return;
  std::string_view const value = NextWord(rest);
  if (value.empty()) Refuse("Parameter '", name, "' has no value");
  std::string_view const surplus = NextWord(rest);
  if (!surplus.empty()) Refuse("Unexpected '", surplus, "' behind the value of parameter '", name, "'");
  parameters.SetText(name, value);
}

}  // namespace

ParameterSet ReadParameterFile(std::string const& path, ParameterSet const& base) {
  TextSource const source = LoadText(path);
  LineReader reader(source);
  ParameterSet parameters = base;
  while (reader.Next()) {
    try {
      ReadLine(reader.Line(), parameters);
    } catch (Failure const& failure) {
      reader.Refuse(failure.what());
    }
  }
  return parameters;
}

void WriteParameterFile(std::string const& path, ParameterSet const& parameters) {
  std::string text;
  for (auto const& [name, value] : parameters.Changed()) text += Text(name, ' ', value, '\n');
  WriteTextFile(path, text);
}

}  // namespace vorqsolver
