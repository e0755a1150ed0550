// What tuning goes by and what it leaves behind.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace vorqsolver {

// Names and values of parameters, as in a parameter file.
using Settings = std::vector<std::pair<std::string, std::string>>;

// A parameter and the values that tuning tries for it.
struct TuneChoice {
  std::string name;
  std::vector<std::string> values;
};

struct TunedSet {
  Settings settings;     // what differs from the parameters at the start of the tuning
  double measure = 0.0;  // the smaller the better: seconds, gap, objective or bound, as the tuning went by
};

struct Tuning {
  std::vector<TuneChoice> choices;  // from a file; empty for those of the library
  std::vector<TunedSet> sets;       // better than what there was, the best first
  double seconds = 0.0;
};

}  // namespace vorqsolver
