// Reading MPS files, section by section.
#include "solver/files/mps_reader.hpp"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "solver/files/mps_content.hpp"
#include "solver/files/mps_fields.hpp"

namespace vorqsolver {
namespace {

enum class BoundKind { kUp, kLo, kFx, kFr, kMi, kPl, kBv, kLi, kUi, kSc };

struct BoundRow {
  std::string_view text;
  BoundKind kind;
  MpsBoundValue value;
};

constexpr BoundRow kBoundKinds[] = {
    {"UP", BoundKind::kUp, MpsBoundValue::kNeeded}, {"LO", BoundKind::kLo, MpsBoundValue::kNeeded},
    {"FX", BoundKind::kFx, MpsBoundValue::kNeeded}, {"FR", BoundKind::kFr, MpsBoundValue::kNone},
    {"MI", BoundKind::kMi, MpsBoundValue::kNone},   {"PL", BoundKind::kPl, MpsBoundValue::kNone},
    {"BV", BoundKind::kBv, MpsBoundValue::kNone},   {"LI", BoundKind::kLi, MpsBoundValue::kNeeded},
    {"UI", BoundKind::kUi, MpsBoundValue::kNeeded}, {"SC", BoundKind::kSc, MpsBoundValue::kOptional},
};

class MpsReader {
 public:
  explicit MpsReader(TextSource const& source) : lines_(source), fields_(lines_) {}

  ReadModel Read() {
    while (!ended_ && lines_.Next()) {
      auto const line = lines_.Line();
      if (line.starts_with('*') || Trim(line).empty()) continue;
      if (IsBlank(line.front())) {
        if (section_ == nullptr) lines_.Refuse("data before the first section");
        (this->*section_->data)();
      } else {
        BeginSection();
      }
    }
    if (!ended_) lines_.Refuse("the file ends without ENDATA");
    if (!objectiveName_.empty() && objective_ < 0) lines_.Refuse("unknown objective row '", objectiveName_, "'");
    return {ToProblemData(content_, lines_.Source()), std::move(content_.warnings)};
  }

 private:
  // What to do with the header of a section and with its lines of data.
  struct Section {
    std::string_view name;
    bool repeatable;
    void (MpsReader::*header)();
    void (MpsReader::*data)();
  };
  static std::span<Section const> Sections();

  void BeginSection() {
    words_ = fields_.Words();
    for (Section const& section : Sections()) {
      if (!EqualsNoCase(words_[0], section.name)) continue;
      if (!section.repeatable && !begun_.insert(section.name).second) {
        lines_.Refuse("section ", section.name, " is stated twice");
      }
      section_ = &section;
      (this->*section.header)();
      return;
    }
    lines_.Refuse("unknown section '", words_[0], "'");
  }

  // ------------------------------------------------------------------ headers
  void PlainHeader() {
    if (words_.size() > 1) lines_.Refuse("unexpected '", words_[1], "' behind ", section_->name);
  }
  void NameHeader() {
    auto line = lines_.Line();
    NextWord(line);
    content_.problemName = Trim(line);
  }
  void ObjSenseHeader() {
    if (words_.size() > 1) SetSense(words_[1]);
  }
  void ObjNameHeader() {
    if (!content_.rows.empty()) lines_.Refuse("OBJNAME behind the rows");
    if (words_.size() > 1) objectiveName_ = words_[1];
  }
  void LazyHeader() { PlainHeader(), rowUse_ = MpsRowUse::kLazy; }
  void CutHeader() { PlainHeader(), rowUse_ = MpsRowUse::kCut; }
  void EndHeader() { ended_ = true; }
  void QuadObjHeader() { PlainHeader(), BeginQuad(MpsTriangles::kOne, 0.5, -1); }
  void QMatrixHeader() { PlainHeader(), BeginQuad(MpsTriangles::kBoth, 0.5, -1); }
  void QSectionHeader() { BeginQuad(MpsTriangles::kOne, 0.5, NamedRow(true)); }
  void QcMatrixHeader() { BeginQuad(MpsTriangles::kBoth, 1.0, NamedRow(false)); }
  void SosHeader() { PlainHeader(), sosType_ = 0, sosOpen_ = false; }
  void Sos1Header() { PlainHeader(), sosType_ = 1, sosOpen_ = false; }
  void Sos2Header() { PlainHeader(), sosType_ = 2, sosOpen_ = false; }

