// The whole log of a solve, with what differs from run to run masked.
#include <regex>
#include <thread>

#include "tests/solver/engines/solve_fixture.hpp"

namespace {

class LogTextTest : public SolveTest {
 protected:
  // Times, iterations and versions of engines are masked; the columns of a table stay.
  std::string Text() const {
    std::string text;
    for (auto const& line : lines) {
      auto masked = std::regex_replace(line, std::regex("[0-9]+\\.[0-9]+s"), "#s");
      masked = std::regex_replace(masked, std::regex("\\(engines: .*\\)"), "(engines)");
      masked = std::regex_replace(masked, std::regex("(Clp|Cbc|Vorq) [0-9.]+[0-9]"), "$1 #");
      masked = std::regex_replace(masked, std::regex("[0-9]+ iterations|Iterations   [0-9]+"), "# iterations");
      text += masked + "\n";
    }
    return text;
  }
};

TEST_F(LogTextTest, OfALinearProblem) {
  Maximise();
  Col(3.0, 0.0, 4.0);
  Col(2.0);
  Row({0, 1}, {1.0, 1.0}, 'L', 6.0);
  ListenToLog();
  Set("Presolve", 0);
  Solve();
  EXPECT_EQ(Text(), R"(Vorq #, optimisation solver library (engines)
Maximising the problem
  1 rows, 2 columns, 2 elements
Engine Clp # for linear rows
Status: optimal
  Objective    1.6000000000e+01
  Violations   bounds 0.0e+00, rows 0.0e+00
  # iterations
  Time         #s
)");
}

TEST_F(LogTextTest, OfAnInfeasibleProblem) {
  Col(1.0, 3.0, 2.0);
  ListenToLog();
  Solve();
  EXPECT_EQ(Text(), R"(Vorq #, optimisation solver library (engines)
Minimising the problem
  0 rows, 1 columns, 0 elements
Status: infeasible
  Column 0: its bounds cross
  # iterations
  Time         #s
)");
}

TEST_F(LogTextTest, OfAMixedIntegerProblemWithAStart) {
  Maximise();
  for (int j = 0; j < 3; ++j) Col(3.0 - j, 0.0, 1.0, 'B');
  Row({0, 1, 2}, {1.0, 1.0, 1.0}, 'L', 1.0);
  double const values[] = {1.0, 0.0, 0.0};
  ASSERT_EQ(VORQ_AddMipStart(prob, 3, nullptr, values), VORQ_OK);
  Set("Presolve", 0);
  ListenToLog();
  Solve();
  auto const text = Text();
  EXPECT_EQ(text.substr(0, text.find("Status:")),
            R"(Vorq #, optimisation solver library (engines)
Maximising the problem
  1 rows, 3 columns, 3 elements, 3 binary
Engine Cbc # for integer columns
Root relaxation: objective 3.000000000e+00, # iterations, #s
MIP start 1: accepted, objective 3.000000000e+00
       Nodes      Open         Incumbent             Bound       Gap     Time
S          0         1   3.000000000e+00   3.000000000e+00     0.00%     #s
)");
  EXPECT_NE(text.find("Status: optimal\n  Objective    3.0000000000e+00\n  Bound        3.0000000000e+00\n"
                      "  Gap          0.0000%\n  Violations   bounds 0.0e+00, rows 0.0e+00\n"
                      "               integrality 0.0e+00, discrete 0.0e+00\n"),
            text.npos)
      << text;
}

TEST_F(LogTextTest, OfAnInfeasibleSet) {
  Col(0.0, 0.0, 2.0);
  Row({0}, {1.0}, 'G', 5.0);
  ListenToLog();
  ASSERT_EQ(VORQ_ComputeIIS(prob), VORQ_OK);
  EXPECT_EQ(Text(), R"(Vorq #, optimisation solver library (engines)
Computing an IIS of the problem
  1 rows, 1 columns, 1 elements
A plain cause: row 0: it asks for at least 5 and reaches 2
IIS: 1 row sides, 1 column bounds, irreducible
  row 0 >= 5
  column 0 <= 2
  Time         #s
)");
}

TEST_F(LogTextTest, OfAFeasibilityRelaxation) {
  Col(1.0, 0.0, 2.0);
  Row({0}, {1.0}, 'G', 5.0);
  Set("Presolve", 0);
  ListenToLog();
  double const one = 1.0;
  ASSERT_EQ(VORQ_FeasRelax(prob, nullptr, nullptr, &one, nullptr), VORQ_OK);
  EXPECT_EQ(Text(), R"(Vorq #, optimisation solver library (engines)
Feasibility relaxation of the problem
  1 rows, 1 columns, 1 elements
Least sum of violations over 1 sides; engine Clp #
Status: optimal
  Least sum of violations, with penalties: 3.0000000000e+00
  Objective    2.0000000000e+00
  Time         #s
  row 0 >= 5 is violated by 3
)");
}

// A long search is never silent for long, and nothing comes after its end.
TEST_F(LogTextTest, SearchIsNotSilentForLong) {
  AddMarketSplit(5, 40);
  struct Listener {
    std::chrono::steady_clock::time_point last = std::chrono::steady_clock::now();
    double longest = 0.0;
    int count = 0;
  } listener;
  ASSERT_EQ(VORQ_SetLogCallback(
                prob,
                [](char const*, void* user) {
                  auto& to = *static_cast<Listener*>(user);
                  auto const now = std::chrono::steady_clock::now();
                  to.longest = std::max(to.longest, std::chrono::duration<double>(now - to.last).count());
                  to.last = now;
                  ++to.count;
                },
                &listener),
            VORQ_OK);
  Set("TimeLimit", 8.0);
  Solve();
  int const count = listener.count;
  EXPECT_LT(listener.longest, 6.5);
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_EQ(listener.count, count);
}

}  // namespace
