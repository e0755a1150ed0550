// Cutting the data lines of MPS files into fields.
#include "solver/files/mps_fields.hpp"

#include <algorithm>
#include <cstddef>

namespace vorqsolver {
namespace {

struct Span {
  std::size_t begin;
  std::size_t end;
};
constexpr Span kPositions[] = {{1, 3}, {4, 12}, {14, 22}, {24, 36}, {39, 47}, {49, 61}};

}  // namespace

std::vector<std::string_view> const& MpsFields::Words() {
  words_.clear();
  auto rest = lines_.Line();
  for (auto word = NextWord(rest); !word.empty(); word = NextWord(rest)) words_.push_back(word);
  return words_;
}

bool MpsFields::FieldsByPosition(Fields& fields) const {
  auto const line = lines_.Line();
  std::size_t gap = 0;
  auto const blank = [&](std::size_t begin, std::size_t end) {
    for (auto k = begin; k < std::min(end, line.size()); ++k) {
      if (line[k] != ' ') return false;
    }
    return true;
  };
  if (line.find('\t') != std::string_view::npos) return false;
  for (std::size_t f = 0; f < fields.size(); ++f) {
    auto const [begin, end] = kPositions[f];
    if (!blank(gap, begin)) return false;
    fields[f] = begin < line.size() ? Trim(line.substr(begin, end - begin)) : std::string_view();
    gap = end;
  }
  return blank(gap, line.size());
}

std::array<std::string_view, 2> MpsFields::SenseAndName() {
  Fields fields;
  if (Words().size() == 2 && !byPosition_) return {words_[0], words_[1]};
  if (FieldsByPosition(fields) && !fields[0].empty() && !fields[1].empty() && fields[2].empty()) {
    byPosition_ = byPosition_ || words_.size() > 2;
    return {fields[0], fields[1]};
  }
  if (words_.size() == 2) return {words_[0], words_[1]};
  lines_.Refuse("a line of ROWS needs a sense and a name");
}

MpsPairs const& MpsFields::Pairs(bool headNeeded) {
  Words();
  if (byPosition_ && PairsByPosition(headNeeded)) return pairs_;
  if (PairsByWords(headNeeded)) return pairs_;
  if (PairsByPosition(headNeeded)) {
    byPosition_ = true;
    return pairs_;
  }
  // Tell of the number that is none, where the count of words is right.
  if (words_.size() >= 3 && words_.size() % 2 == 1) {
    for (std::size_t k = 2; k < words_.size(); k += 2) NumberAt(lines_.Source(), lines_.Number(), words_[k]);
  }
  lines_.Refuse("a name and pairs of name and number are needed");
}

bool MpsFields::PairsByWords(bool headNeeded) {
  auto const count = words_.size();
  std::size_t const heads = count % 2;
  if (count < 2 || (heads == 0 && headNeeded)) return false;
  pairs_.head = heads == 1 ? words_[0] : std::string_view();
  pairs_.pairs.clear();
  for (std::size_t k = heads; k < count; k += 2) {
    if (!IsNumber(words_[k + 1])) return false;
    pairs_.pairs.push_back({words_[k], words_[k + 1]});
  }
  return !pairs_.pairs.empty();
}

bool MpsFields::PairsByPosition(bool headNeeded) {
  Fields fields;
  if (!FieldsByPosition(fields) || !fields[0].empty() || (headNeeded && fields[1].empty())) return false;
  pairs_.head = fields[1];
  pairs_.pairs.clear();
  for (std::size_t k = 2; k < 6; k += 2) {
    if (fields[k].empty() && fields[k + 1].empty() && k > 2) break;
    if (fields[k].empty() || !IsNumber(fields[k + 1])) return false;
    pairs_.pairs.push_back({fields[k], fields[k + 1]});
  }
  return true;
}

bool MpsFields::BoundByPosition(MpsBound& bound) {
  Fields fields;
  if (!FieldsByPosition(fields) || fields[0].empty() || fields[2].empty()) return false;
  if (!fields[4].empty() || !fields[5].empty()) return false;
  bound = {fields[0], fields[1], fields[2], fields[3]};
  byPosition_ = byPosition_ || words_.size() > 4;
  return true;
}

}  // namespace vorqsolver