  // ------------------------------------------------------------- small sections
  void NoData() { lines_.Refuse("data behind ", section_->name); }

  void ObjSenseData() { SetSense(fields_.Words()[0]); }

  void ObjNameData() { objectiveName_ = fields_.Words()[0]; }

  void SetSense(std::string_view word) {
    for (auto const& [text, sense] : {std::pair("MAX", -1),
                                      {"MAXIMIZE", -1},
                                      {"MAXIMISE", -1},
                                      {"MAXIMUM", -1},
                                      {"MIN", 1},
                                      {"MINIMIZE", 1},
                                      {"MINIMISE", 1},
                                      {"MINIMUM", 1}}) {
      if (EqualsNoCase(word, text)) {
        content_.sense = sense;
        return;
      }
    }
    lines_.Refuse("unknown objective sense '", word, "'");
  }

  // ----------------------------------------------------------------------- rows
  void RowsData() {
    auto const [sense, name] = fields_.SenseAndName();
    if (sense.size() != 1 || std::string_view("NELGnelg").find(sense[0]) == std::string_view::npos) {
      lines_.Refuse("unknown row type '", sense, "'");
    }
    MpsRow row;
    row.name = name;
    row.sense = static_cast<char>(sense[0] & ~0x20);
    row.line = lines_.Number();
    row.use = row.sense == 'N' ? UseOfFreeRow(name) : rowUse_;
    if (!rowIndex_.emplace(name, static_cast<int>(content_.rows.size())).second) {
      lines_.Refuse("row '", name, "' is stated twice");
    }
    content_.rows.push_back(row);
  }

  // The first free row is the objective, unless OBJNAME tells another; further ones say nothing and are dropped.
  MpsRowUse UseOfFreeRow(std::string_view name) {
    if (rowUse_ != MpsRowUse::kLinear) lines_.Refuse("free row '", name, "' in ", section_->name);
    bool const objective = objectiveName_.empty() ? objective_ < 0 : name == objectiveName_;
    if (!objective) {
      content_.warnings.push_back(
          Text(lines_.Source().name, ":", lines_.Number(), ": free row '", name, "' beside the objective is dropped"));
      return MpsRowUse::kDropped;
    }
    objective_ = static_cast<int>(content_.rows.size());
    return MpsRowUse::kObjective;
  }

  MpsRow& Row(int row) { return content_.rows[static_cast<std::size_t>(row)]; }
  MpsColumn& Column(int col) { return content_.columns[static_cast<std::size_t>(col)]; }

  int FindRow(std::string_view name) const {
    auto const found = rowIndex_.find(name);
    if (found == rowIndex_.end()) lines_.Refuse("unknown row '", name, "'");
    return found->second;
  }

  int FindColumn(std::string_view name) const {
    auto const found = columnIndex_.find(name);
    if (found == columnIndex_.end()) lines_.Refuse("unknown column '", name, "'");
    return found->second;
  }

  double Finite(std::string_view word) const { return FiniteNumberAt(lines_.Source(), lines_.Number(), word); }
  double Number(std::string_view word) const { return NumberAt(lines_.Source(), lines_.Number(), word); }
  double Bound(std::string_view word) const { return std::clamp(Number(word), -kInfinity, kInfinity); }

  // -------------------------------------------------------------------- columns
  void ColumnsData() {
    auto const& words = fields_.Words();
    if (words.size() == 3 && words[1] == "'MARKER'") {
      Marker(words[2]);
      return;
    }
    MpsPairs const& line = fields_.Pairs(true);
    int const col = ColumnOf(line.head);
    for (auto const& [name, value] : line.pairs) AddEntry(col, name, value);
  }

  void Marker(std::string_view word) {
    bool const begin = word == "'INTORG'";
    if (!begin && word != "'INTEND'") lines_.Refuse("unknown marker ", word);
    if (begin == integer_) lines_.Refuse("marker ", word, begin ? " inside of" : " outside of", " integer columns");
    integer_ = begin;
  }

