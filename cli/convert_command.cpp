// The steps of `vorq convert`. The formats are chosen here, because a model's own Write knows no packed files and is
// silent on an ending that it does not know.
#include "cli/convert_command.hpp"

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include <vorq>

#include "cli/session.hpp"

namespace cli {
namespace {

using Transfer = void (Vorq::IModel::*)(char const* path);

struct ProblemFormat {
  std::string_view ending;
  Transfer read;   // null for a format that is only written
  Transfer write;  // null for a format that is only read
};

constexpr ProblemFormat kFormats[] = {
    {".mps", &Vorq::IModel::ReadMps, &Vorq::IModel::WriteMps},
    {".lp", &Vorq::IModel::ReadLp, &Vorq::IModel::WriteLp},
    {".bin", &Vorq::IModel::ReadBin, &Vorq::IModel::WriteBin},
    {".cbf", &Vorq::IModel::ReadCbf, &Vorq::IModel::WriteCbf},
    {".dat-s", &Vorq::IModel::ReadSdpa, nullptr},
    {".nl", nullptr, &Vorq::IModel::WriteNL},
};

bool EndsWith(std::string const& path, std::string_view ending) {
  auto const lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  if (path.size() < ending.size()) return false;
  std::size_t const begin = path.size() - ending.size();
  for (std::size_t k = 0; k < ending.size(); ++k) {
    if (lower(path[begin + k]) != ending[k]) return false;
  }
  return true;
}

Transfer Find(std::string const& path, Transfer ProblemFormat::*transfer, char const* verb) {
  for (ProblemFormat const& format : kFormats) {
    bool const fits = EndsWith(path, format.ending) || EndsWith(path, std::string(format.ending) + ".gz");
    if (fits && format.*transfer != nullptr) return format.*transfer;
  }
  throw CommandFailure(path + ": a problem of this ending cannot be " + verb);
}

void Convert(ConvertArguments const& arguments) {
  // Both are looked up first: a long read should not end in a mistake of the second name.
  Transfer const read = Find(arguments.input, &ProblemFormat::read, "read");
  Transfer const write = Find(arguments.output, &ProblemFormat::write, "written");
  Session session(false);
  (session.Model().*read)(arguments.input.c_str());
  session.Check(session.Model(), arguments.input);
  (session.Model().*write)(arguments.output.c_str());
  session.Check(session.Model(), arguments.output);
  for (std::string const& warning : session.Listener().Warnings()) {
    std::fprintf(stderr, "vorq: warning: %s\n", warning.c_str());
  }
}

}  // namespace

Outcome RunConvert(ConvertArguments const& arguments) {
  try {
    Convert(arguments);
    return Outcome::kOptimal;
  } catch (std::exception const& failure) {
    std::fprintf(stderr, "vorq: %s\n", failure.what());
    return Outcome::kFailed;
  }
}

}  // namespace cli
