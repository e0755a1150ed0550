// Making names fit and unique.
#include "solver/files/file_names.hpp"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

constexpr std::size_t kMostLines = 10;

bool IsWordCharacter(char c) {
  return static_cast<unsigned char>(c) > ' ' && c != '\x7f';
}
bool IsLineCharacter(char c) {
  return c == ' ' || IsWordCharacter(c);
}
bool IsLineStart(char c) {
  return c != '#' && IsWordCharacter(c);
}

// A row of this name would turn the entries of a column into a marker.
bool IsMpsName(std::string_view name) {
  return name != "'MARKER'" && std::all_of(name.begin(), name.end(), IsWordCharacter);
}

bool IsLine(std::string_view name) {
  return IsLineStart(name.front()) && name.back() != ' ' && std::all_of(name.begin(), name.end(), IsLineCharacter);
}

class Fitter {
 public:
  Fitter(NameRules const& rules, std::span<NameGroup const> groups, Warnings& warnings)
      : rules_(rules), groups_(groups), warnings_(warnings) {}

  std::vector<std::vector<std::string>> Run() {
    for (NameGroup const& group : groups_) names_.emplace_back(static_cast<std::size_t>(group.count));
    // Names that can stay are taken first, so that a made name never drives one out.
    for (std::size_t g = 0; g < groups_.size(); ++g) KeepFit(g);
    for (std::size_t g = 0; g < groups_.size(); ++g) MakeOthers(g);
    if (changes_ > kMostLines) warnings_.push_back(Text(changes_ - kMostLines, " more names were changed"));
    return std::move(names_);
  }

 private:
  void KeepFit(std::size_t g) {
    for (int k = 0; k < groups_[g].count; ++k) {
      auto const name = groups_[g].names->Get(k);
      if (!name.empty() && rules_.isFit(name)) Take(g, k, std::string(name));
    }
  }

  void MakeOthers(std::size_t g) {
    NameGroup const& group = groups_[g];
    for (int k = 0; k < group.count; ++k) {
      std::string const& made = names_[g][static_cast<std::size_t>(k)];
      if (!made.empty()) continue;
      auto const name = group.names->Get(k);
      TakeUnique(g, k, name.empty() ? Text(group.prefix, k + 1) : MakeFit(name));
      if (!name.empty() && group.isTold)
        Tell(Text("Name '", name, "' of ", group.kind, " ", k + 1, " is written as '", made, "'"));
    }
  }

  std::string MakeFit(std::string_view name) const {
    std::string made(name);
    if (rules_.isFit(name)) return made;
    for (char& c : made) {
      if (!rules_.keeps(c)) c = '_';
    }
    if (!rules_.begins(made.front())) made.insert(0, 1, '_');
    if (!rules_.isFit(made)) made += '_';
    return made;
  }

  // False where another item bears the name.
  bool Take(std::size_t g, int k, std::string name) {
    if (taken_.contains(name)) return false;
    std::string& place = names_[g][static_cast<std::size_t>(k)];
    place = std::move(name);
    taken_.insert(place);
    return true;
  }

  void TakeUnique(std::size_t g, int k, std::string const& base) {
    if (Take(g, k, base)) return;
    // The last number tried is kept for each base, so that many equal names stay cheap.
    int& number = numbers_[base];
    if (number == 0) number = 1;
    while (!Take(g, k, Text(base, "_", ++number))) {
    }
  }

  void Tell(std::string line) {
    if (++changes_ <= kMostLines) warnings_.push_back(std::move(line));
  }

  NameRules const& rules_;
  std::span<NameGroup const> groups_;
  Warnings& warnings_;
  std::vector<std::vector<std::string>> names_;
  std::unordered_set<std::string_view> taken_;  // views of the strings in names_, which do not move
  std::unordered_map<std::string, int> numbers_;
  std::size_t changes_ = 0;
};

}  // namespace

NameRules const kMpsNames = {IsMpsName, IsWordCharacter, IsWordCharacter};
NameRules const kLineNames = {IsLine, IsLineCharacter, IsLineStart};

std::vector<std::vector<std::string>> FitNames(NameRules const& rules, std::span<NameGroup const> groups,
                                               Warnings& warnings) {
  return Fitter(rules, groups, warnings).Run();
}

namespace {

MpsNames FitAllMpsNames(ProblemData const& data, bool tellsOthers, Warnings& warnings) {
  NameList objective;
  objective.Set(0, "OBJ");
  NameGroup const columns[] = {{"column", "C", &data.columns.names, data.columns.Count()}};
  NameGroup const rows[] = {
      {"row", "R", &data.rows.names, data.rows.Count()},
      {"quadratic constraint", "Q", &data.quadConstraintNames, static_cast<int>(data.quadConstraints.size()),
       tellsOthers},
      {"indicator", "I", &data.indicatorNames, static_cast<int>(data.indicators.size()), tellsOthers},
      {"lazy constraint", "L", &data.lazyConstraints.names, data.lazyConstraints.Count(), tellsOthers},
      {"user cut", "U", &data.userCuts.names, data.userCuts.Count(), tellsOthers},
      {"objective", "OBJ", &objective, 1, tellsOthers},
  };
  auto columnNames = FitNames(kMpsNames, columns, warnings);
  auto rowNames = FitNames(kMpsNames, rows, warnings);
  return {.columns = std::move(columnNames[0]),
          .rows = std::move(rowNames[0]),
          .quadConstraints = std::move(rowNames[1]),
          .indicators = std::move(rowNames[2]),
          .lazyConstraints = std::move(rowNames[3]),
          .userCuts = std::move(rowNames[4]),
          .objective = std::move(rowNames[5][0])};
}

}  // namespace

MpsNames FitMpsNames(ProblemData const& data, Warnings& warnings) {
  return FitAllMpsNames(data, true, warnings);
}

MpsNames FitBasisNames(ProblemData const& data, Warnings& warnings) {
  return FitAllMpsNames(data, false, warnings);
}

}  // namespace vorqsolver
