// NlReading: reads an NL file as a solver does, by the counts of its header, so that tests can evaluate what was
// written.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <istream>
#include <limits>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace vorqsolver::test {

struct NlBounds {
  double lower;
  double upper;
};

struct NlPart {
  std::function<double(std::vector<double> const&)> nonlinear;
  std::set<int> nonlinearVariables;
  std::vector<double> linear;  // by variable
  std::set<int> linearVariables;

  double At(std::vector<double> const& point) const {
    double sum = nonlinear(point);
    for (std::size_t k = 0; k < linear.size(); ++k) sum += linear[k] * point[k];
    return sum;
  }
};

class NlReading {
 public:
  std::vector<int> head[11];  // by line, from 1
  std::vector<NlPart> constraints;
  std::vector<NlBounds> sides;
  std::vector<NlBounds> bounds;
  NlPart objective;
  bool maximise = false;
  std::vector<int> columnCounts;

  explicit NlReading(std::string const& text) : lines_(text) {
    for (int k = 1; k <= 10; ++k) ReadHead(k);
    auto const variables = static_cast<std::size_t>(head[2].at(0));
    constraints.resize(static_cast<std::size_t>(head[2].at(1)));
    for (NlPart& part : constraints) part.linear.resize(variables);
    objective.linear.resize(variables);
    for (std::string line; std::getline(lines_, line);) ReadSegment(line, variables);
  }

  // Which variables are integer, by the counts of the header.
  std::vector<bool> IntegerVariables() const {
    int const inConstraints = head[5].at(0), inObjective = head[5].at(1), both = head[5].at(2);
    int const nonlinear = std::max(inConstraints, inObjective);
    std::vector<bool> integer(bounds.size());
    auto const mark = [&](int end, int count) {
      for (int k = end - count; k < end; ++k) integer.at(static_cast<std::size_t>(k)) = true;
    };
    mark(both, head[7].at(2));
    mark(inConstraints, head[7].at(3));
    mark(nonlinear, head[7].at(4));
    mark(static_cast<int>(bounds.size()), head[7].at(0) + head[7].at(1));
    return integer;
  }

 private:
  void ReadHead(int k) {
    std::string line;
    std::getline(lines_, line);
    std::istringstream words(line.substr(k == 1 ? 1 : 0, line.find('#') - (k == 1 ? 1 : 0)));
    for (int number = 0; words >> number;) head[k].push_back(number);
  }

  std::string Line() {
    std::string line;
    std::getline(lines_, line);
    return line;
  }

  void ReadSegment(std::string const& line, std::size_t variables) {
    std::istringstream words(line.substr(1));
    int number = 0, count = 0;
    words >> number >> count;
    switch (line[0]) {
      case 'C': ReadExpression(constraints.at(static_cast<std::size_t>(number))); break;
      case 'O':
        maximise = count == 1;
        ReadExpression(objective);
        break;
      case 'r': ReadBounds(sides, constraints.size()); break;
      case 'b': ReadBounds(bounds, variables); break;
      case 'k':
        for (; number > 0; --number) columnCounts.push_back(std::stoi(Line()));
        break;
      case 'J': ReadLinear(constraints.at(static_cast<std::size_t>(number)), count); break;
      case 'G': ReadLinear(objective, count); break;
      default: std::abort();
    }
  }

  void ReadLinear(NlPart& part, int count) {
    for (; count > 0; --count) {
      std::istringstream words(Line());
      int variable = 0;
      double value = 0.0;
      words >> variable >> value;
      part.linear.at(static_cast<std::size_t>(variable)) = value;
      part.linearVariables.insert(variable);
    }
  }

  void ReadBounds(std::vector<NlBounds>& list, std::size_t count) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    for (; count > 0; --count) {
      std::istringstream words(Line());
      int kind = 0;
      double first = 0.0, second = 0.0;
      words >> kind >> first >> second;
      NlBounds const choices[] = {
          {first, second}, {-kInfinite, first}, {first, kInfinite}, {-kInfinite, kInfinite}, {first, first}};
      list.push_back(choices[kind]);
    }
  }

  using Function = std::function<double(std::vector<double> const&)>;

  void ReadExpression(NlPart& part) { part.nonlinear = ReadNode(part); }

  Function ReadNode(NlPart& part) {
    std::string const line = Line();
    if (line[0] == 'n') return [value = std::stod(line.substr(1))](auto const&) { return value; };
    int const number = std::stoi(line.substr(1));
    if (line[0] == 'v') {
      part.nonlinearVariables.insert(number);
      return [number](auto const& point) { return point.at(static_cast<std::size_t>(number)); };
    }
    std::size_t const count = number == 54 ? std::stoul(Line()) : number == 16 ? 1 : 2;
    std::vector<Function> parts;
    for (std::size_t k = 0; k < count; ++k) parts.push_back(ReadNode(part));
    return [number, parts](auto const& point) {
      switch (number) {
        case 2: return parts[0](point) * parts[1](point);
        case 5: return parts[0](point) * parts[0](point);
        case 16: return -parts[0](point);
        default: break;
      }
      double sum = 0.0;
      for (auto const& each : parts) sum += each(point);
      return sum;
    };
  }

  std::istringstream lines_;
};

}  // namespace vorqsolver::test
