// C functions: reading and writing files. A read changes the problem only when the whole file has been read.
#include <climits>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "frame/vorq_solver.h"
#include "solver/api/guard.hpp"
#include "solver/files/basis_file.hpp"
#include "solver/files/binary_file.hpp"
#include "solver/files/cbf_reader.hpp"
#include "solver/files/cbf_writer.hpp"
#include "solver/files/lp_reader.hpp"
#include "solver/files/lp_writer.hpp"
#include "solver/files/mps_reader.hpp"
#include "solver/files/mps_writer.hpp"
#include "solver/files/nl_writer.hpp"
#include "solver/files/output_file.hpp"
#include "solver/files/parameter_file.hpp"
#include "solver/files/sdpa_reader.hpp"
#include "solver/files/solution_file.hpp"
#include "solver/files/text_source.hpp"
#include "solver/files/tune_file.hpp"
#include "solver/tasks/feas_relax.hpp"
#include "solver/tasks/iis.hpp"

namespace vorqsolver {
namespace {

std::string PathOf(char const* path) {
  Need(path, "path");
  if (*path == '\0') Refuse("The path is empty");
  return path;
}

// What a solve in another thread reads must stay.
void RefuseWhileSolving(Problem const& problem) {
  if (problem.solving) Refuse("Nothing can be read while the problem is being solved");
}

// How many there are of each kind, with the kinds that there are always first.
std::string SizeText(ProblemData const& data) {
  std::string text = Text(data.rows.Count(), " rows, ", data.columns.Count(), " columns, ",
                          data.rows.matrix.ElementCount(), " nonzeros");
  std::pair<std::size_t, char const*> const others[] = {
      {data.objective.quadratic.size(), "quadratic terms"},
      {data.quadConstraints.size(), "quadratic constraints"},
      {data.soss.size(), "SOS"},
      {data.indicators.size(), "indicators"},
      {static_cast<std::size_t>(data.lazyConstraints.Count()), "lazy constraints"},
      {static_cast<std::size_t>(data.userCuts.Count()), "user cuts"},
      {data.cones.size(), "cones"},
      {data.expCones.size(), "exponential cones"},
      {data.affineCones.size(), "affine cones"},
      {data.psdDims.size(), "PSD variables"},
      {data.psdConstraints.size(), "PSD constraints"},
      {data.lmiConstraints.size(), "LMI constraints"},
  };
  for (auto const& [count, kind] : others) {
    if (count > 0) text += Text(", ", count, " ", kind);
  }
  return text;
}

void LogAll(Problem& problem, Warnings const& warnings) {
  for (std::string const& line : warnings) problem.log.Line(Text("Warning: ", line));
}

int ReadProblem(VORQ_Prob* prob, char const* path, ReadModel (*read)(TextSource const&)) {
  return Edit(prob, [&](Problem& problem) {
    ReadModel model = read(LoadText(PathOf(path)));
    problem.data = std::move(model.data);
    problem.ResetResults(true);
    LogAll(problem, model.warnings);
    problem.log.Line(Text("Read '", path, "': ", SizeText(problem.data)));
  });
}

void WriteFile(Problem& problem, std::string const& path, WrittenFile const& file) {
  WriteTextFile(path, file.text);
  LogAll(problem, file.warnings);
  problem.log.Line(Text("Wrote '", path, "'"));
}

int WriteProblem(VORQ_Prob* prob, char const* path, WrittenFile (*write)(ProblemData const&)) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    WriteFile(problem, target, write(problem.data));
  });
}

// Values of columns serve as a start of the next solve: results come from a solve only.
int ReadStart(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    RefuseWhileSolving(problem);
    ReadValues read = ReadSolution(LoadText(PathOf(path)), problem.data);
    if (read.count == 0) throw Failure(VORQ_INVALID, Text(path, ": no column has a value"));
    problem.starts.push_back({path, std::move(read.values)});
    problem.log.Line(Text("Read '", path, "': values of ", read.count, " of ", problem.data.columns.Count(),
                          " columns, kept as a MIP start"));
  });
}

struct Values {
  std::span<double const> values;
  std::optional<double> objective;
};

// The solution of the last solve.
std::optional<Values> LastSolution(Problem const& problem) {
  SolveResult const& result = problem.result;
  if (result.relaxed.available) return Values{result.relaxed.values, std::nullopt};
  bool const mip = result.isMip && !result.mipValues.empty();
  std::span<double const> const values = mip ? result.mipValues : result.lp.values;
  if (values.empty() || (result.isMip && !mip)) return std::nullopt;
  return Values{values, mip ? result.mipObjective : result.lpObjective};
}

void WriteValues(Problem& problem, std::string const& path, Values const& values) {
  // Columns may have been added or deleted since the solve.
  if (values.values.size() != static_cast<std::size_t>(problem.data.columns.Count())) {
    Refuse("There are values of ", values.values.size(), " columns, the problem has ", problem.data.columns.Count());
  }
  WriteFile(problem, path, WriteSolution(problem.data, values.values, values.objective));
}

}  // namespace
}  // namespace vorqsolver

using namespace vorqsolver;

