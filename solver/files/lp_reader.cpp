// Reading LP files, section by section.
#include "solver/files/lp_reader.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "solver/files/lp_expression.hpp"
#include "solver/files/lp_tokens.hpp"

namespace vorqsolver {
namespace {

// What the sections behind the constraints say of a column.
struct LpColumn {
  double lower = 0.0;
  double upper = kInfinity;
  bool bounded = false;
  bool general = false;
  bool binary = false;
  bool semiContinuous = false;
  std::size_t lastSos = 0;  // the number of the set that last named it, from 1
};

// Linear rows of one section, in flat arrays until all columns are known.
struct LpRows {
  std::vector<std::size_t> begins = {0};
  std::vector<int> cols;
  std::vector<double> values;
  FlatList<double> lowers;
  FlatList<double> uppers;
  std::vector<std::string_view> names;
};

struct LpInterval {
  double lower;
  double upper;
};

class LpReader {
 public:
  explicit LpReader(TextSource const& source) : source_(source), tokens_(source), expressions_(tokens_) {}

  ReadModel Read() {
    ReadObjective();
    for (bool ended = false; !ended;) {
      auto const section = tokens_.TakeSection();
      if (!section) tokens_.RefuseToken(tokens_.Peek(), "a section");
      switch (*section) {
        case LpSection::kMinimize:
        case LpSection::kMaximize: tokens_.Refuse(tokens_.Peek(), "second objective");
        case LpSection::kConstraints: ReadConstraints(&rows_, true); break;
        case LpSection::kLazyConstraints: ReadConstraints(&lazyConstraints_, false); break;
        case LpSection::kUserCuts: ReadConstraints(&userCuts_, false); break;
        case LpSection::kBounds: ReadBounds(); break;
        case LpSection::kGenerals: ReadList(&LpColumn::general); break;
        case LpSection::kBinaries: ReadList(&LpColumn::binary); break;
        case LpSection::kSemiContinuous: ReadList(&LpColumn::semiContinuous); break;
        case LpSection::kSos: ReadSoss(); break;
        case LpSection::kEnd: ended = true; break;
      }
    }
    if (tokens_.Peek().kind != LpTokenKind::kEnd) tokens_.RefuseToken(tokens_.Peek(), "nothing behind End");
    Assemble();
    return {std::move(data_), std::move(warnings_)};
  }

 private:
  bool AtStatement() { return tokens_.Peek().kind != LpTokenKind::kEnd && !tokens_.AtSection(); }

  std::optional<LpToken> TakeLabel() {
    if (tokens_.Peek().kind != LpTokenKind::kName || tokens_.Peek(1).kind != LpTokenKind::kColon) return std::nullopt;
    LpToken const label = tokens_.Take();
    tokens_.Take();
    return label;
  }

  // ------------------------------------------------------------------ objective
  void ReadObjective() {
    auto const section = tokens_.TakeSection();
    if (section != LpSection::kMinimize && section != LpSection::kMaximize) {
      tokens_.RefuseToken(tokens_.Peek(), "Minimize or Maximize");
    }
    data_.objective.sense = section == LpSection::kMinimize ? 1 : -1;
    TakeLabel();
    LpToken const start = tokens_.Peek();
    LpExpression const expression = expressions_.Read(LpSide::kLeft);
    if (!IsFinite(expression.constant)) tokens_.Refuse(start, "the constant of the objective is infinite");
    data_.objective.constant = expression.constant;
    data_.objective.quadratic = MergedTerms(expression.quadratic);
    Merge(expression.linear);
    CheckFinite(data_.objective.quadratic, start, "the objective");
    objective_ = std::move(merged_);
    if (AtStatement()) tokens_.RefuseToken(tokens_.Peek(), "an operator or a section");
  }

  // Adds up the terms of one column, in the order in which the columns are first met.
  void Merge(std::vector<LinearTerm> const& terms) {
    merged_.clear();
    places_.resize(expressions_.Names().size(), 0);
    for (LinearTerm const& term : terms) {
      // The place is that of this expression only if the term there is of the same column.
      std::size_t& place = places_[static_cast<std::size_t>(term.col)];
      if (place < merged_.size() && merged_[place].col == term.col) {
        merged_[place].value += term.value;
      } else {
        place = merged_.size();
        merged_.push_back(term);
      }
    }
  }

  static bool IsFinite(double value) { return std::abs(value) < kInfinity; }  // false for NaN

  // Of the merged terms: sums may leave the range, too.
  void CheckFinite(std::vector<QuadTerm> const& quadratic, LpToken const& start, std::string_view what) const {
    bool finite = true;
    for (auto const& term : merged_) finite = finite && IsFinite(term.value);
    for (auto const& term : quadratic) finite = finite && IsFinite(term.value);
    if (!finite) tokens_.Refuse(start, "a coefficient of ", what, " is out of range");
  }