  int ColumnOf(std::string_view name) {
    int const last = static_cast<int>(content_.columns.size()) - 1;
    if (last >= 0 && Column(last).name == name) return last;
    if (!columnIndex_.emplace(name, last + 1).second) lines_.Refuse("column '", name, "' is stated twice");
    MpsColumn column;
    column.name = name;
    column.integer = integer_;
    column.type = integer_ ? 'I' : 'C';
    content_.columns.push_back(column);
    return last + 1;
  }

  void AddEntry(int col, std::string_view name, std::string_view word) {
    int const index = FindRow(name);
    MpsRow& row = Row(index);
    double const value = Finite(word);
    if (row.lastCol == col) lines_.Refuse("column '", Column(col).name, "' has two entries in row '", name, "'");
    row.lastCol = col;
    if (row.use == MpsRowUse::kObjective) {
      Column(col).objective = value;
    } else if (row.use != MpsRowUse::kDropped) {
      content_.entries.push_back({index, col, value});
    }
  }

  // ------------------------------------------------------- right-hand sides, ranges
  // All lines must be of one set; which one a second set would be for is not known.
  void CheckSet(std::string_view name, std::string_view& set) const {
    if (name.empty()) return;
    if (!set.empty() && set != name) {
      lines_.Refuse("second set '", name, "' in ", section_->name, " (the first is '", set, "')");
    }
    set = name;
  }

  void RhsData() {
    MpsPairs const& line = fields_.Pairs(false);
    CheckSet(line.head, rhsSet_);
    for (auto const& [name, word] : line.pairs) {
      MpsRow& row = Row(FindRow(name));
      if (row.hasRhs) lines_.Refuse("row '", name, "' has two right-hand sides");
      row.hasRhs = true;
      if (row.use == MpsRowUse::kObjective) {
        content_.objectiveConstant = 0.0 - Finite(word);
      } else {
        row.rhs = Bound(word);
      }
    }
  }

  void RangesData() {
    MpsPairs const& line = fields_.Pairs(false);
    CheckSet(line.head, rangeSet_);
    for (auto const& [name, word] : line.pairs) {
      MpsRow& row = Row(FindRow(name));
      if (row.sense == 'N') lines_.Refuse("free row '", name, "' has a range");
      if (row.hasRange) lines_.Refuse("row '", name, "' has two ranges");
      row.range = Finite(word);
      row.hasRange = true;
    }
  }

  // --------------------------------------------------------------------- bounds
  void BoundsData() {
    BoundRow const* kind = nullptr;
    auto const need = [&](std::string_view text) {
      kind = FindKind(text);
      return kind->value;
    };
    MpsBound const bound = fields_.Bound(need, [&](std::string_view name) { return columnIndex_.contains(name); });
    kind = FindKind(bound.kind);
    int const index = FindColumn(bound.column);
    CheckSet(bound.set, boundSet_);
    if (kind->value == MpsBoundValue::kNeeded && bound.value.empty()) {
      lines_.Refuse("bound ", kind->text, " of column '", bound.column, "' has no value");
    }
    unsigned const bit = 1u << static_cast<unsigned>(kind->kind);
    MpsColumn& column = Column(index);
    if ((column.statedBounds & bit) != 0) {
      lines_.Refuse("bound ", kind->text, " of column '", column.name, "' is stated twice");
    }
    column.statedBounds |= bit;
    Apply(kind->kind, bound.value.empty() ? kInfinity : Bound(bound.value), column);
  }

  BoundRow const* FindKind(std::string_view text) const {
    for (BoundRow const& row : kBoundKinds) {
      if (EqualsNoCase(row.text, text)) return &row;
    }
    lines_.Refuse("unknown kind of bound '", text, "'");
  }

