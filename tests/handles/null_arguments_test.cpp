// Null in the place of each pointer that an operation of the interfaces takes, and other arguments that do not fit:
// nothing crashes, and null ends as the table says, without a change of the model. The table has all operations of the
// headers.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>

#include "tests/handles/argument_world.hpp"

namespace vorqtest {
namespace {

using namespace Vorq;

// ---- Calling

// What the model consists of.
std::vector<int> Sizes(IModel& model) {
  std::vector<int> sizes;
  for (char const* attribute : {"Cols", "Rows", "Elems", "QConstrs", "PSDCols", "PSDConstrs", "LMIConstrs",
                                "Indicators", "Soss", "Cones", "ExpCones", "AffineCones", "SymMats"}) {
    sizes.push_back(model.GetIntAttr(attribute));
  }
  model.SetObjSense(1);  // clears the status
  return sizes;
}

// The arguments of a call: what they are like, whether they come from another model, and which one is null.
struct Setting {
  ArgumentWorld::Kind kind = ArgumentWorld::Kind::kValid;
  bool isForeign = false;
  int null = -1;
};

template <class Function>
struct Operation;
template <class Result, class Owner, class... Parameters>
struct Operation<Result (Owner::*)(Parameters...)> {
  using Interface = Owner;
  using Function = Result (Owner::*)(Parameters...);

  // "0", "-" for an object without a status, "throws", or the code and the text.
  static std::string Run(Setting const& setting, char const* name, Function function) {
    return Run(setting, name, function, std::index_sequence_for<Parameters...>());
  }

  static std::vector<int> PointerPlaces() {
    std::vector<int> places;
    int place = 0;
    ((std::is_pointer_v<Parameters> ? places.push_back(place++) : void(++place)), ...);
    return places;
  }

 private:
  template <class Argument>
  static void Nullify(Argument& argument) {
    if constexpr (std::is_pointer_v<Argument>) argument = nullptr;
  }