  // ---------------------------------------------------------------- constraints
  void ReadConstraints(LpRows* rows, bool allKinds) {
    while (AtStatement()) ReadConstraint(*rows, allKinds);
  }

  void ReadConstraint(LpRows& rows, bool allKinds) {
    auto const label = TakeLabel();
    LpToken const start = label ? *label : tokens_.Peek();
    name_ = label ? label->text : std::string_view();
    if (label && !constraintNames_.insert(name_).second)
      tokens_.Refuse(start, "constraint '", name_, "' is stated twice");
    if (IsRelation(tokens_.Peek().kind)) tokens_.RefuseToken(tokens_.Peek(), "a term");
    LpExpression left = expressions_.Read(LpSide::kLeft);
    LpTokenKind const relation = TakeRelation();
    if (relation == LpTokenKind::kEqual && tokens_.Peek(1).kind == LpTokenKind::kArrow) {
      ReadIndicator(left, start, allKinds);
      return;
    }
    bool const ranged = left.IsConstant();
    LpExpression right = ReadSide(ranged ? LpSide::kMiddle : LpSide::kRight);
    if (ranged && IsRelation(tokens_.Peek().kind)) {
      LpInterval const interval = ReadRange(left.constant, relation, right.constant);
      Store(right, interval, start, rows, allKinds);
      return;
    }
    // The columns stay on the side on which they are alone.
    bool const swapped = ranged && !right.IsConstant();
    LpExpression& columns = swapped ? right : left;
    LpExpression const& other = swapped ? left : right;
    double const rhs = Clipped(other.constant) - Clipped(columns.constant);
    columns.Add(other, -1.0);
    Store(columns, Interval(swapped ? Mirrored(relation) : relation, rhs), start, rows, allKinds);
  }

  LpExpression ReadSide(LpSide side) {
    LpExpression expression = expressions_.Read(side);
    if (!expression.stated) tokens_.RefuseToken(tokens_.Peek(), "a term");
    return expression;
  }

  static bool IsRelation(LpTokenKind kind) {
    return kind == LpTokenKind::kLess || kind == LpTokenKind::kGreater || kind == LpTokenKind::kEqual;
  }

  static LpTokenKind Mirrored(LpTokenKind relation) {
    if (relation == LpTokenKind::kEqual) return relation;
    return relation == LpTokenKind::kLess ? LpTokenKind::kGreater : LpTokenKind::kLess;
  }

  LpTokenKind TakeRelation() {
    LpToken const token = tokens_.Take();
    if (!IsRelation(token.kind)) tokens_.RefuseToken(token, "an operator or a relation");
    return token.kind;
  }

  static LpInterval Interval(LpTokenKind relation, double rhs) {
    double const value = Clipped(rhs);
    return {relation == LpTokenKind::kLess ? -kInfinity : value, relation == LpTokenKind::kGreater ? kInfinity : value};
  }

  // The second relation and the third side of "1 <= x + y <= 5"; `offset` is the constant of the middle.
  LpInterval ReadRange(double first, LpTokenKind relation, double offset) {
    LpToken const token = tokens_.Take();
    if (token.kind != relation || relation == LpTokenKind::kEqual) {
      tokens_.Refuse(token, "the two relations of a range must be alike");
    }
    LpExpression const last = ReadSide(LpSide::kRight);
    if (!last.IsConstant()) tokens_.Refuse(token, "a range must end with a number");
    double const low = relation == LpTokenKind::kLess ? first : last.constant;
    double const high = relation == LpTokenKind::kLess ? last.constant : first;
    return {Clipped(Clipped(low) - offset), Clipped(Clipped(high) - offset)};
  }

  void Store(LpExpression const& expression, LpInterval interval, LpToken const& start, LpRows& rows, bool allKinds) {
    if (std::isnan(interval.lower) || std::isnan(interval.upper)) {
      tokens_.Refuse(start, "the right-hand side is out of range");
    }
    if (interval.lower == interval.upper && std::abs(interval.lower) >= kInfinity) {
      tokens_.Refuse(start, "an equality with an infinite right-hand side");
    }
    Merge(expression.linear);
    auto quadratic = MergedTerms(expression.quadratic);
    CheckFinite(quadratic, start, name_.empty() ? Text("the constraint") : Text("constraint '", name_, "'"));
    if (!quadratic.empty()) {
      if (!allKinds) tokens_.Refuse(start, "a lazy constraint or user cut with quadratic terms");
      StoreQuadratic(std::move(quadratic), interval, start);
      return;
    }
    for (LinearTerm const& term : merged_) {
      rows.cols.push_back(term.col);
      rows.values.push_back(term.value);
    }
    rows.begins.push_back(rows.cols.size());
    rows.lowers.push_back(interval.lower);
    rows.uppers.push_back(interval.upper);
    rows.names.push_back(name_);
  }

