// Reading CBF files, section by section. Counts stand in front of lists; nothing is made larger by a count alone but
// columns and constraints, of which a file may claim only so many.
#include "solver/files/cbf_reader.hpp"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "solver/files/cbf_content.hpp"
#include "solver/problem/largest_dimension.hpp"

namespace vorqsolver {
namespace {

constexpr int kNewestVersion = 4;

constexpr std::string_view kOtherDomains[] = {"SVECPSD", "GMEANABS", "GMEANABS*"};

CbfDomainName const* FindDomain(std::string_view name) {
  auto const found = std::ranges::find(kCbfDomains, name, &CbfDomainName::name);
  return found == std::end(kCbfDomains) ? nullptr : &*found;
}

class CbfReader {
 public:
  explicit CbfReader(TextSource const& source) : source_(source), lines_(source) {}

  ReadModel Read() {
    while (NextLine()) {
      auto const word = NextWord(rest_);
      ExpectLineEnd();
      Section const& section = FindSection(word);
      if (!begun_.insert(section.name).second) lines_.Refuse("section ", section.name, " is stated twice");
      if (begun_.size() == 1 && section.name != "VER") lines_.Refuse("a CBF file begins with VER, not '", word, "'");
      section_ = &section;
      (this->*section.read)();
    }
    if (begun_.empty()) lines_.Refuse("the file is empty");
    return {ToProblemData(content_, source_), {}};
  }

 private:
  struct Section {
    std::string_view name;
    void (CbfReader::*read)();
  };
  static std::span<Section const> Sections();

  Section const& FindSection(std::string_view word) const {
    for (Section const& section : Sections()) {
      if (section.name == word) return section;
    }
    for (std::string_view const other : {"POWCONES", "POW*CONES"}) {
      if (word == other) lines_.Refuse("section ", word, ": power cones are not supported");
    }
    if (word == "CHANGE") lines_.Refuse("section CHANGE: a file of several problems is not supported");
    lines_.Refuse("unknown section '", word, "'");
  }

  // ------------------------------------------------------------------------ words
  // The next line that is neither empty nor a comment.
  bool NextLine() {
    while (lines_.Next()) {
      rest_ = Trim(lines_.Line());
      if (!rest_.empty() && rest_.front() != '#') return true;
    }
    return false;
  }

  void NeedLine() {
    if (!NextLine()) lines_.Refuse("the file ends within section ", section_->name);
  }

  std::string_view Word() {
    auto const word = NextWord(rest_);
    if (word.empty()) lines_.Refuse("the line ends too early");
    return word;
  }

  void ExpectLineEnd() {
    if (auto const word = NextWord(rest_); !word.empty()) lines_.Refuse("unexpected '", word, "'");
  }

  int Integer() { return IntegerAt(source_, lines_.Number(), Word()); }
  double Finite() { return FiniteNumberAt(source_, lines_.Number(), Word()); }

  int Count() {
    int const count = Integer();
    if (count < 0) lines_.Refuse("the count ", count, " is negative");
    return count;
  }

  int Index(std::size_t limit, char const* kind) {
    int const index = Integer();
    if (index < 0 || static_cast<std::size_t>(index) >= limit) {
      lines_.Refuse(kind, " ", index, " does not exist (there are ", limit, ")");
    }
    return index;
  }
  int Column() { return Index(static_cast<std::size_t>(content_.columnCount), "variable"); }
  int Constraint() { return Index(static_cast<std::size_t>(content_.constraintCount), "constraint"); }
  int Position(int dim) { return Index(static_cast<std::size_t>(dim), "row or column"); }

  // A line with the count, and so many lines, each of which `readLine` reads to its end.
  template <typename ReadLine>
  void List(ReadLine readLine) {
    NeedLine();
    int const count = Count();
    ExpectLineEnd();
    for (int k = 0; k < count; ++k) {
      NeedLine();
      readLine();
      ExpectLineEnd();
    }
  }

  // -------------------------------------------------------------------- structure
  void Version() {
    NeedLine();
    int const version = Integer();
    if (version < 1 || version > kNewestVersion) lines_.Refuse("version ", version, " of the format is not known");
    ExpectLineEnd();
  }

  void ObjSense() {
    NeedLine();
    auto const word = Word();
    if (word != "MIN" && word != "MAX") lines_.Refuse("unknown objective sense '", word, "'");
    content_.sense = word == "MIN" ? 1 : -1;
    ExpectLineEnd();
  }

  void Variables() { content_.columnCount = Cones(content_.columnCones); }
  void Constraints() { content_.constraintCount = Cones(content_.constraintCones); }