  void Apply(BoundKind kind, double value, MpsColumn& column) {
    switch (kind) {
      case BoundKind::kUp: SetUpper(value, column); break;
      case BoundKind::kLo: SetLower(value, column); break;
      case BoundKind::kFx: SetLower(value, column), column.upper = value; break;
      case BoundKind::kFr: SetLower(-kInfinity, column), column.upper = kInfinity; break;
      case BoundKind::kMi: SetLower(-kInfinity, column); break;
      case BoundKind::kPl: column.upper = kInfinity; break;
      case BoundKind::kBv: column.type = 'B', SetLower(0.0, column), column.upper = 1.0; break;
      case BoundKind::kLi: column.type = 'I', SetLower(value, column); break;
      case BoundKind::kUi: column.type = 'I', SetUpper(value, column); break;
      case BoundKind::kSc: column.type = column.integer ? 'N' : 'S', column.upper = value; break;
    }
  }

  static void SetLower(double value, MpsColumn& column) {
    column.lower = value;
    column.lowerStated = true;
  }

  void SetUpper(double value, MpsColumn& column) {
    column.upper = value;
    if (value >= 0.0 || column.lowerStated || column.lower != 0.0) return;
    column.lower = -kInfinity;
    content_.warnings.push_back(Text(lines_.Source().name, ":", lines_.Number(), ": column '", column.name,
                                     "' has a negative upper bound and no lower one, which becomes -infinity"));
  }

  // ------------------------------------------------------------ quadratic terms
  // The row that the header of a section names; -1 for the objective, where it may be that.
  int NamedRow(bool objectiveToo) {
    if (words_.size() != 2) lines_.Refuse(section_->name, " needs the name of a row");
    if (objectiveToo && EqualsNoCase(words_[1], "OBJ") && !rowIndex_.contains(words_[1])) return -1;
    int const index = FindRow(words_[1]);
    MpsRow& row = Row(index);
    if (row.use == MpsRowUse::kObjective && objectiveToo) return -1;
    if (row.use == MpsRowUse::kQuadratic) lines_.Refuse("quadratic terms of row '", row.name, "' are stated twice");
    if (row.use != MpsRowUse::kLinear) lines_.Refuse("row '", row.name, "' cannot have quadratic terms");
    row.use = MpsRowUse::kQuadratic;
    return index;
  }

  void BeginQuad(MpsTriangles triangles, double scale, int constraint) {
    if (constraint < 0 && std::exchange(quadObjective_, true)) {
      lines_.Refuse("quadratic terms of the objective are stated twice");
    }
    quadConstraint_ = constraint;
    content_.quadSections.push_back({triangles, scale, {}});
  }

  void QuadData() {
    auto const& words = fields_.Words();
    std::string_view first, second, value;
    if (words.size() == 3) {
      first = words[0], second = words[1], value = words[2];
    } else {
      MpsPairs const& line = fields_.Pairs(true);
      if (line.pairs.size() != 1) lines_.Refuse("a line of ", section_->name, " needs two columns and a number");
      first = line.head, second = line.pairs[0].name, value = line.pairs[0].value;
    }
    content_.quadSections.back().entries.push_back(
        {quadConstraint_, FindColumn(first), FindColumn(second), Finite(value), lines_.Number()});
  }

  // ------------------------------------------------------------------------ SOS
  // A set begins with "S1 name" or "S1 SOS name", a priority may follow; its columns come as "column weight",
  // "set column weight" or "column:weight".
  void SosData() {
    auto const& words = fields_.Words();
    bool const one = EqualsNoCase(words[0], "S1");
    if (one || EqualsNoCase(words[0], "S2")) {
      BeginSos(one ? 1 : 2);
      return;
    }
    if (!sosOpen_) lines_.Refuse("a member of a set before the first set");
    if (words.size() == 1) {
      auto const colon = words[0].rfind(':');
      if (colon == std::string_view::npos) lines_.Refuse("a member of a set needs a column and a weight");
      AddMember(words[0].substr(0, colon), words[0].substr(colon + 1));
    } else if (words.size() <= 3) {
      AddMember(words[words.size() - 2], words.back());
    } else {
      lines_.Refuse("a member of a set needs a column and a weight");
    }
  }

  void BeginSos(int type) {
    if (sosType_ != 0 && type != sosType_) lines_.Refuse("a set of type ", type, " in ", section_->name);
    sosOpen_ = true;
    content_.soss.emplace_back().type = type;
  }