  void StoreQuadratic(std::vector<QuadTerm> quadratic, LpInterval interval, LpToken const& start) {
    bool const equal = interval.lower == interval.upper;
    bool const below = interval.lower <= -kInfinity;
    if (!equal && !below && interval.upper < kInfinity) tokens_.Refuse(start, "a range of a quadratic constraint");
    double const rhs = below ? interval.upper : interval.lower;
    if (!IsFinite(rhs)) tokens_.Refuse(start, "a quadratic constraint with an infinite right-hand side");
    data_.quadConstraintNames.Set(static_cast<int>(data_.quadConstraints.size()), name_);
    data_.quadConstraints.push_back({merged_, std::move(quadratic), equal ? 'E' : below ? 'L' : 'G', rhs});
  }

  // "b = 1 -> x + y <= 3", from the number on.
  void ReadIndicator(LpExpression const& left, LpToken const& start, bool allKinds) {
    bool const oneColumn = left.linear.size() == 1 && left.quadratic.empty() && left.constant == 0.0;
    if (!oneColumn || left.linear[0].value != 1.0) tokens_.Refuse(start, "an indicator needs one column and its value");
    if (!allKinds) tokens_.Refuse(start, "a lazy constraint or user cut with an indicator");
    LpToken const number = tokens_.Take();
    if (number.kind != LpTokenKind::kNumber || (number.value != 0.0 && number.value != 1.0)) {
      tokens_.RefuseToken(number, "the value 0 or 1 of an indicator");
    }
    tokens_.Take();
    LpExpression expression = ReadSide(LpSide::kLeft);
    LpTokenKind const relation = TakeRelation();
    LpExpression const right = ReadSide(LpSide::kRight);
    expression.Add(right, -1.0);
    if (!expression.quadratic.empty()) tokens_.Refuse(start, "an indicator of a quadratic constraint");
    if (!IsFinite(expression.constant)) tokens_.Refuse(start, "an indicator with an infinite right-hand side");
    Merge(expression.linear);
    CheckFinite({}, start, "the indicator");
    Indicator indicator;
    indicator.binCol = left.linear[0].col;
    indicator.binVal = number.value == 1.0 ? 1 : 0;
    indicator.terms = merged_;
    indicator.sense = relation == LpTokenKind::kEqual ? 'E' : relation == LpTokenKind::kLess ? 'L' : 'G';
    indicator.rhs = 0.0 - expression.constant;
    data_.indicatorNames.Set(static_cast<int>(data_.indicators.size()), name_);
    data_.indicators.push_back(std::move(indicator));
    indicatorLines_.push_back(start);
  }

  // --------------------------------------------------------------------- bounds
  LpColumn& TakeColumn() {
    auto const col = static_cast<std::size_t>(expressions_.TakeKnownColumn());
    if (columns_.size() <= col) columns_.resize(expressions_.Names().size());
    return columns_[col];
  }

  void ReadBounds() {
    while (AtStatement()) {
      if (expressions_.AtBound()) {
        ReadBoundFromNumber();
      } else {
        ReadBoundFromName();
      }
    }
  }

  // "x free", "x <= 3", "x = 3"
  void ReadBoundFromName() {
    LpColumn& column = TakeColumn();
    LpToken const& next = tokens_.Peek();
    if (next.kind == LpTokenKind::kName && EqualsNoCase(next.text, "free")) {
      tokens_.Take();
      column.lower = -kInfinity;
      column.upper = kInfinity;
      column.bounded = true;
      return;
    }
    LpTokenKind const relation = TakeRelation();
    SetBound(column, relation, expressions_.ReadBound());
  }

  // "1 <= x", "1 <= x <= 3"
  void ReadBoundFromNumber() {
    double const first = expressions_.ReadBound();
    LpTokenKind const relation = TakeRelation();
    LpColumn& column = TakeColumn();
    SetBound(column, Mirrored(relation), first);
    if (!IsRelation(tokens_.Peek().kind)) return;
    LpToken const token = tokens_.Take();
    if (token.kind != relation || relation == LpTokenKind::kEqual) {
      tokens_.Refuse(token, "the two relations of a range must be alike");
    }
    SetBound(column, relation, expressions_.ReadBound());
  }

  static void SetBound(LpColumn& column, LpTokenKind relation, double value) {
    if (relation != LpTokenKind::kLess) column.lower = value;
    if (relation != LpTokenKind::kGreater) column.upper = value;
    column.bounded = true;
  }

  void ReadList(bool LpColumn::*flag) {
    while (AtStatement()) TakeColumn().*flag = true;
  }

