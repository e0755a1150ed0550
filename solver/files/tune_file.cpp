// The reader and the writer of tuning files.
#include "solver/files/tune_file.hpp"

#include <algorithm>
#include <string_view>

#include "solver/files/output_file.hpp"
#include "solver/files/text_source.hpp"
#include "solver/parameters/name_index.hpp"
#include "solver/parameters/parameter_set.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

void ReadLine(std::string_view line, std::vector<TuneChoice>& choices) {
  std::string_view rest = line.substr(0, line.find('#'));
  TuneChoice choice;
  choice.name = NextWord(rest);
  if (choice.name.empty()) return;
  bool const isKnown =
      std::ranges::any_of(choices, [&](TuneChoice const& known) { return EqualIgnoringCase(known.name, choice.name); });
  if (isKnown) Refuse("Parameter '", choice.name, "' stands twice");
  ParameterSet scratch;
  for (auto value = NextWord(rest); !value.empty(); value = NextWord(rest)) {
    scratch.SetText(choice.name, value);
    choice.values.emplace_back(value);
  }
  if (choice.values.empty()) Refuse("Parameter '", choice.name, "' has no value");
  choices.push_back(std::move(choice));
}

}  // namespace

std::vector<TuneChoice> ReadTuneFile(std::string const& path) {
  TextSource const source = LoadText(path);
  LineReader reader(source);
  std::vector<TuneChoice> choices;
  while (reader.Next()) {
    try {
      ReadLine(reader.Line(), choices);
    } catch (Failure const& failure) {
      reader.Refuse(failure.what());
    }
  }
  return choices;
}

void WriteTunedSet(std::string const& path, TunedSet const& set) {
  std::string text;
  for (auto const& [name, value] : set.settings) text += Text(name, ' ', value, '\n');
  WriteTextFile(path, text);
}

}  // namespace vorqsolver
