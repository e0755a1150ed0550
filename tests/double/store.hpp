// The small store behind each problem of the double: which items there are, and what tests take for granted of them.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vorqtest {

enum Kind {
  kCols,
  kRows,
  kSoss,
  kIndicators,
  kCones,
  kExpCones,
  kAffineCones,
  kQConstrs,
  kPsdCols,
  kPsdConstrs,
  kLmiConstrs,
  kSymMats,
  kKinds
};

// The attributes that count the items, by kind.
inline constexpr std::array<std::string_view, kKinds> kCounters = {"Cols",    "Rows",       "Soss",        "Indicators",
                                                                   "Cones",   "ExpCones",   "AffineCones", "QConstrs",
                                                                   "PSDCols", "PSDConstrs", "LMIConstrs",  "SymMats"};

struct Item {
  std::string name = {};
  char type = 'C';                                        // columns
  int dim = 0;                                            // PSD columns, LMI constraints, symmetric matrices
  std::vector<double> rows = {}, cols = {}, values = {};  // symmetric matrices
};

struct Store {
  std::array<std::vector<Item>, kKinds> items;
  std::map<std::string, double, std::less<>> params;

  int Count(Kind kind) const { return static_cast<int>(items[kind].size()); }
  Item* Find(Kind kind, int index);

  void Delete(Kind kind, int count, int const* indices);

  // The position of the first item of that name, -1 for none.
  int Search(Kind kind, std::string_view name) const;
};

}  // namespace vorqtest