  template <std::size_t... kPlaces>
  static std::string Run(Setting const& setting, char const* name, Function function, std::index_sequence<kPlaces...>) {
    bool const takesTypes = std::string_view(name).find("Var") != std::string_view::npos;
    ArgumentWorld others(setting.kind, takesTypes ? 'C' : 'L');
    ArgumentWorld world(setting.kind, takesTypes ? 'C' : 'L');
    Owner& object = *world.Get<Owner*>();
    std::tuple<Parameters...> arguments{(setting.isForeign ? others : world).template Get<Parameters>()...};
    ((setting.null == static_cast<int>(kPlaces) ? Nullify(std::get<kPlaces>(arguments)) : void()), ...);

    std::vector<int> const before = Sizes(world.Model());
    try {
      if constexpr (std::is_pointer_v<Result>) {
        auto* const result = (object.*function)(std::get<kPlaces>(arguments)...);
        EXPECT_NE(result, nullptr);
        delete result;
      } else {
        static_cast<void>((object.*function)(std::get<kPlaces>(arguments)...));
      }
    } catch (std::logic_error const&) {
      return "throws";
    }
    if constexpr (requires { object.GetLastError(); }) {
      int const code = object.GetLastError();
      if (code == 0) return "0";
      std::string const outcome = std::to_string(code) + ' ' + object.GetErrorMessage();
      if (setting.null >= 0) {
        EXPECT_EQ(Sizes(world.Model()), before) << "something has changed: " << outcome;
      }
      return outcome;
    } else {
      return "-";
    }
  }
};

// ---- The table

struct Case {
  char const* outcomes;
  char const* operation;
  char const* type;
  std::string (*run)(Setting const& setting);
  std::vector<int> (*pointerPlaces)();
};

constexpr Case kCases[] = {
#define VORQ_NULLS(OUTCOMES, NAME, ...)                                                            \
  {OUTCOMES, #NAME, #__VA_ARGS__,                                                                  \
   [](Setting const& setting) {                                                                    \
     return Operation<__VA_ARGS__>::Run(setting, #NAME, &Operation<__VA_ARGS__>::Interface::NAME); \
   },                                                                                              \
   &Operation<__VA_ARGS__>::PointerPlaces},
#include "tests/handles/null_arguments.inc"
};

std::string WithoutSpaces(std::string text) {
  std::erase_if(text, [](unsigned char c) { return std::isspace(c) != 0; });
  return text;
}

std::string Key(Case const& entry) {
  return WithoutSpaces(entry.type) + ' ' + entry.operation;
}

// As the table writes it.
std::string Abridged(std::string const& outcome, char const* operation) {
  std::regex const refusal("3 \\(INVALID\\) Argument '\\w+' of " + std::string(operation) + " is null");
  return std::regex_match(outcome, refusal) ? "null" : outcome.substr(0, outcome.find(' '));
}

TEST(NullArguments, EndAsTheTableTells) {
  for (Case const& entry : kCases) {
    SCOPED_TRACE(Key(entry));
    std::string outcomes;
    for (int const place : entry.pointerPlaces()) {
      if (!outcomes.empty()) outcomes += ' ';
      outcomes += Abridged(entry.run({.null = place}), entry.operation);
    }
    EXPECT_EQ(outcomes, entry.outcomes);
  }
}

void RunAll(Setting const& setting) {
  for (Case const& entry : kCases) {
    SCOPED_TRACE(Key(entry));
    EXPECT_NE(entry.run(setting), "throws");
  }
}

TEST(BadArguments, NumbersAndPositionsBelowZeroDoNoHarm) {
  RunAll({.kind = ArgumentWorld::Kind::kNegative});
}

TEST(BadArguments, RemovedItemsDoNoHarm) {
  RunAll({.kind = ArgumentWorld::Kind::kRemoved});
}

TEST(BadArguments, ItemsOfAnotherModelDoNoHarm) {
  RunAll({.isForeign = true});
}

// ---- The headers

std::string FileText(std::filesystem::path const& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return std::regex_replace(text.str(), std::regex("//[^\n]*"), "");
}

// The type of a parameter "IVar* var" in a template of rank 2.
std::string TypeOf(std::string parameter) {
  parameter = std::regex_replace(parameter, std::regex("\\w+\\s*$"), "");
  parameter = std::regex_replace(parameter, std::regex("\\bN\\b"), "2");
  return WithoutSpaces(std::regex_replace(parameter, std::regex("\\bT\\b"), "double"));
}

std::vector<std::string> SplitParameters(std::string const& list) {
  std::vector<std::string> parameters(1);
  int depth = 0;
  for (char const c : list) {
    depth += c == '<' ? 1 : c == '>' ? -1 : 0;
    if (c == ',' && depth == 0) {
      parameters.emplace_back();
    } else {
      parameters.back() += c;
    }
  }
  return parameters;
}

// The operations that take pointers to single things, as the table writes them.
std::set<std::string> OperationsOf(std::string const& header) {
  static std::regex const kClass("(template <([^>]*)>\\s*)?class (I\\w+) \\{");
  static std::regex const kOperation("virtual\\s+([^;()]+?)(\\w+)\\(([^)]*)\\)\\s*=\\s*0;");
  std::set<std::string> operations;
  for (std::sregex_iterator type(header.begin(), header.end(), kClass), end; type != end; ++type) {
    std::string name = (*type)[3];
    if (name == "ILogSink" || name == "ICallback") continue;  // the caller's
    if ((*type)[2].matched) name += (*type)[2].str().find("class T") != std::string::npos ? "<double,2>" : "<2>";
    auto const from = header.begin() + type->position() + type->length();
    std::string const body(from, header.begin() + static_cast<long>(header.find("\n};", type->position())));
    for (std::sregex_iterator found(body.begin(), body.end(), kOperation); found != end; ++found) {
      std::string types;
      bool hasPointer = false;
      for (std::string const& parameter : SplitParameters((*found)[3])) {
        types += (types.empty() ? "" : ",") + TypeOf(parameter);
        hasPointer = hasPointer || types.back() == '*';
      }
      if (!hasPointer) continue;
      operations.insert(TypeOf((*found)[1].str() + " x") + "(" + name + "::*)(" + types + ") " + (*found)[2].str());
    }
  }
  return operations;
}

TEST(NullArguments, TheTableHasAllOperationsOfTheHeaders) {
  // The services are tested with their operations.
  std::set<std::string> const services = {"array_helper.h", "broadcast_helper.h", "matrix_factory.h"};
  std::set<std::string> operations;
  for (auto const& entry : std::filesystem::directory_iterator(VORQ_SOURCE_DIR "/include/vorqmodel")) {
    if (entry.path().extension() != ".h" || services.contains(entry.path().filename())) continue;
    operations.merge(OperationsOf(FileText(entry.path())));
  }
  std::set<std::string> table;
  for (Case const& entry : kCases) table.insert(Key(entry));
  EXPECT_EQ(table.size(), std::size(kCases));
  EXPECT_EQ(operations, table);
}

}  // namespace
}  // namespace vorqtest