  void AddMember(std::string_view name, std::string_view weight) {
    int const col = FindColumn(name);
    int const set = static_cast<int>(content_.soss.size()) - 1;
    if (std::exchange(Column(col).lastSos, set) == set) lines_.Refuse("column '", name, "' is twice in one set");
    content_.soss.back().cols.push_back(col);
    content_.soss.back().weights.push_back(Finite(weight));
  }

  // ----------------------------------------------------------------- indicators
  void IndicatorsData() {
    auto const& words = fields_.Words();
    if (words.size() != 4 || !EqualsNoCase(words[0], "IF")) {
      lines_.Refuse("a line of INDICATORS needs IF, row, column and value");
    }
    MpsRow& row = Row(FindRow(words[1]));
    if (row.use == MpsRowUse::kIndicator) lines_.Refuse("row '", row.name, "' has two indicators");
    if (row.use != MpsRowUse::kLinear) lines_.Refuse("row '", row.name, "' cannot have an indicator");
    double const value = Finite(words[3]);
    if (value != 0.0 && value != 1.0) lines_.Refuse("an indicator has the value 0 or 1, not ", words[3]);
    row.use = MpsRowUse::kIndicator;
    row.indicatorCol = FindColumn(words[2]);
    row.indicatorVal = value == 1.0 ? 1 : 0;
  }

  LineReader lines_;
  MpsFields fields_;
  MpsContent content_;
  std::vector<std::string_view> words_;  // of the header of the section
  Section const* section_ = nullptr;
  std::unordered_set<std::string_view> begun_;
  bool ended_ = false;

  std::unordered_map<std::string_view, int> rowIndex_;
  std::unordered_map<std::string_view, int> columnIndex_;
  MpsRowUse rowUse_ = MpsRowUse::kLinear;
  std::string_view objectiveName_;
  int objective_ = -1;
  bool integer_ = false;
  std::string_view rhsSet_, rangeSet_, boundSet_;
  int quadConstraint_ = -1;
  bool quadObjective_ = false;
  int sosType_ = 0;  // the type that the header of the section tells, or 0
  bool sosOpen_ = false;
};

std::span<MpsReader::Section const> MpsReader::Sections() {
  static constexpr Section kSections[] = {
      {"NAME", false, &MpsReader::NameHeader, &MpsReader::NoData},
      {"OBJSENSE", false, &MpsReader::ObjSenseHeader, &MpsReader::ObjSenseData},
      {"OBJNAME", false, &MpsReader::ObjNameHeader, &MpsReader::ObjNameData},
      {"ROWS", false, &MpsReader::PlainHeader, &MpsReader::RowsData},
      {"LAZYCONS", false, &MpsReader::LazyHeader, &MpsReader::RowsData},
      {"USERCUTS", false, &MpsReader::CutHeader, &MpsReader::RowsData},
      {"COLUMNS", false, &MpsReader::PlainHeader, &MpsReader::ColumnsData},
      {"RHS", false, &MpsReader::PlainHeader, &MpsReader::RhsData},
      {"RANGES", false, &MpsReader::PlainHeader, &MpsReader::RangesData},
      {"BOUNDS", false, &MpsReader::PlainHeader, &MpsReader::BoundsData},
      {"QUADOBJ", false, &MpsReader::QuadObjHeader, &MpsReader::QuadData},
      {"QMATRIX", false, &MpsReader::QMatrixHeader, &MpsReader::QuadData},
      {"QSECTION", true, &MpsReader::QSectionHeader, &MpsReader::QuadData},
      {"QCMATRIX", true, &MpsReader::QcMatrixHeader, &MpsReader::QuadData},
      {"SOS", true, &MpsReader::SosHeader, &MpsReader::SosData},
      {"SOS1", true, &MpsReader::Sos1Header, &MpsReader::SosData},
      {"SOS2", true, &MpsReader::Sos2Header, &MpsReader::SosData},
      {"INDICATORS", false, &MpsReader::PlainHeader, &MpsReader::IndicatorsData},
      {"ENDATA", false, &MpsReader::EndHeader, &MpsReader::NoData},
  };
  return kSections;
}

}  // namespace

ReadModel ReadMps(TextSource const& source) {
  return MpsReader(source).Read();
}

}  // namespace vorqsolver