  int Cones(std::vector<CbfCone>& cones) {
    NeedLine();
    int const total = Count();
    int const count = Count();
    ExpectLineEnd();
    if (static_cast<std::size_t>(total) > MostClaimedItems(source_)) {
      lines_.Refuse(total, " entries are more than a file of this size may claim");
    }
    long long sum = 0;
    for (int k = 0; k < count; ++k) {
      NeedLine();
      cones.push_back(ReadCone());
      ExpectLineEnd();
      sum += cones.back().size;
      if (sum > total) break;
    }
    if (sum != total) lines_.Refuse("the sizes of the cones do not add up to ", total);
    return total;
  }

  CbfCone ReadCone() {
    auto const name = Word();
    CbfDomainName const* const domain = FindDomain(name);
    if (domain == nullptr) RefuseDomain(name);
    int const size = Integer();
    bool const fits = domain->coneType > 2 ? size == 3 : size >= std::max(1, domain->coneType);
    if (!fits) lines_.Refuse("cone '", name, "' cannot have the size ", size);
    return {domain, size};
  }

  [[noreturn]] void RefuseDomain(std::string_view name) const {
    if (name.starts_with('@')) lines_.Refuse("power cone '", name, "' is not supported");
    if (std::ranges::find(kOtherDomains, name) != std::end(kOtherDomains)) {
      lines_.Refuse("cone '", name, "' is not supported");
    }
    lines_.Refuse("unknown cone '", name, "'");
  }

  void Integers() {
    List([&] { content_.integers.push_back(Column()); });
  }

  void PsdVariables() { Dimensions(content_.psdDims); }
  void PsdConstraints() { Dimensions(content_.lmiDims); }

  void Dimensions(std::vector<int>& dims) {
    List([&] {
      int const dim = Integer();
      if (dim < 1 || dim > kLargestDimension) lines_.Refuse("a matrix cannot have the dimension ", dim);
      dims.push_back(dim);
    });
  }

  // ---------------------------------------------------------------- coefficients
  MatrixEntry Entry(int owner, int member, int dim) {
    int const row = Position(dim);
    int const col = Position(dim);
    return {owner, member, row, col, Finite(), lines_.Number()};
  }
  MatrixEntry PsdEntry(int owner) {
    int const member = Index(content_.psdDims.size(), "PSD variable");
    return Entry(owner, member, content_.psdDims[static_cast<std::size_t>(member)]);
  }
  int Lmi() { return Index(content_.lmiDims.size(), "PSD constraint"); }

  void ObjPsdEntries() {
    List([&] { content_.psdObjective.push_back(PsdEntry(0)); });
  }
  void ObjEntries() {
    List([&] {
      int const col = Column();
      content_.objective.push_back({0, col, Finite(), lines_.Number()});
    });
  }
  void ObjConstant() {
    NeedLine();
    content_.objectiveConstant = Finite();
    ExpectLineEnd();
  }
  void PsdEntries() {
    List([&] {
      int const row = Constraint();
      content_.psdCoefficients.push_back(PsdEntry(row));
    });
  }
  void Entries() {
    List([&] {
      int const row = Constraint();
      int const col = Column();
      content_.coefficients.push_back({row, col, Finite(), lines_.Number()});
    });
  }
  void Constants() {
    List([&] {
      int const row = Constraint();
      content_.constants.push_back({row, 0, Finite(), lines_.Number()});
    });
  }
  void LmiEntries() {
    List([&] {
      int const owner = Lmi();
      int const member = Column();
      content_.lmiEntries.push_back(Entry(owner, member, content_.lmiDims[static_cast<std::size_t>(owner)]));
    });
  }
  void LmiConstants() {
    List([&] {
      int const owner = Lmi();
      content_.lmiEntries.push_back(Entry(owner, -1, content_.lmiDims[static_cast<std::size_t>(owner)]));
    });
  }

  TextSource const& source_;
  LineReader lines_;
  std::string_view rest_;  // of the line
  CbfContent content_;
  std::unordered_set<std::string_view> begun_;
  Section const* section_ = nullptr;
};

std::span<CbfReader::Section const> CbfReader::Sections() {
  static constexpr Section kSections[] = {
      {"VER", &CbfReader::Version},          {"OBJSENSE", &CbfReader::ObjSense},
      {"PSDVAR", &CbfReader::PsdVariables},  {"VAR", &CbfReader::Variables},
      {"INT", &CbfReader::Integers},         {"PSDCON", &CbfReader::PsdConstraints},
      {"CON", &CbfReader::Constraints},      {"OBJFCOORD", &CbfReader::ObjPsdEntries},
      {"OBJACOORD", &CbfReader::ObjEntries}, {"OBJBCOORD", &CbfReader::ObjConstant},
      {"FCOORD", &CbfReader::PsdEntries},    {"ACOORD", &CbfReader::Entries},
      {"BCOORD", &CbfReader::Constants},     {"HCOORD", &CbfReader::LmiEntries},
      {"DCOORD", &CbfReader::LmiConstants},
  };
  return kSections;
}

}  // namespace

ReadModel ReadCbf(TextSource const& source) {
  return CbfReader(source).Read();
}

}  // namespace vorqsolver
