// NL files: a golden text, random models evaluated as a solver would, and what is refused.
#include "solver/files/nl_writer.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "solver/files/lp_reader.hpp"
#include "tests/solver/files/describe.hpp"
#include "tests/solver/files/nl_reading.hpp"
#include "tests/solver/files/sample_models.hpp"

namespace vorqsolver::test {
namespace {

TEST(NlWriter, GoldenText) {
  auto const data =
      ReadLp({"m.lp",
              "\\Problem name: small\nmax 2 x + 3 y - z + [ y^2 ] + 4\nst\n c1: x + 2 y <= 8\n c2: 1 <= x - z <= 5\n"
              " q1: x + [ 2 z^2 - y * z ] >= -4\n c3: b + x = 2\nbounds\n x <= 4\n y free\nbinary\n b\ngeneral\n "
              "x\nend\n"})
          .data;
  auto const written = WriteNl(data);
  EXPECT_EQ(written.text,
            "g3 1 1 0\t# problem small\n"
            " 4 4 1 1 1\t# vars, constraints, objectives, ranges, eqns\n"
            " 1 1\t# nonlinear constraints, objectives\n"
            " 0 0\t# network constraints: nonlinear, linear\n"
            " 2 1 1\t# nonlinear vars in constraints, objectives, both\n"
            " 0 0 0 1\t# linear network variables; functions; arith, flags\n"
            " 1 1 0 0 0\t# discrete variables: binary, integer, nonlinear (b,c,o)\n"
            " 9 3\t# nonzeros in Jacobian, gradients\n"
            " 0 0\t# max name lengths: constraints, variables\n"
            " 0 0 0 0 0\t# common exprs: b,c,o,c1,o1\n"
            "C0\no0\no16\no2\nv0\nv1\no2\nn2\no5\nv1\nn2\n"
            "C1\nn0\nC2\nn0\nC3\nn0\n"
            "O0 1\no0\no5\nv0\nn2\nn4\n"
            "r\n2 -4\n1 8\n0 1 5\n4 2\n"
            "b\n3\n2 0\n0 0 1\n0 0 4\n"
            "k3\n2\n4\n5\n"
            "J0 3\n0 0\n1 0\n3 1\nJ1 2\n0 2\n3 1\nJ2 2\n1 -1\n3 1\nJ3 2\n2 1\n3 1\n"
            "G0 3\n0 3\n1 -1\n3 2\n");
  EXPECT_EQ(written.warnings,
            (Warnings{"The columns stand in another order in the NL file",
                      "The quadratic constraints stand before the rows in the NL file", "An NL file holds no names"}));
}

TEST(NlWriter, WritesAnEmptyProblem) {
  auto const text = WriteNl({}).text;
  EXPECT_NE(text.find("\n 0 0 1 0 0\t# vars"), std::string::npos);
  EXPECT_TRUE(text.ends_with("O0 0\nn0\n"));
}

// The value of a side that tells constraint from constraint.
double MarkOf(NlBounds const& bounds) {
  return std::isfinite(bounds.lower) ? bounds.lower : bounds.upper;
}

// Bounds tell columns and constraints apart, in whatever order they are written.
ProblemData MarkedModel(unsigned seed, std::mt19937& random) {
  ProblemData data = RandomModel(seed, {.quadratic = true}).Make();
  auto const count = data.columns.type.size();
  for (std::size_t j = 0; j < count; ++j) {
    data.columns.type[j] = "CCI"[random() % 3];
    data.columns.lower[j] = static_cast<double>(j) + 10.25;
    data.columns.upper[j] = static_cast<double>(j) + 100.0;
  }
  auto const binary = random() % count;
  data.columns.type[binary] = 'B';
  data.columns.lower[binary] = 0.0;
  data.columns.upper[binary] = 1.0;
  double mark = 1000.0;
  for (std::size_t i = 0; i < data.rows.lower.size(); ++i) {
    ++mark;
    data.rows.lower[i] = random() % 3 > 0 ? mark : -kInfinity;
    data.rows.upper[i] = data.rows.lower[i] < 0.0 || random() % 3 == 0 ? mark : kInfinity;
  }
  for (QuadConstraint& constraint : data.quadConstraints) constraint.rhs = ++mark;
  return data;
}

double ValueOf(std::vector<LinearTerm> const& linear, std::vector<QuadTerm> const& products,
               std::vector<double> const& x) {
  double sum = 0.0;
  for (LinearTerm const& term : linear) sum += term.value * x[static_cast<std::size_t>(term.col)];
  for (QuadTerm const& term : products) {
    sum += term.value * x[static_cast<std::size_t>(term.row)] * x[static_cast<std::size_t>(term.col)];
  }
  return sum;
}

std::vector<LinearTerm> RowTerms(ProblemData const& data, int row) {
  std::vector<LinearTerm> terms;
  auto const view = data.rows.matrix.Row(row);
  for (std::size_t k = 0; k < view.indices.size(); ++k) terms.push_back({view.indices[k], view.values[k]});
  return terms;
}

class NlValues : public testing::TestWithParam<unsigned> {};

TEST_P(NlValues, AreThoseOfTheProblem) {
  std::mt19937 random(GetParam());
  ProblemData const data = MarkedModel(GetParam(), random);
  NlReading const nl(WriteNl(data).text);
  auto const count = data.columns.type.size();
  ASSERT_EQ(nl.bounds.size(), count);

  // A random point, for the columns and for the variables of the file.
  std::vector<double> x(count), point(count);
  std::vector<bool> const integer = nl.IntegerVariables();
  for (std::size_t k = 0; k < count; ++k) {
    auto const found = std::ranges::find(data.columns.lower, nl.bounds[k].lower) - data.columns.lower.begin();
    auto const j = static_cast<std::size_t>(found);
    ASSERT_LT(j, count);
    EXPECT_EQ(nl.bounds[k].upper, data.columns.upper[j]);
    EXPECT_EQ(integer[k], data.columns.type[j] != 'C') << "variable " << k;
    x[j] = point[k] = std::uniform_real_distribution(-2.0, 2.0)(random);
  }

  std::vector<LinearTerm> objective;
  for (std::size_t j = 0; j < count; ++j) objective.push_back({static_cast<int>(j), data.columns.objective[j]});
  EXPECT_NEAR(nl.objective.At(point), data.objective.constant + ValueOf(objective, data.objective.quadratic, x), 1e-9);
  EXPECT_EQ(nl.maximise, data.objective.sense < 0);

  ASSERT_EQ(nl.constraints.size(), data.rows.lower.size() + data.quadConstraints.size());
  for (std::size_t i = 0; i < nl.constraints.size(); ++i) {
    auto const number = static_cast<std::size_t>(MarkOf(nl.sides[i])) - 1001;
    bool const isRow = number < data.rows.lower.size();
    auto const value = nl.constraints[i].At(point);
    if (isRow) {
      EXPECT_NEAR(value, ValueOf(RowTerms(data, static_cast<int>(number)), {}, x), 1e-9);
      continue;
    }
    QuadConstraint const& constraint = data.quadConstraints.at(number - data.rows.lower.size());
    EXPECT_NEAR(value, ValueOf(constraint.linear, constraint.quadratic, x), 1e-9);
    EXPECT_EQ(std::isfinite(nl.sides[i].lower), constraint.sense != 'L');
    EXPECT_EQ(std::isfinite(nl.sides[i].upper), constraint.sense != 'G');
  }
}

// What the header says of the order holds for the expressions behind it.
TEST_P(NlValues, KeepToTheOrderOfTheHeader) {
  std::mt19937 random(GetParam());
  NlReading const nl(WriteNl(MarkedModel(GetParam(), random)).text);
  int const inConstraints = nl.head[5].at(0), inObjective = nl.head[5].at(1), both = nl.head[5].at(2);
  std::size_t nonzeros = 0, ranges = 0, equations = 0;
  std::set<int> constrained;
  std::vector<int> counts(nl.bounds.size());
  for (std::size_t i = 0; i < nl.constraints.size(); ++i) {
    NlPart const& part = nl.constraints[i];
    EXPECT_EQ(static_cast<int>(i) < nl.head[3].at(0), !part.nonlinearVariables.empty()) << i;
    constrained.insert(part.nonlinearVariables.begin(), part.nonlinearVariables.end());
    EXPECT_TRUE(std::ranges::includes(part.linearVariables, part.nonlinearVariables));
    nonzeros += part.linearVariables.size();
    for (int const variable : part.linearVariables) ++counts[static_cast<std::size_t>(variable)];
    bool const bounded = std::isfinite(nl.sides[i].lower) && std::isfinite(nl.sides[i].upper);
    if (bounded) ++(nl.sides[i].lower == nl.sides[i].upper ? equations : ranges);
  }
  EXPECT_EQ(static_cast<int>(constrained.size()), inConstraints);
  if (!constrained.empty()) {
    EXPECT_EQ(*constrained.rbegin(), inConstraints - 1);
  }
  std::set<int> common;
  std::ranges::set_intersection(constrained, nl.objective.nonlinearVariables, std::inserter(common, common.end()));
  EXPECT_EQ(static_cast<int>(common.size()), both);
  if (!nl.objective.nonlinearVariables.empty()) {
    EXPECT_EQ(*nl.objective.nonlinearVariables.rbegin(), inObjective - 1);
  }
  EXPECT_EQ(nl.head[3].at(1), nl.objective.nonlinearVariables.empty() ? 0 : 1);
  EXPECT_EQ(nl.head[2].at(3), static_cast<int>(ranges));
  EXPECT_EQ(nl.head[2].at(4), static_cast<int>(equations));
  EXPECT_EQ(nl.head[8].at(0), static_cast<int>(nonzeros));
  EXPECT_EQ(nl.head[8].at(1), static_cast<int>(nl.objective.linearVariables.size()));
  ASSERT_EQ(nl.columnCounts.size() + 1, counts.size());
  int sum = 0;
  for (std::size_t k = 0; k < nl.columnCounts.size(); ++k) EXPECT_EQ(nl.columnCounts[k], sum += counts[k]);
}

INSTANTIATE_TEST_SUITE_P(Random, NlValues, testing::Range(1u, 101u));

TEST(NlWriter, RefusesOtherKindsByName) {
  auto const failure = [](auto change) {
    ProblemData data;
    data.columns = {{0.0}, {1.0}, {0.0}, {'C'}, {}};
    change(data);
    return FailureOf([&] { WriteNl(data); });
  };
  EXPECT_EQ(failure([](auto& data) { data.soss.resize(1); }), "An NL file cannot hold SOS");
  EXPECT_EQ(failure([](auto& data) { data.indicators.resize(1); }), "An NL file cannot hold indicators");
  EXPECT_EQ(failure([](auto& data) { data.lazyConstraints.lower.resize(1); }),
            "An NL file cannot hold lazy constraints");
  EXPECT_EQ(failure([](auto& data) { data.userCuts.lower.resize(1); }), "An NL file cannot hold user cuts");
  EXPECT_EQ(failure([](auto& data) { data.columns.type[0] = 'S'; }), "An NL file cannot hold semicontinuous columns");
  EXPECT_EQ(failure([](auto& data) { data.columns.type[0] = 'N'; }), "An NL file cannot hold semi-integer columns");
  EXPECT_EQ(failure([](auto& data) { data.cones.resize(1); }), "An NL file cannot hold cones");
  EXPECT_EQ(failure([](auto& data) { data.lmiConstraints.resize(1); }), "An NL file cannot hold LMI constraints");
}

}  // namespace
}  // namespace vorqsolver::test