int VORQ_ReadMps(VORQ_Prob* prob, char const* path) {
  return ReadProblem(prob, path, ReadMps);
}
int VORQ_ReadLp(VORQ_Prob* prob, char const* path) {
  return ReadProblem(prob, path, ReadLp);
}
int VORQ_ReadSDPA(VORQ_Prob* prob, char const* path) {
  return ReadProblem(prob, path, ReadSdpa);
}
int VORQ_ReadCbf(VORQ_Prob* prob, char const* path) {
  return ReadProblem(prob, path, ReadCbf);
}
int VORQ_ReadBin(VORQ_Prob* prob, char const* path) {
  return ReadProblem(prob, path, ReadBinary);
}
int VORQ_WriteMps(VORQ_Prob* prob, char const* path) {
  return WriteProblem(prob, path, WriteMps);
}
int VORQ_WriteLp(VORQ_Prob* prob, char const* path) {
  return WriteProblem(prob, path, WriteLp);
}
int VORQ_WriteCbf(VORQ_Prob* prob, char const* path) {
  return WriteProblem(prob, path, WriteCbf);
}
int VORQ_WriteBin(VORQ_Prob* prob, char const* path) {
  return WriteProblem(prob, path, WriteBinary);
}
int VORQ_WriteNL(VORQ_Prob* prob, char const* path) {
  return WriteProblem(prob, path, WriteNl);
}

int VORQ_WriteMpsStr(VORQ_Prob* prob, char* buffer, int capacity, int* required) {
  return Guard(prob, [&](Problem& problem) {
    if (buffer == nullptr) Need(required, "required");
    WrittenFile const model = WriteMps(problem.data);
    std::size_t const size = model.text.size() + 1;
    if (required != nullptr) {
      *required = size <= INT_MAX ? static_cast<int>(size) : -1;
      LogAll(problem, model.warnings);
    }
    if (buffer == nullptr) return;
    if (capacity < 0 || size > static_cast<std::size_t>(capacity)) {
      Refuse("The MPS text needs a buffer of ", size, " bytes, not ", capacity);
    }
    std::memcpy(buffer, model.text.c_str(), size);
  });
}

int VORQ_ReadSol(VORQ_Prob* prob, char const* path) {
  return ReadStart(prob, path);
}
int VORQ_ReadMst(VORQ_Prob* prob, char const* path) {
  return ReadStart(prob, path);
}

int VORQ_WriteSol(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    auto const values = LastSolution(problem);
    if (!values) Refuse("There is no solution to write");
    WriteValues(problem, target, *values);
  });
}

int VORQ_WritePoolSol(VORQ_Prob* prob, int index, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    auto const& pool = problem.result.pool;
    if (index < 0 || static_cast<std::size_t>(index) >= pool.size()) {
      Refuse("Pool solution ", index, " does not exist (the pool has ", pool.size(), ")");
    }
    PoolSolution const& solution = pool[static_cast<std::size_t>(index)];
    WriteValues(problem, target, {solution.values, solution.objective});
  });
}

// The solution of the last MIP solve, or else the last start that was given.
int VORQ_WriteMst(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    auto values = LastSolution(problem);
    if (!values && !problem.starts.empty()) values = Values{problem.starts.back().values, std::nullopt};
    if (!values) Refuse("There is neither a solution nor a MIP start to write");
    WriteValues(problem, target, *values);
  });
}

int VORQ_ReadBasis(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    RefuseWhileSolving(problem);
    problem.startBasis = ReadBasisFile(LoadText(PathOf(path)), problem.data);
    problem.log.Line(Text("Read '", path, "': a basis for the next solve"));
  });
}

// The basis of the last solve, or else the one given for the next.
int VORQ_WriteBasis(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    auto const empty = [](Basis const& basis) { return basis.cols.empty() && basis.rows.empty(); };
    Basis const& basis = empty(problem.result.basis) ? problem.startBasis : problem.result.basis;
    if (empty(basis)) Refuse("There is no basis to write");
    WriteFile(problem, target, WriteBasisFile(problem.data, basis));
  });
}

int VORQ_ReadParam(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    RefuseWhileSolving(problem);
    problem.parameters = ReadParameterFile(PathOf(path), problem.parameters);
    problem.log.Line(Text("Read '", path, "'"));
  });
}

int VORQ_WriteParam(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    WriteParameterFile(PathOf(path), problem.parameters);
    problem.log.Line(Text("Wrote '", path, "'"));
  });
}

int VORQ_ReadTune(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    RefuseWhileSolving(problem);
    problem.tuning.choices = ReadTuneFile(PathOf(path));
    problem.log.Line(Text("Read '", path, "': values of ", problem.tuning.choices.size(), " parameters to be tried"));
  });
}
int VORQ_WriteIIS(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    if (!problem.result.iis.available) Refuse("There is no IIS to write");
    WriteFile(problem, target, WriteLp(IisProblem(problem.data, problem.result.iis)));
  });
}
int VORQ_WriteRelax(VORQ_Prob* prob, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    constexpr int kBinary = 1;
    std::string const target = PathOf(path);
    auto const& relaxed = problem.result.relaxed;
    if (!relaxed.attempted) Refuse("There is no feasibility relaxation to write");
    ProblemData const relaxation = RelaxationProblem(problem.data, relaxed.penalties, relaxed.mode);
    bool const isBinary = problem.parameters.Int(IntParam::kRelaxFileType) == kBinary;
    WriteFile(problem, target, isBinary ? WriteBinary(relaxation) : WriteLp(relaxation));
  });
}
int VORQ_WriteTuneParam(VORQ_Prob* prob, int index, char const* path) {
  return Guard(prob, [&](Problem& problem) {
    std::string const target = PathOf(path);
    auto const& sets = problem.tuning.sets;
    if (index < 0 || static_cast<std::size_t>(index) >= sets.size()) {
      Refuse("Tuned parameter set ", index, " does not exist (there are ", sets.size(), ")");
    }
    WriteTunedSet(target, sets[static_cast<std::size_t>(index)]);
    problem.log.Line(Text("Wrote '", path, "'"));
  });
}