  // ------------------------------------------------------------------------ SOS
  // "name: S1:: x:1 y:2"; the name may be missing.
  void ReadSoss() {
    while (AtStatement()) {
      TakeLabel();
      LpToken const type = tokens_.Take();
      bool const one = EqualsNoCase(type.text, "S1");
      if (!one && !EqualsNoCase(type.text, "S2")) tokens_.RefuseToken(type, "S1 or S2");
      if (!tokens_.TakeIf(LpTokenKind::kDoubleColon)) tokens_.RefuseToken(tokens_.Peek(), "'::'");
      data_.soss.emplace_back().type = one ? 1 : 2;
      while (AtStatement() && !AtSet()) ReadMember();
    }
  }

  bool AtSet() {
    return tokens_.Peek(1).kind == LpTokenKind::kDoubleColon ||
           (tokens_.Peek(1).kind == LpTokenKind::kColon && tokens_.Peek(3).kind == LpTokenKind::kDoubleColon);
  }

  void ReadMember() {
    LpToken const token = tokens_.Peek();
    LpColumn& column = TakeColumn();
    if (std::exchange(column.lastSos, data_.soss.size()) == data_.soss.size()) {
      tokens_.Refuse(token, "column '", token.text, "' is twice in one set");
    }
    if (!tokens_.TakeIf(LpTokenKind::kColon)) tokens_.RefuseToken(tokens_.Peek(), "':'");
    double const weight = expressions_.ReadBound();
    if (std::abs(weight) >= kInfinity) tokens_.Refuse(token, "the weight of '", token.text, "' is infinite");
    data_.soss.back().cols.push_back(static_cast<int>(&column - columns_.data()));
    data_.soss.back().weights.push_back(weight);
  }

  // ------------------------------------------------------------------- assembly
  void Assemble() {
    auto const& names = expressions_.Names();
    data_.name = tokens_.ProblemName();
    columns_.resize(names.size());
    data_.columns.objective.assign(names.size(), 0.0);
    for (LinearTerm const& term : objective_) data_.columns.objective[static_cast<std::size_t>(term.col)] = term.value;
    for (std::size_t j = 0; j < names.size(); ++j) AddColumn(names[j], columns_[j]);
    for (std::size_t k = 0; k < indicatorLines_.size(); ++k) {
      int const col = data_.indicators[k].binCol;
      if (!MakeBinary(data_.columns, col)) {
        tokens_.Refuse(indicatorLines_[k], "column '", data_.columns.names.Get(col), "' of an indicator is not binary");
      }
    }
    Move(rows_, data_.rows);
    Move(lazyConstraints_, data_.lazyConstraints);
    Move(userCuts_, data_.userCuts);
  }

  void AddColumn(std::string_view name, LpColumn const& column) {
    LpInterval bounds{column.lower, column.upper};
    if (column.binary) bounds = {std::max(bounds.lower, 0.0), std::min(bounds.upper, 1.0)};
    if (bounds.lower > bounds.upper) {
      warnings_.push_back(Text(source_.name, ": the bounds of column '", name, "' cross"));
    }
    data_.columns.names.Set(data_.columns.Count(), name);
    data_.columns.type.push_back(column.semiContinuous ? (column.general ? 'N' : 'S')
                                 : column.binary       ? 'B'
                                 : column.general      ? 'I'
                                                       : 'C');
    data_.columns.lower.push_back(bounds.lower);
    data_.columns.upper.push_back(bounds.upper);
  }

  // `to` is a Rows or a SideRows.
  template <typename AnyRows>
  void Move(LpRows& from, AnyRows& to) {
    to.matrix.AppendEmptyCols(data_.columns.Count());
    for (std::size_t i = 0; i < from.names.size(); ++i) {
      auto const begin = from.begins[i];
      auto const count = from.begins[i + 1] - begin;
      to.matrix.AppendRow(std::span(from.cols).subspan(begin, count), std::span(from.values).subspan(begin, count));
      if (!from.names[i].empty()) to.names.Set(static_cast<int>(i), from.names[i]);
    }
    to.lower = std::move(from.lowers);
    to.upper = std::move(from.uppers);
  }

  TextSource const& source_;
  LpTokens tokens_;
  LpExpressions expressions_;
  ProblemData data_;
  Warnings warnings_;
  LpRows rows_, lazyConstraints_, userCuts_;
  std::vector<LpColumn> columns_;
  std::vector<LinearTerm> objective_;
  std::vector<LpToken> indicatorLines_;  // where each begins
  std::unordered_set<std::string_view> constraintNames_;
  std::string_view name_;  // of the constraint at hand
  std::vector<LinearTerm> merged_;
  std::vector<std::size_t> places_;  // of each column in merged_
};

}  // namespace

ReadModel ReadLp(TextSource const& source) {
  return LpReader(source).Read();
}

}  // namespace vorqsolver
